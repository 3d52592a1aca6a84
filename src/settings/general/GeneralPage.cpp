#include "GeneralPage.h"

#include <QCoreApplication>

EBSettingsPage generalPage()
{
    return {
        .id = QStringLiteral("general"),
        .title = QCoreApplication::translate("GeneralPage", "General"),
        .glyph = GlyphName::gear,
        //: Words that the page is found by, in lower case, with ", " between them. There may be more or fewer of them.
        .keywords = QCoreApplication::translate("GeneralPage",
                                                "login, startup, menu bar, icon, accessibility, permission, guide")
                        .split(QStringLiteral(", ")),
        .content = QUrl(QStringLiteral("qrc:/Corvane/Settings/General/GeneralPane.qml")),
    };
}
