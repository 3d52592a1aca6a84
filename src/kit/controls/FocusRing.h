#pragma once

#include "CrispItem.h"
#include "EBEnvironment.h"
#include "FocusItem.h"

/// The ring around a control that the keyboard has brought the focus to: 2 points thick, 2 points outside the shape
/// it is put into. It takes no part in the layout.
class FocusRing : public CrispItem {
    Q_OBJECT
    QML_ELEMENT
    /// Whose focus it shows.
    Q_PROPERTY(FocusItem *control READ control WRITE setControl NOTIFY controlChanged REQUIRED)
    /// Of the ring's outer edge, in points; half the short side and beyond gives half circles, as unless it is set.
    Q_PROPERTY(qreal radius MEMBER m_radius NOTIFY changed)
    /// It stands on the product's loud colour, where the accent would be lost.
    Q_PROPERTY(bool loud MEMBER m_loud NOTIFY changed)
public:
    explicit FocusRing(QQuickItem *parent = nullptr);

    FocusItem *control() const { return m_control; }
    void setControl(FocusItem *control);

signals:
    void controlChanged();

protected:
    void paint(QPainter *painter) override;

private:
    /// Follows the focus. Most rings are never seen, so all else is left until then.
    void show();
    void fit();

    FocusItem *m_control = nullptr;
    EBEnvironment *m_environment = nullptr;
    qreal m_radius = std::numeric_limits<qreal>::infinity();
    bool m_loud = false;
};
