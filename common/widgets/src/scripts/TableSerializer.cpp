#include "orv/widgets/TableSerializer.h"

#include <orv/table/CsvReader.h>
#include <orv/table/CsvWriter.h>
#include <orv/table_model/NumberText.h>
#include <orv/table_model/TableClipboard.h>

#include <QBuffer>
#include <QCoreApplication>

namespace orv::TableSerializer {

namespace {

struct TableSerializerTr
{
    Q_DECLARE_TR_FUNCTIONS(TableSerializer)
};

constexpr QChar kIsText = u'\'';

QString cellText(const QVariant &cell)
{
    if (cell.typeId() == QMetaType::Double)
        return NumberText::fromDouble(cell.toDouble());
    const QString text = cell.toString();
    const bool isText = cell.typeId() == QMetaType::QString;
    return isText && (NumberText::isCanonical(text) || text.startsWith(kIsText)) ? kIsText + text : text;
}

QVariant cellOfText(const QString &text)
{
    if (text.startsWith(kIsText))
        return text.sliced(1);
    const std::optional<double> number = NumberText::value(text);
    if (!number)
        return text;
    bool isWhole = false;
    const int whole = text.toInt(&isWhole);
    return isWhole ? QVariant(whole) : QVariant(*number);
}

QList<QStringList> rowsOf(const RowNode &table)
{
    if (table.data.isEmpty())
        return {};
    QList<QStringList> rows = {table.getRowDataToStringList()};
    for (int i = 0; i < table.getChildListSize(); ++i) {
        QStringList cells;
        for (qsizetype column = 0; column < table.data.size(); ++column)
            cells.append(cellText(table.getChild(i)->data.value(column)));
        rows.append(cells);
    }
    return rows;
}

QString csvOf(const QList<QStringList> &rows)
{
    QByteArray text;
    for (const QStringList &row : rows)
        text += CsvWriter::row(row);
    return QString::fromUtf8(text);
}

Error invalidRow(qsizetype row)
{
    return {ErrorCode::InvalidContent, TableSerializerTr::tr("Row %1 contains invalid data").arg(row)};
}

} // namespace

QString toUserFriendlyString(const RowNode &table)
{
    return TableClipboard::format(rowsOf(table));
}

QString toString(const RowNode &table)
{
    return csvOf(rowsOf(table));
}

QString toString(const QString &userFriendlyText)
{
    return csvOf(TableClipboard::parse(userFriendlyText).toRows());
}

Result<RowNode> toTable(const QString &text)
{
    QByteArray utf8 = text.toUtf8();
    QBuffer buffer(&utf8);
    if (!buffer.open(QIODevice::ReadOnly))
        return Error(ErrorCode::CannotOpenFile, buffer.errorString());
    CsvReader reader(&buffer);
    RowNode table;
    for (qsizetype row = 0;; ++row) {
        const Result<std::optional<CsvRow>> fields = reader.next();
        if (fields.hasError())
            return invalidRow(row).addDetail(
                (fields.error().errorMessages() + fields.error().details()).join(u' '));
        if (!fields->has_value())
            return table;
        const QStringList &cells = (*fields)->fields;
        if (row == 0) {
            table.addData(cells);
            continue;
        }
        if (cells.size() != table.data.size())
            return invalidRow(row).addDetail(
                TableSerializerTr::tr("It has %1 cells, and there are %2 columns.")
                    .arg(cells.size())
                    .arg(table.data.size()));
        VariantItems items;
        for (const QString &cell : cells)
            items.append(cellOfText(cell));
        table.addNewChild(items);
    }
}

} // namespace orv::TableSerializer
