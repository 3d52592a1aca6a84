#include "KeyMonitors.h"

#include <algorithm>

class KeyMonitors::Listed : public KeyMonitor {
public:
    Listed(std::shared_ptr<Handlers> handlers, Handler handler)
        : m_handlers(std::move(handlers)), m_handler(std::make_shared<Handler>(std::move(handler)))
    {
        m_handlers->append(m_handler);
    }
    ~Listed() override { m_handlers->removeOne(m_handler); }
    Q_DISABLE_COPY_MOVE(Listed)

private:
    std::shared_ptr<Handlers> m_handlers;
    std::shared_ptr<Handler> m_handler;
};

std::unique_ptr<KeyMonitor> KeyMonitors::add(KeyMonitor::Handler handler)
{
    return std::make_unique<Listed>(m_handlers, std::move(handler));
}

bool KeyMonitors::swallow(const KeyDown &key) const
{
    // A handler may destroy monitors, its own included: the copies keep the list and the handlers alive meanwhile.
    const std::shared_ptr<Handlers> present = m_handlers;
    const Handlers asked = *present;
    return std::any_of(asked.crbegin(), asked.crend(),
                       [&](const auto &handler) { return present->contains(handler) && (*handler)(key); });
}
