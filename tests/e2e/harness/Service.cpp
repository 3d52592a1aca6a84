#include "Service.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QTest>

#include <csignal>

namespace {

QDBusConnectionInterface &bus()
{
    return *QDBusConnection::sessionBus().interface();
}

}

Service::Service(const QString &name) : m_name(name), m_processId(bus().servicePid(name)) { }

Service::~Service()
{
    release();
}

bool Service::hold()
{
    m_isHeld = signal(SIGSTOP);
    return m_isHeld;
}

bool Service::release()
{
    return std::exchange(m_isHeld, false) && signal(SIGCONT);
}

bool Service::end() const
{
    return signal(SIGTERM) && QTest::qWaitFor([this] { return !bus().isServiceRegistered(m_name); });
}

bool Service::signal(int number) const
{
    return m_processId > 0 && kill(pid_t(m_processId), number) == 0;
}
