import QtQuick
import Corvane.Settings.Window

/// What the settings window hosts: the settings view, telling how large it wants to be.
MeasuredItem {
    id: root

    required property string version
    required property SidebarModel pages
    required property SettingsModel model

    LayoutMirroring.childrenInherit: true
    contentSize: Qt.size(view.implicitWidth, view.implicitHeight)

    EBSettingsView {
        id: view
        width: parent.width
        height: parent.height
        version: root.version
        pages: root.pages
        model: root.model
        roomHeight: root.roomHeight
    }
}
