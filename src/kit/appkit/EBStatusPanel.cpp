#include "EBStatusPanel.h"

EBStatusPanel::EBStatusPanel(QWidget *content, QSize size, QObject *parent)
    : StatusPanelController(content, parent), m_size(size)
{
}
