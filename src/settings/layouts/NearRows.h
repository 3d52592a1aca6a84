#pragma once

#include <QPersistentModelIndex>
#include <QSortFilterProxyModel>
#include <qqmlregistration.h>

/// Of the rows of a long list those that need items: the ones near the view, the one that has the keyboard's focus with
/// its neighbours, and both ends of the list. So the focus finds its way into the list from either side and on from
/// where it is, however far away the view is.
class NearRows : public QSortFilterProxyModel {
    Q_OBJECT
    QML_ELEMENT
    /// The rows of the list that are near the view, from the first to the last. Numbers beyond the list's ends do no
    /// harm; a first one behind the last means none.
    Q_PROPERTY(int first MEMBER m_first WRITE setFirst)
    Q_PROPERTY(int last MEMBER m_last WRITE setLast)
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void setSourceModel(QAbstractItemModel *model) override;
    void setFirst(int row);
    void setLast(int row);

    /// Says that this row of the list has the focus. It is kept, as the row it is then, until another one is named.
    Q_INVOKABLE void keep(int row);

    /// Where this row of the list is among those that have items; -1 when it has none.
    Q_INVOKABLE int placeOf(int row) const;

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    int m_first = 0;
    int m_last = -1;
    QPersistentModelIndex m_kept;
};
