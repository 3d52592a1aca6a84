#pragma once

#include <QObject>

#include <functional>

class QWidget;

/// Reports this application's clicks outside a window and outside the windows that belong to it, such as a menu it has
/// opened. The click is delivered as usual.
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
