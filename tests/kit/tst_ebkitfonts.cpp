#include "EBKitFonts.h"
#include "FakePlatform.h"
#include "TestProgram.h"

#include <QFontDatabase>
#include <QRegularExpression>

/// The bundle has both files.
class TestEBKitFonts : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void bothFacesAreRegisteredInOrder();
    void registeringAgainDoesNothing();
};

void TestEBKitFonts::bothFacesAreRegisteredInOrder()
{
    FakePlatform &platform = FakePlatform::install();
    for (const char *file : {"InstrumentSans-SemiBold.ttf", "GeistMono-Medium.ttf"}) {
        platform.main.resources.insert(QString::fromLatin1(file),
                                       QUrl::fromLocalFile(QStringLiteral(CORVANE_FONTS_FOLDER) + QLatin1String(file)));
    }
    EBKitFonts::registerFonts();
    QVERIFY(QFontDatabase::applicationFontFamilies(0).contains(QStringLiteral("Instrument Sans")));
    QVERIFY(QFontDatabase::applicationFontFamilies(1).contains(QStringLiteral("Geist Mono")));
    QCOMPARE(EBKitFonts::face(EBKitFonts::display).family(), QStringLiteral("Instrument Sans"));
    QCOMPARE(EBKitFonts::face(EBKitFonts::mono).family(), QStringLiteral("Geist Mono"));
    QVERIFY(QFontDatabase::applicationFontFamilies(2).isEmpty());
}

void TestEBKitFonts::registeringAgainDoesNothing()
{
    EBKitFonts::registerFonts();
    QVERIFY(QFontDatabase::applicationFontFamilies(2).isEmpty());
    // Not even to log what a bundle without the files lacks.
    FakePlatform::install();
    EBKitFonts::registerFonts();
    QCOMPARE(EBKitFonts::face(EBKitFonts::mono).family(), QStringLiteral("Geist Mono"));
}

CORVANE_TEST(TestEBKitFonts, runInGui)
#include "tst_ebkitfonts.moc"
