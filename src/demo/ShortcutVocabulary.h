#pragma once

#include "DemoWin.h"
#include "Hotkey.h"

#include <QObject>
#include <qqmlregistration.h>

/// What a shortcut that is practised looks like on a key and how it is called. Shortcuts are named by their case names;
/// any other text has neither.
class ShortcutVocabulary : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    using QObject::QObject;

    /// The key text, "⌘W".
    Q_INVOKABLE static QString keys(const QString &hotkey);
    /// What the shortcut does, in a few words, translated.
    Q_INVOKABLE static QString name(const QString &hotkey);

    /// What a shortcut has done to a window, which is given as it is now, for those who do not see it; translated.
    static QString report(Hotkey hotkey, const DemoWin &win);
};
