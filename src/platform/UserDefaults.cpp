#include "UserDefaults.h"

#include <QEventLoop>
#include <QTimer>

#include <algorithm>
#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr std::chrono::milliseconds firstRetry = 5s;
constexpr std::chrono::milliseconds longestRetry = 60s;

}

UserDefaults::UserDefaults(QObject *parent) : QObject(parent), m_firstRetry(firstRetry), m_nextRetry(firstRetry) { }

UserDefaults::~UserDefaults() = default;

QVariant UserDefaults::value(const QString &key) const
{
    const auto newest = std::find_if(m_entries.crbegin(), m_entries.crend(),
                                     [&](const Entry &entry) { return entry.isWriteOf(key) && entry.isShown; });
    return newest != m_entries.crend() ? newest->value : storedValue(key);
}

void UserDefaults::setValue(const QString &key, const QVariant &value)
{
    const auto typed = storable(value);
    if (!typed)
        return;
    const bool isNew = !isSame(this->value(key), *typed);
    // Whatever else waited for that key is out of date.
    m_entries.removeIf([&](const Entry &entry) {
        return entry.isWriteOf(key) && entry.state != Entry::State::sending && entry.trouble != Trouble::none
            && (isNew || !entry.isShown);
    });
    if (isNew) {
        m_openGroup->hasWrites = true;
        m_entries.append({.name = key, .value = *typed, .action = {}, .group = m_openGroup});
        emit changed(key);
    }
    updateTrouble();
    proceed();
}

void UserDefaults::afterWrites(const QString &name, std::function<void()> action)
{
    const auto group = m_announcedGroup ? m_announcedGroup : m_openGroup;
    const bool isKnown = std::any_of(m_entries.cbegin(), m_entries.cend(), [&](const Entry &entry) {
        return entry.action && entry.name == name && entry.group == group;
    });
    if (isKnown)
        return;
    m_entries.append({.name = name, .value = {}, .action = std::move(action), .group = group});
    if (group == m_openGroup)
        m_openGroup = std::make_shared<Group>();
    proceed();
}

bool UserDefaults::finishWrites(std::chrono::milliseconds limit)
{
    QEventLoop loop;
    connect(this, &UserDefaults::settled, &loop, &QEventLoop::quit);
    retry();
    if (indexOf(Entry::State::sending) >= 0) {
        QTimer::singleShot(limit, &loop, &QEventLoop::quit);
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    }
    return m_entries.isEmpty();
}

void UserDefaults::setRetryInterval(std::chrono::milliseconds first)
{
    m_firstRetry = first;
    m_nextRetry = first;
}

// Storing may end at once, and actions and whoever hears of a change may set further values: all of them come back to
// the one loop.
void UserDefaults::proceed()
{
    if (m_isProceeding || indexOf(Entry::State::sending) >= 0)
        return;
    m_isProceeding = true;
    for (qsizetype next = nextEntry(); next >= 0; next = nextEntry()) {
        if (m_entries.at(next).action) {
            run(m_entries.takeAt(next));
            continue;
        }
        m_entries[next].state = Entry::State::sending;
        const QString key = m_entries.at(next).name;
        const QVariant value = m_entries.at(next).value;
        store(key, value);
        if (indexOf(Entry::State::sending) >= 0)
            break;
    }
    m_isProceeding = false;
    if (indexOf(Entry::State::sending) < 0)
        emit settled();
}

qsizetype UserDefaults::indexOf(Entry::State state) const
{
    const auto found = std::find_if(m_entries.cbegin(), m_entries.cend(),
                                    [state](const Entry &entry) { return !entry.action && entry.state == state; });
    return found != m_entries.cend() ? found - m_entries.cbegin() : -1;
}

/// The first value that is due, or action that waits for none; less than 0 when there is neither.
qsizetype UserDefaults::nextEntry() const
{
    const auto isWaitedFor = [this](const Group *group) {
        return std::any_of(m_entries.cbegin(), m_entries.cend(),
                           [group](const Entry &entry) { return !entry.action && entry.group.get() == group; });
    };
    const auto found = std::find_if(m_entries.cbegin(), m_entries.cend(), [&](const Entry &entry) {
        return entry.action ? !isWaitedFor(entry.group.get()) : entry.state == Entry::State::due;
    });
    return found != m_entries.cend() ? found - m_entries.cbegin() : -1;
}

void UserDefaults::run(const Entry &action)
{
    if (action.group->hasStored || !action.group->hasWrites)
        action.action();
}

void UserDefaults::storeFinished(Trouble trouble)
{
    const qsizetype index = indexOf(Entry::State::sending);
    if (index < 0)
        return;
    if (trouble == Trouble::none)
        stored(m_entries.takeAt(index));
    else
        refuse(index, trouble);
    updateTrouble();
    proceed();
}

void UserDefaults::stored(const Entry &entry)
{
    entry.group->hasStored = true;
    m_isLocked = false;
    // What is possible again may be so for the others.
    for (Entry &other : m_entries)
        other.state = Entry::State::due;
    if (!entry.isShown)
        announce(entry);
}

void UserDefaults::refuse(qsizetype index, Trouble trouble)
{
    Entry &waiting = m_entries[index];
    waiting.state = Entry::State::failed;
    waiting.trouble = trouble;
    const bool vanishes = waiting.isShown && trouble != Trouble::noStore;
    waiting.isShown = waiting.isShown && !vanishes;
    const Entry entry = waiting;
    if (trouble == Trouble::locked) {
        m_isLocked = true;
        m_entries.removeAt(index);
    } else {
        scheduleRetry();
    }
    if (vanishes)
        announce(entry);
}

/// Tells that the key of a value that was set earlier reads differently now.
void UserDefaults::announce(const Entry &entry)
{
    const auto outer = std::exchange(m_announcedGroup, entry.group);
    emit changed(entry.name);
    emit revised(entry.name);
    m_announcedGroup = outer;
}

void UserDefaults::storedChanged(const QString &key)
{
    m_entries.removeIf([&](const Entry &entry) {
        const bool isMeant = !entry.action && (key.isEmpty() || entry.name == key) && entry.trouble != Trouble::none
            && entry.state != Entry::State::sending;
        // It may be the late success of an attempt that seemed to have failed.
        if (isMeant && isSame(storedValue(entry.name), entry.value))
            entry.group->hasStored = true;
        return isMeant;
    });
    emit changed(key);
    updateTrouble();
    if (m_trouble == Trouble::noAnswer || m_trouble == Trouble::noRoom)
        retry();
    else
        proceed();
}

void UserDefaults::retry()
{
    for (Entry &entry : m_entries) {
        if (entry.state == Entry::State::failed)
            entry.state = Entry::State::due;
    }
    proceed();
}

void UserDefaults::scheduleRetry()
{
    if (!m_retryTimer) {
        m_retryTimer = std::make_unique<QTimer>();
        m_retryTimer->setSingleShot(true);
        connect(m_retryTimer.get(), &QTimer::timeout, this, &UserDefaults::retry);
    }
    if (m_retryTimer->isActive())
        return;
    m_retryTimer->start(m_nextRetry);
    m_nextRetry = std::min(2 * m_nextRetry, longestRetry);
}

void UserDefaults::updateTrouble()
{
    Trouble trouble = m_isLocked ? Trouble::locked : Trouble::none;
    for (const Entry &entry : std::as_const(m_entries)) {
        if (entry.trouble != Trouble::none)
            trouble = entry.trouble;
    }
    if (trouble == Trouble::none && m_retryTimer) {
        m_retryTimer->stop();
        m_nextRetry = m_firstRetry;
    }
    if (trouble == m_trouble)
        return;
    m_trouble = trouble;
    emit troubleChanged();
}

std::optional<QVariant> UserDefaults::storable(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
    case QMetaType::Bool:
    case QMetaType::QString:
    case QMetaType::Double:
        return value;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
        return value.toDouble();
    default:
        return std::nullopt;
    }
}

bool UserDefaults::isSame(const QVariant &one, const QVariant &other)
{
    return one.metaType() == other.metaType() && one == other;
}
