#include "SceneTable.h"

#include <algorithm>

namespace {

struct Row {
    SceneKind kind;
    const char *name;
    const char *file;
    const char *glyph;
};

// A new scene is a file in scenes/, a line in CMakeLists.txt and a row here.
constexpr Row rows[] = {
    {SceneKind::controls, "glyphs", "GlyphsScene", "spark"},
    {SceneKind::controls, "marks", "MarksScene", "apps"},
    {SceneKind::controls, "mark-construction", "MarkConstructionScene", "dock"},
    {SceneKind::controls, "dot-field", "DotFieldScene", "dots"},
    {SceneKind::tokens, "palette", "PaletteScene", "eye"},
    {SceneKind::tokens, "type", "TypeScene", "note"},
    {SceneKind::controls, "buttons", "ButtonsScene", "play"},
    {SceneKind::controls, "buttons-loud", "LoudButtonsScene", "speaker"},
    {SceneKind::controls, "switches", "SwitchesScene", "power"},
    {SceneKind::controls, "icon-buttons", "IconButtonsScene", "plus"},
    {SceneKind::controls, "segmented", "SegmentedScene", "sliders"},
    {SceneKind::controls, "search-field", "SearchFieldScene", "search"},
    {SceneKind::controls, "key-caps", "KeyCapsScene", "key"},
    {SceneKind::controls, "rows", "RowsScene", "levels"},
    {SceneKind::controls, "labels-and-notes", "LabelsAndNotesScene", "flag"},
    {SceneKind::controls, "group", "GroupScene", "dock"},
    {SceneKind::controls, "status-and-discs", "StatusAndDiscsScene", "check"},
    {SceneKind::controls, "window-buttons", "WindowButtonsScene", "dots"},
    {SceneKind::controls, "sidebar", "SidebarScene", "apps"},
    {SceneKind::controls, "overlay-buttons", "OverlayButtonsScene", "wins"},
    {SceneKind::controls, "panel", "PanelScene", "levels"},
    {SceneKind::controls, "practice", "PracticeScene", "cursor"},
    {SceneKind::controls, "practice-states", "PracticeStatesScene", "cursor"},
    {SceneKind::controls, "practice-motion", "PracticeMotionScene", "cursor"},
    {SceneKind::controls, "step-list", "StepListScene", "levels"},
    {SceneKind::screen, "step-screen", "StepScreenScene", "flag"},
    {SceneKind::screen, "stage-screen", "StageScreenScene", "flag"},
    {SceneKind::screen, "loud-screen", "LoudScreenScene", "speaker"},
    {SceneKind::screen, "loud-screen-900x388", "LoudScreen900x388Scene", "speaker"},
    {SceneKind::screen, "loud-screen-1120x776", "LoudScreen1120x776Scene", "speaker"},
    {SceneKind::screen, "loud-screen-1800x1200", "LoudScreen1800x1200Scene", "speaker"},
    {SceneKind::screen, "about-screen", "AboutScreenScene", "info"},
    {SceneKind::screen, "guide-welcome", "GuideWelcomeScene", "flag"},
    {SceneKind::screen, "guide-try-it", "GuideTryItScene", "wins"},
    {SceneKind::screen, "guide-access", "GuideAccessScene", "key"},
    {SceneKind::screen, "guide-access-requested", "GuideAccessRequestedScene", "key"},
    {SceneKind::screen, "guide-access-tile", "GuideAccessTileScene", "key"},
    {SceneKind::screen, "guide-access-trusted", "GuideAccessTrustedScene", "key"},
    {SceneKind::screen, "guide-customize", "GuideCustomizeScene", "sliders"},
    {SceneKind::screen, "guide-welcome-mirrored", "GuideWelcomeMirroredScene", "flag"},
    {SceneKind::screen, "guide-try-it-mirrored", "GuideTryItMirroredScene", "wins"},
    {SceneKind::screen, "guide-access-mirrored", "GuideAccessMirroredScene", "key"},
    {SceneKind::screen, "guide-customize-mirrored", "GuideCustomizeMirroredScene", "sliders"},
    {SceneKind::screen, "guide-done", "GuideDoneScene", "check"},
    {SceneKind::screen, "settings-general", "SettingsGeneralScene", "gear"},
    {SceneKind::screen, "settings-general-approval", "SettingsGeneralApprovalScene", "gear"},
    {SceneKind::screen, "settings-general-trusted", "SettingsGeneralTrustedScene", "gear"},
    {SceneKind::screen, "settings-general-mirrored", "SettingsGeneralMirroredScene", "gear"},
    {SceneKind::screen, "settings-buttons", "SettingsButtonsScene", "wins"},
    {SceneKind::screen, "settings-shortcuts", "SettingsShortcutsScene", "cmd"},
    {SceneKind::screen, "settings-layouts", "SettingsLayoutsScene", "apps"},
    {SceneKind::screen, "settings-layouts-saved", "SettingsLayoutsSavedScene", "apps"},
    {SceneKind::screen, "settings-layouts-edited", "SettingsLayoutsEditedScene", "apps"},
    {SceneKind::screen, "drag-tile", "DragTileScene", "arrow"},
    {SceneKind::screen, "settings-search", "SettingsSearchScene", "search"},
};

}

const QList<SceneEntry> &SceneTable::all()
{
    static const QList<SceneEntry> scenes = [] {
        QList<SceneEntry> list;
        for (const Row &row : rows) {
            const QUrl source(QStringLiteral("qrc:/Corvane/Gallery/scenes/%1.qml").arg(QLatin1String(row.file)));
            list.append({row.kind, QString::fromLatin1(row.name), source, QString::fromLatin1(row.glyph)});
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
