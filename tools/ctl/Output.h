#pragma once

#include "Call.h"

#include <QJsonValue>
#include <QStringList>

/// What the program tells: results on standard output, everything else on standard error.
namespace Output {

/// One line.
void line(const QString &text);

/// A table with its columns side by side; the first row is the head.
void table(const QList<QStringList> &rows);

/// Indented, for a person to read too.
void json(const QJsonValue &value);

/// One value on one line, at once. False when nobody reads any more.
bool jsonLine(const QJsonValue &value);

/// Bytes as they are.
bool bytes(const QByteArray &bytes);

/// A remark on standard error.
void remark(const QString &text);

/// Says on standard error why the command failed, and with `--json` on standard output too; gives ExitCode::failure.
int failure(const Call &call, const QString &text);

/// The text in a form that no terminal takes for a command.
QString printable(const QString &text);

}
