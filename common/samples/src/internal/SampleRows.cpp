#include "SampleRows.h"

#include "EntryMembers.h"

#include <orv/samples/CustomColumns.h>
#include <orv/table/rn.h>

#include <QCoreApplication>

namespace orv::SampleRows {

namespace {

constexpr QLatin1String kSamples("Samples");
constexpr QLatin1String kData("data");
constexpr QLatin1String kChildren("children");

QJsonObject toSample(const RowNode &row, const QStringList &columns, int id)
{
    QJsonObject sample{{SamplesInput::Members::kId, id}};
    for (qsizetype i = 0; i < columns.size() && i < row.data.size(); ++i) {
        const QVariant &cell = row.data.at(i);
        const QString &column = columns.at(i);
        if (column.isEmpty() || column == SamplesInput::Members::kId || cell.isNull())
            continue;
        // Cells of the usual columns are texts, whatever a table made of them.
        const bool isText = SamplesInput::CustomColumns::isReservedName(column);
        sample.insert(column, isText ? QJsonValue(cell.toString()) : QJsonValue::fromVariant(cell));
    }
    return sample;
}

} // namespace

bool isTree(const QJsonObject &samplesTable)
{
    return !samplesTable.contains(kSamples) &&
           (samplesTable.contains(kData) || samplesTable.contains(kChildren));
}

Result<QJsonArray> toSamples(const QJsonObject &samplesTable)
{
    RowNode root;
    if (!rn::fromObject(samplesTable, &root)) {
        return Error(ErrorCode::InvalidContent,
                     QCoreApplication::translate("SamplesInput", "The samples are no table of rows."));
    }
    const QStringList columns = root.getRootDataAsStringList();
    QJsonArray samples;
    for (int i = 0; i < root.getChildListSize(); ++i)
        samples.append(toSample(*root.getChild(i), columns, i + 1));
    return samples;
}

} // namespace orv::SampleRows
