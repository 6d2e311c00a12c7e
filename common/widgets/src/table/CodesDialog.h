#pragma once

#include <orv/table_model/TableColumn.h>

#include <QDialog>

#include <optional>

QT_FORWARD_DECLARE_CLASS(QListView)
QT_FORWARD_DECLARE_CLASS(QSortFilterProxyModel)

namespace orv {

class CheckList;

/// Asks which of several things a cell is to name: by their titles, in a list that can be searched.
class CodesDialog : public QDialog
{
    Q_OBJECT

public:
    /// Codes of \a now that name nothing are lines, too, so that they can be seen and left out.
    CodesDialog(const QString &title, const TableCodes &codes, const QString &now, QWidget *parent);

    [[nodiscard]] QString text() const;

    /// Nothing when somebody changed their mind.
    [[nodiscard]] static std::optional<QString> ask(const QString &title, const TableCodes &codes,
                                                    const QString &now, QWidget *parent);

private:
    void build(const QString &title);

    TableCodes m_codes;
    CheckList *m_lines = nullptr;
};

} // namespace orv
