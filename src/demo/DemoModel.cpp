#include "DemoModel.h"

#include "Platform.h"
#include "ShortcutVocabulary.h"

namespace {

constexpr double flashSeconds = 0.45;

const MotionSpring &applySpring()
{
    static const MotionSpring spring = Motion::spring(0.45, 0.78);
    return spring;
}

const MotionSpring &resetSpring()
{
    static const MotionSpring spring = Motion::spring(0.5, 0.8);
    return spring;
}

QList<DemoModel::Win> initialWins()
{
    const QString browser = DemoModel::tr("Browser");
    return {
        {0, browser, DemoModel::tr("Start page"), GlyphName::globe},
        {1, DemoModel::tr("Ideas"), DemoModel::tr("Sketches"), GlyphName::spark},
        {2, DemoModel::tr("Tasks"), DemoModel::tr("This week"), GlyphName::flag},
        {3, DemoModel::tr("Terminal"), DemoModel::tr("zsh"), GlyphName::terminal},
        {4, DemoModel::tr("Player"), DemoModel::tr("Library"), GlyphName::note},
        {5, browser, DemoModel::tr("Docs"), GlyphName::globe},
    };
}

enum class Reach { window, application, otherApplications };

// Which windows a shortcut changes, what they become, and what has been practised with it.
struct Effect {
    Reach reach;
    DemoModel::State state;
    std::optional<DemoModel::Task> task;
};

Effect effect(Hotkey hotkey)
{
    using State = DemoModel::State;
    using Task = DemoModel::Task;
    switch (hotkey) {
    case Hotkey::close:
        return {Reach::window, State::closed, Task::close};
    case Hotkey::closeAll:
    case Hotkey::kill:
        return {Reach::application, State::closed, Task::close};
    case Hotkey::minimize:
        return {Reach::window, State::minimized, Task::minimize};
    case Hotkey::maximize:
        return {Reach::window, State::full, Task::fullscreen};
    case Hotkey::hide:
        return {Reach::application, State::hidden, std::nullopt};
    case Hotkey::hideOthers:
        return {Reach::otherApplications, State::hidden, std::nullopt};
    }
    Q_UNREACHABLE();
}

bool reaches(Reach reach, const DemoModel::Win &target, const DemoModel::Win &win)
{
    switch (reach) {
    case Reach::window:
        return win.id == target.id;
    case Reach::application:
        return win.app == target.app;
    case Reach::otherApplications:
        return win.app != target.app;
    }
    Q_UNREACHABLE();
}

const DemoModel::Win *find(const QList<DemoModel::Win> &wins, int id)
{
    for (const DemoModel::Win &win : wins) {
        if (win.id == id)
            return &win;
    }
    return nullptr;
}

}

DemoModel::DemoModel(QObject *parent) : QObject(parent), m_wins(initialWins()), m_spring(applySpring()) { }

void DemoModel::reset()
{
    setSpring(resetSpring());
    setWins(initialWins());
    setSpring(applySpring());
}

void DemoModel::apply(Hotkey hotkey, int id)
{
    const Win *found = find(m_wins, id);
    if (!found)
        return;
    const Win target = *found;
    const Effect effect = ::effect(hotkey);
    const bool endsFullScreen = hotkey == Hotkey::maximize && target.state == State::full;

    QList<Win> wins = m_wins;
    for (Win &win : wins) {
        if (reaches(effect.reach, target, win))
            win.state = endsFullScreen ? State::normal : effect.state;
    }
    setWins(wins);
    emit reported(ShortcutVocabulary::report(hotkey, *find(wins, id)));
    if (effect.task)
        insertDone(*effect.task);
    if (m_hovered == id && !find(wins, id)->isVisible())
        setHovered(std::nullopt);
    pulse(hotkey);
}

void DemoModel::apply(const QString &hotkey, int id)
{
    if (const auto found = Hotkeys::fromCaseName(hotkey))
        apply(*found, id);
}

void DemoModel::pulse(Hotkey hotkey)
{
    setFlash(hotkey);
    Platform::current().mainQueue().after(flashSeconds, this, [this, pulse = ++m_pulse] {
        if (pulse == m_pulse)
            setFlash(std::nullopt);
    });
}

void DemoModel::press(Hotkey hotkey)
{
    const Win *target = m_hovered ? find(m_wins, *m_hovered) : nullptr;
    if (target && target->isVisible()) {
        apply(hotkey, target->id);
        return;
    }
    pulse(hotkey);
    ++m_nudge;
    emit nudgeChanged();
    emit reported(tr("Point at a window first."));
}

void DemoModel::enter(int id)
{
    setHovered(id);
    insertDone(Task::hover);
}

void DemoModel::leave(int id)
{
    if (m_hovered == id)
        setHovered(std::nullopt);
}

QVariantList DemoModel::winList() const
{
    QVariantList list;
    for (const Win &win : m_wins)
        list.append(QVariant::fromValue(win));
    return list;
}

QStringList DemoModel::doneNames() const
{
    QStringList names;
    for (const Task task : Tasks::allCases) {
        if (m_done.contains(task))
            names.append(Tasks::rawValue(task));
    }
    return names;
}

void DemoModel::setWins(const QList<Win> &wins)
{
    if (m_wins == wins)
        return;
    m_wins = wins;
    emit winsChanged();
}

void DemoModel::setHovered(std::optional<int> id)
{
    if (m_hovered == id)
        return;
    m_hovered = id;
    emit hoveredChanged();
}

void DemoModel::insertDone(Task task)
{
    if (m_done.contains(task))
        return;
    m_done.insert(task);
    emit doneChanged();
}

void DemoModel::setFlash(std::optional<Hotkey> hotkey)
{
    if (m_flash == hotkey)
        return;
    m_flash = hotkey;
    emit flashChanged();
}

void DemoModel::setSpring(const MotionSpring &spring)
{
    m_spring = spring;
    emit springChanged();
}
