#pragma once

#include "DconfDatabase.h"
#include "UserDefaults.h"

class QDBusError;
class QDBusMessage;

/// A suite in the dconf database: the suite's name with slashes for its dots is the folder, the key the name
/// in it.
///
/// It is read with dconf's library and written by calls to dconf's service. The library can write too, but waits for
/// the service up to 25 seconds, and the bus it has found first, or not found, is the only one it ever uses. A value
/// counts as stored once it is read back: a service of another session may store in another folder.
class DconfUserDefaults : public UserDefaults {
    Q_OBJECT
public:
    /// A name that is no folder of dconf, the empty one for instance, gives a suite that lives in memory
    /// alone.
    explicit DconfUserDefaults(const QString &suiteName);

    static bool canOpen(const QString &suiteName);

    bool isWritable(const QString &key) const override;

protected:
    QVariant storedValue(const QString &key) const override;
    void store(const QString &key, const QVariant &value) override;

private slots:
    void written(const QString &tag);
    void refused(const QDBusError &error, const QDBusMessage &call);
    void heard(const QString &prefix, const QStringList &changes, const QString &tag);
    void serviceChanged(const QString &name, const QString &oldOwner, const QString &newOwner);
    void isFollowing();

private:
    void follow();
    void tryAgain();
    void pathChanged(const QByteArray &path);
    std::optional<QByteArray> path(const QString &key) const;

    QByteArray m_folder;
    const std::unique_ptr<DconfDatabase> m_database = DconfDatabase::make();
    /// The connection on which changes are heard.
    QString m_followed;
    /// What is being written.
    QByteArray m_path;
    QVariant m_value;
    bool m_isWriting = false;
    /// Since the last write began.
    bool m_hasServiceEnded = false;
    /// Since the last write that was stored.
    bool m_hasTriedAgain = false;
    /// The tag of the own write whose change signal is still to come and must not be announced again.
    QString m_ownWrite;
};
