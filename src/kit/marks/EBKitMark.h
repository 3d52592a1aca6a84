#pragma once

#include "EBApp.h"

#include <QPainterPath>
#include <QRectF>

/// The marks of the hand-drawn views: one a product, in the products' order.
enum class EBKitMark {
    quiller = int(EBApp::quiller),
    corvane = int(EBApp::corvane),
    parcelo = int(EBApp::parcelo),
};

namespace EBKitMarks {

inline constexpr std::array allCases = {EBKitMark::quiller, EBKitMark::corvane, EBKitMark::parcelo};

constexpr EBKitMark of(EBApp app)
{
    return static_cast<EBKitMark>(app);
}

/// The three raw values are the case names; none for any other text. Upper and lower case differ.
std::optional<EBKitMark> fromRawValue(QStringView rawValue);
QString rawValue(EBKitMark mark);

}

/// The outline of the product's mark in `rect`, as `MarkShape` fits it.
QPainterPath path(EBKitMark mark, const QRectF &rect);
