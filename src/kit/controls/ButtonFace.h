#pragma once

#include "CrispItem.h"
#include "EBButtonStyle.h"
#include "EBEnvironment.h"

/// All there is to see of a button, in one picture, so that a disabled button fades as a whole: label and
/// badge do not show the capsule through them. Its implicit size is the button's ideal size.
class ButtonFace : public CrispItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY changed)
    /// "primary", "secondary", "onLoud" or "plain"; any other text reads as "primary".
    Q_PROPERTY(QString variant READ variant WRITE setVariant NOTIFY changed)
    /// "md", "sm" or "xs"; any other text reads as "md".
    Q_PROPERTY(QString size READ size WRITE setSize NOTIFY changed)
    Q_PROPERTY(bool arrow READ arrow WRITE setArrow NOTIFY changed)
    Q_PROPERTY(bool pressed READ pressed WRITE setPressed NOTIFY changed)
    /// The label stands at the right, and the arrow points left.
    Q_PROPERTY(bool mirrored READ mirrored WRITE setMirrored NOTIFY changed)
public:
    explicit ButtonFace(QQuickItem *parent = nullptr);

    QString text() const { return m_text; }
    void setText(const QString &text);
    QString variant() const { return m_variant; }
    void setVariant(const QString &rawValue);
    QString size() const { return m_size; }
    void setSize(const QString &rawValue);
    bool arrow() const { return m_style.arrow; }
    void setArrow(bool arrow);
    bool pressed() const { return m_pressed; }
    void setPressed(bool pressed);
    bool mirrored() const { return m_mirrored; }
    void setMirrored(bool mirrored);

signals:
    void changed();

protected:
    void paint(QPainter *painter) override;
    void componentComplete() override;

private:
    template <typename Value> bool set(Value &member, const Value &value);
    void measure();
    void paintBadge(QPainter *painter, QRectF circle, const EBButtonStyle::Colors &colors) const;

    QString m_text;
    QString m_variant = QStringLiteral("primary");
    QString m_size = QStringLiteral("md");
    EBButtonStyle m_style;
    bool m_pressed = false;
    bool m_mirrored = false;
    qreal m_labelWidth = 0;
    EBEnvironment *m_environment = nullptr;
};

/// Paints a button's label from `x` on, in the middle of a button `height` points high.
void paintButtonLabel(QPainter *painter, const QFont &font, const QString &text, const QColor &color, qreal x,
                      qreal height);
