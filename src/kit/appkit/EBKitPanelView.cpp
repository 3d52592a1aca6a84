#include "EBKitPanelView.h"

#include "ContinuousRectangle.h"
#include "EBKit.h"
#include "EBKitMenuRow.h"
#include "KitMetrics.h"

#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace {

constexpr int ends = int(KitMetric::rowPadding);

EBKitView *viewOf(QLayoutItem &item)
{
    return qobject_cast<EBKitView *>(item.layout()->itemAt(0)->widget());
}

bool spans(const EBKitView &view)
{
    return view.sizePolicy().horizontalPolicy() & QSizePolicy::GrowFlag;
}

}

EBKitPanelView::EBKitPanelView(QWidget *parent) : EBKitView(parent)
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, ends, 0, ends);
    column->setSpacing(0);
}

void EBKitPanelView::stack(const QList<EBKitView *> &views)
{
    clear();
    auto *column = static_cast<QVBoxLayout *>(layout());
    for (EBKitView *view : views) {
        // A line of its own, for its margins.
        auto *line = new QHBoxLayout;
        line->setContentsMargins(view->panelMargins());
        line->addWidget(view);
        if (!spans(*view))
            line->addStretch();
        column->addLayout(line);
        view->show();
    }
    column->addStretch();
}

void EBKitPanelView::clear()
{
    while (QLayoutItem *item = layout()->takeAt(0)) {
        if (item->layout()) {
            EBKitView *view = viewOf(*item);
            // Later: its action may be what is running.
            view->hide();
            view->deleteLater();
        }
        delete item;
    }
}

QList<EBKitView *> EBKitPanelView::views() const
{
    QList<EBKitView *> views;
    for (int i = 0; i < layout()->count(); ++i) {
        if (layout()->itemAt(i)->layout())
            views.append(viewOf(*layout()->itemAt(i)));
    }
    return views;
}

QList<EBKitMenuRow *> EBKitPanelView::reachableRows() const
{
    QList<EBKitMenuRow *> rows;
    const QList<EBKitView *> all = views();
    for (EBKitView *view : all) {
        auto *row = qobject_cast<EBKitMenuRow *>(view);
        if (row && row->isEnabled() && !row->isHidden())
            rows.append(row);
    }
    return rows;
}

void EBKitPanelView::keyPressEvent(QKeyEvent *event)
{
    const QList<EBKitMenuRow *> rows = reachableRows();
    if (rows.isEmpty()) {
        EBKitView::keyPressEvent(event);
        return;
    }
    const qsizetype last = rows.size() - 1;
    const qsizetype here = rows.indexOf(qobject_cast<EBKitMenuRow *>(focusWidget()));
    switch (event->key()) {
    case Qt::Key_Down:
        rows[std::min(here + 1, last)]->setFocus(Qt::TabFocusReason);
        break;
    case Qt::Key_Up:
        rows[here < 0 ? last : std::max<qsizetype>(here - 1, 0)]->setFocus(Qt::BacktabFocusReason);
        break;
    case Qt::Key_Home:
        rows.constFirst()->setFocus(Qt::BacktabFocusReason);
        break;
    case Qt::Key_End:
        rows.constLast()->setFocus(Qt::TabFocusReason);
        break;
    default:
        EBKitView::keyPressEvent(event);
    }
}

void EBKitPanelView::draw(QPainter &painter)
{
    paintContinuousRect(&painter, QRectF(rect()), KitMetric::cardRadius, EBKit::surface().current(),
                        EBKit::line().current(), 1);
}
