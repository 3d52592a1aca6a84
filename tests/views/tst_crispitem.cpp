#include "CrispItem.h"
#include "FakePlatform.h"
#include "TestProgram.h"

#include <QPainter>
#include <QQuickWindow>

#include <algorithm>
#include <cmath>

/// Stripes one device pixel wide, black on the even ones: any stretching or smoothing turns some of them grey.
class Stripes : public CrispItem {
    Q_OBJECT
    Q_PROPERTY(qreal shade MEMBER m_shade NOTIFY changed)
public:
    int paintings = 0;

protected:
    void paint(QPainter *painter) override
    {
        ++paintings;
        painter->setRenderHint(QPainter::Antialiasing, false);
        const qreal pixel = 1 / painter->device()->devicePixelRatio();
        for (int column = 0; column * pixel < width(); ++column)
            painter->fillRect(QRectF(column * pixel, 0, pixel, height()), column % 2 ? Qt::white : Qt::black);
    }

private:
    qreal m_shade = 0;
};

/// A black item with a white mark in each corner of 20 points and a red line at its left.
class Marked : public CrispItem {
    Q_OBJECT
public:
    /// Whether nothing is said of rows and columns that are alike.
    bool isPlain = false;
    /// Of the picture that was painted last, in pixels.
    QSize painted;

protected:
    void paint(QPainter *painter) override
    {
        painted = {painter->device()->width(), painter->device()->height()};
        const QRectF bounds = pixelBounds();
        painter->fillRect(bounds, Qt::black);
        painter->fillRect(QRectF(0, 0, 1.5, bounds.height()), Qt::red);
        for (const qreal x : {3.0, bounds.width() - 19}) {
            for (const qreal y : {0.0, bounds.height() - 18})
                painter->fillRect(QRectF(x, y, 15, 18), Qt::white);
        }
    }
    qreal unevenEdge() const override { return isPlain ? CrispItem::unevenEdge() : 20; }
};

class CrispItemTest : public QObject {
    Q_OBJECT
private slots:
    void init()
    {
        m_platform = &FakePlatform::install();
        m_window = std::make_unique<QQuickWindow>();
        m_window->setColor(Qt::red);
        m_window->resize(100, 60);
        m_item = new Stripes;
        m_item->setParent(m_window.get());
        m_item->setParentItem(m_window->contentItem());
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void everyPixelIsTheOneThatWasPainted_data()
    {
        QTest::addColumn<QRectF>("geometry");
        QTest::newRow("even") << QRectF(4, 4, 24, 24);
        QTest::newRow("odd size") << QRectF(4, 4, 13, 13);
        QTest::newRow("odd place") << QRectF(5, 7, 24, 24);
        QTest::newRow("odd both") << QRectF(5, 7, 15, 11);
        QTest::newRow("fractional place") << QRectF(5.3, 7.7, 15, 11);
    }
    void everyPixelIsTheOneThatWasPainted()
    {
        QFETCH(const QRectF, geometry);
        m_item->setPosition(geometry.topLeft());
        m_item->setSize(geometry.size());
        const QImage image = m_window->grabWindow();
        const qreal scale = m_window->effectiveDevicePixelRatio();
        QCOMPARE(scale, qEnvironmentVariable("QT_SCALE_FACTOR").toDouble());
        const int y = int(geometry.center().y() * scale);
        int black = 0;
        int white = 0;
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y) & 0xffffff;
            const bool isStripe = pixel == 0 || pixel == 0xffffff;
            QVERIFY2(isStripe || pixel == 0xff0000, qPrintable(QString::number(pixel, 16)));
            if (pixel == 0) {
                QCOMPARE(black, white);
                ++black;
            } else if (pixel == 0xffffff) {
                ++white;
            }
        }
        QVERIFY(qAbs(black + white - geometry.width() * scale) < 1);
    }

    void whileItIsScaledItsPixelsAreBlended()
    {
        m_item->setPosition({10, 10});
        m_item->setSize({40, 40});
        m_item->setScale(0.5);
        m_item->setProperty("isScaled", true);
        const QImage image = m_window->grabWindow();
        const qreal scale = m_window->effectiveDevicePixelRatio();
        int grey = 0;
        for (int x = int(22 * scale); x < int(38 * scale); ++x) {
            const int level = qGray(image.pixel(x, int(30 * scale)));
            grey += level > 40 && level < 215 ? 1 : 0;
        }
        QVERIFY2(grey >= 0.9 * 16 * scale, qPrintable(QString::number(grey)));
    }

    void itIsPaintedAnewOnlyWhenSomethingChanges()
    {
        m_item->setSize({24, 24});
        m_window->grabWindow();
        const int before = m_item->paintings;
        m_item->setPosition({30, 20});
        m_item->setOpacity(0.5);
        m_window->grabWindow();
        QCOMPARE(m_item->paintings, before);
        m_item->setSize({25, 24});
        m_window->grabWindow();
        QCOMPARE(m_item->paintings, before + 1);
        m_item->update();
        m_window->grabWindow();
        QCOMPARE(m_item->paintings, before + 2);
        m_item->setProperty("shade", 0.5);
        m_window->grabWindow();
        QCOMPARE(m_item->paintings, before + 3);
        m_item->setProperty("shade", 0.5);
        m_window->grabWindow();
        QCOMPARE(m_item->paintings, before + 3);
        m_platform->look.setName(AppearanceName::DarkAqua);
        m_window->grabWindow();
        QCOMPARE(m_item->paintings, before + 4);
    }

    void rowsAndColumnsThatAreAlikeAreKeptOnce_data()
    {
        QTest::addColumn<QSizeF>("size");
        QTest::newRow("just large enough") << QSizeF(60, 60);
        QTest::newRow("fractional") << QSizeF(70.3, 151.3);
        QTest::newRow("high") << QSizeF(40, 400);
        QTest::newRow("wide") << QSizeF(80, 40);
    }
    void rowsAndColumnsThatAreAlikeAreKeptOnce()
    {
        QFETCH(const QSizeF, size);
        m_window->resize(100, 440);
        Marked item;
        item.setParentItem(m_window->contentItem());
        item.setPosition({10, 7});
        item.setSize(size);
        const QImage kept = m_window->grabWindow();
        const qreal scale = m_window->effectiveDevicePixelRatio();
        // Both ends, a pixel for rounding at each and the one that is kept for all.
        const qreal most = 2 * 20 * scale + 3;
        for (const auto &[points, pixels] :
             {std::pair(size.width(), item.painted.width()), std::pair(size.height(), item.painted.height())})
            QCOMPARE(qreal(pixels), points == 40 ? 40 * scale : most);
        item.isPlain = true;
        item.update();
        QCOMPARE(m_window->grabWindow(), kept);
        QVERIFY(item.painted.width() >= size.width() * scale && item.painted.height() >= size.height() * scale);
        item.isPlain = false;
        for (const QSizeF &other : {size + QSizeF(10, 10), size}) {
            item.setSize(other);
            item.update();
            QCOMPARE(m_window->grabWindow() == kept, other == size);
        }
    }

    void itIsPaintedOnlyWhileItIsVisible()
    {
        m_item->setSize({24, 24});
        m_item->setVisible(false);
        m_window->grabWindow();
        QCOMPARE(m_item->paintings, 0);
        m_item->setVisible(true);
        m_window->grabWindow();
        QCOMPARE(m_item->paintings, 1);
        QVERIFY(m_window->grabWindow().pixel(0, 12) == qRgb(0, 0, 0));
    }

    void withoutASizeNothingIsPainted()
    {
        m_item->setSize({0, 24});
        m_window->grabWindow();
        QCOMPARE(m_item->paintings, 0);
    }

private:
    FakePlatform *m_platform = nullptr;
    std::unique_ptr<QQuickWindow> m_window;
    Stripes *m_item = nullptr;
};

// Once for each scale, which holds for a whole process.
CORVANE_TEST(CrispItemTest, runInGui)

#include "tst_crispitem.moc"
