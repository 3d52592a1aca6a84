import QtQuick
import Embera.Tokens
import Embera.Glyphs
import Embera.Controls

/// A search field. `text` follows every keystroke; Escape and the clear button empty it.
ContinuousRectangle {
    id: control

    /// Shown while the field is empty, and its name for accessibility.
    property string placeholder
    property alias text: field.text

    /// The arrow keys, for a list that the search narrows.
    signal movedUp
    signal movedDown

    /// Takes the keyboard focus and selects the whole text.
    function activate() {
        field.forceActiveFocus(Qt.ShortcutFocusReason);
        field.selectAll();
    }

    implicitWidth: 160
    implicitHeight: 28
    color: EB.chip
    opacity: enabled ? 1 : KitMetrics.disabledOpacity

    // The glyph belongs to the field: a click on it goes into the text.
    TapHandler {
        onTapped: field.forceActiveFocus(Qt.MouseFocusReason)
    }
    TextInput {
        id: field

        anchors {
            left: glyph.right
            leftMargin: 6
            right: clearButton.visible ? clearButton.left : parent.right
            rightMargin: clearButton.visible ? 0 : 10
            top: parent.top
            bottom: parent.bottom
        }
        horizontalAlignment: TextInput.AlignLeft
        verticalAlignment: TextInput.AlignVCenter
        font: EBType.font("body")
        color: EB.ink
        selectionColor: EBEnvironment.accent
        selectedTextColor: EBEnvironment.onAccent
        selectByMouse: true
        activeFocusOnTab: true
        clip: true
        Accessible.role: Accessible.EditableText
        Accessible.name: control.placeholder
        Accessible.searchEdit: true
        Keys.onUpPressed: control.movedUp()
        Keys.onDownPressed: control.movedDown()
        Keys.onEscapePressed: event => {
            event.accepted = text !== "";
            clear();
        }

        HoverHandler {
            cursorShape: Qt.IBeamCursor
        }
        EBText {
            anchors.fill: parent
            text: control.placeholder
            color: EB.inkMuted
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft
            verticalAlignment: Text.AlignVCenter
            visible: field.length === 0 && field.preeditText === ""
        }
    }
    Glyph {
        id: glyph

        anchors {
            left: parent.left
            leftMargin: 10
            verticalCenter: parent.verticalCenter
        }
        name: "search"
        size: 13
        color: EB.inkMuted
    }
    Pressable {
        id: clearButton

        anchors.right: parent.right
        width: 6 + 11 + 10
        height: parent.height
        text: qsTr("Clear search")
        visible: field.length > 0
        // The button goes with the text, and the focus goes back to typing.
        onClicked: {
            field.clear();
            field.forceActiveFocus(Qt.OtherFocusReason);
        }

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
