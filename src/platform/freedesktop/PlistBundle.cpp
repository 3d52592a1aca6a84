#include "PlistBundle.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

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
    QFile file(fileName);
    if (!file.open(QFile::ReadOnly) || file.size() > largestInfoPlist)
        return nullptr;
    const std::shared_ptr<void> root(parsed(file.readAll()), plist_free);
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

QString existingFile(const QString &path)
{
    return QFileInfo(path).isFile() ? path : QString();
}

}

PlistBundle::PlistBundle(const QString &folder) : m_folder(QDir::cleanPath(folder)) { }

PlistBundle PlistBundle::around(const QString &executable)
{
    const QFileInfo file(QFileInfo(executable).canonicalFilePath());
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
