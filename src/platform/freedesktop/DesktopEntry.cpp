#include "DesktopEntry.h"

#include "RegularFile.h"

#include <QFile>

#include <glib.h>

#include <memory>

namespace {

constexpr const char *group = G_KEY_FILE_DESKTOP_GROUP;
constexpr qint64 largestEntry = 256LL * 1024; // bytes

struct Deleter {
    void operator()(GKeyFile *file) const { g_key_file_unref(file); }
    void operator()(GError *error) const { g_error_free(error); }
    void operator()(char *text) const { g_free(text); }
};

template <typename Type> using Owned = std::unique_ptr<Type, Deleter>;

Owned<GKeyFile> read(const QString &path)
{
    Owned<GKeyFile> file(g_key_file_new());
    if (const auto text = RegularFile::read(path, largestEntry))
        g_key_file_load_from_data(file.get(), text->constData(), text->size(), G_KEY_FILE_KEEP_TRANSLATIONS, nullptr);
    return file;
}

/// An argument as the Exec key quotes it.
QString quoted(QString argument)
{
    for (const QChar special : QStringLiteral("\\\"`$"))
        argument.replace(special, QStringLiteral("\\") + special);
    return u'"' + argument.replace(u'%', QStringLiteral("%%")) + u'"';
}

}

QString DesktopEntry::text(const QString &path, const char *key)
{
    const Owned<char> text(g_key_file_get_locale_string(read(path).get(), group, key, nullptr, nullptr));
    return QString::fromUtf8(text.get()).trimmed();
}

std::optional<bool> DesktopEntry::boolean(const QString &path, const char *key)
{
    GError *error = nullptr;
    const bool value = g_key_file_get_boolean(read(path).get(), group, key, &error) != FALSE;
    const Owned<GError> owned(error);
    return error ? std::nullopt : std::optional(value);
}

void DesktopEntry::write(const QString &path, const QString &name, const QString &executable, bool isHidden)
{
    const Owned<GKeyFile> file(g_key_file_new());
    g_key_file_set_string(file.get(), group, G_KEY_FILE_DESKTOP_KEY_TYPE, G_KEY_FILE_DESKTOP_TYPE_APPLICATION);
    g_key_file_set_string(file.get(), group, G_KEY_FILE_DESKTOP_KEY_NAME, name.toUtf8().constData());
    g_key_file_set_string(file.get(), group, G_KEY_FILE_DESKTOP_KEY_EXEC, quoted(executable).toUtf8().constData());
    // Once the program has been removed the desktop passes over the entry.
    g_key_file_set_string(file.get(), group, G_KEY_FILE_DESKTOP_KEY_TRY_EXEC, executable.toUtf8().constData());
    if (isHidden)
        g_key_file_set_boolean(file.get(), group, G_KEY_FILE_DESKTOP_KEY_HIDDEN, TRUE);
    g_key_file_save_to_file(file.get(), QFile::encodeName(path).constData(), nullptr);
}
