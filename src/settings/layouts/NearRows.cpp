#include "NearRows.h"

#include <cstdlib>

void NearRows::setSourceModel(QAbstractItemModel *model)
{
    QSortFilterProxyModel::setSourceModel(model);
    // What comes and goes moves the ends and the neighbours.
    connect(model, &QAbstractItemModel::rowsInserted, this, &NearRows::invalidateRowsFilter);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &NearRows::invalidateRowsFilter);
}

void NearRows::setFirst(int row)
{
    if (m_first == row)
        return;
    m_first = row;
    invalidateRowsFilter();
}

void NearRows::setLast(int row)
{
    if (m_last == row)
        return;
    m_last = row;
    invalidateRowsFilter();
}

void NearRows::keep(int row)
{
    const QModelIndex index = sourceModel()->index(row, 0);
    if (m_kept == index)
        return;
    m_kept = index;
    invalidateRowsFilter();
}

int NearRows::placeOf(int row) const
{
    return mapFromSource(sourceModel()->index(row, 0)).row();
}

bool NearRows::filterAcceptsRow(int row, const QModelIndex &) const
{
    const bool isEnd = row == 0 || row == sourceModel()->rowCount() - 1;
    const bool isNear = row >= m_first && row <= m_last;
    return isEnd || isNear || (m_kept.isValid() && std::abs(row - m_kept.row()) <= 1);
}
