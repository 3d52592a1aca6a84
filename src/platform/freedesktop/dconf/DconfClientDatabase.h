#pragma once

#include "DconfDatabase.h"

// NOLINTBEGIN(bugprone-reserved-identifier): the library's own names
using DConfClient = struct _DConfClient;
using GVariant = struct _GVariant;
// NOLINTEND(bugprone-reserved-identifier)

/// The database as dconf's library reads it.
///
/// The library maps the file into memory, and a file that is cut short while it is mapped ends the process at the next
/// read. So each read first looks whether the file is still the one that is mapped, and opens it anew where not, which
/// also finds what was written without the library's own sign of a change. Only a file that is cut short between that
/// look and the read, some millionths of a second later, still does harm.
class DconfClientDatabase : public DconfDatabase {
public:
    DconfClientDatabase();
    ~DconfClientDatabase() override;
    Q_DISABLE_COPY_MOVE(DconfClientDatabase)

    QVariant value(const QByteArray &path) const override;
    bool holds(const QByteArray &path, const QVariant &value) const override;
    bool isWritable(const QByteArray &path) const override;
    QString writer() const override { return m_writer; }
    QByteArray change(const QByteArray &path, const QVariant &value) const override;

private:
    /// Tells one state of the file from another.
    struct Mark {
        quint64 inode = 0;
        qint64 size = -1;
        qint64 seconds = 0;
        qint64 nanoseconds = 0;
        bool operator==(const Mark &) const = default;
    };

    struct Unref {
        void operator()(GVariant *value) const;
    };
    using Value = std::unique_ptr<GVariant, Unref>;

    Mark mark() const;
    Value read(const QByteArray &path) const;
    DConfClient *client() const;

    QString m_writer;
    QByteArray m_file;
    mutable DConfClient *m_client = nullptr;
    mutable Mark m_mark;
};
