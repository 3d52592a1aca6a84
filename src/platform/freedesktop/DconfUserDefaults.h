#pragma once

#include "UserDefaults.h"

#include <QHash>
#include <QSet>

#include <optional>

using DConfClient = struct _DConfClient; // NOLINT(bugprone-reserved-identifier): the library's own name

/// A suite in the dconf database: the suite's name with slashes for its dots is the folder, the key the name
/// in it.
///
/// A Boolean is stored as b, a string as s, a number as d; a number of any other type is read too.
/// What cannot be stored, for want of a bus, of the service or of a writable folder, is kept in memory until
/// somebody else changes the same key or storing it works again.
class DconfUserDefaults : public UserDefaults {
public:
    /// A name that is no folder of dconf, the empty one for instance, gives a suite that lives in memory
    /// alone.
    explicit DconfUserDefaults(const QString &suiteName);
    ~DconfUserDefaults() override;

    static bool canOpen(const QString &suiteName);

    QVariant value(const QString &key) const override;
    void setValue(const QString &key, const QVariant &value) override;

private:
    static void heard(DConfClient *client, const char *prefix, char **changes, const char *tag, void *self);

    void watch();
    std::optional<QByteArray> path(const QString &key) const;
    bool store(const QByteArray &path, const QVariant &value);
    void pathChanged(const QByteArray &path);
    void everythingChanged();

    QByteArray m_folder;
    DConfClient *m_client = nullptr;
    bool m_hasBus = false;

    /// Values that could not be stored. An invalid one hides a stored one that could not be removed.
    QHash<QString, QVariant> m_unstored;

    /// The tags of our own writes whose change signals are still to come and must not be announced again.
    QSet<QByteArray> m_ownWrites;
};
