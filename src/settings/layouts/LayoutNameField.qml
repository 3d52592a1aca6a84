import QtQuick
import QtQuick.Templates as T
import Embera.Tokens
import Embera.Controls

/// A layout's name to type over: Return commits it, Escape and leaving the field bring the stored name back.
T.TextField {
    id: field

    /// The stored name.
    required property string name
    /// The name for accessibility.
    required property string label

    /// The person pressed Return.
    signal committed(name: string)

    /// A long name is read from its beginning.
    function showName() {
        text = name;
        if (!activeFocus)
            cursorPosition = 0;
    }

    implicitHeight: 24
    leftPadding: 6
    rightPadding: 6
    verticalAlignment: TextInput.AlignVCenter
    font: EBType.font("bodyStrong")
    color: EB.ink
    selectionColor: EBEnvironment.accent
    selectedTextColor: EBEnvironment.onAccent
    selectByMouse: true
    Accessible.name: label
    onAccepted: committed(text)
    onNameChanged: showName()
    // A window that another one covers keeps what was typed.
    onActiveFocusChanged: if (!activeFocus && Window.active)
        showName()
    Keys.onEscapePressed: showName()
    Component.onCompleted: showName()

    background: ContinuousRectangle {
        radius: 6
        color: field.activeFocus ? EB.chip : "transparent"
        strokeColor: EBEnvironment.accent
        strokeWidth: field.activeFocus ? 1.5 : 0
    }
}
