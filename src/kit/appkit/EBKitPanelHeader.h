#pragma once

#include "EBKitApp.h"
#include "EBKitText.h"
#include "EBKitView.h"

#include <optional>

/// The head of a panel: the product's mark on a tile in its colour, and the product's name with an optional label above
/// it, in capitals.
class EBKitPanelHeader : public EBKitView {
    Q_OBJECT
public:
    EBKitPanelHeader(EBKitApp app, std::optional<EBKitText> label, EBKitText name, QWidget *parent = nullptr);

    const EBKitApp &app() const { return m_app; }
    const std::optional<EBKitText> &label() const { return m_label; }
    const EBKitText &name() const { return m_name; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void placeContent() override;
    void draw(QPainter &painter) override;

private:
    QSize textSize() const;

    EBKitApp m_app;
    std::optional<EBKitText> m_label;
    EBKitText m_name;
    QRectF m_tileRect;
    QRectF m_labelRect;
    QRectF m_nameRect;
};
