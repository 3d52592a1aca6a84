import QtQuick
import Embera.Tokens
import Embera.Controls

/// A key combination in key symbols, on a cap. Which keys these are here stands in a tool tip and is read out.
ContinuousRectangle {
    id: cap

    property string keys

    implicitWidth: Math.max(KitMetrics.keyCapWidth, text.implicitWidth + 2 * KitMetrics.keyCapPadding)
    implicitHeight: Math.max(KitMetrics.keyCapHeight, text.implicitHeight)
    radius: KitMetrics.keyCapRadius
    color: EB.chip
    Accessible.role: Accessible.StaticText
    Accessible.name: KeySymbols.spelled(keys)

    EBText {
        id: text

        anchors.centerIn: parent
        text: cap.keys
        role: "small"
        weight: Font.DemiBold
    }
    KeyHelp {
        text: KeySymbols.spelled(cap.keys)
    }
}
