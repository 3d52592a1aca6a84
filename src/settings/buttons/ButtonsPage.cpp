#include "ButtonsPage.h"

#include <QCoreApplication>

EBSettingsPage buttonsPage()
{
    return {
        .id = QStringLiteral("buttons"),
        .title = QCoreApplication::translate("ButtonsPage", "Buttons"),
        .glyph = GlyphName::wins,
        .keywords = {QStringLiteral("look"), QStringLiteral("theme"), QStringLiteral("colour"), QStringLiteral("color"),
                     QStringLiteral("size"), QStringLiteral("minimize"), QStringLiteral("full screen"),
                     QStringLiteral("maximize")},
        .content = QUrl(QStringLiteral("qrc:/qt/qml/Corvane/Settings/Buttons/ButtonsPane.qml")),
    };
}
