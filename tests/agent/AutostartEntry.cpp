#include <glib.h>

#include "AutostartEntry.h"

#include <memory>

namespace {

using KeyFile = std::unique_ptr<GKeyFile, decltype(&g_key_file_unref)>;

/// The file read; null when it is no desktop entry.
KeyFile read(const QString &path)
{
    KeyFile file(g_key_file_new(), g_key_file_unref);
    const bool isRead = g_key_file_load_from_file(file.get(), path.toLocal8Bit().constData(), G_KEY_FILE_NONE, nullptr);
    if (!isRead || !g_key_file_has_group(file.get(), G_KEY_FILE_DESKTOP_GROUP))
        file.reset();
    return file;
}

/// A percent sign and what follows stand for a file or the like, and none is opened here; two stand for the sign
/// itself.
QString withoutFieldCodes(const QString &word)
{
    QString plain;
    for (qsizetype i = 0; i < word.size(); ++i) {
        if (word[i] != u'%')
            plain += word[i];
        else if (QStringView(word).mid(++i).startsWith(u'%'))
            plain += u'%';
    }
    return plain;
}

}

AutostartEntry::AutostartEntry(const QString &path) : m_path(path), m_isValid(read(path) != nullptr) { }

QString AutostartEntry::text(const QString &key) const
{
    const KeyFile file = read(m_path);
    if (!file)
        return {};
    GError *error = nullptr;
    char *found = g_key_file_get_string(file.get(), G_KEY_FILE_DESKTOP_GROUP, key.toUtf8().constData(), &error);
    const QString text = error ? QString() : QString::fromUtf8(found);
    g_clear_error(&error);
    g_free(found);
    return text;
}

QStringList AutostartEntry::command() const
{
    char **words = nullptr;
    if (!g_shell_parse_argv(text(QStringLiteral("Exec")).toUtf8().constData(), nullptr, &words, nullptr))
        return {};
    QStringList command;
    for (char **word = words; *word; ++word)
        command.append(withoutFieldCodes(QString::fromUtf8(*word)));
    g_strfreev(words);
    return command;
}

bool AutostartEntry::isHidden() const
{
    const KeyFile file = read(m_path);
    return file && g_key_file_get_boolean(file.get(), G_KEY_FILE_DESKTOP_GROUP, "Hidden", nullptr);
}
