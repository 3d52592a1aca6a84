#pragma once

#include <functional>
#include <future>

/// What a start can get done beside the main thread, in the order in which it is needed: on two processors all at once
/// would take longer.
namespace WarmUp {

/// Reads the desktop's font configuration, then does what `views` does, on a thread of its own. Nothing may ask for a
/// font before the result is there.
[[nodiscard]] std::future<void> begin(std::function<void()> views);

/// To be called once there is an application object: after that beginning, lists the fonts and loads the libraries
/// behind the store. Who asks for either meanwhile waits.
[[nodiscard]] std::future<void> goOn(std::shared_future<void> beginning);

}
