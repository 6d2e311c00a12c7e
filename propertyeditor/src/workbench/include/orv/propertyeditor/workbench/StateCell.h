#pragma once

#include <orv/widgets/Export.h>

#include <QByteArray>
#include <QJsonObject>
#include <QVariant>

#include <memory>

namespace orv {

/// A cell in a state of a document: an object whose compact JSON is written when somebody first asks, or a
/// text. Most cells are shown, edited, kept and left without a text. Copies share everything. Safe to use
/// from several threads as any Qt value.
class ORV_PROPERTY_EDITOR_EXPORT StateCell
{
public:
    StateCell() = default;
    StateCell(const QByteArray &json);
    explicit StateCell(const QJsonObject &cell);

    /// Whether there is no cell.
    [[nodiscard]] bool isNull() const { return !m_data; }
    [[nodiscard]] const QByteArray &json() const;
    operator const QByteArray &() const { return json(); }
    /// Whether it was made of an object, which takes no time to ask for.
    [[nodiscard]] bool isObject() const;
    /// Empty where the text is no object.
    [[nodiscard]] QJsonObject object() const;
    /// The cell as an entry of VariantItems.
    [[nodiscard]] QVariant toVariant() const;

    /// Whether both are stored alike.
    bool operator==(const StateCell &other) const;

private:
    struct Data;

    std::shared_ptr<Data> m_data;
};

} // namespace orv
