#include "Commands.h"

#include "CheckAgentCommand.h"
#include "LayoutCommands.h"
#include "Output.h"
#include "Platform.h"
#include "StoreCommands.h"
#include "TransferCommands.h"
#include "WatchCommand.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr qsizetype any = -1;

struct Command {
    const char *name;
    const char *operands;
    const char *summary;
    qsizetype least;
    /// `any` for as many as there are.
    qsizetype most;
    int (*run)(const Call &call);
    /// Whether there must be a session to talk to.
    bool needsSession = false;
};

constexpr Command commands[] = {
    {"list", "", "show every key with its type, value, default and writer", 0, 0, &StoreCommands::list},
    {"get", "KEY", "show the value of a key", 1, 1, &StoreCommands::get},
    {"set", "KEY VALUE", "change a setting, and have the agent apply it", 2, 2, &StoreCommands::set, true},
    {"reset", "KEY... | --all", "put settings back to their defaults", 0, any, &StoreCommands::reset, true},
    {"watch", "", "print changes and commands as they come, a line of JSON each", 0, 0, &WatchCommand::run, true},
    {"send", "COMMAND [true|false]", "post a command to the agent", 1, 2, &StoreCommands::send, true},
    {"export", "FILE | -", "write the settings to a file", 1, 1, &TransferCommands::exportTo},
    {"import", "FILE | - [--dry-run]", "take the settings from a file", 1, 1, &TransferCommands::importFrom},
    {"layouts", "list | show ID | rename ID NAME | delete ID", "look after the saved layouts", 1, 3,
     &LayoutCommands::run},
    {CheckAgentCommand::plainName, "PROGRAM [ARGUMENT...]", "try out whether an agent keeps to the contract", 1, any,
     &CheckAgentCommand::run},
};

void printHelp()
{
    Output::line(QStringLiteral("Usage: corvane-ctl [--json] COMMAND [OPERAND...]\n\n"
                                "Reads and changes the settings that Corvane and its agent share.\n\nCommands:"));
    for (const Command &command : commands) {
        Output::line(QStringLiteral("  %1 %2").arg(QLatin1String(command.name), QLatin1String(command.operands)));
        Output::line(QStringLiteral("      ") + QLatin1String(command.summary));
    }
    Output::line(QStringLiteral("\nOptions:\n"
                                "  --json      print results as JSON\n"
                                "  --dry-run   with import: only show what would change\n"
                                "  --all       with reset: every setting, the saved layouts too\n"
                                "  -h, --help  print this\n"
                                "  --version   print the version\n\n"
                                "A FILE of \"-\" is standard input or output; \"--\" ends the options.\n"
                                "Exit status: 0 done, 1 refused or failed, 2 not understood."));
}

int misunderstood(const Call &call, const QString &text)
{
    Output::failure(call, text);
    Output::remark(QStringLiteral("try 'corvane-ctl --help'"));
    return ExitCode::usage;
}

}

int Commands::run(const Call &call)
{
    if (call.help) {
        printHelp();
        return Output::delivered(ExitCode::success);
    }
    if (call.version) {
        Output::line(u"corvane-ctl "
                     + Platform::current().mainBundle().string(QStringLiteral("CFBundleShortVersionString")));
        return Output::delivered(ExitCode::success);
    }
    if (!call.unknownOption.isEmpty())
        return misunderstood(call, QStringLiteral("there is no option %1").arg(call.unknownOption));
    if (call.command.isEmpty())
        return misunderstood(call, QStringLiteral("a command is missing"));
    const auto *command = std::ranges::find_if(
        commands, [&](const Command &candidate) { return call.command == QLatin1String(candidate.name); });
    if (command == std::end(commands))
        return misunderstood(call, QStringLiteral("there is no command \"%1\"").arg(call.command));
    const qsizetype count = call.operands.size();
    const bool isUnderstood = count >= command->least && (command->most == any || count <= command->most)
        && (!call.dryRun || call.command == u"import") && (!call.all || call.command == u"reset");
    if (isUnderstood && command->needsSession && !Platform::current().distributedNotificationCenter().isAvailable())
        return Output::failure(call, QStringLiteral("there is no session bus"));
    const int code = isUnderstood ? command->run(call) : ExitCode::usage;
    if (code != ExitCode::usage)
        return Output::delivered(code);
    const QString usage =
        QStringLiteral("usage: corvane-ctl %1 %2").arg(QLatin1String(command->name), QLatin1String(command->operands));
    return Output::failure(call, usage.trimmed(), ExitCode::usage);
}
