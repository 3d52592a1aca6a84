#pragma once

#include "EBKitPanelView.h"
#include "StatusPanelController.h"

/// A status panel of hand-drawn views, which are built anew each time it opens.
class EBKitStatusPanel : public StatusPanelController {
    Q_OBJECT
public:
    explicit EBKitStatusPanel(QObject *parent = nullptr);

    /// The views to stack, from the top; the panel takes them. An empty list unless it is set.
    std::function<QList<EBKitView *>()> build = [] { return QList<EBKitView *>(); };

    EBKitPanelView &content() const { return *m_content; }

protected:
    QSize prepare() override;

private:
    explicit EBKitStatusPanel(EBKitPanelView *content, QObject *parent);

    /// Belongs to the panel.
    EBKitPanelView *m_content;
};
