import QtQuick
import Embera.Tokens
import Embera.Controls
import Corvane.Overlay
import Corvane.Demo

/// The place of one pretend window: the window itself as long as it is visible, and the overlay buttons over its corner
/// while it is hovered. Having the keyboard focus counts as being hovered, so that all can be practised without a
/// pointer, and so does the touch of a finger.
Item {
    id: cell

    required property DemoModel model
    required property demoWin win
    /// The buttons as the store has them; an unknown text reads as the default.
    property string theme
    property string size
    property bool showMinimize: false
    property bool showMaximize: false

    readonly property bool isVisible: win.isVisible
    readonly property bool isFull: win.state === "full"
    readonly property bool isHovered: isVisible && model?.hovered === win.id
    /// The buttons that stick out over the corner count as part of the window while they are shown. When they go under
    /// the pointer, the window is not entered by that.
    readonly property bool isPointerHere: overWindow.hovered || overButtons.hovered || isTouched
    /// A finger has touched the window, which stays hovered until something else is.
    property bool isTouched: false

    function perform(hotkey: string) {
        model.apply(hotkey, win.id);
    }
    /// What has the keyboard focus counts again, unless the pointer is over another window already.
    function hoverTheFocused() {
        const focused = cell.Window.activeFocusItem?.parent as DemoCell;
        if (focused?.model.hovered === -1)
            focused.model.enter(focused.win.id);
    }
    /// The focus has gone elsewhere: what is under the pointer counts, this window or another.
    function hoverThePointed() {
        if (isPointerHere)
            return;
        model?.leave(win.id);
        // When the window itself went, nothing is hovered.
        const cells = isVisible && model?.hovered === -1 ? parent?.children ?? [] : [];
        for (let i = 0; i < cells.length; ++i) {
            const other = cells[i] as DemoCell;
            if (other?.isPointerHere && other.isVisible)
                model.enter(other.win.id);
        }
    }

    implicitWidth: 128
    implicitHeight: 74
    z: isHovered || isFull ? 2 : 1
    // Only while it holds the focus for a window that is gone: the next Tab goes on from here.
    activeFocusOnTab: activeFocus
    onIsHoveredChanged: if (!isHovered)
        isTouched = false
    onIsPointerHereChanged: {
        if (!isPointerHere) {
            model?.leave(win.id);
            hoverTheFocused();
        } else if (isVisible) {
            model.enter(win.id);
        }
    }
    // Nobody is over a window that is gone, and whoever waits at its place is over it once it is back.
    onIsVisibleChanged: if (isPointerHere)
        isVisible ? model.enter(win.id) : model.leave(win.id)
    // A hidden window must not stay hovered.
    onVisibleChanged: if (!visible)
        model?.leave(win.id)
    Component.onDestruction: model?.leave(win.id)

    HoverHandler {
        id: overWindow

        enabled: cell.enabled
    }
    // The window around, which may move by its background, gets no press from here.
    MouseArea {
        anchors.fill: parent
        onPressed: mouse => {
            if (cell.isVisible && mouse.source !== Qt.MouseEventNotSynthesized)
                cell.isTouched = true;
        }
    }
    // Below the buttons.
    FocusRing {
        control: element
        radius: 9 + KitMetrics.ringGap + KitMetrics.ringWidth
    }
    Item {
        id: body
        objectName: "body"

        width: parent.width
        height: parent.height
        y: cell.win.state === "minimized" ? 120 : 0
        opacity: cell.isVisible ? 1 : 0

        Behavior on y {
            DemoSpring {
                model: cell.model
            }
        }
        Behavior on opacity {
            DemoSpring {
                model: cell.model
            }
        }

        FakeWindow {
            anchors.fill: parent
            compact: true
            app: cell.win.app
            title: cell.win.title
            glyph: cell.win.glyph
        }
        FullScreenBadge {
            anchors {
                right: parent.right
                bottom: parent.bottom
                margins: 7
            }
            opacity: cell.isFull ? 1 : 0
            visible: opacity > 0

            Behavior on opacity {
                DemoSpring {
                    model: cell.model
                }
            }
        }
        ContinuousRectangle {
            anchors.fill: parent
            radius: 9
            strokeColor: EB.ink
            strokeWidth: 2
            opacity: cell.isHovered ? 1 : 0
            visible: opacity > 0

            Behavior on opacity {
                DemoSpring {
                    model: cell.model
                }
            }
        }
        // Below the buttons, which are pictures, and like them partly outside the window.
        MouseArea {
            x: cluster.x
            y: cluster.y
            width: cluster.width
            height: cluster.height
            enabled: cell.isHovered
            onClicked: mouse => {
                const button = cluster.childAt(mouse.x, mouse.y) as DemoButton;
                if (button)
                    cell.perform(button.kind);
            }
        }
        ButtonCluster {
            id: cluster

            /// How much of the cluster is there: between 0 and 1, a little beyond while it swings.
            property real share: cell.isHovered ? 1 : 0

            x: hang.x
            y: hang.y
            theme: cell.theme
            // The table of the sizes, scaled to the miniature: 16, 20 and 25.6 points.
            diameter: 0.8 * ButtonChoices.diameter(cell.size)
            spacing: 3
            // Not over the hover ring, which would cross their glyphs.
            ground: EB.paper
            showMinimize: cell.showMinimize
            showMaximize: cell.showMaximize
            transformOrigin: Item.Left
            scale: 0.3 + 0.7 * share
            opacity: share
            visible: share > 0

            Behavior on share {
                DemoSpring {
                    model: cell.model
                }
            }
            HoverHandler {
                id: overButtons

                enabled: cell.enabled && cell.isHovered
            }
        }
    }
    FocusItem {
        id: element

        anchors.fill: parent
        visible: cell.isVisible
        //: %1 is the name of an application, %2 the title of its window.
        Accessible.name: cell.isFull ? qsTr("%1 window, %2, full screen").arg(cell.win.app).arg(cell.win.title) :
                                       //: %1 is the name of an application, %2 the title of its window.
                                       qsTr("%1 window, %2").arg(cell.win.app).arg(cell.win.title)
        Accessible.description: qsTr("Use the actions to close, minimize or full-screen it.")
        Accessible.role: Accessible.Grouping
        onActiveFocusChanged: activeFocus ? cell.model.enter(cell.win.id) : cell.hoverThePointed()
        onVisibleChanged: if (!visible && activeFocus)
            cell.forceActiveFocus(Qt.OtherFocusReason)

        AccessibleAction {
            name: qsTr("Close")
            onPerformed: cell.perform("close")
        }
        AccessibleAction {
            name: qsTr("Minimize")
            onPerformed: cell.perform("minimize")
        }
        AccessibleAction {
            name: qsTr("Full screen")
            onPerformed: cell.perform("maximize")
        }
    }
}
