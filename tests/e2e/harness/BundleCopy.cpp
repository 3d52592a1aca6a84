#include "BundleCopy.h"

#include <QFile>
#include <QFileInfo>

#include <filesystem>

namespace {

namespace files = std::filesystem;

bool linkOrCopy(const files::path &from, const files::path &to)
{
    std::error_code error;
    files::create_hard_link(from, to, error);
    return !error || files::copy_file(from, to, error);
}

}

BundleCopy::BundleCopy(const QString &executable) : m_name(QFileInfo(executable).fileName())
{
    const files::path program(executable.toStdString());
    const files::path from = program.parent_path().parent_path();
    const files::path to(inside(QString()).toStdString());
    std::error_code error;
    files::create_directories(to / "MacOS", error);
    if (!error)
        files::copy(from / "Resources", to / "Resources", files::copy_options::recursive, error);
    if (!error)
        files::copy_file(from / "Info.plist", to / "Info.plist", error);
    m_isValid = !error && linkOrCopy(program, to / "MacOS" / program.filename());
}

bool BundleCopy::remove(const QString &path) const
{
    std::error_code error;
    return files::remove_all(inside(path).toStdString(), error) > 0 && !error;
}

bool BundleCopy::write(const QString &path, const QByteArray &content) const
{
    QFile file(inside(path));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QString BundleCopy::inside(const QString &path) const
{
    return m_folder.filePath(QStringLiteral("Corvane.app/Contents/Helpers/Corvane Settings.app/Contents/") + path);
}
