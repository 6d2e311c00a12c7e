#pragma once

#include <KProperty>
#include <orv/core/Export.h>
#include <orv/propertyeditor/PropertyFeatures.h>
#include <orv/propertyeditor/PropertyId.h>
#include <orv/propertyeditor/workflow/WorkflowType.h>

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace orv {

/// The property catalogue: what each setting is called, what its type and default are, how its stored form
/// becomes a value and which rule protects it. Built on the first call and never changed after. An id that is
/// no property has empty answers. All functions are safe on any thread, displayNameForType as told there.
class ORV_WORKFLOW_EXPORT PropertiesNames
{
public:
    /// The whole catalogue, by ascending id. Lives until the process ends.
    [[nodiscard]] static const QMap<PropertyId, PropertyFeatures> *names();

    /// The property of that name, current or of the first generation; NoProperty if there is none.
    [[nodiscard]] static PropertyId findPropertyForName(const QString &name);

    /// Whether the "name" of a property entry is that of a property.
    [[nodiscard]] static bool hasPropertyForObject(const QJsonObject &object);

    /// The caption. Some properties read differently in some types of workflow, so it asks the provider below
    /// and belongs to the thread of the user interface where one is set.
    [[nodiscard]] static QString displayNameForType(PropertyId id);

    /// The name of the property in files.
    [[nodiscard]] static QString internalNameForType(PropertyId id);
    /// In the order of \a ids.
    [[nodiscard]] static QStringList internalNamesForTypes(const QList<PropertyId> &ids);

    [[nodiscard]] static QString tooltipForType(PropertyId id);
    [[nodiscard]] static QVariant defaultValueForType(PropertyId id);
    /// The default in the unit of files and rules: percent where readers make a fraction of it.
    [[nodiscard]] static QVariant defaultValueInFileUnit(PropertyId id);
    [[nodiscard]] static QMap<QByteArray, QString> typeOptionsOfPropertyType(PropertyId id);
    [[nodiscard]] static QString valueTypeNameOfPropertyType(PropertyId id);
    [[nodiscard]] static KProperty::Type valueTypeOfPropertyType(PropertyId id);

    /// The one-letter code of the reader of the property, such as 'D' for a double stored as text; a null
    /// character for an id that is no property.
    [[nodiscard]] static QChar readerCode(PropertyId id);

    /// Gives the workflow type of the window that the user works in.
    using WorkflowTypeProvider = WorkflowType (*)();

    /// Lets captions follow the workflow in front of the user. Without a provider, or with null, captions are
    /// those of no particular type. May be called at any time; returns the provider before.
    static WorkflowTypeProvider setWorkflowTypeProvider(WorkflowTypeProvider provider);
};

} // namespace orv
