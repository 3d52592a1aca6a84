#pragma once

#include <QString>

class QVariant;
class UserDefaults;

/// Keeps saved layouts of others before this application puts something else in their place: an agent may have written
/// fields that this version does not know, or a list that cannot be read yet.
///
/// The last five texts lie in the state folder under layouts/, named after the moment they were kept, in UTC. Without a
/// state folder nothing is kept. Main thread only.
namespace LayoutArchive {

/// Keeps a stored text that is about to be replaced, unless it is the one that this application wrote last, in this
/// process or before, or it is kept already.
void keep(const QVariant &stored);

/// To be called before a value from a file, a copy or the terminal is stored under `key`: keeps the layouts if they are
/// what it replaces.
void beforeReplacing(const QString &key, const UserDefaults &store);

/// Says that this application is about to store that list of its own.
void noteOwn(const QString &text);

}
