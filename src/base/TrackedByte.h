#pragma once

#include <QString>

#include <algorithm>
#include <exception>
#include <iterator>

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

/// The line that `place` stands in, from 1.
inline int lineOf(const char *begin, const char *place)
{
    return 1 + int(std::count(begin, place, '\n'));
}

/// What the JSON parser found wrong, without its own bookkeeping and no longer than a line.
inline QString syntaxFault(const std::exception &error)
{
    constexpr qsizetype longest = 160;
    QString text = QString::fromUtf8(error.what());
    text = text.sliced(text.indexOf(u']') + 1).trimmed();
    if (text.startsWith(QStringLiteral("parse error")))
        text = text.sliced(text.indexOf(u':') + 1).trimmed();
    return text.size() > longest ? text.first(longest) + u'…' : text;
}
