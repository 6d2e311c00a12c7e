#pragma once

#include <orv/core/Error.h>
#include <orv/core/Export.h>

#include <QList>
#include <QMap>
#include <QString>

#include <optional>

namespace orv {

/// A peptide that is expected in the samples. A plain value.
struct ORV_WORKFLOW_EXPORT InsilicoPeptide
{
    QString sequence; ///< capital letters
    QString protein;
    QString modifications; ///< as the file has them
    int charge = 0;        ///< 0 for any
    std::optional<double> massDa;
    std::optional<double> retentionTimeMinutes;
    QMap<QString, QString> otherFields; ///< of columns that aren't known here, by their header
    qsizetype line = 0;                 ///< of the file, counted from 1

    bool operator==(const InsilicoPeptide &) const = default;
};

/// Reads expected peptides from a comma-separated file with a header. The column "Sequence" (or "Seq",
/// "Peptide") is needed; "Protein", "Modifications" ("Mods"), "Charge" ("z"), "Mass" ("Mono mass",
/// "Monoisotopic mass") and "Retention time" ("RT") are used; case, blanks and underscores of headers don't
/// count. One use, one thread.
class ORV_WORKFLOW_EXPORT InsilicoPeptidesCsvReader
{
public:
    static constexpr qsizetype kMaximumRows = 1'000'000;

    explicit InsilicoPeptidesCsvReader(const QString &path);

    /// All peptides, appended to \a rows. \a warningText receives a line for each kind of oddity: fields
    /// beyond the header, rows that stand twice, a file without rows. On a failure \a rows stays as it was
    /// and \a errorText receives message and details: CannotOpenFile for a file that can't be read,
    /// InvalidContent with the line for a missing column, a sequence that is empty or has other characters
    /// than letters, and a number that is none. All three may be null.
    Error readAll(QList<InsilicoPeptide> *rows, QString *warningText, QString *errorText);

private:
    QString m_path;
};

} // namespace orv
