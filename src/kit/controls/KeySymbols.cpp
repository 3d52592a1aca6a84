#include "KeySymbols.h"

#include <QKeySequence>
#include <QRegularExpression>

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

/// Symbols, with a letter or a digit after them if there is one: "⌥⌘W", "⌘←", or the "⌥" of "⌥-click".
const QRegularExpression &combination()
{
    static const QRegularExpression expression(QStringLiteral("[⌘⌥⌃⇧↩←→↑↓]+[A-Z0-9]?"));
    return expression;
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
    qsizetype end = 0;
    for (const QRegularExpressionMatch &match : combination().globalMatch(text)) {
        spelled += QStringView(text).mid(end, match.capturedStart() - end) + named(match.capturedView());
        end = match.capturedEnd();
    }
    spelled += QStringView(text).mid(end);
    return spelled.replace(QStringLiteral(" … "), tr(" to "));
}

QString KeySymbols::keysIn(const QString &text)
{
    QStringList keys;
    for (const QRegularExpressionMatch &match : combination().globalMatch(text))
        keys.append(named(match.capturedView()));
    return keys.join(QStringLiteral(", "));
}
