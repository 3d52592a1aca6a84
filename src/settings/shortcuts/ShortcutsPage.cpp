#include "ShortcutsPage.h"

#include <QCoreApplication>

EBSettingsPage shortcutsPage()
{
    return {
        .id = QStringLiteral("shortcuts"),
        .title = QCoreApplication::translate("ShortcutsPage", "Shortcuts"),
        .glyph = GlyphName::cmd,
        .keywords = {QStringLiteral("keyboard"), QStringLiteral("hotkey"), QStringLiteral("close"),
                     QStringLiteral("hide"), QStringLiteral("quit"), QStringLiteral("minimize")},
        .content = QUrl(QStringLiteral("qrc:/qt/qml/Corvane/Settings/Shortcuts/ShortcutsPane.qml")),
    };
}
