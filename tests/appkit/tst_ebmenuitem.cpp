#include "EBMenuItem.h"
#include "TestProgram.h"

#include <QMenu>

class TestEBMenuItem : public QObject {
    Q_OBJECT

private slots:
    void choosingItRunsItsHandler()
    {
        int runs = 0;
        QMenu menu;
        auto *item = new EBMenuItem(
            QStringLiteral("Settings"), [&runs] { ++runs; }, &menu);
        menu.addAction(item);
        QCOMPARE(item->text(), QStringLiteral("Settings"));
        menu.popup(QPoint(10, 10));
        QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(item).center());
        QCOMPARE(runs, 1);
        item->trigger();
        QCOMPARE(runs, 2);
        item->handler = [&runs] { runs += 10; };
        item->trigger();
        QCOMPARE(runs, 12);
    }

    void aDisabledOneDoesNot()
    {
        int runs = 0;
        EBMenuItem item(QStringLiteral("Settings"), [&runs] { ++runs; });
        item.setEnabled(false);
        item.trigger();
        QCOMPARE(runs, 0);
    }

    void withoutAHandlerNothingHappens() { DOES_NO_HARM(EBMenuItem(QStringLiteral("Settings"), {}).trigger()); }

    void theHandlerMayEndTheItem()
    {
        int runs = 0;
        auto *item = new EBMenuItem(QStringLiteral("Settings"), {});
        item->handler = [&runs, item] {
            item->deleteLater();
            item->handler = nullptr;
            ++runs;
        };
        item->trigger();
        QCOMPARE(runs, 1);
    }
};

CORVANE_TEST(TestEBMenuItem, runInWidgets)
#include "tst_ebmenuitem.moc"
