#include "SidebarModel.h"

#include <algorithm>

SidebarModel::SidebarModel(QList<EBSettingsPage> pages, QObject *parent)
    : QAbstractListModel(parent), m_pages(std::move(pages)), m_shown(m_pages)
{
}

void SidebarModel::setSearch(const QString &search)
{
    if (m_search == search)
        return;
    m_search = search;
    const QList<EBSettingsPage> shown = pagesMatching(m_pages, search);
    const auto sameId = [](const EBSettingsPage &a, const EBSettingsPage &b) { return a.id == b.id; };
    if (!std::equal(shown.begin(), shown.end(), m_shown.begin(), m_shown.end(), sameId)) {
        beginResetModel();
        m_shown = shown;
        endResetModel();
    }
    emit searchChanged();
}

int SidebarModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_shown.size());
}

QVariant SidebarModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const EBSettingsPage &page = m_shown.at(index.row());
    switch (role) {
    case IdRole:
        return page.id;
    case TitleRole:
        return page.title;
    case GlyphRole:
        return GlyphNames::rawValue(page.glyph);
    default:
        return {};
    }
}

QHash<int, QByteArray> SidebarModel::roleNames() const
{
    return {{IdRole, "pageId"}, {TitleRole, "title"}, {GlyphRole, "glyph"}};
}

QString SidebarModel::title(const QString &id) const
{
    for (const EBSettingsPage &page : m_pages) {
        if (page.id == id)
            return page.title;
    }
    return {};
}

QString SidebarModel::neighbour(const QString &id, int step) const
{
    if (m_shown.isEmpty())
        return id;
    const auto found =
        std::find_if(m_shown.begin(), m_shown.end(), [&](const EBSettingsPage &page) { return page.id == id; });
    const auto from = found == m_shown.end() ? -1 : found - m_shown.begin();
    return m_shown.at(std::clamp<qsizetype>(from + step, 0, m_shown.size() - 1)).id;
}
