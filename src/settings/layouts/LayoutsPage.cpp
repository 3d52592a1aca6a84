#include "LayoutsPage.h"

#include <QCoreApplication>

EBSettingsPage layoutsPage()
{
    return {
        .id = QStringLiteral("layouts"),
        .title = QCoreApplication::translate("LayoutsPage", "Layouts"),
        .glyph = GlyphName::apps,
        .keywords = {QStringLiteral("snap"), QStringLiteral("arrange"), QStringLiteral("tile"),
                     QStringLiteral("window"), QStringLiteral("layout"), QStringLiteral("shelf"),
                     QStringLiteral("gap")},
        .content = QUrl(QStringLiteral("qrc:/qt/qml/Corvane/Settings/Layouts/LayoutsPane.qml")),
    };
}
