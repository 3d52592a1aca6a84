#pragma once

#include <QWidget>

#include <functional>

/// The window of a status panel: borderless, above all others, on every workspace and in no list of windows, with a
/// clear background. It takes the keyboard focus all the same, and it is hidden rather than closed.
class PanelWindow : public QWidget {
    Q_OBJECT
public:
    /// `content` fills it.
    explicit PanelWindow(QWidget *content);

    /// Escape was pressed and nothing in the panel wanted it.
    std::function<void()> onEscape;

    /// The window has lost the keyboard.
    std::function<void()> onResignKey;

protected:
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
};
