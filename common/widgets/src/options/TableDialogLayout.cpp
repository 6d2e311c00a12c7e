#include "TableDialogLayout.h"

#include <orv/widgets/TableEditor.h>

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include <limits>

namespace orv {

namespace {

struct TableDialogTr
{
    Q_DECLARE_TR_FUNCTIONS(TableDialog)
};

/// Goes to the first cell that isn't allowed, if there is one.
bool goToProblem(TableView *view)
{
    TableSheet *const sheet = view->sheet();
    sheet->countProblems(std::numeric_limits<int>::max());
    if (sheet->problemCount() == 0)
        return false;
    if (const QModelIndex cell = view->tableModel()->nextProblem({}, view->shownColumns(), 1);
        cell.isValid()) {
        view->goTo(cell);
        Q_EMIT view->said(cell.data(TableModel::ProblemRole).toString());
    } else {
        Q_EMIT view->said(
            TableDialogTr::tr("A cell that is hidden isn't allowed. Remove the filter, and show "
                              "all columns."));
    }
    view->setFocus();
    return true;
}

} // namespace

QDialogButtonBox *layOutTableDialog(QDialog *dialog, TableEditor *editor, const std::function<Error()> &check)
{
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    for (QAbstractButton *const button : buttons->buttons()) {
        if (auto *const push = qobject_cast<QPushButton *>(button))
            push->setAutoDefault(false);
    }
    auto *const layout = new QVBoxLayout(dialog);
    layout->addWidget(editor, 1);
    layout->addWidget(buttons);
    TableView *const view = editor->view();
    view->horizontalHeader()->setStretchLastSection(true);
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, [dialog, view, check] {
        // A cell that is being edited gives its text when it loses the focus.
        view->setFocus();
        if (goToProblem(view))
            return;
        const Error error = check ? check() : Error::NoError;
        if (error.hasError())
            Q_EMIT view->said(error.errorMessage() + u' ' + error.details().join(u' '));
        else
            dialog->accept();
    });
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    dialog->resize(dialog->fontMetrics().averageCharWidth() * 90, dialog->fontMetrics().height() * 28);
    view->setFocus();
    return buttons;
}

} // namespace orv
