#include "ButtonsPage.h"

#include <QCoreApplication>

EBSettingsPage buttonsPage()
{
    return {
        .id = QStringLiteral("buttons"),
        .title = QCoreApplication::translate("ButtonsPage", "Buttons"),
        .glyph = GlyphName::wins,
        //: Words that the page is found by, in lower case, with ", " between them. There may be more or fewer of them.
        .keywords = QCoreApplication::translate("ButtonsPage",
                                                "look, theme, colour, color, size, minimize, full screen, maximize")
                        .split(QStringLiteral(", ")),
        .content = QUrl(QStringLiteral("qrc:/Corvane/Settings/Buttons/ButtonsPane.qml")),
    };
}
