#pragma once

/// Decides how long the tile waits for a System Settings window, counted in ticks of a quarter of a second.
struct TileWatch {
    /// The window was found at least once.
    bool seen = false;
    /// Ticks in a row on which it was not there.
    int missing = 0;

    void found()
    {
        missing = 0;
        seen = true;
    }

    /// True when it is time to give up, and then the counting begins anew: after 12 seconds without a window at all, or
    /// 1.5 seconds after one that had been there is gone.
    bool lost()
    {
        constexpr int untilItOpens = 48;
        constexpr int onceItIsGone = 5;
        ++missing;
        const bool givesUp = seen ? missing > onceItIsGone : missing >= untilItOpens;
        if (givesUp)
            *this = {};
        return givesUp;
    }
};
