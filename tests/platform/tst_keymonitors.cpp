#include "ServiceTest.h"

using Monitor = std::unique_ptr<KeyMonitor>;

/// What key monitors promise.
class KeyMonitorsTest : public ServiceTest {
    Q_OBJECT
public:
    using ServiceTest::ServiceTest;

private slots:
    void init()
    {
        ServiceTest::init();
        m_asked.clear();
    }

    void aKeyIsHeardOnceAsWhatItIs_data();
    void aKeyIsHeardOnceAsWhatItIs();
    void aKeyThatIsNotSwallowedGoesOn();
    void theNewestMonitorIsAskedFirst();
    void anEndedMonitorHearsNothing();
    void aMonitorThatEndsItselfStillSwallows();
    void aMonitorMayEndAnother();
    void aMonitorMadeMeanwhileDoesNotHearTheKey();
    void aMonitorMayOutliveItsPlatform();

private:
    static Monitor monitor(KeyMonitor::Handler handler) { return platform().monitorKeyDown(std::move(handler)); }

    /// A monitor that notes that it was asked, and swallows one key.
    Monitor ask(const QString &name, std::int64_t swallowed)
    {
        return monitor([this, name, swallowed](const KeyDown &key) {
            m_asked.append(name);
            return key.keyCode == swallowed;
        });
    }

    QStringList m_asked;
};

void KeyMonitorsTest::aKeyIsHeardOnceAsWhatItIs_data()
{
    QTest::addColumn<KeyDown>("key");
    QTest::newRow("w") << KeyDown{KeyCodes::w, 0, false};
    QTest::newRow("escape, repeated") << KeyDown{KeyCodes::escape, 0, true};
    QTest::newRow("command and m") << KeyDown{KeyCodes::m, KeyFlags::commandFlag, false};
    QTest::newRow("option, command and h") << KeyDown{KeyCodes::h, KeyFlags::optionFlag | KeyFlags::commandFlag, false};
    QTest::newRow("shift, control and f") << KeyDown{KeyCodes::f, KeyFlags::shiftFlag | KeyFlags::controlFlag, false};
    QTest::newRow("another key") << KeyDown{KeyCodes::none, KeyFlags::commandFlag, false};
}

void KeyMonitorsTest::aKeyIsHeardOnceAsWhatItIs()
{
    QFETCH(const KeyDown, key);
    constexpr std::uint64_t modifiers =
        KeyFlags::shiftFlag | KeyFlags::controlFlag | KeyFlags::optionFlag | KeyFlags::commandFlag;
    QList<KeyDown> heard;
    const Monitor held = monitor([&](const KeyDown &down) {
        heard.append(down);
        return true;
    });
    QVERIFY(implementation().press(key));
    QCOMPARE(heard.size(), 1);
    QCOMPARE(heard.constFirst().keyCode, key.keyCode);
    QCOMPARE(heard.constFirst().flags & modifiers, key.flags);
    QCOMPARE(heard.constFirst().isARepeat, key.isARepeat);
}

void KeyMonitorsTest::aKeyThatIsNotSwallowedGoesOn()
{
    QVERIFY(!implementation().press({KeyCodes::w}));
    const Monitor held = ask("held", KeyCodes::m);
    QVERIFY(!implementation().press({KeyCodes::w}));
    QVERIFY(implementation().press({KeyCodes::m}));
    QCOMPARE(m_asked, QStringList({"held", "held"}));
}

void KeyMonitorsTest::theNewestMonitorIsAskedFirst()
{
    const Monitor first = ask("first", KeyCodes::f);
    const Monitor second = ask("second", KeyCodes::w);
    const Monitor third = ask("third", KeyCodes::m);
    QVERIFY(implementation().press({KeyCodes::w}));
    QCOMPARE(m_asked, QStringList({"third", "second"}));
    m_asked.clear();
    QVERIFY(implementation().press({KeyCodes::m}));
    QCOMPARE(m_asked, QStringList("third"));
    m_asked.clear();
    QVERIFY(!implementation().press({KeyCodes::h}));
    QCOMPARE(m_asked, QStringList({"third", "second", "first"}));
}

void KeyMonitorsTest::anEndedMonitorHearsNothing()
{
    Monitor held = ask("held", KeyCodes::w);
    held.reset();
    QVERIFY(!implementation().press({KeyCodes::w}));
    QCOMPARE(m_asked, QStringList());
}

void KeyMonitorsTest::aMonitorThatEndsItselfStillSwallows()
{
    Monitor held;
    const QString kept = "kept alive";
    QString after;
    held = monitor([&held, &after, kept](const KeyDown &) {
        held.reset();
        after = kept;
        return true;
    });
    QVERIFY(implementation().press({KeyCodes::w}));
    QCOMPARE(after, kept);
    QVERIFY(!implementation().press({KeyCodes::w}));
}

void KeyMonitorsTest::aMonitorMayEndAnother()
{
    Monitor older = ask("older", KeyCodes::w);
    const Monitor newer = monitor([&](const KeyDown &) {
        older.reset();
        return false;
    });
    QVERIFY(!implementation().press({KeyCodes::w}));
    QCOMPARE(m_asked, QStringList());
}

void KeyMonitorsTest::aMonitorMadeMeanwhileDoesNotHearTheKey()
{
    Monitor later;
    const Monitor held = monitor([&](const KeyDown &) {
        if (!later)
            later = ask("later", KeyCodes::none);
        return false;
    });
    implementation().press({KeyCodes::w});
    QCOMPARE(m_asked, QStringList());
    implementation().press({KeyCodes::w});
    QCOMPARE(m_asked, QStringList("later"));
}

void KeyMonitorsTest::aMonitorMayOutliveItsPlatform()
{
    Monitor held = ask("held", KeyCodes::w);
    cleanup();
    held.reset();
    QCOMPARE(m_asked, QStringList());
}

CORVANE_TEST(KeyMonitorsTest, runOnDesktop)

#include "tst_keymonitors.moc"
