#include "SettingsPages.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

class TestSettingsPages : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(".*")); }
    void generalComesFirst();
    void everyPageHasAViewAndItsSearchWordsInLowerCase();
};

void TestSettingsPages::generalComesFirst()
{
    const EBSettingsPage general = SettingsPages::make().constFirst();
    QCOMPARE(general.id, "general");
    QCOMPARE(general.title, "General");
    QCOMPARE(general.glyph, GlyphName::gear);
    const QStringList keywords = {"login", "startup", "menu bar", "icon", "accessibility", "permission", "guide"};
    QCOMPARE(general.keywords, keywords);
}

void TestSettingsPages::everyPageHasAViewAndItsSearchWordsInLowerCase()
{
    QStringList ids;
    for (const EBSettingsPage &page : SettingsPages::make()) {
        QVERIFY2(QFile::exists(u':' + page.content.path()), qPrintable(page.content.toString()));
        for (const QString &keyword : page.keywords)
            QCOMPARE(keyword, keyword.toLower());
        QVERIFY(!ids.contains(page.id));
        ids.append(page.id);
    }
}

QTEST_GUILESS_MAIN(TestSettingsPages)
#include "tst_settingspages.moc"
