#pragma once

#include <orv/propertyeditor/validators/WorkflowCheck.h>

#include <QAbstractTableModel>
#include <QList>

namespace orv {

/// Findings as rows.
class FindingsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Severity,
        Message,
        Place,
        Hint,
        Rule,
        ColumnCount,
    };

    using QAbstractTableModel::QAbstractTableModel;

    void show(const QList<PropertyEditor::LocatedFinding> &findings);
    [[nodiscard]] const QList<PropertyEditor::LocatedFinding> &findings() const { return m_findings; }

    /// The whole texts of rows, tabulators between the columns; one line each.
    [[nodiscard]] QString toText(const QList<int> &rows) const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

private:
    [[nodiscard]] static QString text(const PropertyEditor::LocatedFinding &finding, int column);

    QList<PropertyEditor::LocatedFinding> m_findings;
};

} // namespace orv
