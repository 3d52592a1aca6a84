#include "ShortcutsPage.h"

#include <QCoreApplication>

EBSettingsPage shortcutsPage()
{
    return {
        .id = QStringLiteral("shortcuts"),
        .title = QCoreApplication::translate("ShortcutsPage", "Shortcuts"),
        .glyph = GlyphName::cmd,
        //: Words that the page is found by, in lower case, with ", " between them. There may be more or fewer of them.
        .keywords = QCoreApplication::translate("ShortcutsPage", "keyboard, hotkey, close, hide, quit, minimize")
                        .split(QStringLiteral(", ")),
        .content = QUrl(QStringLiteral("qrc:/Corvane/Settings/Shortcuts/ShortcutsPane.qml")),
    };
}
