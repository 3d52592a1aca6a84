#pragma once

#include "EBKitColor.h"

#include <QFont>
#include <QString>
#include <QTextFormat>
#include <QTextOption>

/// What a label of the view-class half of the kit is made from. `kern` is extra letter spacing in points.
struct EBKitText {
    QString string;
    QFont font;
    EBKitColor color;
    qreal kern = 0;
    Qt::Alignment alignment = Qt::AlignLeading;

    /// The text with its font, colour and kern over the whole string, and a paragraph that wraps at words.
    struct Attributed {
        QString string;
        QTextCharFormat characters;
        QTextOption paragraph;
    };
    Attributed attributed() const;
};
