#include "EBKitMark.h"

#include "MarkShape.h"

namespace {

constexpr EBApp product(EBKitMark mark)
{
    return static_cast<EBApp>(mark);
}

static_assert(EBKitMarks::allCases.size() == EBApps::allCases.size());

}

std::optional<EBKitMark> EBKitMarks::fromRawValue(QStringView rawValue)
{
    const auto app = EBApps::fromRawValue(rawValue);
    return app ? std::optional(of(*app)) : std::nullopt;
}

QString EBKitMarks::rawValue(EBKitMark mark)
{
    return EBApps::rawValue(product(mark));
}

QPainterPath path(EBKitMark mark, const QRectF &rect)
{
    return MarkShape{product(mark)}.path(rect);
}
