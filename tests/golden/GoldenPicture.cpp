#include "GoldenPicture.h"

#include <algorithm>

namespace {

int distance(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
}

QString sizeText(const QImage &picture)
{
    return QStringLiteral("%1 x %2").arg(picture.width()).arg(picture.height());
}

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
