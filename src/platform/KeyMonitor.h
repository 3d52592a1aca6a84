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

/// The virtual key codes that somebody here asks for: places on the ANSI keyboard, called after the keys that stand
/// there.
namespace KeyCodes {

inline constexpr std::int64_t f = 3;
inline constexpr std::int64_t h = 4;
inline constexpr std::int64_t q = 12;
inline constexpr std::int64_t w = 13;
inline constexpr std::int64_t m = 46;
inline constexpr std::int64_t escape = 53;

/// Every other key.
inline constexpr std::int64_t none = -1;

}

/// A key going down, or repeating while it is held.
struct KeyDown {
    /// One of KeyCodes: the key's position, not its character.
    std::int64_t keyCode = KeyCodes::none;

    /// The modifiers that are held, as bits of KeyFlags.
    std::uint64_t flags = 0;

    bool isARepeat = false;
};

/// Receives every key-down event of this application's windows while it lives (Platform::monitorKeyDown), before the
/// application's own shortcuts and before the focused item.
class KeyMonitor {
public:
    /// Returns true to swallow the key, so that nothing else in the application receives it. Called on the main thread,
    /// once for each key-down event. It may destroy monitors, its own included.
    using Handler = std::function<bool(const KeyDown &)>;

    virtual ~KeyMonitor() = default;
};
