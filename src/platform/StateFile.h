#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// A file in the application's state folder, readable by the person alone. Where there is no such folder, nothing is
/// kept.
class StateFile {
public:
    explicit StateFile(const QString &name);

    /// Full path; empty when there is no state folder.
    QString path() const { return m_path; }

    bool exists() const;

    /// The content; none when there is no regular file, or one of more than 64 MiB.
    std::optional<QByteArray> read() const;

    /// Replaces the file at once or not at all, and waits until the disk has it. False when that failed.
    bool write(const QByteArray &content) const;

    /// Gives it another name in the folder, where a file of that name is replaced.
    bool rename(const QString &name) const;

    void remove() const;

private:
    QString m_path;
};
