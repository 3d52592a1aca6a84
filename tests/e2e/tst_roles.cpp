#include "EndToEndTest.h"

using namespace Qt::StringLiterals;

/// What the arguments and the environment make of a start.
class TestRoles : public EndToEndTest {
    Q_OBJECT

private slots:
    void aRoleWithoutAWindowEndsAtOnce_data();
    void aRoleWithoutAWindowEndsAtOnce();
    void argumentsOfTheToolkitAreIgnored_data();
    void argumentsOfTheToolkitAreIgnored();
    void theTabVariableOpensThatPage_data();
    void theTabVariableOpensThatPage();
};

void TestRoles::aRoleWithoutAWindowEndsAtOnce_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("About") << QStringList{u"--about"_s};
    QTest::newRow("guide") << QStringList{u"--onboarding"_s};
    QTest::newRow("guide once more") << QStringList{u"--onboarding"_s, u"--replay"_s};
    QTest::newRow("both") << QStringList{u"--about"_s, u"--onboarding"_s};
}

void TestRoles::aRoleWithoutAWindowEndsAtOnce()
{
    QFETCH(QStringList, arguments);
    QVERIFY(!launch({.arguments = arguments}));
    QVERIFY(!program().isRunning());
    QCOMPARE(program().exitCode(), 0);
    QCOMPARE(store().readAll(), QVariantMap());
    QCOMPARE(commands().heard().size(), 0);
}

void TestRoles::argumentsOfTheToolkitAreIgnored_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("platform without a name") << QStringList{u"--platform"_s};
    QTest::newRow("platform that is none") << QStringList{u"-platform"_s, u"nonsense"_s};
    QTest::newRow("platform without a display") << QStringList{u"-platform"_s, u"offscreen"_s};
    QTest::newRow("display") << QStringList{u"-display"_s, u":nonsense"_s};
    QTest::newRow("reverse") << QStringList{u"-reverse"_s};
    QTest::newRow("geometry") << QStringList{u"-qwindowgeometry"_s, u"300x200+0+0"_s};
    QTest::newRow("title") << QStringList{u"-qwindowtitle"_s, u"Other"_s};
    QTest::newRow("icon") << QStringList{u"-qwindowicon"_s, u"/nonexistent.png"_s};
    QTest::newRow("name") << QStringList{u"-name"_s, u"other"_s};
}

void TestRoles::argumentsOfTheToolkitAreIgnored()
{
    QFETCH(QStringList, arguments);
    QVERIFY(open({.arguments = arguments}));
    QVERIFY(shows(u"Settings · 01"_s));
    QCOMPARE(window()->title(), u"Corvane Settings"_s);
    QCOMPARE(window()->windowClass(), u"com.vexmoor.corvane.settings"_s);
    QCOMPARE(window()->geometry().width(), 620);
    FIND(entry, ATSPI_ROLE_LIST_ITEM, "General");
    QCOMPARE(entry.extents().left(), window()->geometry().left() + 8 + 10);
}

void TestRoles::theTabVariableOpensThatPage_data()
{
    QTest::addColumn<QString>("tab");
    QTest::addColumn<QString>("kicker");
    QTest::addColumn<QString>("title");
    QTest::newRow("buttons") << u"buttons"_s << u"Settings · 02"_s << u"Buttons"_s;
    QTest::newRow("shortcuts") << u"shortcuts"_s << u"Settings · 03"_s << u"Shortcuts"_s;
    QTest::newRow("layouts") << u"layouts"_s << u"Settings · 04"_s << u"Layouts"_s;
}

void TestRoles::theTabVariableOpensThatPage()
{
    QFETCH(QString, tab);
    QFETCH(QString, kicker);
    QFETCH(QString, title);
    QVERIFY(open({.environment = {{u"CV_TAB"_s, tab}}}));
    QVERIFY(shows(kicker));
    QVERIFY(find(ATSPI_ROLE_HEADING, title));
    const Accessible entry = find(ATSPI_ROLE_LIST_ITEM, title);
    QVERIFY(entry);
    QVERIFY(entry.has(ATSPI_STATE_SELECTED));
}

QTEST_GUILESS_MAIN(TestRoles)
#include "tst_roles.moc"
