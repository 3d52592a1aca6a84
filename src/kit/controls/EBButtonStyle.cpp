#include "EBButtonStyle.h"

#include "EBKit.h"

namespace {

using Variant = EBButtonStyle::Variant;
using Size = EBButtonStyle::Size;

constexpr std::array variants = {"primary", "secondary", "onLoud", "plain"};

struct SizeEntry {
    const char *rawValue;
    qreal height;
    EBTypeRole role;
    // 0 keeps the role's own.
    int weight;
    qreal spacing;
    qreal padding;
    qreal paddingAfterArrow;
    qreal badgeDiameter;
    qreal arrowSize;
};

constexpr std::array sizes = {
    SizeEntry{"md", 40, EBTypeRole::lead, 0, 10, 20, 5, 30, 15},
    SizeEntry{"sm", 32, EBTypeRole::bodyStrong, 0, 8, 15, 4, 24, 13},
    // The badge is taller than the button; it keeps its size and stands out above and below.
    SizeEntry{"xs", 24, EBTypeRole::small, QFont::DemiBold, 8, 11, 5, 30, 15},
};

constexpr qreal plainPadding = 8;

const SizeEntry &entry(Size size)
{
    return sizes[static_cast<std::size_t>(size)];
}

QColor faded(QColor color, qreal opacity)
{
    color.setAlphaF(float(color.alphaF() * opacity));
    return color;
}

}

std::optional<Variant> EBButtonStyle::parseVariant(QStringView rawValue)
{
    for (std::size_t i = 0; i < variants.size(); ++i) {
        if (rawValue == QLatin1String(variants[i]))
            return Variant(i);
    }
    return std::nullopt;
}

std::optional<Size> EBButtonStyle::parseSize(QStringView rawValue)
{
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        if (rawValue == QLatin1String(sizes[i].rawValue))
            return Size(i);
    }
    return std::nullopt;
}

EBButtonStyle::Geometry EBButtonStyle::geometry() const
{
    const SizeEntry &row = entry(size);
    const qreal leading = variant == Variant::plain ? plainPadding : row.padding;
    return {row.height,        row.spacing,  leading, arrow ? row.paddingAfterArrow : leading,
            row.badgeDiameter, row.arrowSize};
}

QFont EBButtonStyle::font() const
{
    const SizeEntry &row = entry(size);
    QFont font = EBTypes::font(row.role);
    if (row.weight > 0)
        font.setWeight(QFont::Weight(row.weight));
    return font;
}

EBButtonStyle::Colors EBButtonStyle::colors(EBApp app, bool pressed) const
{
    const auto dressed = [](QColor foreground, QColor fill, QColor border = Qt::transparent) {
        return Colors{foreground, fill, border, faded(foreground, 0.18)};
    };
    const QColor wash = pressed ? EBKit::chip().current() : QColor(Qt::transparent);
    switch (variant) {
    case Variant::primary:
        break;
    case Variant::secondary:
        return dressed(EBKit::ink().current(), wash, EBKit::lineStrong().current());
    case Variant::onLoud: {
        const EBApps::Family &family = EBApps::family(app);
        return dressed(family.loud.current(), faded(family.onLoud.current(), pressed ? 0.85 : 1));
    }
    case Variant::plain:
        return dressed(EBKit::inkMuted().current(), wash);
    }
    return dressed(EBKit::onInk().current(), faded(EBKit::ink().current(), pressed ? 0.82 : 1));
}
