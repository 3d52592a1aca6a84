import QtQuick
import Corvane.Settings.Window

/// What the settings window hosts: the sidebar with the pages, and beside it the page that is selected.
MeasuredItem {
    id: view

    required property string version
    required property SidebarModel pages
    required property SettingsModel model

    LayoutMirroring.childrenInherit: true
    contentSize: Qt.size(620, Math.max(sidebar.implicitHeight + 2 * 8, page.implicitHeight))
    focus: true
    Keys.onPressed: event => event.accepted = page.scrollByKey(event.key)

    Shortcut {
        sequences: ["Ctrl+F"]
        onActivated: sidebar.find()
    }
    Sidebar {
        id: sidebar
        anchors {
            left: parent.left
            top: parent.top
            bottom: parent.bottom
            margins: 8
        }
        version: view.version
        pages: view.pages
        selection: view.model.selection
        notice: view.model.notice
        answers: view.model.answers
        onAnswered: index => view.model.answered(index)
        onPicked: id => view.model.selection = id
    }
    PageArea {
        id: page
        anchors {
            right: parent.right
            top: parent.top
            bottom: parent.bottom
        }
        width: parent.width - sidebar.width - 2 * 8
        model: view.model
        scrolls: view.overflows && page.implicitHeight > Math.ceil(view.roomHeight)
    }
}
