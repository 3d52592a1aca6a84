#include "SettingsPages.h"
#include "TestProgram.h"

#include <QFile>

class TestSettingsPages : public QObject {
    Q_OBJECT

private slots:
    void thereAreFourPagesInTheOrderOfTheSidebar();
    void everyPageHasAViewOfItsOwn();
};

void TestSettingsPages::thereAreFourPagesInTheOrderOfTheSidebar()
{
    QStringList ids;
    for (const EBSettingsPage &page : SettingsPages::make())
        ids.append(page.id);
    const QStringList expected = {"general", "buttons", "shortcuts", "layouts"};
    QCOMPARE(ids, expected);
}

void TestSettingsPages::everyPageHasAViewOfItsOwn()
{
    QSet<QUrl> views;
    for (const EBSettingsPage &page : SettingsPages::make()) {
        QVERIFY2(QFile::exists(u':' + page.content.path()), qPrintable(page.content.toString()));
        QVERIFY2(!views.contains(page.content), qPrintable(page.content.toString()));
        views.insert(page.content);
    }
}

CORVANE_TEST(TestSettingsPages, runInCore)
#include "tst_settingspages.moc"
