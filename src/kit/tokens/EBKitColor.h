#pragma once

#include "Appearance.h"

#include <QColor>
#include <QStringView>

#include <optional>

/// sRGB components in 0…1.
struct EBQuad {
    float red, green, blue, alpha;
};

/// A colour that may differ between light and dark. The high-contrast appearances have no values of their
/// own.
class EBKitColor {
public:
    /// A fixed colour.
    constexpr EBKitColor(QColor color) : EBKitColor(color, color) { }
    constexpr EBKitColor(QColor light, QColor dark) : m_light(light), m_dark(dark) { }

    static EBKitColor eb(EBQuad light, EBQuad dark);

    /// Six hexadecimal digits, a leading hash sign and spaces or tabs at the ends allowed; none for anything
    /// else. A plus sign counts as the first of the six, and so does a minus sign before a zero.
    static std::optional<QColor> hex(QStringView text);

    /// The dark value for the two dark names, the light value otherwise, also where no name matched.
    constexpr QColor resolved(std::optional<AppearanceName> appearance) const
    {
        const bool dark =
            appearance == AppearanceName::DarkAqua || appearance == AppearanceName::AccessibilityHighContrastDarkAqua;
        return dark ? m_dark : m_light;
    }

    /// Resolved against the desktop's appearance as it is now.
    QColor current() const;

private:
    QColor m_light;
    QColor m_dark;
};

namespace Embera {

/// The colour with its alpha times `opacity`.
QColor faded(QColor color, qreal opacity);

}
