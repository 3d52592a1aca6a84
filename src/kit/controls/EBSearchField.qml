import QtQuick
import QtQuick.Templates as T
import Embera.Tokens
import Embera.Glyphs
import Embera.Controls

/// A search field. `text` follows every keystroke; Escape and the clear button empty it.
T.TextField {
    id: field

    /// Shown while the field is empty, and its name for accessibility.
    property string placeholder

    /// The arrow keys, for a list that the search narrows.
    signal movedUp
    signal movedDown

    /// Takes the keyboard focus and selects the whole text.
    function activate() {
        forceActiveFocus(Qt.ShortcutFocusReason);
        selectAll();
    }

    implicitWidth: 160
    implicitHeight: 28
    leftPadding: mirrored ? clearButton.room : glyph.room
    rightPadding: mirrored ? glyph.room : clearButton.room
    verticalAlignment: TextInput.AlignVCenter
    opacity: enabled ? 1 : 0.4
    font: EBType.font("body")
    color: EB.ink
    selectionColor: EBEnvironment.accent
    selectedTextColor: EBEnvironment.onAccent
    selectByMouse: true
    Accessible.name: placeholder
    Accessible.searchEdit: true
    Keys.onUpPressed: movedUp()
    Keys.onDownPressed: movedDown()
    Keys.onEscapePressed: event => {
        event.accepted = text !== "";
        clear();
    }

    background: ContinuousRectangle {
        color: EB.chip
    }

    Glyph {
        id: glyph

        readonly property real room: 10 + width + 6

        anchors {
            left: parent.left
            leftMargin: 10
            verticalCenter: parent.verticalCenter
        }
        name: "search"
        size: 13
        color: EB.inkMuted
    }
    EBText {
        anchors.fill: parent
        anchors.leftMargin: field.leftPadding
        anchors.rightMargin: field.rightPadding
        text: field.placeholder
        color: EB.inkMuted
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
        visible: field.length === 0 && field.preeditText === ""
        Accessible.ignored: true
    }
    Pressable {
        id: clearButton

        readonly property real room: visible ? 10 + 11 + 6 : 10

        anchors {
            right: parent.right
            top: parent.top
            bottom: parent.bottom
        }
        text: qsTr("Clear search")
        implicitWidth: room
        visible: field.text !== ""
        onClicked: field.clear()

        contentItem: Item {
            Glyph {
                anchors {
                    right: parent.right
                    rightMargin: 10
                    verticalCenter: parent.verticalCenter
                }
                name: "close"
                size: 11
                color: EB.inkMuted

                FocusRing {
                    control: clearButton
                }
            }
        }
    }
}
