#include "ScreenView.h"
#include "TestProgram.h"

#include <QSignalSpy>

/// What the buttons of the About screen do.
class TestAboutActions : public QObject {
    Q_OBJECT

private slots:
    void theWebsiteOpensOnTheDesktop();
    void updatesAreTheCallersBusiness();
    void theKeyboardReachesBothButtons();

private:
    static QString about(bool offersUpdates)
    {
        return QStringLiteral("EBAboutScreen { app: 'corvane'; version: '1.4 (212)'; blurb: 'Blurb'; "
                              "website: 'https://example.com/page'; offersUpdates: %1 }")
            .arg(offersUpdates ? QStringLiteral("true") : QStringLiteral("false"));
    }
    static void click(ScreenView &view, int place)
    {
        const QQuickItem *button = view.typed("EBButton").at(place);
        QTest::mouseClick(&view.window(), Qt::LeftButton, {}, view.rectOf(button).center().toPoint());
    }
};

void TestAboutActions::theWebsiteOpensOnTheDesktop()
{
    ScreenView view(about(false), {460, 380});
    view.show();
    QCOMPARE(view.typed("EBButton").size(), 1);
    click(view, 0);
    QCOMPARE(view.platform.space.openedURLs, {QUrl(QStringLiteral("https://example.com/page"))});
}

void TestAboutActions::updatesAreTheCallersBusiness()
{
    ScreenView view(about(true), {460, 380});
    QSignalSpy checks(&view.root(), SIGNAL(checkForUpdates()));
    view.show();
    QCOMPARE(view.typed("EBButton").size(), 2);
    click(view, 0);
    QCOMPARE(checks.count(), 1);
    QCOMPARE(view.platform.space.openedURLs.size(), 0);
    click(view, 1);
    QCOMPARE(checks.count(), 1);
    QCOMPARE(view.platform.space.openedURLs.size(), 1);
}

void TestAboutActions::theKeyboardReachesBothButtons()
{
    ScreenView view(about(true), {460, 380});
    QSignalSpy checks(&view.root(), SIGNAL(checkForUpdates()));
    view.show();
    QTest::keyClick(&view.window(), Qt::Key_Tab);
    QTest::keyClick(&view.window(), Qt::Key_Return);
    QCOMPARE(checks.count(), 1);
    QTest::keyClick(&view.window(), Qt::Key_Space);
    QCOMPARE(checks.count(), 2);
    QTest::keyClick(&view.window(), Qt::Key_Tab);
    QTest::keyClick(&view.window(), Qt::Key_Enter);
    QCOMPARE(view.platform.space.openedURLs.size(), 1);
    QCOMPARE(checks.count(), 2);
}

CORVANE_TEST(TestAboutActions, runInGui)
#include "tst_aboutactions.moc"
