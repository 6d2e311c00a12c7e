#include "TakeOverText.h"

#include "ComparisonModel.h"
#include "panels/ShortText.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>

namespace orv {

namespace {

/// More would be read by nobody; the tree shows all of them.
constexpr qsizetype kMostRemovalsTold = 5;
constexpr qsizetype kLongestRemoval = 120;

struct TakeOverTextTr
{
    Q_DECLARE_TR_FUNCTIONS(TakeOverText)
};

QString removalText(const ComparisonModel &model, const QModelIndex &row)
{
    QString place = ShortText::line(model.placeText(row), kLongestRemoval);
    switch (model.node(row).kind) {
    case ComparisonNode::Kind::Tab:
        return TakeOverTextTr::tr("tab %1").arg(place);
    case ComparisonNode::Kind::Column:
        return TakeOverTextTr::tr("column %1").arg(place);
    case ComparisonNode::Kind::Setting:
        return TakeOverTextTr::tr("setting %1").arg(place);
    case ComparisonNode::Kind::Root:
    case ComparisonNode::Kind::Workflow:
    case ComparisonNode::Kind::OwnProperty:
    case ComparisonNode::Kind::Part:
        break;
    }
    return place;
}

/// Empty where nothing is removed.
QString removalTexts(const ComparisonModel &model)
{
    const QList<QModelIndex> rows = model.checkedRemovals();
    QStringList told;
    for (const QModelIndex &row : rows.first(std::min(rows.size(), kMostRemovalsTold)))
        told.append(removalText(model, row));
    const qsizetype more = rows.size() - told.size();
    if (more > 0)
        told.append(TakeOverTextTr::tr("%1 more").arg(QLocale().toString(more)));
    return told.join(QStringLiteral(", "));
}

} // namespace

QString TakeOverText::ofChecked(const ComparisonModel &model)
{
    const qsizetype count = model.checkedKeys().size();
    if (count == 0)
        return {};
    const QString checked =
        count == 1 ? TakeOverTextTr::tr("1 difference is checked.")
                   : TakeOverTextTr::tr("%1 differences are checked.").arg(QLocale().toString(count));
    const QString removed = removalTexts(model);
    return removed.isEmpty()
               ? checked
               : TakeOverTextTr::tr("%1 Taking over removes from this workflow: %2").arg(checked, removed);
}

QString TakeOverText::ofStep(const ComparisonModel &model, const QString &otherName)
{
    const qsizetype count = model.checkedKeys().size();
    if (model.onlySettingsAreChecked()) {
        return count == 1 ? TakeOverTextTr::tr("Take over 1 setting from %1").arg(otherName)
                          : TakeOverTextTr::tr("Take over %1 settings from %2").arg(count).arg(otherName);
    }
    return count == 1 ? TakeOverTextTr::tr("Take over 1 difference from %1").arg(otherName)
                      : TakeOverTextTr::tr("Take over %1 differences from %2").arg(count).arg(otherName);
}

QString TakeOverText::ofOutcome(const ComparisonModel &model, const QString &otherName)
{
    const qsizetype count = model.checkedKeys().size();
    const QString taken = count == 1 ? TakeOverTextTr::tr("1 difference taken over from %1.").arg(otherName)
                                     : TakeOverTextTr::tr("%1 differences taken over from %2.")
                                           .arg(QLocale().toString(count), otherName);
    const QString removed = removalTexts(model);
    return removed.isEmpty() ? taken : TakeOverTextTr::tr("%1 Removed: %2").arg(taken, removed);
}

} // namespace orv
