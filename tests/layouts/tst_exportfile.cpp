#include "ExportFile.h"
#include "LayoutCoder.h"
#include "RandomLayouts.h"
#include "Sample.h"
#include "Shared.h"
#include "TestProgram.h"

using namespace Qt::StringLiterals;

namespace {

ExportFile::Reading read(const QByteArray &file)
{
    return ExportFile::read(file, Contract::storeKeys());
}

/// A file with these members of "settings", each on a line of its own; the first one on line 4.
QByteArray fileOf(const QByteArray &members)
{
    return "{\n  \"format\": 1,\n  \"settings\": {\n" + members + "\n  }\n}\n";
}

QString described(const QList<ExportFile::Fault> &faults)
{
    QStringList lines;
    for (const ExportFile::Fault &fault : faults)
        lines.append(u"%1: %2"_s.arg(QString::number(fault.line), fault.reason));
    return lines.join(u'\n');
}

}

/// The form of the file that settings are taken along in, and what is refused of it.
class ExportFileTest : public QObject {
    Q_OBJECT

private slots:
    void theFileIsSortedAndIndented();
    void anEmptyExportIsAFileToo();
    void whatIsWrittenReadsBackTheSame_data();
    void whatIsWrittenReadsBackTheSame();
    void aWholeNumberIsANumberAndMinusZeroKeepsItsSign();
    void theOrderAndTheSpacesOfAFileDoNotMatter();
    void aByteOrderMarkInFrontIsPassedOver();
    void layoutsWithoutAnIdAreGivenOne();
    void aFaultIsNamedWithItsLine_data();
    void aFaultIsNamedWithItsLine();
    void everyFaultIsNamed();
    void countlessFaultsAreCutOff();
    void aNewerFormIsRefusedForThatAlone();
};

void ExportFileTest::theFileIsSortedAndIndented()
{
    SavedLayout slashed = Sample::layout();
    slashed.windows[0].title = u"a/b \"c\" \\ [{,:"_s;
    const ExportFile::Settings settings = {{u"showMinimizeButton"_s, true},
                                           {u"layouts.gap"_s, 6.5},
                                           {u"buttonTheme"_s, u"soft"_s},
                                           {u"menuBarIconHidden"_s, QVariant()},
                                           {u"layouts.saved"_s, *LayoutCoder::encode({slashed})}};
    QCOMPARE(ExportFile::write(settings), QByteArray(R"({
  "format": 1,
  "settings": {
    "buttonTheme": "soft",
    "layouts.gap": 6.5,
    "layouts.saved": [
      {
        "created": 700000000.5,
        "id": "3F2504E0-4F89-41D3-9A0C-0305E82C3301",
        "name": "Work",
        "windows": [
          {
            "app": "Editor",
            "bundleID": "org.example.editor",
            "display": "main",
            "rect": {
              "h": 0.75,
              "w": 0.5,
              "x": 0,
              "y": 0.25
            },
            "title": "a/b \"c\" \\ [{,:"
          }
        ]
      }
    ],
    "menuBarIconHidden": null,
    "showMinimizeButton": true
  }
}
)"));
}

void ExportFileTest::anEmptyExportIsAFileToo()
{
    const QByteArray file = ExportFile::write({});
    QCOMPARE(file, QByteArray("{\n  \"format\": 1,\n  \"settings\": {}\n}\n"));
    QCOMPARE(described(read(file).faults), QString());
    QCOMPARE(ExportFile::write({{u"layouts.saved"_s, u"[]"_s}}), fileOf("    \"layouts.saved\": []"));
}

void ExportFileTest::whatIsWrittenReadsBackTheSame_data()
{
    QTest::addColumn<quint32>("seed");
    for (const quint32 seed : {1U, 20010101U, 0xc0ffeeU, 4242U})
        QTest::addRow("seed %u", seed) << seed;
}

void ExportFileTest::whatIsWrittenReadsBackTheSame()
{
    QFETCH(quint32, seed);
    RandomLayouts layouts(seed);
    QRandomGenerator random(seed);
    for (int i = 0; i < 100; ++i) {
        ExportFile::Settings settings;
        for (const Contract::StoreKey &key : Contract::storeKeys()) {
            if (Contract::isAgentState(key.name) || random.bounded(8) == 0)
                continue;
            QVariant &value = settings[key.name];
            if (random.bounded(4) == 0)
                continue;
            if (key.name == Shared::Key::layoutsSaved)
                value = *LayoutCoder::encode(layouts.list());
            else if (!key.choices.isEmpty())
                value = key.choices.at(random.bounded(int(key.choices.size())));
            else if (key.defaultValue.typeId() == QMetaType::Double)
                value = std::ldexp(random.generateDouble() - 0.5, random.bounded(80) - 40);
            else
                value = random.bounded(2) == 0;
        }
        const QByteArray file = ExportFile::write(settings);
        const ExportFile::Reading again = read(file);
        QCOMPARE(described(again.faults), QString());
        QVERIFY2(again.settings == settings, file.constData());
        QCOMPARE(ExportFile::write(again.settings), file);
    }
}

void ExportFileTest::aWholeNumberIsANumberAndMinusZeroKeepsItsSign()
{
    const QVariant six = read(fileOf(R"("layouts.gap": 6)")).settings.value(u"layouts.gap"_s);
    QCOMPARE(six, QVariant(6.0));
    QCOMPARE(six.typeId(), int(QMetaType::Double));
    for (const QByteArray number : {"-0", "-0.0"})
        QVERIFY(std::signbit(read(fileOf("\"layouts.gap\": " + number)).settings.value(u"layouts.gap"_s).toDouble()));
}

void ExportFileTest::theOrderAndTheSpacesOfAFileDoNotMatter()
{
    const ExportFile::Reading reading =
        read("{\"settings\":{\"showMinimizeButton\":true,\"buttonTheme\":\"mono\"},\r\n\t\"format\":1}");
    QCOMPARE(described(reading.faults), QString());
    const ExportFile::Settings expected = {{u"showMinimizeButton"_s, true}, {u"buttonTheme"_s, u"mono"_s}};
    QCOMPARE(reading.settings, expected);
}

void ExportFileTest::aByteOrderMarkInFrontIsPassedOver()
{
    QCOMPARE(described(read("\xef\xbb\xbf" + fileOf("\"buttonTheme\": \"mono\"")).faults), QString());
}

void ExportFileTest::layoutsWithoutAnIdAreGivenOne()
{
    const ExportFile::Reading reading = read(fileOf(R"("layouts.saved": [{"name": "Work", "windows": []}])"));
    QCOMPARE(described(reading.faults), QString());
    const auto layouts = LayoutCoder::decode(reading.settings.value(u"layouts.saved"_s).toString());
    QVERIFY(layouts && layouts->size() == 1 && !layouts->constFirst().id.isNull());
}

void ExportFileTest::aFaultIsNamedWithItsLine_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("faults");
    const auto row = [](const char *name, const QByteArray &file, const QString &faults) {
        QTest::newRow(name) << file << faults;
    };
    const QByteArray good = "    \"buttonTheme\": \"soft\",\n";
    const auto setting = [&](const char *name, const QByteArray &members, const QString &fault) {
        row(name, fileOf(good + members), u"5: "_s + fault);
    };
    setting("unknown key", R"("colour": 7)", u"\"colour\" is not known"_s);
    setting("unknown key with layouts", R"("layouts.old": [{"layouts.gap": 7}])", u"\"layouts.old\" is not known"_s);
    setting("the agent's", R"("agent.launchAtLogin": true)",
            u"\"agent.launchAtLogin\" is the agent's own and is never imported"_s);
    setting("the agent's, unknown", R"("agent.x": null)", u"\"agent.x\" is the agent's own and is never imported"_s);
    setting("twice", R"("buttonTheme": "mono")", u"\"buttonTheme\" stands twice"_s);
    setting("no boolean", R"("menuBarIconHidden": "true")", u"\"menuBarIconHidden\" must be a boolean"_s);
    setting("no number", R"("layouts.gap": true)", u"\"layouts.gap\" must be a number"_s);
    setting("no string", R"("buttonSizeOption": 1)", u"\"buttonSizeOption\" must be a string"_s);
    setting("an array", R"("layouts.gap": [1])", u"\"layouts.gap\" must be a number"_s);
    setting("an object", R"("menuBarIconHidden": {"a": {"b": 1}})", u"\"menuBarIconHidden\" must be a boolean"_s);
    setting("no choice", R"("buttonSizeOption": "huge")",
            u"\"buttonSizeOption\" must be one of: small, medium, large"_s);
    setting("layouts as a text", R"("layouts.saved": "[]")", u"\"layouts.saved\" must be an array"_s);
    setting("layouts as an object", R"("layouts.saved": {})", u"\"layouts.saved\" must be an array"_s);
    setting("no layout", R"("layouts.saved": [7])", u"in \"layouts.saved\": a layout must be an object"_s);
    row("a layout without windows", fileOf("\"layouts.saved\": [\n{\n\"name\": \"Work\"\n}\n]"),
        u"7: in \"layouts.saved\": \"windows\" is missing"_s);
    row("a name that is none", fileOf("\"layouts.saved\": [\n{\n\"name\": 7,\n\"windows\": []}]"),
        u"6: in \"layouts.saved\": \"name\" must be a text"_s);
    row("an id that is none", fileOf("\"layouts.saved\": [{\n\"id\": \"7\",\n\"windows\": []}]"),
        u"5: in \"layouts.saved\": \"id\" must be a UUID of 36 characters"_s);
    row("a window that is none", fileOf("\"layouts.saved\": [{\n\"windows\":\n[\n7]}]"),
        u"7: in \"layouts.saved\": a window must be an object"_s);
    row("a rect without x",
        fileOf("\"layouts.saved\": [{\"windows\": [{\"app\": \"\", \"bundleID\": \"\", \"title\": \"\",\n\"rect\": "
               "{\"h\": 1, \"w\": 1, \"y\": 1}}]}]"),
        u"5: in \"layouts.saved\": \"x\" is missing"_s);
    row("unknown beside", "{\n\"format\": 1,\n\"extra\": [{\"settings\": 1}],\n\"settings\": {}\n}",
        u"3: \"extra\" is not known"_s);
    row("settings as an array", "{\n\"format\": 1,\n\"settings\": []}", u"3: \"settings\" must be an object"_s);
    row("settings as a number", "{\n\"format\": 1,\n\"settings\": 5}", u"3: \"settings\" must be an object"_s);
    row("no format", "{\n\"settings\": {}\n}", u"1: \"format\" is missing: this is no export of settings"_s);
    row("no settings", "{\n\"format\": 1\n}", u"1: \"settings\" is missing: this is no export of settings"_s);
    row("a format that is none", "{\n\"format\": \"1\"\n}", u"2: \"format\" must be 1"_s);
    row("a format as an object", "{\n\"format\": {}\n}", u"2: \"format\" must be 1"_s);
    row("a list", "[]", u"1: this is no export of settings"_s);
    row("a number", "7", u"1: this is no export of settings"_s);
    row("a NUL", QByteArray("{\n\0}", 4), u"2: this is no text"_s);
}

void ExportFileTest::aFaultIsNamedWithItsLine()
{
    QFETCH(QByteArray, file);
    QTEST(described(read(file).faults), "faults");
}

void ExportFileTest::everyFaultIsNamed()
{
    const QByteArray file =
        fileOf("\"colour\": 1,\n\"layouts.saved\": [{}],\n\"layouts.gap\": \"\",\n\"buttonTheme\": }");
    const QList<ExportFile::Fault> faults = read(file).faults;
    QCOMPARE(faults.size(), 4);
    QCOMPARE(described(faults.first(3)),
             u"4: \"colour\" is not known\n5: in \"layouts.saved\": \"windows\" is missing\n"
             "6: \"layouts.gap\" must be a number"_s);
    QCOMPARE(faults.constLast().line, 7);
    QVERIFY2(faults.constLast().reason.startsWith(u"syntax error"), qPrintable(faults.constLast().reason));
}

void ExportFileTest::countlessFaultsAreCutOff()
{
    QByteArray members;
    for (int i = 0; i < 1000; ++i)
        members += "\"key" + QByteArray::number(i) + "\": 1,\n";
    QCOMPARE(read(fileOf(members + "\"buttonTheme\": \"soft\"")).faults.size(), 20);
}

void ExportFileTest::aNewerFormIsRefusedForThatAlone()
{
    QCOMPARE(described(read("{\"settings\": {\"colour\": 7},\n\"format\": 2}").faults),
             u"2: a newer version has written this file: format 2 is not known"_s);
}

CORVANE_TEST(ExportFileTest, runInCore)
#include "tst_exportfile.moc"
