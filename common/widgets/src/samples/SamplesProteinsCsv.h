#pragma once

#include <orv/core/Result.h>
#include <orv/samples/SamplePathAndName.h>
#include <orv/table/RowNode.h>

#include <QList>
#include <QMap>
#include <QStringList>
#include <QVariant>

namespace orv {

/// What a text file tells of samples and their proteins.
class SamplesProteinsCsv
{
public:
    /// CannotOpenFile; InvalidContent for a file that is no table with a header, or has two columns of one
    /// name.
    [[nodiscard]] static Result<SamplesProteinsCsv> read(const QString &path);

    [[nodiscard]] QMap<QString, QList<QVariant>> columns() const;
    /// The columns as rows with name, type and unit.
    [[nodiscard]] RowNode header() const;
    [[nodiscard]] RowNode table() const;
    /// Each once, in the columns of ProteinUtils::defaultRowNode().
    [[nodiscard]] RowNode proteins() const;
    /// Each once, with absolute paths.
    [[nodiscard]] QList<SamplePathAndName> files() const;

    /// In lower case, without blanks, underscores and hyphens.
    [[nodiscard]] static QString plainName(const QString &name);

private:
    enum class Meaning
    {
        SampleName,
        SamplePath,
        ProteinName,
        ProteinAlias,
        ProteinSequence,
        Field, ///< of samples
    };
    struct MeaningRow;

    [[nodiscard]] static Meaning meaningOf(const QString &name);
    [[nodiscard]] QString value(const QStringList &row, Meaning meaning) const;

    QString m_folder;
    QStringList m_names;
    QList<Meaning> m_meanings; ///< of the names
    QList<QStringList> m_rows;
};

} // namespace orv
