#include "TablePage.h"

#include <orv/table_model/TableExport.h>
#include <orv/widgets/TableEditor.h>

namespace orv::TablePage {

TableEditor *editorOf(const std::shared_ptr<TableSheet> &sheet, const QString &title, const QString &kind,
                      const TableModel::Notes &notes)
{
    auto *const editor = new TableEditor(sheet.get());
    editor->setTitle(title);
    editor->view()->tableModel()->setNotes(notes);
    editor->view()->fitColumns();
    editor->setKind(kind);
    QObject::connect(editor, &QObject::destroyed, [sheet] {});
    return editor;
}

QString textOf(const TableEditor *editor)
{
    if (!editor)
        return {};
    const TableView *const view = editor->view();
    const QByteArray rows =
        TableExport::text(*view->tableModel(), view->shownColumns(), TableExport::Separator::Tabulator);
    return view->accessibleName() + u'\n' + QString::fromUtf8(rows);
}

void tellAfterEvents(const TableSheet &sheet, QObject *context, const std::function<void()> &tell)
{
    const auto isTelling = std::make_shared<bool>(false);
    QObject::connect(sheet.history(), &TableHistory::indexChanged, context, [=] {
        if (std::exchange(*isTelling, true))
            return;
        QMetaObject::invokeMethod(
            context,
            [=] {
                *isTelling = false;
                tell();
            },
            Qt::QueuedConnection);
    });
}

void orderFocus(const QWidget &root, const QList<const QWidget *> &parts)
{
    QList<QList<QWidget *>> reached(parts.size());
    for (QWidget *control = root.nextInFocusChain(); control != &root;
         control = control->nextInFocusChain()) {
        const bool isReached = control->focusPolicy() != Qt::NoFocus && !control->focusProxy();
        for (qsizetype part = 0; isReached && part < parts.size(); ++part) {
            if (parts[part] && parts[part]->isAncestorOf(control))
                reached[part].append(control);
        }
    }
    QWidget *last = nullptr;
    for (const QList<QWidget *> &controls : std::as_const(reached)) {
        for (QWidget *control : controls) {
            if (last)
                QWidget::setTabOrder(last, control);
            last = control;
        }
    }
}

} // namespace orv::TablePage
