#pragma once

#include <QString>
#include <QTemporaryDir>

/// A copy of the application's bundle, agent's bundle around it, in a folder of its own, from which a test
/// can take things away. The executable is the same file, linked.
class BundleCopy {
public:
    /// `executable` lies in the "Contents/MacOS" folder of the application's bundle.
    explicit BundleCopy(const QString &executable);

    bool isValid() const { return m_isValid; }

    QString executable() const { return inside(QStringLiteral("MacOS/") + m_name); }

    /// Takes away `path`, a file or a folder below the application's "Contents". False when there was none.
    bool remove(const QString &path) const;

    /// Writes the file `path` below the application's "Contents" anew.
    bool write(const QString &path, const QByteArray &content) const;

private:
    /// `path` below the application's "Contents".
    QString inside(const QString &path) const;

    QTemporaryDir m_folder;
    QString m_name;
    bool m_isValid = false;
};
