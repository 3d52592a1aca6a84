#include "PlistBundle.h"
#include "TestProgram.h"

#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <QTemporaryDir>

#include <plist/plist.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const QByteArray xmlHead = "<?xml version='1.0' encoding='UTF-8'?><plist version='1.0'>";

const QByteArray goodInfo = xmlHead
    + "<dict>"
      "<key>CFBundleIdentifier</key><string>com.vexmoor.corvane</string>"
      "<key>CFBundleShortVersionString</key><string>1.4</string>"
      "<key>CFBundleVersion</key><string>212</string>"
      "<key>CFBundleExecutable</key><string>corvane</string>"
      "<key>Name</key><string>Fenster &amp; Übersicht ⌘</string>"
      "<key>Empty</key><string></string>"
      "<key>On</key><true/>"
      "<key>Off</key><false/>"
      "<key>Count</key><integer>42</integer>"
      "<key>Below</key><integer>-7</integer>"
      "<key>Real</key><real>1.5</real>"
      "<key>Date</key><date>2024-01-01T00:00:00Z</date>"
      "<key>Data</key><data>AAAA</data>"
      "<key>List</key><array><string>a</string></array>"
      "<key>Inner</key><dict><key>a</key><true/></dict>"
      "</dict></plist>";

QByteArray binary(const QByteArray &xml)
{
    plist_t root = nullptr;
    plist_from_xml(xml.constData(), static_cast<uint32_t>(xml.size()), &root);
    char *text = nullptr;
    uint32_t size = 0;
    plist_to_bin(root, &text, &size);
    plist_free(root);
    const QByteArray result(text, size);
    plist_to_bin_free(text);
    return result;
}

QByteArray nested(int depth)
{
    return xmlHead + "<dict><key>a</key>" + QByteArray("<array>").repeated(depth)
        + QByteArray("</array>").repeated(depth) + "</dict></plist>";
}

}

class PlistBundleTest : public QObject {
    Q_OBJECT
private slots:
    void init();

    void valuesOfBothFormatsAreRead_data();
    void valuesOfBothFormatsAreRead();
    void anInfoPlistThatCannotBeReadIsNoInfoDictionary_data();
    void anInfoPlistThatCannotBeReadIsNoInfoDictionary();
    void aMissingInfoPlistIsNoInfoDictionary();
    void anInfoPlistThatIsAPipeIsNotWaitedFor();
    void deepNestingIsHarmless_data();
    void deepNestingIsHarmless();
    void anEmptyDictionaryIsAnInfoDictionary();
    void theInfoPlistIsReadOnce();
    void aResourceIsFoundByNameAndExtension();
    void aMissingResourceIsAnEmptyURL();
    void theBundleAroundAnExecutableIsFoundThroughLinks();
    void aBundleIsFoundInAFolderWhoseNameIsNoText();
    void anExecutableOutsideABundleHasItsFolderForABundle();
    void theExecutableIsTheOneTheInfoPlistNames();
    void withoutAnExistingExecutableThereIsNone();

private:
    void write(const QString &path, const QByteArray &content) const;
    QString bundlePath() const { return m_folder->filePath(QStringLiteral("Corvane.app")); }
    PlistBundle bundle(const QByteArray &info) const;

    std::optional<QTemporaryDir> m_folder;
};

void PlistBundleTest::init()
{
    m_folder.emplace();
}

void PlistBundleTest::write(const QString &path, const QByteArray &content) const
{
    const QString fileName = m_folder->filePath(path);
    REQUIRE(QDir().mkpath(QFileInfo(fileName).path()));
    QFile file(fileName);
    REQUIRE(file.open(QFile::WriteOnly));
    REQUIRE(file.write(content) == content.size());
}

PlistBundle PlistBundleTest::bundle(const QByteArray &info) const
{
    write(QStringLiteral("Corvane.app/Contents/Info.plist"), info);
    return PlistBundle(bundlePath());
}

void PlistBundleTest::valuesOfBothFormatsAreRead_data()
{
    QTest::addColumn<QByteArray>("info");
    QTest::newRow("XML") << goodInfo;
    QTest::newRow("binary") << binary(goodInfo);
}

void PlistBundleTest::valuesOfBothFormatsAreRead()
{
    QFETCH(QByteArray, info);
    const PlistBundle bundle = this->bundle(info);
    const auto value = [&](const char *key) { return bundle.objectForInfoDictionaryKey(QLatin1String(key)); };
    QVERIFY(bundle.hasInfoDictionary());
    QCOMPARE(bundle.bundleIdentifier(), QStringLiteral("com.vexmoor.corvane"));
    QCOMPARE(value("CFBundleShortVersionString"), QVariant(QStringLiteral("1.4")));
    QCOMPARE(value("Name"), QVariant(QStringLiteral("Fenster & Übersicht ⌘")));
    QCOMPARE(value("Empty"), QVariant(QString()));
    QCOMPARE(value("On"), QVariant(true));
    QCOMPARE(value("Off"), QVariant(false));
    QCOMPARE(value("Count"), QVariant(42LL));
    QCOMPARE(value("Below"), QVariant(-7LL));
    for (const char *key : {"Real", "Date", "Data", "List", "Inner", "absent", ""})
        QVERIFY2(!value(key).isValid(), key);
    QCOMPARE(bundle.string(QStringLiteral("Count")), QString());
}

void PlistBundleTest::anInfoPlistThatCannotBeReadIsNoInfoDictionary_data()
{
    QTest::addColumn<QByteArray>("info");
    const QByteArray goodBinary = binary(goodInfo);
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("garbage") << QByteArray("\x01\x02 no plist \xff").repeated(40);
    QTest::newRow("zeros") << QByteArray(4096, '\0');
    QTest::newRow("other XML") << QByteArray("<html><body/></html>");
    QTest::newRow("XML cut off") << goodInfo.first(goodInfo.size() / 2);
    QTest::newRow("binary cut off") << goodBinary.first(goodBinary.size() / 2);
    QTest::newRow("binary head only") << QByteArray("bplist00");
    QTest::newRow("binary trailer of ones") << goodBinary.chopped(32) + QByteArray(32, '\xff');
    QTest::newRow("list at the root") << xmlHead + "<array><string>a</string></array></plist>";
    QTest::newRow("binary list at the root") << binary(xmlHead + "<array><string>a</string></array></plist>");
    QTest::newRow("text at the root") << xmlHead + "<string>a</string></plist>";
    QTest::newRow("far too large") << xmlHead + "<dict><key>a</key><string>" + QByteArray(300'000, 'x')
            + "</string></dict></plist>";
}

void PlistBundleTest::anInfoPlistThatCannotBeReadIsNoInfoDictionary()
{
    QFETCH(QByteArray, info);
    const PlistBundle bundle = this->bundle(info);
    QVERIFY(!bundle.hasInfoDictionary());
    QVERIFY(!bundle.objectForInfoDictionaryKey(QStringLiteral("CFBundleIdentifier")).isValid());
    QCOMPARE(bundle.bundleIdentifier(), QString());
    QCOMPARE(bundle.executable(), QString());
}

void PlistBundleTest::aMissingInfoPlistIsNoInfoDictionary()
{
    const PlistBundle bundle(bundlePath());
    QVERIFY(!bundle.hasInfoDictionary());
    QCOMPARE(bundle.bundleIdentifier(), QString());
}

void PlistBundleTest::anInfoPlistThatIsAPipeIsNotWaitedFor()
{
    QVERIFY(QDir().mkpath(bundlePath() + QStringLiteral("/Contents")));
    QCOMPARE(mkfifo(qPrintable(bundlePath() + QStringLiteral("/Contents/Info.plist")), 0600), 0);
    QVERIFY(!PlistBundle(bundlePath()).hasInfoDictionary());
}

void PlistBundleTest::deepNestingIsHarmless_data()
{
    QTest::addColumn<QByteArray>("info");
    QTest::newRow("XML, as deep as is read") << nested(8'000);
    QTest::newRow("binary, as deep as is read") << binary(nested(8'000));
    QTest::newRow("XML, a million deep") << nested(1'000'000);
    QTest::newRow("XML, never closed") << xmlHead + "<dict><key>a</key>" + QByteArray("<array>").repeated(18'000);
}

void PlistBundleTest::deepNestingIsHarmless()
{
    QFETCH(QByteArray, info);
    QVERIFY(!bundle(info).objectForInfoDictionaryKey(QStringLiteral("a")).isValid());
}

void PlistBundleTest::anEmptyDictionaryIsAnInfoDictionary()
{
    QVERIFY(bundle(xmlHead + "<dict/></plist>").hasInfoDictionary());
}

void PlistBundleTest::theInfoPlistIsReadOnce()
{
    const PlistBundle first = bundle(goodInfo);
    QCOMPARE(first.bundleIdentifier(), QStringLiteral("com.vexmoor.corvane"));
    const PlistBundle second = bundle("gone");
    QCOMPARE(first.string(QStringLiteral("CFBundleVersion")), QStringLiteral("212"));
    QVERIFY(!second.hasInfoDictionary());
}

void PlistBundleTest::aResourceIsFoundByNameAndExtension()
{
    write(QStringLiteral("Corvane.app/Contents/Resources/GeistMono-Medium.ttf"), "font");
    write(QStringLiteral("Corvane.app/Contents/Resources/LICENSE"), "text");
    const PlistBundle bundle(bundlePath() + u'/');
    QCOMPARE(bundle.bundleURL(), QUrl::fromLocalFile(bundlePath()));
    QCOMPARE(bundle.urlForResource(QStringLiteral("GeistMono-Medium"), QStringLiteral("ttf")),
             QUrl::fromLocalFile(bundlePath() + QStringLiteral("/Contents/Resources/GeistMono-Medium.ttf")));
    QCOMPARE(bundle.urlForResource(QStringLiteral("LICENSE"), QString()).fileName(), QStringLiteral("LICENSE"));
}

void PlistBundleTest::aMissingResourceIsAnEmptyURL()
{
    write(QStringLiteral("Corvane.app/Contents/Resources/folder.ttf/file"), "");
    const PlistBundle bundle(bundlePath());
    QVERIFY(bundle.urlForResource(QStringLiteral("absent"), QStringLiteral("ttf")).isEmpty());
    QVERIFY(bundle.urlForResource(QStringLiteral("folder"), QStringLiteral("ttf")).isEmpty());
    QVERIFY(bundle.urlForResource(QString(), QString()).isEmpty());
}

void PlistBundleTest::theBundleAroundAnExecutableIsFoundThroughLinks()
{
    const QString inner = QStringLiteral("Corvane.app/Contents/Helpers/Corvane Settings.app");
    const QString program = inner + QStringLiteral("/Contents/MacOS/corvane-settings");
    const QString executable = m_folder->filePath(program);
    write(program, "");
    write(inner + QStringLiteral("/Contents/Info.plist"), goodInfo);
    const QString link = m_folder->filePath(QStringLiteral("link"));
    QVERIFY(QFile::link(executable, link));
    const PlistBundle bundle = PlistBundle::around(link);
    QCOMPARE(bundle.bundleURL(), QUrl::fromLocalFile(m_folder->filePath(inner)));
    QCOMPARE(bundle.executable(), executable);
    QVERIFY(bundle.hasInfoDictionary());
}

void PlistBundleTest::aBundleIsFoundInAFolderWhoseNameIsNoText()
{
    write(QStringLiteral("x/Corvane.app/Contents/MacOS/corvane"), "program");
    write(QStringLiteral("x/Corvane.app/Contents/Info.plist"), goodInfo);
    write(QStringLiteral("x/Corvane.app/Contents/Resources/LICENSE"), "text");
    const QByteArray folder = m_folder->path().toUtf8();
    const QByteArray folderBefore = folder + "/x";
    const QByteArray named = folder + "/\xff";
    REQUIRE(rename(folderBefore.constData(), named.constData()) == 0);
    // Qt cannot remove it under that name.
    const auto renamed = qScopeGuard([&] { rename(named.constData(), folderBefore.constData()); });
    const QByteArray program = named + "/Corvane.app/Contents/MacOS/corvane";
    QCOMPARE(symlink(program.constData(), QByteArray(folder + "/link").constData()), 0);
    const PlistBundle bundle = PlistBundle::around(m_folder->filePath(QStringLiteral("link")));
    QCOMPARE(bundle.string(QStringLiteral("CFBundleVersion")), QStringLiteral("212"));
    QCOMPARE(bundle.bundleURL().fileName(), QStringLiteral("Corvane.app"));
    QVERIFY(bundle.urlForResource(QStringLiteral("LICENSE"), QString()).isValid());
    QFile executable(bundle.executable());
    QVERIFY(executable.open(QFile::ReadOnly));
    QCOMPARE(executable.readAll(), QByteArray("program"));
}

void PlistBundleTest::anExecutableOutsideABundleHasItsFolderForABundle()
{
    write(QStringLiteral("bin/corvane-settings"), "");
    const PlistBundle bundle = PlistBundle::around(m_folder->filePath(QStringLiteral("bin/corvane-settings")));
    QCOMPARE(bundle.bundleURL(), QUrl::fromLocalFile(m_folder->filePath(QStringLiteral("bin"))));
    QVERIFY(!bundle.hasInfoDictionary());
    QCOMPARE(bundle.executable(), m_folder->filePath(QStringLiteral("bin/corvane-settings")));
}

void PlistBundleTest::theExecutableIsTheOneTheInfoPlistNames()
{
    write(QStringLiteral("Corvane.app/Contents/MacOS/corvane"), "");
    QCOMPARE(bundle(goodInfo).executable(), bundlePath() + QStringLiteral("/Contents/MacOS/corvane"));
}

void PlistBundleTest::withoutAnExistingExecutableThereIsNone()
{
    QCOMPARE(bundle(goodInfo).executable(), QString());
    write(QStringLiteral("Corvane.app/Contents/MacOS/other"), "");
    QCOMPARE(bundle(xmlHead + "<dict/></plist>").executable(), QString());
}

CORVANE_TEST(PlistBundleTest, runInCore)

#include "tst_plistbundle.moc"
