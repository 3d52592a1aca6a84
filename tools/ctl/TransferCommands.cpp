#include "TransferCommands.h"

#include "Output.h"
#include "Platform.h"
#include "SettingText.h"
#include "SettingsTransfer.h"
#include "Shared.h"
#include "StoreCommands.h"
#include "UserDefaults.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QSaveFile>

#include <cstdio>

using namespace std::chrono_literals;

namespace {

const QString standardStream = QStringLiteral("-");

/// The reason why it could not be written; empty when it was.
QString written(const QString &path, const QByteArray &bytes)
{
    if (path == standardStream) {
        Output::bytes(bytes);
        return {};
    }
    if (const QFileInfo place(path); place.exists() && !place.isFile()) {
        // A pipe or a device is written into, not replaced.
        QFile file(path);
        const bool isWritten = file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
        return isWritten ? QString() : QStringLiteral("%1: %2").arg(path, file.errorString());
    }
    QSaveFile file(path);
    const bool isWritten = file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    return isWritten ? QString() : QStringLiteral("%1: %2").arg(path, file.errorString());
}

QJsonArray json(const QList<SettingsTransfer::Change> &changes)
{
    QJsonArray array;
    for (const SettingsTransfer::Change &change : changes) {
        array.append(QJsonObject{{QStringLiteral("key"), change.key},
                                 {QStringLiteral("before"), SettingText::json(change.key, change.before)},
                                 {QStringLiteral("after"), SettingText::json(change.key, change.after)}});
    }
    return array;
}

int refuse(const Call &call, const QString &name, const QList<ExportFile::Fault> &faults)
{
    QJsonArray array;
    for (const ExportFile::Fault &fault : faults) {
        Output::remark(QStringLiteral("%1:%2: %3").arg(name, QString::number(fault.line), fault.reason));
        array.append(QJsonObject{{QStringLiteral("file"), name},
                                 {QStringLiteral("line"), fault.line},
                                 {QStringLiteral("reason"), fault.reason}});
    }
    if (call.json)
        Output::json(QJsonObject{{QStringLiteral("error"), QStringLiteral("nothing was imported")},
                                 {QStringLiteral("faults"), array}});
    else
        Output::remark(QStringLiteral("nothing was imported"));
    return ExitCode::failure;
}

void show(const Call &call, const QList<SettingsTransfer::Change> &changes)
{
    if (call.json) {
        Output::json(
            QJsonObject{{QStringLiteral("changes"), json(changes)}, {QStringLiteral("imported"), !call.dryRun}});
        return;
    }
    if (changes.isEmpty()) {
        Output::line(QStringLiteral("Nothing changes."));
        return;
    }
    QList<QStringList> rows = {{QStringLiteral("KEY"), QStringLiteral("BEFORE"), QStringLiteral("AFTER")}};
    for (const SettingsTransfer::Change &change : changes) {
        const QString before = SettingText::shown(change.key, change.before);
        const QString after = SettingText::shown(change.key, change.after);
        // As many layouts, but others.
        rows.append({change.key, before, before == after ? after + QStringLiteral(" (changed)") : after});
    }
    Output::table(rows);
}

}

int TransferCommands::exportTo(const Call &call)
{
    const QString path = call.operands.constFirst();
    const SettingsTransfer::Export taken = SettingsTransfer::exportFrom(Shared::store());
    if (const QString reason = written(path, ExportFile::write(taken.settings)); !reason.isEmpty())
        return Output::failure(call, reason);
    QJsonArray omitted;
    for (const SettingsTransfer::Omission &omission : taken.omitted) {
        Output::remark(QStringLiteral("left out: %1").arg(omission.reason));
        omitted.append(omission.key);
    }
    if (call.json && path != standardStream)
        Output::json(QJsonObject{{QStringLiteral("file"), path}, {QStringLiteral("omitted"), omitted}});
    // The layouts may have been put into their normal form.
    const int code = StoreCommands::finish(call);
    return taken.omitted.isEmpty() ? code : ExitCode::failure;
}

int TransferCommands::importFrom(const Call &call)
{
    const QString path = call.operands.constFirst();
    QFile file(path);
    if (!(path == standardStream ? file.open(stdin, QFile::ReadOnly) : file.open(QFile::ReadOnly)))
        return Output::failure(call, QStringLiteral("%1: %2").arg(path, file.errorString()));
    const QString name = path == standardStream ? QStringLiteral("standard input") : path;
    const QByteArray bytes = file.read(ExportFile::largest + 1);
    if (bytes.size() > ExportFile::largest)
        return Output::failure(call, QStringLiteral("%1: too large for an export of settings").arg(name));

    const ExportFile::Reading reading = ExportFile::read(bytes, Contract::storeKeys());
    if (!reading.faults.isEmpty())
        return refuse(call, name, reading.faults);
    UserDefaults &store = Shared::store();
    const QList<SettingsTransfer::Change> changes = SettingsTransfer::changes(reading.settings, store);
    for (const SettingsTransfer::Change &change : changes) {
        if (!store.isWritable(change.key))
            return Output::failure(
                call, QStringLiteral("the administrator has locked \"%1\"; nothing was imported").arg(change.key));
    }
    if (!call.dryRun && !Platform::current().distributedNotificationCenter().isAvailable())
        return Output::failure(call, QStringLiteral("there is no session bus; nothing was imported"));
    const auto trouble = call.dryRun ? UserDefaults::Trouble::none : SettingsTransfer::apply(changes, store, 5s);
    if (trouble != UserDefaults::Trouble::none)
        return Output::failure(call, SettingsTransfer::failure(trouble));
    show(call, changes);
    return ExitCode::success;
}
