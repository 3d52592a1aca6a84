#include "CompactLayouts.h"

#include <QHash>

#include <algorithm>

CompactLayouts::CompactLayouts(const QList<SavedLayout> &layouts)
{
    QHash<QString, int> places;
    const auto place = [&](const QString &text) {
        const auto known = places.constFind(text);
        if (known != places.cend())
            return *known;
        m_texts.append(text);
        return *places.insert(text, int(m_texts.size()) - 1);
    };
    m_layouts.reserve(layouts.size());
    for (const SavedLayout &layout : layouts) {
        m_layouts.append({layout.id, m_names.size(), layout.name.size(), m_windows.size(), layout.windows.size()});
        m_names += layout.name;
        for (const SavedLayout::Window &window : layout.windows) {
            m_windows.append(
                {window.rect, place(window.bundleID), place(window.app), window.display ? place(*window.display) : -1});
        }
    }
    m_names.squeeze();
    m_windows.squeeze();
}

bool CompactLayouts::contains(const QUuid &id) const
{
    return std::any_of(m_layouts.cbegin(), m_layouts.cend(), [&](const Layout &layout) { return layout.id == id; });
}

QString CompactLayouts::name(int row) const
{
    return m_names.mid(m_layouts.at(row).name, m_layouts.at(row).nameLength);
}

SavedLayout CompactLayouts::at(int row) const
{
    const Layout &layout = m_layouts.at(row);
    SavedLayout result = {layout.id, name(row), {}, 0};
    for (qsizetype i = layout.firstWindow; i < layout.firstWindow + layout.windowCount; ++i) {
        const Window &window = m_windows.at(i);
        result.windows.append({m_texts.at(window.bundleID),
                               m_texts.at(window.app),
                               {},
                               window.rect,
                               window.display < 0 ? std::nullopt : std::optional(m_texts.at(window.display))});
    }
    return result;
}
