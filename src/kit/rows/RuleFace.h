#pragma once

#include "CrispItem.h"

#include <QColor>

/// What there is to see of a rule. At a fractional scale its last pixel is paler instead of being left out or filled,
/// as it is in the borders of the cards: both lines are equally strong.
class RuleFace : public CrispItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
public:
    using CrispItem::CrispItem;

protected:
    void paint(QPainter *painter) override;

private:
    QColor m_color = Qt::black;
};
