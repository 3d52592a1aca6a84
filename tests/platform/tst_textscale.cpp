#include "PrivateSession.h"
#include "SettingsPortal.h"
#include "TestProgram.h"
#include "TextScale.h"

#include <QElapsedTimer>

using namespace Qt::StringLiterals;

class TextScaleTest : public QObject {
    Q_OBJECT
public:
    explicit TextScaleTest(PrivateSession &) { }

private slots:
    void thePortalTellsTheScale_data();
    void thePortalTellsTheScale();
    void withoutAPortalTextsHaveTheirUsualSize();
    void aPortalThatHangsIsNotWaitedFor();
};

void TextScaleTest::thePortalTellsTheScale_data()
{
    QTest::addColumn<QVariant>("answer");
    QTest::addColumn<double>("scale");
    QTest::newRow("larger") << wrapped(1.5) << 1.5;
    QTest::newRow("smaller") << wrapped(0.5) << 0.5;
    QTest::newRow("wrapped twice") << wrapped(wrapped(1.25)) << 1.25;
    QTest::newRow("the largest") << wrapped(3.0) << 3.0;
    QTest::newRow("too large") << wrapped(3.1) << 1.0;
    QTest::newRow("too small") << wrapped(0.4) << 1.0;
    QTest::newRow("no number at all") << wrapped(qQNaN()) << 1.0;
    QTest::newRow("a text") << wrapped(u"1.5"_s) << 1.0;
    QTest::newRow("an empty list") << wrapped(QStringList()) << 1.0;
    QTest::newRow("not wrapped") << QVariant(1.5) << 1.0;
    QTest::newRow("an error") << QVariant() << 1.0;
}

void TextScaleTest::thePortalTellsTheScale()
{
    QFETCH(QVariant, answer);
    const SettingsPortal portal(answer);
    QTEST(TextScale::read(), "scale");
    QTRY_COMPARE(portal.calls(), QStringList{u"Read"_s});
}

void TextScaleTest::withoutAPortalTextsHaveTheirUsualSize()
{
    QCOMPARE(TextScale::read(), 1.0);
}

void TextScaleTest::aPortalThatHangsIsNotWaitedFor()
{
    const SettingsPortal portal(wrapped(1.5), SettingsPortal::Manner::IsSlow);
    QElapsedTimer elapsed;
    elapsed.start();
    QCOMPARE(TextScale::read(), 1.0);
    QVERIFY2(elapsed.elapsed() < 2000, qPrintable(QString::number(elapsed.elapsed())));
}

CORVANE_TEST(TextScaleTest, runInPrivateSession)

#include "tst_textscale.moc"
