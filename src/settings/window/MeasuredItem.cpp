#include "MeasuredItem.h"

void MeasuredItem::setContentSize(QSizeF size)
{
    if (m_contentSize == size)
        return;
    m_contentSize = size;
    polish();
    emit contentSizeChanged();
}
