#include "AboutWindow.h"
#include "DragTilePanel.h"
#include "EBSettingsWindowController.h"
#include "Fit.h"
#include "Fonts.h"
#include "GuideWindowController.h"
#include "Language.h"
#include "PseudoTranslator.h"
#include "SettingsPages.h"
#include "TestProgram.h"
#include "ViewWindow.h"

namespace {

/// The windows of the application on a desktop in memory.
class Windows : public ViewWindow {
public:
    explicit Windows(const QVariantMap &stored) : ViewWindow(stored)
    {
        addFaces(platform.main);
        EBKitFonts::registerFonts();
        platform.look.setReduceMotion(true);
    }
    using ViewWindow::engine;

    /// What does not fit in the window, in whose height a page may scroll.
    QStringList faultsOf(QQuickWindow &window, const QString &name)
    {
        Views::bringUp(window);
        // The first drawing lays out, and what that changes is laid out by the second.
        window.grabWindow();
        QCoreApplication::processEvents();
        const QImage picture = window.grabWindow();
        if (const QString folder = qEnvironmentVariable("FIT_PICTURES"); !folder.isEmpty())
            picture.save(folder + QLatin1Char('/') + name + QStringLiteral(".png"));
        QStringList faults = Fit::faults(window.contentItem(), QRectF(QPointF(), window.size()));
        for (QString &fault : faults)
            fault.prepend(name + QStringLiteral(": "));
        return faults;
    }
};

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

    QStringList faults;
    {
        // The longest texts and all the buttons.
        Windows windows({{"agent.launchAtLoginNeedsApproval", true},
                         {"buttonSizeOption", "large"},
                         {"showMinimizeButton", true},
                         {"showMaximizeButton", true},
                         {"layouts.saved", layouts}});
        const auto name = [&](const QString &view) -> QString {
            return code + u'-' + face.section(u' ', 0, 0) + u'-' + view;
        };
        const QList<EBSettingsPage> pages = SettingsPages::make();
        for (const EBSettingsPage &page : pages) {
            EBSettingsWindowController settings(windows.engine, EBApp::corvane, QStringLiteral("1.4"), pages, page.id);
            faults += windows.faultsOf(*settings.window(), name(page.id));
        }
        windows.store.setValue("layouts.saved", "[]");
        windows.store.setValue("agent.launchAtLoginNeedsApproval", false);
        for (const char *page : {"general", "layouts"}) {
            EBSettingsWindowController settings(windows.engine, EBApp::corvane, QStringLiteral("1.4"), pages,
                                                QString::fromLatin1(page));
            faults += windows.faultsOf(*settings.window(), name(page + QStringLiteral("-2")));
        }
        for (const bool carriesTile : {false, true}) {
            windows.platform.windows.available = !carriesTile;
            for (const OnboardingStep step : OnboardingSteps::allCases) {
                if (carriesTile && step != OnboardingStep::access)
                    continue;
                GuideWindowController guide(windows.engine, OnboardingFlow::Run::first, [] {});
                guide.flow().go(step);
                const QString view = OnboardingSteps::caseName(step) + (carriesTile ? "-tile" : "");
                faults += windows.faultsOf(guide.window(), name(view));
                if (step == OnboardingStep::access) {
                    guide.flow().requestAccess();
                    faults += windows.faultsOf(guide.window(), name(view + "-asked"));
                }
                if (step == OnboardingStep::tryIt) {
                    practiseAll(*guide.flow().demo());
                    faults += windows.faultsOf(guide.window(), name(view + "-all"));
                }
            }
        }
        AboutWindow about(windows.engine);
        faults += windows.faultsOf(about, name("about"));
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
}

void TestLanguages::keysKeepTheirOrderFromRightToLeft()
{
    const auto cap = [](const QString &keys) {
        Windows windows({});
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
