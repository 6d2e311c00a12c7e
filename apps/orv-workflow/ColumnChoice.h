#pragma once

#include "Arguments.h"
#include "LoadedWorkflow.h"

#include <orv/propertyeditor/content/KeyValueItem.h>

#include <QSet>

namespace orv::cli {

/// A cell of settings and the column in which it lies.
struct ChosenCell
{
    QString column;
    const PropertyEditor::KeyValueItem *item = nullptr; ///< owned by the workflow
};

/// The options that choose one of several cells of a kind; without them all are meant.
class ColumnChoice
{
public:
    void declare(Arguments &arguments);

    /// The chosen cells of these types, in tree order. Wrong usage for a place that there isn't, and a
    /// negative answer where the workflow or the place holds no such cell.
    [[nodiscard]] Outcome<QList<ChosenCell>> cells(const LoadedWorkflow &workflow,
                                                   const QSet<BaseItemType> &types) const;

private:
    QString m_tab;
    QString m_column;
    int m_row = 0;
};

} // namespace orv::cli
