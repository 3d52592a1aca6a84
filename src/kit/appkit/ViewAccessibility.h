#pragma once

/// Gives the hand-drawn views their roles, states and actions for assistive technologies. Every view calls it; once is
/// enough, and more does nothing.
void installViewAccessibility();
