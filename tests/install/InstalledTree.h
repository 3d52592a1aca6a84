#pragma once

#include <QMap>
#include <QStringList>
#include <QTemporaryDir>

/// The build, installed into a folder of its own, which goes with this object.
class InstalledTree {
public:
    /// Installs into `prefix`, a folder below that one.
    explicit InstalledTree(const QString &prefix = QStringLiteral("prefix"));

    /// Installs for the prefix "/usr" and stages it below that folder, as a packager does.
    static InstalledTree staged() { return InstalledTree(Staged()); }

    ~InstalledTree();
    InstalledTree(const InstalledTree &) = delete;
    InstalledTree &operator=(const InstalledTree &) = delete;

    bool isValid() const { return m_isValid; }

    /// The absolute path of what lies at `place` in the prefix.
    QString path(const QString &place) const { return m_prefix + u'/' + place; }

    /// Each file that is there, by its place in the prefix, with its size and the time of its last change.
    QMap<QString, QString> files() const;

    /// Renames the prefix to `prefix` and takes the right to write from everything in it.
    bool moveAndProtect(const QString &prefix);

    /// Removes what the installation has noted down as installed.
    bool uninstall() const;

private:
    struct Staged { };
    explicit InstalledTree(Staged /*tag*/);

    void install(const QString &prefix, const QString &staging);
    bool setWritable(bool writable) const;

    QTemporaryDir m_folder;
    QString m_prefix;
    QStringList m_manifest;
    bool m_isValid = false;
};
