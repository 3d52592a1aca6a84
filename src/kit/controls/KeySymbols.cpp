#include "KeySymbols.h"

#include <array>

namespace {

struct Symbol {
    char16_t symbol;
    const char *word;
};

constexpr std::array symbols = {
    Symbol{u'⌘', QT_TRANSLATE_NOOP("KeySymbols", "Command")}, Symbol{u'⌥', QT_TRANSLATE_NOOP("KeySymbols", "Option")},
    Symbol{u'⌃', QT_TRANSLATE_NOOP("KeySymbols", "Control")}, Symbol{u'⇧', QT_TRANSLATE_NOOP("KeySymbols", "Shift")},
    Symbol{u'↩', QT_TRANSLATE_NOOP("KeySymbols", "Return")},  Symbol{u'←', QT_TRANSLATE_NOOP("KeySymbols", "Left")},
    Symbol{u'→', QT_TRANSLATE_NOOP("KeySymbols", "Right")},   Symbol{u'↑', QT_TRANSLATE_NOOP("KeySymbols", "Up")},
    Symbol{u'↓', QT_TRANSLATE_NOOP("KeySymbols", "Down")},    Symbol{u'…', QT_TRANSLATE_NOOP("KeySymbols", "to")},
};

}

QString KeySymbols::spoken(const QString &keys)
{
    QString words = keys;
    for (const Symbol &symbol : symbols)
        words.replace(QChar(symbol.symbol), tr(symbol.word) + u' ');
    return words.simplified();
}
