#pragma once

#include "CaseNames.h"
#include "EBKitColor.h"

/// The products of the kit. A product picks its accent family; nothing else of the kit varies by product.
enum class EBApp { quiller, corvane, parcelo };

struct EBApps : NamedCases<EBApp> {
    /// "Quiller", "Corvane", "Parcelo".
    static QString displayName(EBApp app);

    /// The colours a product owns.
    struct Family {
        const EBKitColor &accent;
        const EBKitColor &onAccent;
        const EBKitColor &loud;
        const EBKitColor &onLoud;
        const EBKitColor &loudDot;
    };

    static const Family &family(EBApp app);
};
