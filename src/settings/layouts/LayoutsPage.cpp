#include "LayoutsPage.h"

#include <QCoreApplication>

EBSettingsPage layoutsPage()
{
    return {
        .id = QStringLiteral("layouts"),
        .title = QCoreApplication::translate("LayoutsPage", "Layouts"),
        .glyph = GlyphName::apps,
        //: Words that the page is found by, in lower case, with ", " between them. There may be more or fewer of them.
        .keywords = QCoreApplication::translate("LayoutsPage", "snap, arrange, tile, window, layout, shelf, gap")
                        .split(QStringLiteral(", ")),
        .content = QUrl(QStringLiteral("qrc:/Corvane/Settings/Layouts/LayoutsPane.qml")),
    };
}
