#pragma once

#include <QHash>
#include <QStringList>
#include <QVariant>

class QDBusArgument;
class QDBusMessage;

/// What the desktop's settings portal has said, as far as it is used. Whatever else comes in, of whatever type, is
/// passed over, so that it takes no memory.
class PortalSettings {
public:
    /// The groups in which the settings are that are used.
    static QStringList groups();

    /// Takes a whole answer in place of everything before. False when it is none; nothing changes then.
    bool takeAnswer(const QDBusMessage &answer);

    /// Takes a setting that has changed. False when it is none that is used.
    bool take(const QString &group, const QString &key, const QVariant &value);

    /// Whether the desktop is dark; `otherwise` where the portal does not say.
    bool isDark(bool otherwise) const;
    bool isHighContrast() const;
    bool reducesMotion() const;

    /// How many settings are held.
    qsizetype count() const { return m_settings.size(); }

private:
    void takeGroups(const QDBusArgument &groups);

    QHash<QString, QVariant> m_settings;
};
