#include "ShortcutVocabulary.h"

#include "Hotkey.h"

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
