#include "PlistBundle.h"

#include "RegularFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <plist/plist.h>

namespace {

/// The library parses nested values by recursion, so the size of the file bounds the stack.
constexpr qint64 largestInfoPlist = 128LL * 1024; // bytes

plist_t parsed(const QByteArray &text)
{
    plist_t root = nullptr;
    const auto size = static_cast<uint32_t>(text.size());
    if (text.startsWith("bplist"))
        plist_from_bin(text.constData(), size, &root);
    else if (!text.isEmpty())
        plist_from_xml(text.constData(), size, &root);
    return root;
}

std::shared_ptr<void> readDictionary(const QString &fileName)
{
    const auto text = RegularFile::read(fileName, largestInfoPlist);
    const std::shared_ptr<void> root(parsed(text.value_or(QByteArray())), plist_free);
    return plist_get_node_type(root.get()) == PLIST_DICT ? root : nullptr;
}

QVariant scalar(plist_t node)
{
    switch (plist_get_node_type(node)) {
    case PLIST_STRING: {
        uint64_t length = 0;
        const char *text = plist_get_string_ptr(node, &length);
        return QString::fromUtf8(text, static_cast<qsizetype>(length));
    }
    case PLIST_BOOLEAN: {
        uint8_t value = 0;
        plist_get_bool_val(node, &value);
        return value != 0;
    }
    case PLIST_UINT: {
        uint64_t value = 0;
        plist_get_uint_val(node, &value);
        return static_cast<qlonglong>(value);
    }
    default:
        return {};
    }
}

bool isReadable(const QByteArray &path)
{
    return QFile::encodeName(QFile::decodeName(path)) == path;
}

/// The path as a text. A text cannot hold a name that is no UTF-8, so the folder of that name is kept open for as long
/// as the process runs, and its descriptor stands for it.
QString readable(const QByteArray &path)
{
    if (isReadable(path))
        return QFile::decodeName(path);
    qsizetype rest = path.size();
    while (isReadable(path.mid(path.lastIndexOf('/', rest - 1))))
        rest = path.lastIndexOf('/', rest - 1);
    const int folder = open(path.first(rest).constData(), O_PATH | O_CLOEXEC);
    return QStringLiteral("/proc/self/fd/%1").arg(folder) + QFile::decodeName(path.mid(rest));
}

/// The file itself, symbolic links followed; empty when there is none.
QString resolved(const QString &fileName)
{
    const std::unique_ptr<char, decltype(&std::free)> path(realpath(QFile::encodeName(fileName).constData(), nullptr),
                                                           &std::free);
    return readable(path.get());
}

QString existingFile(const QString &path)
{
    return QFileInfo(path).isFile() ? path : QString();
}

}

PlistBundle::PlistBundle(const QString &folder) : m_folder(QDir::cleanPath(folder)) { }

PlistBundle PlistBundle::around(const QString &executable)
{
    const QFileInfo file(resolved(executable));
    const QString folder = file.path();
    const QString suffix = QStringLiteral("/Contents/MacOS");
    PlistBundle bundle(folder.endsWith(suffix) ? folder.chopped(suffix.size()) : folder);
    bundle.m_executable = file.filePath();
    return bundle;
}

bool PlistBundle::hasInfoDictionary() const
{
    return infoDictionary();
}

QVariant PlistBundle::objectForInfoDictionaryKey(const QString &key) const
{
    void *dictionary = infoDictionary();
    return dictionary ? scalar(plist_dict_get_item(dictionary, key.toUtf8().constData())) : QVariant();
}

QUrl PlistBundle::urlForResource(const QString &name, const QString &extension) const
{
    const QString fileName = extension.isEmpty() ? name : name + u'.' + extension;
    const QString path = existingFile(m_folder + QStringLiteral("/Contents/Resources/") + fileName);
    return path.isEmpty() ? QUrl() : QUrl::fromLocalFile(path);
}

QString PlistBundle::executable() const
{
    if (!m_executable.isEmpty())
        return m_executable;
    const QString name = string(QStringLiteral("CFBundleExecutable"));
    return existingFile(m_folder + QStringLiteral("/Contents/MacOS/") + name);
}

void *PlistBundle::infoDictionary() const
{
    if (!m_info)
        m_info = readDictionary(m_folder + QStringLiteral("/Contents/Info.plist"));
    return m_info->get();
}
