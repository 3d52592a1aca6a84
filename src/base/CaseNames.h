#pragma once

#include <QString>

#include <array>
#include <optional>
#include <string_view>
#include <utility>

/// The cases of an enumeration, found by their names and places. An enumeration is only declared, `enum class Theme {
/// classic, soft };`, and its names are the enumerators as they are written: there is no second list to keep in step.
/// Its cases are numbered from 0 without a gap.
namespace CaseNames {

/// The enumerator of that value, as it is written; empty where the value has none.
template <auto value> constexpr std::string_view spelled()
{
    // Ends with "value = Theme::classic]"; with "value = (Theme)5]" where there is no such enumerator. GCC may go on
    // after a semicolon.
    std::string_view name = __PRETTY_FUNCTION__;
    name.remove_prefix(name.find("value = "));
    name = name.substr(0, name.find_first_of(";]"));
    name.remove_prefix(name.find_last_of(" :") + 1);
    return name.find(')') == name.npos ? name : std::string_view();
}

template <typename Enum, int count = 0> constexpr int counted()
{
    if constexpr (spelled<Enum(count)>().empty())
        return count;
    else
        return counted<Enum, count + 1>();
}

template <typename Enum> constexpr auto listed()
{
    return []<int... values>(std::integer_sequence<int, values...>)
    {
        return std::array{Enum(values)...};
    }
    (std::make_integer_sequence<int, counted<Enum>()>());
}

template <typename Enum> constexpr auto named()
{
    return []<int... values>(std::integer_sequence<int, values...>)
    {
        return std::array{spelled<Enum(values)>()...};
    }
    (std::make_integer_sequence<int, counted<Enum>()>());
}

}

/// An enumeration whose raw values are the names of its cases. Upper and lower case differ.
template <typename Enum> struct NamedCases {
    /// All cases, in the order of their declaration.
    static constexpr auto allCases = CaseNames::listed<Enum>();

    static QString rawValue(Enum value)
    {
        return QString::fromLatin1(QByteArrayView(names.at(static_cast<std::size_t>(value))));
    }

    /// None for any other text.
    static std::optional<Enum> fromRawValue(QStringView rawValue)
    {
        for (const Enum value : allCases) {
            const std::string_view name = names[static_cast<std::size_t>(value)];
            if (rawValue == QLatin1String(name.data(), qsizetype(name.size())))
                return value;
        }
        return std::nullopt;
    }

private:
    static constexpr auto names = CaseNames::named<Enum>();
};

/// An enumeration whose raw values are the places of its cases, from 0. Views name a case by its name.
template <typename Enum> struct NumberedCases {
    /// All cases, in the order of their declaration.
    static constexpr auto allCases = CaseNames::listed<Enum>();

    static constexpr int rawValue(Enum value) { return static_cast<int>(value); }

    /// None for any other integer.
    static constexpr std::optional<Enum> fromRawValue(int rawValue)
    {
        return rawValue >= 0 && rawValue < int(allCases.size()) ? std::optional(Enum(rawValue)) : std::nullopt;
    }

    static QString caseName(Enum value) { return NamedCases<Enum>::rawValue(value); }

    /// None for any other text. Upper and lower case differ.
    static std::optional<Enum> fromCaseName(QStringView name) { return NamedCases<Enum>::fromRawValue(name); }
};
