#include "EBKitStatusPanel.h"

#include "ContinuousRect.h"
#include "EBKitPanelHeader.h"
#include "KitMetrics.h"
#include "Platform.h"

#include <QLayout>
#include <QRegion>

namespace {

QString titleOf(const QList<EBKitView *> &views)
{
    for (const EBKitView *view : views) {
        if (const auto *header = qobject_cast<const EBKitPanelHeader *>(view))
            return header->name().string;
    }
    return {};
}

/// The mask of a panel of that size: it cuts off the corners where transparency would be black, and is empty elsewhere.
QRegion cutOut(const QSize &size)
{
    if (Platform::current().workspace().blendsWindows())
        return {};
    return continuousRect(QRectF(QPointF(), size), KitMetric::cardRadius).toFillPolygon().toPolygon();
}

}

EBKitStatusPanel::EBKitStatusPanel(QObject *parent) : EBKitStatusPanel(new EBKitPanelView, parent) { }

EBKitStatusPanel::EBKitStatusPanel(EBKitPanelView *content, QObject *parent)
    : StatusPanelController(content, parent), m_content(content)
{
}

QSize EBKitStatusPanel::prepare()
{
    const QList<EBKitView *> views = build();
    m_content->stack(views);
    // Otherwise the window would give the focus to the first control, without showing it.
    m_content->setFocus();
    panel().setWindowTitle(titleOf(views));
    const int width = panel().width();
    const QLayout &layout = *m_content->layout();
    const QSize size(width,
                     layout.hasHeightForWidth() ? layout.totalHeightForWidth(width) : layout.totalSizeHint().height());
    panel().setMask(cutOut(size));
    return size;
}
