#include "FreedesktopWorkspace.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class FreedesktopWorkspaceTest : public QObject {
    Q_OBJECT
private slots:
    void init();

    void anApplicationIsStartedWithItsArguments();
    void theRunningApplicationIsStartedAgainEvenFromOutsideABundle();
    void theCompletionComesOnceAndAfterTheCall_data();
    void theCompletionComesOnceAndAfterTheCall();
    void aLinkGoesToTheDesktopsHandler();
    void theAutostartPageIsThatOfTheDesktop_data();
    void theAutostartPageIsThatOfTheDesktop();
    void anUnknownDesktopOrAMissingProgramOpensNothing();

public slots:
    void openedLink(const QUrl &url) { m_links.append(url); }

private:
    void writeScript(const QString &path) const;
    QString makeBundle() const;
    QStringList started() const;

    std::optional<QTemporaryDir> m_folder;
    std::optional<PlistBundle> m_mainBundle;
    std::optional<FreedesktopWorkspace> m_workspace;
    QList<QUrl> m_links;
};

void FreedesktopWorkspaceTest::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    m_folder.emplace();
    qputenv("STARTED", m_folder->filePath(QStringLiteral("started")).toLocal8Bit());
    qputenv("PATH", m_folder->filePath(QStringLiteral("bin")).toLocal8Bit());
    writeScript(QStringLiteral("outside/main"));
    m_mainBundle = PlistBundle::around(m_folder->filePath(QStringLiteral("outside/main")));
    m_workspace.emplace(*m_mainBundle);
}

// Each start adds one line: the program's name and its arguments.
void FreedesktopWorkspaceTest::writeScript(const QString &path) const
{
    const QString fileName = m_folder->filePath(path);
    QVERIFY(QDir().mkpath(QFileInfo(fileName).path()));
    QFile file(fileName);
    QVERIFY(file.open(QFile::WriteOnly));
    file.write("#!/bin/sh\necho \"${0##*/} $*\" >> \"$STARTED\"\n");
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QString FreedesktopWorkspaceTest::makeBundle() const
{
    const QString path = m_folder->filePath(QStringLiteral("Other App.app"));
    writeScript(QStringLiteral("Other App.app/Contents/MacOS/other"));
    QFile info(path + QStringLiteral("/Contents/Info.plist"));
    if (info.open(QFile::WriteOnly))
        info.write("<plist><dict><key>CFBundleExecutable</key><string>other</string></dict></plist>");
    return path;
}

QStringList FreedesktopWorkspaceTest::started() const
{
    QFile file(m_folder->filePath(QStringLiteral("started")));
    if (!file.open(QFile::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
}

void FreedesktopWorkspaceTest::anApplicationIsStartedWithItsArguments()
{
    m_workspace->openApplication(QUrl::fromLocalFile(makeBundle()),
                                 {QStringLiteral("--onboarding"), QStringLiteral("--replay")}, [] {});
    QTRY_COMPARE(started(), QStringList(QStringLiteral("other --onboarding --replay")));
}

void FreedesktopWorkspaceTest::theRunningApplicationIsStartedAgainEvenFromOutsideABundle()
{
    m_workspace->openApplication(m_mainBundle->bundleURL(), {QStringLiteral("--about")}, [] {});
    QTRY_COMPARE(started(), QStringList(QStringLiteral("main --about")));
}

void FreedesktopWorkspaceTest::theCompletionComesOnceAndAfterTheCall_data()
{
    QTest::addColumn<QUrl>("url");
    QTest::newRow("a bundle") << QUrl::fromLocalFile(QStringLiteral("Other App.app"));
    QTest::newRow("nothing there") << QUrl::fromLocalFile(QStringLiteral("/nonexistent.app"));
    QTest::newRow("no file") << QUrl(QStringLiteral("https://example.com"));
    QTest::newRow("no URL") << QUrl();
}

void FreedesktopWorkspaceTest::theCompletionComesOnceAndAfterTheCall()
{
    QFETCH(QUrl, url);
    const bool isThere = url.fileName() == QStringLiteral("Other App.app");
    if (isThere)
        url = QUrl::fromLocalFile(makeBundle());
    int completions = 0;
    m_workspace->openApplication(url, {}, [&] {
        QCOMPARE(QThread::currentThread(), QCoreApplication::instance()->thread());
        ++completions;
    });
    QCOMPARE(completions, 0);
    bool isLater = false;
    QMetaObject::invokeMethod(
        this, [&] { isLater = true; }, Qt::QueuedConnection);
    QTRY_VERIFY(isLater);
    QCOMPARE(completions, 1);
    QTRY_COMPARE(started().size(), isThere ? 1 : 0);
}

void FreedesktopWorkspaceTest::aLinkGoesToTheDesktopsHandler()
{
    const QUrl link(QStringLiteral("corvane-test://page?a=b"));
    QDesktopServices::setUrlHandler(link.scheme(), this, "openedLink");
    m_workspace->open(link);
    m_workspace->open(QUrl());
    QDesktopServices::unsetUrlHandler(link.scheme());
    QCOMPARE(m_links, QList<QUrl>{link});
}

void FreedesktopWorkspaceTest::theAutostartPageIsThatOfTheDesktop_data()
{
    QTest::addColumn<QString>("desktop");
    QTest::addColumn<QStringList>("installed");
    QTest::addColumn<QString>("opened");
    const auto row = [](const char *desktop, const QStringList &installed, const char *opened) {
        QTest::newRow(qPrintable(QLatin1String(desktop) + u' ' + installed.join(u' ')))
            << QString::fromLatin1(desktop) << installed << QString::fromLatin1(opened);
    };
    row("KDE", {QStringLiteral("systemsettings")}, "systemsettings kcm_autostart");
    row("KDE", {QStringLiteral("kcmshell5")}, "kcmshell5 kcm_autostart");
    row("KDE", {QStringLiteral("kcmshell5"), QStringLiteral("systemsettings")}, "systemsettings kcm_autostart");
    row("XFCE", {QStringLiteral("xfce4-session-settings")}, "xfce4-session-settings ");
    row("MATE", {QStringLiteral("mate-session-properties")}, "mate-session-properties ");
    row("LXQt", {QStringLiteral("lxqt-config-session")}, "lxqt-config-session ");
    row("X-Cinnamon", {QStringLiteral("cinnamon-settings")}, "cinnamon-settings startup");
    row("ubuntu:GNOME", {QStringLiteral("gnome-session-properties")}, "gnome-session-properties ");
    row("gnome", {QStringLiteral("gnome-tweaks")}, "gnome-tweaks ");
    row("XFCE:KDE", {QStringLiteral("systemsettings")}, "systemsettings kcm_autostart");
}

void FreedesktopWorkspaceTest::theAutostartPageIsThatOfTheDesktop()
{
    QFETCH(QString, desktop);
    QFETCH(QStringList, installed);
    QFETCH(QString, opened);
    qputenv("XDG_CURRENT_DESKTOP", desktop.toLocal8Bit());
    for (const QString &program : installed)
        writeScript(QStringLiteral("bin/") + program);
    m_workspace->openLoginItemsSettings();
    QTRY_COMPARE(started(), QStringList(opened));
}

void FreedesktopWorkspaceTest::anUnknownDesktopOrAMissingProgramOpensNothing()
{
    writeScript(QStringLiteral("bin/systemsettings"));
    for (const char *desktop : {"", "XFCE", "GNOME", "Somewhere:Else", ":::", "systemsettings"}) {
        qputenv("XDG_CURRENT_DESKTOP", desktop);
        m_workspace->openLoginItemsSettings();
    }
    qunsetenv("XDG_CURRENT_DESKTOP");
    m_workspace->openLoginItemsSettings();
    qputenv("XDG_CURRENT_DESKTOP", "KDE");
    m_workspace->openLoginItemsSettings();
    QTRY_VERIFY(!started().isEmpty());
    QCOMPARE(started().size(), 1);
}

QTEST_MAIN(FreedesktopWorkspaceTest)

#include "tst_freedesktopworkspace.moc"
