#pragma once

#include "OverlayButton.h"

#include <QColor>

/// How the overlay buttons look, in the order of the tiles. The raw string is what the store holds.
enum class Theme { classic, soft, graphite, mono, outline };

struct Themes : NamedCases<Theme> {
    /// What a text that names no theme reads as.
    static constexpr Theme fallback = Theme::classic;

    /// What a person reads, translated: the title of the tile and a line that describes it.
    static QString title(Theme theme);
    static QString description(Theme theme);

    /// How one button is drawn. The ring runs inside the edge of the disc; its width is in points.
    struct Look {
        QColor fill;
        QColor glyph;
        QColor ring;
        qreal ringWidth;
    };

    /// The same in light and in dark. A theme or a button that does not exist throws.
    static Look look(Theme theme, OverlayButton button);

    /// The colour of a hexadecimal text; plain grey for one that cannot be read.
    static QColor color(QStringView hexadecimal);
};
