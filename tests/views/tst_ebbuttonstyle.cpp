#include "Colors.h"
#include "EBButtonStyle.h"
#include "FakePlatform.h"
#include "TestProgram.h"

using Variant = EBButtonStyle::Variant;
using Size = EBButtonStyle::Size;

class EBButtonStyleTest : public QObject {
    Q_OBJECT
private slots:
    void init() { m_platform = &FakePlatform::install(); }

    void geometryFollowsTheSize_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<qreal>("height");
        QTest::addColumn<qreal>("spacing");
        QTest::addColumn<qreal>("padding");
        QTest::addColumn<qreal>("paddingAfterArrow");
        QTest::addColumn<qreal>("badge");
        QTest::addColumn<qreal>("arrow");
        QTest::addColumn<int>("fontSize");
        QTest::newRow("md") << int(Size::md) << 40.0 << 10.0 << 20.0 << 5.0 << 30.0 << 15.0 << 15;
        QTest::newRow("sm") << int(Size::sm) << 32.0 << 8.0 << 15.0 << 4.0 << 24.0 << 13.0 << 13;
        QTest::newRow("xs") << int(Size::xs) << 24.0 << 8.0 << 11.0 << 5.0 << 30.0 << 15.0 << 12;
    }
    void geometryFollowsTheSize()
    {
        QFETCH(const int, size);
        QFETCH(const qreal, padding);
        const EBButtonStyle style{Variant::primary, Size(size), true};
        QTEST(style.geometry().height, "height");
        QTEST(style.geometry().spacing, "spacing");
        QCOMPARE(style.geometry().leadingPadding, padding);
        QTEST(style.geometry().trailingPadding, "paddingAfterArrow");
        QTEST(style.geometry().badgeDiameter, "badge");
        QTEST(style.geometry().arrowSize, "arrow");
        QTEST(style.font().pixelSize(), "fontSize");
        QCOMPARE(style.font().weight(), QFont::DemiBold);

        const EBButtonStyle bare{Variant::secondary, Size(size), false};
        QCOMPARE(bare.geometry().leadingPadding, padding);
        QCOMPARE(bare.geometry().trailingPadding, padding);
    }

    void plainIsPaddedEightInEverySize()
    {
        for (const Size size : {Size::md, Size::sm, Size::xs}) {
            QCOMPARE((EBButtonStyle{Variant::plain, size, false}.geometry().leadingPadding), 8.0);
            QCOMPARE((EBButtonStyle{Variant::plain, size, false}.geometry().trailingPadding), 8.0);
            QCOMPARE((EBButtonStyle{Variant::plain, size, true}.geometry().leadingPadding), 8.0);
        }
        QCOMPARE((EBButtonStyle{Variant::plain, Size::sm, true}.geometry().trailingPadding), 4.0);
    }

    void colorsFollowTheVariant()
    {
        const QColor ink = rgb(0x111214);
        const auto primary = EBButtonStyle{Variant::primary}.colors(EBApp::corvane, false);
        QVERIFY(isNear(primary.foreground, Qt::white));
        QVERIFY(isNear(primary.fill, ink));
        QCOMPARE(primary.border.alpha(), 0);
        QVERIFY(isNear(EBButtonStyle{Variant::primary}.colors(EBApp::corvane, true).fill, ink, 0.82));

        const auto secondary = EBButtonStyle{Variant::secondary}.colors(EBApp::corvane, false);
        QVERIFY(isNear(secondary.foreground, ink));
        QCOMPARE(secondary.fill.alpha(), 0);
        QVERIFY(isNear(secondary.border, ink, 0.22));
        const auto pressed = EBButtonStyle{Variant::secondary}.colors(EBApp::corvane, true);
        QVERIFY(isNear(pressed.fill, ink, 0.055));
        QVERIFY(isNear(pressed.border, ink, 0.22));

        const auto plain = EBButtonStyle{Variant::plain}.colors(EBApp::corvane, false);
        QVERIFY(isNear(plain.foreground, rgb(0x67686e)));
        QCOMPARE(plain.fill.alpha(), 0);
        QCOMPARE(plain.border.alpha(), 0);
        QVERIFY(isNear(EBButtonStyle{Variant::plain}.colors(EBApp::corvane, true).fill, ink, 0.055));
    }

    void theBadgeIsTheForegroundAtEighteenPercent()
    {
        for (const Variant variant : {Variant::primary, Variant::secondary, Variant::onLoud, Variant::plain}) {
            const auto colors = EBButtonStyle{variant}.colors(EBApp::corvane, false);
            QVERIFY(isNear(colors.badge, colors.foreground, 0.18));
        }
    }

    void onLoudInvertsTheProductsLoudColors()
    {
        const EBButtonStyle style{Variant::onLoud};
        QVERIFY(isNear(style.colors(EBApp::corvane, false).foreground, rgb(0x5a5cf2)));
        QVERIFY(isNear(style.colors(EBApp::corvane, false).fill, Qt::white));
        QVERIFY(isNear(style.colors(EBApp::corvane, true).fill, Qt::white, 0.85));
        QVERIFY(isNear(style.colors(EBApp::parcelo, false).foreground, rgb(0x0ea193)));
        QVERIFY(isNear(style.colors(EBApp::parcelo, false).fill, rgb(0x111214)));
        QVERIFY(isNear(style.colors(EBApp::quiller, false).foreground, rgb(0xff5a36)));
        QVERIFY(isNear(style.colors(EBApp::quiller, false).fill, rgb(0x111214)));
    }

    void colorsFollowTheAppearance()
    {
        m_platform->look.setName(AppearanceName::DarkAqua);
        const auto primary = EBButtonStyle{Variant::primary}.colors(EBApp::corvane, false);
        QVERIFY(isNear(primary.fill, rgb(0xf4f4f2)));
        QVERIFY(isNear(primary.foreground, rgb(0x111214)));
    }

private:
    static QColor rgb(QRgb value) { return QColor::fromRgb(value); }
    static bool isNear(const QColor &color, const QColor &expected, double alpha = 1)
    {
        return ::isNear(color, expected, 1) && qAbs(color.alphaF() - alpha) < 0.003;
    }

    FakePlatform *m_platform = nullptr;
};

CORVANE_TEST(EBButtonStyleTest, runInGui)

#include "tst_ebbuttonstyle.moc"
