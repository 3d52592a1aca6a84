#pragma once

#include <QObject>
#include <qqmlregistration.h>

/// Key symbols as words.
class KeySymbols : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    using QObject::QObject;

    /// "⌥⌘W" as "Option Command W", for those who hear it. What is no symbol stays as it is.
    Q_INVOKABLE static QString spoken(const QString &keys);
};
