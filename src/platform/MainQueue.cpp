#include "MainQueue.h"

#include <QPointer>
#include <QTimer>

#include <cmath>

namespace {

int milliseconds(double seconds)
{
    return seconds > 0 && std::isfinite(seconds) ? qRound(seconds * 1000) : 0;
}

class TimerRepetition : public MainQueue::Repetition {
public:
    // The timer may be the caller, so it is stopped here and deleted later.
    ~TimerRepetition() override
    {
        if (!timer)
            return;
        timer->stop();
        timer->disconnect();
        timer->deleteLater();
    }

    QPointer<QTimer> timer;
};

}

void MainQueue::after(double seconds, QObject *context, Action action)
{
    QTimer::singleShot(milliseconds(seconds), Qt::PreciseTimer, context, std::move(action));
}

std::unique_ptr<MainQueue::Repetition> MainQueue::every(double seconds, QObject *context, Action action)
{
    auto repetition = std::make_unique<TimerRepetition>();
    auto *timer = new QTimer(context);
    repetition->timer = timer;
    timer->setTimerType(Qt::PreciseTimer);
    QObject::connect(timer, &QTimer::timeout, context, std::move(action));
    timer->start(milliseconds(seconds));
    return repetition;
}
