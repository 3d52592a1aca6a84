#pragma once

#include "EBKitView.h"

/// A hairline across the panel.
class EBKitSeparator : public EBKitView {
    Q_OBJECT
public:
    explicit EBKitSeparator(QWidget *parent = nullptr);

    QMargins panelMargins() const override;
    QSize sizeHint() const override;

protected:
    void draw(QPainter &painter) override;
};
