#pragma once

#include <QRect>

/// Where a panel of that size stands: below `anchor` with its middle under the anchor's, and wholly inside `available`
/// where it fits in there. Where there is no room below but there is above, it stands above.
QRect panelPlacement(const QRect &anchor, const QSize &size, const QRect &available);
