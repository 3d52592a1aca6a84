#pragma once

#include "EBApp.h"
#include "EBSettingsPage.h"
#include "EBWindow.h"
#include "MainQueue.h"

#include <memory>
#include <optional>

class MeasuredItem;
class QQmlEngine;
class ViewEngine;

/// The settings window: of fixed width, as high as the page it shows.
class EBSettingsWindowController : public QObject {
    Q_OBJECT
public:
    class Model;

    /// `pages` must not be empty. `initial` is the id of the page to begin with; the first page for any other
    /// text.
    EBSettingsWindowController(QQmlEngine &engine, EBApp app, const QString &version,
                               const QList<EBSettingsPage> &pages, const std::optional<QString> &initial);
    ~EBSettingsWindowController() override;

    /// Begins to load what a window on these pages starts with, while the caller prepares the rest.
    static void prefetch(ViewEngine &engine, const QList<EBSettingsPage> &pages, const std::optional<QString> &initial);

    void showWindow();
    EBWindow *window() const { return m_window.get(); }
    Model *model() const { return m_model; }

    /// Resizes the window to a measured content: always 620 points wide, as high as reported, its top left corner kept.
    /// A height of 0 or less, or within half a point of the window's, changes nothing.
    ///
    /// Where the screen has no room for it below the window's upper edge, the window moves up by what is missing; where
    /// the screen is too low altogether, it stays and ends at the screen's lower edge. Where the desktop tells no
    /// window its place, it is taken to stand where it came up, in the middle.
    void fit(QSizeF size);

private:
    /// What a window does for which there is no room below its upper edge.
    enum class Place { kept, mayMoveUp };

    void adapt(QSizeF size, Place place);
    void followMove();
    int topFor(int height) const;
    int room(int top) const;

    Model *m_model;
    std::unique_ptr<EBWindow> m_window;
    MeasuredItem *m_root = nullptr;
    bool m_sized = false;
    /// How high it was when the desktop gave it its place; none before.
    std::optional<int> m_placedHeight;
    /// Held until the window, which somebody has moved, has stood still for a moment.
    std::unique_ptr<MainQueue::Repetition> m_move;
};
