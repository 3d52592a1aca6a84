#include "LayoutCoder.h"

#include "Json.h"

#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <chrono>
#include <span>
#include <string_view>
#include <utility>

namespace {

constexpr int maximumDepth = 512;

/// Where the reader is, from the outermost place to the innermost.
enum class Place { text, list, layout, windows, window, rect };

enum class Field { none, ignored, id, name, windows, created, bundleID, app, title, rect, display, x, y, w, h };

/// A set of fields.
using Fields = unsigned;

constexpr Fields only(Field field)
{
    return 1U << static_cast<unsigned>(field);
}

struct Key {
    std::string_view text;
    Field field;
    bool isRequired;
};

constexpr std::array layoutKeys = {
    Key{"created", Field::created, false},
    Key{"id", Field::id, false},
    Key{"name", Field::name, false},
    Key{"windows", Field::windows, true},
};
constexpr std::array windowKeys = {
    Key{"app", Field::app, true},   Key{"bundleID", Field::bundleID, true}, Key{"display", Field::display, false},
    Key{"rect", Field::rect, true}, Key{"title", Field::title, true},
};
constexpr std::array rectKeys = {
    Key{"h", Field::h, true},
    Key{"w", Field::w, true},
    Key{"x", Field::x, true},
    Key{"y", Field::y, true},
};

std::span<const Key> keysOf(Place place)
{
    switch (place) {
    case Place::layout:
        return layoutKeys;
    case Place::window:
        return windowKeys;
    case Place::rect:
        return rectKeys;
    default:
        return {};
    }
}

/// What a field must hold, for a person.
QString typeOf(Field field)
{
    switch (field) {
    case Field::id:
        return QStringLiteral("a UUID of 36 characters");
    case Field::created:
    case Field::x:
    case Field::y:
    case Field::w:
    case Field::h:
        return QStringLiteral("a number");
    case Field::windows:
        return QStringLiteral("an array");
    case Field::rect:
        return QStringLiteral("an object");
    default:
        return QStringLiteral("a text");
    }
}

/// What must stand where no field has a name.
const char *expectedIn(Place place)
{
    if (place == Place::list)
        return "a layout must be an object";
    return place == Place::windows ? "a window must be an object" : "layouts must be an array";
}

QString fromUtf8(const std::string &text)
{
    // A byte-order mark at the start of a name is part of the name.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return decoder.decode(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
}

/// The id written as 36 characters, in capitals or not.
std::optional<QUuid> idFrom(const std::string &text)
{
    constexpr std::string_view zero = "00000000-0000-0000-0000-000000000000";
    if (text == zero)
        return QUuid();
    const QUuid id =
        text.size() == zero.size() ? QUuid::fromString(QLatin1StringView(text.data(), zero.size())) : QUuid();
    return id.isNull() ? std::nullopt : std::optional(id);
}

double now()
{
    using namespace std::chrono;
    constexpr sys_days referenceDate = year(2001) / January / 1;
    return duration<double>(system_clock::now() - referenceDate).count();
}

/// Each call returns whether the text may still be a list of layouts.
class LayoutReader final : public Json::Listener {
public:
    QList<SavedLayout> layouts;
    /// Why the text is refused.
    QString reason;

    /// Counts as no value; for a required field that is a fault, found at the end of its object.
    bool null() override { return m_field != Field::none || refuseType(); }
    bool boolean(bool) override { return m_field == Field::ignored || refuseType(); }
    bool number(double value) override;
    bool string(const std::string &value) override;
    bool startObject() override;
    bool key(const std::string &text) override;
    bool endObject() override;
    bool startArray() override;
    bool endArray() override;
    void fault(const QString &why) override { refuse(why); }

private:
    bool refuse(const QString &why);
    bool refuseType();
    template <typename Value> bool take(Value &field, const Value &value);
    bool enter(Place place);
    bool goTo(Place place);
    bool leave();
    void fillIn();

    Place m_place = Place::text;
    /// The field whose value comes next; `none` inside an array.
    Field m_field = Field::none;
    /// The fields whose keys were read, and those of them that had a value.
    Fields m_seen = 0;
    Fields m_given = 0;
    int m_depth = 0;
    /// The depth inside a value that is skipped.
    int m_ignoredDepth = 0;
    SavedLayout m_layout;
    SavedLayout::Window m_window;
};

bool LayoutReader::refuse(const QString &why)
{
    reason = why;
    return false;
}

/// What stands here has another type than belongs here.
bool LayoutReader::refuseType()
{
    const auto keys = keysOf(m_place);
    const auto key =
        std::find_if(keys.begin(), keys.end(), [this](const Key &known) { return known.field == m_field; });
    return refuse(key == keys.end() ? QString::fromUtf8(expectedIn(m_place))
                                    : QStringLiteral("\"%1\" must be %2")
                                          .arg(QString::fromUtf8(QByteArrayView(key->text)), typeOf(key->field)));
}

template <typename Value> bool LayoutReader::take(Value &field, const Value &value)
{
    m_given |= only(m_field);
    field = value;
    return true;
}

bool LayoutReader::string(const std::string &value)
{
    if (m_field == Field::id) {
        const auto id = idFrom(value);
        return id ? take(m_layout.id, *id) : refuseType();
    }
    switch (m_field) {
    case Field::ignored:
        return true;
    case Field::name:
        return take(m_layout.name, fromUtf8(value));
    case Field::bundleID:
        return take(m_window.bundleID, fromUtf8(value));
    case Field::app:
        return take(m_window.app, fromUtf8(value));
    case Field::title:
        return take(m_window.title, fromUtf8(value));
    case Field::display:
        return take(m_window.display.emplace(), fromUtf8(value));
    default:
        return refuseType();
    }
}

bool LayoutReader::number(double value)
{
    switch (m_field) {
    case Field::ignored:
        return true;
    case Field::created:
        return take(m_layout.created, value);
    case Field::x:
        return take(m_window.rect.x, value);
    case Field::y:
        return take(m_window.rect.y, value);
    case Field::w:
        return take(m_window.rect.w, value);
    case Field::h:
        return take(m_window.rect.h, value);
    default:
        return refuseType();
    }
}

bool LayoutReader::key(const std::string &text)
{
    if (m_ignoredDepth > 0)
        return true;
    const auto keys = keysOf(m_place);
    const auto key =
        std::find_if(keys.begin(), keys.end(), [&text](const Key &candidate) { return candidate.text == text; });
    const bool isNew = key != keys.end() && (m_seen & only(key->field)) == 0;
    m_field = isNew ? key->field : Field::ignored;
    m_seen |= only(m_field);
    return true;
}

bool LayoutReader::goTo(Place place)
{
    m_place = place;
    m_field = Field::none;
    return true;
}

bool LayoutReader::enter(Place place)
{
    m_given |= only(m_field);
    for (const Key &key : keysOf(place)) {
        m_seen &= ~only(key.field);
        m_given &= ~only(key.field);
    }
    return goTo(place);
}

bool LayoutReader::leave()
{
    return goTo(static_cast<Place>(static_cast<int>(m_place) - 1));
}

bool LayoutReader::startObject()
{
    if (++m_depth > maximumDepth)
        return refuse(QStringLiteral("nested deeper than %1").arg(maximumDepth));
    if (m_field == Field::ignored) {
        ++m_ignoredDepth;
        return true;
    }
    if (m_place == Place::list)
        return enter(Place::layout);
    if (m_place == Place::windows)
        return enter(Place::window);
    return m_field == Field::rect ? enter(Place::rect) : refuseType();
}

bool LayoutReader::startArray()
{
    if (++m_depth > maximumDepth)
        return refuse(QStringLiteral("nested deeper than %1").arg(maximumDepth));
    if (m_field == Field::ignored) {
        ++m_ignoredDepth;
        return true;
    }
    if (m_place == Place::text)
        return enter(Place::list);
    return m_field == Field::windows ? enter(Place::windows) : refuseType();
}

bool LayoutReader::endObject()
{
    --m_depth;
    if (m_ignoredDepth > 0) {
        --m_ignoredDepth;
        return true;
    }
    for (const Key &key : keysOf(m_place)) {
        if (key.isRequired && (m_given & only(key.field)) == 0)
            return refuse(QStringLiteral("\"%1\" is missing").arg(QString::fromUtf8(QByteArrayView(key.text))));
    }
    if (m_place == Place::window)
        m_layout.windows.append(std::exchange(m_window, {}));
    if (m_place == Place::layout) {
        fillIn();
        layouts.append(std::exchange(m_layout, {}));
    }
    return leave();
}

bool LayoutReader::endArray()
{
    --m_depth;
    if (m_ignoredDepth > 0) {
        --m_ignoredDepth;
        return true;
    }
    return leave();
}

/// Fills in what the layout lacks.
void LayoutReader::fillIn()
{
    if ((m_given & only(Field::id)) == 0)
        m_layout.id = QUuid::createUuid();
    if ((m_given & only(Field::name)) == 0)
        m_layout.name = QStringLiteral("Layout");
    if ((m_given & only(Field::created)) == 0)
        m_layout.created = now();
}

}

std::optional<QList<SavedLayout>> LayoutCoder::decode(const QString &text, Fault *fault)
{
    const auto refuse = [fault](int line, const QString &reason) {
        if (fault)
            *fault = {line, reason};
        return std::nullopt;
    };
    // The parser takes U+0000 for the end, and a half of a surrogate pair has no UTF-8 form.
    if (text.contains(QChar::Null) || !text.isValidUtf16())
        return refuse(1, QStringLiteral("no text"));
    const QByteArray bytes = text.toUtf8();
    const char *last = bytes.cbegin();
    LayoutReader reader;
    if (!Json::read(bytes, reader, last))
        return refuse(Json::lineOf(bytes.cbegin(), last), reader.reason);
    return std::move(reader.layouts);
}
