#pragma once

#include "orv/propertyeditor/workbench/SettingIndex.h"

#include <orv/propertyeditor/workflow/WorkflowDifferences.h>

#include <QJsonValue>
#include <QList>
#include <QSet>
#include <QString>

namespace orv {

/// A row of a comparison. Rows without children can be taken over.
struct ComparisonNode
{
    enum class Kind
    {
        Root,
        Workflow, ///< its own properties
        OwnProperty,
        Tab,
        Column,
        Setting,
        Part, ///< of what stands above
    };

    Kind kind = Kind::Root;
    QString key;      ///< the same for the same thing in the next comparison; unique
    QString label;    ///< of a setting its name in files
    QString cellType; ///< of what stands in a cell
    int more = 0;     ///< differences that come along with the one that is told
    WorkflowDifference::Kind change = WorkflowDifference::Kind::Changed;
    QJsonValue left;
    QJsonValue right;
    QStringList columns; ///< of the table in which these are rows
    int tab = -1;        ///< in the left document; -1 for what isn't there
    int column = -1;
    int parent = -1;
    int row = 0;
    QList<int> children;
};

/// What differs between two documents, as rows below the first.
struct ComparisonTree
{
    /// More rows would be read by nobody.
    static constexpr qsizetype kMostRows = 20'000;

    QList<ComparisonNode> nodes{ComparisonNode()};
    QSet<SettingPlace> settings; ///< of the left document that differ
    qsizetype count = 0;         ///< of rows that can be taken over
    qsizetype notShown = 0;      ///< more of them
};

} // namespace orv
