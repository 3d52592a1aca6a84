import QtQuick
import Embera.Tokens

/// Shakes its content sideways whenever `trigger` changes, unless the person asks for less motion. It is as large as its
/// content.
Item {
    id: shake

    property int trigger: 0
    default property alias content: inside.data
    /// How far the content stands to the right of its place, in points.
    readonly property alias offset: inside.x
    readonly property alias isShaking: motion.running
    property bool isMade: false

    implicitWidth: inside.childrenRect.width
    implicitHeight: inside.childrenRect.height
    // The value it is made with is no change.
    Component.onCompleted: isMade = true
    onTriggerChanged: if (isMade && !EB.reduceMotion)
        motion.restart()

    Item {
        id: inside

        width: parent.width
        height: parent.height
    }
    SequentialAnimation {
        id: motion

        ShakeStep {
            target: inside
            to: 6
        }
        SequentialAnimation {
            loops: 2

            ShakeStep {
                target: inside
                to: 0
            }
            ShakeStep {
                target: inside
                to: 6
            }
        }
        // It rests there for as long as a swing takes.
        ShakeStep {
            target: inside
            to: 6
        }
        ShakeStep {
            target: inside
            to: 0
        }
    }
}
