#include "Output.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cwchar>

namespace {

/// The error of the first attempt to write that failed.
int firstError = 0;

/// JSON may hold some control characters as they are. They are written as escapes, for the terminal's sake.
QByteArray escaped(const QByteArray &json)
{
    QByteArray text;
    text.reserve(json.size());
    for (qsizetype i = 0; i < json.size(); ++i) {
        const bool isUpper = json.at(i) == '\xc2' && i + 1 < json.size() && uchar(json.at(i + 1)) < 0xa0;
        if (isUpper || json.at(i) == '\x7f')
            text += "\\u00" + QByteArray::number(uchar(json.at(isUpper ? ++i : i)), 16);
        else
            text += json.at(i);
    }
    return text;
}

/// In the cells of a terminal, where most characters of East Asia take two.
qsizetype width(const QString &text)
{
    qsizetype cells = 0;
    for (const char32_t character : text.toUcs4())
        cells += std::max(wcwidth(wchar_t(character)), 0);
    return cells;
}

/// Embeddings, overrides and isolates of text in the other direction: one that is not ended turns around all that
/// follows.
bool turnsAround(QChar character)
{
    return (character >= u'\u202A' && character <= u'\u202E') || (character >= u'\u2066' && character <= u'\u2069');
}

QByteArray written(const QJsonValue &value, QJsonDocument::JsonFormat format)
{
    if (value.isObject())
        return escaped(QJsonDocument(value.toObject()).toJson(format).trimmed());
    if (value.isArray())
        return escaped(QJsonDocument(value.toArray()).toJson(format).trimmed());
    // A document is an array or an object.
    const QByteArray wrapped = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return escaped(wrapped.sliced(1, wrapped.size() - 2));
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
            widths[column] = std::max(widths[column], width(row[column]));
    }
    for (const QStringList &row : rows) {
        QString text;
        for (qsizetype column = 0; column < row.size(); ++column)
            text += column + 1 < row.size() ? row[column] + QString(widths[column] - width(row[column]) + 2, u' ')
                                            : row[column];
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
    const bool isThrough = std::fflush(stdout) == 0 && isWritten;
    if (!isThrough && firstError == 0)
        firstError = errno;
    return isThrough;
}

int Output::delivered(int code)
{
    if (firstError == 0)
        return code;
    // Whoever reads no further needs no word.
    if (firstError != EPIPE)
        remark(QStringLiteral("standard output: ") + qt_error_string(firstError));
    return ExitCode::failure;
}

void Output::remark(const QString &text)
{
    std::fprintf(stderr, "corvane-ctl: %s\n", printable(text).toUtf8().constData());
}

int Output::failure(const Call &call, const QString &text, int code)
{
    remark(text);
    if (call.json)
        json(QJsonObject{{QStringLiteral("error"), text}});
    return code;
}

QString Output::printable(const QString &text)
{
    QString shown = text;
    for (QChar &character : shown) {
        if (character.category() == QChar::Other_Control || turnsAround(character))
            character = QChar::ReplacementCharacter;
    }
    return shown;
}
