#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

namespace orv::SamplesInput {

/// One column that a user or the server's metadata added to the samples table.
struct CustomColumn
{
    QString name;
    QString type;      ///< "text", "number" or "bool"; other texts are kept
    QString attribute; ///< of the server's metadata that fills the column; empty for a user's column
    QJsonObject unknownMembers = {};

    [[nodiscard]] bool isFromMetadata() const { return !attribute.isEmpty(); }
    bool operator==(const CustomColumn &) const = default;
};

/// The custom columns of a samples table in their order. A plain value.
///
/// JSON form: an array of {"name", "type"} and, for columns from metadata, "attribute".
class ORV_WORKFLOW_EXPORT CustomColumns
{
public:
    /// Fails with InvalidContent for an element without a name, with the name of another one or of a
    /// sample's own member, or with a member of the wrong type.
    [[nodiscard]] static Result<CustomColumns> fromJson(const QJsonArray &json);
    [[nodiscard]] QJsonArray toJson() const;

    [[nodiscard]] const QList<CustomColumn> &columns() const { return m_columns; }
    [[nodiscard]] bool isEmpty() const { return m_columns.isEmpty(); }
    [[nodiscard]] QStringList customColumnNames() const;
    /// Constant in time, however many columns a file claims.
    [[nodiscard]] bool contains(const QString &name) const { return m_names.contains(name); }

    /// Appends a column. False, and nothing changed, for an empty name, one that is taken, and one that a
    /// sample's JSON object uses itself (see isReservedName).
    bool addCustomColumn(const CustomColumn &column);
    bool addCustomColumn(const QString &name, const QString &type = QStringLiteral("text"));
    bool removeCustomColumn(const QString &name);
    /// Removes all columns from metadata at once, and answers their names.
    QSet<QString> removeColumnsFromMetadata();

    /// Names that the JSON object of a sample has members of, such as "SampleName".
    [[nodiscard]] static bool isReservedName(const QString &name);

    bool operator==(const CustomColumns &) const = default;

private:
    QList<CustomColumn> m_columns;
    QSet<QString> m_names;
};

} // namespace orv::SamplesInput
