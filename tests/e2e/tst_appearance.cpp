#include "EndToEndTest.h"
#include "SettingsPortal.h"

#include <QDeadlineTimer>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

const QString group = u"org.freedesktop.appearance"_s;
const QString colorScheme = u"color-scheme"_s;
const QString contrast = u"contrast"_s;
const QString reducedMotion = u"reduced-motion"_s;

// The portal's numbers.
constexpr uint noPreference = 0;
constexpr uint dark = 1;
constexpr uint light = 2;
constexpr uint on = 1;

QVariant settings(const QVariantMap &appearance)
{
    return QVariant::fromValue(SettingsGroups{{{group, appearance}}});
}

}

/// How the window follows the desktop's look while the desktop says what it wants through its portal.
class TestAppearance : public EndToEndTest {
    Q_OBJECT

private:
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
    QTest::addColumn<QVariant>("answer");
    QTest::addColumn<QColor>("paper");
    QTest::newRow("no preference") << settings({{colorScheme, noPreference}}) << lightPaper;
    QTest::newRow("dark") << settings({{colorScheme, dark}}) << darkPaper;
    QTest::newRow("light") << settings({{colorScheme, light}}) << lightPaper;
    QTest::newRow("unknown value") << settings({{colorScheme, 9U}}) << lightPaper;
    QTest::newRow("a value of another type") << settings({{colorScheme, u"dark"_s}}) << lightPaper;
    QTest::newRow("nothing") << settings({}) << lightPaper;
    QTest::newRow("an error") << QVariant() << lightPaper;
}

void TestAppearance::startsInTheSchemeOfThePortal()
{
    QFETCH(QVariant, answer);
    QFETCH(QColor, paper);
    const SettingsPortal portal(answer);
    QVERIFY(open());
    QVERIFY(isPaintedOn(paper));
}

void TestAppearance::followsTheSchemeWhileItIsOpen()
{
    SettingsPortal portal(settings({{colorScheme, light}}));
    QVERIFY(open());
    QVERIFY(isPaintedOn(lightPaper));
    portal.change(group, colorScheme, dark);
    QVERIFY(isPaintedOn(darkPaper));
    portal.change(group, colorScheme, noPreference);
    QVERIFY(isPaintedOn(lightPaper));
}

void TestAppearance::followsAPortalThatComesLater()
{
    QVERIFY(open());
    QVERIFY(isPaintedOn(lightPaper));
    const SettingsPortal portal(settings({{colorScheme, dark}}));
    QVERIFY(isPaintedOn(darkPaper));
}

void TestAppearance::highContrastKeepsTheColours_data()
{
    QTest::addColumn<uint>("scheme");
    QTest::addColumn<QColor>("paper");
    QTest::newRow("light") << light << lightPaper;
    QTest::newRow("dark") << dark << darkPaper;
}

void TestAppearance::highContrastKeepsTheColours()
{
    QFETCH(uint, scheme);
    QFETCH(QColor, paper);
    const SettingsPortal portal(settings({{colorScheme, scheme}, {contrast, on}}));
    QVERIFY(open());
    QVERIFY(isPaintedOn(paper));
}

void TestAppearance::recoloursTheControlsToo()
{
    store().write(u"agent.launchAtLogin"_s, true);
    SettingsPortal portal(settings({{colorScheme, light}}));
    QVERIFY(open());
    FIND(login, ATSPI_ROLE_CHECK_BOX, "Start at login");
    settle();
    const QRect box = login.extents();
    const QPoint track(box.left() + 6, box.center().y());
    QVERIFY(screen().waitForPixel(track, lightIndigo));
    portal.change(group, colorScheme, dark);
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
    const SettingsPortal portal(settings({{reducedMotion, on}}));
    QVERIFY(open());
    QCOMPARE(picturesOfAFlip(lightIndigo).size(), 2);
}

void TestAppearance::reducedMotionIsReadAtTheMomentOfTheFlip()
{
    SettingsPortal portal(settings({}));
    QVERIFY(open());
    portal.change(group, reducedMotion, on);
    // The notices arrive in their order, and the second one can be seen.
    portal.change(group, colorScheme, dark);
    QVERIFY(isPaintedOn(darkPaper));
    QCOMPARE(picturesOfAFlip(darkIndigo).size(), 2);
}

void TestAppearance::thePageGrowsAtOnceWithReducedMotion()
{
    const SettingsPortal portal(settings({{reducedMotion, on}}));
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
