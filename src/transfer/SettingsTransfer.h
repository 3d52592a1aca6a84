#pragma once

#include "ExportFile.h"
#include "UserDefaults.h"

#include <chrono>

/// What passes between the shared store and an export file. Main thread only.
namespace SettingsTransfer {

/// Something stored that nobody believes and that is therefore not exported.
struct Omission {
    QString key;
    QString reason;
};

struct Export {
    ExportFile::Settings settings;
    QList<Omission> omitted;
};

/// A person's settings as they are stored: every key but the agent's own. Layouts that are stored in another form than
/// the normal one are put into it, as whenever they are read.
Export exportFrom(UserDefaults &store);

/// What an import changes at one key. Invalid values say that the key is not set.
struct Change {
    QString key;
    QVariant before;
    QVariant after;
};

/// What storing the settings would change, in the order of the contract.
QList<Change> changes(const ExportFile::Settings &settings, const UserDefaults &store);

/// Stores them all, and has the agent apply them once; without any change nothing happens. Otherwise the reason why not
/// everything was stored within that time: everything is then as it was, as far as that can be stored, and the agent is
/// told nothing.
UserDefaults::Trouble apply(const QList<Change> &changes, UserDefaults &store, std::chrono::milliseconds limit);

/// What a person is told of an import that was not stored for that reason.
QString failure(UserDefaults::Trouble trouble);

}
