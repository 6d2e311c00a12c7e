#pragma once

#include <orv/table_model/TableColumn.h>

#include <QStringList>
#include <QWidget>

namespace orv {

class CellChoiceBox;
class CellLineEdit;

/// A number and, where there are several, its unit. It keeps the digits that were set or typed; what can't be
/// valid isn't accepted, what isn't valid yet has a mark.
class UnitField : public QWidget
{
    Q_OBJECT

public:
    /// \a column tells title, unit, limits and explanation; \a units are those to choose from.
    UnitField(const TableColumn &column, const QStringList &units, QWidget *parent = nullptr);

    /// In the kept form.
    [[nodiscard]] QString text() const;
    [[nodiscard]] std::optional<double> value() const;
    [[nodiscard]] QString unit() const;
    [[nodiscard]] QString problem() const;
    void set(const QString &kept, const QString &unit = {});
    void setTitle(const QString &title);

Q_SIGNALS:
    void edited();

private:
    /// The line itself tells of a problem in place of what it is for.
    void explain();

    TableColumn m_column;
    CellLineEdit *m_line = nullptr;
    CellChoiceBox *m_unit = nullptr;
};

} // namespace orv
