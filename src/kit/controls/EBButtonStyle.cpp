#include "EBButtonStyle.h"

#include "EBKit.h"

using Embera::faded;

namespace {

using Variant = EBButtonStyle::Variant;
using Size = EBButtonStyle::Size;

struct SizeEntry {
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

// In the order of the sizes.
constexpr std::array sizes = {
    SizeEntry{40, EBTypeRole::lead, 0, 10, 20, 5, 30, 15},
    SizeEntry{32, EBTypeRole::bodyStrong, 0, 8, 15, 4, 24, 13},
    // The badge is taller than the button; it keeps its size and stands out above and below.
    SizeEntry{24, EBTypeRole::small, QFont::DemiBold, 8, 11, 5, 30, 15},
};
static_assert(sizes.size() == EBButtonStyle::Sizes::allCases.size());

constexpr qreal plainPadding = 8;

const SizeEntry &entry(Size size)
{
    return sizes[static_cast<std::size_t>(size)];
}

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
