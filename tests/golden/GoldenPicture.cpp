#include "GoldenPicture.h"

#include <QHash>

#include <algorithm>

namespace {

constexpr int paletteSize = 256;

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

/// Each colour with the one it moves to; empty when that takes more than a palette holds.
QHash<QRgb, QRgb> substitutes(const QList<QRgb> &colors, int reach)
{
    QHash<QRgb, QRgb> moves;
    QList<QRgb> kept;
    for (const QRgb color : colors) {
        const auto nearest = std::min_element(kept.begin(), kept.end(),
                                              [&](QRgb a, QRgb b) { return distance(a, color) < distance(b, color); });
        const bool moved = nearest != kept.end() && distance(*nearest, color) <= reach;
        moves.insert(color, moved ? *nearest : color);
        if (!moved)
            kept.append(color);
    }
    return kept.size() <= paletteSize ? moves : QHash<QRgb, QRgb>();
}

QImage replaced(QImage picture, const QHash<QRgb, QRgb> &moves)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, moves.value(picture.pixel(x, y)));
    }
    return picture;
}

QString sizeText(const QImage &picture)
{
    return QStringLiteral("%1 x %2").arg(picture.width()).arg(picture.height());
}

}

QImage GoldenPicture::withFewColors(const QImage &picture)
{
    QImage opaque = picture.convertToFormat(QImage::Format_RGB32);
    const QList<QRgb> colors = byFrequency(opaque);
    for (int reach = 0; reach <= sameness; ++reach) {
        const QHash<QRgb, QRgb> moves = substitutes(colors, reach);
        if (!moves.isEmpty())
            return replaced(opaque, moves);
    }
    return opaque;
}

GoldenPicture::Comparison GoldenPicture::compare(const QImage &expected, const QImage &actual)
{
    if (expected.size() != actual.size())
        return {false, QStringLiteral("%1 instead of %2 pixels").arg(sizeText(actual), sizeText(expected)), {}};

    int differing = 0;
    int largest = 0;
    QImage difference(expected.size(), QImage::Format_RGB32);
    for (int y = 0; y < expected.height(); ++y) {
        for (int x = 0; x < expected.width(); ++x) {
            const QRgb wanted = expected.pixel(x, y);
            const int far = distance(wanted, actual.pixel(x, y));
            const int pale = 224 + qGray(wanted) / 8;
            difference.setPixel(x, y, far > sameness ? qRgb(255, 0, 128) : qRgb(pale, pale, pale));
            differing += far > sameness ? 1 : 0;
            largest = std::max(largest, far);
        }
    }
    const double part = double(differing) / (double(expected.width()) * expected.height());
    return {largest <= tolerance && part <= share,
            QStringLiteral("%1 of the pixels differ (%2), by at most %3")
                .arg(QString::number(part * 100, 'f', 3) + QLatin1Char('%'), QString::number(differing))
                .arg(largest),
            difference};
}
