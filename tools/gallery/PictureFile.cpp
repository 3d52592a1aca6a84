#include "PictureFile.h"

#include <QHash>
#include <QImageWriter>
#include <QSaveFile>

#include <algorithm>

namespace {

constexpr int paletteSize = 256;
constexpr int smallest = 100; // in percent

int distance(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
}

/// Every colour of the picture, the most frequent first.
QList<QRgb> byFrequency(const QImage &picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    }
    QList<QRgb> colors = counts.keys();
    std::sort(colors.begin(), colors.end(),
              [&](QRgb a, QRgb b) { return counts[a] != counts[b] ? counts[a] > counts[b] : a < b; });
    return colors;
}

struct Palette {
    QList<QRgb> colors;
    /// The place of every colour of the picture, or of the one it moves to.
    QHash<QRgb, uchar> places;
};

/// Nothing when that takes more colours than a palette holds.
std::optional<Palette> paletteOf(const QList<QRgb> &colors, int reach)
{
    Palette palette;
    for (const QRgb color : colors) {
        auto nearest = std::min_element(palette.colors.begin(), palette.colors.end(),
                                        [&](QRgb a, QRgb b) { return distance(a, color) < distance(b, color); });
        if (nearest == palette.colors.end() || distance(*nearest, color) > reach) {
            if (palette.colors.size() == paletteSize)
                return {};
            nearest = palette.colors.insert(palette.colors.end(), color);
        }
        palette.places.insert(color, uchar(nearest - palette.colors.begin()));
    }
    return palette;
}

}

QImage PictureFile::withPalette(const QImage &picture, int reach)
{
    const QImage opaque = picture.convertToFormat(QImage::Format_RGB32);
    const QList<QRgb> colors = byFrequency(opaque);
    std::optional<Palette> palette;
    for (int step = 0; step <= reach && !palette; ++step)
        palette = paletteOf(colors, step);
    if (!palette)
        return opaque;
    QImage indexed(opaque.size(), QImage::Format_Indexed8);
    indexed.setColorTable(palette->colors);
    for (int y = 0; y < opaque.height(); ++y) {
        for (int x = 0; x < opaque.width(); ++x)
            indexed.scanLine(y)[x] = palette->places.value(opaque.pixel(x, y));
    }
    return indexed;
}

bool PictureFile::write(const QImage &picture, const QString &file, int reach)
{
    QSaveFile device(file);
    if (!device.open(QIODevice::WriteOnly))
        return false;
    QImageWriter writer(&device, "png");
    writer.setCompression(smallest);
    return writer.write(withPalette(picture, reach)) && device.commit();
}
