#include "EBKitColor.h"

#include "Platform.h"
#include "Whitespace.h"

namespace {

QColor srgb(EBQuad quad)
{
    return QColor::fromRgbF(quad.red, quad.green, quad.blue, quad.alpha);
}

int digit(QChar character)
{
    const char16_t code = character.unicode();
    if (code >= u'0' && code <= u'9')
        return code - u'0';
    if (code >= u'a' && code <= u'f')
        return code - u'a' + 10;
    if (code >= u'A' && code <= u'F')
        return code - u'A' + 10;
    return -1;
}

std::optional<unsigned> hexadecimal(QStringView text)
{
    const bool negative = text.startsWith(u'-');
    if (negative || text.startsWith(u'+'))
        text = text.sliced(1);
    unsigned value = 0;
    for (const QChar character : text) {
        const int next = digit(character);
        if (next < 0)
            return std::nullopt;
        value = value * 16 + unsigned(next);
    }
    if (negative && value != 0)
        return std::nullopt;
    return value;
}

}

QColor EBKitColor::current() const
{
    return resolved(Platform::current().appearance().bestMatch());
}

EBKitColor EBKitColor::eb(EBQuad light, EBQuad dark)
{
    return EBKitColor(srgb(light), srgb(dark));
}

std::optional<QColor> EBKitColor::hex(QStringView text)
{
    text = trimmedWhitespace(text);
    if (text.startsWith(u'#'))
        text = text.sliced(1);
    if (text.size() != 6)
        return std::nullopt;
    const auto value = hexadecimal(text);
    if (!value)
        return std::nullopt;
    return QColor(int(*value >> 16 & 0xff), int(*value >> 8 & 0xff), int(*value & 0xff));
}

QColor Embera::faded(QColor color, qreal opacity)
{
    color.setAlphaF(float(color.alphaF() * opacity));
    return color;
}
