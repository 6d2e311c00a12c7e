#pragma once

#include <orv/core/Export.h>
#include <orv/propertyeditor/PropertyId.h>

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QVariant>

namespace orv {

/// What a property's type name and number mean to those who show and store it. All functions are static and
/// safe on any thread.
class ORV_WORKFLOW_EXPORT PropertiesTraits
{
public:
    /// KProperty types of this program, beside those that KProperty brings.
    enum UserType
    {
        ObjectType = 4000,            ///< a JSON object that an editor of its own shows
        ResourceReferenceType = 4001, ///< a file, here or on the server
        CheckableListType = 4002,     ///< any number of texts out of a list
    };

    struct TypeFeatures
    {
        int type = 0; ///< a KProperty::Type; 0 is none
        QHash<QByteArray, QVariant> options;
    };

    /// The features of a type of the catalogue, such as "list", or of any name that QMetaType knows; the name
    /// is compared exactly. Type 0 without options for an empty or unknown name.
    [[nodiscard]] static TypeFeatures typeFeatures(const QString &typeName);

    /// Whether the user may give a text that the property's list doesn't hold.
    [[nodiscard]] static bool isEditableList(PropertyId id);

    /// Whether files hold the text of a list property, and not its position or number.
    [[nodiscard]] static bool isStringSerializableList(PropertyId id);
};

} // namespace orv
