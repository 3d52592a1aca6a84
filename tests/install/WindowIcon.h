#pragma once

#include <QImage>

class TopLevel;
class XConnection;

/// The pictures that a window gives to task lists (_NET_WM_ICON), as the X server knows them.
QList<QImage> windowIcon(const XConnection &x, const TopLevel &window);
