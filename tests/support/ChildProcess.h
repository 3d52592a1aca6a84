#pragma once

#include <QByteArray>

class QProcess;

/// What all processes that a test starts have in common.
namespace ChildProcess {

/// Whatever ends this process, a crash included, ends the child too. To be called before the child is
/// started.
void endWithThisProcess(QProcess &process);

/// The first line the process prints, without its end; empty when it ends or takes 20 s without printing one.
QByteArray firstLine(QProcess &process);

/// Asks the process to end, and ends it after 5 s. True when it ended by itself.
bool stop(QProcess &process);

}
