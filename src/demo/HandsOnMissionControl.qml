pragma ComponentBehavior: Bound
import QtQuick
import Embera.Controls
import Corvane.Shared
import Corvane.Demo

/// The pretend Mission Control: the model's windows in two rows of three, with the overlay buttons that the store
/// describes over the hovered one. While it is on the screen and enabled the agent's shortcuts act on the model, and
/// nothing else in the application hears them. It spans the available width.
Item {
    id: surface

    required property DemoModel model

    implicitWidth: grid.width + 2 * 14
    implicitHeight: 4 + grid.height + 14
    width: parent?.width ?? implicitWidth

    OverlayLook {
        id: look
    }
    ShortcutMonitor {
        model: surface.model
        active: surface.visible && surface.enabled && surface.Window.visibility !== Window.Hidden
    }
    Announcement {
        id: announcement
    }
    Connections {
        target: surface.model

        function onReported(report: string) {
            announcement.say(report);
        }
    }
    Grid {
        id: grid

        anchors.horizontalCenter: parent.horizontalCenter
        y: 4
        columns: 3
        spacing: 12

        Repeater {
            model: surface.model?.wins.length ?? 0

            // A window's id is its place: windows come and go by their state alone.
            DemoCell {
                required property int index

                model: surface.model
                win: surface.model.wins[index]
                theme: look.theme
                size: look.size
                showMinimize: look.showMinimize
                showMaximize: look.showMaximize
            }
        }
    }
}
