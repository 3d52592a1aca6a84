#pragma once

#include <QStringList>

/// What a person typed: the command, what it is applied to, and the options, which may stand anywhere.
struct Call {
    QString command;
    QStringList operands;
    bool json = false;
    bool dryRun = false;
    bool all = false;
    bool help = false;
    bool version = false;
    /// The first option that is none; empty when all are.
    QString unknownOption;

    /// Reads the arguments of the program, without its name. What follows "--" is no option, nor is what follows the
    /// program that "check-agent" is given.
    static Call from(const QStringList &arguments);
};

/// How a command ended, for the shell.
namespace ExitCode {

inline constexpr int success = 0;
/// Something was refused, or could not be done.
inline constexpr int failure = 1;
/// The command was not understood.
inline constexpr int usage = 2;

}
