#pragma once

#include "CrispItem.h"

/// Paints a miniature window without its texts: the card with its title strip, and lines that stand for content. It
/// fills the item.
class WindowFace : public CrispItem {
    Q_OBJECT
    QML_ELEMENT
    /// The form for a window among many: smaller corners and a narrower strip.
    Q_PROPERTY(bool compact MEMBER m_compact NOTIFY changed)
    /// How far content stays away from the sides, in points.
    Q_PROPERTY(qreal margin READ margin NOTIFY changed)
    /// The height of the title strip in points.
    Q_PROPERTY(qreal stripHeight READ stripHeight NOTIFY changed)
    /// Where the lines of content begin, in points from the top. It has a signal of its own because views compute it
    /// from the properties above.
    Q_PROPERTY(qreal contentTop MEMBER m_contentTop NOTIFY contentTopChanged)
public:
    explicit WindowFace(QQuickItem *parent = nullptr);

    qreal margin() const { return m_compact ? 10 : 12; }
    qreal stripHeight() const { return m_compact ? 16 : 18; }

signals:
    void contentTopChanged();

protected:
    void paint(QPainter *painter) override;

private:
    void paintStrip(QPainter *painter, const QRectF &card, qreal radius) const;
    void paintContent(QPainter *painter, const QRectF &card) const;

    bool m_compact = false;
    qreal m_contentTop = 0;
};
