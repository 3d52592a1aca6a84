#include "Accessibility.h"
#include "DemoModel.h"
#include "EBSettingsWindowController.h"
#include "NativePlatform.h"
#include "SettingsModel.h"
#include "SettingsPages.h"
#include "Shared.h"
#include "UserDefaults.h"
#include "ViewEngine.h"

#include <QAccessible>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QFile>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTextStream>
#include <QTimer>

// GIO has members named like the Qt keyword.
#pragma push_macro("signals")
#undef signals
#include <dconf.h>
#pragma pop_macro("signals")

namespace {

constexpr double target = 4; // MiB
constexpr int warmUp = 100;
constexpr int points = 5;

/// The memory of this process that no file backs, in MiB.
double memory()
{
    QFile file(QStringLiteral("/proc/self/smaps_rollup"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("the memory of this process cannot be read");
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (line.startsWith("Anonymous:"))
            return line.mid(10).trimmed().split(' ').constFirst().toDouble() / 1024;
    }
    qFatal("the system does not say how much memory this process has");
}

/// Waits until Qt has found the bus of the assistive technologies.
void awaitAccessibility()
{
    QDBusConnection::sessionBus().interface()->startService(QStringLiteral("org.a11y.Bus"));
    QDeadlineTimer deadline(10'000);
    while (!QAccessible::isActive()) {
        if (deadline.hasExpired())
            qFatal("there is no bus of assistive technologies");
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

/// Reads everything in the window that assistive technologies are told, as a screen reader does.
void readOut(QAccessibleInterface *element)
{
    if (!element)
        return;
    (void)element->text(QAccessible::Name);
    (void)element->state();
    for (int child = 0; child < element->childCount(); ++child)
        readOut(element->child(child));
}

/// The first visible item of that class in QML.
QQuickItem *find(QQuickItem *item, const QByteArray &type)
{
    if (!item->isVisible())
        return nullptr;
    if (QByteArray(item->metaObject()->className()).startsWith(type))
        return item;
    for (QQuickItem *child : item->childItems()) {
        if (QQuickItem *found = find(child, type))
            return found;
    }
    return nullptr;
}

/// The settings window and a practice, which are used again and again.
class Soak {
public:
    explicit Soak(bool isRead) : m_isRead(isRead)
    {
        m_settings.showWindow();
        m_practice.resize(560, 260);
        QQuickItem *view = ViewEngine::make(m_engine, QStringLiteral("qrc:/Corvane/Demo/HandsOnMissionControl.qml"),
                                            {{QStringLiteral("model"), QVariant::fromValue(&m_model)}});
        view->setParent(m_practice.contentItem());
        view->setParentItem(m_practice.contentItem());
        m_practice.show();
    }

    void switchPage(int round)
    {
        select(round);
        settle(*m_settings.window());
    }
    void changeStore(int round)
    {
        GVariant *value = g_variant_new_boolean(round % 2 == 0);
        if (!dconf_client_write_sync(m_client, "/com/vexmoor/corvane/showMinimizeButton", value, nullptr, nullptr,
                                     nullptr))
            qFatal("the store cannot be written");
        settle(*m_settings.window());
    }
    void search(int round)
    {
        QQuickItem *field = find(m_settings.window()->contentItem(), "EBSearchField");
        field->forceActiveFocus();
        if (round % 2 == 0)
            press(Qt::Key_W, QStringLiteral("w"));
        else
            press(Qt::Key_Backspace);
        settle(*m_settings.window());
    }
    void flip(int)
    {
        select(0);
        QQuickItem *control = find(m_settings.window()->contentItem(), "EBSwitch");
        control->forceActiveFocus();
        press(Qt::Key_Space);
        settle(*m_settings.window());
    }
    void practise(int round)
    {
        m_model.apply(Hotkey::minimize, round % int(m_model.wins().size()));
        settle(m_practice);
        m_model.reset();
        settle(m_practice);
    }

private:
    void select(int round)
    {
        const qsizetype page = round % m_pages.size();
        if (m_settings.model()->selection() != m_pages.at(page).id)
            m_settings.model()->setSelection(m_pages.at(page).id);
    }
    void press(Qt::Key key, const QString &text = {})
    {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier, text);
            QCoreApplication::sendEvent(m_settings.window(), &event);
        }
    }
    /// Lets the window draw a frame, and what has gone be deleted.
    void settle(QQuickWindow &window)
    {
        QEventLoop loop;
        QObject::connect(&window, &QQuickWindow::frameSwapped, &loop, &QEventLoop::quit, Qt::QueuedConnection);
        QTimer::singleShot(1000, &loop, &QEventLoop::quit);
        window.update();
        loop.exec();
        if (m_isRead)
            readOut(QAccessible::queryAccessibleInterface(&window));
    }

    const bool m_isRead;
    const QList<EBSettingsPage> m_pages = SettingsPages::make();
    ViewEngine m_engine;
    EBSettingsWindowController m_settings{m_engine, EBApp::corvane, QStringLiteral("1"), m_pages, {}};
    DemoModel m_model;
    QQuickWindow m_practice;
    DConfClient *m_client = dconf_client_new();
};

struct Task {
    const char *name;
    int count;
    void (Soak::*step)(int round);
};

constexpr Task tasks[] = {
    {"page switches", 5'000, &Soak::switchPage}, {"store changes", 5'000, &Soak::changeStore},
    {"searches", 1'000, &Soak::search},          {"flips", 2'000, &Soak::flip},
    {"practices", 200, &Soak::practise},
};

}

/// What the memory does while the application is used for long: a curve, beside the state after the first hundred of
/// everything. With "--read" an assistive technology reads the window after each step.
int main(int argc, char *argv[])
{
    NativePlatform::giveMemoryBack();
    Platform::install(NativePlatform::make());
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const bool isRead = argc == 2 && qstrcmp(argv[1], "--read") == 0;
    if (isRead)
        qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
    const QGuiApplication application(argc, argv);
    installKitAccessibility();
    if (isRead)
        awaitAccessibility();

    Soak soak(isRead);
    for (const Task &task : tasks) {
        for (int round = 0; round < warmUp; ++round)
            (soak.*task.step)(round);
    }
    const double before = memory();
    QTextStream out(stdout);
    out << QStringLiteral("soak%1, after the first %2 of each  %3 MiB\n")
               .arg(QLatin1String(isRead ? " read out" : ""))
               .arg(warmUp)
               .arg(before, 0, 'f', 1);
    for (const Task &task : tasks) {
        for (int round = 1; round <= task.count; ++round) {
            (soak.*task.step)(round);
            if (round % (task.count / points) == 0) {
                out << QStringLiteral("soak, %1 %2  %3 MiB more  target %4\n")
                           .arg(round, 5)
                           .arg(QLatin1String(task.name), -14)
                           .arg(memory() - before, 5, 'f', 1)
                           .arg(target, 0, 'f', 0);
                out.flush();
            }
        }
    }
    return 0;
}
