#pragma once

#include <QImage>

/// Pictures as small PNG files.
namespace PictureFile {

/// Writes the opaque picture, whatever the file is called: with a palette where it has at most 256 colours. False, and
/// no file is left or changed, when it cannot be written.
bool write(const QImage &picture, const QString &file);

}
