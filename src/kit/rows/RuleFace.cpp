#include "RuleFace.h"

#include <QPainter>

void RuleFace::paint(QPainter *painter)
{
    painter->fillRect(boundingRect(), m_color);
}
