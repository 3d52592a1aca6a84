#pragma once

#include "MainQueue.h"
#include "TileWatch.h"

#include <QObject>
#include <QRectF>
#include <QUrl>

#include <memory>
#include <optional>

class DragTilePanel;

/// Shows the tile below the desktop's System Settings window and follows that window, for as long as it is asked to or
/// until the person closes System Settings; then the guide window is asked to come back.
class DragTileController : public QObject {
    Q_OBJECT
public:
    /// Hidden to begin with.
    explicit DragTileController(QObject *parent = nullptr);
    ~DragTileController() override;

    /// The application that is dragged: the product's bundle around this application.
    const QUrl &appURL() const { return m_appURL; }

    /// The window of System Settings was found since the tile was shown.
    bool seen() const { return m_watch.seen; }
    /// How many times in a row it was looked for and not there.
    int missing() const { return m_watch.missing; }

    /// Null while hidden. It is visible only while there is a System Settings window to follow.
    DragTilePanel *panel() const { return m_panel.get(); }

    /// Begins to look for System Settings, now and every quarter of a second. Does nothing while that goes on.
    void show();

    /// Ends it. Does nothing when nothing is shown.
    void hide();

    /// Puts the panel where System Settings is now, and hides it while there is none.
    void reposition();

    /// The frame of the System Settings window in points, y upwards from the lower edge of the first screen; none while
    /// it is not on the screen.
    static std::optional<QRectF> settingsWindowFrame();

private:
    struct Disposer {
        void operator()(DragTilePanel *panel) const;
    };

    void lookedInVain();
    void moveTo(const QRectF &settingsWindow);

    const QUrl m_appURL;
    TileWatch m_watch;
    std::unique_ptr<DragTilePanel, Disposer> m_panel;
    std::unique_ptr<MainQueue::Repetition> m_timer;
};
