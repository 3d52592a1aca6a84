#include "SceneTable.h"

#include <algorithm>

namespace {

struct Row {
    const char *name;
    const char *file;
    const char *glyph;
};

// A new scene is a file in scenes/, a line in CMakeLists.txt and a row here.
constexpr Row rows[] = {
    {"glyphs", "GlyphsScene", "spark"},
    {"palette", "PaletteScene", "eye"},
    {"type", "TypeScene", "note"},
    {"buttons", "ButtonsScene", "play"},
    {"buttons-loud", "LoudButtonsScene", "speaker"},
    {"switches", "SwitchesScene", "power"},
    {"icon-buttons", "IconButtonsScene", "plus"},
    {"segmented", "SegmentedScene", "sliders"},
    {"search-field", "SearchFieldScene", "search"},
    {"rows", "RowsScene", "levels"},
    {"labels-and-notes", "LabelsAndNotesScene", "flag"},
    {"group", "GroupScene", "dock"},
    {"status-and-discs", "StatusAndDiscsScene", "check"},
    {"window-buttons", "WindowButtonsScene", "dots"},
    {"sidebar", "SidebarScene", "apps"},
    {"settings-general", "SettingsGeneralScene", "gear"},
    {"settings-general-approval", "SettingsGeneralApprovalScene", "gear"},
    {"settings-general-trusted", "SettingsGeneralTrustedScene", "gear"},
    {"settings-general-mirrored", "SettingsGeneralMirroredScene", "gear"},
    {"settings-search", "SettingsSearchScene", "gear"},
};

}

const QList<SceneEntry> &SceneTable::all()
{
    static const QList<SceneEntry> scenes = [] {
        QList<SceneEntry> list;
        for (const Row &row : rows) {
            const QUrl source(QStringLiteral("qrc:/qt/qml/Corvane/Gallery/scenes/%1.qml").arg(QLatin1String(row.file)));
            list.append({QString::fromLatin1(row.name), source, QString::fromLatin1(row.glyph)});
        }
        return list;
    }();
    return scenes;
}

const SceneEntry *SceneTable::find(const QString &name)
{
    const auto found =
        std::find_if(all().begin(), all().end(), [&](const SceneEntry &scene) { return scene.name == name; });
    return found == all().end() ? nullptr : &*found;
}
