#include "KeyDownFilter.h"

#include "KeyPositions.h"

#include <QCoreApplication>

KeyDownFilter::KeyDownFilter()
{
    QCoreApplication::instance()->installEventFilter(this);
}

// Qt asks the window first whether it wants a key for itself rather than for a shortcut, and then sends the key, unless
// a shortcut took it. A key that a program makes up may come without the question.
bool KeyDownFilter::eventFilter(QObject *receiver, QEvent *event)
{
    const bool isQuestion = event->type() == QEvent::ShortcutOverride;
    if (!receiver->isWindowType() || (!isQuestion && event->type() != QEvent::KeyPress))
        return false;
    const auto &key = static_cast<const QKeyEvent &>(*event);
    const auto earlier = std::exchange(m_verdict, std::nullopt);
    const Verdict verdict = !isQuestion && earlier && earlier->isAbout(key) ? *earlier : judge(key);
    if (isQuestion)
        m_verdict = verdict;
    if (verdict.isSwallowed)
        event->accept();
    return verdict.isSwallowed;
}

KeyDownFilter::Verdict KeyDownFilter::judge(const QKeyEvent &event) const
{
    const bool isSwallowed = m_monitors.swallow(
        {KeyPositions::keyCode(event), KeyPositions::flags(event.modifiers()), event.isAutoRepeat()});
    return {event.timestamp(),      event.key(),          event.modifiers(),
            event.nativeScanCode(), event.isAutoRepeat(), isSwallowed};
}

bool KeyDownFilter::Verdict::isAbout(const QKeyEvent &event) const
{
    return timestamp == event.timestamp() && key == event.key() && modifiers == event.modifiers()
        && scanCode == event.nativeScanCode() && isAutoRepeat == event.isAutoRepeat();
}
