#pragma once

#include <QList>
#include <QMetaType>
#include <QUrl>

/// What a scene shows.
enum class SceneKind { tokens, controls, screen };

/// One picture of the gallery: its name on the command line, its view, and its glyph in the list.
struct SceneEntry {
    Q_GADGET
    Q_PROPERTY(QString name MEMBER name CONSTANT)
    Q_PROPERTY(QUrl source MEMBER source CONSTANT)
    Q_PROPERTY(QString glyph MEMBER glyph CONSTANT)
public:
    SceneKind kind = SceneKind::screen;
    QString name;
    QUrl source;
    QString glyph;
};

namespace SceneTable {

/// Every scene, in the order of the list.
const QList<SceneEntry> &all();

/// The scene of that name; null when there is none.
const SceneEntry *find(const QString &name);

}
