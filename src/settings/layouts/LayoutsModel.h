#pragma once

#include "SavedLayout.h"

#include <QAbstractListModel>
#include <qqmlregistration.h>

/// The saved layouts as the page lists them: loaded once, when the page is shown. Renaming and removing write the
/// whole list and show what was written.
class LayoutsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    enum Role { NameRole = Qt::UserRole, LayoutRole };

    explicit LayoutsModel(QObject *parent = nullptr);

    int count() const { return int(m_layouts.size()); }
    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Gives the layout in that row the name exactly as it stands. A row that is none changes nothing.
    Q_INVOKABLE void rename(int row, const QString &name);

    /// Deletes the layout in that row, and every other one with its id.
    Q_INVOKABLE void removeLayout(int row);

signals:
    void countChanged();

private:
    bool isRow(int row) const { return row >= 0 && row < count(); }
    void show(const QList<SavedLayout> &layouts);

    QList<SavedLayout> m_layouts;
};
