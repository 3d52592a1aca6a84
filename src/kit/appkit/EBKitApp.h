#pragma once

#include "EBKitMark.h"

/// What the hand-drawn views know of a product.
struct EBKitApp {
    QString name;
    EBKitMark mark;
    /// The product's accent.
    EBKitColor color;
    /// For content on the accent.
    EBKitColor onColor;
};

namespace EBKitApps {

/// The record of a product: its display name, its mark and its accent colours.
EBKitApp of(EBApp app);

}
