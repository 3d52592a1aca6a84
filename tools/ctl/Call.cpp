#include "Call.h"

#include "CheckAgentCommand.h"

#include <QMap>

Call Call::from(const QStringList &arguments)
{
    Call call;
    const QMap<QString, bool *> options = {
        {QStringLiteral("--json"), &call.json}, {QStringLiteral("--dry-run"), &call.dryRun},
        {QStringLiteral("--all"), &call.all},   {QStringLiteral("--help"), &call.help},
        {QStringLiteral("-h"), &call.help},     {QStringLiteral("--version"), &call.version}};
    bool takesOptions = true;
    for (const QString &argument : arguments) {
        // A minus alone is a file, and with digits it is a number.
        const bool isOption = takesOptions && argument.size() > 1 && argument.startsWith(u'-')
            && !argument.at(1).isDigit() && argument.at(1) != u'.';
        if (argument == u"--" && takesOptions) {
            takesOptions = false;
        } else if (isOption) {
            if (bool *option = options.value(argument))
                *option = true;
            else if (call.unknownOption.isEmpty())
                call.unknownOption = argument;
        } else if (call.command.isEmpty()) {
            call.command = argument;
        } else {
            call.operands.append(argument);
            takesOptions = takesOptions && call.command != CheckAgentCommand::name;
        }
    }
    return call;
}
