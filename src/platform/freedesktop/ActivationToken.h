#pragma once

#include <QByteArray>
#include <QVariantMap>

/// The right to come to the front, which a desktop gives to what a person starts, and which one program may hand on to
/// another. It lies in the environment: there a launcher leaves it, there Qt looks for it on Wayland, and from there a
/// program that is started next has it.
struct ActivationToken {
    /// What compositors give out; empty for none.
    QByteArray token;
    /// What X11 launchers give out, which ends with the time of the person's action; empty for none.
    QByteArray startupId;

    static ActivationToken inEnvironment();

    /// As it comes with a request on the bus. A desktop may send either; one stands for the other.
    static ActivationToken in(const QVariantMap &platformData);
    QVariantMap platformData() const;

    void putIntoEnvironment() const;

    /// It is used up.
    static void clearEnvironment();
};
