#pragma once

#include <orv/core/Export.h>
#include <orv/propertyeditor/content/BaseItemType.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace orv {

/// What a person wants to know of a workflow at a glance. Taken from the value form, so that old, foreign
/// and malformed documents have one too. A plain value.
struct ORV_WORKFLOW_EXPORT WorkflowSummary
{
    struct Cell
    {
        QString type; ///< the text in the file, known or not
        QString name;
        QString title;
        std::optional<qsizetype> properties; ///< visible settings of a property cell
        std::optional<qsizetype> rows;       ///< rows of a table cell
    };

    struct Column
    {
        QString name;
        QString type; ///< that of its last cell
        QList<Cell> cells;
    };

    struct Tab
    {
        QString name;
        QList<Column> columns;
    };

    QString version;
    WflwMetaData::WflwState state = WflwMetaData::WflwState::UpToDate;
    bool isNewer = false; ///< in any segment than what this software writes
    QStringList messages; ///< why the document can't be used
    QString name;
    QString description;
    QString iconName;
    WorkflowType workflowType = WorkflowType::Unknown;
    int contentMode = 0;   ///< as stored, known or not
    QStringList documents; ///< types of the columns that yield a result, in tree order, with repeats
    QStringList samples;   ///< names
    QList<Tab> tabs;

    [[nodiscard]] static WorkflowSummary of(const PropertyEditorContent &content);
};

} // namespace orv
