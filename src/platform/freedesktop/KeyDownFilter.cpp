#include "KeyDownFilter.h"

#include "KeyPositions.h"

#include <QCoreApplication>

KeyDownFilter::KeyDownFilter()
{
    QCoreApplication::instance()->installEventFilter(this);
}

// Qt sends a ShortcutOverride first and then, unless a shortcut took the key, a KeyPress. The monitors decide on the
// first, and that decision is reused for the second. A synthetic key may come as a KeyPress alone.
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
