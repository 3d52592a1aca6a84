#pragma once

#include "KeyMonitor.h"

#include <QList>

#include <memory>

/// The list of living key monitors, for a platform that distributes key-down events itself.
class KeyMonitors {
public:
    /// A monitor of its own for `handler`, which must not be empty. It may outlive this object.
    std::unique_ptr<KeyMonitor> add(KeyMonitor::Handler handler);

    /// Asks the monitors, newest first, until one swallows the key; true when one did. A monitor made during the call
    /// is not asked.
    bool swallow(const KeyDown &key) const;

    /// How many there are.
    qsizetype count() const { return m_handlers->size(); }

private:
    using Handlers = QList<std::shared_ptr<KeyMonitor::Handler>>;

    class Listed;

    std::shared_ptr<Handlers> m_handlers = std::make_shared<Handlers>();
};
