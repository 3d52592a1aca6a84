#pragma once

#include <QString>

#include <functional>

/// The programs of the person's session that are known by a name, which one process at a time holds.
///
/// Where there is no session, every process holds the names it claims, and nobody is asked or started.
class Instances {
public:
    /// What a later start, or the desktop, asks of the process that holds a name.
    struct Request {
        /// Empty: come to the front.
        QString action;

        /// What the action is about, a page for instance; empty where it needs nothing.
        QString argument;

        bool operator==(const Request &) const = default;
    };

    /// Carries out a request. False when this process is about to end: it then gives up its name, and whoever asked
    /// may claim it.
    using Handler = std::function<bool(const Request &)>;

    /// What became of a start.
    enum class Start {
        running, ///< It runs by now, or did so before.
        notInstalled, ///< None is installed under that name, or there is no session.
        failed, ///< It did not start, or not within five seconds.
    };
    using Started = std::function<void(Start)>;

    virtual ~Instances() = default;

    /// Claims `name`, a dotted name such as "com.vexmoor.corvane.settings", until this process ends. True when no other
    /// process holds it: of several that claim it at once, one is told so. A process claims one name. A session that
    /// comes later, or comes back, is asked for it then.
    virtual bool claim(const QString &name) = 0;

    /// Who carries out the requests to this process. They arrive on the main thread, from the event loop; it must be
    /// set before that runs.
    virtual void setHandler(Handler handler) = 0;

    /// Asks the process that holds `name`, and waits until it has done so; false when it is gone or about to end. The
    /// right to come to the front, which the desktop gave this start, goes with the request.
    virtual bool ask(const QString &name, const Request &request) = 0;

    /// Has the desktop start the program that is installed under `name`, unless a process holds it. Nothing waits for
    /// that, and where none is installed nothing happens. `started`, which may be empty, is told on the main thread.
    virtual void start(const QString &name, const Started &started) = 0;
};
