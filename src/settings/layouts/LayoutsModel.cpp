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
    const SavedLayout &layout = m_layouts.at(index.row());
    switch (role) {
    case NameRole:
        return layout.name;
    case SpokenNameRole:
        return spokenName(index.row());
    case LayoutRole:
        return QVariant::fromValue(layout);
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
        show(LayoutStore::rename(m_layouts.at(row).id, name, Shared::store()));
}

void LayoutsModel::removeLayout(int row)
{
    if (!isRow(row))
        return;
    const QUuid id = m_layouts.at(row).id;
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
    const auto restored = std::ranges::find(m_layouts, removal.places.constFirst().layout.id, &SavedLayout::id);
    return restored == m_layouts.end() ? -1 : int(restored - m_layouts.begin());
}

/// A layout whose removal was refused is there, and it goes when the removal is stored after all.
qsizetype LayoutsModel::lastRemoval() const
{
    const auto isGone = [this](const Removal &removal) {
        const QUuid id = removal.places.constFirst().layout.id;
        return std::ranges::find(m_layouts, id, &SavedLayout::id) == m_layouts.end();
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
    const QString &name = m_layouts.at(row).name;
    //: %1 is the place of a layout without a name in the list.
    return name.isEmpty() ? tr("layout %1").arg(row + 1) : name;
}

/// Rows that stay are kept, so that the field a person has just typed into keeps the focus.
void LayoutsModel::show(const QList<SavedLayout> &layouts)
{
    const auto sameId = [](const SavedLayout &a, const SavedLayout &b) { return a.id == b.id; };
    const auto shorter = std::min(m_layouts.size(), layouts.size());
    const auto head = std::mismatch(m_layouts.begin(), m_layouts.begin() + shorter, layouts.begin(), sameId).first
        - m_layouts.begin();
    const auto tail =
        std::mismatch(m_layouts.rbegin(), m_layouts.rbegin() + (shorter - head), layouts.rbegin(), sameId).first
        - m_layouts.rbegin();
    const int before = count();

    if (const int last = int(m_layouts.size() - tail) - 1; last >= head) {
        beginRemoveRows({}, int(head), last);
        m_layouts.remove(head, last - head + 1);
        endRemoveRows();
    }
    if (const int last = int(layouts.size() - tail) - 1; last >= head) {
        beginInsertRows({}, int(head), last);
        m_layouts = layouts;
        endInsertRows();
    }
    m_layouts = layouts;
    if (!m_layouts.isEmpty())
        emit dataChanged(index(0), index(count() - 1));
    if (count() != before)
        emit countChanged();
}
