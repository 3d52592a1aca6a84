#pragma once

#include "CrispItem.h"

#include <QIcon>

/// Makes QIcon a value type of QML.
struct IconValue {
    Q_GADGET
    QML_FOREIGN(QIcon)
    QML_VALUE_TYPE(icon)
};

/// An application's icon, as large as the item whatever sizes it comes in. Absent from accessibility.
class IconImage : public CrispItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QIcon icon READ icon WRITE setIcon NOTIFY changed)
public:
    using CrispItem::CrispItem;

    QIcon icon() const { return m_icon; }
    void setIcon(const QIcon &icon);

    /// A picture of `side` × `side` points for a screen of that scale.
    static QPixmap picture(const QIcon &icon, int side, qreal scale);

protected:
    void paint(QPainter *painter) override;

private:
    QIcon m_icon;
};
