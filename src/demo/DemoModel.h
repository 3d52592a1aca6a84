#pragma once

#include "DemoWin.h"
#include "Hotkey.h"
#include "Motion.h"

#include <QObject>
#include <QSet>
#include <QStringList>
#include <QVariantList>
#include <qqmlregistration.h>

#include <optional>

/// The whole state of the practice: six pretend windows of four pretend applications, which of them the pointer is
/// over, what has been practised, and two short signals for feedback. It changes no real window, and nothing of it is
/// kept.
///
/// QML names the cases of an enumeration by their raw strings.
class DemoModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// The windows in the order in which they are shown: a list of `demoWin`.
    Q_PROPERTY(QVariantList wins READ winList NOTIFY winsChanged)
    /// The id of the window under the pointer, -1 for none. The empty place of a window that is gone is none.
    Q_PROPERTY(int hovered READ hoveredId NOTIFY hoveredChanged)
    /// What has been practised at least once, in the order of the tasks. It only grows.
    Q_PROPERTY(QStringList done READ doneNames NOTIFY doneChanged)
    /// The shortcut that has just been performed, "" for none.
    Q_PROPERTY(QString flash READ flashName NOTIFY flashChanged)
    /// Counts the shortcuts that were pressed while the pointer was over no window that is there.
    Q_PROPERTY(int nudge READ nudge NOTIFY nudgeChanged)
    /// The spring of a change that is made now. `reset` has one of its own, which is set here while it changes the
    /// windows.
    Q_PROPERTY(MotionSpring spring READ spring NOTIFY springChanged)
public:
    /// What there is to practise, in the order in which it is asked for.
    enum class Task { hover, close, minimize, fullscreen };
    using Tasks = NamedCases<Task>;

    using Win = DemoWin;
    using State = DemoState;

    explicit DemoModel(QObject *parent = nullptr);

    const QList<Win> &wins() const { return m_wins; }
    std::optional<int> hovered() const { return m_hovered; }
    const QSet<Task> &done() const { return m_done; }
    std::optional<Hotkey> flash() const { return m_flash; }
    int nudge() const { return m_nudge; }
    const MotionSpring &spring() const { return m_spring; }

    /// Brings every window back as it was at first. What is hovered, practised, lit and counted stays.
    Q_INVOKABLE void reset();

    /// Performs a shortcut on a window, records what has been practised with it and lights the shortcut. Nothing at all
    /// happens for an id that no window has.
    void apply(Hotkey hotkey, int id);
    /// The same for the case name of a shortcut; nothing happens for any other text.
    Q_INVOKABLE void apply(const QString &hotkey, int id);

    /// Lights a shortcut for 0.45 seconds, in place of the one before.
    void pulse(Hotkey hotkey);

    /// The shortcut was pressed: it is performed on the hovered window. Without one, or where that window is gone, it
    /// is lit and counted, and nothing comes back.
    void press(Hotkey hotkey);

    /// The pointer entered the window, or left it. Leaving a window that another has taken over from changes nothing.
    Q_INVOKABLE void enter(int id);
    Q_INVOKABLE void leave(int id);

signals:
    void winsChanged();
    void hoveredChanged();
    void doneChanged();
    void flashChanged();
    void nudgeChanged();
    void springChanged();
    /// A shortcut was performed, or pressed in vain; `report` says what came of it, translated.
    void reported(const QString &report);

private:
    QVariantList winList() const;
    int hoveredId() const { return m_hovered.value_or(-1); }
    QStringList doneNames() const;
    QString flashName() const { return m_flash ? Hotkeys::caseName(*m_flash) : QString(); }

    void setWins(const QList<Win> &wins);
    void setHovered(std::optional<int> id);
    void insertDone(Task task);
    void setFlash(std::optional<Hotkey> hotkey);
    void setSpring(const MotionSpring &spring);

    QList<Win> m_wins;
    std::optional<int> m_hovered;
    QSet<Task> m_done;
    std::optional<Hotkey> m_flash;
    int m_nudge = 0;
    /// Which pulse is the latest.
    int m_pulse = 0;
    MotionSpring m_spring;
};
