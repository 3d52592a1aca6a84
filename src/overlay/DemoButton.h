#pragma once

#include "CrispItem.h"
#include "Theme.h"

/// One overlay button, as the agent draws it. It is a picture: absent from accessibility, and the item around it takes
/// the clicks.
class DemoButton : public CrispItem {
    Q_OBJECT
    QML_ELEMENT
    /// "close", "minimize" or "maximize". Any other text draws nothing.
    Q_PROPERTY(QString kind MEMBER m_kind NOTIFY changed)
    /// A theme's raw string. Any other text reads as "classic".
    Q_PROPERTY(QString theme MEMBER m_theme NOTIFY changed)
    /// The diameter in points, drawn to the nearest device pixel; also the side of the item's implicit size. In an item
    /// of another size the button stands in the middle. Nothing is drawn at 0 or below.
    Q_PROPERTY(qreal size MEMBER m_size NOTIFY changed)
    /// Present but not active.
    Q_PROPERTY(bool dim MEMBER m_dim NOTIFY changed)
    /// What a translucent disc shines over, whatever the item lies on; transparent, as it starts with, for that itself.
    Q_PROPERTY(QColor ground MEMBER m_ground NOTIFY changed)
public:
    explicit DemoButton(QQuickItem *parent = nullptr);

protected:
    void paint(QPainter *painter) override;

private:
    QString m_kind = QStringLiteral("close");
    QString m_theme = Themes::rawValue(Themes::fallback);
    qreal m_size = 25;
    bool m_dim = false;
    QColor m_ground = Qt::transparent;
};

/// Draws a button whose disc fills the square `disc`. `size` is its diameter in points, which the weight of its lines
/// follows.
void paintDemoButton(QPainter *painter, const QRectF &disc, OverlayButton kind, Theme theme, qreal size, bool dim);
