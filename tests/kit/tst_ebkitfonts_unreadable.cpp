#include "EBKitFonts.h"
#include "FakePlatform.h"
#include "TestProgram.h"

#include <QFontDatabase>

/// One of the two files is there and holds no font.
class TestEBKitFontsUnreadable : public QObject {
    Q_OBJECT

private slots:
    void aFileThatIsNoFontIsPassedOverInSilence();
};

void TestEBKitFontsUnreadable::aFileThatIsNoFontIsPassedOverInSilence()
{
    FakePlatform &platform = FakePlatform::install();
    platform.main.resources = {{QStringLiteral("InstrumentSans-SemiBold.ttf"),
                                QUrl::fromLocalFile(QStringLiteral(CORVANE_FONTS_FOLDER "InstrumentSans-OFL.txt"))},
                               {QStringLiteral("GeistMono-Medium.ttf"),
                                QUrl::fromLocalFile(QStringLiteral(CORVANE_FONTS_FOLDER "GeistMono-Medium.ttf"))}};
    EBKitFonts::registerFonts();
    QCOMPARE(EBKitFonts::face(EBKitFonts::display).family(), QStringLiteral("InstrumentSans-SemiBold"));
    QCOMPARE(EBKitFonts::face(EBKitFonts::mono).family(), QStringLiteral("Geist Mono"));
}

CORVANE_TEST(TestEBKitFontsUnreadable, runInGui)
#include "tst_ebkitfonts_unreadable.moc"
