#include "FakePlatform.h"
#include "GalleryLook.h"
#include "GalleryPlatform.h"
#include "GoldenPicture.h"
#include "PictureFile.h"
#include "PictureScreen.h"
#include "ScenePicture.h"
#include "SceneTable.h"
#include "TestProgram.h"
#include "ViewEngine.h"

#include <QApplication>
#include <QDir>

namespace {

const QString pictures = QStringLiteral(PICTURES_FOLDER);
const QString failures = QStringLiteral(FAILURES_FOLDER);

/// The scale of this run; all pictures of a process have the same.
qreal currentScale()
{
    const qreal scale = qEnvironmentVariable("GOLDEN_SCALE").toDouble();
    return scale > 0 ? scale : 1;
}

QList<qreal> scalesOf(const SceneEntry &scene)
{
    if (scene.kind == SceneKind::controls)
        return {1, 1.5, 2};
    return {1, 2};
}

QString nameOf(const SceneEntry &scene, bool dark, qreal scale)
{
    return QStringLiteral("%1-%2-%3")
        .arg(scene.name, dark ? QStringLiteral("dark") : QStringLiteral("light"))
        .arg(scale);
}

QString fileOf(const QString &name)
{
    return pictures + name + QStringLiteral(".png");
}

QImage plain(QRgb color)
{
    QImage picture(100, 100, QImage::Format_RGB32);
    picture.fill(color);
    return picture;
}

}

/// With UPDATE_GOLDEN=1 in its environment it stores the pictures as they are drawn now instead of comparing them.
class TestGolden : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void everySceneLooksAsItsPicture_data();
    void everySceneLooksAsItsPicture();
    void everyPictureBelongsToAScene();

    void anotherSizeIsADifference();
    void onePixelThatIsFarOffIsADifference();
    void manyPixelsThatAreALittleOffAreADifference();
    void aFewPixelsThatAreALittleOffAreNone();
    void aPictureWithFewColorsIsCloseToItsOriginal();

private:
    void update(const QString &name, const QImage &picture);
    void compare(const QString &name, const QImage &picture);

    const bool m_updating = qEnvironmentVariable("UPDATE_GOLDEN") == QLatin1String("1");
    FakePlatform &m_platform = installGalleryPlatform(QStringLiteral(CORVANE_FONTS_FOLDER));
    GalleryLook m_look{m_platform.look};
    ViewEngine m_engine;
    ScenePicture m_picture{m_engine, m_platform, m_look};
};

void TestGolden::initTestCase()
{
    QCOMPARE(qGuiApp->devicePixelRatio(), currentScale());
    QDir folder(failures);
    const QString ofThisScale = QStringLiteral("*-%1-*.png").arg(currentScale());
    for (const QString &file : folder.entryList({ofThisScale}, QDir::Files))
        folder.remove(file);
}

void TestGolden::everySceneLooksAsItsPicture_data()
{
    QTest::addColumn<QString>("scene");
    QTest::addColumn<bool>("dark");

    for (const SceneEntry &scene : SceneTable::all()) {
        for (const bool dark : {false, true}) {
            if (scalesOf(scene).contains(currentScale()))
                QTest::newRow(qPrintable(nameOf(scene, dark, currentScale()))) << scene.name << dark;
        }
    }
}

void TestGolden::everySceneLooksAsItsPicture()
{
    QFETCH(QString, scene);
    QFETCH(bool, dark);

    m_look.setDark(dark);
    const SceneEntry &entry = *SceneTable::find(scene);
    const QImage picture = m_picture.draw(entry);
    const QString name = nameOf(entry, dark, currentScale());
    m_updating ? update(name, picture) : compare(name, picture);
}

void TestGolden::update(const QString &name, const QImage &picture)
{
    const QImage stored(fileOf(name));
    if (!stored.isNull() && GoldenPicture::compare(stored, picture).isMatch)
        return;
    QVERIFY(PictureFile::write(picture, fileOf(name), GoldenPicture::sameness));
}

void TestGolden::compare(const QString &name, const QImage &picture)
{
    const QImage stored(fileOf(name));
    const auto result = GoldenPicture::compare(stored, picture);
    if (result.isMatch)
        return;
    QVERIFY(QDir().mkpath(failures));
    const QString start = failures + name;
    PictureFile::write(picture, start + QStringLiteral("-actual.png"));
    PictureFile::write(result.difference, start + QStringLiteral("-diff.png"));
    const QString fault = stored.isNull() ? QStringLiteral("there is no such picture") : result.verdict;
    QFAIL(qPrintable(QStringLiteral("%1: %2; see %3-*.png").arg(fileOf(name), fault, start)));
}

void TestGolden::everyPictureBelongsToAScene()
{
    QStringList strays = QDir(pictures).entryList(QDir::Files);
    for (const SceneEntry &scene : SceneTable::all()) {
        for (const qreal scale : scalesOf(scene)) {
            for (const bool dark : {false, true})
                strays.removeOne(nameOf(scene, dark, scale) + QStringLiteral(".png"));
        }
    }
    if (m_updating) {
        for (const QString &file : std::exchange(strays, {}))
            QFile::remove(pictures + file);
    }
    QCOMPARE(strays, QStringList());
}

void TestGolden::anotherSizeIsADifference()
{
    QVERIFY(!GoldenPicture::compare(plain(Qt::white), plain(Qt::white).copy(0, 0, 100, 99)).isMatch);
    QVERIFY(!GoldenPicture::compare(QImage(), plain(Qt::white)).isMatch);
}

void TestGolden::onePixelThatIsFarOffIsADifference()
{
    QImage actual = plain(qRgb(100, 100, 100));
    actual.setPixel(7, 7, qRgb(100, 125, 100));
    QVERIFY(!GoldenPicture::compare(plain(qRgb(100, 100, 100)), actual).isMatch);
    actual.setPixel(7, 7, qRgb(100, 124, 100));
    QVERIFY(GoldenPicture::compare(plain(qRgb(100, 100, 100)), actual).isMatch);
}

void TestGolden::manyPixelsThatAreALittleOffAreADifference()
{
    QVERIFY(!GoldenPicture::compare(plain(qRgb(100, 100, 100)), plain(qRgb(100, 100, 105))).isMatch);
}

void TestGolden::aFewPixelsThatAreALittleOffAreNone()
{
    // One in a thousand of ten thousand pixels.
    QImage actual = plain(qRgb(100, 100, 100));
    for (int x = 0; x < 10; ++x)
        actual.setPixel(x, 0, qRgb(110, 110, 110));
    QVERIFY(GoldenPicture::compare(plain(qRgb(100, 100, 100)), actual).isMatch);
    actual.setPixel(10, 0, qRgb(110, 110, 110));
    QVERIFY(!GoldenPicture::compare(plain(qRgb(100, 100, 100)), actual).isMatch);
}

void TestGolden::aPictureWithFewColorsIsCloseToItsOriginal()
{
    QImage gradient(1000, 40, QImage::Format_RGB32);
    gradient.fill(qRgb(1, 2, 3));
    for (int x = 0; x < 1000; ++x) {
        for (int y = 0; y < 10; ++y)
            gradient.setPixel(x, y, qRgb(x % 256, x % 256, x / 500));
    }
    const QImage coarse = PictureFile::withPalette(gradient, GoldenPicture::sameness);
    QSet<QRgb> colors;
    for (int x = 0; x < 1000; ++x) {
        colors.insert(coarse.pixel(x, 0));
        QVERIFY(std::abs(qGreen(coarse.pixel(x, 0)) - qGreen(gradient.pixel(x, 0))) <= GoldenPicture::sameness);
    }
    QVERIFY(colors.size() <= 256);
    QCOMPARE(coarse.pixel(500, 39), gradient.pixel(500, 39));
}

static int runGolden(int argc, char **argv)
{
    const PictureScreen screen(currentScale());
    const QApplication application(argc, argv);
    return runTest<TestGolden>(argc, argv);
}

CORVANE_TEST_MAIN(runGolden)

#include "tst_golden.moc"
