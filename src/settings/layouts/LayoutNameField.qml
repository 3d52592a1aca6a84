import QtQuick
import Embera.Tokens
import Embera.Controls

/// A layout's name to type over. Return stores it, and so does a button at its end, which is there while the text is not
/// the stored name. Escape and leaving the field bring the stored name back. A name that is too long is elided until the
/// field has the focus.
FocusScope {
    id: scope

    /// The stored name.
    required property string name
    /// The name for accessibility.
    required property string label
    /// Between the field's edge and its text, in points.
    readonly property real padding: 6
    readonly property bool isEdited: field.text !== name

    /// The person pressed Return, or the button.
    signal committed(name: string)

    /// A long name is read from its beginning.
    function showName() {
        field.text = name;
        if (!field.activeFocus)
            field.cursorPosition = 0;
    }
    /// Goes on in the field: the button may be about to go.
    function focusField() {
        field.forceActiveFocus(Qt.OtherFocusReason);
    }

    implicitHeight: 24
    onNameChanged: showName()
    // A window that another one covers keeps what was typed.
    onActiveFocusChanged: if (!activeFocus && Window.active)
        showName()
    Keys.onEscapePressed: {
        focusField();
        showName();
    }
    Component.onCompleted: showName()

    HoverHandler {
        id: hover
    }
    ContinuousRectangle {
        anchors.fill: parent
        radius: 6
        color: scope.activeFocus || hover.hovered ? EB.chip : "transparent"
        strokeColor: EBEnvironment.accent
        strokeWidth: field.activeFocus ? 1.5 : 0
    }
    TextInput {
        id: field

        anchors {
            left: parent.left
            right: save.visible ? save.left : parent.right
            top: parent.top
            bottom: parent.bottom
        }
        leftPadding: scope.padding
        rightPadding: scope.padding
        focus: true
        horizontalAlignment: TextInput.AlignLeft
        verticalAlignment: TextInput.AlignVCenter
        font: EBType.font("bodyStrong")
        color: scope.activeFocus ? EB.ink : "transparent"
        selectionColor: EBEnvironment.accent
        selectedTextColor: EBEnvironment.onAccent
        selectByMouse: true
        activeFocusOnTab: true
        clip: true
        Accessible.role: Accessible.EditableText
        Accessible.name: scope.label
        onAccepted: scope.committed(text)
    }
    EBText {
        anchors {
            fill: field
            leftMargin: scope.padding
            rightMargin: scope.padding
        }
        visible: !scope.activeFocus
        text: field.text
        role: "bodyStrong"
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
    }
    EBIconButton {
        id: save

        anchors {
            right: parent.right
            rightMargin: 2
            verticalCenter: parent.verticalCenter
        }
        visible: scope.isEdited
        glyph: "check"
        size: 20
        label: qsTr("Save name")
        onClicked: {
            scope.focusField();
            scope.committed(field.text);
        }
    }
}
