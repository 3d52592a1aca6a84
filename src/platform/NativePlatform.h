#pragma once

#include "LoginItem.h"
#include "Platform.h"

#include <functional>
#include <future>
#include <memory>

/// The system this is built for. Its folder implements these functions, and only a program's entry calls them.
namespace NativePlatform {

/// First thing in `main`: makes the process safe from standard streams that are closed, or whose reader goes away.
void secureStreams();

/// The services. Each is made when it is first asked for, so making them costs nothing. A program that may be raised by
/// a later start makes them before the application object, which takes what a start was given out of the environment;
/// that object must exist before any service but the bundles is asked for.
std::unique_ptr<Platform> make();

/// Does what a start can get done while the program still connects to the display, on a thread of its own, `views` at
/// the end of it. Nothing may ask for a font before the result is there.
[[nodiscard]] std::future<void> warmUp(std::function<void()> views);

/// To be called right after the application object is made: connects to what the services will need, and after that
/// warm-up makes the list of the fonts, while the main thread goes on. Who asks for a font meanwhile waits. The
/// application object may not end before the result is there.
[[nodiscard]] std::future<void> prepareServices(std::shared_future<void> warmUp);

/// Loads what the store is read with, while the main thread goes on. Who asks for the store meanwhile waits. The
/// environment may not be changed before the result is there, and neither the appearance nor a name may be asked for
/// the first time, which change it.
[[nodiscard]] std::future<void> loadStore();

/// Tells Qt through the environment what it does not find out by itself. To be called before the application object is
/// made; what is returned is dropped once the first window is shown, so that programs started later do not inherit it.
[[nodiscard]] std::shared_ptr<void> prepareEnvironment();

/// From now on large blocks of memory go back to the system as soon as they are freed, and none of them is put where an
/// earlier one was. To be called before anything large is made.
void keepLargeBlocksApart();

/// To be called once the first window is shown: the memory that the start has freed goes back to the system, and from
/// then on what is large does so as soon as it is freed.
void giveMemoryBack();

/// The program's entry among those started at login. With `needsApproval` a new one waits for the person's approval.
std::unique_ptr<LoginItem> makeLoginItem(const LoginItem::Program &program, bool needsApproval);

}
