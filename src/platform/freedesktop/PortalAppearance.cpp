#include "PortalAppearance.h"

#include "SessionBus.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QEvent>
#include <QGuiApplication>
#include <QPalette>

namespace {

constexpr int laterAnswerLimit = 25000; // milliseconds
constexpr int frame = 16; // milliseconds

const QString portal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString portalInterface = QStringLiteral("org.freedesktop.portal.Settings");

bool isDarkPalette()
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance())
        && QGuiApplication::palette().color(QPalette::Window).lightnessF() < 0.5F;
}

}

PortalAppearance::PortalAppearance(std::chrono::milliseconds patience) : m_settled(patience)
{
    if (QCoreApplication *application = QCoreApplication::instance())
        application->installEventFilter(this);
    connect(&SessionBus::instance(), &SessionBus::connected, this, &PortalAppearance::follow);
    follow();
    m_look = look();
}

PortalAppearance::~PortalAppearance() = default;

std::optional<AppearanceName> PortalAppearance::bestMatch() const
{
    if (m_look.isHighContrast) {
        return m_look.isDark ? AppearanceName::AccessibilityHighContrastDarkAqua
                             : AppearanceName::AccessibilityHighContrastAqua;
    }
    return m_look.isDark ? AppearanceName::DarkAqua : AppearanceName::Aqua;
}

void PortalAppearance::settle()
{
    if (!m_question && m_isFirstQuestion)
        SessionBus::connectionWithin(std::chrono::milliseconds(m_settled.remainingTime()));
    if (!m_question || !m_isFirstQuestion)
        return;
    SessionBus::waitFor(*m_question, std::chrono::milliseconds(m_settled.remainingTime()));
    // Its answer is taken now, and not when events are.
    if (m_question->isFinished())
        m_question->waitForFinished();
}

// To start what runs already does nothing. When the portal is there, the bus says so.
void PortalAppearance::wake()
{
    const auto bus = SessionBus::connection();
    if (!bus)
        return;
    QDBusMessage start = QDBusMessage::createMethodCall(SessionBus::busName, SessionBus::busPath, SessionBus::busName,
                                                        QStringLiteral("StartServiceByName"));
    start << portal << 0U;
    bus->send(start);
}

bool PortalAppearance::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange && watched == QCoreApplication::instance())
        update();
    return false;
}

// Each connection is followed once.
void PortalAppearance::follow()
{
    auto bus = SessionBus::connectionNow();
    if (!bus || bus->name() == m_followed)
        return;
    m_followed = bus->name();
    // On another bus that name may be somebody else's.
    m_owner.clear();
    listen(*bus);
    ask(m_isFirstQuestion ? int(m_settled.remainingTime()) : laterAnswerLimit);
}

// Both name no sender: Qt would first ask the bus who that is, and wait for the answer. Who sent a message is looked at
// when it arrives.
void PortalAppearance::listen(QDBusConnection &bus)
{
    // Qt refuses a slot with a type that is not registered.
    qRegisterMetaType<QDBusVariant>();
    bus.connect(QString(), portalPath, portalInterface, QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QString, QString, QDBusVariant, QDBusMessage)));
    bus.connect(QString(), SessionBus::busPath, SessionBus::busName, QStringLiteral("NameOwnerChanged"), {portal},
                QString(), this, SLOT(portalOwnerChanged(QString, QString, QString, QDBusMessage)));
    QDBusMessage question = QDBusMessage::createMethodCall(SessionBus::busName, SessionBus::busPath,
                                                           SessionBus::busName, QStringLiteral("GetNameOwner"));
    question << portal;
    bus.callWithCallback(question, this, SLOT(takeOwner(QString)));
}

// One call for all settings: every version of the portal answers it alike, while the calls for a single value differ.
void PortalAppearance::ask(int limit)
{
    const auto bus = SessionBus::connectionNow();
    if (!bus)
        return;
    QDBusMessage question =
        QDBusMessage::createMethodCall(portal, portalPath, portalInterface, QStringLiteral("ReadAll"));
    question.setAutoStartService(false);
    question << PortalSettings::groups();
    m_question = std::make_unique<QDBusPendingCallWatcher>(bus->asyncCall(question, limit));
    connect(m_question.get(), &QDBusPendingCallWatcher::finished, this, &PortalAppearance::takeAnswer);
}

void PortalAppearance::takeAnswer()
{
    const QDBusMessage answer = m_question->reply();
    m_question.release()->deleteLater();
    const bool isLate = m_isFirstQuestion && QDBusError(answer).type() == QDBusError::NoReply;
    m_isFirstQuestion = false;
    if (isLate)
        ask(laterAnswerLimit);
    if (m_settings.takeAnswer(answer))
        update();
}

void PortalAppearance::takeOwner(const QString &owner)
{
    m_owner = owner;
}

void PortalAppearance::settingChanged(const QString &group, const QString &key, const QDBusVariant &value,
                                      const QDBusMessage &message)
{
    if (message.service() != m_owner || !m_settings.take(group, key, value.variant()))
        return;
    if (!m_updates.isActive())
        m_updates.start(frame, this);
}

void PortalAppearance::timerEvent(QTimerEvent *)
{
    m_updates.stop();
    update();
}

void PortalAppearance::portalOwnerChanged(const QString &, const QString &, const QString &newOwner,
                                          const QDBusMessage &message)
{
    if (message.service() != SessionBus::busName)
        return;
    m_owner = newOwner;
    if (newOwner.isEmpty())
        return;
    m_isFirstQuestion = false;
    ask(laterAnswerLimit);
}

PortalAppearance::Look PortalAppearance::look() const
{
    return {
        .isDark = m_settings.isDark(isDarkPalette()),
        .isHighContrast = m_settings.isHighContrast(),
        .reduceMotion = m_settings.reducesMotion(),
    };
}

void PortalAppearance::update()
{
    const Look look = this->look();
    if (m_look == look)
        return;
    m_look = look;
    emit changed();
}
