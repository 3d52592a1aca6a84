import QtQuick
import Embera.Tokens
import Embera.Glyphs
import Embera.Controls
import Embera.Rows
import Corvane.Overlay

/// A miniature window of a pretend application. It is a picture: absent from accessibility, and never mirrored.
WindowFace {
    id: fake

    /// The application's name, in natural case.
    property string app
    /// The window's title.
    property string title
    /// The raw string of the application's glyph; without one none is shown.
    property string glyph

    contentTop: chip.y + chip.height + (compact ? 6 : 7)
    LayoutMirroring.enabled: false
    LayoutMirroring.childrenInherit: true

    EBLabel {
        id: caption

        x: fake.margin
        y: fake.stripHeight + (fake.compact ? 5 : 7)
        text: fake.app
        small: true
        Accessible.ignored: true
    }
    Glyph {
        anchors {
            right: parent.right
            rightMargin: fake.margin
            verticalCenter: caption.verticalCenter
        }
        name: fake.glyph
        size: fake.compact ? 13 : 16
        color: EB.inkMuted
        visible: name !== ""
    }
    ContinuousRectangle {
        id: chip

        anchors {
            left: caption.left
            top: caption.bottom
            topMargin: fake.compact ? 2 : 3
        }
        width: label.width + 2 * label.x
        height: fake.compact ? 15 : 17
        radius: 5
        color: EB.chip

        EBText {
            id: label

            anchors.verticalCenter: parent.verticalCenter
            x: fake.compact ? 5 : 6
            width: Math.min(implicitWidth, fake.width - 2 * fake.margin - 2 * x)
            text: fake.title
            role: "caption"
            size: fake.compact ? 10 : 11
            weight: Font.DemiBold
            elide: Text.ElideRight
        }
    }
}
