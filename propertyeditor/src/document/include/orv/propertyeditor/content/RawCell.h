#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QByteArray>
#include <QJsonObject>
#include <QMetaType>
#include <QVariant>

namespace orv {

/// A cell of the value form: compact JSON text that has not been written out yet. In a QVariant it converts
/// to QByteArray, so whoever asks a cell for its bytes gets them; whoever wants its members doesn't pay for
/// writing and parsing them again. A plain value.
class ORV_WORKFLOW_EXPORT RawCell
{
public:
    RawCell() = default;
    explicit RawCell(QJsonObject object)
        : m_object(std::move(object))
    {}

    [[nodiscard]] const QJsonObject &object() const { return m_object; }
    [[nodiscard]] QByteArray toJson() const;

    /// The cell as an entry of VariantItems.
    [[nodiscard]] QVariant toVariant() const;

    /// The object of an entry: of a RawCell, or parsed from bytes or text. Fails as
    /// JsonUtils::objectFromJson.
    [[nodiscard]] static Result<QJsonObject> parse(const QVariant &cell);

    /// The object of an entry: of a RawCell, or parsed from bytes or text. Empty for anything else, with a
    /// warning for bytes that are no JSON.
    [[nodiscard]] static QJsonObject objectOf(const QVariant &cell);

    bool operator==(const RawCell &) const = default;

private:
    QJsonObject m_object;
};

} // namespace orv

Q_DECLARE_METATYPE(orv::RawCell)
