#include "ServiceTest.h"

using Look = Implementation::Look;

/// What the desktop's appearance promises.
class AppearanceTest : public ServiceTest {
    Q_OBJECT
public:
    using ServiceTest::ServiceTest;

private slots:
    void withoutAChoiceItIsLightAndMoves();
    void aChoiceIsFollowed();
    void aChoiceThatChangesNothingIsNotAnnounced();

private:
    static Appearance &appearance() { return platform().appearance(); }
};

void AppearanceTest::withoutAChoiceItIsLightAndMoves()
{
    appearance().settle();
    QCOMPARE(appearance().bestMatch(), AppearanceName::Aqua);
    QVERIFY(!appearance().shouldReduceMotion());
}

void AppearanceTest::aChoiceIsFollowed()
{
    appearance().settle();
    int changes = 0;
    connect(&appearance(), &Appearance::changed, this, [&] { ++changes; });
    implementation().choose({.isDark = true});
    VERIFY_SOON(appearance().bestMatch() == AppearanceName::DarkAqua);
    implementation().choose({.isDark = true, .isHighContrast = true});
    VERIFY_SOON(appearance().bestMatch() == AppearanceName::AccessibilityHighContrastDarkAqua);
    implementation().choose({.isHighContrast = true, .reducesMotion = true});
    VERIFY_SOON(appearance().bestMatch() == AppearanceName::AccessibilityHighContrastAqua);
    VERIFY_SOON(appearance().shouldReduceMotion());
    implementation().choose({});
    VERIFY_SOON(appearance().bestMatch() == AppearanceName::Aqua && !appearance().shouldReduceMotion());
    QVERIFY(changes >= 4);
}

void AppearanceTest::aChoiceThatChangesNothingIsNotAnnounced()
{
    appearance().settle();
    implementation().choose({.isDark = true});
    VERIFY_SOON(appearance().bestMatch() == AppearanceName::DarkAqua);
    QSignalSpy changes(&appearance(), &Appearance::changed);
    implementation().choose({.isDark = true});
    implementation().choose({.isDark = true, .reducesMotion = true});
    VERIFY_SOON(appearance().shouldReduceMotion());
    QCOMPARE(changes.size(), 1);
}

CORVANE_TEST(AppearanceTest, runOnDesktop)

#include "tst_appearance.moc"
