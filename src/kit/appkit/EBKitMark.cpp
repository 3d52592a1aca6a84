#include "EBKitMark.h"

#include "MarkShape.h"

static_assert(EBKitMarks::allCases.size() == EBApps::allCases.size());

QPainterPath EBKitMarks::path(EBKitMark mark, const QRectF &rect, const QTransform &toPixels)
{
    return MarkShape{static_cast<EBApp>(mark)}.sharpPath(rect, toPixels);
}
