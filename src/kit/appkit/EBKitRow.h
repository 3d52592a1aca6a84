#pragma once

#include "EBKitApp.h"
#include "EBKitGlyph.h"
#include "EBKitText.h"
#include "EBKitView.h"

#include <optional>

/// A row: a disc with a glyph, and a title with an optional detail below it. Both texts wrap and the row wants to be as
/// high as they are; in a lower one they are cut short, the detail first.
class EBKitRow : public EBKitView {
    Q_OBJECT
public:
    /// Without a glyph there is no disc.
    EBKitRow(EBKitApp app, std::optional<EBKitGlyph> glyph, bool on, EBKitText title, std::optional<EBKitText> detail,
             QWidget *parent = nullptr);

    const EBKitApp &app() const { return m_app; }
    std::optional<EBKitGlyph> glyph() const { return m_glyph; }
    /// The disc has the product's colour.
    bool on() const { return m_on; }
    const EBKitText &title() const { return m_title; }
    const std::optional<EBKitText> &detail() const { return m_detail; }

    /// Where the parts are, computed at layout; empty for what is absent.
    QRectF discRect() const { return m_discRect; }
    QRectF titleRect() const { return m_titleRect; }
    QRectF detailRect() const { return m_detailRect; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void placeContent() override;
    void draw(QPainter &painter) override;

private:
    /// Where the texts begin, from the leading edge.
    qreal textStart() const;
    void drawDisc(QPainter &painter) const;

    EBKitApp m_app;
    std::optional<EBKitGlyph> m_glyph;
    bool m_on;
    EBKitText m_title;
    std::optional<EBKitText> m_detail;
    QRectF m_discRect;
    QRectF m_titleRect;
    QRectF m_detailRect;
};
