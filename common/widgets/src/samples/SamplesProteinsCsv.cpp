#include "SamplesProteinsCsv.h"

#include <orv/chemistry/ChemistryConstants.h>
#include <orv/chemistry/ProteinUtils.h>
#include <orv/core/FileUtils.h>
#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/samples/CustomFieldsStringConstants.h>
#include <orv/table_model/TableImport.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QUrl>

#include <algorithm>
#include <array>

namespace orv {

namespace {

struct SamplesProteinsCsvTr
{
    Q_DECLARE_TR_FUNCTIONS(SamplesProteinsCsv)
};

constexpr QLatin1String kUnit("Unit");
constexpr QLatin1String kProteinType("Protein");

Error noTable(const QString &path, const QString &reason)
{
    return Error(ErrorCode::InvalidContent,
                 SamplesProteinsCsvTr::tr("The file \"%1\" can't be imported.").arg(path))
        .addDetail(reason);
}

QString repeatedName(const QStringList &names)
{
    QSet<QString> seen;
    for (const QString &name : names) {
        if (seen.contains(name))
            return name;
        seen.insert(name);
    }
    return {};
}

} // namespace

struct SamplesProteinsCsv::MeaningRow
{
    const char *plainName;
    Meaning meaning;
};

QString SamplesProteinsCsv::plainName(const QString &name)
{
    QString plain = name.toLower();
    plain.removeIf([](QChar c) { return c.isSpace() || c == u'_' || c == u'-'; });
    return plain;
}

SamplesProteinsCsv::Meaning SamplesProteinsCsv::meaningOf(const QString &name)
{
    static constexpr std::array kMeanings = {
        MeaningRow{"accession", Meaning::ProteinName},
        MeaningRow{"file", Meaning::SamplePath},
        MeaningRow{"filepath", Meaning::SamplePath},
        MeaningRow{"msfile", Meaning::SamplePath},
        MeaningRow{"protein", Meaning::ProteinName},
        MeaningRow{"proteinaccessionname", Meaning::ProteinName},
        MeaningRow{"proteinalias", Meaning::ProteinAlias},
        MeaningRow{"proteinaliasname", Meaning::ProteinAlias},
        MeaningRow{"proteinname", Meaning::ProteinName},
        MeaningRow{"proteinsequence", Meaning::ProteinSequence},
        MeaningRow{"sample", Meaning::SampleName},
        MeaningRow{"samplename", Meaning::SampleName},
        MeaningRow{"samplepath", Meaning::SamplePath},
        MeaningRow{"sequence", Meaning::ProteinSequence},
    };
    const QString plain = plainName(name);
    const auto *const found = std::find_if(kMeanings.begin(), kMeanings.end(), [&](const MeaningRow &row) {
        return plain == QLatin1String(row.plainName);
    });
    return found == kMeanings.end() ? Meaning::Field : found->meaning;
}

Result<SamplesProteinsCsv> SamplesProteinsCsv::read(const QString &path)
{
    Result<QByteArray> bytes = FileUtils::readFile(path);
    if (bytes.hasError())
        return bytes.ecatch();
    TableImport import(*bytes, QList<TableColumn>());
    if (!import.format().hasHeader) {
        TableTextFormat format = import.format();
        format.hasHeader = true;
        import.setFormat(format);
    }
    if (import.fault().hasError())
        return noTable(path, (import.fault().errorMessages() + import.fault().details()).join(u' '));
    SamplesProteinsCsv csv;
    csv.m_folder = QFileInfo(path).absolutePath();
    for (const QString &name : import.fieldNames())
        csv.m_names.append(name.trimmed());
    if (csv.m_names.isEmpty())
        return noTable(path, SamplesProteinsCsvTr::tr("It has no header."));
    if (const QString name = repeatedName(csv.m_names); !name.isNull())
        return noTable(path, SamplesProteinsCsvTr::tr("Two columns are called \"%1\".").arg(name));
    for (const QString &name : std::as_const(csv.m_names))
        csv.m_meanings.append(meaningOf(name));
    for (int i = 0; i < import.recordCount(); ++i)
        csv.m_rows.append(import.record(i).fields);
    return csv;
}

QMap<QString, QList<QVariant>> SamplesProteinsCsv::columns() const
{
    QMap<QString, QList<QVariant>> columns;
    for (qsizetype i = 0; i < m_names.size(); ++i) {
        QList<QVariant> &values = columns[m_names[i]];
        for (const QStringList &row : m_rows)
            values.append(row.value(i));
    }
    return columns;
}

RowNode SamplesProteinsCsv::header() const
{
    using namespace CustomFieldsStringConstants;
    RowNode header;
    header.addData(QStringList{ATTRIBUTES_COLUMN_NAME, ATTRIBUTES_COLUMN_TYPE, kUnit});
    for (qsizetype i = 0; i < m_names.size(); ++i) {
        const bool isOfProtein = m_meanings[i] == Meaning::ProteinName ||
                                 m_meanings[i] == Meaning::ProteinAlias ||
                                 m_meanings[i] == Meaning::ProteinSequence;
        header.addNewChild({m_names[i], QString(isOfProtein ? kProteinType : SAMPLE_TYPE), QString()});
    }
    return header;
}

RowNode SamplesProteinsCsv::table() const
{
    RowNode table;
    table.addData(m_names);
    for (const QStringList &row : m_rows) {
        VariantItems cells;
        for (qsizetype i = 0; i < m_names.size(); ++i)
            cells.append(row.value(i));
        table.addNewChild(cells);
    }
    return table;
}

QString SamplesProteinsCsv::value(const QStringList &row, Meaning meaning) const
{
    const qsizetype at = m_meanings.indexOf(meaning);
    return at < 0 ? QString() : row.value(at).trimmed();
}

RowNode SamplesProteinsCsv::proteins() const
{
    RowNode proteins = ProteinUtils::defaultRowNode();
    QSet<QStringList> seen;
    for (const QStringList &row : m_rows) {
        const QStringList protein = {value(row, Meaning::ProteinName), value(row, Meaning::ProteinAlias),
                                     value(row, Meaning::ProteinSequence).remove(u' ').toUpper()};
        if (protein.join(QString()).isEmpty() || seen.contains(protein))
            continue;
        seen.insert(protein);
        RowNode *const child = proteins.addNewChildMatchRootDataSize();
        child->getDataAt(kProteinAccessionName) = protein[0];
        child->getDataAt(kProteinAliasName) = protein[1];
        child->getDataAt(kProteinSequence) = protein[2];
    }
    return proteins;
}

QList<SamplePathAndName> SamplesProteinsCsv::files() const
{
    const QUrl base = QUrl::fromLocalFile(m_folder + u'/');
    QList<SamplePathAndName> files;
    QSet<QStringList> seen;
    for (const QStringList &row : m_rows) {
        const Result<ResourceReferenceSPtr> file =
            ResourceReference::fromString(value(row, Meaning::SamplePath));
        const QString name = value(row, Meaning::SampleName);
        if (file.hasError() || (*file)->isEmpty())
            continue;
        const QString path = ResourceReferenceUtils::resolved(*file, base)->text();
        if (seen.contains({path, name}))
            continue;
        seen.insert({path, name});
        files.append({path, name});
    }
    return files;
}

} // namespace orv
