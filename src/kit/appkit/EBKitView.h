#pragma once

#include <QWidget>

/// What every hand-drawn view is: it draws itself in points from its top left corner, and is drawn anew whenever the
/// appearance changes. A disabled view fades as a whole. By itself it is an empty view to put others into.
class EBKitView : public QWidget {
    Q_OBJECT
public:
    explicit EBKitView(QWidget *parent = nullptr);

    /// The origin is the top left corner and y grows downwards, as in the glyphs' grid.
    bool isFlipped() const { return true; }

    /// The room a panel leaves around the view.
    virtual QMargins panelMargins() const { return {}; }

protected:
    /// The colours may have changed.
    virtual void viewDidChangeEffectiveAppearance() { update(); }

    /// Draws the view, antialiased, on what lies behind it.
    virtual void draw(QPainter &painter) { Q_UNUSED(painter) }

    /// Lays out what the view draws; called whenever its size or its direction has changed.
    virtual void placeContent() { }

    /// `rect`, written for a view that is read from left to right, in this one.
    QRectF placed(const QRectF &rect) const;

    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};
