#pragma once

#include "CrispItem.h"
#include "EBApp.h"

#include <QColor>

/// Paints a product's mark.
class MarkFace : public CrispItem {
    Q_OBJECT
    QML_ELEMENT
    /// "quiller", "corvane" or "parcelo". Any other text draws nothing and has no display name.
    Q_PROPERTY(QString app MEMBER m_app NOTIFY changed)
    Q_PROPERTY(QString displayName READ displayName NOTIFY changed)
    /// The side of the square the mark sits in, in points; also the item's implicit size. In an item of another size
    /// the mark keeps its own and stands in the middle. Nothing is drawn at 0 or below.
    Q_PROPERTY(qreal size MEMBER m_size NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
public:
    explicit MarkFace(QQuickItem *parent = nullptr);

    QString displayName() const;

protected:
    void paint(QPainter *painter) override;

private:
    QString m_app;
    qreal m_size = 64;
    QColor m_color = Qt::black;
};
