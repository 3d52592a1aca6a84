#pragma once

#include "DotLayout.h"

#include <QObject>
#include <QVariantList>
#include <qqmlregistration.h>

/// What the scenes list: everything there is of a kind, taken from where it is declared.
class Catalogue : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// The raw strings of all glyphs.
    Q_PROPERTY(QStringList glyphs READ glyphs CONSTANT)
    /// Every colour token as {name, color}, in the palette's order.
    Q_PROPERTY(QVariantList tokens READ tokens NOTIFY appearanceChanged)
    /// Every product as {value, title}: its raw string and its name.
    Q_PROPERTY(QVariantList apps READ apps CONSTANT)
    /// Two places a dot field keeps clear.
    Q_PROPERTY(QList<Zone> calmZones READ calmZones CONSTANT)
    /// The rows of the table of scenes.
    Q_PROPERTY(QVariantList scenes READ scenes CONSTANT)
public:
    explicit Catalogue(QObject *parent = nullptr);

    QStringList glyphs() const;
    QVariantList tokens() const;
    QVariantList apps() const;
    QList<Zone> calmZones() const;
    QVariantList scenes() const;

signals:
    void appearanceChanged();
};
