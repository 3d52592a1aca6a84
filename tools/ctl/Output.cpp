#include "Output.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdio>

namespace {

QByteArray written(const QJsonValue &value, QJsonDocument::JsonFormat format)
{
    if (value.isObject())
        return QJsonDocument(value.toObject()).toJson(format).trimmed();
    if (value.isArray())
        return QJsonDocument(value.toArray()).toJson(format).trimmed();
    // A document is an array or an object.
    const QByteArray wrapped = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return wrapped.sliced(1, wrapped.size() - 2);
}

}

void Output::line(const QString &text)
{
    bytes(text.toUtf8() + '\n');
}

void Output::table(const QList<QStringList> &rows)
{
    QList<qsizetype> widths;
    for (const QStringList &row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (qsizetype column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], row[column].size());
    }
    for (const QStringList &row : rows) {
        QString text;
        for (qsizetype column = 0; column < row.size(); ++column)
            text += column + 1 < row.size() ? row[column].leftJustified(widths[column] + 2) : row[column];
        line(text);
    }
}

void Output::json(const QJsonValue &value)
{
    bytes(written(value, QJsonDocument::Indented) + '\n');
}

bool Output::jsonLine(const QJsonValue &value)
{
    return bytes(written(value, QJsonDocument::Compact) + '\n');
}

bool Output::bytes(const QByteArray &bytes)
{
    const bool isWritten =
        std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stdout) == std::size_t(bytes.size());
    return std::fflush(stdout) == 0 && isWritten;
}

void Output::remark(const QString &text)
{
    std::fprintf(stderr, "corvane-ctl: %s\n", printable(text).toUtf8().constData());
}

int Output::failure(const Call &call, const QString &text)
{
    remark(text);
    if (call.json)
        json(QJsonObject{{QStringLiteral("error"), text}});
    return ExitCode::failure;
}

QString Output::printable(const QString &text)
{
    QString shown = text;
    for (QChar &character : shown) {
        if (character.category() == QChar::Other_Control)
            character = QChar::ReplacementCharacter;
    }
    return shown;
}
