#pragma once

#include "CompactLayouts.h"
#include "LayoutStore.h"

#include <QAbstractListModel>
#include <qqmlregistration.h>

/// The saved layouts as the page lists them: loaded once, when the page is shown. Renaming, removing and taking a
/// removal back write the whole list and show what was written, and what is stored instead where that is refused.
class LayoutsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    /// What the layout is called that was removed last and can be brought back; empty when there is none.
    Q_PROPERTY(QString removed READ removed NOTIFY removedChanged)
public:
    /// The name as stored, the name as it is read out, the SavedLayout without its titles, and the row it stands in.
    enum Role { NameRole = Qt::UserRole, SpokenNameRole, LayoutRole, RowRole };

    explicit LayoutsModel(QObject *parent = nullptr);

    int count() const { return m_layouts.count(); }
    QString removed() const;
    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Gives the layout in that row the name exactly as it stands. A row that is none changes nothing.
    Q_INVOKABLE void rename(int row, const QString &name);

    /// Deletes the layout in that row, and every other one with its id.
    Q_INVOKABLE void removeLayout(int row);

    /// Takes the last removal back that was not taken back yet. The layout returns to its place in the list as it is
    /// stored by now; the row where it is shown, -1 when there was nothing to take back. Where the stored list is
    /// unreadable by now nothing happens, and it can be tried again.
    Q_INVOKABLE int undoRemoval();

signals:
    void countChanged();
    void removedChanged();

private:
    struct Removal {
        QString name;
        QList<LayoutStore::Place> places;
    };

    void showStored();
    qsizetype lastRemoval() const;
    bool isRow(int row) const { return row >= 0 && row < count(); }
    QString spokenName(int row) const;
    void show(const QList<SavedLayout> &layouts);

    CompactLayouts m_layouts;
    QList<Removal> m_removals;
};
