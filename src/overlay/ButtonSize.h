#pragma once

#include "CaseNames.h"

/// How big the overlay buttons are. The raw string is what the store holds.
enum class ButtonSize { small, medium, large };

struct ButtonSizes : NamedCases<ButtonSize> {
    /// What a text that names no size reads as.
    static constexpr ButtonSize fallback = ButtonSize::medium;

    /// What a person reads, translated.
    static QString title(ButtonSize size);

    /// The diameter in points before any scaling.
    static qreal diameter(ButtonSize size);
};
