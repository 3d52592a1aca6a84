#include "EBKitFonts.h"
#include "FakePlatform.h"

#include <QFontDatabase>
#include <QRegularExpression>
#include <QTest>

/// One of the two files is there and holds no font.
class TestEBKitFontsUnreadable : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void aFileThatIsNoFontIsPassedOverInSilence();
};

void TestEBKitFontsUnreadable::aFileThatIsNoFontIsPassedOverInSilence()
{
    FakePlatform &platform = FakePlatform::install();
    platform.main.resources = {{QStringLiteral("InstrumentSans-SemiBold.ttf"),
                                QUrl::fromLocalFile(QStringLiteral(FONTS_FOLDER "InstrumentSans-OFL.txt"))},
                               {QStringLiteral("GeistMono-Medium.ttf"),
                                QUrl::fromLocalFile(QStringLiteral(FONTS_FOLDER "GeistMono-Medium.ttf"))}};
    EBKitFonts::registerFonts();
    QCOMPARE(EBKitFonts::face(EBKitFonts::display).family(), QStringLiteral("InstrumentSans-SemiBold"));
    QCOMPARE(EBKitFonts::face(EBKitFonts::mono).family(), QStringLiteral("Geist Mono"));
}

QTEST_MAIN(TestEBKitFontsUnreadable)
#include "tst_ebkitfonts_unreadable.moc"
