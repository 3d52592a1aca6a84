import QtQuick
import Embera.Tokens

/// Text in one of the type roles: sets the role's font and tracking. Assistive technologies hear of it only where it is
/// given an `Accessible.role`.
Text {
    id: text

    /// One of the twelve roles, by name.
    property string role: "body"
    /// Overrides of the role; 0 keeps what the role says.
    property int weight: 0
    property real size: 0

    font: EBType.font(role, weight, size, text.text)
    color: EB.ink
    textFormat: Text.PlainText
    // Tracking is also added behind the last letter, where it would put a centred text off its middle.
    rightPadding: -font.letterSpacing
}
