#pragma once

#include <QString>

/// Keeps texts of others before this application puts its own in their place: an agent may have written fields that
/// this version does not know, or a list that cannot be read yet.
///
/// The last five lie in the state folder under layouts/, named after the moment they were kept, in UTC. Without a state
/// folder nothing is kept. Main thread only.
namespace LayoutArchive {

/// Keeps a stored text that is about to be replaced by `next`, unless this application wrote it, in this process or
/// before, or it is kept already.
void beforeReplacing(const QString &stored, const QString &next);

}
