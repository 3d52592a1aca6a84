#pragma once

#include <functional>
#include <future>

/// What a start can get done beside the main thread, in the order in which it is needed: on two processors all at once
/// would take longer.
namespace WarmUp {

/// Reads the desktop's font configuration, then does what `views` does, on a thread of its own. Nothing may ask for a
/// font before the result is there.
[[nodiscard]] std::future<void> begin(std::function<void()> views);

/// To be called once there is an application object, which may not end before the result is there: after that
/// beginning, lists the fonts. Who asks for one meanwhile waits.
[[nodiscard]] std::future<void> listFonts(std::shared_future<void> beginning);

/// Loads the libraries behind the store. Who asks for it meanwhile waits. They read the environment, which may not be
/// changed before the result is there.
[[nodiscard]] std::future<void> loadStore();

}
