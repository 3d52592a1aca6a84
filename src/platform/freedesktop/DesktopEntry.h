#pragma once

#include <QString>

/// The files by which a desktop knows its applications.
namespace DesktopEntry {

/// The value of `key` in the entry's own group, as it is written; empty when the file or the key is missing.
QString value(const QString &path, const QString &key);

}
