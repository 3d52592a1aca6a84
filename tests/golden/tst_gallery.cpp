#include "TestProgram.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace {

struct Result {
    int exitCode = -1;
    QString output;
    QString errors;
};

/// Runs the gallery as somebody without a display would.
Result run(const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *variable : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
        environment.remove(QLatin1String(variable));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(PROGRAM_CORVANE_GALLERY), arguments);
    process.waitForFinished(60000);
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput()), QString::fromUtf8(process.readAllStandardError())};
}

QRgb cornerOf(const QImage &picture)
{
    return picture.pixel(0, 0) & RGB_MASK;
}

}

class TestGallery : public QObject {
    Q_OBJECT

private slots:
    void itListsItsScenesOneALine();
    void itHelps();
    void itDrawsASceneWithoutADisplay();
    void theAppearanceChoosesTheColours();
    void theProductChoosesTheAccent();
    void theScaleMultipliesThePixels_data();
    void theScaleMultipliesThePixels();
    void theEnvironmentDoesNotChangeThePicture();
    void anotherFontReplacesThatOfTheDesktop();
    void theTextsAreInTheLanguageThatIsNamed();
    void aWrongCommandLineIsRefused_data();
    void aWrongCommandLineIsRefused();
    void aFileThatCannotBeWrittenFails();

private:
    QImage drawn(const QString &scene, const QStringList &arguments = {});
    QString file(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

QImage TestGallery::drawn(const QString &scene, const QStringList &arguments)
{
    QFile::remove(file(QStringLiteral("picture")));
    const Result result =
        run(QStringList{QStringLiteral("--render"), scene, QStringLiteral("--out"), file(QStringLiteral("picture"))}
            + arguments);
    if (result.exitCode != 0)
        qWarning("%s", qPrintable(result.errors));
    return QImage(file(QStringLiteral("picture")), "png");
}

void TestGallery::itListsItsScenesOneALine()
{
    const Result result = run({QStringLiteral("--list")});
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.output.endsWith(u'\n'));
    const QStringList scenes = result.output.chopped(1).split(u'\n');
    for (const char *scene : {"glyphs", "palette", "type", "buttons", "switches", "segmented", "rows",
                              "settings-general", "settings-search"})
        QVERIFY2(scenes.contains(QLatin1String(scene)), scene);
    QCOMPARE(QSet<QString>(scenes.begin(), scenes.end()).size(), scenes.size());
    for (const QString &scene : scenes)
        QVERIFY2(QRegularExpression(QStringLiteral("^[a-z]+(-[a-z0-9]+)*$")).match(scene).hasMatch(),
                 qPrintable(scene));
}

void TestGallery::itHelps()
{
    const Result result = run({QStringLiteral("--help")});
    QCOMPARE(result.exitCode, 0);
    for (const char *option :
         {"--list", "--render", "--show", "--out", "--dark", "--high-contrast", "--app", "--scale", "--font"})
        QVERIFY2(result.output.contains(QLatin1String(option)), option);
}

void TestGallery::itDrawsASceneWithoutADisplay()
{
    const QImage picture = drawn(QStringLiteral("settings-general"));
    QCOMPARE(picture.width(), 620);
    QVERIFY(picture.height() > 200);
    // The window's background, light, inside its edge.
    QCOMPARE(cornerOf(picture.copy(picture.rect().adjusted(2, 2, -2, -2))), qRgb(0xf7, 0xf6, 0xf2) & RGB_MASK);
}

void TestGallery::theAppearanceChoosesTheColours()
{
    const QString scene = QStringLiteral("sidebar");
    const QImage light = drawn(scene);
    const QImage dark = drawn(scene, {QStringLiteral("--dark")});
    QCOMPARE(cornerOf(dark), qRgb(0x0d, 0x0d, 0x0e) & RGB_MASK);
    // High contrast has no values of its own.
    QCOMPARE(drawn(scene, {QStringLiteral("--high-contrast")}), light);
    QCOMPARE(drawn(scene, {QStringLiteral("--high-contrast"), QStringLiteral("--dark")}), dark);
}

void TestGallery::theProductChoosesTheAccent()
{
    const QString scene = QStringLiteral("settings-general");
    const auto of = [&](const char *app) { return drawn(scene, {QStringLiteral("--app"), QLatin1String(app)}); };
    const QImage corvane = of("corvane");
    QCOMPARE(corvane, drawn(scene));
    QVERIFY(of("quiller") != corvane);
    QVERIFY(of("parcelo") != of("quiller"));
}

void TestGallery::theScaleMultipliesThePixels_data()
{
    QTest::addColumn<qreal>("scale");
    for (const qreal scale : {1.0, 1.25, 1.5, 2.0, 3.0})
        QTest::addRow("%g", scale) << scale;
}

void TestGallery::theScaleMultipliesThePixels()
{
    QFETCH(qreal, scale);
    const QImage single = drawn(QStringLiteral("sidebar"));
    const QImage scaled = drawn(QStringLiteral("sidebar"), {QStringLiteral("--scale"), QString::number(scale)});
    QCOMPARE(scaled.width(), int(single.width() * scale));
    QCOMPARE(scaled.height(), int(single.height() * scale));
    QCOMPARE(cornerOf(scaled.copy(scaled.width() - 1, scaled.height() - 1, 1, 1)), cornerOf(single));
}

void TestGallery::theEnvironmentDoesNotChangeThePicture()
{
    const QImage before = drawn(QStringLiteral("sidebar"));
    qputenv("QT_SCALE_FACTOR", "2");
    qputenv("QT_FONT_DPI", "192");
    const QImage after = drawn(QStringLiteral("sidebar"));
    qunsetenv("QT_SCALE_FACTOR");
    qunsetenv("QT_FONT_DPI");
    QCOMPARE(after, before);
}

void TestGallery::anotherFontReplacesThatOfTheDesktop()
{
    const QStringList font = {QStringLiteral("--font"), QStringLiteral("DejaVu Sans")};
    QVERIFY(drawn(QStringLiteral("rows"), font) != drawn(QStringLiteral("rows")));
}

void TestGallery::theTextsAreInTheLanguageThatIsNamed()
{
    const QString scene = QStringLiteral("settings-general");
    const auto in = [&](const char *code) { return drawn(scene, {QStringLiteral("--language"), QLatin1String(code)}); };
    QVERIFY(in("de") != drawn(scene));
    // From right to left the sidebar is at the other side.
    const QImage arabic = in("ar");
    QVERIFY(arabic.pixelColor(20, 200) != drawn(scene).pixelColor(20, 200));
    QCOMPARE(arabic.pixelColor(arabic.width() - 20, 200), drawn(scene).pixelColor(20, 200));
}

void TestGallery::aWrongCommandLineIsRefused_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("message");

    const QString out = QStringLiteral(" --out ") + file(QStringLiteral("refused.png"));
    QTest::newRow("an unknown scene") << QStringLiteral("--render nothing") + out << QStringLiteral("nothing");
    QTest::newRow("an unknown scene to show") << QStringLiteral("--show nothing") << QStringLiteral("nothing");
    QTest::newRow("drawing and showing") << QStringLiteral("--render buttons --show buttons") + out
                                         << QStringLiteral("exclude");
    QTest::newRow("an appearance of the desktop's")
        << QStringLiteral("--show buttons --dark") << QStringLiteral("desktop");
    QTest::newRow("a scene in capitals") << QStringLiteral("--render Buttons") + out << QStringLiteral("Buttons");
    QTest::newRow("no file") << QStringLiteral("--render buttons") << QStringLiteral("--out");
    QTest::newRow("no scene") << out.trimmed() << QStringLiteral("--render");
    QTest::newRow("an option without its value") << QStringLiteral("--render") << QStringLiteral("render");
    QTest::newRow("an unknown option") << QStringLiteral("--rotate") << QStringLiteral("rotate");
    QTest::newRow("a loose word") << QStringLiteral("buttons") << QStringLiteral("buttons");
    QTest::newRow("an unknown product") << QStringLiteral("--render buttons --app Corvane") + out
                                        << QStringLiteral("Corvane");
    for (const char *scale : {"0", "-1", "big", "nan", "inf", "100"})
        QTest::addRow("scale %s", scale) << QStringLiteral("--render buttons --scale=%1").arg(QLatin1String(scale))
                + out << QString::fromLatin1(scale);
    for (const char *code : {"en", "xx", "zh_Hant", "../de"})
        QTest::addRow("language %s", code) << QStringLiteral("--render buttons --language %1").arg(QLatin1String(code))
                + out << QString::fromLatin1(code);
    QTest::newRow("an unknown font") << QStringLiteral("--render buttons --font Nowhere") + out
                                     << QStringLiteral("Nowhere");
}

void TestGallery::aWrongCommandLineIsRefused()
{
    QFETCH(QString, line);
    QFETCH(QString, message);
    const Result result = run(line.split(u' '));
    QCOMPARE(result.exitCode, 2);
    QVERIFY2(result.errors.contains(message), qPrintable(result.errors));
    QVERIFY(result.output.isEmpty());
    QVERIFY(!QFile::exists(file(QStringLiteral("refused.png"))));
}

void TestGallery::aFileThatCannotBeWrittenFails()
{
    const QString path = file(QStringLiteral("no such folder/picture.png"));
    const Result result = run({QStringLiteral("--render"), QStringLiteral("sidebar"), QStringLiteral("--out"), path});
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.errors.contains(path), qPrintable(result.errors));
}

CORVANE_TEST(TestGallery, runInCore)
#include "tst_gallery.moc"
