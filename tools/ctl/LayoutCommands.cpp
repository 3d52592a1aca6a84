#include "LayoutCommands.h"

#include "LayoutCoder.h"
#include "LayoutStore.h"
#include "Output.h"
#include "SettingText.h"
#include "Shared.h"
#include "StoreCommands.h"
#include "UserDefaults.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonObject>

#include <cmath>

namespace {

QString idOf(const SavedLayout &layout)
{
    return layout.id.toString(QUuid::WithoutBraces).toUpper();
}

/// To the second, in the place where the program runs; "-" for a time beyond all calendars.
QString dateOf(const SavedLayout &layout)
{
    constexpr double furthest = 1e11;
    if (!(std::abs(layout.created) < furthest))
        return QStringLiteral("-");
    const QDateTime reference(QDate(2001, 1, 1), QTime(0, 0), Qt::UTC);
    return reference.addSecs(qint64(layout.created)).toLocalTime().toString(Qt::ISODate);
}

/// The layout as it is stored.
QJsonValue json(const SavedLayout &layout)
{
    const QVariant text = LayoutCoder::encode({layout}).value_or(QStringLiteral("[]"));
    return SettingText::json(Shared::Key::layoutsSaved, text).toArray().first();
}

int list(const Call &call, const QList<SavedLayout> &layouts)
{
    QJsonArray array;
    QList<QStringList> rows = {
        {QStringLiteral("ID"), QStringLiteral("CREATED"), QStringLiteral("WINDOWS"), QStringLiteral("NAME")}};
    for (const SavedLayout &layout : layouts) {
        array.append(json(layout));
        rows.append(
            {idOf(layout), dateOf(layout), QString::number(layout.windows.size()), Output::printable(layout.name)});
    }
    if (call.json)
        Output::json(array);
    else
        Output::table(rows);
    return ExitCode::success;
}

int show(const Call &call, const SavedLayout &layout)
{
    if (call.json) {
        Output::json(json(layout));
        return ExitCode::success;
    }
    Output::table({{QStringLiteral("Name"), Output::printable(layout.name)},
                   {QStringLiteral("Id"), idOf(layout)},
                   {QStringLiteral("Created"), dateOf(layout)}});
    Output::line(QString());
    QList<QStringList> rows = {{QStringLiteral("X"), QStringLiteral("Y"), QStringLiteral("WIDTH"),
                                QStringLiteral("HEIGHT"), QStringLiteral("DISPLAY"), QStringLiteral("APPLICATION"),
                                QStringLiteral("TITLE")}};
    for (const SavedLayout::Window &window : layout.windows) {
        QStringList row;
        for (const double part : {window.rect.x, window.rect.y, window.rect.w, window.rect.h})
            row.append(QString::number(part, 'g', 4));
        row << Output::printable(window.display.value_or(QStringLiteral("-"))) << Output::printable(window.app)
            << Output::printable(window.title);
        rows.append(row);
    }
    Output::table(rows);
    return ExitCode::success;
}

}

int LayoutCommands::run(const Call &call)
{
    const QString action = call.operands.constFirst();
    const QMap<QString, qsizetype> operands = {{QStringLiteral("list"), 1},
                                               {QStringLiteral("show"), 2},
                                               {QStringLiteral("rename"), 3},
                                               {QStringLiteral("delete"), 2}};
    if (operands.value(action) != call.operands.size())
        return ExitCode::usage;

    UserDefaults &store = Shared::store();
    const QVariant stored = store.value(Shared::Key::layoutsSaved);
    LayoutCoder::Fault fault;
    if (stored.isValid() && (stored.typeId() != QMetaType::QString || !LayoutCoder::decode(stored.toString(), &fault)))
        return Output::failure(call, QStringLiteral("the stored layouts cannot be read: %1").arg(fault.reason));
    const QList<SavedLayout> layouts = LayoutStore::load(store);
    if (action == u"list") {
        const int code = list(call, layouts);
        return store.finishWrites(std::chrono::seconds(5)) ? code : StoreCommands::finish(call);
    }

    QList<SavedLayout> found;
    for (const SavedLayout &layout : layouts) {
        if (idOf(layout).startsWith(call.operands.at(1), Qt::CaseInsensitive))
            found.append(layout);
    }
    if (call.operands.at(1).isEmpty() || found.isEmpty())
        return Output::failure(call, QStringLiteral("there is no layout \"%1\"").arg(call.operands.at(1)));
    const QUuid id = found.constFirst().id;
    if (std::any_of(found.cbegin(), found.cend(), [&](const SavedLayout &layout) { return layout.id != id; }))
        return Output::failure(call, QStringLiteral("several layouts begin with \"%1\"").arg(call.operands.at(1)));
    if (action == u"show")
        return show(call, found.constFirst());
    if (action == u"rename")
        LayoutStore::rename(id, call.operands.at(2), store);
    else
        LayoutStore::remove(id, store);
    if (const int code = StoreCommands::finish(call); code != ExitCode::success)
        return code;
    return call.json ? list(call, LayoutStore::load(store)) : ExitCode::success;
}
