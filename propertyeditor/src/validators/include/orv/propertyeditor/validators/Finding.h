#pragma once

#include <orv/core/Export.h>
#include <orv/propertyeditor/PropertyId.h>

#include <QList>
#include <QString>

#include <optional>

namespace orv::PropertyEditor {

class BaseItem;

/// Where in a document something was found. What isn't known is empty.
struct FindingPlace
{
    const BaseItem *item = nullptr; ///< of the checked content, which must outlive its use
    PropertyId property = PropertyId::NoProperty;
    QString sample; ///< its name
    /// Of that sample in its table, counted from 0, by which samples of one name are told apart.
    std::optional<qsizetype> sampleRow = {};

    bool operator==(const FindingPlace &) const = default;
};

/// One fault of a document, for programs. A plain value.
struct Finding
{
    enum class Level
    {
        Warning,
        Error,
    };

    Level level = Level::Error;
    QString rule;    ///< stable: the validator's short name, and behind a slash the rule of a setting
    QString message; ///< the text of the validator
    FindingPlace place;
    QString hint; ///< what to do; may be empty

    bool operator==(const Finding &) const = default;
};

} // namespace orv::PropertyEditor
