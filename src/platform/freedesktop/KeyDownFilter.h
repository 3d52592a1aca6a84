#pragma once

#include "KeyMonitors.h"

#include <QObject>

#include <optional>

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
    /// again as a KeyPress, for which the decision is reused.
    struct Verdict {
        bool isAbout(const QKeyEvent &event) const;

        quint64 timestamp;
        int key;
        Qt::KeyboardModifiers modifiers;
        quint32 scanCode;
        bool isAutoRepeat;
        bool isSwallowed;
    };

    Verdict judge(const QKeyEvent &event) const;

    KeyMonitors m_monitors;
    std::optional<Verdict> m_verdict;
};
