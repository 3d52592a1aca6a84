#pragma once

#include "CrispItem.h"
#include "EBApp.h"

/// What there is to see of a mark's construction drawing.
class ConstructionDrawing : public CrispItem {
    Q_OBJECT
    QML_ELEMENT
    /// "quiller", "corvane" or "parcelo". Any other text draws the empty ground and has no display name.
    Q_PROPERTY(QString app READ app WRITE setApp NOTIFY appChanged)
    Q_PROPERTY(QString displayName READ displayName NOTIFY appChanged)
public:
    explicit ConstructionDrawing(QQuickItem *parent = nullptr);

    QString app() const { return m_app; }
    void setApp(const QString &rawValue);
    QString displayName() const;

signals:
    void appChanged();

protected:
    void paint(QPainter *painter) override;

private:
    QString m_app;
};
