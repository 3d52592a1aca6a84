#include "Language.h"
#include "TestProgram.h"

#include <QTranslator>

/// Which language a desktop's list means, and what the program then says.
class TestLanguage : public QObject {
    Q_OBJECT

private slots:
    void cleanup();
    void theFirstThatThereAreTextsInIsChosen_data();
    void theFirstThatThereAreTextsInIsChosen();
    void englishLoadsNothing();
    void anUnknownLanguageLoadsNothing();
    void textsAreInTheLanguageThatIsUsed();
    void aNumberHasItsPlural();
    void arabicIsWrittenFromTheRight();

private:
    static QString windows(int number)
    {
        return QCoreApplication::translate("LayoutPreview", "%n windows: %1", nullptr, number).arg("A");
    }
};

void TestLanguage::cleanup()
{
    qDeleteAll(qApp->findChildren<QTranslator *>());
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void TestLanguage::theFirstThatThereAreTextsInIsChosen_data()
{
    QTest::addColumn<QStringList>("wished");
    QTest::addColumn<QString>("code");
    QTest::newRow("with the country") << QStringList{"de-AT", "de"} << "de";
    QTest::newRow("without") << QStringList{"fr"} << "fr";
    QTest::newRow("with an underscore") << QStringList{"es_MX"} << "es";
    QTest::newRow("Japanese") << QStringList{"ja-JP"} << "ja";
    QTest::newRow("Arabic") << QStringList{"ar-EG"} << "ar";
    QTest::newRow("Simplified Chinese by its script") << QStringList{"zh-Hans-CN"} << "zh";
    QTest::newRow("Simplified Chinese by its country") << QStringList{"zh-CN"} << "zh";
    QTest::newRow("Traditional Chinese is another") << QStringList{"zh-TW", "zh-Hant"} << "";
    QTest::newRow("Traditional Chinese, then another") << QStringList{"zh-TW", "ja-JP"} << "ja";
    QTest::newRow("one that nobody has translated, then another") << QStringList{"cy-GB", "es-ES"} << "es";
    QTest::newRow("English") << QStringList{"en-GB", "de"} << "";
    QTest::newRow("English second") << QStringList{"cy-GB", "en-GB", "de"} << "";
    QTest::newRow("German before English") << QStringList{"de-DE", "en-US"} << "de";
    QTest::newRow("none") << QStringList{} << "";
    QTest::newRow("the C locale") << QStringList{"C"} << "";
    QTest::newRow("nonsense") << QStringList{"", "../de", "xx", ":", "languages/de.qm"} << "";
}

void TestLanguage::theFirstThatThereAreTextsInIsChosen()
{
    QFETCH(QStringList, wished);
    QFETCH(QString, code);
    QCOMPARE(Language::chosen(wished), code);
}

void TestLanguage::englishLoadsNothing()
{
    Language::use({});
    QCOMPARE(QCoreApplication::translate("BackButton", "Back"), "Back");
    QCOMPARE(windows(1), "1 windows: A");
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
    QVERIFY(qApp->findChildren<QTranslator *>().isEmpty());
}

void TestLanguage::anUnknownLanguageLoadsNothing()
{
    Language::use("cy");
    QVERIFY(qApp->findChildren<QTranslator *>().isEmpty());
}

void TestLanguage::textsAreInTheLanguageThatIsUsed()
{
    Language::use("de");
    QCOMPARE(QCoreApplication::translate("BackButton", "Back"), QStringLiteral("Zurück"));
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
}

void TestLanguage::aNumberHasItsPlural()
{
    Language::use("fr");
    QCOMPARE(windows(1), QStringLiteral("1 fenêtre\u00A0: A"));
    QCOMPARE(windows(2), QStringLiteral("2 fenêtres\u00A0: A"));
}

void TestLanguage::arabicIsWrittenFromTheRight()
{
    Language::use("ar");
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    QCOMPARE(windows(1), QStringLiteral("نافذة واحدة: A"));
    QCOMPARE(windows(2), QStringLiteral("نافذتان: A"));
    QCOMPARE(windows(3), QStringLiteral("3 نوافذ: A"));
    QCOMPARE(windows(11), QStringLiteral("11 نافذةً: A"));
    QCOMPARE(windows(100), QStringLiteral("100 نافذة: A"));
}

CORVANE_TEST(TestLanguage, runInGui)
#include "tst_language.moc"
