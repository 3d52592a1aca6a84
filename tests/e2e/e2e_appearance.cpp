#include "EndToEndTest.h"
#include "SettingsPortal.h"
#include "TestProgram.h"

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

    /// Makes the page grow by a row and shrink again, and returns every height the window had until it was small again.
    QSet<int> heightsWhileARowGoes(int small);

private slots:
    void isLightWithoutAPortal();
    void startsInTheSchemeOfThePortal_data();
    void startsInTheSchemeOfThePortal();
    void followsTheSchemeWhileItIsOpen();
    void followsAPortalThatComesLater();
    void aPortalThatDoesNotRunIsStartedAndFollowed();
    void highContrastKeepsTheColours_data();
    void highContrastKeepsTheColours();
    void recoloursTheControlsToo();

    void aFlippedSwitchSlides();
    void aFlippedSwitchDoesNotSlideWithReducedMotion();
    void reducedMotionIsReadAtTheMomentOfTheFlip();
    void theWindowShrinksByDegrees();
    void theWindowShrinksAtOnceWithReducedMotion();
};

QList<QImage> TestAppearance::picturesOfAFlip(const QColor &accent)
{
    const Accessible login = find(ATSPI_ROLE_CHECK_BOX, u"Start at login"_s);
    if (!becomes(login, ATSPI_STATE_CHECKED, false))
        return {};
    settle();
    const QRect box = login.extents();
    const QPoint leading(6, box.height() / 2);
    if (!screen().waitForPixel(box.topLeft() + leading, Qt::white))
        return {};
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

void TestAppearance::aPortalThatDoesNotRunIsStartedAndFollowed()
{
    const QString started = desktop().session().runtimeFolder() + u"/portal-started"_s;
    const QString service = u"org.freedesktop.portal.Desktop"_s;
    const QString services = desktop().session().dataFolder() + u"/dbus-1/services/"_s;
    QDir().mkpath(services);
    QFile file(services + service + u".service"_s);
    const auto removed = qScopeGuard([&] { file.remove(); });
    QVERIFY(file.open(QFile::WriteOnly));
    file.write(u"[D-BUS Service]\nName=%1\nExec=/usr/bin/touch %2\n"_s.arg(service, started).toUtf8());
    file.close();
    QVERIFY(open());
    QTRY_VERIFY(QFile::exists(started));
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
    // A busy machine may skip the frames in between, though not every time.
    QVERIFY(QTest::qWaitFor([this] {
        store().remove(u"agent.launchAtLogin"_s);
        return picturesOfAFlip(lightIndigo).size() > 2;
    }));
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
    // The signals arrive in their order, and what the second one does can be seen.
    portal.change(group, colorScheme, dark);
    QVERIFY(isPaintedOn(darkPaper));
    QCOMPARE(picturesOfAFlip(darkIndigo).size(), 2);
}

QSet<int> TestAppearance::heightsWhileARowGoes(int small)
{
    const QString needsApproval = u"agent.launchAtLoginNeedsApproval"_s;
    const auto isAtRest = [this] { return window()->minimumSize() == window()->geometry().size(); };
    store().write(needsApproval, true);
    // A rule and a row of their own, of 40 points at least.
    if (!QTest::qWaitFor([&] { return window()->geometry().height() >= small + 41 && isAtRest(); }))
        return {};
    QSet<int> heights = {window()->geometry().height()};
    store().write(needsApproval, false);
    QDeadlineTimer deadline(5000);
    while (!heights.contains(small) && !deadline.hasExpired())
        heights.insert(window()->geometry().height());
    return heights;
}

void TestAppearance::theWindowShrinksByDegrees()
{
    QVERIFY(open());
    const QPoint corner = window()->geometry().topLeft();
    const int small = window()->geometry().height();
    // A busy machine may skip the frames in between, though not every time.
    QVERIFY(QTest::qWaitFor([&] { return heightsWhileARowGoes(small).size() > 2; }));
    QCOMPARE(window()->geometry().topLeft(), corner);
}

void TestAppearance::theWindowShrinksAtOnceWithReducedMotion()
{
    const SettingsPortal portal(settings({{reducedMotion, on}}));
    QVERIFY(open());
    const QPoint corner = window()->geometry().topLeft();
    QCOMPARE(heightsWhileARowGoes(window()->geometry().height()).size(), 2);
    QCOMPARE(window()->geometry().topLeft(), corner);
}

CORVANE_TEST(TestAppearance, runInCore)
#include "e2e_appearance.moc"
