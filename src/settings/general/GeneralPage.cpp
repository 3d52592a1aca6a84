#include "GeneralPage.h"

#include <QCoreApplication>

EBSettingsPage generalPage()
{
    return {
        .id = QStringLiteral("general"),
        .title = QCoreApplication::translate("GeneralPage", "General"),
        .glyph = GlyphName::gear,
        .keywords = {QStringLiteral("login"), QStringLiteral("startup"), QStringLiteral("menu bar"),
                     QStringLiteral("icon"), QStringLiteral("accessibility"), QStringLiteral("permission"),
                     QStringLiteral("guide")},
        .content = QUrl(QStringLiteral("qrc:/qt/qml/Corvane/Settings/General/GeneralPane.qml")),
    };
}
