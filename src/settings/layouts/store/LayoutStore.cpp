#include "LayoutStore.h"

#include "LayoutCoder.h"
#include "Shared.h"
#include "UserDefaults.h"

#include <algorithm>

namespace {

/// The stored layouts, and none at all where something else is stored, which stays byte for byte.
std::optional<QList<SavedLayout>> read(UserDefaults &store)
{
    const QVariant stored = store.value(Shared::Key::layoutsSaved);
    if (!stored.isValid())
        return QList<SavedLayout>();
    if (stored.typeId() != QMetaType::QString)
        return std::nullopt;
    const QString text = stored.toString();
    const auto layouts = LayoutCoder::decode(text);
    if (!layouts)
        return std::nullopt;
    const auto normalForm = LayoutStore::encode(*layouts);
    if (normalForm && *normalForm != text)
        store.setValue(Shared::Key::layoutsSaved, *normalForm);
    return layouts;
}

void replace(const QList<SavedLayout> &layouts, UserDefaults &store)
{
    if (const auto text = LayoutStore::encode(layouts))
        store.setValue(Shared::Key::layoutsSaved, *text);
}

}

QList<SavedLayout> LayoutStore::load(UserDefaults &store)
{
    return read(store).value_or(QList<SavedLayout>());
}

std::optional<QString> LayoutStore::encode(const QList<SavedLayout> &layouts)
{
    return LayoutCoder::encode(layouts);
}

QList<SavedLayout> LayoutStore::remove(const QUuid &id, UserDefaults &store)
{
    QList<SavedLayout> layouts = load(store);
    layouts.removeIf([&id](const SavedLayout &layout) { return layout.id == id; });
    replace(layouts, store);
    return layouts;
}

QList<LayoutStore::Place> LayoutStore::find(const QUuid &id, UserDefaults &store)
{
    const QList<SavedLayout> layouts = load(store);
    QList<Place> places;
    for (qsizetype i = 0; i < layouts.size(); ++i) {
        if (layouts.at(i).id == id)
            places.append({i, layouts.at(i)});
    }
    return places;
}

std::optional<QList<SavedLayout>> LayoutStore::restore(const QList<Place> &removed, UserDefaults &store)
{
    auto layouts = read(store);
    if (!layouts)
        return std::nullopt;
    const auto isStored = [&](const Place &place) {
        return std::ranges::find(*layouts, place.layout.id, &SavedLayout::id) != layouts->end();
    };
    if (removed.isEmpty() || std::ranges::any_of(removed, isStored))
        return layouts;
    for (const Place &place : removed)
        layouts->insert(std::min(place.index, layouts->size()), place.layout);
    replace(*layouts, store);
    return layouts;
}

QList<SavedLayout> LayoutStore::rename(const QUuid &id, const QString &name, UserDefaults &store)
{
    QList<SavedLayout> layouts = load(store);
    const auto layout = std::find_if(layouts.begin(), layouts.end(),
                                     [&id](const SavedLayout &candidate) { return candidate.id == id; });
    if (layout == layouts.end())
        return layouts;
    layout->name = name;
    replace(layouts, store);
    return layouts;
}
