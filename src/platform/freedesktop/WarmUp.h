#pragma once

#include <future>

/// What a start can get done while the program still connects to the display.
namespace WarmUp {

/// Reads the desktop's font configuration and loads the libraries behind a module that every view imports and behind
/// the store, on a thread of its own. Nothing may ask for a font before the result is there.
[[nodiscard]] std::future<void> begin();

}
