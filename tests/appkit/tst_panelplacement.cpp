#include "PanelPlacement.h"
#include "TestProgram.h"

#include <QRegularExpression>

class TestPanelPlacement : public QObject {
    Q_OBJECT

private slots:
    void aPanelStandsByItsAnchorInsideTheScreen_data()
    {
        QTest::addColumn<QRect>("anchor");
        QTest::addColumn<QRect>("expected");
        QTest::newRow("below, in the middle") << QRect(500, 0, 40, 24) << QRect(370, 28, 300, 200);
        QTest::newRow("at the left edge") << QRect(0, 0, 40, 24) << QRect(0, 28, 300, 200);
        QTest::newRow("at the right edge") << QRect(960, 0, 40, 24) << QRect(700, 28, 300, 200);
        QTest::newRow("beyond the right edge") << QRect(1200, 0, 40, 24) << QRect(700, 28, 300, 200);
        QTest::newRow("above a bar at the bottom") << QRect(500, 776, 40, 24) << QRect(370, 572, 300, 200);
        QTest::newRow("just fits below") << QRect(500, 572, 40, 24) << QRect(370, 600, 300, 200);
        QTest::newRow("just does not fit below") << QRect(500, 573, 40, 24) << QRect(370, 369, 300, 200);
        QTest::newRow("above the screen") << QRect(500, -100, 40, 24) << QRect(370, 0, 300, 200);
        QTest::newRow("a place without extent") << QRect(500, 10, 0, 0) << QRect(350, 14, 300, 200);
    }
    void aPanelStandsByItsAnchorInsideTheScreen()
    {
        QFETCH(const QRect, anchor);
        QTEST(panelPlacement(anchor, QSize(300, 200), QRect(0, 0, 1000, 800)), "expected");
    }

    void theAvailableScreenNeedNotBeginAtTheOrigin()
    {
        const QRect available(-1000, 30, 1000, 700);
        QCOMPARE(panelPlacement(QRect(-40, 0, 40, 24), QSize(300, 200), available), QRect(-300, 30, 300, 200));
    }

    void withoutRoomBelowAndAboveItStaysInside()
    {
        QCOMPARE(panelPlacement(QRect(500, 100, 40, 24), QSize(300, 200), QRect(0, 0, 1000, 250)),
                 QRect(370, 50, 300, 200));
    }

    void aPanelLargerThanTheScreenKeepsItsTopLeftCorner()
    {
        QCOMPARE(panelPlacement(QRect(100, 0, 40, 24), QSize(300, 900), QRect(0, 20, 200, 800)),
                 QRect(0, 20, 300, 900));
    }
};

CORVANE_TEST(TestPanelPlacement, runBare)
#include "tst_panelplacement.moc"
