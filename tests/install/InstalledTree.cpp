#include "InstalledTree.h"

#include <QDateTime>
#include <QDirIterator>
#include <QFile>
#include <QProcess>

#include <algorithm>
#include <filesystem>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

InstalledTree::InstalledTree(const QString &prefix) : m_prefix(m_folder.filePath(prefix))
{
    install(m_prefix, QString());
}

InstalledTree::InstalledTree(Staged /*tag*/) : m_prefix(m_folder.filePath(u"usr"_s))
{
    install(u"/usr"_s, m_folder.path());
}

InstalledTree::~InstalledTree()
{
    setWritable(true);
}

void InstalledTree::install(const QString &prefix, const QString &staging)
{
    QProcess cmake;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"DESTDIR"_s, staging);
    cmake.setProcessEnvironment(environment);
    cmake.start(QStringLiteral(CMAKE_PROGRAM), {u"--install"_s, QStringLiteral(BUILD_FOLDER), u"--prefix"_s, prefix});
    QFile manifest(QStringLiteral(BUILD_FOLDER "/install_manifest.txt"));
    m_isValid = cmake.waitForFinished() && cmake.exitCode() == 0 && manifest.open(QFile::ReadOnly);
    if (!m_isValid)
        return;
    const QStringList files = QString::fromUtf8(manifest.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &file : files)
        m_manifest.append(staging + file);
}

QMap<QString, QString> InstalledTree::files() const
{
    QMap<QString, QString> files;
    QDirIterator entries(m_prefix, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QFileInfo file = entries.nextFileInfo();
        const QString changed = file.lastModified().toString(Qt::ISODateWithMs);
        files.insert(file.filePath().mid(m_prefix.size() + 1), u"%1 bytes, %2"_s.arg(file.size()).arg(changed));
    }
    return files;
}

bool InstalledTree::moveAndProtect(const QString &prefix)
{
    const QString target = m_folder.filePath(prefix);
    if (!QFile::rename(m_prefix, target))
        return false;
    m_prefix = target;
    return setWritable(false);
}

bool InstalledTree::setWritable(bool writable) const
{
    const auto how = writable ? fs::perm_options::add : fs::perm_options::remove;
    const fs::perms writing =
        writable ? fs::perms::owner_write : fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    std::error_code error;
    const fs::path prefix(m_prefix.toStdString());
    fs::permissions(prefix, writing, how, error);
    for (const fs::directory_entry &entry : fs::recursive_directory_iterator(prefix, error)) {
        if (!entry.is_symlink())
            fs::permissions(entry, writing, how, error);
    }
    return !error;
}

bool InstalledTree::uninstall() const
{
    return !m_manifest.isEmpty()
        && std::all_of(m_manifest.cbegin(), m_manifest.cend(), [](const QString &file) { return QFile::remove(file); });
}
