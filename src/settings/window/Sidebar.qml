pragma ComponentBehavior: Bound
import QtQuick
import Embera.Tokens
import Embera.Marks
import Embera.Controls
import Embera.Rows
import Corvane.Settings.Window

/// The search field, the pages it finds, a line that is seldom there, and the product's mark, name and version. Up and Down move among the pages.
Item {
    id: sidebar

    required property string version
    required property SidebarModel pages
    required property string selection
    /// A line for the person in the foot's place, read out when it comes up; usually empty.
    property string notice
    /// What can be answered to it.
    property list<string> answers

    /// The person gave the answer of that index.
    signal answered(index: int)
    /// The person chose the page with this id.
    signal picked(id: string)

    /// Puts the keyboard focus into the search field.
    function find() {
        search.activate();
    }
    function move(step: int) {
        picked(pages.neighbour(selection, step));
    }
    /// The focus stays in the search field, so that nothing tells by itself which page has come up.
    function moveFromSearch(step: int) {
        move(step);
        announcement.say(pages.title(selection));
    }

    implicitWidth: 178
    implicitHeight: list.y + list.implicitHeight + 8 + Math.max(footer.height, notice ? noticePlace.implicitHeight : 0) + 12

    ContinuousRectangle {
        anchors.fill: parent
        radius: 22
        color: EB.sunk
    }
    EBSearchField {
        id: search
        anchors {
            left: parent.left
            right: parent.right
            top: parent.top
            topMargin: 44
            leftMargin: 16
            rightMargin: 16
        }
        placeholder: qsTr("Search")
        onTextChanged: sidebar.pages.search = text
        onMovedUp: sidebar.moveFromSearch(-1)
        onMovedDown: sidebar.moveFromSearch(1)
    }
    Announcement {
        id: announcement
    }
    FocusScope {
        id: list
        anchors {
            left: parent.left
            right: parent.right
            top: search.bottom
            topMargin: 8 + items.spacing
            leftMargin: 10
            rightMargin: 10
        }
        implicitHeight: items.implicitHeight
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Pages")
        Keys.onUpPressed: sidebar.move(-1)
        Keys.onDownPressed: sidebar.move(1)

        Column {
            id: items
            width: parent.width
            spacing: 2

            Repeater {
                model: sidebar.pages

                EBSidebarItem {
                    required property string pageId

                    width: items.width
                    selected: sidebar.selection === pageId
                    // Tab stops at one page of the list, the arrow keys go on from there.
                    tabStop: sidebar.pages.neighbour(sidebar.selection, 0) === pageId
                    onClicked: sidebar.picked(pageId)
                    onSelectedChanged: if (selected && list.activeFocus)
                        forceActiveFocus(Qt.TabFocusReason)
                }
            }
        }
    }
    Loader {
        id: noticePlace
        anchors {
            left: parent.left
            right: parent.right
            bottom: parent.bottom
            leftMargin: 10
            rightMargin: 10
            bottomMargin: 12
        }
        active: sidebar.notice !== ""
        visible: active
        Component.onCompleted: setSource("SidebarNotice.qml", {sidebar: sidebar})
    }
    // As high as the two lines beside it, and in line with the pages' glyphs.
    Mark {
        id: mark
        visible: !noticePlace.visible
        anchors {
            left: parent.left
            leftMargin: 18
            verticalCenter: footer.verticalCenter
        }
        size: 24
        color: EBEnvironment.accent
    }
    EBLabel {
        id: footer
        visible: mark.visible
        anchors {
            left: mark.right
            right: parent.right
            bottom: parent.bottom
            leftMargin: 6
            rightMargin: 10
            bottomMargin: 12
        }
        //: %1 is the product's name, %2 its version.
        text: qsTr("%1\nVersion %2").arg(EBEnvironment.displayName).arg(sidebar.version)
    }
}
