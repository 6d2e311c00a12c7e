#include "orv/table_model/TableClipboard.h"

#include <orv/table_model/TableModel.h>

#include <QCoreApplication>

#include <algorithm>
#include <deque>

namespace orv::TableClipboard {

namespace {

struct TableClipboardTr
{
    Q_DECLARE_TR_FUNCTIONS(TableClipboard)
};

bool endsField(QChar c)
{
    return c == u'\t' || c == u'\n' || c == u'\r';
}

/// Reads one field after the other.
class Scanner
{
public:
    explicit Scanner(Grid &grid)
        : m_grid(grid)
        , m_text(grid.text)
    {}

    void run()
    {
        while (m_at < m_text.size()) {
            m_grid.rowBegins.append(m_grid.fields.size());
            readRow();
        }
    }

private:
    void readRow()
    {
        for (;;) {
            readField();
            if (m_at == m_text.size())
                return;
            const QChar end = m_text[m_at++];
            if (end == u'\t')
                continue;
            if (end == u'\r' && m_at < m_text.size() && m_text[m_at] == u'\n')
                ++m_at;
            return;
        }
    }

    void readField()
    {
        if (m_at < m_text.size() && m_text[m_at] == u'"' && readQuoted())
            return;
        const qsizetype begin = m_at;
        while (m_at < m_text.size() && !endsField(m_text[m_at]))
            ++m_at;
        m_grid.fields.append(m_text.sliced(begin, m_at - begin));
    }

    /// False for a quote that begins no quoted field.
    bool readQuoted()
    {
        qsizetype end = m_text.indexOf(u'"', m_at + 1);
        bool hasPairs = false;
        while (end >= 0 && end + 1 < m_text.size() && m_text[end + 1] == u'"') {
            hasPairs = true;
            end = m_text.indexOf(u'"', end + 2);
        }
        if (end < 0 || (end + 1 < m_text.size() && !endsField(m_text[end + 1])))
            return false;
        const QStringView inside = m_text.sliced(m_at + 1, end - m_at - 1);
        m_at = end + 1;
        if (hasPairs) {
            m_grid.unquoted.append(inside.toString().replace(QStringLiteral("\"\""), QStringLiteral("\"")));
            m_grid.fields.append(m_grid.unquoted.constLast());
        } else {
            m_grid.fields.append(inside);
        }
        return true;
    }

    Grid &m_grid;
    QStringView m_text;
    qsizetype m_at = 0;
};

bool needsQuotes(const QString &field)
{
    return field.startsWith(u'"') || std::any_of(field.cbegin(), field.cend(), endsField);
}

/// Puts the fields of a text into cells.
class Pasting
{
public:
    Pasting(const TableModel &model, const Target &target, Grid grid)
        : m_model(model)
        , m_columns(model.sheet()->columns())
        , m_target(target)
        , m_grid(std::move(grid))
        , m_targets(target.columns)
    {}

    Result<Outcome> run();

private:
    void takeHeader();
    void pasteRow(int row, qsizetype from, int repetitions);
    void pasteField(int row, int column, QStringView typed);
    [[nodiscard]] QStringView kept(const TableColumn &column, QStringView typed);
    [[nodiscard]] qsizetype widest() const;

    const TableModel &m_model;
    const QList<TableColumn> &m_columns;
    const Target &m_target;
    Grid m_grid;
    QList<int> m_targets; ///< by field, -1 for one that goes nowhere
    qsizetype m_firstRow = 0;
    std::deque<QString> m_texts; ///< that had to be made
    QList<TableCellText> m_cells;
    Outcome m_outcome;
};

qsizetype Pasting::widest() const
{
    qsizetype widest = 0;
    for (qsizetype row = m_firstRow; row < m_grid.rowCount(); ++row)
        widest = std::max(widest, m_grid.fieldCount(row));
    return widest;
}

/// A first row in which every field names a column.
void Pasting::takeHeader()
{
    if (m_grid.rowCount() < 2)
        return;
    QList<int> named;
    for (qsizetype at = 0; at < m_grid.fieldCount(0); ++at) {
        const auto column = std::find_if(m_columns.cbegin(), m_columns.cend(), [&](const TableColumn &c) {
            return c.isMeantBy(m_grid.field(0, at));
        });
        const int index = int(column - m_columns.cbegin());
        if (column == m_columns.cend() || named.contains(index))
            return;
        named.append(index);
    }
    m_targets = named;
    m_firstRow = 1;
    m_outcome.hadHeader = true;
}

QStringView Pasting::kept(const TableColumn &column, QStringView typed)
{
    const bool isKeptAsItIs =
        column.kind == TableColumnKind::Text || (column.isNumeric() && NumberText::isCanonical(typed));
    if (isKeptAsItIs)
        return typed;
    QString text = column.kept(typed, m_model.decimalSign());
    if (text == typed)
        return typed;
    return m_texts.emplace_back(std::move(text));
}

void Pasting::pasteField(int row, int column, QStringView typed)
{
    if (!m_columns[column].isEditable()) {
        ++m_outcome.readOnlyCells;
    } else {
        m_cells.append({row, column, kept(m_columns[column], typed)});
    }
}

void Pasting::pasteRow(int row, qsizetype from, int repetitions)
{
    const int shownRow = m_target.row + row;
    const int beyond = shownRow - m_model.rowCount();
    const int sheetRow = beyond < 0 ? m_model.sheetRow(shownRow) : m_model.sheet()->rowCount() + beyond;
    m_outcome.newRows = std::max(m_outcome.newRows, beyond + 1);
    const qsizetype fields = m_grid.fieldCount(from);
    for (qsizetype at = 0; at < fields * repetitions && at < m_targets.size(); ++at)
        pasteField(sheetRow, m_targets[at], m_grid.field(from, at % fields));
}

Result<Outcome> Pasting::run()
{
    takeHeader();
    const auto rows = int(m_grid.rowCount() - m_firstRow);
    const auto width = int(widest());
    if (rows <= 0 || width == 0)
        return m_outcome;
    const bool fitsOften = !m_outcome.hadHeader && m_target.selected.height() % rows == 0 &&
                           m_target.selected.width() % width == 0 && !m_target.selected.isEmpty();
    const int down = fitsOften ? m_target.selected.height() / rows : 1;
    const int across = fitsOften ? m_target.selected.width() / width : 1;
    if (Error error = m_model.sheet()->checkRoom(m_grid.text.size() * down * across); error.hasError())
        return error.ecatch();
    m_cells.reserve(m_grid.fields.size() * down * across);
    m_outcome.rows = rows * down;
    m_outcome.columnsLeftOut = std::max(0, width - int(m_targets.size()));
    for (int row = 0; row < m_outcome.rows; ++row)
        pasteRow(row, m_firstRow + row % rows, across);
    Error error = m_model.sheet()->setCells(m_cells, TableClipboardTr::tr("paste"));
    if (error.hasError())
        return error.ecatch();
    return m_outcome;
}

} // namespace

qsizetype Grid::fieldCount(qsizetype row) const
{
    const qsizetype end = row + 1 < rowBegins.size() ? rowBegins[row + 1] : fields.size();
    return end - rowBegins[row];
}

QList<QStringList> Grid::toRows() const
{
    QList<QStringList> rows;
    for (qsizetype row = 0; row < rowCount(); ++row) {
        QStringList texts;
        for (qsizetype at = 0; at < fieldCount(row); ++at)
            texts.append(field(row, at).toString());
        rows.append(texts);
    }
    return rows;
}

Grid parse(const QString &text)
{
    Grid grid;
    grid.text = text;
    Scanner(grid).run();
    return grid;
}

QString format(const QList<QStringList> &rows)
{
    QString text;
    for (const QStringList &row : rows) {
        if (&row != &rows.constFirst())
            text += u'\n';
        for (qsizetype at = 0; at < row.size(); ++at) {
            if (at > 0)
                text += u'\t';
            QString field = row[at];
            text += needsQuotes(field)
                        ? u'"' + field.replace(QStringLiteral("\""), QStringLiteral("\"\"")) + u'"'
                        : field;
        }
    }
    // Behind the last end of a line there is no row.
    const bool wouldBeNoRow =
        !rows.isEmpty() && rows.constLast().size() == 1 && rows.constLast()[0].isEmpty();
    return wouldBeNoRow ? text + u'\n' : text;
}

Result<Outcome> paste(const TableModel &model, const Target &target, const QString &text)
{
    return Pasting(model, target, parse(text)).run();
}

} // namespace orv::TableClipboard
