#pragma once

#include "CrispItem.h"
#include "SavedLayout.h"

#include <QColor>
#include <QVariant>
#include <qqmlregistration.h>

namespace LayoutPreviews {

/// The windows a preview draws: those on the first window's display, in their order.
QList<SavedLayout::Window> shown(const SavedLayout &layout);

/// Where a window stands in a preview of that size: 3 points from its edges, at least 1 point wide and high.
QRectF shape(const UnitRect &rect, QSizeF size);

}

/// A small drawing of one saved layout: its windows, and the icons of their applications where there is room.
class LayoutPreview : public CrispItem {
    Q_OBJECT
    QML_ELEMENT
    /// A SavedLayout. Anything else draws none.
    Q_PROPERTY(QVariant layout READ layout WRITE setLayout NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    Q_PROPERTY(QColor windowColor MEMBER m_windowColor NOTIFY changed)
    Q_PROPERTY(QColor borderColor MEMBER m_borderColor NOTIFY changed)
    /// For accessibility: how many windows, and of which applications.
    Q_PROPERTY(QString label READ label NOTIFY changed)
public:
    using CrispItem::CrispItem;

    QVariant layout() const { return QVariant::fromValue(m_layout); }
    void setLayout(const QVariant &layout);
    QString label() const;

protected:
    void paint(QPainter *painter) override;

private:
    void paintWindow(QPainter *painter, const SavedLayout::Window &window) const;

    SavedLayout m_layout;
    QColor m_color;
    QColor m_windowColor;
    QColor m_borderColor;
};
