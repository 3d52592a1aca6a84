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
    const bool swallows = isQuestion ? judge(key) : recall(key);
    if (swallows)
        event->accept();
    return swallows;
}

bool KeyDownFilter::isSwallowed(const QKeyEvent &event) const
{
    return m_monitors.swallow(
        {KeyPositions::keyCode(event), KeyPositions::flags(event.modifiers()), event.isAutoRepeat()});
}

bool KeyDownFilter::judge(const QKeyEvent &question)
{
    const bool swallows = isSwallowed(question);
    m_verdicts.removeIf([&](const Verdict &verdict) { return verdict.isAboutKeyOf(question); });
    m_verdicts.append({question.timestamp(), question.key(), question.modifiers(), question.nativeScanCode(),
                       question.isAutoRepeat(), swallows});
    return swallows;
}

bool KeyDownFilter::recall(const QKeyEvent &press)
{
    const auto found = std::find_if(m_verdicts.cbegin(), m_verdicts.cend(),
                                    [&](const Verdict &verdict) { return verdict.isAbout(press); });
    if (found == m_verdicts.cend())
        return isSwallowed(press);
    const bool swallows = found->isSwallowed;
    // Of a key that is struck again meanwhile there may be more than one copy.
    if (found->timestamp == press.timestamp())
        m_verdicts.erase(found);
    return swallows;
}

bool KeyDownFilter::Verdict::isAboutKeyOf(const QKeyEvent &event) const
{
    return key == event.key() && modifiers == event.modifiers() && scanCode == event.nativeScanCode()
        && isAutoRepeat == event.isAutoRepeat();
}

bool KeyDownFilter::Verdict::isAbout(const QKeyEvent &event) const
{
    return isAboutKeyOf(event) && (timestamp == event.timestamp() || event.timestamp() == 0);
}
