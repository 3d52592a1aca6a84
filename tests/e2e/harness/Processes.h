#pragma once

#include <QStringList>

/// The processes below this one. Those whose own parent has ended count too, once `adoptOrphans` was called.
namespace Processes {

struct Process {
    qint64 id;

    /// Without the program itself.
    QStringList arguments;
};

/// Makes this process the parent of every process below it that loses its own.
void adoptOrphans();

/// The running processes of `executable` below this one, in no order.
QList<Process> instancesOf(const QString &executable);

/// Ends whatever still runs below this process.
void endAll();

}
