#include "TestProgram.h"
#include "ViewEngine.h"

#include <QQmlComponent>

#include <thread>

/// What the warm-up does for the views.
class QuickTypesTest : public QObject {
    Q_OBJECT
private slots:
    void theyAreRegisteredOnceAndAhead();
};

void QuickTypesTest::theyAreRegisteredOnceAndAhead()
{
    const auto item = [] { return qmlTypeId("QtQuick", 2, 15, "Item"); };
    QCOMPARE(item(), -1);
    std::thread(ViewEngine::warmUp).join();
    const int registered = item();
    QVERIFY(registered >= 0);
    ViewEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQuick; Item { Text { } }", QUrl());
    const std::unique_ptr<QObject> view(component.create());
    QVERIFY2(view, qPrintable(component.errorString()));
    QCOMPARE(item(), registered);
}

CORVANE_TEST(QuickTypesTest, runInGui)
#include "tst_quicktypes.moc"
