#pragma once

#include "CrispItem.h"
#include "EBApp.h"

/// Paints a mark's construction drawing.
class ConstructionDrawing : public CrispItem {
    Q_OBJECT
    QML_ELEMENT
    /// "quiller", "corvane" or "parcelo". Any other text draws the empty ground and has no display name.
    Q_PROPERTY(QString app MEMBER m_app NOTIFY changed)
    Q_PROPERTY(QString displayName READ displayName NOTIFY changed)
public:
    explicit ConstructionDrawing(QQuickItem *parent = nullptr);

    QString displayName() const;

protected:
    void paint(QPainter *painter) override;

private:
    QString m_app;
};
