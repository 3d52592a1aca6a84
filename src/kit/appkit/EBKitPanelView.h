#pragma once

#include "EBKitView.h"

class EBKitMenuRow;

/// The content of a panel: a card that stacks other views from top to bottom. Up, Down, Home and End move the keyboard
/// focus among the menu rows in it.
class EBKitPanelView : public EBKitView {
    Q_OBJECT
public:
    explicit EBKitPanelView(QWidget *parent = nullptr);

    /// Takes `views` in place of what it held. A view with a fixed or a largest width stands at the leading edge, every
    /// other one spans the panel.
    void stack(const QList<EBKitView *> &views);

    /// What it stacks, from the top.
    QList<EBKitView *> views() const;

protected:
    void draw(QPainter &painter) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QList<EBKitMenuRow *> reachableRows() const;
    void clear();
};
