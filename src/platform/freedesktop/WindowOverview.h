#pragma once

/// The overview of all windows that some desktops have.
namespace WindowOverview {

/// Asks the desktops whose service already runs on the session bus to show it, and waits for nobody.
void open();

}
