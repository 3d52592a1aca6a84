#pragma once

/// The overview of all windows that some desktops have.
namespace WindowOverview {

/// Asks the desktop whose service already runs on the session bus to show it, and does not wait for an answer.
void open();

}
