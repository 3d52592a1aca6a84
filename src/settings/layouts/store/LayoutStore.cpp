#include "LayoutStore.h"

#include "LayoutArchive.h"
#include "LayoutCoder.h"
#include "Shared.h"
#include "UserDefaults.h"

#include <algorithm>

namespace {

struct Stored {
    /// Invalid when nothing is stored.
    QVariant value;
    /// None when no list can be read from the value.
    std::optional<QList<SavedLayout>> layouts;
};

Stored read(const UserDefaults &store)
{
    const QVariant value = store.value(Shared::Key::layoutsSaved);
    if (!value.isValid())
        return {value, QList<SavedLayout>()};
    if (value.typeId() != QMetaType::QString)
        return {value, std::nullopt};
    return {value, LayoutCoder::decode(value.toString())};
}

/// Stores the list in place of what was read. False when it has no text.
bool replace(const Stored &before, const QList<SavedLayout> &layouts, UserDefaults &store)
{
    const auto text = LayoutStore::encode(layouts);
    if (text && before.value != *text) {
        LayoutArchive::keep(before.value);
        LayoutArchive::noteOwn(*text);
        store.setValue(Shared::Key::layoutsSaved, *text);
    }
    return text.has_value();
}

/// Gives a stored list its one form. Nothing and what cannot be read stay as they are.
void settle(const Stored &stored, UserDefaults &store)
{
    if (stored.value.isValid() && stored.layouts)
        replace(stored, *stored.layouts, store);
}

}

QList<SavedLayout> LayoutStore::load(UserDefaults &store)
{
    const Stored stored = read(store);
    settle(stored, store);
    return stored.layouts.value_or(QList<SavedLayout>());
}

QList<SavedLayout> LayoutStore::peek(const UserDefaults &store)
{
    return read(store).layouts.value_or(QList<SavedLayout>());
}

std::optional<QString> LayoutStore::encode(const QList<SavedLayout> &layouts)
{
    return LayoutCoder::encode(layouts);
}

QList<SavedLayout> LayoutStore::remove(const QUuid &id, UserDefaults &store)
{
    const Stored stored = read(store);
    QList<SavedLayout> layouts = stored.layouts.value_or(QList<SavedLayout>());
    layouts.removeIf([&id](const SavedLayout &layout) { return layout.id == id; });
    replace(stored, layouts, store);
    return layouts;
}

QList<LayoutStore::Place> LayoutStore::find(const QUuid &id, const UserDefaults &store)
{
    const QList<SavedLayout> layouts = peek(store);
    QList<Place> places;
    for (qsizetype i = 0; i < layouts.size(); ++i) {
        if (layouts.at(i).id == id)
            places.append({i, layouts.at(i)});
    }
    return places;
}

std::optional<QList<SavedLayout>> LayoutStore::restore(const QList<Place> &removed, UserDefaults &store)
{
    const Stored stored = read(store);
    if (!stored.layouts)
        return std::nullopt;
    QList<SavedLayout> layouts = *stored.layouts;
    const auto isStored = [&](const Place &place) {
        return std::any_of(layouts.cbegin(), layouts.cend(),
                           [&](const SavedLayout &layout) { return layout.id == place.layout.id; });
    };
    if (removed.isEmpty() || std::any_of(removed.cbegin(), removed.cend(), isStored)) {
        settle(stored, store);
        return layouts;
    }
    for (const Place &place : removed)
        layouts.insert(std::min(place.index, layouts.size()), place.layout);
    replace(stored, layouts, store);
    return layouts;
}

QList<SavedLayout> LayoutStore::rename(const QUuid &id, const QString &name, UserDefaults &store)
{
    const Stored stored = read(store);
    QList<SavedLayout> layouts = stored.layouts.value_or(QList<SavedLayout>());
    const auto layout =
        std::find_if(layouts.begin(), layouts.end(), [&](const SavedLayout &saved) { return saved.id == id; });
    if (layout != layouts.end())
        layout->name = name;
    if (layout == layouts.end() || !replace(stored, layouts, store))
        settle(stored, store);
    return layouts;
}
