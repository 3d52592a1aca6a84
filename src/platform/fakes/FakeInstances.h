#pragma once

#include "Instances.h"

#include <QHash>
#include <QStringList>

/// The programs of a session in memory. What this process holds it may also ask itself for.
class FakeInstances : public Instances {
public:
    /// What another process that holds a name answers.
    QHash<QString, Handler> others;

    /// The names that this process has claimed.
    QStringList claimed;

    /// What was to be started, each time anew.
    QStringList started;

    /// What becomes of a start.
    Start outcome = Start::notInstalled;

    /// True: that is told when `answer` is called.
    bool answersLater = false;

    bool claim(const QString &name) override
    {
        if (others.contains(name))
            return false;
        claimed.append(name);
        return true;
    }

    void setHandler(Handler handler) override { m_handler = std::move(handler); }

    bool ask(const QString &name, const Request &request) override
    {
        const Handler other = others.value(name);
        const bool isDone = other && other(request);
        if (!isDone)
            others.remove(name);
        return isDone;
    }

    void start(const QString &name, const Started &told) override
    {
        started.append(name);
        m_told = told;
        if (!answersLater)
            answer();
    }

    /// Tells what became of the last start.
    void answer()
    {
        if (m_told)
            m_told(outcome);
    }

    /// Another process asks this one; false when it would not.
    bool receive(const Request &request)
    {
        const bool isDone = !m_handler || m_handler(request);
        if (!isDone)
            claimed.clear();
        return isDone;
    }

private:
    Handler m_handler;
    Started m_told;
};
