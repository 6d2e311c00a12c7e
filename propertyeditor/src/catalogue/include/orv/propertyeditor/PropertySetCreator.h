#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/propertyeditor/PropertyId.h>
#include <orv/propertyeditor/content/BaseItemType.h>
#include <orv/propertyeditor/content/ContentOptions.h>
#include <orv/propertyeditor/content/LoadContext.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>

#include <optional>

class KProperty;
class KPropertySet;

namespace orv {

/// Turns the stored form of a cell's properties into a property set and back, and makes properties with their
/// type, texts, options and editor. All functions are static and safe on any thread that owns the properties
/// and sets which it passes.
class ORV_WORKFLOW_EXPORT PropertySetCreator
{
    Q_GADGET
    Q_DECLARE_TR_FUNCTIONS(PropertySetCreator)

public:
    /// How prominently a property is shown. Stored in files, never renumber.
    enum class Priority : int
    {
        Unset = -1,
        High = 1,
        Medium = 2,
        Low = 3,
    };
    Q_ENUM(Priority)

    /// The kind of editor of a property that no plain editor can show. The numbers are options of properties
    /// by which hosts choose widgets: never renumber.
    enum class Editor : int
    {
        Unset = 0, ///< the editor of the property's type
        ValueUnit = 1,
        Modifications = 2,
        Glycans = 3,
        Proteins = 4,
        Isotope = 5,
        Disulfide = 6,
        IntactOptions = 7,
        OligoOptions = 8,
        Masses = 9,
        DetachedGlycans = 10,
        GlycanOptions = 11,
        PeakFilter = 12,
        TracePlot = 13,
        DeconvolvedMassPlot = 14,
        InclusionList = 15,
        TheoreticalTable = 16,
    };
    Q_ENUM(Editor)

    /// The set of the cell whose JSON text this is; the caller owns it. Each top-level member but
    /// "properties" is an invisible property named ":" and the key, in the group "common". With \a type,
    /// properties which that type of cell may not hold fail the load, unless the setting for verification is
    /// off. An entry that can't be read is logged and dropped; \a context hears of all that is dropped. Fails
    /// with MalformedStructure for what is no cell, and with InvalidContent for such a property.
    static Result<KPropertySet *> jsonToPropertySet(const QByteArray &json,
                                                    const std::optional<BaseItemType> &type,
                                                    const PropertyEditor::LoadContext &context = {});
    /// The same of a cell that is parsed already.
    static Result<KPropertySet *> objectToPropertySet(const QJsonObject &cell,
                                                      const std::optional<BaseItemType> &type,
                                                      const PropertyEditor::LoadContext &context = {});

    /// The properties of \a cell, if a set made of it would be written as what stands there, apart from the
    /// stamp, and with nothing to report: such a cell needn't be read before somebody asks for a property.
    /// Quick, and so nothing for some unusual cells of which that is true.
    [[nodiscard]] static std::optional<PropertyIdSet>
    propertiesInStoredForm(const QJsonObject &cell, const std::optional<BaseItemType> &type);

    /// Indented JSON text of a cell with the properties of \a set in their order. False if a value can't be
    /// stored, with \a json as it was.
    static bool propertySetToJson(const KPropertySet &set, QByteArray *json,
                                  PropertyEditor::PropertyConversionFlag flag);
    /// The same without the text.
    [[nodiscard]] static std::optional<QJsonObject>
    propertySetToObject(const KPropertySet &set, PropertyEditor::PropertyConversionFlag flag);

    /// A property with its default, owned by the caller; null, with a log line, for an id that has no type.
    /// The default is that of the catalogue, so a fraction where files have percent: a property to be saved
    /// begins with modifyKProperty and storedDefault.
    [[nodiscard]] static KProperty *createDefaultProperty(PropertyId id, Priority priority);

    /// The default of a property as files hold it: in percent where files have percent; undefined if it has
    /// no stored form.
    [[nodiscard]] static QJsonValue storedDefault(PropertyId id);

    /// Makes \a property the property \a id with the stored \a value; reasons for false are appended to
    /// \a errors.
    static bool modifyKProperty(PropertyId id, Priority priority, const QJsonValue &value,
                                KProperty *property, QList<QString> *errors);
    /// The same with nothing stored: no value, zero, or the first entry of a list.
    static bool modifyKProperty(PropertyId id, Priority priority, KProperty *property,
                                QList<QString> *errors);

    /// Gives \a property the type of \a id with its options, those of the catalogue above those of the type.
    static bool setKPropertyType(PropertyId id, KProperty *property);
    /// The same for a type name, such as "multiLine". False, with a log line, for an empty name.
    static bool setKPropertyTypeFromString(const QByteArray &typeName, KProperty *property);

    /// Reads a stored value by the type that \a property has, and marks it as unchanged. \a id says which
    /// list and which editor go with it. False, with the property's value as it was, if the value doesn't
    /// fit.
    static bool setValueFromJson(PropertyId id, const QJsonValue &value, KProperty *property);

    /// The value that a new property \a id has after setValueFromJson; nothing if the value doesn't fit.
    [[nodiscard]] static std::optional<QVariant> valueFromJson(PropertyId id, const QJsonValue &value);

    /// The stored form of a property's value by its type; undefined if it has none.
    [[nodiscard]] static QJsonValue valueToJson(const KProperty &property,
                                                PropertyEditor::PropertyConversionFlag flag);

    /// Whether a file can hold the value that \a property has: it would come back as that value.
    [[nodiscard]] static bool canStore(const KProperty &property);

    [[nodiscard]] static Editor editorForProperty(PropertyId id);

    /// The texts of the properties whose value is one of a list, by position.
    [[nodiscard]] static const QMap<PropertyId, QStringList> &listPropertiesData();

    /// Whether files hold the text of a list property, and not its position or number.
    [[nodiscard]] static bool isStringSerializableList(PropertyId id);
};

} // namespace orv
