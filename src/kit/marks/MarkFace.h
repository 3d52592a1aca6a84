#pragma once

#include "CrispItem.h"
#include "EBApp.h"

#include <QColor>

/// What there is to see of a product's mark.
class MarkFace : public CrispItem {
    Q_OBJECT
    QML_ELEMENT
    /// "quiller", "corvane" or "parcelo". Any other text draws nothing and has no display name.
    Q_PROPERTY(QString app READ app WRITE setApp NOTIFY appChanged)
    Q_PROPERTY(QString displayName READ displayName NOTIFY appChanged)
    /// The side of the square the mark sits in, in points; also the item's implicit size. In an item of another size
    /// the mark keeps its own and stands in the middle. Nothing is drawn at 0 or below.
    Q_PROPERTY(qreal size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
public:
    explicit MarkFace(QQuickItem *parent = nullptr);

    QString app() const { return m_app; }
    void setApp(const QString &rawValue);
    QString displayName() const;
    qreal size() const { return m_size; }
    void setSize(qreal size);
    QColor color() const { return m_color; }
    void setColor(const QColor &color);

signals:
    void appChanged();
    void sizeChanged();
    void colorChanged();

protected:
    void paint(QPainter *painter) override;

private:
    QString m_app;
    qreal m_size = 64;
    QColor m_color = Qt::black;
};
