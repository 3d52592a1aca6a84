#include "ExportFile.h"

#include "Json.h"
#include "LayoutCoder.h"
#include "SettingValue.h"
#include "Shared.h"

#include <QSet>

#include <algorithm>
#include <utility>

namespace {

const QString formatName = QStringLiteral("format");
const QString settingsName = QStringLiteral("settings");
constexpr qsizetype mostFaults = 20;

/// Compact JSON spread over lines, each level two spaces further in; `depth` is that of the text itself. Nothing in it
/// is written anew but the slash, which needs no escape.
QByteArray indented(const QByteArray &json, int depth)
{
    QByteArray spread;
    const auto newLine = [&] { spread += '\n' + QByteArray(qsizetype(depth) * 2, ' '); };
    bool isInString = false;
    for (qsizetype i = 0; i < json.size(); ++i) {
        const char character = json.at(i);
        if (isInString && character == '\\') {
            ++i;
            spread += json.at(i) == '/' ? QByteArray("/") : json.sliced(i - 1, 2);
            continue;
        }
        if (character == '"')
            isInString = !isInString;
        const bool isEmpty = i + 1 < json.size() && (json.sliced(i, 2) == "[]" || json.sliced(i, 2) == "{}");
        if (isInString || QByteArrayView("[]{},:").indexOf(character) < 0) {
            spread += character;
        } else if (isEmpty) {
            spread += json.sliced(i++, 2);
        } else if (character == '[' || character == '{') {
            spread += character;
            ++depth;
            newLine();
        } else if (character == ']' || character == '}') {
            --depth;
            newLine();
            spread += character;
        } else {
            spread += character;
            if (character == ',')
                newLine();
            else
                spread += ' ';
        }
    }
    return spread;
}

QByteArray json(const QString &key, const QVariant &value)
{
    if (key == Shared::Key::layoutsSaved && value.isValid())
        return indented(value.toString().toUtf8(), 2);
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? "true" : "false";
    case QMetaType::Double:
        return Json::written(value.toDouble());
    case QMetaType::QString:
        return Json::written(value.toString());
    default:
        return "null";
    }
}

class FileReader final : public Json::Listener {
public:
    ExportFile::Reading reading;

    /// `last` is the byte that was read last.
    FileReader(const char *begin, const char *const &last, const QList<Contract::StoreKey> &keys)
        : m_begin(begin), m_last(last), m_keys(keys)
    {
    }

    bool null() override { return value({}); }
    bool boolean(bool flag) override { return value(flag); }
    bool number(double number) override { return value(number); }
    bool string(const std::string &text) override { return value(QString::fromStdString(text)); }
    bool startObject() override { return start(false); }
    bool key(const std::string &text) override;
    bool endObject() override { return end(); }
    bool startArray() override { return start(true); }
    bool endArray() override { return end(); }
    void fault(const QString &reason) override { refuse(reason); }

private:
    /// Where the reader is; `skipped` is inside a value that is not looked into here.
    enum class Place { file, top, settings, skipped };

    bool refuse(const QString &reason, int line = 0);
    bool value(const QVariant &value);
    bool start(bool isArray);
    bool end();
    bool readFormat(const QVariant &value);
    bool set(const QVariant &value);
    bool readLayouts();

    const char *m_begin;
    const char *const &m_last;
    const QList<Contract::StoreKey> &m_keys;

    Place m_place = Place::file;
    /// Where the reader was before it began to skip, and how deep it is in there.
    Place m_outside = Place::file;
    int m_depth = 0;
    /// Where the layouts begin while they are skipped.
    const char *m_layouts = nullptr;
    QString m_name;
    /// The key whose value comes next; null where it is refused.
    const Contract::StoreKey *m_key = nullptr;
    QSet<QString> m_names;
};

bool FileReader::refuse(const QString &reason, int line)
{
    reading.faults.append({line > 0 ? line : Json::lineOf(m_begin, m_last), reason});
    return reading.faults.size() < mostFaults;
}

bool FileReader::key(const std::string &text)
{
    if (m_place == Place::skipped)
        return true;
    m_name = QString::fromStdString(text);
    m_key = nullptr;
    const QString quoted = QStringLiteral("\"%1\"").arg(m_name);
    // The settings' keys and those around them have no name in common.
    if (m_names.contains(m_name))
        return refuse(quoted + QStringLiteral(" stands twice"));
    m_names.insert(m_name);
    if (m_place == Place::top)
        return m_name == formatName || m_name == settingsName || refuse(quoted + QStringLiteral(" is not known"));
    if (Contract::isAgentState(m_name))
        return refuse(quoted + QStringLiteral(" is the agent's own and is never imported"));
    const auto found = std::find_if(m_keys.begin(), m_keys.end(),
                                    [this](const Contract::StoreKey &key) { return key.name == m_name; });
    if (found == m_keys.end())
        return refuse(quoted + QStringLiteral(" is not known"));
    m_key = &*found;
    return true;
}

bool FileReader::value(const QVariant &value)
{
    switch (m_place) {
    case Place::file:
        refuse(QStringLiteral("this is no export of settings"));
        return false;
    case Place::top:
        if (m_name == formatName)
            return readFormat(value);
        return m_name != settingsName || refuse(QStringLiteral("\"settings\" must be an object"));
    case Place::settings:
        return !m_key || set(value);
    case Place::skipped:
        break;
    }
    return true;
}

bool FileReader::readFormat(const QVariant &value)
{
    if (value.typeId() == QMetaType::Double && value.toDouble() == ExportFile::format)
        return true;
    const bool isNewer = value.typeId() == QMetaType::Double && value.toDouble() > ExportFile::format;
    reading.faults.clear();
    refuse(isNewer ? QStringLiteral("a newer version has written this file: format %1 is not known")
                         .arg(value.toDouble(), 0, 'g', 15)
                   : QStringLiteral("\"format\" must be %1").arg(ExportFile::format));
    return false;
}

bool FileReader::set(const QVariant &value)
{
    if (value.isValid()) {
        // Layouts come as JSON, never as a text.
        if (m_name == Shared::Key::layoutsSaved)
            return refuse(QStringLiteral("\"%1\" must be an array").arg(m_name));
        if (const auto reason = SettingValue::fault(*m_key, value))
            return refuse(*reason);
    }
    reading.settings.insert(m_name, value);
    return true;
}

bool FileReader::start(bool isArray)
{
    if (m_place == Place::skipped) {
        ++m_depth;
        return true;
    }
    if (m_place == Place::file) {
        m_place = Place::top;
        if (!isArray)
            return true;
        refuse(QStringLiteral("this is no export of settings"));
        return false;
    }
    if (m_place == Place::top && m_name == settingsName && !isArray) {
        m_place = Place::settings;
        return true;
    }
    m_outside = std::exchange(m_place, Place::skipped);
    m_depth = 1;
    if (m_outside == Place::top)
        return m_name == settingsName ? refuse(QStringLiteral("\"settings\" must be an object"))
                                      : m_name != formatName || readFormat({});
    if (!m_key)
        return true;
    if (m_name == Shared::Key::layoutsSaved && isArray) {
        m_layouts = m_last;
        return true;
    }
    const QString type = m_name == Shared::Key::layoutsSaved
        ? QStringLiteral("an array")
        : QStringLiteral("a ") + SettingValue::typeName(m_key->defaultValue);
    return refuse(QStringLiteral("\"%1\" must be %2").arg(m_name, type));
}

bool FileReader::end()
{
    if (m_place == Place::skipped) {
        if (--m_depth > 0)
            return true;
        m_place = m_outside;
        return !m_layouts || readLayouts();
    }
    if (m_place == Place::settings) {
        m_place = Place::top;
        return true;
    }
    m_place = Place::file;
    for (const QString &name : {formatName, settingsName}) {
        if (!m_names.contains(name))
            refuse(QStringLiteral("\"%1\" is missing: this is no export of settings").arg(name), 1);
    }
    return true;
}

bool FileReader::readLayouts()
{
    const char *begin = std::exchange(m_layouts, nullptr);
    LayoutCoder::Fault broken;
    const auto layouts = LayoutCoder::decode(QString::fromUtf8(begin, m_last + 1 - begin), &broken);
    const auto text = layouts ? LayoutCoder::encode(*layouts) : std::nullopt;
    if (!text) {
        const int line = Json::lineOf(m_begin, begin) + std::max(broken.line, 1) - 1;
        return refuse(QStringLiteral("in \"%1\": %2").arg(m_name, broken.reason), line);
    }
    reading.settings.insert(m_name, *text);
    return true;
}

}

QByteArray ExportFile::write(const Settings &settings)
{
    QByteArrayList lines;
    for (auto setting = settings.cbegin(); setting != settings.cend(); ++setting)
        lines.append("    " + Json::written(setting.key()) + ": " + json(setting.key(), setting.value()));
    QByteArray inside = "{}";
    if (!lines.isEmpty())
        inside = "{\n" + lines.join(",\n") + "\n  }";
    return "{\n  \"format\": " + QByteArray::number(format) + ",\n  \"settings\": " + inside + "\n}\n";
}

ExportFile::Reading ExportFile::read(const QByteArray &file, const QList<Contract::StoreKey> &keys)
{
    // The parser takes it for the end.
    if (const qsizetype zero = file.indexOf('\0'); zero >= 0)
        return {{}, {{Json::lineOf(file.cbegin(), file.cbegin() + zero), QStringLiteral("this is no text")}}};
    const char *last = file.cbegin();
    FileReader reader(file.cbegin(), last, keys);
    Json::read(file, reader, last);
    return std::move(reader.reading);
}
