#pragma once

#include <QObject>
#include <QVariantList>
#include <qqmlregistration.h>

/// The looks and sizes there are to choose from, for QML, by their raw strings. A text that names none reads as the
/// default.
class ButtonChoices : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// A list of {value, title}, in the order in which they are offered.
    Q_PROPERTY(QVariantList themes READ themes CONSTANT)
    Q_PROPERTY(QVariantList sizes READ sizes CONSTANT)
public:
    using QObject::QObject;

    static QVariantList themes();
    static QVariantList sizes();

    /// The raw string itself where there is such a theme or size, otherwise the default's.
    Q_INVOKABLE static QString theme(const QString &rawValue);
    Q_INVOKABLE static QString size(const QString &rawValue);

    /// One line about the theme.
    Q_INVOKABLE static QString description(const QString &theme);
    /// The size's diameter in points before any scaling.
    Q_INVOKABLE static qreal diameter(const QString &size);
};
