#include "EBKitButton.h"
#include "EBKitKeyRow.h"
#include "EBKitMenuRow.h"
#include "EBKitPanelView.h"
#include "EBKitRow.h"
#include "EBKitSeparator.h"
#include "FakePlatform.h"
#include "Picture.h"
#include "TestProgram.h"

#include <QLayout>
#include <QPointer>

namespace {

EBKitMenuRow *menuRow(const QString &title)
{
    return new EBKitMenuRow(EBKitGlyph::gear, titleText(title), {}, {});
}

EBKitSwitch *toggle()
{
    return new EBKitSwitch(false, EBKitApps::of(EBApp::corvane), QStringLiteral("Close"), {});
}

void show(EBKitPanelView &panel)
{
    panel.resize(300, 400);
    panel.setFocus();
    panel.show();
    panel.activateWindow();
}

}

class TestEBKitPanelView : public QObject {
    Q_OBJECT

private slots:
    void itStacksViewsFromTheTop()
    {
        EBKitPanelView panel;
        auto *row = new EBKitRow(EBKitApps::of(EBApp::corvane), {}, false, titleText(QStringLiteral("Row")), {});
        auto *line = new EBKitSeparator;
        auto *button = new EBKitButton(titleText(QStringLiteral("Go")), EBKitButton::Variant::primary, 32, {});
        auto *entry = menuRow(QStringLiteral("Quit"));
        panel.stack({row, line, button, entry});
        QCOMPARE(panel.views(), QList<EBKitView *>({row, line, button, entry}));
        show(panel);
        QCOMPARE(row->geometry(), QRect(0, 6, 300, 40));
        QCOMPARE(line->geometry(), QRect(0, 46 + 6, 300, 1));
        QCOMPARE(button->geometry(), QRect(QPoint(16, 53 + 6 + 6), button->sizeHint()));
        QCOMPARE(entry->geometry(), QRect(8, 65 + 32 + 6, 300 - 16, 30));
        QCOMPARE(panel.layout()->totalHeightForWidth(300), 103 + 30 + 6);
    }

    void aRowWhoseTextWrapsMakesThePanelHigher()
    {
        EBKitPanelView panel;
        const QString text = QStringLiteral("Adds buttons to the windows in the overview of all windows, everywhere");
        auto *row = new EBKitRow(EBKitApps::of(EBApp::corvane), {}, false, titleText(text), captionText(text));
        panel.stack({row});
        QCOMPARE(panel.layout()->totalHeightForWidth(300), row->heightForWidth(300) + 12);
        QVERIFY(row->heightForWidth(300) > 50);
        show(panel);
        QCOMPARE(row->geometry().height(), row->heightForWidth(300));
    }

    void aNewStackReplacesTheOldOne()
    {
        EBKitPanelView panel;
        show(panel);
        const QPointer<EBKitView> old = menuRow(QStringLiteral("Old"));
        panel.stack({old});
        auto *entry = menuRow(QStringLiteral("New"));
        panel.stack({entry});
        QCOMPARE(panel.views(), QList<EBKitView *>({entry}));
        QVERIFY(!old->isVisible());
        QVERIFY(entry->isVisible());
        QTRY_VERIFY(!old);
        panel.stack({});
        QCOMPARE(panel.views(), QList<EBKitView *>());
    }

    void itIsACard()
    {
        EBKitPanelView panel;
        panel.resize(300, 200);
        const Picture picture(panel);
        COMPARE_COLOR(picture.at(150, 100), EBKit::surface().current());
        COMPARE_COLOR(picture.at(0.5, 100), over(EBKit::line().current(), EBKit::surface().current()));
        COMPARE_COLOR(picture.at(1, 1), ground);
    }

    void theArrowsMoveAmongTheMenuRows()
    {
        EBKitPanelView panel;
        auto *first = menuRow(QStringLiteral("First"));
        auto *disabled = menuRow(QStringLiteral("Disabled"));
        auto *second = menuRow(QStringLiteral("Second"));
        auto *third = menuRow(QStringLiteral("Third"));
        auto *keys = new EBKitKeyRow(titleText(QStringLiteral("⌘W")), titleText(QStringLiteral("Close")), toggle());
        disabled->setEnabled(false);
        panel.stack({keys, first, disabled, new EBKitSeparator, second, third});
        show(panel);
        QVERIFY(QTest::qWaitForWindowActive(&panel));
        const auto press = [&panel](Qt::Key key) {
            QWidget *focus = panel.focusWidget();
            QTest::keyClick(focus ? focus : &panel, key);
            return panel.focusWidget();
        };
        QCOMPARE(press(Qt::Key_Down), first);
        QCOMPARE(press(Qt::Key_Down), second);
        QCOMPARE(press(Qt::Key_Down), third);
        QCOMPARE(press(Qt::Key_Down), third);
        QCOMPARE(press(Qt::Key_Up), second);
        QCOMPARE(press(Qt::Key_Up), first);
        QCOMPARE(press(Qt::Key_Up), first);
        QCOMPARE(press(Qt::Key_End), third);
        QCOMPARE(press(Qt::Key_Home), first);
        keys->toggle().setFocus();
        QCOMPARE(press(Qt::Key_Up), third);
        keys->toggle().setFocus();
        QCOMPARE(press(Qt::Key_Down), first);
    }

    void tabGoesFromTheTopToTheBottom()
    {
        EBKitPanelView panel;
        auto *button = new EBKitButton(titleText(QStringLiteral("Go")), EBKitButton::Variant::primary, 32, {});
        auto *entry = menuRow(QStringLiteral("Quit"));
        auto *keys = new EBKitKeyRow(titleText(QStringLiteral("⌘W")), titleText(QStringLiteral("Close")), toggle());
        panel.stack({keys, button, entry});
        show(panel);
        QVERIFY(QTest::qWaitForWindowActive(&panel));
        QTest::keyClick(&panel, Qt::Key_Tab);
        QCOMPARE(panel.focusWidget(), &keys->toggle());
        QTest::keyClick(panel.focusWidget(), Qt::Key_Tab);
        QCOMPARE(panel.focusWidget(), button);
        QTest::keyClick(panel.focusWidget(), Qt::Key_Tab);
        QCOMPARE(panel.focusWidget(), entry);
    }

private:
    FakePlatform &m_platform = FakePlatform::install();
};

CORVANE_TEST(TestEBKitPanelView, runInWidgets)
#include "tst_ebkitpanelview.moc"
