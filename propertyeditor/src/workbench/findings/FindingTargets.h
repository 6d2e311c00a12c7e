#pragma once

#include <orv/propertyeditor/validators/WorkflowCheck.h>
#include <orv/widgets/TableView.h>

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QPointer>
#include <QWidget>

#include <optional>

namespace orv {

class GridPropertyEditorView;
class PropertyGridWidget;
class WorkflowTabs;

/// What of a window a finding is about. It stays with its column, setting and row wherever these go.
struct FindingTarget
{
    QPointer<QWidget> column; ///< null where the place isn't known, or has gone
    QByteArray setting;       ///< empty for a column as a whole
    QPointer<TableView> table;
    std::optional<quint32> row; ///< its id in the table's sheet

    [[nodiscard]] GridPropertyEditorView *settings() const;
};

/// The columns and rows of a document as they were when it was given to a check, which may take a while.
class FindingTargets
{
public:
    FindingTargets() = default;
    explicit FindingTargets(const WorkflowTabs &tabs);

    [[nodiscard]] QList<FindingTarget> of(const QList<PropertyEditor::LocatedFinding> &findings) const;

private:
    struct Table
    {
        QPointer<TableView> view;
        QList<quint32> ids; ///< by row
    };
    struct Column
    {
        QString tab;
        QString name;
        QPointer<QWidget> widget;
        QList<Table> tables;
    };
    using Tab = QList<Column>;
    /// Rows by the texts of their cells, the first of a text.
    using RowsByText = QHash<QString, quint32>;

    [[nodiscard]] const Column *columnOf(const PropertyEditor::LocatedFinding &finding) const;
    static void findRow(const Column &column, const PropertyEditor::LocatedFinding &finding,
                        QHash<const TableView *, RowsByText> *rows, FindingTarget *target);

    QList<Tab> m_tabs; ///< those with columns, in the order of the document
};

} // namespace orv
