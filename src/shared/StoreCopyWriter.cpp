#include "StoreCopyWriter.h"

#include "StoreCopy.h"

#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

namespace {

void copy(const QVariantMap &values, const StateFile &file)
{
    if (values.isEmpty() && !file.exists())
        return;
    const QByteArray content = StoreCopy::encode(values);
    if (file.read() != content)
        file.write(content);
}

}

struct StoreCopyWriter::Work {
    explicit Work(StateFile target) : file(std::move(target)) { }

    void run();

    const StateFile file;
    std::mutex mutex;
    std::condition_variable hasEnded;
    bool isRunning = false;
    std::optional<QVariantMap> next;
};

void StoreCopyWriter::Work::run()
{
    std::unique_lock lock(mutex);
    while (const auto values = std::exchange(next, std::nullopt)) {
        lock.unlock();
        copy(*values, file);
        lock.lock();
    }
    isRunning = false;
    hasEnded.notify_all();
}

StoreCopyWriter::StoreCopyWriter(const StateFile &file) : m_work(std::make_shared<Work>(file)) { }

void StoreCopyWriter::write(const QVariantMap &values)
{
    const std::lock_guard lock(m_work->mutex);
    m_work->next = values;
    if (!std::exchange(m_work->isRunning, true))
        std::thread([work = m_work] { work->run(); }).detach();
}

bool StoreCopyWriter::finish(std::chrono::milliseconds limit)
{
    std::unique_lock lock(m_work->mutex);
    return m_work->hasEnded.wait_for(lock, limit, [this] { return !m_work->isRunning; });
}
