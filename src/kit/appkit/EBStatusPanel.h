#pragma once

#include "StatusPanelController.h"

/// A status panel of a given size around any content.
class EBStatusPanel : public StatusPanelController {
    Q_OBJECT
public:
    /// Takes `content`.
    EBStatusPanel(QWidget *content, QSize size, QObject *parent = nullptr);

    /// In points.
    QSize size() const { return m_size; }

protected:
    QSize prepare() override { return m_size; }

private:
    QSize m_size;
};
