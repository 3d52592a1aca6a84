import QtQuick
import Embera.Tokens
import Embera.Controls
import Embera.Rows

/// What stands in a row: a disc, a title with an optional detail below it, and whatever is put into the row at its
/// trailing edge. Both texts wrap, and the row grows with them. Several trailing items are 12 points apart and
/// centred on one line.
Item {
    id: row

    /// A glyph's raw string; without one there is no disc.
    property string glyph
    property string title
    property string detail
    /// The longest detail that may come to stand there: its height is kept free, so that nothing below the row moves.
    property string longestDetail
    property real minHeight: 0
    default property alias trailing: trailingRow.data
    /// Everything in the row's width that is not text.
    readonly property real edges: 2 * KitMetrics.rowInset + (glyph !== "" ? disc.width + KitMetrics.rowSpacing : 0)
        + (trailingRow.width > 0 ? trailingRow.width + KitMetrics.rowSpacing : 0)

    readonly property real reserve: longestDetail === "" ? 0 : Math.max(0, detailText.heightOf(longestDetail) - detailText.height)

    implicitWidth: edges + Math.max(titleText.implicitWidth, detailText.implicitWidth)
    implicitHeight: Math.max(minHeight, content.implicitHeight + reserve + 2 * KitMetrics.rowPadding)
    width: parent?.width ?? implicitWidth

    Row {
        id: content

        anchors {
            left: parent.left
            leftMargin: KitMetrics.rowInset
            verticalCenter: parent.verticalCenter
        }
        spacing: KitMetrics.rowSpacing

        EBDisc {
            id: disc

            anchors.verticalCenter: parent.verticalCenter
            glyph: row.glyph
            visible: row.glyph !== ""
        }
        Column {
            id: column

            anchors.verticalCenter: parent.verticalCenter
            width: Math.max(0, row.width - row.edges)
            spacing: KitMetrics.rowLineSpacing

            EBText {
                id: titleText

                width: parent.width
                text: row.title
                role: "bodyStrong"
                horizontalAlignment: Text.AlignLeft
                Accessible.role: Accessible.StaticText
                Accessible.name: text
                wrapMode: Text.Wrap
            }
            EBParagraph {
                id: detailText

                width: parent.width
                text: row.detail
                role: "caption"
                color: EB.inkMuted
                Accessible.role: Accessible.StaticText
                Accessible.name: KeySymbols.spelled(text)
                visible: text !== ""
                Accessible.ignored: !visible

                KeyHelp {
                    text: KeySymbols.keysIn(detailText.text)
                }
            }
        }
        Row {
            id: trailingRow

            anchors.verticalCenter: parent.verticalCenter
            spacing: KitMetrics.rowSpacing
            // The one that came is the last.
            onChildrenChanged: if (children.length > 0)
                children[children.length - 1].anchors.verticalCenter = verticalCenter
        }
    }
}
