#include "ShortcutVocabulary.h"

namespace {

// In the order of the shortcuts.
constexpr std::array names = {
    QT_TRANSLATE_NOOP("ShortcutVocabulary", "Close"),
    QT_TRANSLATE_NOOP("ShortcutVocabulary", "Close all windows of the app"),
    QT_TRANSLATE_NOOP("ShortcutVocabulary", "Minimize"),
    QT_TRANSLATE_NOOP("ShortcutVocabulary", "Full screen"),
    QT_TRANSLATE_NOOP("ShortcutVocabulary", "Hide app"),
    QT_TRANSLATE_NOOP("ShortcutVocabulary", "Hide other apps"),
    QT_TRANSLATE_NOOP("ShortcutVocabulary", "Force-quit app"),
};
static_assert(names.size() == Hotkeys::allCases.size());

}

QString ShortcutVocabulary::keys(const QString &hotkey)
{
    const auto found = Hotkeys::fromCaseName(hotkey);
    return found ? Hotkeys::shownAs(*found) : QString();
}

QString ShortcutVocabulary::name(const QString &hotkey)
{
    const auto found = Hotkeys::fromCaseName(hotkey);
    return found ? tr(names.at(static_cast<std::size_t>(*found))) : QString();
}

QString ShortcutVocabulary::report(Hotkey hotkey, const DemoWin &win)
{
    switch (hotkey) {
    case Hotkey::close:
        //: %1 is the title of a window; so it is below where a window is minimized or full screen.
        return tr("%1 closed").arg(win.title);
    case Hotkey::minimize:
        return tr("%1 minimized").arg(win.title);
    case Hotkey::maximize:
        return (win.state == DemoState::full ? tr("%1 full screen") : tr("%1 no longer full screen")).arg(win.title);
    case Hotkey::closeAll:
        //: %1 is the name of an application; so it is below.
        return tr("All windows of %1 closed").arg(win.app);
    case Hotkey::hide:
        return tr("%1 hidden").arg(win.app);
    case Hotkey::hideOthers:
        return tr("All but %1 hidden").arg(win.app);
    case Hotkey::kill:
        return tr("%1 quit").arg(win.app);
    }
    Q_UNREACHABLE();
}
