#pragma once

#include <QImage>

/// Pictures as small PNG files.
namespace PictureFile {

/// The opaque picture with a palette of at most 256 colours. The most frequent colours stay as they are, the others
/// move to one of those by at most `reach` steps of 255 in each channel, and by no more than it takes; a picture too
/// colourful for that is returned as it is.
QImage withPalette(const QImage &picture, int reach);

/// Writes the opaque picture, whatever the file is called, in withPalette(), which makes it a third as large. False,
/// and no file is left or changed, when it cannot be written.
bool write(const QImage &picture, const QString &file, int reach = 0);

}
