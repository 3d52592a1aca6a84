#pragma once

#include "EBKitColor.h"

#include <QString>

#include <array>
#include <optional>

/// The products of the kit. A product picks its accent family; nothing else of the kit varies by product.
enum class EBApp { quiller, corvane, parcelo };

namespace EBApps {

inline constexpr std::array allCases = {EBApp::quiller, EBApp::corvane, EBApp::parcelo};

/// The three raw values are the case names; none for any other text, also not for another case.
std::optional<EBApp> fromRawValue(QStringView rawValue);
QString rawValue(EBApp app);

/// "Quiller", "Corvane", "Parcelo".
QString displayName(EBApp app);

/// The colours a product owns.
struct Family {
    const EBKitColor &accent;
    const EBKitColor &onAccent;
    const EBKitColor &loud;
    const EBKitColor &onLoud;
    const EBKitColor &loudDot;
};

const Family &family(EBApp app);

}
