#pragma once

#include "Instances.h"

#include <QProcess>
#include <QStringList>

/// Another process of the session that holds a name, or asks who holds one.
class OtherInstance {
public:
    /// Holds `name`, and does whatever it is asked, or refuses it. It ends with this object.
    OtherInstance(const QString &name, bool refuses);
    ~OtherInstance();

    /// What it was asked so far.
    QList<Instances::Request> asked();

    /// Asks the process that holds `name`, without the event loop of this one standing still; true when that was done.
    static bool ask(const QString &name, const Instances::Request &request);

    /// The main() of the other process; `arguments` are its own.
    static bool isMeant(const QStringList &arguments);
    static int run(const QStringList &arguments);

private:
    QProcess m_process;
};
