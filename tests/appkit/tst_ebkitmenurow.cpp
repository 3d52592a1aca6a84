#include "EBKitMenuRow.h"
#include "FakePlatform.h"
#include "Picture.h"
#include "TestProgram.h"

namespace {

EBKitText text(const QString &string)
{
    return KitText::make(string, EBTypeRole::body, EBKit::ink());
}

}

class TestEBKitMenuRow : public QObject {
    Q_OBJECT

private slots:
    void init() { m_count = 0; }

    void itIs30PointsHigh()
    {
        const EBKitMenuRow row(EBKitGlyph::gear, text(QStringLiteral("Settings")), text(QStringLiteral("⌘,")), {});
        QCOMPARE(row.sizeHint().height(), 30);
    }

    // The glyph "dock" reaches from 3 to 21 across the grid and from 4 to 20 down, with a stroke of 1.6 around.
    void theGlyphsBoxBeginsEightPointsFromTheLeadingEdge()
    {
        EBKitMenuRow row(EBKitGlyph::dock, text({}), {}, {});
        row.resize(200, 30);
        constexpr qreal unit = 15.0 / 24;
        const QRectF box(8, 7.5, 15, 15);
        const QRectF expected(box.left() + 2.2 * unit, box.top() + 3.2 * unit, 19.6 * unit, 17.6 * unit);
        const QRectF found = Picture(row, ground).inked(row.rect(), ground);
        QVERIFY2(std::abs(found.left() - expected.left()) <= 0.6, qPrintable(QString::number(found.left())));
        QVERIFY(std::abs(found.right() - expected.right()) <= 0.6);
        // To the nearest half device pixel.
        QVERIFY(std::abs(found.center().y() - 15) <= 0.25);

        row.setLayoutDirection(Qt::RightToLeft);
        const QRectF mirrored = Picture(row, ground).inked(row.rect(), ground);
        QVERIFY(std::abs(mirrored.right() - (200 - expected.left())) <= 0.6);
    }

    void theTitleFollowsAndTheShortcutStandsAtTheEnd()
    {
        EBKitMenuRow row({}, text(QStringLiteral("Settings")), text(QStringLiteral("WWW")), {});
        row.resize(200, 30);
        const Picture picture(row, ground);
        const QRectF all = picture.inked(row.rect(), ground);
        QVERIFY(all.left() >= 8 && all.left() < 10);
        QVERIFY(all.right() <= 192 && all.right() > 190);
        EBKitMenuRow withGlyph(EBKitGlyph::dock, text(QStringLiteral("Settings")), {}, {});
        withGlyph.resize(200, 30);
        const QRectF title = Picture(withGlyph, ground).inked(QRectF(25, 0, 175, 30), ground);
        QVERIFY(title.left() >= 31 && title.left() < 33);
    }

    void aTitleWithoutRoomIsCutBeforeTheShortcut()
    {
        EBKitMenuRow row({}, text(QStringLiteral("A title that is far too long for its row")),
                         text(QStringLiteral("WWW")), {});
        row.resize(150, 30);
        const int shortcut = KitText::size(text(QStringLiteral("WWW"))).width();
        const QRectF gap(150 - 8 - shortcut - 11, 0, 10, 30);
        QCOMPARE(Picture(row, ground).inked(gap, ground), QRectF());
    }

    void thePointerOverItShowsAChip()
    {
        EBKitMenuRow row({}, text(QStringLiteral("Settings")), {}, {});
        row.resize(200, 30);
        COMPARE_COLOR(Picture(row, ground).at(180, 15), ground);
        row.setHover(true);
        COMPARE_COLOR(Picture(row, ground).at(180, 15), over(EBKit::chip().current(), ground));
        COMPARE_COLOR(Picture(row, ground).at(0.3, 0.3), ground);
    }

    void aClickAndTheKeysRunItsAction()
    {
        EBKitMenuRow row({}, text(QStringLiteral("Settings")), {}, [this] { ++m_count; });
        row.resize(200, 30);
        QTest::mouseClick(&row, Qt::LeftButton);
        QTest::keyClick(&row, Qt::Key_Space);
        QTest::keyClick(&row, Qt::Key_Return);
        QCOMPARE(m_count, 3);
    }

private:
    FakePlatform &m_platform = FakePlatform::install();
    int m_count = 0;
};

CORVANE_TEST(TestEBKitMenuRow, runInWidgets)
#include "tst_ebkitmenurow.moc"
