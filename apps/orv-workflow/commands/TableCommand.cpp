#include "../CellArgument.h"
#include "../Console.h"
#include "Command.h"

#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/table/CsvWriter.h>
#include <orv/table/RowNode.h>

#include <QJsonDocument>

#include <CLI/CLI.hpp>

namespace orv::cli {

namespace {

using namespace PropertyEditorStringConstants;

/// The first table among the properties of a cell.
std::optional<RowNode> tableIn(const QJsonObject &cell)
{
    for (const auto entry : cell.value(PROPERTIES_KEY).toArray()) {
        const QJsonObject value = entry.toObject().value(VALUE_KEY).toObject();
        if (value.value(DATA).isArray() && value.value(CHILDREN).isArray())
            return PropertyEditorJsonUtils::objectToRowNode(value);
    }
    return {};
}

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
    void declare(CLI::App &app) override
    {
        m_cell.declare(app);
        app.add_flag("--csv", m_csv, "Write comma-separated text (RFC 4180)");
    }

    int run(const GlobalOptions &options) override
    {
        const auto found = m_cell.find();
        if (const auto *failure = std::get_if<Failure>(&found))
            return fail(*failure, options);
        const QJsonObject &cell = std::get<FoundCell>(found).cell;
        const std::optional<RowNode> table = tableIn(cell);
        if (!table) {
            return fail({Negative, 0,
                         QStringLiteral("The cell of type \"%1\" holds no table.")
                             .arg(cell.value(TYPE_KEY).toString())},
                        options);
        }
        if (m_csv)
            return printBytes(toCsv(textsOf(*table)));
        return options.json ? printJson(json(*table)) : printText(inColumns(textsOf(*table)));
    }

private:
    int fail(const Failure &failure, const GlobalOptions &options) const
    {
        printFailure(m_cell.file(), failure);
        const int printed = options.json ? printJson(document({}, {}, orv::cli::toJson(failure))) : Done;
        return std::max<int>(failure.exitCode, printed);
    }

    static QJsonObject document(const QJsonArray &columns, const QJsonArray &rows, const QJsonValue &error)
    {
        return {{QStringLiteral("columns"), columns},
                {QStringLiteral("rows"), rows},
                {QStringLiteral("error"), error}};
    }

    static QJsonObject json(const RowNode &table)
    {
        QJsonArray rows;
        for (int i = 0; i < table.getChildListSize(); ++i)
            rows.append(toJson(table.getChild(i)->data));
        return document(toJson(table.data), rows, {});
    }

    CellArgument m_cell;
    bool m_csv = false;
};

} // namespace

std::unique_ptr<Command> createTableCommand()
{
    return std::make_unique<TableCommand>();
}

} // namespace orv::cli
