pragma ComponentBehavior: Bound
import QtQuick
import Embera.Tokens
import Embera.Screens

/// The numbered steps of a guide: those that are done, the current one, and those to come.
Column {
    id: list

    /// The titles, in order.
    property list<string> steps
    /// The place of the current step, from 0 on. Beyond the last one every step is done, below 0 every one is to come.
    property int current: 0
    /// The list stands on a loud colour. qmllint takes an assignment to it for a signal handler.
    property bool onLoud: false
    /// Longer titles wrap, so that the list is no wider than this; in points.
    property real maximumWidth: Infinity

    /// 1 for a step that is still to come, 0 for the current one, -1 for one that is done.
    function place(index: int) : int {
        return Math.sign(index - current);
    }
    function spoken(index: int) : string {
        //: Read aloud; %1 is the step's number, %2 how many there are, %3 its title.
        const texts = [qsTr("Step %1 of %2, %3, done"), qsTr("Step %1 of %2, %3, current"), qsTr("Step %1 of %2, %3")];
        return texts[place(index) + 1].arg(index + 1).arg(steps.length).arg(steps[index]);
    }

    spacing: 10

    Repeater {
        model: list.steps.length

        Row {
            id: step

            required property int index
            readonly property int place: list.place(index)
            readonly property color color: list.onLoud ? EBEnvironment.onLoud : place === 0 ? EB.ink : EB.inkMuted

            anchors.left: parent?.left
            spacing: 8
            Accessible.role: Accessible.StaticText
            Accessible.name: list.spoken(index)

            StepMarker {
                anchors.verticalCenter: parent.verticalCenter
                place: step.place
                color: step.color
            }
            EBText {
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, list.maximumWidth - 8 - step.spacing)
                text: `${String(step.index + 1).padStart(2, "0")} ${list.steps[step.index]}`.toLocaleUpperCase()
                role: step.place === 0 ? "mono" : "monoSmall"
                color: step.color
                horizontalAlignment: Text.AlignLeft
                wrapMode: Text.Wrap
            }
        }
    }
}
