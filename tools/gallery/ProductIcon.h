#pragma once

#include <QIcon>
#include <QObject>
#include <qqmlregistration.h>

/// The icon of the product, the same on every machine.
class ProductIcon : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QIcon icon READ icon CONSTANT)
public:
    static QIcon icon() { return QIcon(QStringLiteral(":/icons/Corvane.svg")); }
};
