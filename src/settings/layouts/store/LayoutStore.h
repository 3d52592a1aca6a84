#pragma once

#include "SavedLayout.h"

class UserDefaults;

/// The list of saved layouts under "layouts.saved". The agent adds to it; this application renames, deletes and takes a
/// deletion back.
///
/// Each write replaces the whole list: what the agent writes between a read and a write here is lost, the last writer
/// wins. A text of others that is replaced is kept (LayoutArchive). A list that cannot be encoded is not written, and
/// the stored one stays as it is. Main thread only.
namespace LayoutStore {

/// The stored layouts; none when nothing, another type or an unreadable text is stored, and that stays byte for byte.
///
/// Reading can write: a list stored in any other form than encode() gives is replaced by that form, so that an id, a
/// name and a date the agent left out are settled by the first load.
QList<SavedLayout> load(UserDefaults &store);

/// The same, but only reads: what has no id gets another one each time.
QList<SavedLayout> peek(const UserDefaults &store);

/// The text a list is stored as; none when it has none.
std::optional<QString> encode(const QList<SavedLayout> &layouts);

/// Deletes every layout of that id and returns what is left. Writes even when there was none, so deleting from an
/// unreadable list leaves an empty one.
QList<SavedLayout> remove(const QUuid &id, UserDefaults &store);

/// A layout and its place in the stored list.
struct Place {
    qsizetype index;
    SavedLayout layout;
};

/// Every stored layout of that id, in order.
QList<Place> find(const QUuid &id, const UserDefaults &store);

/// Puts layouts that were found and then removed back to their places, in a list that has become shorter to its end,
/// and returns the new list. A layout whose id is stored, or none at all, writes nothing. Nor does a list that is
/// unreadable by now: the agent may mend it, and none is returned.
std::optional<QList<SavedLayout>> restore(const QList<Place> &removed, UserDefaults &store);

/// Names the first layout of that id exactly `name` and returns the new list. Without such a layout nothing is written.
QList<SavedLayout> rename(const QUuid &id, const QString &name, UserDefaults &store);

}
