#pragma once

#include <QQuickWindow>
#include <QUrl>

#include <memory>

class DragTileView;
class ViewEngine;

/// The tile's window: it floats over the others on every workspace and never takes the keyboard from the application
/// that has it.
class DragTilePanel : public QQuickWindow {
    Q_OBJECT
public:
    /// A panel for the application at `appURL`, not shown yet.
    explicit DragTilePanel(const QUrl &appURL);
    ~DragTilePanel() override;

    DragTileView *view() const { return m_view.get(); }

    /// Shows the hidden panel over other windows, whichever application is the active one.
    void orderFront();

    /// Hides the panel, and deletes it once no drag runs inside it.
    void dispose();

private:
    void cutOut();

    // The view is destroyed before the engine that made its content.
    std::unique_ptr<ViewEngine> m_engine;
    std::unique_ptr<DragTileView> m_view;
};
