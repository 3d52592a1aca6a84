#pragma once

#include "Accessible.h"
#include "Program.h"

class Store;

/// The reference agent beside the program, with its stand-in for System Settings.
class ReferenceAgent : public Program {
public:
    explicit ReferenceAgent(const QProcessEnvironment &environment);

    /// Starts it without a login item from an earlier test, and waits until it listens. False when that takes too long.
    bool start(const Store &store, const QStringList &arguments = {});

    /// Its root on the accessibility bus.
    Accessible tree() const { return Accessible::application(processId()); }

    /// Waits for the showing element with that role and name; null when it does not appear in time.
    Accessible find(AtspiRole role, const QString &name) const;
};
