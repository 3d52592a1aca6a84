#include "FreedesktopImplementation.h"

#include "DconfService.h"
#include "Desktop.h"
#include "FreedesktopPlatform.h"
#include "Tool.h"

#include <QDir>
#include <QXmlStreamWriter>

#include <linux/input-event-codes.h>

namespace {

QString dconfPath(const QString &key)
{
    return u'/' + Implementation::suiteName().replace(u'.', u'/') + u'/' + key;
}

/// A value in the text form of GVariant.
QString dconfText(const QVariant &value)
{
    if (value.typeId() == QMetaType::QStringList)
        return u"['" + value.toStringList().join(u"', '") + u"']";
    if (value.typeId() == QMetaType::QString)
        return u'\'' + value.toString() + u'\'';
    return value.typeId() == QMetaType::Double ? QString::number(value.toDouble(), 'f') : value.toString();
}

quint32 scanCode(std::int64_t keyCode)
{
    constexpr quint32 offset = 8;
    const QHash<std::int64_t, quint32> codes = {
        {KeyCodes::f, KEY_F}, {KeyCodes::h, KEY_H}, {KeyCodes::m, KEY_M}, {KeyCodes::q, KEY_Q}, {KeyCodes::w, KEY_W},
    };
    return codes.value(keyCode, KEY_CALC) + offset;
}

Qt::KeyboardModifiers modifiers(std::uint64_t flags)
{
    Qt::KeyboardModifiers held;
    held.setFlag(Qt::ShiftModifier, flags & KeyFlags::shiftFlag);
    held.setFlag(Qt::MetaModifier, flags & KeyFlags::controlFlag);
    held.setFlag(Qt::AltModifier, flags & KeyFlags::optionFlag);
    held.setFlag(Qt::ControlModifier, flags & KeyFlags::commandFlag);
    return held;
}

void writeElement(QXmlStreamWriter &xml, const QVariant &value)
{
    if (value.typeId() == QMetaType::Bool)
        xml.writeEmptyElement(value.toBool() ? QStringLiteral("true") : QStringLiteral("false"));
    else if (value.typeId() == QMetaType::Int)
        xml.writeTextElement(QStringLiteral("integer"), value.toString());
    else if (value.typeId() == QMetaType::QString)
        xml.writeTextElement(QStringLiteral("string"), value.toString());
    else
        xml.writeEmptyElement(QStringLiteral("array"));
}

}

FreedesktopImplementation::FreedesktopImplementation(const Desktop &desktop)
    : m_desktop(desktop), m_portal(QVariant::fromValue(SettingsGroups()))
{
    Platform::install(makeFreedesktopPlatform());
}

FreedesktopImplementation::~FreedesktopImplementation()
{
    // No question may be left unanswered: the bus library keeps what belongs to it.
    Platform::current().appearance().settle();
    Platform::install(nullptr);
    qunsetenv("DCONF_PROFILE");
    dconf({QStringLiteral("reset"), QStringLiteral("-f"), QStringLiteral("/")});
}

void FreedesktopImplementation::store(const QString &key, const QVariant &value)
{
    if (value.isValid())
        dconf({QStringLiteral("write"), dconfPath(key), dconfText(value)});
    else
        dconf({QStringLiteral("reset"), dconfPath(key)});
}

QVariant FreedesktopImplementation::stored(const QString &key)
{
    const QString text = dconf({QStringLiteral("read"), dconfPath(key)});
    if (text == QStringLiteral("true") || text == QStringLiteral("false"))
        return text == QStringLiteral("true");
    if (text.startsWith(u'\'') || text.startsWith(u'"'))
        return text.mid(1).chopped(1);
    return text.isEmpty() ? QVariant() : QVariant(text.toDouble());
}

void FreedesktopImplementation::setHasRoom(bool hasRoom)
{
    DconfService::setHasRoom(hasRoom);
}

void FreedesktopImplementation::setHangs(bool hangs)
{
    DconfService::setHangs(hangs);
}

void FreedesktopImplementation::lock(const QString &key)
{
    qputenv("DCONF_PROFILE", QFile::encodeName(DconfService::makeLock(dconfPath(key), m_profile.path())));
}

void FreedesktopImplementation::choose(const Look &look)
{
    const QString group = QStringLiteral("org.freedesktop.appearance");
    m_portal.change(group, QStringLiteral("color-scheme"), look.isDark ? 1U : 2U);
    m_portal.change(group, QStringLiteral("contrast"), look.isHighContrast ? 1U : 0U);
    m_portal.change(group, QStringLiteral("reduced-motion"), look.reducesMotion ? 1U : 0U);
}

bool FreedesktopImplementation::press(const KeyDown &key)
{
    // A letter is known by its place, Escape by its meaning.
    const int meaning = key.keyCode == KeyCodes::escape ? Qt::Key_Escape : Qt::Key_unknown;
    QKeyEvent event(QEvent::KeyPress, meaning, modifiers(key.flags), scanCode(key.keyCode), 0, 0, QString(),
                    key.isARepeat);
    m_window.isSentAKey = false;
    QCoreApplication::sendEvent(&m_window, &event);
    return !m_window.isSentAKey;
}

void FreedesktopImplementation::show(const QList<OnScreenWindow> &windows)
{
    const XConnection &x = m_desktop.x();
    m_shown.clear();
    for (auto window = windows.crbegin(); window != windows.crend(); ++window) {
        m_shown.push_back(std::make_unique<X11TestWindow>(x, window->bounds->toRect()));
        if (window->layer != 0)
            m_shown.back()->setNumbers("_NET_WM_WINDOW_TYPE", {x.atom("_NET_WM_WINDOW_TYPE_DOCK")});
        if (window->ownerIsSystemSettings)
            m_shown.back()->setClass("systemsettings", "systemsettings");
        m_shown.back()->map();
    }
}

void FreedesktopImplementation::hold(const QString &name, Answer answer)
{
    m_other.emplace(name, answer == Answer::Refused);
}

QUrl FreedesktopImplementation::makeBundle(const QVariantMap &info, const QStringList &resources)
{
    const QString folder = m_bundles.filePath(QStringLiteral("%1.app").arg(m_bundleCount++));
    QDir().mkpath(folder + QStringLiteral("/Contents/Resources"));
    QFile file(folder + QStringLiteral("/Contents/Info.plist"));
    file.open(QFile::WriteOnly);
    QXmlStreamWriter xml(&file);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("plist"));
    xml.writeStartElement(QStringLiteral("dict"));
    for (auto entry = info.cbegin(); entry != info.cend(); ++entry) {
        xml.writeTextElement(QStringLiteral("key"), entry.key());
        writeElement(xml, entry.value());
    }
    xml.writeEndDocument();
    for (const QString &name : resources)
        QFile(folder + QStringLiteral("/Contents/Resources/") + name).open(QFile::WriteOnly);
    return QUrl::fromLocalFile(folder);
}
