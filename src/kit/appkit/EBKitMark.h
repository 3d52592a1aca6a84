#pragma once

#include "EBApp.h"

#include <QPainterPath>
#include <QRectF>
#include <QTransform>

/// The marks of the hand-drawn views: one a product, in the products' order.
enum class EBKitMark {
    quiller = int(EBApp::quiller),
    corvane = int(EBApp::corvane),
    parcelo = int(EBApp::parcelo),
};

struct EBKitMarks : NamedCases<EBKitMark> {
    static constexpr EBKitMark of(EBApp app) { return static_cast<EBKitMark>(app); }

    /// The outline of the product's mark in `rect`, as `MarkShape` fits it and puts it on pixels.
    static QPainterPath path(EBKitMark mark, const QRectF &rect, const QTransform &toPixels);
};
