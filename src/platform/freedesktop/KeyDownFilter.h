#pragma once

#include "KeyMonitors.h"

#include <QList>
#include <QObject>

class QKeyEvent;

/// Hands the key-down events of this application's windows to the key monitors. The application object must exist.
class KeyDownFilter : public QObject {
    Q_OBJECT
public:
    KeyDownFilter();

    std::unique_ptr<KeyMonitor> add(KeyMonitor::Handler handler) { return m_monitors.add(std::move(handler)); }

protected:
    bool eventFilter(QObject *receiver, QEvent *event) override;

private:
    /// What the monitors decided about a key on its ShortcutOverride. Where no shortcut takes the key, Qt sends it
    /// again as a KeyPress, for which the decision is reused. A screen reader may get that KeyPress first: then Qt
    /// sends a copy without a time, perhaps after the next key's ShortcutOverride.
    struct Verdict {
        bool isAboutKeyOf(const QKeyEvent &event) const;
        bool isAbout(const QKeyEvent &event) const;

        quint64 timestamp;
        int key;
        Qt::KeyboardModifiers modifiers;
        quint32 scanCode;
        bool isAutoRepeat;
        bool isSwallowed;
    };

    bool isSwallowed(const QKeyEvent &event) const;
    bool judge(const QKeyEvent &question);
    bool recall(const QKeyEvent &press);

    KeyMonitors m_monitors;
    /// At most one for each key, the latest.
    QList<Verdict> m_verdicts;
};
