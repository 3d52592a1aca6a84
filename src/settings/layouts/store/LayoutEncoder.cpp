#include "LayoutCoder.h"

#include <array>
#include <charconv>
#include <cmath>

namespace {

bool mustBeEscaped(QChar character)
{
    return character < u' ' || character == u'"' || character == u'\\' || character == u'/';
}

class LayoutWriter {
public:
    void list(const QList<SavedLayout> &layouts) { array(layouts, &LayoutWriter::layout); }

    /// Everything written so far; none when something of it has no JSON form.
    std::optional<QString> text() const { return m_hasFailed ? std::nullopt : std::optional(m_text); }

private:
    template <typename Item> void array(const QList<Item> &items, void (LayoutWriter::*write)(const Item &));
    void layout(const SavedLayout &layout);
    void window(const SavedLayout::Window &window);
    void rect(const UnitRect &rect);
    void string(QStringView text);
    void escaped(QChar character);
    void number(double value);
    void raw(QStringView text) { m_text += text; }

    QString m_text;
    bool m_hasFailed = false;
};

template <typename Item> void LayoutWriter::array(const QList<Item> &items, void (LayoutWriter::*write)(const Item &))
{
    raw(u"[");
    for (qsizetype i = 0; i < items.size(); ++i) {
        if (i > 0)
            raw(u",");
        (this->*write)(items.at(i));
    }
    raw(u"]");
}

// The keys stand in alphabetical order.
void LayoutWriter::layout(const SavedLayout &layout)
{
    raw(u"{\"created\":");
    number(layout.created);
    raw(u",\"id\":");
    string(layout.id.toString(QUuid::WithoutBraces).toUpper());
    raw(u",\"name\":");
    string(layout.name);
    raw(u",\"windows\":");
    array(layout.windows, &LayoutWriter::window);
    raw(u"}");
}

void LayoutWriter::window(const SavedLayout::Window &window)
{
    raw(u"{\"app\":");
    string(window.app);
    raw(u",\"bundleID\":");
    string(window.bundleID);
    if (window.display) {
        raw(u",\"display\":");
        string(*window.display);
    }
    raw(u",\"rect\":");
    rect(window.rect);
    raw(u",\"title\":");
    string(window.title);
    raw(u"}");
}

void LayoutWriter::rect(const UnitRect &rect)
{
    raw(u"{\"h\":");
    number(rect.h);
    raw(u",\"w\":");
    number(rect.w);
    raw(u",\"x\":");
    number(rect.x);
    raw(u",\"y\":");
    number(rect.y);
    raw(u"}");
}

void LayoutWriter::string(QStringView text)
{
    if (!text.isValidUtf16())
        m_hasFailed = true;
    raw(u"\"");
    qsizetype written = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!mustBeEscaped(text.at(i)))
            continue;
        raw(text.sliced(written, i - written));
        escaped(text.at(i));
        written = i + 1;
    }
    raw(text.sliced(written));
    raw(u"\"");
}

void LayoutWriter::escaped(QChar character)
{
    m_text += u'\\';
    switch (character.unicode()) {
    case u'\b':
        m_text += u'b';
        break;
    case u'\t':
        m_text += u't';
        break;
    case u'\n':
        m_text += u'n';
        break;
    case u'\f':
        m_text += u'f';
        break;
    case u'\r':
        m_text += u'r';
        break;
    case u'"':
    case u'\\':
    case u'/':
        m_text += character;
        break;
    default:
        m_text += u'u' + QString::number(character.unicode(), 16).rightJustified(4, u'0');
    }
}

void LayoutWriter::number(double value)
{
    if (!std::isfinite(value)) {
        m_hasFailed = true;
        return;
    }
    // Up to 2^53 a double holds every whole number, and its digits are those of that number.
    constexpr double largestPlain = 0x1p53;
    constexpr double smallestPlain = 1e-4;
    const double size = std::abs(value);
    const bool isPlain = size == 0 || (size >= smallestPlain && size <= largestPlain);
    std::array<char, 32> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                   isPlain ? std::chars_format::fixed : std::chars_format::scientific);
    m_text += QLatin1StringView(digits.data(), end.ptr);
}

}

std::optional<QString> LayoutCoder::encode(const QList<SavedLayout> &layouts)
{
    LayoutWriter writer;
    writer.list(layouts);
    return writer.text();
}
