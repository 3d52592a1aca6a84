#pragma once

#include "CaseNames.h"

/// The buttons that the agent lays over a window, in the order in which they stand on it. The raw value is the
/// position, and the place in every table with an entry for each button.
enum class OverlayButton : int { close, minimize, maximize };

using OverlayButtons = NumberedCases<OverlayButton>;
