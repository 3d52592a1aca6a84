#pragma once

#include "SceneTable.h"

#include <QColor>
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
    /// The raw strings of the products.
    Q_PROPERTY(QStringList apps READ apps CONSTANT)
    Q_PROPERTY(QList<SceneEntry> scenes READ scenes CONSTANT)
public:
    explicit Catalogue(QObject *parent = nullptr);

    QStringList glyphs() const;
    QVariantList tokens() const;
    QStringList apps() const;
    QList<SceneEntry> scenes() const { return SceneTable::all(); }

signals:
    void appearanceChanged();
};
