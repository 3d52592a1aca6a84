#pragma once

#include "CrispItem.h"

/// What the tile's window shows around the tile and under its round corners: a soft shadow where windows are blended,
/// and a plain surface where the window's shape cuts them off. Absent from accessibility.
class TileGround : public CrispItem {
    Q_OBJECT
public:
    /// How far the shadow reaches beyond the tile on every side, in points: the tile lies this far inside the item.
    static constexpr int margin = 24;
    /// Of the tile's corners, in points.
    static constexpr qreal cornerRadius = 16;

    using CrispItem::CrispItem;

    /// True to begin with.
    bool isBlended() const { return m_isBlended; }
    void setBlended(bool isBlended);

protected:
    void paint(QPainter *painter) override;

private:
    bool m_isBlended = true;
};
