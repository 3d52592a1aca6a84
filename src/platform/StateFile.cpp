#include "StateFile.h"

#include "Platform.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace {

constexpr qint64 largest = 64 * 1024 * 1024;

constexpr auto ownerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

QString pathOf(const QString &name)
{
    const QString folder = Platform::current().stateFolder();
    return folder.isEmpty() ? QString() : folder + u'/' + name;
}

}

StateFile::StateFile(const QString &name) : m_path(pathOf(name)) { }

bool StateFile::exists() const
{
    return !m_path.isEmpty() && QFileInfo(m_path).isFile();
}

std::optional<QByteArray> StateFile::read() const
{
    QFile file(m_path);
    if (!exists() || QFileInfo(m_path).size() > largest || !file.open(QFile::ReadOnly))
        return std::nullopt;
    return file.read(largest);
}

bool StateFile::write(const QByteArray &content) const
{
    const QString folder = QFileInfo(m_path).path();
    if (m_path.isEmpty() || (!QDir(folder).exists() && !QDir().mkpath(folder)))
        return false;
    QSaveFile file(m_path);
    return file.open(QFile::WriteOnly) && file.setPermissions(ownerOnly) && file.write(content) == content.size()
        && file.commit();
}

bool StateFile::rename(const QString &name) const
{
    const QString other = pathOf(name);
    QFile::remove(other);
    return !m_path.isEmpty() && QFile::rename(m_path, other);
}

void StateFile::remove() const
{
    if (!m_path.isEmpty())
        QFile::remove(m_path);
}
