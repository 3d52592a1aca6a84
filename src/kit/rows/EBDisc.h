#pragma once

#include "CrispItem.h"
#include "EBEnvironment.h"

/// A glyph in a circle.
class EBDisc : public CrispItem {
    Q_OBJECT
    QML_ELEMENT
    /// The glyph's raw string. Any other text draws none.
    Q_PROPERTY(QString glyph MEMBER m_glyph NOTIFY changed)
    Q_PROPERTY(bool small MEMBER m_small NOTIFY changed)
    /// It has the product's accent.
    Q_PROPERTY(bool on MEMBER m_on NOTIFY changed)
public:
    explicit EBDisc(QQuickItem *parent = nullptr);

protected:
    void paint(QPainter *painter) override;

private:
    void adapt();

    QString m_glyph;
    bool m_small = false;
    bool m_on = false;
    EBEnvironment *m_environment = nullptr;
};
