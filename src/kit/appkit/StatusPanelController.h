#pragma once

#include <QDateTime>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>

class ButtonHighlight;
class OutsideMonitor;
class PanelWindow;

/// What the controllers of status panels share: a panel that drops down from a button or from a place on the screen,
/// and closes on Escape, on a click outside, when it loses the keyboard, and when it is told to.
class StatusPanelController : public QObject {
    Q_OBJECT
public:
    ~StatusPanelController() override;

    /// Called after the panel has opened, and once after each time it has closed.
    std::function<void()> onOpen;
    std::function<void()> onClose;

    /// The button it dropped down from last; null when there was none or when it is gone.
    QWidget *button() const { return m_button; }

    /// When the panel was last closed; the distant past before that.
    QDateTime closedAt() const { return m_closedAt; }

    bool isOpen() const;

    /// Opens the panel under `button`, any widget, and highlights the button: one that can be down is down, any other
    /// has the property "highlighted". Does nothing while the panel is open.
    void open(QWidget &button);

    /// Opens the panel under a place on the screen, such as the geometry of a tray icon. Not every desktop tells that:
    /// an empty place stands for the pointer's.
    void open(const QRect &anchor);

    /// For a click on the button: opens a closed panel and closes an open one. A click that has just closed the panel,
    /// because it was outside it, does not open it again.
    void toggle(QWidget &button);
    void toggle(const QRect &anchor);

    /// Closes the panel; does nothing while it is not open.
    void close();

    /// Returns the current time; a test may replace it.
    std::function<QDateTime()> now = [] { return QDateTime::currentDateTimeUtc(); };

protected:
    StatusPanelController(QWidget *content, QObject *parent);

    /// Makes the content ready to be shown, and says how large the panel is to be.
    virtual QSize prepare() = 0;

    QWidget &panel() const;

private:
    void show(const QRect &anchor, const QRect &available);
    bool closesOrHasJustClosed();

    std::unique_ptr<PanelWindow> m_panel;
    QPointer<QWidget> m_button;
    std::unique_ptr<ButtonHighlight> m_highlight;
    std::unique_ptr<OutsideMonitor> m_outsideMonitor;
    QDateTime m_closedAt;
};
