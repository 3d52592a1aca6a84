#include "LayoutsModel.h"

#include "Shared.h"
#include "UserDefaults.h"

#include <algorithm>

LayoutsModel::LayoutsModel(QObject *parent) : QAbstractListModel(parent), m_layouts(LayoutStore::load(Shared::store()))
{
    // Later, because a change may be refused before it has returned what it would have left.
    connect(
        &Shared::store(), &UserDefaults::revised, this,
        [this](const QString &key) {
            if (key == Shared::Key::layoutsSaved)
                showStored();
        },
        Qt::QueuedConnection);
}

int LayoutsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant LayoutsModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case NameRole:
        return m_layouts.name(index.row());
    case SpokenNameRole:
        return spokenName(index.row());
    case LayoutRole:
        return QVariant::fromValue(m_layouts.at(index.row()));
    case RowRole:
        return index.row();
    default:
        return {};
    }
}

QHash<int, QByteArray> LayoutsModel::roleNames() const
{
    return {{NameRole, "name"}, {SpokenNameRole, "spokenName"}, {LayoutRole, "layout"}, {RowRole, "row"}};
}

void LayoutsModel::rename(int row, const QString &name)
{
    if (isRow(row))
        show(LayoutStore::rename(m_layouts.id(row), name, Shared::store()));
}

void LayoutsModel::removeLayout(int row)
{
    if (!isRow(row))
        return;
    const QUuid id = m_layouts.id(row);
    const Removal removal = {spokenName(row), LayoutStore::find(id, Shared::store())};
    show(LayoutStore::remove(id, Shared::store()));
    if (removal.places.isEmpty())
        return;
    m_removals.append(removal);
    emit removedChanged();
}

QString LayoutsModel::removed() const
{
    const qsizetype last = lastRemoval();
    return last < 0 ? QString() : m_removals.at(last).name;
}

int LayoutsModel::undoRemoval()
{
    const qsizetype last = lastRemoval();
    if (last < 0)
        return -1;
    const auto layouts = LayoutStore::restore(m_removals.at(last).places, Shared::store());
    if (!layouts)
        return -1;
    const Removal removal = m_removals.takeAt(last);
    show(*layouts);
    emit removedChanged();
    const auto &id = removal.places.constFirst().layout.id;
    const auto restored =
        std::find_if(layouts->cbegin(), layouts->cend(), [&](const SavedLayout &layout) { return layout.id == id; });
    return restored == layouts->cend() ? -1 : int(restored - layouts->cbegin());
}

/// A layout whose removal was refused is there, and it goes when the removal is stored after all.
qsizetype LayoutsModel::lastRemoval() const
{
    const auto isGone = [this](const Removal &removal) {
        return !m_layouts.contains(removal.places.constFirst().layout.id);
    };
    const auto last = std::find_if(m_removals.crbegin(), m_removals.crend(), isGone);
    return m_removals.crend() - last - 1;
}

void LayoutsModel::showStored()
{
    show(LayoutStore::peek(Shared::store()));
    emit removedChanged();
}

/// An empty name says nothing, so the place in the list stands in for it.
QString LayoutsModel::spokenName(int row) const
{
    const QString name = m_layouts.name(row);
    //: %1 is the place of a layout without a name in the list.
    return name.isEmpty() ? tr("layout %1").arg(row + 1) : name;
}

/// Rows that stay are kept, so that the field a person has just typed into keeps the focus.
void LayoutsModel::show(const QList<SavedLayout> &layouts)
{
    const CompactLayouts shown(layouts);
    const int shorter = std::min(count(), shown.count());
    int head = 0;
    while (head < shorter && m_layouts.id(head) == shown.id(head))
        ++head;
    int tail = 0;
    while (tail < shorter - head && m_layouts.id(count() - 1 - tail) == shown.id(shown.count() - 1 - tail))
        ++tail;
    const int before = count();

    if (const int last = count() - tail - 1; last >= head) {
        beginRemoveRows({}, head, last);
        m_layouts.remove(head, last - head + 1);
        endRemoveRows();
    }
    if (const int last = shown.count() - tail - 1; last >= head) {
        beginInsertRows({}, head, last);
        m_layouts = shown;
        endInsertRows();
    }
    m_layouts = shown;
    if (count() > 0)
        emit dataChanged(index(0), index(count() - 1));
    if (count() != before)
        emit countChanged();
}
