#include "WindowIcon.h"

#include "TopLevel.h"
#include "XConnection.h"

#include <cstring>

QList<QImage> windowIcon(const XConnection &x, const TopLevel &window)
{
    const QByteArray bytes = x.property(window.id(), x.atom("_NET_WM_ICON"));
    QList<quint32> numbers(bytes.size() / qsizetype(sizeof(quint32)));
    std::memcpy(numbers.data(), bytes.constData(), numbers.size() * sizeof(quint32));

    // Each picture is its width, its height and its pixels.
    QList<QImage> pictures;
    for (qsizetype at = 0; at + 2 < numbers.size();) {
        const QSize size(int(numbers[at]), int(numbers[at + 1]));
        at += 2;
        const qsizetype pixels = qsizetype(size.width()) * size.height();
        if (pixels <= 0 || at + pixels > numbers.size())
            break;
        const auto *data = reinterpret_cast<const uchar *>(numbers.constData() + at);
        pictures.append(QImage(data, size.width(), size.height(), QImage::Format_ARGB32).copy());
        at += pixels;
    }
    return pictures;
}
