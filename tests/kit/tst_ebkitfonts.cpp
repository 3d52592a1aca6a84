#include "FakePlatform.h"
#include "Fonts.h"
#include "TestProgram.h"

#include <QFontDatabase>

/// The bundle has both files.
class TestEBKitFonts : public QObject {
    Q_OBJECT

private slots:
    void bothFacesAreRegisteredOnceAndInOrder();
};

void TestEBKitFonts::bothFacesAreRegisteredOnceAndInOrder()
{
    addFaces(FakePlatform::install().main);
    EBKitFonts::registerFonts();
    QVERIFY(QFontDatabase::applicationFontFamilies(0).contains(QStringLiteral("Instrument Sans")));
    QVERIFY(QFontDatabase::applicationFontFamilies(1).contains(QStringLiteral("Geist Mono")));
    QCOMPARE(EBKitFonts::face(EBKitFonts::display).family(), QStringLiteral("Instrument Sans"));
    QCOMPARE(EBKitFonts::face(EBKitFonts::mono).family(), QStringLiteral("Geist Mono"));

    EBKitFonts::registerFonts();
    QVERIFY(QFontDatabase::applicationFontFamilies(2).isEmpty());
    // Not even to log what a bundle without the files lacks.
    FakePlatform::install();
    EBKitFonts::registerFonts();
    QCOMPARE(EBKitFonts::face(EBKitFonts::mono).family(), QStringLiteral("Geist Mono"));
}

CORVANE_TEST(TestEBKitFonts, runInGui)
#include "tst_ebkitfonts.moc"
