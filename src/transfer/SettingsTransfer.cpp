#include "SettingsTransfer.h"

#include "LayoutArchive.h"
#include "LayoutStore.h"
#include "SettingValue.h"
#include "Shared.h"
#include "StoreTrouble.h"

#include <QCoreApplication>

#include <algorithm>

using Trouble = UserDefaults::Trouble;

namespace {

bool isSame(const QVariant &one, const QVariant &other)
{
    return one.metaType() == other.metaType() && one == other;
}

}

SettingsTransfer::Export SettingsTransfer::exportFrom(UserDefaults &store)
{
    LayoutStore::load(store);
    Export taken;
    for (const Contract::StoreKey &key : Contract::storeKeys()) {
        if (Contract::isAgentState(key.name))
            continue;
        const QVariant value = store.value(key.name);
        const auto fault = value.isValid() ? SettingValue::fault(key, value) : std::nullopt;
        if (fault)
            taken.omitted.append({key.name, *fault});
        else
            taken.settings.insert(key.name, value);
    }
    return taken;
}

QList<SettingsTransfer::Change> SettingsTransfer::changes(const ExportFile::Settings &settings,
                                                          const UserDefaults &store)
{
    QList<Change> changes;
    for (const Contract::StoreKey &key : Contract::storeKeys()) {
        const auto setting = settings.constFind(key.name);
        if (setting == settings.cend() || Contract::isAgentState(key.name))
            continue;
        const QVariant before = store.value(key.name);
        if (!isSame(before, *setting))
            changes.append({key.name, before, *setting});
    }
    return changes;
}

Trouble SettingsTransfer::apply(const QList<Change> &changes, UserDefaults &store, std::chrono::milliseconds limit)
{
    if (changes.isEmpty())
        return Trouble::none;
    const auto isLocked = [&](const Change &change) { return !store.isWritable(change.key); };
    if (std::any_of(changes.cbegin(), changes.cend(), isLocked))
        return Trouble::locked;
    for (const Change &change : changes) {
        LayoutArchive::beforeReplacing(change.key, store);
        store.setValue(change.key, change.after);
    }
    if (store.finishWrites(limit)) {
        Shared::send(Shared::Command::applySettings);
        return Trouble::none;
    }
    // What is still on its way then has had no answer.
    const Trouble trouble = store.trouble() == Trouble::none ? Trouble::noAnswer : store.trouble();
    for (const Change &change : changes)
        store.setValue(change.key, change.before);
    store.finishWrites(limit);
    return trouble;
}

QString SettingsTransfer::failure(Trouble trouble)
{
    const QString reason = trouble == Trouble::noStore
        ? QCoreApplication::translate("SettingsTransfer", "There is nothing to save settings in.")
        : StoreTrouble::text(trouble);
    //: %1 is a sentence that says why.
    return QCoreApplication::translate("SettingsTransfer", "%1 Nothing was imported.").arg(reason);
}
