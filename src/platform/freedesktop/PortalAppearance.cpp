#include "PortalAppearance.h"

#include "SessionBus.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QEvent>
#include <QGuiApplication>
#include <QPalette>
#include <QSet>

namespace {

constexpr int firstAnswerLimit = 50; // milliseconds
constexpr int laterAnswerLimit = 25000;
constexpr int frame = 16; // milliseconds

const QString portal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString portalInterface = QStringLiteral("org.freedesktop.portal.Settings");

const QString appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const QString gnomeGroup = QStringLiteral("org.gnome.desktop.interface");
const QString gnomeAccessibilityGroup = QStringLiteral("org.gnome.desktop.a11y.interface");

QString id(const QString &group, const QString &key)
{
    return group + u' ' + key;
}

const QString colorScheme = QStringLiteral("color-scheme");
const QString contrast = QStringLiteral("contrast");
const QString reducedMotion = QStringLiteral("reduced-motion");
const QString highContrast = QStringLiteral("high-contrast");
const QString enableAnimations = QStringLiteral("enable-animations");

/// All that is kept of what comes in.
const QSet<QString> usedSettings = {id(appearanceGroup, colorScheme), id(appearanceGroup, contrast),
                                    id(appearanceGroup, reducedMotion), id(gnomeAccessibilityGroup, highContrast),
                                    id(gnomeGroup, enableAnimations)};

// Some portals wrap a value more than once. A value of a type that no setting has counts as none.
QVariant plain(QVariant value)
{
    while (value.metaType() == QMetaType::fromType<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    const bool isKnown = value.typeId() == QMetaType::UInt || value.typeId() == QMetaType::Bool;
    return isKnown ? value : QVariant();
}

// Portals with several backends may name a group, and a key in it, more than once; the first one counts.
QHash<QString, QVariant> settingsIn(const QDBusArgument &groups)
{
    QHash<QString, QVariant> settings;
    groups.beginMap();
    while (!groups.atEnd()) {
        QString group;
        QVariantMap values;
        groups.beginMapEntry();
        groups >> group >> values;
        groups.endMapEntry();
        for (auto value = values.cbegin(); value != values.cend(); ++value) {
            const QString name = id(group, value.key());
            if (usedSettings.contains(name) && !settings.value(name).isValid())
                settings.insert(name, plain(*value));
        }
    }
    groups.endMap();
    return settings;
}

std::optional<uint> number(const QVariant &value)
{
    return value.typeId() == QMetaType::UInt ? std::optional(value.toUInt()) : std::nullopt;
}

bool isDarkPalette()
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance())
        && QGuiApplication::palette().color(QPalette::Window).lightnessF() < 0.5F;
}

}

PortalAppearance::PortalAppearance() : m_settled(firstAnswerLimit)
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
    if (m_question && m_isFirstQuestion)
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
    question << QStringList{appearanceGroup, gnomeGroup, gnomeAccessibilityGroup};
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
    if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != QStringLiteral("a{sa{sv}}"))
        return;
    m_settings = settingsIn(answer.arguments().constFirst().value<QDBusArgument>());
    update();
}

void PortalAppearance::takeOwner(const QString &owner)
{
    m_owner = owner;
}

void PortalAppearance::settingChanged(const QString &group, const QString &key, const QDBusVariant &value,
                                      const QDBusMessage &message)
{
    const QString name = id(group, key);
    if (message.service() != m_owner || !usedSettings.contains(name))
        return;
    m_settings.insert(name, plain(value.variant()));
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
    const auto setting = [this](const QString &group, const QString &key) { return m_settings.value(id(group, key)); };
    // GNOME's own settings are older than the shared ones: they count where the shared ones are not there.
    const auto isOn = [&](const QString &key, const QString &olderGroup, const QString &olderKey, bool olderOn) {
        const QVariant shared = setting(appearanceGroup, key);
        if (shared.isValid())
            return number(shared) == 1U;
        const QVariant older = setting(olderGroup, olderKey);
        return older.typeId() == QMetaType::Bool && older.toBool() == olderOn;
    };
    const auto scheme = number(setting(appearanceGroup, colorScheme));
    const bool hasScheme = scheme == 1U || scheme == 2U;
    return {
        .isDark = hasScheme ? scheme == 1U : isDarkPalette(),
        .isHighContrast = isOn(contrast, gnomeAccessibilityGroup, highContrast, true),
        .reduceMotion = isOn(reducedMotion, gnomeGroup, enableAnimations, false),
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
