#pragma once

#include <QStringView>

/// The text without spaces and tabs at its ends. Line ends are part of the text.
inline QStringView trimmedWhitespace(QStringView text)
{
    const auto isWhitespace = [](QChar character) {
        return character == u'\t' || character.category() == QChar::Separator_Space;
    };
    while (!text.isEmpty() && isWhitespace(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && isWhitespace(text.back()))
        text.chop(1);
    return text;
}
