#include "FakeMainQueue.h"

#include <algorithm>
#include <cmath>

namespace {

class FakeRepetition : public MainQueue::Repetition {
public:
    std::shared_ptr<const bool> alive = std::make_shared<const bool>(true);
};

}

FakeMainQueue::Time FakeMainQueue::time(double seconds)
{
    return seconds > 0 && std::isfinite(seconds) ? std::llround(seconds * 1e6) : 0;
}

void FakeMainQueue::after(double seconds, QObject *context, Action action)
{
    insert({m_now + time(seconds), 0, context, {}, std::move(action)});
}

std::unique_ptr<MainQueue::Repetition> FakeMainQueue::every(double seconds, QObject *context, Action action)
{
    auto repetition = std::make_unique<FakeRepetition>();
    const Time period = std::max<Time>(1, time(seconds));
    insert({m_now + period, period, context, repetition->alive, std::move(action)});
    return repetition;
}

void FakeMainQueue::insert(const Entry &entry)
{
    const auto place = std::upper_bound(m_entries.cbegin(), m_entries.cend(), entry.due,
                                        [](Time due, const Entry &other) { return due < other.due; });
    m_entries.insert(place, entry);
}

void FakeMainQueue::advance(double seconds)
{
    const Time end = m_now + time(seconds);
    while (!m_entries.isEmpty() && m_entries.first().due <= end) {
        Entry entry = m_entries.takeFirst();
        if (!entry.isAlive())
            continue;
        m_now = entry.due;
        if (entry.period > 0)
            insert({entry.due + entry.period, entry.period, entry.context, entry.handle, entry.action});
        entry.action();
    }
    m_now = end;
}

qsizetype FakeMainQueue::waiting() const
{
    return std::count_if(m_entries.cbegin(), m_entries.cend(), [](const Entry &entry) { return entry.isAlive(); });
}
