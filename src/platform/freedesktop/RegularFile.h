#pragma once

#include <QByteArray>

#include <optional>

class QString;

/// Files that other programs may have put there. Only regular ones are read: whoever opens a pipe waits for its writer.
namespace RegularFile {

/// The content; none where the file is not regular, cannot be read or has more than `largest` bytes.
std::optional<QByteArray> read(const QString &path, qint64 largest);

/// Whether it is a regular file of at most `largest` bytes, links followed.
bool isUpTo(qint64 largest, const QString &path);

}
