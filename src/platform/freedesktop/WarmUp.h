#pragma once

#include <functional>
#include <future>

/// What a start can get done while the program still connects to the display.
namespace WarmUp {

/// Reads the desktop's font configuration, then does what `views` does, and loads the libraries behind the store, on a
/// thread of its own. Nothing may ask for a font before the result is there.
[[nodiscard]] std::future<void> begin(std::function<void()> views);

}
