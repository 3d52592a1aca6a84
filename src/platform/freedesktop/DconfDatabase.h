#pragma once

#include <QByteArray>
#include <QVariant>

#include <memory>

// NOLINTBEGIN(bugprone-reserved-identifier): the library's own names
using DConfClient = struct _DConfClient;
using GVariant = struct _GVariant;
// NOLINTEND(bugprone-reserved-identifier)

/// What is stored in dconf, as it stands in the file: reading needs neither the bus nor the service.
///
/// The library maps the file into memory, and a file that is cut short while it is mapped ends the process at the next
/// read. So each read first looks whether the file is still the one that is mapped, and opens it anew where not, which
/// also finds what was written without the library's own sign of a change. Only a file that is cut short between that
/// look and the read, some millionths of a second later, still does harm.
///
/// A Boolean is stored as b, a text as s, a number as d; a number of any other type is read too.
class DconfDatabase {
public:
    DconfDatabase();
    ~DconfDatabase();
    Q_DISABLE_COPY_MOVE(DconfDatabase)

    /// The value at a path of dconf; invalid where there is none, or one of another type.
    QVariant value(const QByteArray &path) const;

    /// Whether exactly this is stored there; an invalid value stands for none.
    bool holds(const QByteArray &path, const QVariant &value) const;

    /// False where the administrator has locked the path.
    bool isWritable(const QByteArray &path) const;

    /// The object of the service that writes this database; empty where the profile names none that can be written.
    QString writer() const { return m_writer; }

    /// What that object is sent to store a value at a path, an invalid one to remove it.
    static QByteArray change(const QByteArray &path, const QVariant &value);

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
