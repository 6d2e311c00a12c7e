#include "orv/table_model/TableRowRule.h"

#include <QCoreApplication>

#include <algorithm>

namespace orv::TableRules {

namespace {

struct TableRulesTr
{
    Q_DECLARE_TR_FUNCTIONS(TableRules)
};

int placeOf(const QList<TableColumn> &columns, const QString &name)
{
    const auto found = std::find_if(columns.cbegin(), columns.cend(),
                                    [&](const TableColumn &column) { return column.name == name; });
    Q_ASSERT(found != columns.cend());
    return int(found - columns.cbegin());
}

} // namespace

TableRowRule inOrder(const QList<TableColumn> &columns, const QString &lower, const QString &upper,
                     Bounds bounds)
{
    const int low = placeOf(columns, lower);
    const int high = placeOf(columns, upper);
    const bool mustDiffer = bounds == Bounds::MustDiffer;
    const QString atLow = (mustDiffer ? TableRulesTr::tr("Must lie below \"%1\".")
                                      : TableRulesTr::tr("Must not lie above \"%1\"."))
                              .arg(columns[high].title);
    const QString atHigh = (mustDiffer ? TableRulesTr::tr("Must lie above \"%1\".")
                                       : TableRulesTr::tr("Must not lie below \"%1\"."))
                               .arg(columns[low].title);
    return [=](const QList<QStringView> &texts) -> QList<TableRowProblem> {
        const std::optional<double> from = NumberText::value(texts[low]);
        const std::optional<double> to = NumberText::value(texts[high]);
        const bool isInOrder = !from || !to || *from < *to || (!mustDiffer && *from == *to);
        return isInOrder ? QList<TableRowProblem>() : QList<TableRowProblem>{{low, atLow}, {high, atHigh}};
    };
}

TableRowRule anyGiven(const QList<TableColumn> &columns, const QStringList &names)
{
    QList<int> places;
    QStringList titles;
    for (const QString &name : names) {
        places.append(placeOf(columns, name));
        titles.append(columns[places.constLast()].title);
    }
    const QString reason = TableRulesTr::tr("One of these must be given: %1.").arg(titles.join(u", "));
    return [=](const QList<QStringView> &texts) -> QList<TableRowProblem> {
        const bool isAnyGiven =
            std::any_of(places.cbegin(), places.cend(), [&](int place) { return !texts[place].isEmpty(); });
        return isAnyGiven ? QList<TableRowProblem>() : QList<TableRowProblem>{{places.constFirst(), reason}};
    };
}

} // namespace orv::TableRules
