#include "PortalSettings.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QSet>

#include <optional>

namespace {

const QString appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const QString gnomeGroup = QStringLiteral("org.gnome.desktop.interface");
const QString gnomeAccessibilityGroup = QStringLiteral("org.gnome.desktop.a11y.interface");

QString id(const QString &group, const QString &key)
{
    return group + u' ' + key;
}

const QString colorScheme = id(appearanceGroup, QStringLiteral("color-scheme"));
const QString contrast = id(appearanceGroup, QStringLiteral("contrast"));
const QString reducedMotion = id(appearanceGroup, QStringLiteral("reduced-motion"));
const QString highContrast = id(gnomeAccessibilityGroup, QStringLiteral("high-contrast"));
const QString enableAnimations = id(gnomeGroup, QStringLiteral("enable-animations"));

/// All that is kept of what comes in.
const QSet<QString> usedSettings = {colorScheme, contrast, reducedMotion, highContrast, enableAnimations};

// Some portals wrap a value more than once. A value of a type that no setting has counts as none.
QVariant plain(QVariant value)
{
    while (value.metaType() == QMetaType::fromType<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    const bool isKnown = value.typeId() == QMetaType::UInt || value.typeId() == QMetaType::Bool;
    return isKnown ? value : QVariant();
}

std::optional<uint> number(const QVariant &value)
{
    return value.typeId() == QMetaType::UInt ? std::optional(value.toUInt()) : std::nullopt;
}

// GNOME's own settings are older than the shared ones: they count where the shared ones are not there.
bool isOn(const QVariant &shared, const QVariant &older, bool olderOn)
{
    if (shared.isValid())
        return number(shared) == 1U;
    return older.typeId() == QMetaType::Bool && older.toBool() == olderOn;
}

}

QStringList PortalSettings::groups()
{
    return {appearanceGroup, gnomeGroup, gnomeAccessibilityGroup};
}

bool PortalSettings::takeAnswer(const QDBusMessage &answer)
{
    if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != QStringLiteral("a{sa{sv}}"))
        return false;
    takeGroups(answer.arguments().constFirst().value<QDBusArgument>());
    return true;
}

// Portals with several backends may name a group, and a key in it, more than once; the first one counts.
void PortalSettings::takeGroups(const QDBusArgument &groups)
{
    m_settings.clear();
    groups.beginMap();
    while (!groups.atEnd()) {
        QString group;
        QVariantMap values;
        groups.beginMapEntry();
        groups >> group >> values;
        groups.endMapEntry();
        for (auto value = values.cbegin(); value != values.cend(); ++value) {
            if (!m_settings.value(id(group, value.key())).isValid())
                take(group, value.key(), *value);
        }
    }
    groups.endMap();
}

bool PortalSettings::take(const QString &group, const QString &key, const QVariant &value)
{
    const QString name = id(group, key);
    if (!usedSettings.contains(name))
        return false;
    m_settings.insert(name, plain(value));
    return true;
}

bool PortalSettings::isDark(bool otherwise) const
{
    const auto scheme = number(m_settings.value(colorScheme));
    const bool hasScheme = scheme == 1U || scheme == 2U;
    return hasScheme ? scheme == 1U : otherwise;
}

bool PortalSettings::isHighContrast() const
{
    return isOn(m_settings.value(contrast), m_settings.value(highContrast), true);
}

bool PortalSettings::reducesMotion() const
{
    return isOn(m_settings.value(reducedMotion), m_settings.value(enableAnimations), false);
}
