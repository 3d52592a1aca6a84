#pragma once

#include <QObject>

#include <functional>

class QWidget;

/// Watches this application's clicks for as long as it lives, for those outside a window and outside all that rests on
/// it, such as a menu it has opened. The click goes on to where it was made.
class OutsideMonitor : public QObject {
    Q_OBJECT
public:
    /// `window` outlives the monitor. `clicked` may end the monitor.
    OutsideMonitor(const QWidget &window, std::function<void()> clicked);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    bool isInside(QObject *object) const;

    const QWidget &m_window;
    std::function<void()> m_clicked;
};
