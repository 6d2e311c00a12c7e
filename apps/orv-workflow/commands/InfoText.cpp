#include "InfoText.h"

#include "../Console.h"

#include <orv/propertyeditor/workflow/WorkflowSummary.h>

#include <QJsonArray>
#include <QVersionNumber>

#include <array>

namespace orv::cli {

namespace {

struct StateRow
{
    const char *name;
    const char *words;
    Style style;
};

// By the number of the state.
constexpr std::array kStates = {
    StateRow{"UpToDate", "up to date", Style::Good},
    StateRow{"NeedsUpgrade", "needs an upgrade", Style::Caution},
    StateRow{"NotSupported", "not supported", Style::Bad},
};

const StateRow &rowOf(WflwMetaData::WflwState state)
{
    return kStates.at(size_t(state));
}

QJsonValue countToJson(const std::optional<qsizetype> &count)
{
    return count ? QJsonValue(*count) : QJsonValue(QJsonValue::Null);
}

QJsonObject cellToJson(const WorkflowSummary::Cell &cell)
{
    return {{QStringLiteral("type"), cell.type},
            {QStringLiteral("name"), cell.name},
            {QStringLiteral("title"), cell.title},
            {QStringLiteral("properties"), countToJson(cell.properties)},
            {QStringLiteral("rows"), countToJson(cell.rows)}};
}

QJsonObject tabToJson(const WorkflowSummary::Tab &tab)
{
    QJsonArray columns;
    for (const WorkflowSummary::Column &column : tab.columns) {
        QJsonArray cells;
        for (const WorkflowSummary::Cell &cell : column.cells)
            cells.append(cellToJson(cell));
        columns.append(QJsonObject{{QStringLiteral("name"), column.name},
                                   {QStringLiteral("type"), column.type},
                                   {QStringLiteral("cells"), cells}});
    }
    return {{QStringLiteral("name"), tab.name}, {QStringLiteral("columns"), columns}};
}

QString counted(qsizetype count, const QString &one, const QString &many)
{
    return QStringLiteral("%1 %2").arg(QString::number(count), count == 1 ? one : many);
}

QString cellContents(const WorkflowSummary::Cell &cell)
{
    if (cell.properties)
        return counted(*cell.properties, QStringLiteral("setting"), QStringLiteral("settings"));
    if (cell.rows)
        return counted(*cell.rows, QStringLiteral("row"), QStringLiteral("rows"));
    return styled(QStringLiteral("not understood"), Style::Faint);
}

/// Names for a line: a workflow can have thousands of samples.
QString shortList(const QStringList &names)
{
    constexpr qsizetype shown = 4;
    if (names.size() <= shown + 1)
        return names.join(QLatin1String(", "));
    return QStringLiteral("%1, ... %2").arg(names.mid(0, shown).join(QLatin1String(", ")), names.last());
}

QString fact(const QString &label, const QString &value)
{
    return value.isEmpty() ? QString() : QStringLiteral("  %1%2\n").arg(label.leftJustified(13), value);
}

struct Widths
{
    qsizetype column = 0;
    qsizetype type = 0;
};

Widths widthsOf(const WorkflowSummary &summary)
{
    Widths widths;
    for (const WorkflowSummary::Tab &tab : summary.tabs) {
        for (const WorkflowSummary::Column &column : tab.columns) {
            widths.column = std::max(widths.column, column.name.size());
            for (const WorkflowSummary::Cell &cell : column.cells)
                widths.type = std::max(widths.type, cell.type.size());
        }
    }
    return widths;
}

QString tabToText(const WorkflowSummary::Tab &tab, const Widths &widths)
{
    const QString tabName =
        tab.name.isEmpty() ? QStringLiteral("(tab without a name)") : withoutControls(tab.name);
    QString text = QStringLiteral("  %1\n").arg(styled(tabName, Style::Heading));
    for (const WorkflowSummary::Column &column : tab.columns) {
        QString name = withoutControls(column.name);
        for (const WorkflowSummary::Cell &cell : column.cells) {
            text += QStringLiteral("    %1  %2  %3\n")
                        .arg(name.leftJustified(widths.column),
                             withoutControls(cell.type).leftJustified(widths.type), cellContents(cell));
            name.clear();
        }
        if (column.cells.isEmpty())
            text += QStringLiteral("    %1\n").arg(name);
    }
    return text;
}

} // namespace

QJsonObject summaryToJson(const WorkflowSummary &summary)
{
    QJsonArray tabs;
    for (const WorkflowSummary::Tab &tab : summary.tabs)
        tabs.append(tabToJson(tab));
    return {{QStringLiteral("version"), summary.version},
            {QStringLiteral("state"), QLatin1String(rowOf(summary.state).name)},
            {QStringLiteral("newer"), summary.isNewer},
            {QStringLiteral("messages"), QJsonArray::fromStringList(summary.messages)},
            {QStringLiteral("name"), summary.name},
            {QStringLiteral("description"), summary.description},
            {QStringLiteral("icon"), summary.iconName},
            {QStringLiteral("workflowType"), int(summary.workflowType)},
            {QStringLiteral("contentMode"), summary.contentMode},
            {QStringLiteral("documents"), QJsonArray::fromStringList(summary.documents)},
            {QStringLiteral("samples"), QJsonArray::fromStringList(summary.samples)},
            {QStringLiteral("tabs"), tabs}};
}

QJsonObject emptySummaryJson()
{
    QJsonObject json = summaryToJson({});
    for (QLatin1String key : {QLatin1String("version"), QLatin1String("state"), QLatin1String("newer"),
                              QLatin1String("name"), QLatin1String("description"), QLatin1String("icon"),
                              QLatin1String("workflowType"), QLatin1String("contentMode")})
        json.insert(key, QJsonValue::Null);
    return json;
}

QString stateInWords(const WorkflowSummary &summary)
{
    QString state = QLatin1String(rowOf(summary.state).words);
    if (!summary.isNewer)
        return state;
    const QString newer =
        QStringLiteral("newer than this program (%1)").arg(WflwMetaData::currentWorkflowVersion().toString());
    return summary.state == WflwMetaData::WflwState::NotSupported ? state + QLatin1String(", ") + newer
                                                                  : newer;
}

QString summaryToText(const QString &file, const WorkflowSummary &summary, const QString &fault)
{
    QString text = styled(withoutControls(file), Style::Heading) + QLatin1Char('\n');
    text +=
        fact(QStringLiteral("Fault"), fault.isEmpty() ? fault : styled(withoutControls(fault), Style::Bad));
    text += fact(QStringLiteral("Name"), withoutControls(summary.name));
    text += fact(QStringLiteral("Description"), withoutControls(summary.description.simplified()));
    const Style style = summary.isNewer ? Style::Bad : rowOf(summary.state).style;
    text +=
        fact(QStringLiteral("Version"), QStringLiteral("%1, %2").arg(withoutControls(summary.version),
                                                                     styled(stateInWords(summary), style)));
    for (const QString &message : summary.messages)
        text += fact(QString(), withoutControls(message));
    text += fact(QStringLiteral("Type"), workflowTypeToString(summary.workflowType));
    text +=
        fact(QStringLiteral("Made for"), summary.contentMode == 0   ? QStringLiteral("desktop")
                                         : summary.contentMode == 1 ? QStringLiteral("Talvane server")
                                                                    : QString::number(summary.contentMode));
    text += fact(QStringLiteral("Documents"), summary.documents.join(QLatin1String(", ")));
    if (!summary.samples.isEmpty()) {
        text += fact(QStringLiteral("Samples"), QStringLiteral("%1: %2")
                                                    .arg(summary.samples.size())
                                                    .arg(withoutControls(shortList(summary.samples))));
    }
    const Widths widths = widthsOf(summary);
    for (const WorkflowSummary::Tab &tab : summary.tabs)
        text += tabToText(tab, widths);
    return text;
}

} // namespace orv::cli
