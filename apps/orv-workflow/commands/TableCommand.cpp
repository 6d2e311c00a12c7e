#include "../CellArgument.h"
#include "../Console.h"
#include "Command.h"

#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/workflow/CellTables.h>
#include <orv/table/CsvWriter.h>
#include <orv/table/RowNode.h>

#include <QJsonDocument>

namespace orv::cli {

namespace {

QJsonArray toJson(const VariantItems &items)
{
    QJsonArray array;
    for (const QVariant &item : items)
        array.append(QJsonValue::fromVariant(item));
    return array;
}

QString textOf(const QVariant &value)
{
    const QJsonValue json = QJsonValue::fromVariant(value);
    if (json.isObject())
        return QString::fromUtf8(QJsonDocument(json.toObject()).toJson(QJsonDocument::Compact));
    if (json.isArray())
        return QString::fromUtf8(QJsonDocument(json.toArray()).toJson(QJsonDocument::Compact));
    return value.toString();
}

/// Header and rows as texts; rows that are shorter than the header are filled up.
QList<QStringList> textsOf(const RowNode &table)
{
    const qsizetype columns = table.data.size();
    QList<QStringList> rows{table.getRowDataToStringList()};
    rows.reserve(table.getChildListSize() + 1);
    for (int i = 0; i < table.getChildListSize(); ++i) {
        QStringList row;
        row.reserve(columns);
        for (const QVariant &value : table.getChild(i)->data)
            row.append(textOf(value));
        while (row.size() < columns)
            row.append(QString());
        rows.append(row);
    }
    return rows;
}

QString inColumns(const QList<QStringList> &rows)
{
    QList<int> widths;
    for (const QStringList &row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (qsizetype i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths.at(i), int(row.at(i).size()));
    }
    QString text;
    for (const QStringList &row : rows) {
        QString line;
        for (qsizetype i = 0; i < row.size(); ++i)
            line += withoutControls(row.at(i)).leftJustified(widths.at(i) + 2);
        // Not at the front: an empty cell keeps its column.
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
        text += line + QLatin1Char('\n');
    }
    return text;
}

QByteArray toCsv(const QList<QStringList> &rows)
{
    QByteArray bytes;
    for (const QStringList &row : rows)
        bytes += CsvWriter::row(row);
    return bytes;
}

class TableCommand : public Command
{
public:
    void declare(Arguments &arguments) override
    {
        m_cell.declare(arguments);
        arguments.option("--table", &m_table, "One of several tables in the cell, by its name");
        arguments.flag("--csv", &m_csv,
                       "Write comma-separated text (RFC 4180), of the first table or the one named");
    }

    int run(const GlobalOptions &options) override
    {
        const Outcome<QList<CellTable>> tables = chosenTables();
        if (tables.hasFailed())
            return fail(tables.failure(), options);
        if (m_csv)
            return printBytes(toCsv(textsOf(tables->constFirst().table)));
        return options.json ? printJson(json(*tables)) : printText(text(*tables));
    }

private:
    /// At least one.
    [[nodiscard]] Outcome<QList<CellTable>> chosenTables() const
    {
        const Outcome<FoundCell> found = m_cell.find();
        if (found.hasFailed())
            return found.failure();
        const Result<QList<CellTable>> tables = cellTables(found->cell);
        if (tables.hasError())
            return failureFrom(tables.error(), BadInput);
        if (tables->isEmpty()) {
            return Failure{Negative, 0,
                           QStringLiteral("The cell of type \"%1\" holds no table.")
                               .arg(found->cell.value(PropertyEditorStringConstants::TYPE_KEY).toString())};
        }
        if (m_table.isEmpty())
            return *tables;
        return named(*tables);
    }

    [[nodiscard]] Outcome<QList<CellTable>> named(const QList<CellTable> &tables) const
    {
        QStringList names;
        for (const CellTable &table : tables) {
            if (table.name == m_table)
                return QList<CellTable>{table};
            names.append(table.name);
        }
        return Failure{WrongUsage, 0,
                       QStringLiteral("The cell has no table \"%1\". There is: %2.")
                           .arg(m_table, names.join(QLatin1String(", ")))};
    }

    int fail(const Failure &failure, const GlobalOptions &options) const
    {
        return printFailedCall(m_cell.file(), failure, document({}, {}, {}, orv::cli::toJson(failure)),
                               options);
    }

    static QJsonObject document(const QJsonArray &columns, const QJsonArray &rows, const QJsonArray &tables,
                                const QJsonValue &error)
    {
        return {{QStringLiteral("columns"), columns},
                {QStringLiteral("rows"), rows},
                {QStringLiteral("tables"), tables},
                {QStringLiteral("error"), error}};
    }

    static QJsonArray rowsOf(const RowNode &table)
    {
        QJsonArray rows;
        for (int i = 0; i < table.getChildListSize(); ++i)
            rows.append(toJson(table.getChild(i)->data));
        return rows;
    }

    /// The first table stands at the top level, where callers look for the only one.
    static QJsonObject json(const QList<CellTable> &tables)
    {
        QJsonArray all;
        for (const CellTable &table : tables) {
            all.append(QJsonObject{{QStringLiteral("name"), table.name},
                                   {QStringLiteral("columns"), toJson(table.table.data)},
                                   {QStringLiteral("rows"), rowsOf(table.table)}});
        }
        const QJsonObject first = all.first().toObject();
        return document(first.value(QLatin1String("columns")).toArray(),
                        first.value(QLatin1String("rows")).toArray(), all, {});
    }

    static QString text(const QList<CellTable> &tables)
    {
        QStringList parts;
        for (const CellTable &table : tables) {
            const QString heading =
                tables.size() == 1 ? QString()
                                   : styled(withoutControls(table.name), Style::Heading) + QLatin1Char('\n');
            parts.append(heading + inColumns(textsOf(table.table)));
        }
        return parts.join(QLatin1Char('\n'));
    }

    CellArgument m_cell;
    QString m_table;
    bool m_csv = false;
};

} // namespace

std::unique_ptr<Command> createTableCommand()
{
    return std::make_unique<TableCommand>();
}

} // namespace orv::cli
