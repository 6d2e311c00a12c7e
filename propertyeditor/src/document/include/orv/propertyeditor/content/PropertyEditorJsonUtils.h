#pragma once

#include <orv/core/Error.h>
#include <orv/core/Export.h>
#include <orv/propertyeditor/PropertyId.h>
#include <orv/propertyeditor/content/BaseItemType.h>
#include <orv/table/RowNode.h>
#include <orv/table/VariantItems.h>

#include <QByteArray>
#include <QDir>
#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace orv::PropertyEditor {
class Content;
}

/// Functions on the raw JSON of cells and properties, which reach one setting without building the tree of
/// objects. What is malformed gives an empty answer and a line in the log. Free of shared state; safe on any
/// thread. A facade: bodies that need the catalogue or the tree stand on those floors, so call from there or
/// above.
///
/// A cell holds its settings as entries of "properties":
/// \code
///     {"type": "Masses", "properties": [{"name": "MassTable", "value": {"data": [], "children": []}}]}
/// \endcode
namespace orv::PropertyEditorJsonUtils {

// Entries of a cell.

/// Which property \a entry is, in a cell of that type; NoProperty if its name is none. Names of old documents
/// give today's property, so readers of raw cells ask here instead of comparing names.
[[nodiscard]] ORV_WORKFLOW_EXPORT PropertyId findPropertyBackCompat(const QJsonObject &entry,
                                                                    BaseItemType itemType);
/// The same by the entry's name.
[[nodiscard]] ORV_WORKFLOW_EXPORT PropertyId findPropertyBackCompat(const QString &name,
                                                                    BaseItemType itemType);

/// The first entry of the cell \a item that is the property \a id; empty if there is none.
[[nodiscard]] ORV_WORKFLOW_EXPORT QJsonObject getPropertyWithType(const QJsonObject &item, PropertyId id);

/// The cell \a item with \a value in every entry that is the property \a id, under its current name. Nothing
/// is added. Empty when the type of the cell is unknown.
[[nodiscard]] ORV_WORKFLOW_EXPORT QJsonObject updatePropertyValue(const QJsonObject &item, PropertyId id,
                                                                  const QJsonObject &value);

/// The "value" of an entry; empty if that is no object.
[[nodiscard]] ORV_WORKFLOW_EXPORT QJsonObject propValueObject(const QJsonObject &entry);

/// A new cell of that type with the default table or tables; empty, with a warning, for a type that has none.
[[nodiscard]] ORV_WORKFLOW_EXPORT QJsonObject defaultJsonContents(BaseItemType type);

/// The definitions of the custom columns of the cell \a item by their names.
[[nodiscard]] ORV_WORKFLOW_EXPORT QHash<QString, QMap<QString, QVariant>>
customColumnDefinitions(const QJsonObject &item);

// Tables, in the form that orv/table/rn.h tells.

/// Empty, with a line at debug level, if the value is no table.
[[nodiscard]] ORV_WORKFLOW_EXPORT RowNode propValueToRowNode(const QJsonObject &entry);
[[nodiscard]] ORV_WORKFLOW_EXPORT RowNode objectToRowNode(const QJsonObject &object);

/// Empty, with a line at debug level, if the table holds what has no JSON form.
[[nodiscard]] ORV_WORKFLOW_EXPORT QByteArray rowNodeToJson(const RowNode &node);
[[nodiscard]] ORV_WORKFLOW_EXPORT QJsonObject rowNodeToObject(const RowNode &node);

// Lists and cells.

/// The cells of a tab in the value form, each convertible to its compact JSON bytes.
[[nodiscard]] ORV_WORKFLOW_EXPORT VariantItems jsonArrayToVariantItems(const QJsonArray &array);

/// The cells as objects, each with a "metadata" text that stamps it with the current user, time and version.
[[nodiscard]] ORV_WORKFLOW_EXPORT QJsonArray variantItemsToJsonArray(const VariantItems &items);

/// An element that is no string reads as an empty one.
[[nodiscard]] ORV_WORKFLOW_EXPORT QStringList jsonArrayToStringList(const QJsonArray &array);
[[nodiscard]] ORV_WORKFLOW_EXPORT QJsonArray stringListToJsonArray(const QStringList &list);

// Values.

/// The object in a cell or a byte value, or the object that the value is; empty for null, for other JSON and,
/// with a warning, for other bytes.
[[nodiscard]] ORV_WORKFLOW_EXPORT QJsonObject variantToObject(const QVariant &value);

/// The text that \a value chooses out of \a names: a text, which must be among them unless the list is
/// \a editable, or a number, the position in the list. Otherwise the first of the names with a warning, and
/// \a ok, which may be null, is false.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString getValueFromList(const QVariant &value, const QStringList &names,
                                                           const QString &propertyName, bool editable,
                                                           bool *ok);

/// The number of a value with its unit, which is a JSON object in bytes such as {"unit": "ppm", "value": 20}.
[[nodiscard]] ORV_WORKFLOW_EXPORT QVariant getValueFromValueUnit(const QVariant &value);
/// The same value as a QJsonObject, with another number.
[[nodiscard]] ORV_WORKFLOW_EXPORT QVariant setValueInValueUnit(const QVariant &value, const QVariant &number);

/// The glycans of a value as text: its member "glycans", or that of its object "data". Values store a
/// backslash twice, which is undone here.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString storedSerializedGlycans(const QJsonObject &object);
/// Writes the glycans to the place that storedSerializedGlycans reads.
ORV_WORKFLOW_EXPORT void updateStoredSerializedGlycans(QJsonObject *object, const QString &glycans);

// Typed members. InvalidContent if \a key is absent or of another type; \a out is then as it was.

[[nodiscard]] ORV_WORKFLOW_EXPORT Error parseBoolValueForKey(const QJsonObject &object, const QString &key,
                                                             bool *out);
/// A number with a fraction or beyond the range of int is no integer.
[[nodiscard]] ORV_WORKFLOW_EXPORT Error parseIntValueForKey(const QJsonObject &object, const QString &key,
                                                            int *out);
[[nodiscard]] ORV_WORKFLOW_EXPORT Error parseDoubleValueForKey(const QJsonObject &object, const QString &key,
                                                               double *out);
[[nodiscard]] ORV_WORKFLOW_EXPORT Error parseQStringValueForKey(const QJsonObject &object, const QString &key,
                                                                QString *out);

// Documents.

/// All bytes of a workflow file. If it can't be read: nothing, a warning, and MalformedStructure in \a error
/// with file and remedy as details; otherwise \a error is a success. It may be null.
[[nodiscard]] ORV_WORKFLOW_EXPORT QByteArray loadWflw(const QString &fileName, Error *error);

/// Whether two documents are equal; unless \a strict, apart from "metadata" and "extendedMetadata" and from
/// the "metadata" of cells, which change with every save.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool compareWorkflows(const QJsonObject &a, const QJsonObject &b,
                                                        bool strict);

/// The document without what compareWorkflows passes over unless it is strict.
[[nodiscard]] ORV_WORKFLOW_EXPORT QJsonObject withoutStamps(QJsonObject document);

// Projects.

/// Whether a project \a name was attempted in \a dir with this very workflow, and stopped after its
/// processing had started, so that a new attempt may reuse what is there. Reads the workflow and the status
/// that the attempt left; what can't be read counts as not started, with a warning. Files that
/// settings name are compared by their absolute paths, so \a content needs its base URL. The form on a
/// document runs on its thread.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool projectFailedBefore(const QDir &dir, const QString &name,
                                                           const PropertyEditor::Content &content);
/// The same for the workflow in a file; what can't be loaded of it is compared as empty, with a warning.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool projectFailedBefore(const QDir &dir, const QString &name,
                                                           const QString &wflwFile);

/// Whether \a extension, without a dot, is that of a result of one of the documents; case doesn't count.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool endsWithExpectedExtension(const QString &extension,
                                                                 const QList<BaseItemType> &documents);
/// The name of a project without the extension that its result will get: what follows the last dot, or all of
/// a name without a dot, is dropped if it is such an extension.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString adjustProjectName(const QString &name,
                                                            const QList<BaseItemType> &documents);

} // namespace orv::PropertyEditorJsonUtils
