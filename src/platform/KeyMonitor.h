#pragma once

#include <cstdint>
#include <functional>

/// The bits of the modifiers among a key event's flags. All other bits may hold anything.
namespace KeyFlags {

inline constexpr std::uint64_t shiftFlag = 0x20000;
inline constexpr std::uint64_t controlFlag = 0x40000;
inline constexpr std::uint64_t optionFlag = 0x80000;
inline constexpr std::uint64_t commandFlag = 0x100000;

}

/// A key going down, or repeating while it is held.
struct KeyDown {
    /// The virtual key code: a position on the ANSI keyboard, not a character. -1 where the key's position has none.
    std::int64_t keyCode = -1;

    /// The modifiers that are held, as bits of KeyFlags.
    std::uint64_t flags = 0;

    bool isARepeat = false;
};

/// Hears every key-down event of this application's windows for as long as it is held (Platform::monitorKeyDown),
/// before the application's own shortcuts and before the focused item do.
class KeyMonitor {
public:
    /// Returns true to swallow the key: then nothing else in the application hears it. Called on the main thread, once
    /// for each key-down event. It may end its own monitor, and others.
    using Handler = std::function<bool(const KeyDown &)>;

    virtual ~KeyMonitor() = default;
};
