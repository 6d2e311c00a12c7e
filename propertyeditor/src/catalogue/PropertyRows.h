#pragma once

#include <orv/propertyeditor/PropertyId.h>

#include <QVariant>

#include <array>
#include <variant>

namespace orv {

/// How the stored form of a property becomes its value; the characters are the codes shown to users.
enum class PropertyReader : char
{
    String = 'S',
    Bool = 'B',
    Double = 'D',
    Percent = 'P',
    IntPercent = 'Q',
    Int = 'I',
    NonNegativeInt = 'N',
    ListIndex = 'L',
    ListText = 'T',
    Object = 'O',
    Resource = 'R',
    UpperLetters = 'U',
    StringList = 'A',
};

/// What the catalogue decides itself of a property; the texts come from properties.csv.
struct PropertyRow
{
    /// A tolerance is a fractional number, and stays one when it happens to be whole.
    struct PartsPerMillion
    {
        std::variant<int, double> amount;
    };
    struct TextList
    {
        const char *joined; ///< by semicolons
    };
    using Default = std::variant<std::monostate, bool, int, double, const char *, TextList, PartsPerMillion,
                                 QVariant (*)()>;

    PropertyId id;
    PropertyReader reader;
    Default defaultValue;

    [[nodiscard]] QVariant makeDefault() const;
};

using PropertyRows = std::array<PropertyRow, kPropertyCount>;

/// By ascending id.
[[nodiscard]] const PropertyRows &propertyRows();

} // namespace orv
