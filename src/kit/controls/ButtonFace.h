#pragma once

#include "CrispItem.h"
#include "EBButtonStyle.h"
#include "EBEnvironment.h"

/// Paints a whole button as one picture, so that a disabled button fades as a whole: the capsule does not show through
/// its label and badge. Its implicit size is the button's ideal size.
class ButtonFace : public CrispItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text MEMBER m_text NOTIFY changed)
    /// "primary", "secondary", "onLoud" or "plain"; any other text reads as "primary".
    Q_PROPERTY(QString variant MEMBER m_variant NOTIFY changed)
    /// "md", "sm" or "xs"; any other text reads as "md".
    Q_PROPERTY(QString size MEMBER m_size NOTIFY changed)
    Q_PROPERTY(bool arrow MEMBER m_arrow NOTIFY changed)
    Q_PROPERTY(bool pressed MEMBER m_pressed NOTIFY changed)
    /// The label stands at the right, and the arrow points left.
    Q_PROPERTY(bool mirrored MEMBER m_mirrored NOTIFY changed)
public:
    explicit ButtonFace(QQuickItem *parent = nullptr);

protected:
    void paint(QPainter *painter) override;
    void componentComplete() override;

private:
    EBButtonStyle style() const;
    void measure();
    void paintBadge(QPainter *painter, QRectF circle, const EBButtonStyle::Colors &colors) const;

    QString m_text;
    QString m_variant = QStringLiteral("primary");
    QString m_size = QStringLiteral("md");
    bool m_arrow = false;
    bool m_pressed = false;
    bool m_mirrored = false;
    qreal m_labelWidth = 0;
    EBEnvironment *m_environment = nullptr;
};

/// Paints a button's label from `x` on, in the middle of a button `height` points high.
void paintButtonLabel(QPainter *painter, const QFont &font, const QString &text, const QColor &color, qreal x,
                      qreal height);
