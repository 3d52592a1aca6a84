#include "PictureFile.h"

#include <QHash>
#include <QImageWriter>
#include <QSaveFile>

namespace {

constexpr int paletteSize = 256;
constexpr int smallest = 100; // in percent

const QRgb *line(const QImage &picture, int y)
{
    return reinterpret_cast<const QRgb *>(picture.constScanLine(y));
}

/// The same picture with a palette; a null one when it has too many colours.
QImage withPalette(const QImage &picture)
{
    QImage indexed(picture.size(), QImage::Format_Indexed8);
    QHash<QRgb, uchar> indices;
    QList<QRgb> colors;
    for (int y = 0; y < picture.height(); ++y) {
        uchar *out = indexed.scanLine(y);
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb color = line(picture, y)[x];
            auto index = indices.constFind(color);
            if (index == indices.constEnd()) {
                if (colors.size() == paletteSize)
                    return {};
                index = indices.insert(color, uchar(colors.size()));
                colors.append(color);
            }
            out[x] = *index;
        }
    }
    indexed.setColorTable(colors);
    return indexed;
}

}

bool PictureFile::write(const QImage &picture, const QString &file)
{
    const QImage opaque = picture.convertToFormat(QImage::Format_RGB32);
    const QImage indexed = withPalette(opaque);
    QSaveFile device(file);
    if (!device.open(QIODevice::WriteOnly))
        return false;
    QImageWriter writer(&device, "png");
    writer.setCompression(smallest);
    return writer.write(indexed.isNull() ? opaque : indexed) && device.commit();
}
