#pragma once

#include <QRectF>
#include <QStringList>

class QQuickItem;

/// Whether what a view shows is all there to be read and used.
namespace Fit {

/// What is cut, what lies over something else, and what leaves `frame`, the window's part that the view has, or the
/// card it stands in; a sentence for each.
QStringList faults(QQuickItem *view, const QRectF &frame);

}
