#pragma once

#include "EBKitColor.h"
#include "EBSettingsWindowController.h"
#include "Fonts.h"
#include "SettingsModel.h"
#include "SettingsPages.h"
#include "ViewWindow.h"

/// The settings window of version 1.4 on the screen, without motion.
class SettingsWindow : public ViewWindow {
public:
    /// `stored` is what the store holds before there is a window.
    explicit SettingsWindow(const std::optional<QString> &initial = {},
                            const QList<EBSettingsPage> &pages = SettingsPages::make(), const QVariantMap &stored = {})
        : ViewWindow(stored), controller(prepared(), EBApp::corvane, QStringLiteral("1.4"), pages, initial)
    {
        lookInto(*controller.window());
        controller.showWindow();
        bringUp();
        waitForFrame();
    }

private:
    ViewEngine &prepared()
    {
        addFaces(platform.main);
        EBKitFonts::registerFonts();
        platform.look.setReduceMotion(true);
        return engine;
    }

public:
    EBSettingsWindowController controller;

    FoundItem entry(const QString &title) { return item(title, QAccessible::ListItem); }
    FoundItem heading(const QString &title) { return item(title, QAccessible::Heading); }
    FoundItem label(const QString &text) { return item(text, QAccessible::StaticText); }

    void search(const QString &text)
    {
        item(QStringLiteral("Search"), QAccessible::EditableText)->forceActiveFocus();
        QTest::keySequence(&window(), QKeySequence::SelectAll);
        for (const QChar character : text)
            QTest::keyClick(&window(), character.toLatin1());
        waitForFrame();
    }

    /// Where an item is in the window, in points.
    static QRectF frame(const QQuickItem *item) { return item->mapRectToScene(QRectF(QPointF(), item->size())); }

    /// The colour an item is set to, in the form in which messages show it.
    static QString color(const QQuickItem *item)
    {
        return item->property("color").value<QColor>().name(QColor::HexArgb);
    }
    static QString color(const EBKitColor &token) { return token.current().name(QColor::HexArgb); }
};
