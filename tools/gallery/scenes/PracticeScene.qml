import QtQuick
import Embera.Controls
import Embera.Rows
import Corvane.Demo
import Corvane.Gallery

/// The practice as a person meets it, alive. Shown in a window of its own it takes the shortcuts from the keyboard.
Scene {
    implicitWidth: 560
    implicitHeight: 360

    DemoModel {
        id: practice
    }
    HandsOnMissionControl {
        id: windows

        y: 48
        model: practice
    }
    ShortcutChips {
        anchors {
            horizontalCenter: parent.horizontalCenter
            top: windows.bottom
            topMargin: 16
        }
        model: practice
        shown: ["close", "minimize", "maximize"]
    }
    Column {
        anchors {
            left: parent.left
            leftMargin: 46
            verticalCenter: again.verticalCenter
        }
        width: 300
        spacing: 2

        EBNote {
            readonly property var done: practice.done

            text: qsTr("Practised: %1").arg(done.join(", "))
        }
        EBNote {
            text: qsTr("Pressed over no window: %1").arg(practice.nudge)
        }
    }
    EBButton {
        id: again

        anchors {
            right: parent.right
            rightMargin: 62
            bottom: parent.bottom
            bottomMargin: 24
        }
        text: qsTr("Once more")
        variant: "secondary"
        size: "sm"
        onClicked: practice.reset()
    }
}
