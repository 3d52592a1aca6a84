#pragma once

#include "Contract.h"

#include <optional>

/// What a key of the contract may hold.
namespace SettingValue {

/// "boolean", "string" or "number": the type of the key for a person.
QString typeName(const QVariant &defaultValue);

/// Why the key cannot hold that value; none when it can. The saved layouts must be a whole list of them.
std::optional<QString> fault(const Contract::StoreKey &key, const QVariant &value);

}
