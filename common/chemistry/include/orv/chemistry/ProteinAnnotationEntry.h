#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QString>

namespace orv {

/// A stretch of a protein that carries a name, such as "CDR-H3". A plain value.
struct ORV_WORKFLOW_EXPORT ProteinAnnotationEntry
{
    QString protein; ///< its accession name
    QString name;
    int begin = 1;              ///< first residue, counted from 1
    int end = 1;                ///< last residue
    QString colour;             ///< as "#rrggbb", empty for the usual one
    QJsonObject unknownMembers; ///< read from a file of a newer version, written back as they stand

    /// InvalidContent for members of another type, a begin below 1 and an end before the begin. Absent
    /// members keep the values above.
    [[nodiscard]] static Result<ProteinAnnotationEntry> fromJson(const QJsonObject &object);
    [[nodiscard]] QJsonObject toJson() const;

    /// A whole array; an error names the element, counted from 0.
    [[nodiscard]] static Result<QList<ProteinAnnotationEntry>> listFromJson(const QJsonArray &array);
    [[nodiscard]] static QJsonArray listToJson(const QList<ProteinAnnotationEntry> &entries);

    bool operator==(const ProteinAnnotationEntry &) const = default;
};

} // namespace orv
