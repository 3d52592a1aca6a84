#include "OnDesktop.h"
#include "SettingsWindow.h"
#include "TestProgram.h"

#include <malloc.h>

/// Of the address sanitizer, which has its own allocator; null without it.
extern "C" [[gnu::weak]] std::size_t __sanitizer_get_current_allocated_bytes();

namespace {

/// What is allocated and not freed, in bytes.
qint64 allocated()
{
    if (__sanitizer_get_current_allocated_bytes)
        return qint64(__sanitizer_get_current_allocated_bytes());
    return qint64(mallinfo2().uordblks);
}

void readOut(QAccessibleInterface *element)
{
    (void)element->text(QAccessible::Name);
    (void)element->state();
    for (int child = 0; child < element->childCount(); ++child)
        readOut(element->child(child));
}

class UsedWindow : public SettingsWindow {
public:
    void switchPages()
    {
        for (const EBSettingsPage &page : SettingsPages::make()) {
            controller.model()->setSelection(page.id);
            lookAtIt();
        }
    }
    void flip()
    {
        controller.model()->setSelection("buttons");
        store.setValue("showMinimizeButton", !store.value("showMinimizeButton").toBool());
        lookAtIt();
    }
    void searchForSomething()
    {
        search("snap");
        lookAtIt();
        search(" ");
    }
    /// What is held by the script engine until it collects its garbage counts as freed.
    qint64 held()
    {
        engine.collectGarbage();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return allocated();
    }

private:
    void lookAtIt()
    {
        waitForFrame();
        readOut(QAccessible::queryAccessibleInterface(&window()));
    }
};

}

/// The window in use for long, while an assistive technology listens.
class TestLongUse : public QObject {
    Q_OBJECT

private slots:
    void nothingGrows();
};

void TestLongUse::nothingGrows()
{
    QTRY_VERIFY(QAccessible::isActive());
    UsedWindow settings;
    const auto use = [&settings] {
        settings.switchPages();
        settings.flip();
        settings.searchForSomething();
    };
    for (int round = 0; round < 3; ++round)
        use();
    const qint64 before = settings.held();
    for (int round = 0; round < 4; ++round)
        use();
    // A single item that is left behind at each change of page is about 6 kB.
    QCOMPARE_LT(settings.held() - before, 48 * 1024);
}

CORVANE_TEST(TestLongUse, runOnAccessibleDesktop)
#include "tst_longuse.moc"
