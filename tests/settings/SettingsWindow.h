#pragma once

#include "Accessibility.h"
#include "EBKitColor.h"
#include "EBKitFonts.h"
#include "EBSettingsWindowController.h"
#include "FakePlatform.h"
#include "NamedItems.h"
#include "SettingsModel.h"
#include "SettingsPages.h"
#include "ViewEngine.h"

#include <QSignalSpy>
#include <QTest>

/// The settings window of version 1.4 on the screen, without motion. Things are found by their accessible names.
class SettingsWindow {
public:
    explicit SettingsWindow(const std::optional<QString> &initial = {},
                            const QList<EBSettingsPage> &pages = SettingsPages::make())
        : platform(prepare()), controller(m_engine, EBApp::corvane, QStringLiteral("1.4"), pages, initial)
    {
        controller.showWindow();
        window().requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(&window()));
        waitForFrame();
    }

private:
    FakePlatform &platform;
    ViewEngine m_engine;

public:
    EBSettingsWindowController controller;

    EBWindow &window() { return *controller.window(); }

    /// The first visible item of that name and role; null when there is none.
    QQuickItem *item(const QString &name, QAccessible::Role role)
    {
        return NamedItems::first(window().contentItem(), name, role);
    }

    QQuickItem *entry(const QString &title) { return item(title, QAccessible::ListItem); }
    QQuickItem *heading(const QString &title) { return item(title, QAccessible::Heading); }
    QQuickItem *label(const QString &text) { return item(text, QAccessible::StaticText); }
    QQuickItem *searchField() { return item(QStringLiteral("Search"), QAccessible::EditableText); }

    void search(const QString &text)
    {
        searchField()->forceActiveFocus();
        QTest::keySequence(&window(), QKeySequence::SelectAll);
        for (const QChar character : text)
            QTest::keyClick(&window(), character.toLatin1());
        waitForFrame();
    }

    /// Waits until everything that has just changed is laid out and painted.
    void waitForFrame()
    {
        QSignalSpy frames(&window(), &QQuickWindow::frameSwapped);
        window().update();
        QTRY_VERIFY(!frames.isEmpty());
    }

    /// Where an item is in the window, in points.
    static QRectF frame(const QQuickItem *item) { return item->mapRectToScene(QRectF(QPointF(), item->size())); }

    /// Where the letters of a text item are in the window, in points.
    static QRectF letters(const QQuickItem *text) { return text->mapRectToScene(text->boundingRect()); }

    /// The colour an item is set to, in the form in which messages show it.
    static QString color(const QQuickItem *item)
    {
        return item->property("color").value<QColor>().name(QColor::HexArgb);
    }
    static QString color(const EBKitColor &token) { return token.current().name(QColor::HexArgb); }

    /// The first item of a class in `item`, itself included; null when there is none.
    static QQuickItem *inside(QQuickItem *item, const char *className)
    {
        if (item->inherits(className))
            return item;
        for (QQuickItem *child : item->childItems()) {
            if (QQuickItem *found = inside(child, className))
                return found;
        }
        return nullptr;
    }

private:
    static FakePlatform &prepare()
    {
        FakePlatform &desktop = FakePlatform::install();
        for (const QString &face : {EBKitFonts::display, EBKitFonts::mono}) {
            const QString file = face + QStringLiteral(".ttf");
            desktop.main.resources.insert(file, QUrl::fromLocalFile(QStringLiteral(CORVANE_FONTS_FOLDER) + file));
        }
        EBKitFonts::registerFonts();
        QAccessible::setActive(true);
        installKitAccessibility();
        desktop.look.setReduceMotion(true);
        return desktop;
    }
};
