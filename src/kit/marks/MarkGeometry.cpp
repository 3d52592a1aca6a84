#include "MarkGeometry.h"

#include "ContinuousRect.h"

#include <algorithm>

namespace {

constexpr QRectF quiller[] = {
    {33.5, 52.5, 15, 15},
    {52.5, 33.5, 15, 53},
    {71.5, 43, 15, 34},
};

constexpr QRectF corvane[] = {
    {33.5, 33.5, 15, 53},
    {52.5, 33.5, 34, 15},
    {52.5, 52.5, 34, 34},
};

// An open box, and the circle that goes into it and still stands out a little.
constexpr QRectF parcelo[] = {
    {52.5, 30.5, 15, 15},
    {33.5, 33.5, 15, 34},
    {71.5, 33.5, 15, 34},
    {33.5, 71.5, 53, 15},
};

}

std::span<const QRectF> MarkGeometry::parts(EBApp app)
{
    switch (app) {
    case EBApp::quiller:
        return quiller;
    case EBApp::corvane:
        return corvane;
    case EBApp::parcelo:
        return parcelo;
    }
    return {};
}

void MarkGeometry::add(QPainterPath &path, const QRectF &part)
{
    if (part.width() == part.height())
        path.addEllipse(part);
    else
        path.addPath(continuousRect(part, std::min(part.width(), part.height()) / 2));
}

void MarkGeometry::fill(QPainterPath &path, EBApp app)
{
    for (const QRectF &part : parts(app))
        add(path, part);
}
