import QtQuick
import Embera.Marks
import Corvane.Gallery

/// The product's mark on its grid, in a well of the About window and in a larger one.
Sheet {
    Section {
        title: qsTr("The mark drawn on its grid")

        MarkConstruction {
            implicitWidth: 412
            implicitHeight: 116
        }
        MarkConstruction {
            implicitWidth: 640
            implicitHeight: 400
        }
    }
}
