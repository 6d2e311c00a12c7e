#pragma once

#include <orv/table_model/TableColumn.h>
#include <orv/widgets/ChoiceBox.h>

#include <QLineEdit>

#include <functional>
#include <optional>

namespace orv {

/// Why a cell may not hold a kept text, or an empty text.
using CellCheck = std::function<QString(QStringView kept)>;

/// The text of one cell while it is typed. What can't be valid isn't accepted; what isn't valid yet has a
/// sign and says why.
class CellLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    CellLineEdit(const TableColumn &column, NumberText::DecimalSign sign, CellCheck problemOf,
                 QWidget *parent);

    [[nodiscard]] QString problem() const { return m_problem; }
    /// After other cells have changed.
    void check();
    /// Finds a text elsewhere; nothing leaves the one that is there.
    using Choose = std::function<std::optional<QString>(QWidget *parent, const QString &now)>;
    /// A button inside the line that asks for a text.
    void addChooser(const QString &text, Choose choose);

Q_SIGNALS:
    void resized();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void tell();
    void takeChosen(const Choose &choose);
    [[nodiscard]] int signWidth() const;

    TableColumn m_column;
    NumberText::DecimalSign m_sign;
    CellCheck m_problemOf;
    QString m_problem;
    int m_chooserWidth = 0;
};

/// One of a column's choices.
class CellChoiceBox : public ChoiceBox
{
    Q_OBJECT

public:
    CellChoiceBox(const TableColumn &column, QWidget *parent);

    [[nodiscard]] QString text() const;
    void setText(const QString &text);
};

/// The editor for a cell of this column.
[[nodiscard]] QWidget *createCellEditor(const TableColumn &column, NumberText::DecimalSign sign,
                                        const CellCheck &problemOf, QWidget *parent);

/// Whether the text of such a cell runs from left to right in every language: numbers, paths, sequences.
[[nodiscard]] bool runsLeftToRight(TableColumnKind kind);

} // namespace orv
