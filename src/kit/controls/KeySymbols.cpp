#include "KeySymbols.h"

#include <QKeySequence>

#include <algorithm>
#include <array>

namespace {

struct Symbol {
    char16_t symbol;
    int key;
};

constexpr std::array symbols = {
    // Qt's Control is the key that stands for Command on every desktop.
    Symbol{u'⌘', Qt::CTRL},      Symbol{u'⌥', Qt::ALT},        Symbol{u'⌃', Qt::META},
    Symbol{u'⇧', Qt::SHIFT},     Symbol{u'↩', Qt::Key_Return}, Symbol{u'←', Qt::Key_Left},
    Symbol{u'→', Qt::Key_Right}, Symbol{u'↑', Qt::Key_Up},     Symbol{u'↓', Qt::Key_Down},
};

/// The names that Qt looks up for these keys.
[[maybe_unused]] constexpr std::array keyNames = {
    QT_TRANSLATE_NOOP("QShortcut", "Ctrl"),   QT_TRANSLATE_NOOP("QShortcut", "Alt"),
    QT_TRANSLATE_NOOP("QShortcut", "Meta"),   QT_TRANSLATE_NOOP("QShortcut", "Shift"),
    QT_TRANSLATE_NOOP("QShortcut", "Return"), QT_TRANSLATE_NOOP("QShortcut", "Left"),
    QT_TRANSLATE_NOOP("QShortcut", "Right"),  QT_TRANSLATE_NOOP("QShortcut", "Up"),
    QT_TRANSLATE_NOOP("QShortcut", "Down"),
};

bool isSymbol(QChar character)
{
    return std::any_of(symbols.begin(), symbols.end(),
                       [character](const Symbol &symbol) { return symbol.symbol == character; });
}

bool isLetterOrDigit(QChar character)
{
    return (character >= u'A' && character <= u'Z') || (character >= u'0' && character <= u'9');
}

/// Symbols, with a letter or a digit after them if there is one: "⌥⌘W", "⌘←", or the "⌥" of "⌥-click". Every label is
/// looked through while a window starts, and a regular expression would load its library for that.
QList<QStringView> combinations(QStringView text)
{
    QList<QStringView> found;
    const auto *end = text.end();
    for (const auto *begin = std::find_if(text.begin(), end, isSymbol); begin != end;) {
        const auto *behind = std::find_if_not(begin, end, isSymbol);
        if (behind != end && isLetterOrDigit(*behind))
            ++behind;
        found.append(QStringView(begin, behind));
        begin = std::find_if(behind, end, isSymbol);
    }
    return found;
}

QString named(QStringView combination)
{
    int keys = 0;
    for (const QChar key : combination) {
        const auto found =
            std::find_if(symbols.begin(), symbols.end(), [&](const Symbol &symbol) { return symbol.symbol == key; });
        keys |= found == symbols.end() ? key.unicode() : found->key;
    }
    QString name = QKeySequence(keys).toString(QKeySequence::NativeText);
    if (name.endsWith(u'+'))
        name.chop(1);
    return name;
}

}

QString KeySymbols::spelled(const QString &text)
{
    QString spelled;
    const QChar *end = text.begin();
    for (const QStringView &combination : combinations(text)) {
        spelled += QStringView(end, combination.begin()) + named(combination);
        end = combination.end();
    }
    spelled += QStringView(end, text.end());
    return spelled.replace(QStringLiteral(" … "), tr(" to "));
}

QString KeySymbols::keysIn(const QString &text)
{
    QStringList keys;
    for (const QStringView &combination : combinations(text))
        keys.append(named(combination));
    return keys.join(QStringLiteral(", "));
}
