#pragma once

#include "EBKitText.h"
#include "EBType.h"

#include <QSizeF>

class QPainter;

/// How the hand-drawn views set their texts.
namespace KitText {

/// A text in one of the type roles.
EBKitText make(const QString &string, EBTypeRole role, const EBKitColor &color);

/// The text in capitals. Views that show one are given it in natural case, which is how it is read aloud.
EBKitText capitals(const EBKitText &text);

/// What the text occupies when its lines are at most `width` points long, in whole points. A word that is longer is
/// broken.
QSize size(const EBKitText &text, qreal width);

/// What the text occupies without wrapping.
QSize size(const EBKitText &text);

/// Draws the text in `rect`, from its top left corner and wrapped to its width. Where it needs more lines than fit into
/// its height, and there is always room for one, the last visible one is cut short and ends in an ellipsis.
void draw(QPainter &painter, const EBKitText &text, const QRectF &rect,
          Qt::LayoutDirection direction = Qt::LeftToRight);

/// The text's font with its kern.
QFont font(const EBKitText &text);

}
