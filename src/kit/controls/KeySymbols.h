#pragma once

#include <QObject>
#include <qqmlregistration.h>

/// Key symbols as the keys that they stand for on the keyboards of this desktop.
class KeySymbols : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    using QObject::QObject;

    /// A text with the keys in place of the symbols: "Press Ctrl+Alt+W." for "Press ⌥⌘W.", and
    /// "Ctrl+1 to Ctrl+9" for "⌘1 … ⌘9".
    Q_INVOKABLE static QString spelled(const QString &text);

    /// The keys alone, "Ctrl+Alt+W"; empty for a text without key symbols.
    Q_INVOKABLE static QString keysIn(const QString &text);
};
