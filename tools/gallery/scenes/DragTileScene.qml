import QtQuick
import Corvane.Gallery
import Corvane.Onboarding.Tile

/// The tile that is dragged onto the Accessibility list.
Sheet {
    DragTileContent {
        icon: ProductIcon.icon
    }
}
