#pragma once

#include "KeyMonitor.h"

#include <QList>

#include <memory>

/// The key monitors that are held, for a platform that hands out key-down events itself.
class KeyMonitors {
public:
    /// A monitor of its own for `handler`, which must not be empty. It may outlive this object.
    std::unique_ptr<KeyMonitor> add(KeyMonitor::Handler handler);

    /// Asks the monitors, the newest first, until one swallows the key. True when one did. A monitor made meanwhile is
    /// not asked.
    bool swallow(const KeyDown &key) const;

    /// How many there are.
    qsizetype count() const { return m_handlers->size(); }

private:
    using Handlers = QList<std::shared_ptr<KeyMonitor::Handler>>;

    class Listed;

    std::shared_ptr<Handlers> m_handlers = std::make_shared<Handlers>();
};
