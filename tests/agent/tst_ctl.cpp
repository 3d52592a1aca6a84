#include "BusDaemon.h"
#include "CommandListener.h"
#include "DconfService.h"
#include "ExportFile.h"
#include "PrivateSession.h"
#include "Program.h"
#include "Store.h"
#include "TestProgram.h"

#include <QDBusConnectionInterface>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

const QString ctlProgram = QStringLiteral(PROGRAM_CORVANE_CTL);
const QString id = u"3F2504E0-4F89-41D3-9A0C-0305E82C3301"_s;
const QString otherId = u"3F6BA7B8-9DAD-41D1-80B4-00C04FD430C8"_s;

QString layoutText(const QString &layoutId, const QString &name)
{
    return uR"({"created":700000000.5,"id":"%1","name":"%2","windows":[{"app":"Editor","bundleID":"org.example.editor",)"
           R"("rect":{"h":0.75,"w":0.5,"x":0,"y":0.25},"title":"Notes"}]})"_s.arg(layoutId, name);
}

}

/// corvane-ctl as a person and a script use it, with the real store and bus.
class CtlTest : public QObject {
    Q_OBJECT
public:
    explicit CtlTest(PrivateSession &session) : m_state(session.stateFolder()), m_commands(m_store) { }

private slots:
    void init();

    void helpNamesEveryCommand();
    void whatIsNotUnderstoodIsSaidAndGivesTwo_data();
    void whatIsNotUnderstoodIsSaidAndGivesTwo();
    void whatIsRefusedIsSaidAndGivesOne_data();
    void whatIsRefusedIsSaidAndGivesOne();
    void theListShowsEveryKeyOfTheContract();
    void aValueThatNobodyBelievesShowsAsTheDefault();
    void settingStoresAndThenTellsTheAgent_data();
    void settingStoresAndThenTellsTheAgent();
    void aNegativeNumberIsNoOption();
    void resettingUnsetsTheKeysAndTellsTheAgentOnce();
    void resettingAllLeavesTheAgentsKeys();
    void layoutsOfTheAgentAreKeptBeforeTheyAreReplaced_data();
    void layoutsOfTheAgentAreKeptBeforeTheyAreReplaced();
    void sendingPostsTheCommand_data();
    void sendingPostsTheCommand();
    void exportAndImportCarryEverything();
    void anImportThroughAPipeIsAppliedOnce();
    void aDryRunChangesNothing();
    void aDryRunRefusesWhatTheImportWould();
    void aFileThatIsRefusedIsNamedWithItsLine();
    void anExportNamesWhatItLeavesOut();
    void watchingTellsOfChangesAndCommands();
    void layoutsAreListedShownRenamedAndDeleted();
    void anIdMustMeanOneLayout();
    void unreadableLayoutsAreLeftAlone();
    void aNameCannotSteerTheTerminal();
    void columnsStandBelowEachOtherInEveryScript();
    void otherLayoutsOfTheSameNumberShowAsChanged();
    void anExportIsWrittenIntoAPipeThatHasAName();
    void aResultThatCannotBeWrittenGivesOne_data();
    void aResultThatCannotBeWrittenGivesOne();
    void withoutABusNothingIsDoneAndThatIsSaid_data();
    void withoutABusNothingIsDoneAndThatIsSaid();
    void anImportThatCannotBeSavedSaysWhy();
    void aBusThatIsBusyIsWaitedFor();
    void watchingEndsWithTheBus();
    void checkAgentPassesTheReferenceAgent();

private:
    struct Result {
        int code = -1;
        QByteArray output;
        QByteArray errors;

        QJsonDocument json() const { return QJsonDocument::fromJson(output); }
    };

    Result run(const QStringList &arguments, const QByteArray &input = {},
               const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment()) const;
    QString file(const QString &name) const { return m_folder.filePath(name); }

    const QString m_state;
    QTemporaryDir m_folder;
    Store m_store;
    CommandListener m_commands;
};

void CtlTest::init()
{
    m_store.removeAll();
    m_commands.clear();
}

CtlTest::Result CtlTest::run(const QStringList &arguments, const QByteArray &input,
                             const QProcessEnvironment &environment) const
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(ctlProgram, arguments);
    process.write(input);
    process.closeWriteChannel();
    REQUIRE(process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit);
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

void CtlTest::helpNamesEveryCommand()
{
    const Result help = run({u"--help"_s});
    QCOMPARE(help.code, 0);
    QCOMPARE(help.errors, QByteArray());
    for (const char *command :
         {"list", "get", "set", "reset", "watch", "send", "export", "import", "layouts", "check-agent"})
        QVERIFY2(help.output.contains(QByteArray("\n  ").append(command).append(' ')), command);
    QVERIFY(run({u"--version"_s}).output.startsWith("corvane-ctl "));
}

void CtlTest::whatIsNotUnderstoodIsSaidAndGivesTwo_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("nothing") << QStringList();
    QTest::newRow("no command") << QStringList{u"fly"_s};
    QTest::newRow("no option") << QStringList{u"list"_s, u"--fast"_s};
    QTest::newRow("too little") << QStringList{u"set"_s, u"buttonTheme"_s};
    QTest::newRow("too much") << QStringList{u"get"_s, u"buttonTheme"_s, u"layouts.gap"_s};
    QTest::newRow("another's option") << QStringList{u"export"_s, u"-"_s, u"--dry-run"_s};
    QTest::newRow("reset nothing") << QStringList{u"reset"_s};
    QTest::newRow("reset all and one") << QStringList{u"reset"_s, u"--all"_s, u"buttonTheme"_s};
    QTest::newRow("layouts fly") << QStringList{u"layouts"_s, u"fly"_s};
    QTest::newRow("layouts show nothing") << QStringList{u"layouts"_s, u"show"_s};
}

void CtlTest::whatIsNotUnderstoodIsSaidAndGivesTwo()
{
    QFETCH(QStringList, arguments);
    const Result result = run(arguments);
    QCOMPARE(result.code, 2);
    QCOMPARE(result.output, QByteArray());
    QVERIFY2(result.errors.startsWith("corvane-ctl: "), result.errors);
    const Result json = run(QStringList{u"--json"_s} + arguments);
    QCOMPARE(json.code, 2);
    const QString said = u"corvane-ctl: %1\n"_s.arg(json.json().object().value(u"error"_s).toString());
    QVERIFY2(result.errors.startsWith(said.toUtf8()), json.output);
    QCOMPARE(m_store.readAll(), QVariantMap());
}

void CtlTest::whatIsRefusedIsSaidAndGivesOne_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *name, const QStringList &arguments, const QString &reason) {
        QTest::newRow(name) << arguments << reason;
    };
    row("unknown key", {u"get"_s, u"colour"_s},
        u"there is no key \"colour\"; 'corvane-ctl list' shows those there are"_s);
    row("no choice", {u"set"_s, u"buttonTheme"_s, u"neon"_s},
        u"\"buttonTheme\" must be one of: classic, soft, graphite, mono, outline"_s);
    row("no boolean", {u"set"_s, u"layouts.shelf"_s, u"7"_s}, u"\"layouts.shelf\" must be a boolean"_s);
    row("no number", {u"set"_s, u"layouts.gap"_s, u"wide"_s}, u"\"layouts.gap\" must be a number"_s);
    row("not finite", {u"set"_s, u"layouts.gap"_s, u"inf"_s}, u"\"layouts.gap\" must be a finite number"_s);
    row("no layouts", {u"set"_s, u"layouts.saved"_s, u"[7]"_s},
        u"\"layouts.saved\" is no list of layouts: line 1: a layout must be an object"_s);
    row("the agent's", {u"set"_s, u"agent.accessibilityTrusted"_s, u"true"_s},
        u"\"agent.accessibilityTrusted\" is the agent's own state"_s);
    row("reset the agent's", {u"reset"_s, u"buttonTheme"_s, u"agent.launchAtLogin"_s},
        u"\"agent.launchAtLogin\" is the agent's own state"_s);
    row("no command", {u"send"_s, u"fly"_s},
        u"there is no command \"fly\" for the agent, only applySettings, setLaunchAtLogin, requestAccessibility, "
        "checkForUpdates"_s);
    row("no value", {u"send"_s, u"setLaunchAtLogin"_s}, u"setLaunchAtLogin takes true or false"_s);
    row("a value", {u"send"_s, u"applySettings"_s, u"true"_s}, u"applySettings takes no value"_s);
    row("no file", {u"import"_s, u"/none/here"_s}, u"/none/here: No such file or directory"_s);
    row("no layout", {u"layouts"_s, u"show"_s, u"7"_s}, u"there is no layout \"7\""_s);
    row("no program", {u"check-agent"_s, u"/none/here"_s}, u"there is no program \"/none/here\""_s);
}

void CtlTest::whatIsRefusedIsSaidAndGivesOne()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, reason);
    const Result plain = run(arguments);
    QCOMPARE(plain.code, 1);
    QCOMPARE(plain.output, QByteArray());
    QCOMPARE(QString::fromUtf8(plain.errors), u"corvane-ctl: %1\n"_s.arg(reason));
    const Result json = run(QStringList{u"--json"_s} + arguments);
    QCOMPARE(json.code, 1);
    QCOMPARE(json.json().object().value(u"error"_s).toString(), reason);
    QCOMPARE(m_store.readAll(), QVariantMap());
}

void CtlTest::theListShowsEveryKeyOfTheContract()
{
    m_store.write(u"buttonTheme"_s, u"mono"_s);
    m_store.write(u"layouts.saved"_s, u"[%1]"_s.arg(layoutText(id, u"Work"_s)));
    const Result table = run({u"list"_s});
    QCOMPARE(table.code, 0);
    const QStringList lines = QString::fromUtf8(table.output).split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.constFirst().simplified(), u"KEY TYPE VALUE DEFAULT WRITER"_s);
    QCOMPARE(lines.size(), Contract::storeKeys().size() + 1);
    QVERIFY(lines.at(6).simplified() == u"buttonTheme string mono classic application");
    QVERIFY(table.output.contains("  1 layout  "));

    const QJsonArray array = run({u"list"_s, u"--json"_s}).json().array();
    QCOMPARE(array.size(), Contract::storeKeys().size());
    const QJsonObject theme = array.at(5).toObject();
    QCOMPARE(theme.value(u"key"_s).toString(), u"buttonTheme"_s);
    QCOMPARE(theme.value(u"value"_s).toString(), u"mono"_s);
    QCOMPARE(theme.value(u"default"_s).toString(), u"classic"_s);
    QCOMPARE(theme.value(u"isSet"_s), QJsonValue(true));
    QCOMPARE(array.at(6).toObject().value(u"isSet"_s), QJsonValue(false));
}

void CtlTest::aValueThatNobodyBelievesShowsAsTheDefault()
{
    m_store.write(u"buttonTheme"_s, u"neon"_s);
    QCOMPARE(run({u"get"_s, u"buttonTheme"_s}).output, QByteArray("classic\n"));
}

void CtlTest::settingStoresAndThenTellsTheAgent_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("command");
    QTest::newRow("theme") << u"buttonTheme"_s << u"soft"_s << QVariant(u"soft"_s) << u"applySettings"_s;
    QTest::newRow("icon") << u"menuBarIconHidden"_s << u"on"_s << QVariant(true) << u"applySettings"_s;
    QTest::newRow("gap") << u"layouts.gap"_s << u"6"_s << QVariant(6.0) << QString();
    QTest::newRow("shortcut") << u"hotkey.hideOthers.disabled"_s << u"true"_s << QVariant(true) << QString();
    QTest::newRow("login") << u"agent.launchAtLogin"_s << u"true"_s << QVariant(true) << u"setLaunchAtLogin"_s;
}

void CtlTest::settingStoresAndThenTellsTheAgent()
{
    QFETCH(QString, key);
    QFETCH(QString, text);
    QFETCH(QVariant, value);
    QFETCH(QString, command);
    const Result result = run({u"set"_s, key, text});
    QCOMPARE(result.code, 0);
    QCOMPARE(result.output + result.errors, QByteArray());
    QCOMPARE(m_store.read(key), value);
    if (command.isEmpty()) {
        // A command that comes for certain shows that none came before it.
        run({u"send"_s, u"checkForUpdates"_s});
        QVERIFY(m_commands.waitForCount(1));
        QCOMPARE(m_commands.heard().constFirst().command, u"checkForUpdates"_s);
        return;
    }
    QVERIFY(m_commands.waitForCount(1));
    QCOMPARE(m_commands.heard().constFirst().command, command);
    QCOMPARE(m_commands.heard().constFirst().stored.value(key), value);
    const bool isLogin = command == u"setLaunchAtLogin";
    QCOMPARE(m_commands.heard().constFirst().value, isLogin ? std::optional(QVariant(true)) : std::nullopt);
    QCOMPARE(m_store.read(u"agent.launchAtLoginNeedsApproval"_s), isLogin ? QVariant(false) : QVariant());
}

void CtlTest::aNegativeNumberIsNoOption()
{
    QCOMPARE(run({u"set"_s, u"layouts.gap"_s, u"-1.5"_s}).code, 0);
    QCOMPARE(run({u"get"_s, u"layouts.gap"_s}).output, QByteArray("-1.5\n"));
}

void CtlTest::resettingUnsetsTheKeysAndTellsTheAgentOnce()
{
    for (const char *key : {"menuBarIconHidden", "showMinimizeButton", "showMaximizeButton"})
        m_store.write(QLatin1String(key), true);
    QCOMPARE(run({u"reset"_s, u"menuBarIconHidden"_s, u"showMinimizeButton"_s}).code, 0);
    const QVariantMap left{{u"showMaximizeButton"_s, true}};
    QCOMPARE(m_store.readAll(), left);
    run({u"send"_s, u"checkForUpdates"_s});
    QVERIFY(m_commands.waitForCount(2));
    QCOMPARE(m_commands.heard().at(0).command, u"applySettings"_s);
    QCOMPARE(m_commands.heard().at(1).command, u"checkForUpdates"_s);
}

void CtlTest::resettingAllLeavesTheAgentsKeys()
{
    m_store.write(u"agent.launchAtLogin"_s, true);
    m_store.write(u"layouts.saved"_s, u"[]"_s);
    m_store.write(u"buttonTheme"_s, u"mono"_s);
    QCOMPARE(run({u"reset"_s, u"--all"_s}).code, 0);
    const QVariantMap left{{u"agent.launchAtLogin"_s, true}};
    QCOMPARE(m_store.readAll(), left);
    QVERIFY(m_commands.waitForCount(1));
}

void CtlTest::layoutsOfTheAgentAreKeptBeforeTheyAreReplaced_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("set") << QStringList{u"set"_s, u"layouts.saved"_s, u"[]"_s};
    QTest::newRow("reset") << QStringList{u"reset"_s, u"layouts.saved"_s};
}

void CtlTest::layoutsOfTheAgentAreKeptBeforeTheyAreReplaced()
{
    QFETCH(QStringList, arguments);
    QDir archive(m_state + u"/corvane-settings/layouts"_s);
    archive.removeRecursively();
    m_store.write(u"layouts.saved"_s, u"[%1]"_s.arg(layoutText(id, u"Work"_s)));
    QCOMPARE(run(arguments).code, 0);
    archive.refresh();
    QCOMPARE(archive.entryList({u"*.json"_s}).size(), 1);
}

void CtlTest::sendingPostsTheCommand_data()
{
    QTest::addColumn<QStringList>("operands");
    QTest::newRow("without a value") << QStringList{u"requestAccessibility"_s};
    QTest::newRow("true") << QStringList{u"setLaunchAtLogin"_s, u"true"_s};
    QTest::newRow("false") << QStringList{u"setLaunchAtLogin"_s, u"false"_s};
}

void CtlTest::sendingPostsTheCommand()
{
    QFETCH(QStringList, operands);
    QCOMPARE(run(QStringList{u"send"_s} + operands).code, 0);
    QVERIFY(m_commands.waitForCount(1));
    QCOMPARE(m_commands.heard().constFirst().command, operands.constFirst());
    QCOMPARE(m_commands.heard().constFirst().value,
             operands.size() > 1 ? std::optional(QVariant(operands.at(1) == u"true")) : std::nullopt);
    QCOMPARE(m_store.readAll(), QVariantMap());
}

void CtlTest::exportAndImportCarryEverything()
{
    const QVariantMap settings = {
        {u"buttonTheme"_s, u"graphite"_s},
        {u"layouts.gap"_s, 12.0},
        {u"onboardingCompleted"_s, true},
        {u"layouts.saved"_s, u"[%1,%2]"_s.arg(layoutText(id, u"Work"_s), layoutText(otherId, u"A\\/B"_s))}};
    for (auto setting = settings.cbegin(); setting != settings.cend(); ++setting)
        m_store.write(setting.key(), setting.value());
    m_store.write(u"agent.accessibilityTrusted"_s, true);
    QCOMPARE(run({u"export"_s, file(u"a.json"_s)}).code, 0);
    m_store.removeAll();
    m_store.write(u"showMinimizeButton"_s, true);
    const Result import = run({u"import"_s, file(u"a.json"_s)});
    QCOMPARE(import.code, 0);
    QVERIFY2(import.output.startsWith("KEY                  BEFORE  AFTER\n"), import.output);
    QCOMPARE(m_store.readAll(), settings);
    QVERIFY(m_commands.waitForCount(1));
}

void CtlTest::anImportThroughAPipeIsAppliedOnce()
{
    const QByteArray text = ExportFile::write({{u"buttonTheme"_s, u"soft"_s}, {u"showMinimizeButton"_s, true}});
    const Result result = run({u"import"_s, u"-"_s, u"--json"_s}, text);
    QCOMPARE(result.code, 0);
    QCOMPARE(result.json().object().value(u"changes"_s).toArray().size(), 2);
    QCOMPARE(result.json().object().value(u"imported"_s), QJsonValue(true));
    run({u"send"_s, u"checkForUpdates"_s});
    QVERIFY(m_commands.waitForCount(2));
    QCOMPARE(m_commands.heard().at(0).command, u"applySettings"_s);
    QCOMPARE(m_commands.heard().at(0).stored.size(), 2);
    QCOMPARE(m_commands.heard().at(1).command, u"checkForUpdates"_s);
}

void CtlTest::aDryRunChangesNothing()
{
    const QByteArray text = ExportFile::write({{u"buttonTheme"_s, u"soft"_s}});
    const Result result = run({u"import"_s, u"-"_s, u"--dry-run"_s}, text);
    QCOMPARE(result.code, 0);
    QCOMPARE(result.output.simplified(), QByteArray("KEY BEFORE AFTER buttonTheme - soft"));
    QCOMPARE(m_store.readAll(), QVariantMap());
}

void CtlTest::aDryRunRefusesWhatTheImportWould()
{
    QProcessEnvironment locked = QProcessEnvironment::systemEnvironment();
    locked.insert(u"DCONF_PROFILE"_s, DconfService::makeLock(u"/com/vexmoor/corvane/buttonTheme"_s, m_folder.path()));
    const QByteArray text = ExportFile::write({{u"buttonTheme"_s, u"soft"_s}});
    for (const QStringList &options : {QStringList(), QStringList{u"--dry-run"_s}}) {
        const Result result = run(QStringList{u"import"_s, u"-"_s} + options, text, locked);
        QCOMPARE(result.code, 1);
        QCOMPARE(result.errors,
                 QByteArray("corvane-ctl: the administrator has locked \"buttonTheme\"; nothing was imported\n"));
    }
}

void CtlTest::aFileThatIsRefusedIsNamedWithItsLine()
{
    QFile bad(file(u"bad.json"_s));
    QVERIFY(bad.open(QFile::WriteOnly));
    bad.write("{\n\"format\": 1,\n\"settings\": {\n\"buttonTheme\": \"soft\",\n\"agent.launchAtLogin\": "
              "true,\n\"colour\": 7\n}}");
    bad.close();
    const Result plain = run({u"import"_s, bad.fileName()});
    QCOMPARE(plain.code, 1);
    QCOMPARE(QString::fromUtf8(plain.errors),
             u"corvane-ctl: %1:5: \"agent.launchAtLogin\" is the agent's own and is never imported\n"
             "corvane-ctl: %1:6: \"colour\" is not known\ncorvane-ctl: nothing was imported\n"_s.arg(bad.fileName()));
    const QJsonArray faults =
        run({u"import"_s, bad.fileName(), u"--json"_s}).json().object().value(u"faults"_s).toArray();
    QCOMPARE(faults.size(), 2);
    QCOMPARE(faults.at(1).toObject().value(u"line"_s).toInt(), 6);
    QCOMPARE(faults.at(1).toObject().value(u"file"_s).toString(), bad.fileName());
    QCOMPARE(m_store.readAll(), QVariantMap());
}

void CtlTest::anExportNamesWhatItLeavesOut()
{
    m_store.write(u"layouts.saved"_s, u"[{]"_s);
    m_store.write(u"buttonTheme"_s, u"soft"_s);
    const Result result = run({u"export"_s, u"-"_s});
    QCOMPARE(result.code, 1);
    QVERIFY2(result.errors.startsWith("corvane-ctl: left out: \"layouts.saved\" is no list of layouts"), result.errors);
    QVERIFY(result.output.contains("\"buttonTheme\": \"soft\""));
    QVERIFY(!result.output.contains("layouts.saved"));
    QCOMPARE(m_store.read(u"layouts.saved"_s), QVariant(u"[{]"_s));
}

void CtlTest::watchingTellsOfChangesAndCommands()
{
    Program watch(ctlProgram, QProcessEnvironment::systemEnvironment());
    QVERIFY(watch.start({u"watch"_s}));
    QTRY_COMPARE(watch.standardOutput(), QStringList{uR"({"type":"watching"})"_s});
    // The bus may hear of the subscription a moment later.
    bool on = false;
    QTRY_VERIFY((m_store.write(u"layouts.shelf"_s, on = !on), watch.standardOutput().size() > 1));
    m_store.write(u"buttonTheme"_s, u"soft"_s);
    QTRY_VERIFY(watch.standardOutput().contains(uR"({"key":"buttonTheme","type":"change","value":"soft"})"_s));
    run({u"send"_s, u"setLaunchAtLogin"_s, u"false"_s});
    QTRY_VERIFY(watch.standardOutput().contains(uR"({"command":"setLaunchAtLogin","type":"command","value":false})"_s));
    m_store.remove(u"buttonTheme"_s);
    QTRY_VERIFY(watch.standardOutput().contains(uR"({"key":"buttonTheme","type":"change","value":null})"_s));
    QCOMPARE(watch.complaints(), QStringList());
}

void CtlTest::layoutsAreListedShownRenamedAndDeleted()
{
    m_store.write(u"layouts.saved"_s, u"[%1,%2]"_s.arg(layoutText(id, u"Work"_s), layoutText(otherId, u"Home"_s)));
    const QStringList lines = QString::fromUtf8(run({u"layouts"_s, u"list"_s}).output).split(u'\n');
    QCOMPARE(lines.at(0).simplified(), u"ID CREATED WINDOWS NAME"_s);
    QVERIFY(lines.at(1).startsWith(id) && lines.at(1).endsWith(u"  1        Work"));
    const QByteArray shown = run({u"layouts"_s, u"show"_s, u"3f25"_s}).output;
    QVERIFY2(shown.contains("Editor") && shown.contains("Notes") && shown.contains("Work"), shown);
    QCOMPARE(run({u"layouts"_s, u"show"_s, u"3f25"_s, u"--json"_s}).json().object().value(u"id"_s).toString(), id);

    QCOMPARE(run({u"layouts"_s, u"rename"_s, id.toLower(), u"Desk"_s}).code, 0);
    QCOMPARE(m_store.read(u"layouts.saved"_s).toString(),
             u"[%1,%2]"_s.arg(layoutText(id, u"Desk"_s), layoutText(otherId, u"Home"_s)));
    QCOMPARE(run({u"layouts"_s, u"delete"_s, u"3F25"_s}).code, 0);
    QCOMPARE(m_store.read(u"layouts.saved"_s).toString(), u"[%1]"_s.arg(layoutText(otherId, u"Home"_s)));
}

void CtlTest::anIdMustMeanOneLayout()
{
    const QString stored = u"[%1,%2]"_s.arg(layoutText(id, u"Work"_s), layoutText(otherId, u"Home"_s));
    m_store.write(u"layouts.saved"_s, stored);
    const Result result = run({u"layouts"_s, u"delete"_s, u"3F"_s});
    QCOMPARE(result.code, 1);
    QCOMPARE(result.errors, QByteArray("corvane-ctl: several layouts begin with \"3F\"\n"));
    QCOMPARE(run({u"layouts"_s, u"delete"_s, QString()}).code, 1);
    QCOMPARE(m_store.read(u"layouts.saved"_s).toString(), stored);
}

void CtlTest::unreadableLayoutsAreLeftAlone()
{
    m_store.write(u"layouts.saved"_s, u"[{]"_s);
    for (const QStringList &operands : {QStringList{u"list"_s}, QStringList{u"delete"_s, id}}) {
        const Result result = run(QStringList{u"layouts"_s} + operands);
        QCOMPARE(result.code, 1);
        QVERIFY2(result.errors.startsWith("corvane-ctl: the stored layouts cannot be read: "), result.errors);
    }
    QCOMPARE(m_store.read(u"layouts.saved"_s), QVariant(u"[{]"_s));
}

void CtlTest::aNameCannotSteerTheTerminal()
{
    m_store.write(u"layouts.saved"_s, u"[%1]"_s.arg(layoutText(id, u"\\u001b]0;owned\\u0007\\u009b1m\\u202eturned"_s)));
    for (const QStringList &operands : {QStringList{u"list"_s}, QStringList{u"show"_s, id}}) {
        const QByteArray shown = run(QStringList{u"layouts"_s} + operands).output;
        QVERIFY2(shown.contains("]0;owned") && !shown.contains('\x1b') && !shown.contains('\a'), shown);
        QVERIFY2(!shown.contains("\xc2\x9b") && !shown.contains("\xe2\x80\xae"), shown);
        const Result json = run(QStringList{u"--json"_s, u"layouts"_s} + operands);
        QVERIFY2(json.output.contains("\\u009b") && !json.output.contains("\xc2\x9b"), json.output);
        QVERIFY(!json.json().isNull());
    }
}

void CtlTest::columnsStandBelowEachOtherInEveryScript()
{
    const QString layout = uR"([{"id":"%1","name":"","windows":[%2,%3]}])"_s;
    const QString window = uR"({"app":"%1","bundleID":"","rect":{"h":1,"w":1,"x":0,"y":0},"title":"Notes"})"_s;
    m_store.write(u"layouts.saved"_s, layout.arg(id, window.arg(u"日本語エディタ"_s), window.arg(u"Editor"_s)));
    const QString shown = QString::fromUtf8(run({u"layouts"_s, u"show"_s, id}).output);
    QVERIFY2(shown.contains(u"日本語エディタ  Notes\n"), qPrintable(shown));
    QVERIFY2(shown.contains(u"Editor          Notes\n"), qPrintable(shown));
}

void CtlTest::otherLayoutsOfTheSameNumberShowAsChanged()
{
    m_store.write(u"layouts.saved"_s, u"[%1]"_s.arg(layoutText(id, u"Work"_s)));
    const QByteArray file = ExportFile::write({{u"layouts.saved"_s, u"[%1]"_s.arg(layoutText(otherId, u"Work"_s))}});
    QCOMPARE(run({u"import"_s, u"--dry-run"_s, u"-"_s}, file).output.simplified(),
             QByteArray("KEY BEFORE AFTER layouts.saved 1 layout 1 layout (changed)"));
}

void CtlTest::anExportIsWrittenIntoAPipeThatHasAName()
{
    const Result result = run({u"export"_s, u"/dev/stdout"_s});
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.code, 0);
    QVERIFY2(result.output.startsWith("{\n  \"format\": 1"), result.output);
}

void CtlTest::aResultThatCannotBeWrittenGivesOne_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("list") << QStringList{u"list"_s};
    QTest::newRow("get") << QStringList{u"get"_s, u"buttonTheme"_s, u"--json"_s};
    QTest::newRow("export") << QStringList{u"export"_s, u"-"_s};
    QTest::newRow("help") << QStringList{u"--help"_s};
    QTest::newRow("watch") << QStringList{u"watch"_s};
}

void CtlTest::aResultThatCannotBeWrittenGivesOne()
{
    QFETCH(QStringList, arguments);
    QProcess process;
    process.setStandardOutputFile(u"/dev/full"_s);
    process.start(ctlProgram, arguments);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.readAllStandardError(), QByteArray("corvane-ctl: standard output: No space left on device\n"));
    QCOMPARE(process.exitCode(), 1);
}

void CtlTest::withoutABusNothingIsDoneAndThatIsSaid_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("reason");
    const QByteArray noBus = "there is no session bus";
    QTest::newRow("set") << QStringList{u"set"_s, u"buttonTheme"_s, u"soft"_s} << noBus;
    QTest::newRow("reset") << QStringList{u"reset"_s, u"--all"_s} << noBus;
    QTest::newRow("send") << QStringList{u"send"_s, u"applySettings"_s} << noBus;
    QTest::newRow("watch") << QStringList{u"watch"_s} << noBus;
    QTest::newRow("import") << QStringList{u"import"_s, u"-"_s} << noBus + "; nothing was imported";
}

void CtlTest::withoutABusNothingIsDoneAndThatIsSaid()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, reason);
    QProcessEnvironment lonely = QProcessEnvironment::systemEnvironment();
    lonely.remove(u"DBUS_SESSION_BUS_ADDRESS"_s);
    const Result result = run(arguments, ExportFile::write({{u"buttonTheme"_s, u"soft"_s}}), lonely);
    QCOMPARE(result.errors, "corvane-ctl: " + reason + '\n');
    QCOMPARE(result.code, 1);
    QCOMPARE(run({u"get"_s, u"buttonTheme"_s}, {}, lonely).output, QByteArray("classic\n"));
}

void CtlTest::anImportThatCannotBeSavedSaysWhy()
{
    // This one has no service for settings.
    const BusDaemon bus(file(u"bare"_s), QStringList());
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, QString::fromUtf8(bus.address()));
    const Result result = run({u"import"_s, u"-"_s}, ExportFile::write({{u"buttonTheme"_s, u"soft"_s}}), environment);
    QCOMPARE(result.errors,
             QByteArray("corvane-ctl: Changes can't be saved: the settings service doesn't answer. "
                        "Nothing was imported.\n"));
    QCOMPARE(result.code, 1);
}

void CtlTest::aBusThatIsBusyIsWaitedFor()
{
    const BusDaemon bus(file(u"busy"_s), QStringList());
    const QString name = u"busy"_s;
    const auto closed = qScopeGuard([&] { QDBusConnection::disconnectFromBus(name); });
    const auto connection = QDBusConnection::connectToBus(QString::fromUtf8(bus.address()), name);
    const auto daemon = pid_t(connection.interface()->servicePid(u"org.freedesktop.DBus"_s).value());
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, QString::fromUtf8(bus.address()));
    process.setProcessEnvironment(environment);
    QVERIFY(daemon > 0 && kill(daemon, SIGSTOP) == 0);
    const auto awake = qScopeGuard([&] { kill(daemon, SIGCONT); });
    process.start(ctlProgram, {u"send"_s, u"applySettings"_s});
    QVERIFY(!process.waitForFinished(1000));
    kill(daemon, SIGCONT);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.readAllStandardError(), QByteArray());
    QCOMPARE(process.exitCode(), 0);
}

void CtlTest::watchingEndsWithTheBus()
{
    auto bus = std::make_unique<BusDaemon>(file(u"bus"_s), QStringList());
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, QString::fromUtf8(bus->address()));
    Program watch(ctlProgram, environment);
    QVERIFY(watch.start({u"watch"_s}));
    QTRY_COMPARE(watch.standardOutput(), QStringList{uR"({"type":"watching"})"_s});
    bus.reset();
    QVERIFY(watch.waitForExit());
    QCOMPARE(watch.exitCode(), 1);
    QCOMPARE(watch.standardError(), QStringList{u"corvane-ctl: the session bus has ended"_s});
}

void CtlTest::checkAgentPassesTheReferenceAgent()
{
    m_store.write(u"buttonTheme"_s, u"mono"_s);
    const QVariantMap before = m_store.readAll();
    const Result result = run({u"check-agent"_s, QStringLiteral(PROGRAM_CORVANE_AGENT), u"--headless"_s});
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.output.count("ok  "), 9);
    QCOMPARE(result.code, 0);
    QCOMPARE(m_store.readAll(), before);
    QCOMPARE(run({u"check-agent"_s, u"true"_s}).code, 1);
}

CORVANE_TEST(CtlTest, runInPrivateSession)
#include "tst_ctl.moc"
