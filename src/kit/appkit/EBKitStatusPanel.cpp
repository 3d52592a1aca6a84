#include "EBKitStatusPanel.h"

#include "EBKitPanelHeader.h"

#include <QLayout>

EBKitStatusPanel::EBKitStatusPanel(QObject *parent) : EBKitStatusPanel(new EBKitPanelView, parent) { }

EBKitStatusPanel::EBKitStatusPanel(EBKitPanelView *content, QObject *parent)
    : StatusPanelController(content, parent), m_content(content)
{
}

QSize EBKitStatusPanel::prepare()
{
    const QList<EBKitView *> views = build();
    m_content->stack(views);
    // Left to itself the window would give the keyboard to the first control, unseen.
    m_content->setFocus();
    for (const EBKitView *view : views) {
        if (const auto *header = qobject_cast<const EBKitPanelHeader *>(view))
            panel().setWindowTitle(header->name().string);
    }
    const int width = panel().width();
    const QLayout &layout = *m_content->layout();
    const int height = layout.hasHeightForWidth() ? layout.totalHeightForWidth(width) : layout.totalSizeHint().height();
    return {width, height};
}
