#include "Json.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <iterator>

namespace {

/// The bytes of a text for a parser that tells of no places: they note which of them was read last.
class TrackedByte {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char *;
    using reference = const char &;

    /// `last` receives the byte that was read last, and must outlive every copy.
    TrackedByte(const char *at, const char **last) : m_at(at), m_last(last) { }

    reference operator*() const { return *m_at; }
    TrackedByte &operator++()
    {
        *m_last = m_at++;
        return *this;
    }
    TrackedByte operator++(int)
    {
        const TrackedByte before = *this;
        ++*this;
        return before;
    }
    bool operator==(const TrackedByte &other) const { return m_at == other.m_at; }

private:
    const char *m_at;
    const char **m_last;
};

/// What the parser found wrong, without its own bookkeeping and no longer than a line.
QString reason(const std::exception &error)
{
    constexpr qsizetype longest = 160;
    QString text = QString::fromUtf8(error.what());
    text = text.sliced(text.indexOf(u']') + 1).trimmed();
    if (text.startsWith(QStringLiteral("parse error")))
        text = text.sliced(text.indexOf(u':') + 1).trimmed();
    return text.size() > longest ? text.first(longest) + u'…' : text;
}

/// The parser's events, told to the listener.
class Events {
public:
    using Number = nlohmann::json::number_integer_t;
    using Unsigned = nlohmann::json::number_unsigned_t;

    explicit Events(Json::Listener &listener) : m_listener(listener) { }

    bool null() { return m_listener.null(); }
    bool boolean(bool value) { return m_listener.boolean(value); }
    // The parser reports minus zero as the signed integer 0, and no other number that way.
    bool number_integer(Number value) { return m_listener.number(value == 0 ? -0.0 : static_cast<double>(value)); }
    bool number_unsigned(Unsigned value) { return m_listener.number(static_cast<double>(value)); }
    bool number_float(double value, const std::string &) { return m_listener.number(value); }
    bool string(const std::string &text) { return m_listener.string(text); }
    bool binary(const nlohmann::json::binary_t &) { return false; }
    bool start_object(std::size_t) { return m_listener.startObject(); }
    bool key(const std::string &text) { return m_listener.key(text); }
    bool end_object() { return m_listener.endObject(); }
    bool start_array(std::size_t) { return m_listener.startArray(); }
    bool end_array() { return m_listener.endArray(); }
    bool parse_error(std::size_t, const std::string &, const std::exception &error)
    {
        m_listener.fault(reason(error));
        return false;
    }

private:
    Json::Listener &m_listener;
};

}

bool Json::read(const QByteArray &text, Listener &listener, const char *&last)
{
    last = text.cbegin();
    Events events(listener);
    return nlohmann::json::sax_parse(TrackedByte(text.cbegin(), &last), TrackedByte(text.cend(), &last), &events);
}

int Json::lineOf(const char *begin, const char *place)
{
    return 1 + int(std::count(begin, place, '\n'));
}

QByteArray Json::written(double number)
{
    return QByteArray::fromStdString(nlohmann::json(number).dump());
}

QByteArray Json::written(const QString &text)
{
    return QByteArray::fromStdString(nlohmann::json(text.toStdString()).dump());
}
