#pragma once

/// How large the person wants texts, as the desktop's settings portal tells it.
namespace TextScale {

/// 1 stands for the usual size, and for all that is not known. Waits for the portal, if one is running, for at most
/// 50 ms. Needs no application object.
double read();

}
