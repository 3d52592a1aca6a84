#pragma once

#include <QObject>
#include <qqmlregistration.h>

/// The measures that both halves of the kit draw with, declared once: points, unless a comment says otherwise.
// clang-format off
#define KIT_METRICS(METRIC)                                                                                            \
    /* A row: what it keeps free at its ends, above and below, between what stands in it, and between its two texts. */ \
    METRIC(rowInset, 16)                                                                                               \
    METRIC(rowPadding, 6)                                                                                              \
    METRIC(rowSpacing, 12)                                                                                             \
    METRIC(rowLineSpacing, 1)                                                                                          \
    METRIC(rowHeight, 40)                                                                                              \
    METRIC(discDiameter, 28)                                                                                           \
    METRIC(discGlyph, 15)                                                                                              \
    METRIC(smallDiscDiameter, 22)                                                                                      \
    METRIC(smallDiscGlyph, 12)                                                                                         \
    METRIC(groupLabelPadding, 4)                                                                                       \
    METRIC(ruleHeight, 1)                                                                                              \
    METRIC(cardRadius, 16)                                                                                             \
    METRIC(iconButtonSide, 28)                                                                                         \
    /* A share of the icon button's side. */                                                                           \
    METRIC(iconButtonGlyph, 0.58)                                                                                      \
    /* How long a switch takes to its other side, in seconds. */                                                       \
    METRIC(switchSeconds, 0.15)                                                                                        \
    METRIC(keyCapWidth, 34)                                                                                            \
    METRIC(keyCapHeight, 22)                                                                                           \
    METRIC(keyCapPadding, 8)                                                                                           \
    METRIC(keyCapRadius, 6)                                                                                            \
    /* The ring around what has the keyboard focus: its thickness and its distance. */                                 \
    METRIC(ringWidth, 2)                                                                                               \
    METRIC(ringGap, 2)                                                                                                 \
    /* The opacity of a disabled control, 0 to 1. */                                                                   \
    METRIC(disabledOpacity, 0.4)
// clang-format on

namespace KitMetric {

#define METRIC(name, value) inline constexpr qreal name = value;
KIT_METRICS(METRIC)
#undef METRIC

}

/// The same for QML: `KitMetrics.rowInset`.
class KitMetrics : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
#define METRIC(name, value) Q_PROPERTY(qreal name READ name CONSTANT FINAL)
    KIT_METRICS(METRIC)
#undef METRIC
public:
    using QObject::QObject;

#define METRIC(name, value)                                                                                            \
    static constexpr qreal name()                                                                                      \
    {                                                                                                                  \
        return KitMetric::name;                                                                                        \
    }
    KIT_METRICS(METRIC)
#undef METRIC
};
