#include "DconfUserDefaults.h"

#include "SessionBus.h"

#include <QDBusError>
#include <QDBusMessage>

#include <utility>

namespace {

/// How long the service may take to store a value, in milliseconds. It usually takes one or two.
constexpr int answerLimit = 2000;

const QString service = QStringLiteral("ca.desrt.dconf");
const QString writerInterface = QStringLiteral("ca.desrt.dconf.Writer");

/// Whether dconf can hold something there.
bool isPath(const QByteArray &path)
{
    return path.startsWith('/') && !path.contains("//") && !path.contains('\0');
}

QByteArray folderOf(const QString &suiteName)
{
    const QByteArray folder = '/' + suiteName.toUtf8().replace('.', '/') + '/';
    return isPath(folder) ? folder : QByteArray();
}

UserDefaults::Trouble troubleIn(const QDBusError &error)
{
    using Trouble = UserDefaults::Trouble;
    switch (error.type()) {
    case QDBusError::Disconnected:
    case QDBusError::NoServer:
        return Trouble::noStore;
    case QDBusError::NoReply:
    case QDBusError::Timeout:
    case QDBusError::TimedOut:
    case QDBusError::ServiceUnknown:
        return Trouble::noAnswer;
    default:
        // How a file that could not be written is told on the bus.
        return error.name().contains(QStringLiteral("g_2dfile_2derror")) ? Trouble::noRoom : Trouble::unknown;
    }
}

}

DconfUserDefaults::DconfUserDefaults(const QString &suiteName) : m_folder(folderOf(suiteName))
{
    if (m_folder.isEmpty())
        return;
    connect(&SessionBus::instance(), &SessionBus::connected, this, &DconfUserDefaults::follow);
    follow();
}

bool DconfUserDefaults::canOpen(const QString &suiteName)
{
    return !folderOf(suiteName).isEmpty();
}

// No signal is bound to its sender: Qt would first ask the bus who that is, and wait for the answer.
void DconfUserDefaults::follow()
{
    auto bus = SessionBus::connectionNow();
    if (!bus || bus->name() == m_followed || m_database->writer().isEmpty())
        return;
    m_followed = bus->name();
    bus->connect(QString(), m_database->writer(), writerInterface, QStringLiteral("Notify"), this,
                 SLOT(heard(QString, QStringList, QString)));
    bus->connect(QString(), SessionBus::busPath, SessionBus::busName, QStringLiteral("NameOwnerChanged"), {service},
                 QString(), this, SLOT(serviceChanged(QString, QString, QString)));
    bus->callWithCallback(SessionBus::question(), this, SLOT(isFollowing()), nullptr);
    retry();
}

// What was changed before the bus knew that this process listens was not heard of.
void DconfUserDefaults::isFollowing()
{
    emit changed(QString());
}

void DconfUserDefaults::serviceChanged(const QString &, const QString &, const QString &newOwner)
{
    if (!newOwner.isEmpty()) {
        retry();
        return;
    }
    m_hasServiceEnded = true;
    tryAgain();
}

// A service that has ended is started by the next call. Once, or one that always ends would be started for ever.
void DconfUserDefaults::tryAgain()
{
    if (!m_hasServiceEnded || m_isWriting || std::exchange(m_hasTriedAgain, true))
        return;
    retry();
}

std::optional<QByteArray> DconfUserDefaults::path(const QString &key) const
{
    const QByteArray path = m_folder + key.toUtf8();
    if (m_folder.isEmpty() || !isPath(path) || path.endsWith('/'))
        return std::nullopt;
    return path;
}

QVariant DconfUserDefaults::storedValue(const QString &key) const
{
    const auto path = this->path(key);
    return path ? m_database->value(*path) : QVariant();
}

// A profile without a database that can be written is no lock.
bool DconfUserDefaults::isWritable(const QString &key) const
{
    const auto path = this->path(key);
    return !path || m_database->writer().isEmpty() || m_database->isWritable(*path);
}

void DconfUserDefaults::store(const QString &key, const QVariant &value)
{
    const auto path = this->path(key);
    const auto bus = SessionBus::connection();
    if (!isWritable(key)) {
        storeFinished(Trouble::locked);
    } else if (!path || !bus || m_database->writer().isEmpty()) {
        storeFinished(Trouble::noStore);
    } else {
        m_path = *path;
        m_value = value;
        m_isWriting = true;
        m_hasServiceEnded = false;
        QDBusMessage call =
            QDBusMessage::createMethodCall(service, m_database->writer(), writerInterface, QStringLiteral("Change"));
        call << m_database->change(m_path, m_value);
        bus->callWithCallback(call, this, SLOT(written(QString)), SLOT(refused(QDBusError, QDBusMessage)), answerLimit);
    }
}

void DconfUserDefaults::written(const QString &tag)
{
    m_ownWrite = tag;
    m_isWriting = false;
    m_hasTriedAgain = false;
    storeFinished(m_database->holds(m_path, m_value) ? Trouble::none : Trouble::unknown);
}

void DconfUserDefaults::refused(const QDBusError &error, const QDBusMessage &)
{
    m_isWriting = false;
    storeFinished(troubleIn(error));
    tryAgain();
}

void DconfUserDefaults::heard(const QString &prefix, const QStringList &changes, const QString &tag)
{
    if (tag == m_ownWrite)
        return;
    for (const QString &change : changes)
        pathChanged((prefix + change).toUtf8());
}

void DconfUserDefaults::pathChanged(const QByteArray &path)
{
    const bool isFolder = path.endsWith('/');
    if (isFolder && (m_folder.startsWith(path) || path.startsWith(m_folder)))
        storedChanged(QString());
    else if (!isFolder && path.startsWith(m_folder))
        storedChanged(QString::fromUtf8(path.mid(m_folder.size())));
}
