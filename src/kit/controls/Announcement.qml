import QtQuick
import Embera.Controls

/// Has assistive technologies read out what no text on the screen says.
Item {
    id: announcement

    /// An empty text only takes back what was said before.
    function say(text: string) {
        Accessible.name = text;
        if (text)
            Announcer.announce(announcement);
    }

    width: 1
    height: 1
    Accessible.role: Accessible.Notification
    Accessible.ignored: Accessible.name === ""
}
