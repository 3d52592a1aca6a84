#include "EndToEndTest.h"
#include "FakePortal.h"

#include <QDeadlineTimer>
#include <QSet>

using namespace Qt::StringLiterals;

/// How the window follows the desktop's look while the desktop says what it wants through its portal.
class TestAppearance : public EndToEndTest {
    Q_OBJECT

private:
    using Scheme = FakePortal::ColorScheme;

    static constexpr QColor lightPaper{0xF7, 0xF6, 0xF2};
    static constexpr QColor darkPaper{0x0D, 0x0D, 0x0E};
    static constexpr QColor lightIndigo{0x5A, 0x5C, 0xF2};
    static constexpr QColor darkIndigo{0x7B, 0x7D, 0xFF};

    /// A place of the window that shows nothing but its background: its corner, beside the sidebar.
    QPoint corner() const { return window()->geometry().topLeft() + QPoint(3, 3); }
    bool isPaintedOn(const QColor &paper) const { return screen().waitForPixel(corner(), paper); }

    /// Turns a switch on, and returns the different pictures of it that were seen until it was `accent` all over.
    QList<QImage> picturesOfAFlip(const QColor &accent);

private slots:
    void isLightWithoutAPortal();
    void startsInTheSchemeOfThePortal_data();
    void startsInTheSchemeOfThePortal();
    void followsTheSchemeWhileItIsOpen();
    void followsAPortalThatComesLater();
    void highContrastKeepsTheColours_data();
    void highContrastKeepsTheColours();
    void recoloursTheControlsToo();

    void aFlippedSwitchSlides();
    void aFlippedSwitchDoesNotSlideWithReducedMotion();
    void reducedMotionIsReadAtTheMomentOfTheFlip();
    void thePageGrowsAtOnceWithReducedMotion();
};

QList<QImage> TestAppearance::picturesOfAFlip(const QColor &accent)
{
    const Accessible login = find(ATSPI_ROLE_CHECK_BOX, u"Start at login"_s);
    settle();
    const QRect box = login.extents();
    const QPoint leading(6, box.height() / 2);
    QList<QImage> seen = {screen().picture(box)};
    if (!login.doAction(u"Press"_s))
        return {};
    // In the last picture the knob is at the trailing edge, and the track has its colour where the knob was.
    const auto isOver = [&] {
        const QImage now = screen().picture(box);
        if (!seen.contains(now))
            seen.append(now);
        const QPoint trailing(box.width() - 4, box.height() / 2);
        return now.pixelColor(leading) == accent && now.pixelColor(trailing) == QColor(Qt::white);
    };
    QDeadlineTimer deadline(5000);
    while (!isOver() && !deadline.hasExpired())
        QCoreApplication::processEvents();
    return seen;
}

void TestAppearance::isLightWithoutAPortal()
{
    QVERIFY(open());
    QVERIFY(isPaintedOn(lightPaper));
}

void TestAppearance::startsInTheSchemeOfThePortal_data()
{
    QTest::addColumn<QVariantMap>("appearance");
    QTest::addColumn<uint>("version");
    QTest::addColumn<QColor>("paper");
    for (const uint version : {1U, 2U}) {
        const QString portal = u"portal %1, "_s.arg(version);
        const auto row = [&](const char *name, const QVariantMap &appearance, const QColor &paper) {
            QTest::newRow(qPrintable(portal + QLatin1String(name))) << appearance << version << paper;
        };
        row("no preference", FakePortal::colorScheme(Scheme::NoPreference), lightPaper);
        row("dark", FakePortal::colorScheme(Scheme::Dark), darkPaper);
        row("light", FakePortal::colorScheme(Scheme::Light), lightPaper);
        row("unknown value", {{u"color-scheme"_s, 9U}}, lightPaper);
        row("a value of another type", {{u"color-scheme"_s, u"dark"_s}}, lightPaper);
        row("nothing", {}, lightPaper);
    }
}

void TestAppearance::startsInTheSchemeOfThePortal()
{
    QFETCH(QVariantMap, appearance);
    QFETCH(uint, version);
    QFETCH(QColor, paper);
    const FakePortal portal(appearance, version);
    QVERIFY(open());
    QVERIFY(isPaintedOn(paper));
}

void TestAppearance::followsTheSchemeWhileItIsOpen()
{
    FakePortal portal(FakePortal::colorScheme(Scheme::Light));
    QVERIFY(open());
    QVERIFY(isPaintedOn(lightPaper));
    portal.change(FakePortal::colorScheme(Scheme::Dark));
    QVERIFY(isPaintedOn(darkPaper));
    portal.change(FakePortal::colorScheme(Scheme::NoPreference));
    QVERIFY(isPaintedOn(lightPaper));
}

void TestAppearance::followsAPortalThatComesLater()
{
    QVERIFY(open());
    QVERIFY(isPaintedOn(lightPaper));
    const FakePortal portal(FakePortal::colorScheme(Scheme::Dark));
    QVERIFY(isPaintedOn(darkPaper));
}

void TestAppearance::highContrastKeepsTheColours_data()
{
    QTest::addColumn<Scheme>("scheme");
    QTest::addColumn<QColor>("paper");
    QTest::newRow("light") << Scheme::Light << lightPaper;
    QTest::newRow("dark") << Scheme::Dark << darkPaper;
}

void TestAppearance::highContrastKeepsTheColours()
{
    QFETCH(Scheme, scheme);
    QFETCH(QColor, paper);
    QVariantMap appearance = FakePortal::colorScheme(scheme);
    appearance.insert(FakePortal::contrast(true));
    const FakePortal portal(appearance);
    QVERIFY(open());
    QVERIFY(isPaintedOn(paper));
}

void TestAppearance::recoloursTheControlsToo()
{
    store().write(u"agent.launchAtLogin"_s, true);
    FakePortal portal(FakePortal::colorScheme(Scheme::Light));
    QVERIFY(open());
    FIND(login, ATSPI_ROLE_CHECK_BOX, "Start at login");
    settle();
    const QRect box = login.extents();
    const QPoint track(box.left() + 6, box.center().y());
    QVERIFY(screen().waitForPixel(track, lightIndigo));
    portal.change(FakePortal::colorScheme(Scheme::Dark));
    QVERIFY(screen().waitForPixel(track, darkIndigo));
}

void TestAppearance::aFlippedSwitchSlides()
{
    QVERIFY(open());
    const QList<QImage> seen = picturesOfAFlip(lightIndigo);
    QVERIFY2(seen.size() > 2, qPrintable(QString::number(seen.size())));
}

void TestAppearance::aFlippedSwitchDoesNotSlideWithReducedMotion()
{
    const FakePortal portal(FakePortal::reducedMotion(true));
    QVERIFY(open());
    QCOMPARE(picturesOfAFlip(lightIndigo).size(), 2);
}

void TestAppearance::reducedMotionIsReadAtTheMomentOfTheFlip()
{
    FakePortal portal(FakePortal::reducedMotion(false));
    QVERIFY(open());
    portal.change(FakePortal::reducedMotion(true));
    // The notices arrive in their order, and the second one can be seen.
    portal.change(FakePortal::colorScheme(Scheme::Dark));
    QVERIFY(isPaintedOn(darkPaper));
    QCOMPARE(picturesOfAFlip(darkIndigo).size(), 2);
}

void TestAppearance::thePageGrowsAtOnceWithReducedMotion()
{
    const FakePortal portal(FakePortal::reducedMotion(true));
    QVERIFY(open());
    FIND(last, ATSPI_ROLE_PUSH_BUTTON, "Show Guide");
    settle();
    const QRect before = window()->geometry();
    QSet<int> heights = {before.height()};
    store().write(u"agent.launchAtLoginNeedsApproval"_s, true);
    const auto hasGrown = [&] {
        heights.insert(window()->geometry().height());
        return heights.size() > 1;
    };
    QDeadlineTimer deadline(5000);
    while (!hasGrown() && !deadline.hasExpired())
        QCoreApplication::processEvents();
    FIND(open, ATSPI_ROLE_PUSH_BUTTON, "Open");
    settle();
    heights.insert(window()->geometry().height());
    QCOMPARE(heights.size(), 2);
    // The top edge and the left edge stay where they were.
    QCOMPARE(window()->geometry().topLeft(), before.topLeft());
}

QTEST_GUILESS_MAIN(TestAppearance)
#include "tst_appearance.moc"
