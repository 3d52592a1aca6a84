#pragma once

#include <QByteArrayList>
#include <QImage>
#include <QRect>
#include <QString>

#include <optional>
#include <xcb/xcb.h>

class XConnection;

/// A top-level window as the X server and a window manager know it. All geometry is in pixels of the screen.
class TopLevel {
public:
    /// The windows of that process, in stacking order from the bottom.
    static QList<TopLevel> ofProcess(const XConnection &x, qint64 processId);

    xcb_window_t id() const { return m_id; }
    QRect geometry() const;
    /// The same without the shadow that the window draws itself.
    QRect frame() const;
    QString title() const;

    /// The class part of WM_CLASS.
    QString windowClass() const;

    /// The pictures that it gives to task lists (_NET_WM_ICON), one a size.
    QList<QImage> icon() const;

    /// On the screen: mapped, and not hidden by an unmapped parent.
    bool isViewable() const;

    bool hasInputFocus() const;

    /// The names in WM_PROTOCOLS, such as "WM_DELETE_WINDOW".
    QByteArrayList protocols() const;

    /// The smallest and the largest size the window allows, where it names one.
    std::optional<QSize> minimumSize() const;
    std::optional<QSize> maximumSize() const;

    /// Moves the window, as a pager does.
    void moveTo(QPoint place) const;

    /// Asks the window to close, as the button of a window manager does.
    void close() const;

private:
    static void collect(const XConnection &x, xcb_window_t parent, qint64 processId, QList<TopLevel> &windows);

    TopLevel(const XConnection &x, xcb_window_t id) : m_x(&x), m_id(id) { }

    const XConnection *m_x;
    xcb_window_t m_id;
};
