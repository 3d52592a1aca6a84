#pragma once

#include <QString>

#include <optional>

/// The files by which a desktop knows its applications. A file that is missing or damaged holds nothing.
namespace DesktopEntry {

/// The text of `key` in the entry's own group, in the person's language and without the space around it; empty when
/// there is none.
QString text(const QString &path, const char *key);

/// The Boolean of `key` in the entry's own group; none when there is none, or something else.
std::optional<bool> boolean(const QString &path, const char *key);

/// Writes the entry of an application, whose file is `executable`. A hidden one is left alone by the desktop.
void write(const QString &path, const QString &name, const QString &executable, bool isHidden);

}
