#pragma once

#include <orv/core/Export.h>
#include <orv/propertyeditor/PropertyId.h>

#include <QList>
#include <QString>

namespace orv::PropertyEditor {

class BaseItem;

/// Where in a document something was found. What isn't known is empty.
struct FindingPlace
{
    const BaseItem *item = nullptr; ///< of the checked content, which must outlive its use
    PropertyId property = PropertyId::NoProperty;
    QString sample; ///< its name

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

/// What validators tell beside their texts.
namespace Findings {

/// Tells whoever collects on this thread where the text \a message, which the caller appends to one of its
/// lists, belongs. \a rule stands behind the validator's name. Without a collector nothing happens.
ORV_WORKFLOW_EXPORT void note(const QString &message, const FindingPlace &place, const QString &hint = {},
                              const QString &rule = {});

} // namespace Findings

} // namespace orv::PropertyEditor
