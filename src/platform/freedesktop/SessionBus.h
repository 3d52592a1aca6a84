#pragma once

#include <QDBusConnection>

#include <optional>

/// The message bus of the person's session, used only where one is already there.
namespace SessionBus {

/// Whether the environment names a bus. If not, no library may be asked for one: it would launch one.
bool isPresent();

/// The connection, made on first use; none while there is no bus that answers.
std::optional<QDBusConnection> connection();

}
