#include "FreedesktopWorkspace.h"
#include "TestProgram.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>

namespace {

constexpr QRgb iconColor = qRgb(0, 128, 255);

bool isTheIcon(const QIcon &icon)
{
    return !icon.isNull() && icon.pixmap(48, 48).toImage().pixel(24, 24) == iconColor;
}

}

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
    void withoutSuchAPageTheAutostartFolderOpens_data();
    void withoutSuchAPageTheAutostartFolderOpens();

    void anApplicationsIconIsTheOneItsDesktopEntryNames();
    void anIconOfTheThemeIsFoundByItsName();
    void onlyTheGroupOfTheEntryItselfCounts_data();
    void onlyTheGroupOfTheEntryItselfCounts();
    void anApplicationWithoutAnIconHasNone_data();
    void anApplicationWithoutAnIconHasNone();
    void aDesktopEntryThatIsAPipeIsNotWaitedFor();
    void anIdentifierThatIsNoFileNameHasNoIcon_data();
    void anIdentifierThatIsNoFileNameHasNoIcon();

    void aBundlesIconIsTheOneItBringsAlong_data();
    void aBundlesIconIsTheOneItBringsAlong();
    void aVectorIconIsAsLargeAsItIsAskedFor();
    void aBundleWithoutAnIconHasThatOfItsDesktopEntry();
    void whatHasNoIconOfItsOwnHasAGenericOne_data();
    void whatHasNoIconOfItsOwnHasAGenericOne();
    void theGenericIconIsThatOfTheTheme();

public slots:
    void openedLink(const QUrl &url) { m_links.append(url); }

private:
    void writeScript(const QString &path) const;
    QString makeBundle() const;
    QStringList started() const;
    void write(const QString &path, const QString &text) const;
    QString makeIcon(const QString &path, QSize size = {48, 48}) const;
    QString makeBundleWithInfo(const QString &info) const;

    std::optional<QTemporaryDir> m_folder;
    std::optional<PlistBundle> m_mainBundle;
    std::optional<FreedesktopWorkspace> m_workspace;
    QList<QUrl> m_links;
};

void FreedesktopWorkspaceTest::init()
{
    m_folder.emplace();
    qputenv("STARTED", m_folder->filePath(QStringLiteral("started")).toLocal8Bit());
    qputenv("PATH", m_folder->filePath(QStringLiteral("bin")).toLocal8Bit());
    qputenv("XDG_DATA_HOME", m_folder->filePath(QStringLiteral("data")).toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", m_folder->filePath(QStringLiteral("config")).toLocal8Bit());
    m_links.clear();
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

void FreedesktopWorkspaceTest::write(const QString &path, const QString &text) const
{
    const QString fileName = m_folder->filePath(path);
    QVERIFY(QDir().mkpath(QFileInfo(fileName).path()));
    QFile file(fileName);
    QVERIFY(file.open(QFile::WriteOnly) && file.write(text.toUtf8()) > 0);
}

// An icon of one colour, by which it is known again.
QString FreedesktopWorkspaceTest::makeIcon(const QString &path, QSize size) const
{
    const QString fileName = m_folder->filePath(path);
    QDir().mkpath(QFileInfo(fileName).path());
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(iconColor);
    return picture.save(fileName) ? fileName : QString();
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

void FreedesktopWorkspaceTest::withoutSuchAPageTheAutostartFolderOpens_data()
{
    QTest::addColumn<QString>("desktop");
    for (const char *desktop : {"GNOME", "ubuntu:GNOME", "sway", "XFCE", "Somewhere:Else", ":::", "systemsettings", ""})
        QTest::newRow(desktop) << QString::fromLatin1(desktop);
}

void FreedesktopWorkspaceTest::withoutSuchAPageTheAutostartFolderOpens()
{
    QFETCH(const QString, desktop);
    // Another desktop's page, and one that cannot be started.
    writeScript(QStringLiteral("bin/systemsettings"));
    write(QStringLiteral("bin/gnome-tweaks"), QStringLiteral("no program"));
    qputenv("XDG_CURRENT_DESKTOP", desktop.toLocal8Bit());
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "openedLink");
    const auto restored = qScopeGuard([] { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); });
    const QString folder = m_folder->filePath(QStringLiteral("config/autostart"));
    QVERIFY(!QFileInfo::exists(folder));
    m_workspace->openLoginItemsSettings();
    QCOMPARE(m_links, QList<QUrl>{QUrl::fromLocalFile(folder)});
    QVERIFY(QFileInfo(folder).isDir());
    // The page of the desktop goes first, and alone.
    m_links.clear();
    qputenv("XDG_CURRENT_DESKTOP", "KDE");
    m_workspace->openLoginItemsSettings();
    QTRY_COMPARE(started(), QStringList(QStringLiteral("systemsettings kcm_autostart")));
    QVERIFY(m_links.isEmpty());
}

void FreedesktopWorkspaceTest::anApplicationsIconIsTheOneItsDesktopEntryNames()
{
    const QString icon = makeIcon(QStringLiteral("icons/an icon.png"));
    write(QStringLiteral("data/applications/org.example.Editor.desktop"),
          QStringLiteral("[Desktop Entry]\nType=Application\nName=Editor\nIcon=%1\n").arg(icon));
    QVERIFY(isTheIcon(m_workspace->iconForApplication(QStringLiteral("org.example.Editor"))));
    QVERIFY(m_workspace->iconForApplication(QStringLiteral("org.example.editor")).isNull());
    QVERIFY(m_workspace->iconForApplication(QStringLiteral("org.example")).isNull());
    // Asked again it answers the same.
    QVERIFY(isTheIcon(m_workspace->iconForApplication(QStringLiteral("org.example.Editor"))));
}

void FreedesktopWorkspaceTest::anIconOfTheThemeIsFoundByItsName()
{
    write(QStringLiteral("themes/drawn/index.theme"),
          QStringLiteral("[Icon Theme]\nName=drawn\nDirectories=48x48\n[48x48]\nSize=48\nType=Fixed\n"));
    QVERIFY(!makeIcon(QStringLiteral("themes/drawn/48x48/corvane-test-viewer.png")).isEmpty());
    QIcon::setThemeSearchPaths({m_folder->filePath(QStringLiteral("themes"))});
    QIcon::setThemeName(QStringLiteral("drawn"));
    write(QStringLiteral("data/applications/viewer.desktop"),
          QStringLiteral("[Desktop Entry]\nIcon=corvane-test-viewer\n"));
    write(QStringLiteral("data/applications/other.desktop"),
          QStringLiteral("[Desktop Entry]\nIcon=corvane-test-nothing\n"));
    QVERIFY(isTheIcon(m_workspace->iconForApplication(QStringLiteral("viewer"))));
    QVERIFY(m_workspace->iconForApplication(QStringLiteral("other")).isNull());
}

void FreedesktopWorkspaceTest::onlyTheGroupOfTheEntryItselfCounts_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<bool>("hasIcon");
    const QString entry = QStringLiteral("[Desktop Entry]\nName=One\n");
    const QString action = QStringLiteral("[Desktop Action new]\nName=New\n");
    const QString icon = QStringLiteral("Icon=%1\n");
    const QString otherIcon = QStringLiteral("Icon=/nonexistent/other.png\n");
    QTest::newRow("of an action before it") << QString(action + otherIcon + entry + icon) << true;
    QTest::newRow("of an action after it") << QString(entry + icon + action + otherIcon) << true;
    QTest::newRow("of an action alone") << QString(entry + action + icon) << false;
    QTest::newRow("before any group") << QString(icon + entry) << false;
    QTest::newRow("of a group of a similar name") << QString(u"[Desktop Entry 2]\n" + icon) << false;
    QTest::newRow("commented out") << QString(entry + u'#' + icon) << false;
    QTest::newRow("of a language") << QString(entry + u"Icon[de]=/nonexistent/de.png\n" + icon) << true;
    QTest::newRow("in another case") << QString(entry + u"icon=%1\n") << false;
    QTest::newRow("with space around it") << QString(entry + u"Icon = %1 \n") << true;
}

void FreedesktopWorkspaceTest::onlyTheGroupOfTheEntryItselfCounts()
{
    QFETCH(QString, entry);
    QFETCH(bool, hasIcon);
    write(QStringLiteral("data/applications/app.desktop"), entry.arg(makeIcon(QStringLiteral("icon.png"))));
    const QIcon icon = m_workspace->iconForApplication(QStringLiteral("app"));
    QCOMPARE(isTheIcon(icon), hasIcon);
    QCOMPARE(icon.isNull(), !hasIcon);
}

void FreedesktopWorkspaceTest::anApplicationWithoutAnIconHasNone_data()
{
    QTest::addColumn<QString>("entry");
    QTest::newRow("not installed") << QString();
    QTest::newRow("names none") << QStringLiteral("[Desktop Entry]\nName=One\n");
    QTest::newRow("names nothing") << QStringLiteral("[Desktop Entry]\nIcon=\n");
    QTest::newRow("a theme does not have it") << QStringLiteral("[Desktop Entry]\nIcon=corvane-test-missing\n");
    QTest::newRow("the file is missing") << QStringLiteral("[Desktop Entry]\nIcon=/nonexistent/icon.png\n");
    QTest::newRow("no desktop entry") << QStringLiteral("\x01\x02\n=\n[\n");
    QTest::newRow("the file is a pipe") << QStringLiteral("[Desktop Entry]\nIcon=%1/pipe\n");
    QTest::newRow("the file is larger than any icon") << QStringLiteral("[Desktop Entry]\nIcon=%1/long.svg\n");
    QTest::newRow("the picture is larger than any icon") << QStringLiteral("[Desktop Entry]\nIcon=%1/wide.png\n");
    QTest::newRow("an entry larger than any")
        << QStringLiteral("[Desktop Entry]\nIcon=%1/icon.png\n#") + QString(300'000, u'x') + u'\n';
}

void FreedesktopWorkspaceTest::anApplicationWithoutAnIconHasNone()
{
    QFETCH(QString, entry);
    makeIcon(QStringLiteral("icon.png"));
    makeIcon(QStringLiteral("wide.png"), {2049, 2049});
    write(QStringLiteral("long.svg"),
          QStringLiteral(
              "<svg xmlns='http://www.w3.org/2000/svg' width='48' height='48'><rect width='48' height='48'/>%1</svg>")
              .arg(QString(5'000'000, u' ')));
    QCOMPARE(mkfifo(qPrintable(m_folder->filePath(QStringLiteral("pipe"))), 0600), 0);
    if (!entry.isEmpty())
        write(QStringLiteral("data/applications/app.desktop"), entry.replace(QStringLiteral("%1"), m_folder->path()));
    QVERIFY(m_workspace->iconForApplication(QStringLiteral("app")).isNull());
}

void FreedesktopWorkspaceTest::aDesktopEntryThatIsAPipeIsNotWaitedFor()
{
    const QString entry = m_folder->filePath(QStringLiteral("data/applications/app.desktop"));
    QVERIFY(QDir().mkpath(QFileInfo(entry).path()));
    QCOMPARE(mkfifo(qPrintable(entry), 0600), 0);
    QVERIFY(m_workspace->iconForApplication(QStringLiteral("app")).isNull());
}

void FreedesktopWorkspaceTest::anIdentifierThatIsNoFileNameHasNoIcon_data()
{
    QTest::addColumn<QString>("identifier");
    QTest::addColumn<QString>("entry");
    QTest::newRow("empty") << QString() << QStringLiteral("applications/.desktop");
    QTest::newRow("a folder below") << QStringLiteral("sub/app") << QStringLiteral("applications/sub/app.desktop");
    QTest::newRow("a folder above") << QStringLiteral("../app") << QStringLiteral("app.desktop");
}

void FreedesktopWorkspaceTest::anIdentifierThatIsNoFileNameHasNoIcon()
{
    QFETCH(QString, identifier);
    QFETCH(QString, entry);
    QVERIFY(QDir().mkpath(m_folder->filePath(QStringLiteral("data/applications"))));
    write(QString(u"data/" + entry),
          QStringLiteral("[Desktop Entry]\nIcon=%1\n").arg(makeIcon(QStringLiteral("icon.png"))));
    QVERIFY(m_workspace->iconForApplication(identifier).isNull());
}

// A bundle that says no more than `info` of itself.
QString FreedesktopWorkspaceTest::makeBundleWithInfo(const QString &info) const
{
    write(QStringLiteral("Iconic.app/Contents/Info.plist"), QStringLiteral("<plist><dict>%1</dict></plist>").arg(info));
    return m_folder->filePath(QStringLiteral("Iconic.app"));
}

void FreedesktopWorkspaceTest::aBundlesIconIsTheOneItBringsAlong_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("with its extension") << QStringLiteral("The Icon.png");
    QTest::newRow("without it") << QStringLiteral("The Icon");
}

void FreedesktopWorkspaceTest::aBundlesIconIsTheOneItBringsAlong()
{
    QFETCH(QString, name);
    const QString bundle =
        makeBundleWithInfo(QStringLiteral("<key>CFBundleIconFile</key><string>%1</string>").arg(name));
    QVERIFY(!makeIcon(QStringLiteral("Iconic.app/Contents/Resources/The Icon.png")).isEmpty());
    QVERIFY(isTheIcon(m_workspace->iconForFile(bundle)));
    QVERIFY(isTheIcon(m_workspace->iconForFile(bundle + u'/')));
}

void FreedesktopWorkspaceTest::aVectorIconIsAsLargeAsItIsAskedFor()
{
    const QString bundle = makeBundleWithInfo(QStringLiteral("<key>CFBundleIconFile</key><string>Corvane</string>"));
    const QString resources = bundle + QStringLiteral("/Contents/Resources");
    QVERIFY(QDir().mkpath(resources));
    QVERIFY(QFile::copy(QStringLiteral(PRODUCT_ICON), resources + QStringLiteral("/Corvane.svg")));
    const QIcon icon = m_workspace->iconForFile(bundle);
    for (const int side : {16, 48, 300}) {
        const QImage picture = icon.pixmap(side).toImage();
        QCOMPARE(picture.size(), QSize(side, side));
        // Clear outside its corners, the mark in white on the product's colour.
        QCOMPARE(picture.pixelColor(0, 0).alpha(), 0);
    }
    const QImage picture = icon.pixmap(128).toImage();
    QCOMPARE(picture.pixelColor(64, 12), QColor(90, 92, 242));
    QCOMPARE(picture.pixelColor(40, 64), QColor(Qt::white));
}

void FreedesktopWorkspaceTest::aBundleWithoutAnIconHasThatOfItsDesktopEntry()
{
    write(QStringLiteral("data/applications/org.example.Iconic.desktop"),
          QStringLiteral("[Desktop Entry]\nIcon=%1\n").arg(makeIcon(QStringLiteral("icons/an icon.png"))));
    const QString identifier = QStringLiteral("<key>CFBundleIdentifier</key><string>org.example.Iconic</string>");
    QVERIFY(isTheIcon(m_workspace->iconForFile(makeBundleWithInfo(identifier))));
    // A file that is missing or no picture is no icon either.
    const QString missing = QStringLiteral("<key>CFBundleIconFile</key><string>Info.plist</string>");
    QVERIFY(isTheIcon(m_workspace->iconForFile(makeBundleWithInfo(identifier + missing))));
}

void FreedesktopWorkspaceTest::whatHasNoIconOfItsOwnHasAGenericOne_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("nothing there") << QStringLiteral("/Applications/Corvane.app");
    QTest::newRow("no bundle") << QStringLiteral("/usr/bin/env");
    QTest::newRow("empty") << QString();
}

void FreedesktopWorkspaceTest::whatHasNoIconOfItsOwnHasAGenericOne()
{
    QFETCH(QString, path);
    QIcon::setThemeSearchPaths({m_folder->filePath(QStringLiteral("no themes"))});
    QIcon::setThemeName(QStringLiteral("none"));
    const QIcon icon = m_workspace->iconForFile(path);
    for (const int side : {16, 48, 256}) {
        const QImage picture = icon.pixmap(side).toImage();
        QCOMPARE(picture.size(), QSize(side, side));
        QCOMPARE(picture.pixelColor(0, 0).alpha(), 0);
        QCOMPARE(picture.pixelColor(side / 2, side * 3 / 4).alpha(), 255);
    }
}

void FreedesktopWorkspaceTest::theGenericIconIsThatOfTheTheme()
{
    write(QStringLiteral("themes/generic/index.theme"),
          QStringLiteral("[Icon Theme]\nName=generic\nDirectories=48x48\n[48x48]\nSize=48\nType=Fixed\n"));
    QVERIFY(!makeIcon(QStringLiteral("themes/generic/48x48/application-x-executable.png")).isEmpty());
    QIcon::setThemeSearchPaths({m_folder->filePath(QStringLiteral("themes"))});
    QIcon::setThemeName(QStringLiteral("generic"));
    QVERIFY(isTheIcon(m_workspace->iconForFile(QStringLiteral("/Applications/Corvane.app"))));
}

CORVANE_TEST(FreedesktopWorkspaceTest, runInGui)

#include "tst_freedesktopworkspace.moc"
