#include "EndToEndTest.h"
#include "TestProgram.h"

using namespace Qt::StringLiterals;

/// What an assistive technology finds in the settings window.
class TestAccessibility : public EndToEndTest {
    Q_OBJECT

private:
    /// The showing elements of the program below its window for which `matches` holds.
    QList<Accessible> showing(const Accessible::Predicate &matches) const;

private slots:
    void everyShowingElementHasARoleAndAName();
    void everyShowingElementLiesInTheWindow();
    void everyControlCanBePressed();
    void noTwoControlsShareAName();
    void theChromeSaysWhichButtonsWork();
    void switchesSayWhetherTheyAreOn();
    void theSearchFieldIsNamedAndEditable();
    void aRowContainsItsControl();
    void theHeadingNamesThePage();
    void whatIsNotShownIsNotShowing();
};

QList<Accessible> TestAccessibility::showing(const Accessible::Predicate &matches) const
{
    return application().findAll([&](const Accessible &element) {
        return element.role() != ATSPI_ROLE_APPLICATION && element.has(ATSPI_STATE_SHOWING) && matches(element);
    });
}

void TestAccessibility::everyShowingElementHasARoleAndAName()
{
    store().write(u"agent.launchAtLoginNeedsApproval"_s, true);
    store().write(u"agent.accessibilityTrusted"_s, true);
    QVERIFY(open());
    FIND(last, ATSPI_ROLE_PUSH_BUTTON, "Show Guide");
    const auto isAnonymous = [](const Accessible &element) {
        const AtspiRole role = element.role();
        return element.name().trimmed().isEmpty() || role == ATSPI_ROLE_INVALID || role == ATSPI_ROLE_UNKNOWN;
    };
    QStringList anonymous;
    const QList<Accessible> found = showing(isAnonymous);
    for (const Accessible &element : found)
        anonymous.append(element.dump());
    QVERIFY2(anonymous.isEmpty(), qPrintable(anonymous.join(u'\n')));
}

void TestAccessibility::everyShowingElementLiesInTheWindow()
{
    QVERIFY(open());
    FIND(last, ATSPI_ROLE_PUSH_BUTTON, "Show Guide");
    settle();
    const QRect frame = window()->geometry();
    const QList<Accessible> elements = showing([](const Accessible &) { return true; });
    QVERIFY(elements.size() > 10);
    for (const Accessible &element : elements) {
        const QRect box = element.extents();
        QVERIFY2(!box.isEmpty() && frame.contains(box), qPrintable(element.dump()));
    }
}

void TestAccessibility::everyControlCanBePressed()
{
    store().write(u"agent.launchAtLoginNeedsApproval"_s, true);
    QVERIFY(open());
    FIND(last, ATSPI_ROLE_PUSH_BUTTON, "Show Guide");
    const QList<Accessible> controls = showing([](const Accessible &element) {
        return element.has(ATSPI_STATE_FOCUSABLE) && !element.has(ATSPI_STATE_EDITABLE);
    });
    QVERIFY(controls.size() >= 8);
    for (const Accessible &control : controls)
        QVERIFY2(control.actions().count(u"Press"_s) == 1, qPrintable(control.dump()));
}

void TestAccessibility::noTwoControlsShareAName()
{
    store().write(u"agent.launchAtLoginNeedsApproval"_s, true);
    QVERIFY(open());
    FIND(last, ATSPI_ROLE_PUSH_BUTTON, "Show Guide");
    const QList<Accessible> controls =
        showing([](const Accessible &element) { return element.has(ATSPI_STATE_FOCUSABLE); });
    QStringList names;
    for (const Accessible &control : controls)
        names.append(control.name());
    QCOMPARE(QSet<QString>(names.begin(), names.end()).size(), names.size());
}

void TestAccessibility::theChromeSaysWhichButtonsWork()
{
    QVERIFY(open());
    FIND(close, ATSPI_ROLE_PUSH_BUTTON, "Close");
    FIND(minimize, ATSPI_ROLE_PUSH_BUTTON, "Minimize");
    FIND(zoom, ATSPI_ROLE_PUSH_BUTTON, "Zoom");
    for (const Accessible &works : {close, minimize}) {
        QVERIFY2(works.has(ATSPI_STATE_ENABLED) && works.has(ATSPI_STATE_SENSITIVE), qPrintable(works.dump()));
        QVERIFY2(works.has(ATSPI_STATE_FOCUSABLE), qPrintable(works.dump()));
    }
    QVERIFY2(!zoom.has(ATSPI_STATE_ENABLED) && !zoom.has(ATSPI_STATE_SENSITIVE), qPrintable(zoom.dump()));
    QVERIFY2(!zoom.has(ATSPI_STATE_FOCUSABLE), qPrintable(zoom.dump()));
    QCOMPARE(zoom.actions(), QStringList());
}

void TestAccessibility::switchesSayWhetherTheyAreOn()
{
    QVERIFY(open());
    FIND(login, ATSPI_ROLE_CHECK_BOX, "Start at login");
    FIND(icon, ATSPI_ROLE_CHECK_BOX, "Show in the menu bar");
    QVERIFY(!login.has(ATSPI_STATE_CHECKED));
    QVERIFY(icon.has(ATSPI_STATE_CHECKED));
    store().write(u"agent.launchAtLogin"_s, true);
    store().write(u"menuBarIconHidden"_s, true);
    QVERIFY(becomes(login, ATSPI_STATE_CHECKED));
    QVERIFY(becomes(icon, ATSPI_STATE_CHECKED, false));
}

void TestAccessibility::theSearchFieldIsNamedAndEditable()
{
    QVERIFY(open());
    FIND(search, ATSPI_ROLE_TEXT, "Search");
    QVERIFY(search.has(ATSPI_STATE_EDITABLE));
    QVERIFY(search.grabFocus());
    QVERIFY(becomes(search, ATSPI_STATE_FOCUSED));
    QTRY_VERIFY(window()->hasInputFocus());
    keyboard().type(u"login"_s);
    QTRY_COMPARE(search.text(), u"login"_s);
    FIND(clear, ATSPI_ROLE_PUSH_BUTTON, "Clear search");
    QVERIFY(clear.doAction(u"Press"_s));
    QTRY_COMPARE(search.text(), QString());
}

void TestAccessibility::aRowContainsItsControl()
{
    QVERIFY(open());
    FIND(login, ATSPI_ROLE_CHECK_BOX, "Start at login");
    QCOMPARE(login.parent().name(), u"Start at login"_s);
    FIND(button, ATSPI_ROLE_PUSH_BUTTON, "Open Settings");
    QCOMPARE(button.parent().name(), u"Accessibility"_s);
    FIND(guide, ATSPI_ROLE_PUSH_BUTTON, "Show Guide");
    QCOMPARE(guide.parent().name(), u"Welcome guide"_s);
}

void TestAccessibility::theHeadingNamesThePage()
{
    QVERIFY(open());
    FIND(heading, ATSPI_ROLE_HEADING, "General");
    QVERIFY(shows(u"Settings · 01"_s));
}

void TestAccessibility::whatIsNotShownIsNotShowing()
{
    QVERIFY(open());
    FIND(last, ATSPI_ROLE_PUSH_BUTTON, "Show Guide");
    for (const char *name : {"Open", "Allowed", "Login Items", "Clear search"}) {
        const QString hidden = QString::fromLatin1(name);
        QVERIFY2(showing([&](const Accessible &element) { return element.name() == hidden; }).isEmpty(), name);
    }
}

CORVANE_TEST(TestAccessibility, runInCore)
#include "e2e_accessibility.moc"
