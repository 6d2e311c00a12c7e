#pragma once

#include <orv/propertyeditor/PropertyId.h>

#include <QMap>
#include <QVariant>

namespace orv {

namespace PropertyEditor {
class KeyValueItem;
} // namespace PropertyEditor

/// The settings of a search as the engine needs them: lists as position, number or key, and objects as the
/// text in them.
class KarvonFeatures
{
public:
    explicit KarvonFeatures(const PropertyEditor::KeyValueItem &item);

    /// Null where the item has none.
    [[nodiscard]] QVariant feature(PropertyId id) const { return m_features.value(id); }
    /// The default where the item has none.
    [[nodiscard]] QVariant value(PropertyId id) const;

private:
    void add(PropertyId id, const QVariant &value, const PropertyEditor::KeyValueItem &item);

    QMap<PropertyId, QVariant> m_features;
};

} // namespace orv
