#pragma once

#include "SavedLayout.h"

#include <QStringList>

/// What the page shows of the saved layouts, in little memory however many there are: their ids, names and windows,
/// without titles and times. A text that windows have in common is held once.
class CompactLayouts {
public:
    CompactLayouts() = default;
    explicit CompactLayouts(const QList<SavedLayout> &layouts);

    int count() const { return int(m_layouts.size()); }
    const QUuid &id(int row) const { return m_layouts.at(row).id; }
    bool contains(const QUuid &id) const;
    QString name(int row) const;
    /// The layout in that row, with empty titles and the time 0.
    SavedLayout at(int row) const;

    /// Takes rows out, whose texts stay.
    void remove(int first, int count) { m_layouts.remove(first, count); }

private:
    struct Layout {
        QUuid id;
        qsizetype name;
        qsizetype nameLength;
        qsizetype firstWindow;
        qsizetype windowCount;
    };
    struct Window {
        UnitRect rect;
        /// Places among the texts; that of no display is -1.
        int bundleID;
        int app;
        int display;
    };

    QList<Layout> m_layouts;
    QList<Window> m_windows;
    QString m_names;
    QStringList m_texts;
};
