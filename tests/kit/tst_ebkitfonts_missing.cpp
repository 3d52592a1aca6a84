#include "EBKitFonts.h"
#include "FakePlatform.h"
#include "TestProgram.h"

#include <QFontDatabase>
#include <QFontInfo>

namespace {

QStringList logged;

void record(QtMsgType, const QMessageLogContext &, const QString &text)
{
    logged.append(text);
}

}

/// The bundle lacks one of the two files.
class TestEBKitFontsMissing : public QObject {
    Q_OBJECT

private slots:
    void aMissingFaceIsOneLineAndKeepsItsNameForThePlatformToSubstitute();
};

void TestEBKitFontsMissing::aMissingFaceIsOneLineAndKeepsItsNameForThePlatformToSubstitute()
{
    FakePlatform &platform = FakePlatform::install();
    platform.main.resources.insert(
        QStringLiteral("InstrumentSans-SemiBold.ttf"),
        QUrl::fromLocalFile(QStringLiteral(CORVANE_FONTS_FOLDER "InstrumentSans-SemiBold.ttf")));
    const auto before = qInstallMessageHandler(record);
    EBKitFonts::registerFonts();
    // Again does nothing, and so says nothing.
    EBKitFonts::registerFonts();
    qInstallMessageHandler(before);
    QCOMPARE(logged, QStringList(QStringLiteral("Embera: font GeistMono-Medium.ttf is missing from the bundle")));
    QVERIFY(QFontDatabase::applicationFontFamilies(0).contains(QStringLiteral("Instrument Sans")));
    QVERIFY(QFontDatabase::applicationFontFamilies(1).isEmpty());

    const QFont font = EBKitFonts::face(EBKitFonts::mono);
    QCOMPARE(font.family(), QStringLiteral("GeistMono-Medium"));
    QVERIFY(!QFontInfo(font).family().isEmpty());
}

CORVANE_TEST(TestEBKitFontsMissing, runInGui)
#include "tst_ebkitfonts_missing.moc"
