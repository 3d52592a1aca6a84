#pragma once

#include "EBKitControl.h"
#include "EBKitGlyph.h"
#include "EBKitText.h"

#include <functional>
#include <optional>

/// An entry of a menu: an optional glyph, a title, and at the trailing edge an optional shortcut.
class EBKitMenuRow : public EBKitControl {
    Q_OBJECT
public:
    EBKitMenuRow(std::optional<EBKitGlyph> glyph, EBKitText title, std::optional<EBKitText> shortcut,
                 std::function<void()> action, QWidget *parent = nullptr);

    std::optional<EBKitGlyph> glyph() const { return m_glyph; }
    const EBKitText &title() const { return m_title; }
    const std::optional<EBKitText> &shortcut() const { return m_shortcut; }
    std::function<void()> action;
    /// The pointer is over it.
    bool hover() const { return isHovered(); }
    void setHover(bool hover) { setHovered(hover); }

    qreal shapeRadius() const override;
    QMargins panelMargins() const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void activate() override;
    void draw(QPainter &painter) override;

private:
    /// Where the title begins, from the leading edge.
    qreal titleStart() const;

    std::optional<EBKitGlyph> m_glyph;
    EBKitText m_title;
    std::optional<EBKitText> m_shortcut;
};
