#pragma once

#include "EBApp.h"
#include "ViewEngine.h"

#include <QQuickWindow>
#include <QVariantAnimation>
#include <qqmlregistration.h>

/// A window of the kit: frameless, of fixed size, with a transparent title bar over its content. The kit
/// draws the close, miniaturise and zoom buttons at the top (zoom always disabled) and moves the window by its
/// title-bar strip.
class EBWindow : public QQuickWindow {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("A window is made in C++, where its owner is")
    Q_PROPERTY(bool miniaturizeButtonEnabled READ miniaturizeButtonEnabled CONSTANT)
    Q_PROPERTY(QPoint buttonsPlace READ buttonsPlace CONSTANT)
    Q_PROPERTY(bool shortcutsEnabled READ shortcutsEnabled NOTIFY shortcutsEnabledChanged)
    /// What lies under the window's buttons has the product's loud colour, so that their focus ring must not.
    Q_PROPERTY(bool loudGround READ loudGround WRITE setLoudGround NOTIFY loudGroundChanged)
public:
    struct Style {
        bool miniaturizeButtonEnabled = false;
        /// Any place that takes no clicks of its own moves the window, not only the title-bar strip.
        bool movableByWindowBackground = false;
        /// Where the first button stands, from the window's leading top corner.
        QPoint buttonsPlace = {22, 16};
    };

    /// A window of the product `app`, for everything inside. `contentSize` in points; the person cannot change it.
    EBWindow(EBApp app, QSize contentSize, Style style);

    /// Begins to load what every window has.
    static void prefetch(ViewEngine &engine);

    /// Puts `view` into the window and keeps it as large as the window, under the title bar too. The view
    /// never drives the window's size. The window takes ownership.
    void host(QQuickItem *view);

    /// The same with a view that is made there.
    template <typename View = QQuickItem>
    View *host(QQmlEngine &engine, const QString &url, const QVariantMap &properties = {})
    {
        return ViewEngine::make<View>(engine, url, properties, [this](QQuickItem *view) { host(view); });
    }

    /// Places the window in the middle of its screen.
    void center();

    /// Moves the window's upper edge to `top` and resizes it to `height`: at once, or in a short animation that a later
    /// call takes over.
    void setFrame(int top, int height, bool animate);

    /// The frame the window has, or is on its way to.
    QRect targetFrame() const;

    bool miniaturizeButtonEnabled() const { return m_style.miniaturizeButtonEnabled; }
    QPoint buttonsPlace() const { return m_style.buttonsPlace; }

    /// Whether the window's own shortcuts, Ctrl+W and Ctrl+Q, close it and quit. True unless set.
    bool shortcutsEnabled() const { return m_shortcutsEnabled; }
    void setShortcutsEnabled(bool enabled);

    bool loudGround() const { return m_loudGround; }
    void setLoudGround(bool loud);

    /// Shows the window in front of the others with the keyboard focus.
    void makeKeyAndOrderFront();

    /// Paints what has changed before anything else that waits. Qt Quick would first let 5 ms pass, and take down what
    /// is no longer shown. Meant for a click whose answer fills the window, not for what may change more often than a
    /// screen shows. A window that is not seen paints nothing.
    void paintNext();

signals:
    void shortcutsEnabledChanged();
    void loudGroundChanged();

private:
    QQuickItem *makeChrome(QQmlEngine *engine);
    void addItem(QQuickItem *item);
    void fixSize(QSize size);

    const EBApp m_app;
    const Style m_style;
    bool m_shortcutsEnabled = true;
    /// It was minimised, and was not the active window since.
    bool m_minimized = false;
    bool m_loudGround = false;
    QVariantAnimation m_resize;
};
