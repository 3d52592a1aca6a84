#include "PortalAppearance.h"
#include "PortalSettings.h"
#include "PrivateSession.h"
#include "SessionBus.h"
#include "SettingsPortal.h"
#include "TestProgram.h"

#include <QDBusConnectionInterface>
#include <QDir>
#include <QElapsedTimer>
#include <QPalette>
#include <QSignalSpy>

using namespace std::chrono_literals;

namespace {

/// Enough for a machine that is busy with other tests.
constexpr auto patience = 10s;

const QString shared = QStringLiteral("org.freedesktop.appearance");
const QString gnome = QStringLiteral("org.gnome.desktop.interface");
const QString gnomeAccessibility = QStringLiteral("org.gnome.desktop.a11y.interface");
const QString colorScheme = QStringLiteral("color-scheme");
const QString contrast = QStringLiteral("contrast");
const QString reducedMotion = QStringLiteral("reduced-motion");
const QString enableAnimations = QStringLiteral("enable-animations");
const QString highContrast = QStringLiteral("high-contrast");

QVariant groups(const QList<std::pair<QString, QVariantMap>> &list)
{
    return QVariant::fromValue(SettingsGroups{list});
}

QVariant only(const QString &group, const QString &key, const QVariant &value)
{
    return groups({{group, {{key, value}}}});
}

QVariant dark()
{
    return only(shared, colorScheme, 1U);
}

const auto aqua = AppearanceName::Aqua;
const auto darkAqua = AppearanceName::DarkAqua;
const auto contrastAqua = AppearanceName::AccessibilityHighContrastAqua;
const auto contrastDarkAqua = AppearanceName::AccessibilityHighContrastDarkAqua;

}

class PortalAppearanceTest : public QObject {
    Q_OBJECT
public:
    explicit PortalAppearanceTest(PrivateSession &session) : m_session(session) { }

private slots:
    void initTestCase();
    void init();

    void whatThePortalSaysIsKnownOnceSettled_data();
    void whatThePortalSaysIsKnownOnceSettled();
    void anAnswerThatMeansNothingCountsAsNone_data();
    void anAnswerThatMeansNothingCountsAsNone();
    void everythingIsAskedInOneQuestion();
    void whatThePortalSaysArrivesAsAChangeWithoutSettling();
    void aSlowPortalIsWaitedForBrieflyAndItsAnswerArrivesAsAChange();
    void settlingAgainWaitsForNothing();
    void aChangedSettingIsFollowed();
    void aChangeThatChangesNothingIsNotAnnounced();
    void nobodyButThePortalIsListenedTo();
    void nothingButTheSettingsThatAreUsedIsKept();
    void manyChangesAtOnceAreOne();
    void aPortalThatAppearsLaterIsAsked();
    void aPortalThatReturnsIsAskedAgain();
    void aPortalThatIsNotRunningIsStartedAndAskedOnlyWhenWoken();
    void aRunningPortalIsNotDisturbedByWaking();
    void withoutAPortalThePaletteDecidesAndIsFollowed();
    void aPortalsPreferenceOutranksThePalette();

private:
    PrivateSession &m_session;
};

// Until events are handled, Qt holds back what the bus tells but not what it answers.
void PortalAppearanceTest::initTestCase()
{
    QVERIFY(SessionBus::connection());
    QCoreApplication::processEvents();
}

void PortalAppearanceTest::init()
{
    QGuiApplication::setPalette(QPalette(Qt::white));
}

void PortalAppearanceTest::whatThePortalSaysIsKnownOnceSettled_data()
{
    QTest::addColumn<QVariant>("answer");
    QTest::addColumn<AppearanceName>("name");
    QTest::addColumn<bool>("reducesMotion");
    QTest::newRow("nothing") << groups({}) << aqua << false;
    QTest::newRow("no preference") << groups({{shared, {{colorScheme, 0U}, {contrast, 0U}, {reducedMotion, 0U}}}})
                                   << aqua << false;
    QTest::newRow("dark") << dark() << darkAqua << false;
    QTest::newRow("light") << only(shared, colorScheme, 2U) << aqua << false;
    QTest::newRow("unknown scheme") << only(shared, colorScheme, 3U) << aqua << false;
    QTest::newRow("high contrast") << only(shared, contrast, 1U) << contrastAqua << false;
    QTest::newRow("unknown contrast") << only(shared, contrast, 2U) << aqua << false;
    QTest::newRow("dark and high contrast")
        << groups({{shared, {{colorScheme, 1U}, {contrast, 1U}}}}) << contrastDarkAqua << false;
    QTest::newRow("reduced motion") << only(shared, reducedMotion, 1U) << aqua << true;
    QTest::newRow("unknown motion") << only(shared, reducedMotion, 2U) << aqua << false;
    QTest::newRow("GNOME without animations") << only(gnome, enableAnimations, false) << aqua << true;
    QTest::newRow("GNOME with animations") << only(gnome, enableAnimations, true) << aqua << false;
    QTest::newRow("GNOME in high contrast") << only(gnomeAccessibility, highContrast, true) << contrastAqua << false;
    QTest::newRow("GNOME in normal contrast") << only(gnomeAccessibility, highContrast, false) << aqua << false;
    QTest::newRow("the shared settings outrank GNOME's") << groups({{gnome, {{enableAnimations, false}}},
                                                                    {gnomeAccessibility, {{highContrast, true}}},
                                                                    {shared, {{contrast, 0U}, {reducedMotion, 0U}}}})
                                                         << aqua << false;
    QTest::newRow("the first of two groups counts")
        << groups({{shared, {{colorScheme, 1U}}}, {shared, {{colorScheme, 2U}, {contrast, 1U}}}}) << contrastDarkAqua
        << false;
    QTest::newRow("wrapped twice") << only(shared, colorScheme, wrapped(wrapped(1U))) << darkAqua << false;
    QTest::newRow("text for a number") << only(shared, colorScheme, QStringLiteral("prefer-dark")) << aqua << false;
    QTest::newRow("Boolean for a number") << only(shared, contrast, true) << aqua << false;
    QTest::newRow("signed number") << only(shared, reducedMotion, 1) << aqua << false;
    QTest::newRow("list for a number") << only(shared, colorScheme, QStringList{QStringLiteral("1")}) << aqua << false;
    QTest::newRow("map for a number") << only(shared, contrast, QVariantMap{{colorScheme, 1U}}) << aqua << false;
    QTest::newRow("number for a Boolean") << only(gnome, enableAnimations, 0U) << aqua << false;
}

void PortalAppearanceTest::whatThePortalSaysIsKnownOnceSettled()
{
    QFETCH(QVariant, answer);
    const SettingsPortal portal(answer);
    PortalAppearance appearance(patience);
    appearance.settle();
    QTEST(*appearance.bestMatch(), "name");
    QTEST(appearance.shouldReduceMotion(), "reducesMotion");
}

void PortalAppearanceTest::anAnswerThatMeansNothingCountsAsNone_data()
{
    QTest::addColumn<QVariant>("answer");
    QTest::newRow("error") << QVariant();
    QTest::newRow("text") << QVariant(QStringLiteral("dark"));
    QTest::newRow("map of another form") << QVariant(QVariantMap{{shared, 1U}});
}

void PortalAppearanceTest::anAnswerThatMeansNothingCountsAsNone()
{
    QFETCH(QVariant, answer);
    SettingsPortal portal(answer);
    PortalAppearance appearance(patience);
    QSignalSpy spy(&appearance, &Appearance::changed);
    appearance.settle();
    QCOMPARE(appearance.bestMatch(), aqua);
    portal.change(shared, colorScheme, 1U);
    QTRY_COMPARE(appearance.bestMatch(), darkAqua);
    QCOMPARE(spy.size(), 1);
}

// The calls for one value differ between the versions of the portal, the call for all of them does not.
void PortalAppearanceTest::everythingIsAskedInOneQuestion()
{
    const SettingsPortal portal(dark());
    PortalAppearance appearance(patience);
    appearance.settle();
    QCOMPARE(portal.calls(), QStringList(QStringLiteral("ReadAll")));
}

void PortalAppearanceTest::whatThePortalSaysArrivesAsAChangeWithoutSettling()
{
    const SettingsPortal portal(dark());
    PortalAppearance appearance(patience);
    QSignalSpy spy(&appearance, &Appearance::changed);
    QCOMPARE(appearance.bestMatch(), aqua);
    QTRY_COMPARE(appearance.bestMatch(), darkAqua);
    QCOMPARE(spy.size(), 1);
}

// The limit is 50 ms; the rest is left to a machine that is busy with other tests.
void PortalAppearanceTest::aSlowPortalIsWaitedForBrieflyAndItsAnswerArrivesAsAChange()
{
    SettingsPortal portal(dark(), SettingsPortal::Manner::IsSlow);
    QElapsedTimer timer;
    timer.start();
    PortalAppearance appearance;
    appearance.settle();
    QVERIFY2(timer.elapsed() < 500, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(appearance.bestMatch(), aqua);
    QTRY_COMPARE(portal.calls().size(), 2);
    QSignalSpy spy(&appearance, &Appearance::changed);
    portal.answerNow();
    QTRY_COMPARE(appearance.bestMatch(), darkAqua);
    QCOMPARE(spy.size(), 1);
}

void PortalAppearanceTest::settlingAgainWaitsForNothing()
{
    const SettingsPortal portal(dark(), SettingsPortal::Manner::IsSlow);
    PortalAppearance appearance;
    appearance.settle();
    QElapsedTimer timer;
    timer.start();
    appearance.settle();
    QVERIFY2(timer.elapsed() < 500, qPrintable(QString::number(timer.elapsed())));
}

void PortalAppearanceTest::aChangedSettingIsFollowed()
{
    SettingsPortal portal(groups({}));
    PortalAppearance appearance(patience);
    appearance.settle();
    portal.change(shared, colorScheme, 1U);
    QTRY_COMPARE(appearance.bestMatch(), darkAqua);
    portal.change(shared, contrast, 1U);
    QTRY_COMPARE(appearance.bestMatch(), contrastDarkAqua);
    portal.change(shared, colorScheme, 2U);
    QTRY_COMPARE(appearance.bestMatch(), contrastAqua);
    portal.change(shared, contrast, 0U);
    QTRY_COMPARE(appearance.bestMatch(), aqua);
    portal.change(gnome, enableAnimations, false);
    QTRY_VERIFY(appearance.shouldReduceMotion());
    portal.change(shared, reducedMotion, 0U);
    QTRY_VERIFY(!appearance.shouldReduceMotion());
}

void PortalAppearanceTest::aChangeThatChangesNothingIsNotAnnounced()
{
    SettingsPortal portal(dark());
    PortalAppearance appearance(patience);
    appearance.settle();
    QSignalSpy spy(&appearance, &Appearance::changed);
    portal.change(shared, colorScheme, 1U);
    portal.change(shared, QStringLiteral("accent-color"), 7U);
    portal.change(QStringLiteral("org.example"), contrast, 1U);
    portal.change(shared, reducedMotion, 1U);
    QTRY_VERIFY(appearance.shouldReduceMotion());
    QCOMPARE(spy.size(), 1);
}

void PortalAppearanceTest::nobodyButThePortalIsListenedTo()
{
    SettingsPortal portal(groups({}));
    PortalAppearance appearance(patience);
    appearance.settle();
    QSignalSpy spy(&appearance, &Appearance::changed);
    // Somebody else claims to be the portal, and then the bus.
    QDBusMessage change =
        QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/portal/desktop"),
                                   QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("SettingChanged"));
    change << shared << colorScheme << QVariant::fromValue(QDBusVariant(1U));
    QDBusMessage owner =
        QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus"),
                                   QStringLiteral("NameOwnerChanged"));
    const QDBusConnection other = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("other"));
    const auto disconnected = qScopeGuard([] { QDBusConnection::disconnectFromBus(QStringLiteral("other")); });
    owner << QStringLiteral("org.freedesktop.portal.Desktop") << QString() << other.baseService();
    QVERIFY(other.send(change) && other.send(owner) && other.send(change));
    // By then the bus has passed them on.
    other.interface()->registeredServiceNames();
    portal.change(shared, contrast, 1U);
    QTRY_COMPARE(appearance.bestMatch(), contrastAqua);
    QCOMPARE(spy.size(), 1);
}

void PortalAppearanceTest::nothingButTheSettingsThatAreUsedIsKept()
{
    const auto large = std::make_shared<int>();
    PortalSettings settings;
    QVERIFY(!settings.take(QStringLiteral("org.example"), colorScheme, QVariant::fromValue(large)));
    QCOMPARE(settings.count(), 0);
    QVERIFY(settings.take(shared, colorScheme, QVariant::fromValue(large)));
    QCOMPARE(large.use_count(), 1);
}

void PortalAppearanceTest::manyChangesAtOnceAreOne()
{
    SettingsPortal portal(groups({}));
    PortalAppearance appearance(patience);
    appearance.settle();
    QSignalSpy spy(&appearance, &Appearance::changed);
    for (uint i = 0; i < 401; ++i)
        portal.change(shared, colorScheme, 1 + i % 2);
    QTRY_COMPARE(appearance.bestMatch(), darkAqua);
    QVERIFY2(spy.size() < 40, qPrintable(QString::number(spy.size())));
}

void PortalAppearanceTest::aPortalThatAppearsLaterIsAsked()
{
    PortalAppearance appearance(patience);
    appearance.settle();
    QCOMPARE(appearance.bestMatch(), aqua);
    const SettingsPortal portal(dark());
    QTRY_COMPARE(appearance.bestMatch(), darkAqua);
}

void PortalAppearanceTest::aPortalThatReturnsIsAskedAgain()
{
    auto portal = std::make_unique<SettingsPortal>(dark());
    PortalAppearance appearance(patience);
    appearance.settle();
    QCOMPARE(appearance.bestMatch(), darkAqua);
    portal.reset();
    portal = std::make_unique<SettingsPortal>(only(shared, contrast, 1U));
    QTRY_COMPARE(appearance.bestMatch(), contrastAqua);
}

// main() has made one that the bus could start.
void PortalAppearanceTest::aPortalThatIsNotRunningIsStartedAndAskedOnlyWhenWoken()
{
    const QString started = m_session.runtimeFolder() + QStringLiteral("/started");
    PortalAppearance appearance(patience);
    appearance.settle();
    QVERIFY(!QFile::exists(started));
    appearance.wake();
    QTRY_VERIFY(QFile::exists(started));
    QVERIFY(QFile::remove(started));
    const SettingsPortal portal(dark());
    QTRY_COMPARE(appearance.bestMatch(), darkAqua);
    QCOMPARE(portal.calls(), QStringList{QStringLiteral("ReadAll")});
}

void PortalAppearanceTest::aRunningPortalIsNotDisturbedByWaking()
{
    const SettingsPortal portal(dark());
    PortalAppearance appearance(patience);
    appearance.settle();
    appearance.wake();
    // The bus answers in order.
    QDBusConnection::sessionBus().interface()->registeredServiceNames();
    QCOMPARE(portal.calls(), QStringList{QStringLiteral("ReadAll")});
    QVERIFY(!QFile::exists(m_session.runtimeFolder() + QStringLiteral("/started")));
}

void PortalAppearanceTest::withoutAPortalThePaletteDecidesAndIsFollowed()
{
    PortalAppearance appearance(patience);
    appearance.settle();
    QSignalSpy spy(&appearance, &Appearance::changed);
    QCOMPARE(appearance.bestMatch(), aqua);
    QGuiApplication::setPalette(QPalette(Qt::black));
    QTRY_COMPARE(appearance.bestMatch(), darkAqua);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(PortalAppearance().bestMatch(), darkAqua);
}

void PortalAppearanceTest::aPortalsPreferenceOutranksThePalette()
{
    QGuiApplication::setPalette(QPalette(Qt::black));
    SettingsPortal portal(only(shared, colorScheme, 2U));
    PortalAppearance appearance(patience);
    appearance.settle();
    QCOMPARE(appearance.bestMatch(), aqua);
    portal.change(shared, colorScheme, 0U);
    QTRY_COMPARE(appearance.bestMatch(), darkAqua);
}

static int runPortalAppearance(int argc, char **argv)
{
    PrivateSession session;
    const QString services = session.dataFolder() + QStringLiteral("/dbus-1/services/");
    const QString portal = QStringLiteral("org.freedesktop.portal.Desktop");
    QDir().mkpath(services);
    QFile file(services + portal + QStringLiteral(".service"));
    const QString content = QStringLiteral("[D-BUS Service]\nName=%1\nExec=/usr/bin/touch %2/started\n")
                                .arg(portal, session.runtimeFolder());
    if (!file.open(QFile::WriteOnly) || !file.write(content.toUtf8()))
        return 1;
    file.close();
    if (!session.start({portal}))
        return 1;
    const QGuiApplication application(argc, argv);
    return runTest<PortalAppearanceTest>(argc, argv, session);
}

CORVANE_TEST_MAIN(runPortalAppearance)

#include "tst_portalappearance.moc"
