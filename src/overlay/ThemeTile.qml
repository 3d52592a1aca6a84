import QtQuick
import Embera.Tokens
import Embera.Controls
import Corvane.Overlay

/// One theme to choose: its three buttons and its title.
ControlledToggle {
    id: tile

    required property int index
    /// {value, title} of the theme.
    required property var modelData
    property bool isChosen: false
    property bool compact: false

    implicitHeight: implicitContentHeight
    text: modelData.title
    isOn: isChosen
    //: %1 is the title of a theme of the buttons.
    Accessible.name: qsTr("%1 look").arg(text)
    Accessible.selectable: true
    Accessible.selected: isChosen
    Accessible.role: Accessible.RadioButton

    contentItem: Column {
        spacing: 6

        ContinuousRectangle {
            objectName: "strip"
            width: parent.width
            height: 34
            radius: 10
            color: EB.chip
            strokeColor: EB.ink
            strokeWidth: tile.isChosen ? 1.5 : 0

            ButtonCluster {
                anchors.centerIn: parent
                theme: tile.modelData.value
                diameter: tile.compact ? 12 : 14
                spacing: 3
                showMinimize: true
                showMaximize: true
            }
            FocusRing {
                control: tile
                radius: 14
            }
        }
        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 4

            ContinuousRectangle {
                objectName: "dot"
                anchors.verticalCenter: parent.verticalCenter
                width: 5
                height: 5
                color: EBEnvironment.accent
                visible: tile.isChosen && !tile.compact
            }
            EBText {
                width: Math.min(implicitWidth, tile.width - x)
                text: tile.text
                role: "caption"
                weight: tile.isChosen ? Font.DemiBold : Font.Normal
                color: tile.isChosen ? EB.ink : EB.inkMuted
                horizontalAlignment: lineCount > 1 ? Text.AlignHCenter : undefined
                wrapMode: Text.Wrap
            }
        }
    }
}
