#include "AboutWindow.h"
#include "DragTilePanel.h"
#include "EBSettingsWindowController.h"
#include "ExportFile.h"
#include "Fit.h"
#include "Fonts.h"
#include "GuideWindowController.h"
#include "ImportDrop.h"
#include "Language.h"
#include "PseudoTranslator.h"
#include "SettingsModel.h"
#include "SettingsPages.h"
#include "StoreTrouble.h"
#include "TestProgram.h"
#include "ViewWindow.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QTemporaryDir>

namespace {

/// What is seen or heard in plain English, although every text is in brackets.
QStringList untranslated(QQuickItem *view)
{
    static const QRegularExpression word(QStringLiteral("[A-Za-z]{2,}"));
    QSet<QString> plain;
    for (const QQuickItem *item : Views::visible(view)) {
        const auto *element = QAccessible::queryAccessibleInterface(const_cast<QQuickItem *>(item));
        const QStringList texts = {item->inherits("QQuickText") ? item->property("text").toString() : QString(),
                                   element ? element->text(QAccessible::Name) : QString(),
                                   element ? element->text(QAccessible::Description) : QString()};
        for (const QString &text : texts) {
            if (text != u"Corvane" && !text.contains(u'[') && text.contains(word))
                plain.insert(text + QStringLiteral(" is not translated"));
        }
    }
    return plain.values();
}

/// Drops an export file with these settings onto the window; gives what lies over it then.
QQuickItem *drop(const ExportFile::Settings &settings, QQmlEngine &engine, EBWindow &window)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("[file].json")));
    REQUIRE(file.open(QFile::WriteOnly) && file.write(ExportFile::write(settings)) > 0 && file.flush());
    auto *taker = new ImportDrop(engine, window);
    QMimeData dragged;
    dragged.setUrls({QUrl::fromLocalFile(file.fileName())});
    const QPoint at(400, 200);
    QDragEnterEvent enter(at, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &enter);
    QDropEvent drop(at, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &drop);
    return taker;
}

void practiseAll(DemoModel &demo)
{
    demo.apply(Hotkey::close, 0);
    demo.apply(Hotkey::minimize, 1);
    demo.apply(Hotkey::maximize, 2);
    demo.reset();
}

const QString layouts =
    QStringLiteral(R"([{"created":1,"id":"11111111-1111-4111-8111-111111111111","name":"A","windows":[]},)"
                   R"({"created":2,"id":"22222222-2222-4222-8222-222222222222","name":"","windows":[]}])");

/// The windows of the application on a desktop in memory, with the longest texts and all the buttons.
class Windows : public ViewWindow {
public:
    /// `name` is what the faults and pictures are called by.
    explicit Windows(const QString &name = {})
        : ViewWindow({{"agent.launchAtLoginNeedsApproval", true},
                      {"buttonSizeOption", "large"},
                      {"showMinimizeButton", true},
                      {"showMaximizeButton", true},
                      {"layouts.saved", layouts}}),
          m_name(name)
    {
        addFaces(platform.main);
        EBKitFonts::registerFonts();
        platform.look.setReduceMotion(true);
    }
    using ViewWindow::engine;

    /// What does not fit in any of them.
    QStringList faults()
    {
        lookAtPages();
        lookAtNotices();
        lookAtImport();
        lookAtGuide();
        AboutWindow about(engine);
        look(about, "about");
        return m_faults;
    }

private:
    using Settings = EBSettingsWindowController;

    std::unique_ptr<Settings> settings(const QString &page)
    {
        return std::make_unique<Settings>(engine, EBApp::corvane, QStringLiteral("1.4"), SettingsPages::make(), page);
    }

    void lookAtPages()
    {
        for (const EBSettingsPage &page : SettingsPages::make())
            look(*settings(page.id)->window(), page.id);
        store.setValue("layouts.saved", "[]");
        store.setValue("agent.launchAtLoginNeedsApproval", false);
        for (const QString page : {"general", "layouts"})
            look(*settings(page)->window(), page + QStringLiteral("-2"));
    }

    void lookAtNotices()
    {
        const auto shown = settings("general");
        const auto translated = [](const char *text) {
            return QCoreApplication::translate("SettingsAppDelegate", text);
        };
        keepFromStoring(UserDefaults::Trouble::noStore);
        shown->model()->setNotice(StoreTrouble::text());
        look(*shown->window(), "unsaved");
        letStore();
        shown->model()->setNotice(translated("Your settings are gone."),
                                  {translated("Restore"), translated("Start Fresh")});
        look(*shown->window(), "lost");
    }

    void lookAtImport()
    {
        const ExportFile::Settings news = {{"layouts.launchApps", false},
                                           {"maximizeMode", "fill"},
                                           {"menuBarIconHidden", true},
                                           {"hotkey.hideOthers.disabled", true}};
        const auto shown = settings("general");
        Views::bringUp(*shown->window());
        QQuickItem *sheet = drop(news, engine, *shown->window());
        store.obstacle = UserDefaults::Trouble::noRoom;
        QTest::keyClick(shown->window(), Qt::Key_Return);
        look(*shown->window(), "import-failed", sheet);
        letStore();

        const auto same = settings("general");
        Views::bringUp(*same->window());
        sheet = drop({}, engine, *same->window());
        look(*same->window(), "import-nothing", sheet);
    }

    void lookAtGuide()
    {
        for (const bool carriesTile : {false, true}) {
            platform.windows.available = !carriesTile;
            for (const OnboardingStep step : OnboardingSteps::allCases) {
                if (!carriesTile || step == OnboardingStep::access)
                    lookAtStep(step, OnboardingSteps::caseName(step) + (carriesTile ? "-tile" : ""));
            }
        }
    }

    void lookAtStep(OnboardingStep step, const QString &view)
    {
        GuideWindowController guide(engine, OnboardingFlow::Run::first, [] {});
        guide.flow().go(step);
        look(guide.window(), view);
        if (step == OnboardingStep::access) {
            guide.flow().requestAccess();
            look(guide.window(), view + "-asked");
        }
        if (step == OnboardingStep::tryIt) {
            practiseAll(*guide.flow().demo());
            look(guide.window(), view + "-all");
        }
        if (step == OnboardingStep::customize) {
            keepFromStoring(UserDefaults::Trouble::noStore);
            look(guide.window(), view + "-unsaved");
            letStore();
        }
    }

    void keepFromStoring(UserDefaults::Trouble obstacle)
    {
        store.obstacle = obstacle;
        store.setValue("layouts.gap", 6.0);
    }

    void letStore()
    {
        store.obstacle = UserDefaults::Trouble::none;
        store.setValue("layouts.gap", QVariant());
    }

    /// Notes what does not fit in the window, in whose height a page may scroll, and in the pseudo-language what goes
    /// past translation. Only what stands in `part`, where one is given.
    void look(QQuickWindow &window, const QString &view, QQuickItem *part = nullptr)
    {
        part = part ? part : window.contentItem();
        const QString name = m_name + u'-' + view;
        Views::bringUp(window);
        // The first drawing lays out, and what that changes is laid out by the second.
        window.grabWindow();
        QCoreApplication::processEvents();
        const QImage picture = window.grabWindow();
        if (const QString folder = qEnvironmentVariable("FIT_PICTURES"); !folder.isEmpty())
            picture.save(folder + QLatin1Char('/') + name + QStringLiteral(".png"));
        QStringList faults = Fit::faults(part, QRectF(QPointF(), window.size()));
        if (m_name.startsWith(u"pseudo"))
            faults += untranslated(part);
        for (const QString &fault : std::as_const(faults))
            m_faults.append(name + QStringLiteral(": ") + fault);
    }

    const QString m_name;
    QStringList m_faults;
};

}

/// Whatever language the windows speak, and whatever face they speak it in: nothing is cut, lies over something else or
/// leaves its card.
class TestLanguages : public QObject {
    Q_OBJECT

private slots:
    void cleanup();
    void everythingFits_data();
    void everythingFits();
    void keysKeepTheirOrderFromRightToLeft();
};

void TestLanguages::cleanup()
{
    qDeleteAll(qApp->findChildren<QTranslator *>());
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    QGuiApplication::setFont(QFont(QStringLiteral("Inter")));
}

void TestLanguages::everythingFits_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("face");
    for (const char *code : {"en", "de", "fr", "es", "pseudo"}) {
        for (const char *face : {"Inter", "DejaVu Sans"})
            QTest::addRow("%s in %s", code, face) << code << face;
    }
    for (const char *code : {"ja", "zh"})
        QTest::addRow("%s", code) << code << "Droid Sans Fallback";
    QTest::newRow("ar") << "ar"
                        << "DejaVu Sans";
}

void TestLanguages::everythingFits()
{
    QFETCH(QString, code);
    QFETCH(QString, face);
    QGuiApplication::setFont(QFont(face));
    if (code == u"pseudo")
        QCoreApplication::installTranslator(new PseudoTranslator(qApp));
    else
        Language::use(code);

    const QStringList faults = Windows(code + u'-' + face.section(u' ', 0, 0)).faults();
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
}

void TestLanguages::keysKeepTheirOrderFromRightToLeft()
{
    const auto cap = [](const QString &keys) {
        Windows windows;
        QQmlComponent component(&windows.engine);
        component.setData("import Embera.Controls\nKeyCap {}", {});
        EBWindow window(EBApp::corvane, {100, 100}, {});
        auto *item = qobject_cast<QQuickItem *>(component.createWithInitialProperties({{"keys", keys}}));
        REQUIRE(item);
        item->setParentItem(window.contentItem());
        Views::bringUp(window);
        return window.grabWindow();
    };
    for (const QString &keys : {QStringLiteral("⌘← ⌘→"), QStringLiteral("⌘1 … ⌘9")}) {
        const QImage usual = cap(keys);
        Language::use(QStringLiteral("ar"));
        QVERIFY2(cap(keys) == usual, qPrintable(keys));
        cleanup();
    }
}

CORVANE_TEST(TestLanguages, runInGui)
#include "tst_languages.moc"
