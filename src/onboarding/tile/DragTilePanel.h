#pragma once

#include <QQuickWindow>
#include <QUrl>

#include <memory>

class DragTileView;
class TileGround;
class ViewEngine;

/// The tile's window: it floats over the others on every workspace and never takes the keyboard from the application
/// that has it. It reaches beyond the tile by the tile's shadow, which the pointer goes through.
class DragTilePanel : public QQuickWindow {
    Q_OBJECT
public:
    /// A panel for the application at `appURL`, not shown yet.
    explicit DragTilePanel(const QUrl &appURL);
    ~DragTilePanel() override;

    DragTileView *view() const { return m_view.get(); }

    /// Where the tile is on the screen, in points.
    QRect tile() const;
    void moveTile(QPoint topLeft);

    /// Draws the tile as suits a desktop that blends windows, or one that does not. Compositors come and go: it is to
    /// be called again.
    void followCompositor();

    /// Shows the hidden panel over other windows, whichever application is the active one.
    void orderFront();

    /// Hides the panel, and deletes it once no drag runs inside it.
    void dispose();

protected:
    void exposeEvent(QExposeEvent *event) override;

private:
    // The view is destroyed before the engine that made its content.
    std::unique_ptr<ViewEngine> m_engine;
    std::unique_ptr<DragTileView> m_view;
    TileGround *m_ground;
};
