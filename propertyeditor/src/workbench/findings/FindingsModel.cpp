#include "FindingsModel.h"

#include "FindingSigns.h"
#include "panels/ShortText.h"
#include "state/ChangeText.h"

#include <orv/propertyeditor/PropertiesNames.h>

#include <algorithm>
#include <array>

namespace orv {

using PropertyEditor::LocatedFinding;

namespace {

constexpr qsizetype kMostInCell = 300;
constexpr qsizetype kMostInTip = 4000;

constexpr std::array kFindingTitles = {
    QT_TRANSLATE_NOOP("orv::FindingsModel", "Severity"),
    QT_TRANSLATE_NOOP("orv::FindingsModel", "Finding"),
    QT_TRANSLATE_NOOP("orv::FindingsModel", "Where"),
    QT_TRANSLATE_NOOP("orv::FindingsModel", "What to do"),
    QT_TRANSLATE_NOOP("orv::FindingsModel", "Rule"),
};

/// "Samples › Sample Input › S2 › Precursor mass tolerance", as far as it is known.
QString placeOf(const LocatedFinding &finding)
{
    QStringList steps{finding.tab, finding.column, finding.sample};
    if (!finding.property.isEmpty()) {
        steps.append(
            PropertiesNames::displayNameForType(PropertiesNames::findPropertyForName(finding.property)));
    }
    return ChangeText::joined(steps);
}

} // namespace

void FindingsModel::show(const QList<LocatedFinding> &findings)
{
    beginResetModel();
    m_findings = findings;
    endResetModel();
}

int FindingsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_findings.size());
}

int FindingsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString FindingsModel::text(const LocatedFinding &finding, int column)
{
    switch (Column(column)) {
    case Severity:
        return FindingSigns::word(finding.level);
    case Message:
        return finding.message;
    case Place:
        return placeOf(finding);
    case Hint:
        return finding.hint;
    case Rule:
        return finding.rule;
    case ColumnCount:
        break;
    }
    return {};
}

QVariant FindingsModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const LocatedFinding &finding = m_findings.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return ShortText::line(text(finding, index.column()), kMostInCell);
    case Qt::ToolTipRole:
        return QStringLiteral("<p>%1</p>")
            .arg(ShortText::beginning(text(finding, index.column()), kMostInTip)
                     .toHtmlEscaped()
                     .replace(QLatin1Char('\n'), QLatin1String("<br>")));
    case Qt::DecorationRole:
        if (index.column() == Severity)
            return FindingSigns::icon(finding.level);
        return {};
    default:
        return {};
    }
}

QVariant FindingsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isTitle = orientation == Qt::Horizontal && role == Qt::DisplayRole && section >= 0;
    return isTitle && section < ColumnCount ? QVariant(tr(kFindingTitles.at(size_t(section)))) : QVariant();
}

QString FindingsModel::toText(const QList<int> &rows) const
{
    QStringList lines;
    for (const int row : rows) {
        QStringList cells;
        for (int column = 0; column < ColumnCount; ++column)
            cells.append(text(m_findings.at(row), column).simplified());
        lines.append(cells.join(u'\t'));
    }
    return lines.join(u'\n');
}

} // namespace orv
