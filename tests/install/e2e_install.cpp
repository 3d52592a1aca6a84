#include "EndToEndTest.h"
#include "EntryFile.h"
#include "InstalledTree.h"
#include "Processes.h"
#include "Service.h"
#include "TestProgram.h"

#include <QDBusConnectionInterface>
#include <QDBusMetaType>
#include <QDirIterator>
#include <QImageReader>
#include <QProcess>
#include <QRegularExpression>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

const QString settingsEntry = u"share/applications/com.vexmoor.corvane.settings.desktop"_s;
const QString agentEntry = u"share/applications/com.vexmoor.corvane.desktop"_s;

/// What a checker of files says of them; nothing when it has no fault to find.
QString faults(const QString &checker, const QStringList &arguments)
{
    QProcess process;
    process.start(checker, arguments);
    if (!process.waitForFinished())
        return checker + u" does not run"_s;
    const QString said = QString::fromUtf8(process.readAllStandardError());
    if (process.exitCode() == 0 && said.isEmpty())
        return {};
    return u"%1 (%2): %3%4"_s.arg(checker).arg(process.exitCode()).arg(said, process.readAllStandardOutput());
}

QString read(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Calls the session's bus itself; false when it refuses.
bool tellBus(const QString &method, const QVariantList &arguments = {})
{
    const QString bus = u"org.freedesktop.DBus"_s;
    QDBusMessage call = QDBusMessage::createMethodCall(bus, u"/org/freedesktop/DBus"_s, bus, method);
    call.setArguments(arguments);
    return QDBusConnection::sessionBus().call(call).type() == QDBusMessage::ReplyMessage;
}

/// The long options that a program's help names.
QStringList optionsOf(const QString &program, const QStringList &arguments)
{
    QProcess help;
    help.start(program, arguments);
    help.waitForFinished();
    QStringList options;
    static const QRegularExpression option(u"--([a-z-]+)"_s);
    for (auto hit = option.globalMatch(QString::fromUtf8(help.readAllStandardOutput())); hit.hasNext();)
        options.append(hit.next().captured(1));
    return options;
}

/// How far apart two pictures are, as a mean over all channels of all pixels, from 0 to 255.
double distance(const QImage &one, const QImage &other)
{
    if (one.size() != other.size())
        return 255;
    // Where nothing covers a pixel its colour means nothing.
    const QImage a = one.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage b = other.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    qint64 sum = 0;
    for (qsizetype i = 0; i < a.sizeInBytes(); ++i)
        sum += qAbs(a.constBits()[i] - b.constBits()[i]);
    return double(sum) / double(a.sizeInBytes());
}

/// Different hands round edges differently.
constexpr double sameDrawing = 3;

}

/// The installed application: how it is found, how it starts from where it lies, and that it goes again.
class TestInstall : public EndToEndTest {
    Q_OBJECT

private:
    /// Starts what the desktop entry, or an action of it, names.
    bool openFromEntry(const InstalledTree &tree, const QString &action = {});

    /// Lets the session's bus start what was installed.
    void announceServices(const InstalledTree &tree) const;

    /// The titles of the windows that the installed application shows, in whatever processes.
    QStringList shownTitles(const InstalledTree &tree) const;

private slots:
    void startsFromItsDesktopEntry_data();
    void startsFromItsDesktopEntry();
    void theDesktopOpensItByItsName_data();
    void theDesktopOpensItByItsName();
    void theAgentBesideItIsStarted();
    void theWindowHasTheIcon_data();
    void theWindowHasTheIcon();
    void entriesNameThePathsOfThePrefix_data();
    void entriesNameThePathsOfThePrefix();
    void aStagedInstallationNamesThePathsItWillHave();
    void runsFromAMovedFolderThatCannotBeWrittenTo();
    void removalLeavesOnlyTheStore();

    void desktopsAcceptTheEntries();
    void manualsAndCompletionsNameEveryOption_data();
    void manualsAndCompletionsNameEveryOption();
    void theShellsCompleteCommandsKeysAndValues_data();
    void theShellsCompleteCommandsKeysAndValues();
    void theIconsShowTheDrawing();
};

bool TestInstall::openFromEntry(const InstalledTree &tree, const QString &action)
{
    QStringList command = EntryFile(tree.path(settingsEntry)).command(action);
    if (command.isEmpty())
        return false;
    const QString program = command.takeFirst();
    return open({.arguments = command, .executable = program});
}

void TestInstall::startsFromItsDesktopEntry_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::newRow("the settings") << QString() << u"Corvane Settings"_s << u"Settings · 01"_s;
    QTest::newRow("About") << u"about"_s << u"About Corvane"_s << u"1.0 (1)"_s;
    QTest::newRow("Show guide") << u"guide"_s << u"Welcome to Corvane"_s << u"Welcome · 01 / 05"_s;
}

void TestInstall::startsFromItsDesktopEntry()
{
    QFETCH(QString, action);
    const InstalledTree tree(u"Büro & Co"_s);
    QVERIFY(tree.isValid());
    QVERIFY(openFromEntry(tree, action));
    QTEST(window()->title(), "title");
    const EntryFile entry(tree.path(settingsEntry));
    QCOMPARE(window()->windowClass(), entry.value(u"StartupWMClass"_s));
    QFETCH(QString, text);
    QVERIFY(shows(text));
}

void TestInstall::announceServices(const InstalledTree &tree) const
{
    qDBusRegisterMetaType<QMap<QString, QString>>();
    for (const char *name : {"com.vexmoor.corvane", "com.vexmoor.corvane.settings"}) {
        const QString file = tree.path(u"share/dbus-1/services/%1.service"_s.arg(QLatin1String(name)));
        REQUIRE(QFile::exists(file) && desktop().session().installService(file));
    }
    // What the bus starts is to open its windows on the display, as what the test starts does.
    const auto environment = QVariant::fromValue(QMap<QString, QString>{{u"QT_QPA_PLATFORM"_s, u"xcb"_s}});
    REQUIRE(tellBus(u"UpdateActivationEnvironment"_s, {environment}));
    REQUIRE(tellBus(u"ReloadConfig"_s));
}

QStringList TestInstall::shownTitles(const InstalledTree &tree) const
{
    QStringList titles;
    const auto running = Processes::instancesOf(tree.path(u"bin/corvane-settings"_s));
    for (const Processes::Process &process : running) {
        for (const TopLevel &window : TopLevel::ofProcess(desktop().x(), process.id)) {
            if (window.isViewable())
                titles.append(window.title());
        }
    }
    return titles;
}

void TestInstall::theDesktopOpensItByItsName_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("title");
    QTest::newRow("the settings") << QString() << u"Corvane Settings"_s;
    QTest::newRow("About") << u"about"_s << u"About Corvane"_s;
    QTest::newRow("Show guide") << u"guide"_s << u"Welcome to Corvane"_s;
}

void TestInstall::theDesktopOpensItByItsName()
{
    QFETCH(QString, action);
    QFETCH(QString, title);
    const InstalledTree tree(u"Büro & 100%"_s);
    QVERIFY(tree.isValid());
    announceServices(tree);
    const QString id = u"com.vexmoor.corvane.settings"_s;
    QCOMPARE(EntryFile(tree.path(settingsEntry)).value(u"DBusActivatable"_s), u"true"_s);
    QVERIFY(action.isEmpty() || !EntryFile(tree.path(settingsEntry)).value(u"Name"_s, action).isEmpty());
    const QStringList request = action.isEmpty() ? QStringList{u"launch"_s, id} : QStringList{u"action"_s, id, action};
    const auto endAll = qScopeGuard([&] {
        for (const char *command : {"corvane-settings", "corvane-agent"}) {
            for (const auto &process : Processes::instancesOf(tree.path(u"bin/"_s + QLatin1String(command))))
                kill(pid_t(process.id), SIGTERM);
        }
    });
    QCOMPARE(faults(u"gapplication"_s, request), QString());
    QTRY_COMPARE_WITH_TIMEOUT(shownTitles(tree), QStringList{title}, 20000);
}

void TestInstall::theAgentBesideItIsStarted()
{
    const InstalledTree tree;
    QVERIFY(tree.isValid());
    announceServices(tree);
    const auto agents = [&] { return Processes::instancesOf(tree.path(u"bin/corvane-agent"_s)); };
    QVERIFY(openFromEntry(tree));
    QTRY_COMPARE(agents().size(), 1);
    const QString name = u"com.vexmoor.corvane"_s;
    QTRY_VERIFY_WITH_TIMEOUT(QDBusConnection::sessionBus().interface()->isServiceRegistered(name), 20000);
    QCOMPARE(TopLevel::ofProcess(desktop().x(), agents().constFirst().id).size(), 0);
    QVERIFY(Service(name).end());
}

void TestInstall::theWindowHasTheIcon_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("the settings") << QStringList();
    QTest::newRow("About") << QStringList{u"--about"_s};
    QTest::newRow("the guide") << QStringList{u"--onboarding"_s};
}

void TestInstall::theWindowHasTheIcon()
{
    const InstalledTree tree;
    QVERIFY(tree.isValid());
    QFETCH(QStringList, arguments);
    QVERIFY(open({.arguments = arguments, .executable = tree.path(u"bin/corvane-settings"_s)}));
    QTRY_VERIFY(!window()->icon().isEmpty());
    QList<int> sizes;
    for (const QImage &picture : window()->icon()) {
        sizes.append(picture.width());
        const QString file = u"share/icons/hicolor/%1x%1/apps/com.vexmoor.corvane.settings.png"_s.arg(picture.width());
        QVERIFY2(distance(picture, QImage(tree.path(file))) < sameDrawing, qPrintable(file));
    }
    std::sort(sizes.begin(), sizes.end());
    QCOMPARE(sizes, (QList{16, 24, 32, 48, 64}));
}

void TestInstall::entriesNameThePathsOfThePrefix_data()
{
    QTest::addColumn<QString>("prefix");
    QTest::newRow("plain") << u"opt"_s;
    QTest::newRow("with a space and umlauts") << u"Größe 1"_s;
    QTest::newRow("with a per cent") << u"100%f"_s;
}

void TestInstall::entriesNameThePathsOfThePrefix()
{
    QFETCH(QString, prefix);
    const InstalledTree tree(prefix);
    QVERIFY(tree.isValid());
    const EntryFile settings(tree.path(settingsEntry));
    const QString program = tree.path(u"bin/corvane-settings"_s);
    QCOMPARE(settings.command(), QStringList{program});
    QCOMPARE(settings.command(u"about"_s), (QStringList{program, u"--about"_s}));
    QCOMPARE(settings.command(u"guide"_s), (QStringList{program, u"--onboarding"_s, u"--replay"_s}));
    QCOMPARE(EntryFile(tree.path(agentEntry)).command(), QStringList{tree.path(u"bin/corvane-agent"_s)});
    QCOMPARE(faults(u"desktop-file-validate"_s, {tree.path(settingsEntry)}), QString());
}

void TestInstall::aStagedInstallationNamesThePathsItWillHave()
{
    const InstalledTree tree = InstalledTree::staged();
    QVERIFY(tree.isValid());
    QCOMPARE(EntryFile(tree.path(settingsEntry)).value(u"Exec"_s), u"/usr/bin/corvane-settings"_s);
    QVERIFY(open({.executable = tree.path(u"bin/corvane-settings"_s)}));
    QVERIFY(shows(u"Settings · 01"_s));
}

void TestInstall::runsFromAMovedFolderThatCannotBeWrittenTo()
{
    InstalledTree tree;
    QVERIFY(tree.isValid());
    QVERIFY(tree.moveAndProtect(u"Über den Wolken"_s));
    const auto before = tree.files();
    // The version and the offer of updates come from the two bundles, and a missing font would be in the log.
    QVERIFY(open({.arguments = {u"--about"_s}, .executable = tree.path(u"bin/corvane-settings"_s)}));
    QVERIFY(shows(u"1.0 (1)"_s));
    QVERIFY(find(ATSPI_ROLE_PUSH_BUTTON, u"Check for Updates"_s));
    window()->close();
    QVERIFY(program().waitForExit());
    QCOMPARE(tree.files(), before);
}

void TestInstall::removalLeavesOnlyTheStore()
{
    const InstalledTree tree;
    QVERIFY(tree.isValid());
    QVERIFY(openFromEntry(tree));
    FIND(icon, ATSPI_ROLE_CHECK_BOX, "Show in the menu bar");
    QVERIFY(icon.doAction(u"Toggle"_s));
    QVERIFY(store().waitFor(u"menuBarIconHidden"_s, true));
    window()->close();
    QVERIFY(program().waitForExit());

    QVERIFY(tree.uninstall());
    QCOMPARE(tree.files().keys(), QStringList());
    QStringList left;
    for (const QString &folder : {desktop().session().configFolder(), desktop().session().dataFolder()}) {
        QDirIterator entries(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
        while (entries.hasNext())
            left.append(entries.next().mid(folder.size() + 1));
    }
    QCOMPARE(left, QStringList{u"dconf/user"_s});
}

void TestInstall::desktopsAcceptTheEntries()
{
    const InstalledTree tree;
    QVERIFY(tree.isValid());
    const QString metainfo = tree.path(u"share/metainfo/com.vexmoor.corvane.settings.metainfo.xml"_s);
    QCOMPARE(faults(u"desktop-file-validate"_s, {tree.path(settingsEntry), tree.path(agentEntry)}), QString());
    QCOMPARE(faults(u"appstreamcli"_s, {u"validate"_s, u"--no-net"_s, u"--strict"_s, metainfo}), QString());
    for (const char *command : {"corvane-settings", "corvane-agent", "corvane-ctl"}) {
        const QString page = tree.path(u"share/man/man1/%1.1"_s.arg(QLatin1String(command)));
        QCOMPARE(faults(u"man"_s, {u"--warnings"_s, u"-Tutf8"_s, u"-l"_s, page}), QString());
    }
}

void TestInstall::manualsAndCompletionsNameEveryOption_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QStringList>("options");
    QTest::newRow("settings") << u"corvane-settings"_s << QStringList{u"about"_s, u"onboarding"_s, u"replay"_s};

    QTest::newRow("agent") << u"corvane-agent"_s
                           << optionsOf(QStringLiteral(PROGRAM_CORVANE_AGENT), {u"--headless"_s, u"--help"_s});
    QTest::newRow("ctl") << u"corvane-ctl"_s << optionsOf(QStringLiteral(PROGRAM_CORVANE_CTL), {u"--help"_s});
}

void TestInstall::manualsAndCompletionsNameEveryOption()
{
    QFETCH(QString, command);
    QFETCH(QStringList, options);
    QVERIFY(options.size() >= 3);
    const InstalledTree tree;
    QVERIFY(tree.isValid());
    const QString manual = read(tree.path(u"share/man/man1/"_s + command + u".1"_s)).remove(u'\\');
    const QString bash = read(tree.path(u"share/bash-completion/completions/"_s + command));
    const QString zsh = read(tree.path(u"share/zsh/site-functions/_"_s + command));
    const QString fish = read(tree.path(u"share/fish/vendor_completions.d/"_s + command + u".fish"_s));
    for (const QString &option : std::as_const(options)) {
        QVERIFY2(manual.contains(u"--"_s + option), qPrintable(option));
        QVERIFY2(bash.contains(u"--"_s + option), qPrintable(option));
        QVERIFY2(zsh.contains(u"--"_s + option), qPrintable(option));
        QVERIFY2(fish.contains(u"-l "_s + option), qPrintable(option));
    }
}

void TestInstall::theShellsCompleteCommandsKeysAndValues_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("offered");
    QTest::newRow("commands") << u"re"_s << QStringList{u"reset"_s};
    QTest::newRow("keys") << u"get button"_s << QStringList{u"buttonSizeOption"_s, u"buttonTheme"_s};
    QTest::newRow("choices") << u"set buttonTheme m"_s << QStringList{u"mono"_s};
    QTest::newRow("Booleans") << u"--json set layouts.shelf "_s << QStringList{u"false"_s, u"true"_s};
    QTest::newRow("the agent's commands") << u"send set"_s << QStringList{u"setLaunchAtLogin"_s};
    QTest::newRow("actions") << u"layouts re"_s << QStringList{u"rename"_s};
    QTest::newRow("no choice for a command without one") << u"send applySettings "_s << QStringList();
    QTest::newRow("programs") << u"check-agent corvane-c"_s << QStringList{u"corvane-ctl"_s};
    QTest::newRow("layouts") << u"layouts show 3F"_s << QStringList{u"3F2504E0-4F89-41D3-9A0C-0305E82C3301"_s};
}

void TestInstall::theShellsCompleteCommandsKeysAndValues()
{
    QFETCH(QString, typed);
    const InstalledTree tree;
    QVERIFY(tree.isValid());
    store().write(u"layouts.saved"_s,
                  uR"([{"created":1,"id":"3F2504E0-4F89-41D3-9A0C-0305E82C3301","name":"","windows":[]}])"_s);
    const QString bash =
        u"source '%1'; read -ra COMP_WORDS <<<'corvane-ctl %2'; [[ '%2' == *' ' ]] && COMP_WORDS+=(''); "
        "COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _corvane_ctl; printf '%s\\n' \"${COMPREPLY[@]}\""_s.arg(
            tree.path(u"share/bash-completion/completions/corvane-ctl"_s), typed);
    const QString fish = u"source '%1'; complete -C 'corvane-ctl %2' | string split -f1 \\t"_s.arg(
        tree.path(u"share/fish/vendor_completions.d/corvane-ctl.fish"_s), typed);
    const QStringList zsh = {u"-f"_s, QStringLiteral(OFFERED_BY_ZSH), tree.path(u"share/zsh/site-functions"_s),
                             u"corvane-ctl "_s + typed};
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"PATH"_s, tree.path(u"bin:"_s) + environment.value(u"PATH"_s));
    for (const QStringList &shell : {QStringList{u"bash"_s, u"-c"_s, bash},
                                     QStringList{u"fish"_s, u"-N"_s, u"-c"_s, fish}, QStringList{u"zsh"_s} + zsh}) {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(shell.first(), shell.mid(1));
        QVERIFY2(process.waitForFinished(), qPrintable(shell.first()));
        QStringList offered = QString::fromUtf8(process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
        offered.sort();
        offered.removeDuplicates();
        QTEST(offered, "offered");
    }
}

void TestInstall::theIconsShowTheDrawing()
{
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
        QImageReader drawing(QStringLiteral(ICON_FOLDER "Corvane.svg"));
        drawing.setScaledSize({size, size});
        const QImage picture(QStringLiteral(ICON_FOLDER "Corvane-%1.png").arg(size));
        QCOMPARE(picture.size(), QSize(size, size));
        const double apart = distance(picture, drawing.read());
        QVERIFY2(apart < sameDrawing, qPrintable(u"%1: %2; scripts/icons draws them anew"_s.arg(size).arg(apart)));
    }
}

CORVANE_TEST(TestInstall, runInCore)
#include "e2e_install.moc"
