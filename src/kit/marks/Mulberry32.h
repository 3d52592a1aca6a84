#pragma once

#include <cstdint>
#include <limits>

/// The Mulberry32 generator of pseudo-random numbers.
class Mulberry32 {
public:
    /// The numbers it draws are the multiples of 1 / scale in [0, 1).
    static constexpr double scale = 4294967296.0;

    explicit constexpr Mulberry32(std::uint32_t seed) : m_state(seed) { }

    /// The next number, as a multiple of 1 / scale.
    constexpr std::uint32_t nextMultiple()
    {
        m_state += 0x6D2B79F5U;
        std::uint32_t z = (m_state ^ (m_state >> 15)) * (m_state | 1U);
        z ^= z + (z ^ (z >> 7)) * (z | 61U);
        return z ^ (z >> 14);
    }

    /// The next number in [0, 1).
    constexpr double next() { return nextMultiple() / scale; }

    /// The largest multiple of 1 / scale that does not exceed `p`, clamped to the generator's range: random numbers are
    /// compared with it as integers.
    static constexpr std::uint32_t multipleWithin(double p)
    {
        if (p < 0)
            return 0;
        return p < 1 ? static_cast<std::uint32_t>(p * scale) : std::numeric_limits<std::uint32_t>::max();
    }

private:
    std::uint32_t m_state;
};
