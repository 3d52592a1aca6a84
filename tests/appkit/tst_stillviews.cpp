#include "EBKitKeyRow.h"
#include "EBKitPanelHeader.h"
#include "EBKitSectionLabel.h"
#include "EBKitSeparator.h"
#include "EBKitStatusPanel.h"
#include "FakePlatform.h"
#include "Picture.h"
#include "TestProgram.h"

/// The views that show and do nothing themselves.
class TestStillViews : public QObject {
    Q_OBJECT

private slots:
    void aSeparatorIsALineOfOnePoint()
    {
        EBKitSeparator separator;
        QCOMPARE(separator.sizeHint().height(), 1);
        separator.resize(100, 1);
        const Picture picture(separator, ground);
        COMPARE_COLOR(picture.at(0.1, 0.5), over(EBKit::line().current(), ground));
        COMPARE_COLOR(picture.at(99.9, 0.5), over(EBKit::line().current(), ground));
    }

    void aSectionLabelIsInCapitals()
    {
        EBKitSectionLabel label(KitText::make(QStringLiteral("General"), EBTypeRole::mono, EBKit::inkMuted()));
        EBKitSectionLabel capitals(KitText::make(QStringLiteral("GENERAL"), EBTypeRole::mono, EBKit::inkMuted()));
        QCOMPARE(label.text().string, QStringLiteral("General"));
        QCOMPARE(label.sizeHint(), capitals.sizeHint());
        label.resize(200, label.sizeHint().height());
        capitals.resize(label.size());
        QVERIFY(Picture(label) == Picture(capitals));
        const QRectF found = Picture(label, ground).inked(label.rect(), ground);
        QVERIFY(found.left() >= 16 && found.left() < 18);
    }

    void aHeaderShowsTheMarkOnATileInTheProductsColor()
    {
        for (const EBApp app : EBApps::allCases) {
            EBKitPanelHeader header(EBKitApps::of(app), {}, titleText(EBApps::displayName(app)));
            header.resize(300, header.sizeHint().height());
            const Picture picture(header, ground);
            const QRectF tile(16, (header.height() - 36) / 2, 36, 36);
            COMPARE_COLOR(picture.at(tile.center().x(), tile.top() + 1), EBApps::family(app).accent.current());
            COMPARE_COLOR(picture.at(tile.left() + 1, tile.center().y()), EBApps::family(app).accent.current());
            COMPARE_COLOR(picture.at(tile.topLeft() + QPointF(0.5, 0.5)), ground);
            const QPointF onMark = EBKitMarks::path(EBKitMarks::of(app), tile, {}).elementAt(0) + QPointF(0, 0);
            QVERIFY(tile.contains(onMark));
            int marked = 0;
            for (qreal x = tile.left(); x < tile.right(); ++x)
                marked += isNear(picture.at(x, tile.center().y()), EBApps::family(app).onAccent.current()) ? 1 : 0;
            QVERIFY(marked > 3);
            // The mark keeps its margin in the tile.
            for (qreal y = tile.top() + 12; y < tile.bottom() - 12; ++y)
                COMPARE_COLOR(picture.at(tile.left() + 2, y), EBApps::family(app).accent.current());
        }
    }

    void theLabelOfAHeaderStandsAboveTheName()
    {
        const EBKitText label = KitText::make(QStringLiteral("Menu bar"), EBTypeRole::mono, EBKit::inkMuted());
        EBKitPanelHeader with(EBKitApps::of(EBApp::corvane), label, titleText(QStringLiteral("Corvane")));
        EBKitPanelHeader without(EBKitApps::of(EBApp::corvane), {}, titleText(QStringLiteral("Corvane")));
        QCOMPARE(with.label()->string, QStringLiteral("Menu bar"));
        QCOMPARE(with.name().string, QStringLiteral("Corvane"));
        QCOMPARE(with.app().name, QStringLiteral("Corvane"));
        for (EBKitPanelHeader *header : {&with, &without})
            header->resize(300, 60);
        const QRectF texts(60, 0, 200, 60);
        const QRectF higher = Picture(with, ground).inked(texts, ground);
        const QRectF alone = Picture(without, ground).inked(texts, ground);
        QVERIFY(higher.top() < alone.top());
        QVERIFY(higher.bottom() > alone.bottom());
    }

    void theLabelOfAHeaderIsInCapitals()
    {
        const auto header = [](const QString &label) {
            auto view = std::make_unique<EBKitPanelHeader>(EBKitApps::of(EBApp::corvane), captionText(label),
                                                           titleText(QStringLiteral("Corvane")));
            view->resize(300, 60);
            return view;
        };
        const auto natural = header(QStringLiteral("Menu bar"));
        const auto capitals = header(QStringLiteral("MENU BAR"));
        QVERIFY(Picture(*natural) == Picture(*capitals));
        QCOMPARE(natural->sizeHint(), capitals->sizeHint());
    }

    void aKeyRowHasItsKeysOnACapAndItsSwitchAtTheEnd()
    {
        auto *toggle = new EBKitSwitch(true, EBKitApps::of(EBApp::corvane), QStringLiteral("Close"), {});
        const EBKitText keys = KitText::make(QStringLiteral("⌘W"), EBTypeRole::small, EBKit::ink());
        EBKitKeyRow row(keys, titleText(QStringLiteral("Close")), toggle);
        QCOMPARE(row.keys().string, QStringLiteral("⌘W"));
        QCOMPARE(row.title().string, QStringLiteral("Close"));
        QCOMPARE(&row.toggle(), toggle);
        QCOMPARE(row.sizeHint().height(), 40);
        row.resize(300, 40);
        const Picture picture(row, ground);
        QCOMPARE(toggle->geometry(), QRect(300 - 16 - 36, 9, 36, 22));
        COMPARE_COLOR(picture.at(300 - 16 - 36 + 1, 20), EBKit::indigo().current());
        const qreal capEnd = 300 - 16 - 36 - 12;
        const qreal width = std::max(34, KitText::size(keys).width() + 16);
        const QColor chip = over(EBKit::chip().current(), ground);
        COMPARE_COLOR(picture.at(capEnd - 1, 20), chip);
        COMPARE_COLOR(picture.at(capEnd - width + 1, 20), chip);
        COMPARE_COLOR(picture.at(capEnd - width - 1, 20), ground);
        COMPARE_COLOR(picture.at(capEnd - width / 2, 9.5), chip);
        COMPARE_COLOR(picture.at(capEnd - width / 2, 8.5), ground);
    }

    void aMirroredKeyRowBeginsAtTheRight()
    {
        auto *toggle = new EBKitSwitch(true, EBKitApps::of(EBApp::corvane), QStringLiteral("Close"), {});
        EBKitKeyRow row(titleText(QStringLiteral("⌘W")), titleText(QStringLiteral("Close")), toggle);
        row.setLayoutDirection(Qt::RightToLeft);
        row.resize(300, 40);
        const Picture picture(row, ground);
        QCOMPARE(toggle->geometry(), QRect(16, 9, 36, 22));
        QVERIFY(picture.inked(QRectF(200, 0, 100, 40), ground).right() > 270);
    }

private:
    FakePlatform &m_platform = FakePlatform::install();
};

CORVANE_TEST(TestStillViews, runInWidgets)
#include "tst_stillviews.moc"
