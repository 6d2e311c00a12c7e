#pragma once

#include "orv/propertyeditor/workbench/SettingIndex.h"

#include <orv/propertyeditor/PropertyId.h>
#include <orv/propertyeditor/content/ContentOptions.h>

#include <QHash>
#include <QJsonValue>
#include <QVariant>

#include <optional>

class KProperty;
class KPropertySet;

namespace orv {

/// The stored values of a property set, by internal name.
using StoredSettings = QHash<QByteArray, QJsonValue>;

/// Reads property sets as people see them, and compares their values in the form that files have.
class SettingReader
{
public:
    /// \a saved are the values that the column had when it was saved; null for a column that wasn't.
    [[nodiscard]] QList<SettingTexts> read(const KPropertySet &set, const StoredSettings *saved);

    [[nodiscard]] static StoredSettings stored(const KPropertySet &set);
    /// A reference to nothing is an empty text in files.
    [[nodiscard]] static QJsonValue
    stored(const KProperty &property,
           PropertyEditor::PropertyConversionFlag paths = PropertyEditor::PropertyConversionFlag::KeepPaths);
    /// Whether people see no difference between two stored values.
    [[nodiscard]] static bool areSame(const QJsonValue &first, const QJsonValue &second);
    /// As people see it, with its unit; of a long value the beginning.
    [[nodiscard]] static QString valueText(const KProperty &property);
    /// NoProperty for what is no setting, such as the metadata of the cell.
    [[nodiscard]] static PropertyId idOf(const KProperty &property);
    /// What a new property has; undefined for one without a default.
    [[nodiscard]] QJsonValue storedDefault(PropertyId id);

private:
    [[nodiscard]] SettingTexts textsOf(const KProperty &property, PropertyId id, const StoredSettings *saved);

    QHash<PropertyId, QJsonValue> m_defaults;
};

} // namespace orv
