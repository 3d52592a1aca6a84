#include "EBKitView.h"
#include "FakePlatform.h"
#include "KitEnvironment.h"
#include "KitMetrics.h"
#include "Picture.h"
#include "TestProgram.h"

namespace {

/// A view that counts and records what it is asked.
class Sample : public EBKitView {
public:
    using EBKitView::EBKitView;

    int drawings = 0;
    int layouts = 0;
    int appearances = 0;
    QRectF logical;

    QRectF leading() const { return placed(QRectF(8, 2, 10, 10)); }

protected:
    void draw(QPainter &painter) override
    {
        ++drawings;
        painter.fillRect(QRectF(2, 3, 4, 5), EBKit::ink().current());
        painter.fillRect(QRectF(4, 3, 4, 5), EBKit::ink().current());
    }
    void placeContent() override { ++layouts; }
    void viewDidChangeEffectiveAppearance() override
    {
        ++appearances;
        EBKitView::viewDidChangeEffectiveAppearance();
    }
};

}

class TestEBKitView : public QObject {
    Q_OBJECT

private slots:
    void init() { m_platform.look.setName(AppearanceName::Aqua); }

    void itsOriginIsTheTopLeftCorner()
    {
        Sample view;
        view.resize(20, 20);
        QVERIFY(view.isFlipped());
        const Picture picture(view, Qt::white);
        QCOMPARE(picture.inked(QRectF(0, 0, 20, 20), Qt::white), QRectF(2, 3, 6, 5));
    }

    void aNewAppearanceDrawsItAnewInItsColours()
    {
        Sample view;
        view.resize(20, 20);
        view.show();
        QTRY_VERIFY(view.drawings > 0);
        COMPARE_COLOR(Picture(view).at(3, 4), EBKit::ink().resolved(AppearanceName::Aqua));
        const int before = std::exchange(view.drawings, 0);
        QVERIFY(before > 0);
        m_platform.look.setName(AppearanceName::DarkAqua);
        QCOMPARE(view.appearances, 1);
        QTRY_VERIFY(view.drawings > 0);
        COMPARE_COLOR(Picture(view).at(3, 4), EBKit::ink().resolved(AppearanceName::DarkAqua));
    }

    void aNewPaletteOfTheDesktopDrawsItAnewToo()
    {
        Sample view;
        view.resize(20, 20);
        view.show();
        QTRY_VERIFY(view.drawings > 0);
        view.drawings = 0;
        view.appearances = 0;
        QPalette palette = view.palette();
        palette.setColor(QPalette::Window, Qt::black);
        view.setPalette(palette);
        QCOMPARE(view.appearances, 1);
        QTRY_VERIFY(view.drawings > 0);
    }

    void itLaysItsContentOutForEverySizeAndDirection()
    {
        Sample view;
        view.show();
        view.layouts = 0;
        view.resize(40, 30);
        QCOMPARE(view.layouts, 1);
        QCOMPARE(view.leading(), QRectF(8, 2, 10, 10));
        view.setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(view.layouts, 2);
        QCOMPARE(view.leading(), QRectF(40 - 8 - 10, 2, 10, 10));
    }

    void aDisabledViewFadesAsOnePicture()
    {
        Sample view;
        view.resize(20, 20);
        view.setEnabled(false);
        const Picture picture(view, Qt::white);
        QColor faded = EBKit::ink().current();
        faded.setAlphaF(0.4F);
        COMPARE_COLOR(picture.at(3, 4), over(faded, Qt::white));
        // Where two parts overlap there is no more of them.
        COMPARE_COLOR(picture.at(5, 4), over(faded, Qt::white));
        QCOMPARE(KitMetric::disabledOpacity, 0.4);
    }

    void theProductIsHandedDown()
    {
        EBKitView outer;
        EBKitView middle(&outer);
        EBKitView inner(&middle);
        QCOMPARE(KitEnvironment::ebApp(inner), EBApp::quiller);
        KitEnvironment::setEbApp(outer, EBApp::parcelo);
        QCOMPARE(KitEnvironment::ebApp(inner), EBApp::parcelo);
        KitEnvironment::setEbApp(middle, EBApp::corvane);
        QCOMPARE(KitEnvironment::ebApp(inner), EBApp::corvane);
        QCOMPARE(KitEnvironment::ebApp(outer), EBApp::parcelo);
    }

private:
    FakePlatform &m_platform = FakePlatform::install();
};

CORVANE_TEST(TestEBKitView, runInWidgets)
#include "tst_ebkitview.moc"
