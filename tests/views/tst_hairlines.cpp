#include "EBKit.h"
#include "FakePlatform.h"
#include "TestProgram.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

/// How much darker than white the pixels of a column are, summed up.
static int darkness(const QImage &picture, int x, int top, int bottom)
{
    int sum = 0;
    for (int y = top; y < bottom; ++y)
        sum += 255 - qGray(picture.pixel(x, y));
    return sum;
}

class HairlinesTest : public QObject {
    Q_OBJECT
private slots:
    void aRuleIsAsStrongAsABorder()
    {
        FakePlatform::install();
        QQmlEngine engine;
        engine.addImportPath(QStringLiteral(":/"));
        QQmlComponent component(&engine);
        component.setData("import QtQuick\nimport Embera.Rows\n"
                          "EBGroup { width: 100; Item { width: 1; height: 40 } Item { width: 1; height: 40 } }",
                          {});
        const std::unique_ptr<QObject> group(component.create());
        QVERIFY2(group, qPrintable(component.errorString()));
        QQuickWindow window;
        window.setColor(Qt::white);
        window.resize(100, 100);
        qobject_cast<QQuickItem *>(group.get())->setParentItem(window.contentItem());
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        const QImage picture = window.grabWindow();
        const qreal scale = window.effectiveDevicePixelRatio();
        const auto between = [&](int top, int bottom) {
            return darkness(picture, int(50 * scale), int(top * scale), int(bottom * scale));
        };
        const int border = between(0, 4);
        const int rule = between(36, 46);
        QVERIFY(border > 0);
        QVERIFY2(std::abs(rule - border) <= 2, qPrintable(QStringLiteral("%1, %2").arg(rule).arg(border)));
    }
};

// Once for each scale, which holds for a whole process.
CORVANE_TEST(HairlinesTest, runInGui)

#include "tst_hairlines.moc"
