#pragma once

#include "Call.h"

#include <QJsonValue>
#include <QStringList>

/// What the program tells: results on standard output, everything else on standard error.
namespace Output {

/// One line.
void line(const QString &text);

/// A table with its columns side by side, as wide as a terminal shows them; the first row is the head.
void table(const QList<QStringList> &rows);

/// Indented, for a person to read too.
void json(const QJsonValue &value);

/// One value on one line, at once. False when it cannot be written.
bool jsonLine(const QJsonValue &value);

/// Bytes as they are. False when they cannot be written.
bool bytes(const QByteArray &bytes);

/// The code of a command, which has failed where something could not be written to standard output; says so.
int delivered(int code);

/// A remark on standard error.
void remark(const QString &text);

/// Says on standard error why the command failed, and with `--json` on standard output too; gives the code.
int failure(const Call &call, const QString &text, int code = ExitCode::failure);

/// The text in a form that no terminal takes for a command, nor turns around.
QString printable(const QString &text);

}
