#pragma once

#include <QByteArray>
#include <QVariant>

#include <filesystem>
#include <memory>

/// What is stored in dconf, as it stands in the file: reading needs neither the bus nor the service.
///
/// It is read with dconf's library, which brings along eight more. All of them lie behind a shared library of our own
/// that is only loaded when it is needed: the dynamic linker would otherwise be busy with them before the program
/// begins.
///
/// A Boolean is stored as b, a text as s, a number as d; a number of any other type is read too.
class DconfDatabase {
public:
    virtual ~DconfDatabase() = default;
    DconfDatabase() = default;
    Q_DISABLE_COPY_MOVE(DconfDatabase)

    /// The person's database. A shared library that is missing ends the process: it was not installed.
    static std::unique_ptr<DconfDatabase> make();

    /// The shared library for a program: its path in a bundle around that, or its name, for the loader to look for. Had
    /// a program told the loader of the bundle, it would look there for every library that the program is linked with,
    /// before that starts.
    static std::filesystem::path library(const std::filesystem::path &program);

    /// The value at a path; invalid where there is none, or one of another type.
    virtual QVariant value(const QByteArray &path) const = 0;

    /// Whether exactly this is stored there; an invalid value stands for none.
    virtual bool holds(const QByteArray &path, const QVariant &value) const = 0;

    /// False where the administrator has locked the path.
    virtual bool isWritable(const QByteArray &path) const = 0;

    /// The object of the service that writes this database; empty where the profile names none that can be written.
    virtual QString writer() const = 0;

    /// What that object is sent to store a value at a path, an invalid one to remove it.
    virtual QByteArray change(const QByteArray &path, const QVariant &value) const = 0;
};
