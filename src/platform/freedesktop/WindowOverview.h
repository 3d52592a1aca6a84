#pragma once

/// The overview of all windows that some desktops have.
namespace WindowOverview {

/// Asks the desktop that runs to show it, and does not wait until it does. False where no desktop runs that has one.
bool open();

}
