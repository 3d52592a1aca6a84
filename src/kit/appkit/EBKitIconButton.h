#pragma once

#include "EBKitControl.h"
#include "EBKitGlyph.h"

#include <functional>

/// A round button that shows only a glyph, as large as its width. Clicks in the corners of its square miss it.
class EBKitIconButton : public EBKitControl {
    Q_OBJECT
public:
    EBKitIconButton(EBKitGlyph glyph, QString label, std::function<void()> action, QWidget *parent = nullptr);

    EBKitGlyph glyph() const { return m_glyph; }
    /// The name for accessibility.
    const QString &label() const { return m_label; }
    std::function<void()> action;
    /// The pointer is over it.
    bool hover() const { return isHovered(); }
    void setHover(bool hover) { setHovered(hover); }

    QMargins panelMargins() const override;
    QSize sizeHint() const override;

protected:
    void activate() override;
    void draw(QPainter &painter) override;

private:
    EBKitGlyph m_glyph;
    QString m_label;
};
