#pragma once

#include "CrispItem.h"

#include <QColor>

/// The extent of every switch, in points.
inline constexpr QSizeF switchSize(36, 22);

/// A switch's track with its knob, in one picture, so that a disabled switch fades as a whole.
/// 36 × 22 points; `position` runs from 0, off, to 1, on, and everything in between is a mixture.
class SwitchFace : public CrispItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(qreal position MEMBER m_position NOTIFY changed)
    /// On is at the left.
    Q_PROPERTY(bool mirrored MEMBER m_mirrored NOTIFY changed)
    Q_PROPERTY(QColor trackColor MEMBER m_trackColor NOTIFY changed)
    Q_PROPERTY(QColor accentColor MEMBER m_accentColor NOTIFY changed)
    Q_PROPERTY(QColor knobColor MEMBER m_knobColor NOTIFY changed)
    /// The knob's border while it is off; it fades away on the way to on.
    Q_PROPERTY(QColor knobBorderColor MEMBER m_knobBorderColor NOTIFY changed)
public:
    explicit SwitchFace(QQuickItem *parent = nullptr);

protected:
    void paint(QPainter *painter) override;

private:
    qreal m_position = 0;
    bool m_mirrored = false;
    QColor m_trackColor;
    QColor m_accentColor;
    QColor m_knobColor;
    QColor m_knobBorderColor;
};

/// What a switch is painted in; `knobBorder` goes around the knob while it is off.
struct SwitchColors {
    QColor track;
    QColor accent;
    QColor knob;
    QColor knobBorder;
};

/// Paints a switch of `switchSize` at the origin, as `SwitchFace` says.
void paintSwitch(QPainter *painter, qreal position, bool mirrored, const SwitchColors &colors);
