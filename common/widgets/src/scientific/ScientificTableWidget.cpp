#include "orv/widgets/ScientificTableWidget.h"

#include "../LongText.h"

#include <orv/table_model/TableModel.h>
#include <orv/widgets/TableEditor.h>

#include <QAccessible>
#include <QLabel>
#include <QPointer>
#include <QVBoxLayout>

namespace orv {

namespace {

/// What the tab key stops at, in its order.
QList<QWidget *> tabStopsIn(QWidget *container)
{
    QList<QWidget *> stops;
    const auto add = [&](QWidget *widget) {
        if (!widget->focusProxy() && widget->focusPolicy() != Qt::NoFocus)
            stops.append(widget);
    };
    add(container);
    for (QWidget *next = container->nextInFocusChain(); next != container; next = next->nextInFocusChain()) {
        if (container->isAncestorOf(next))
            add(next);
    }
    return stops;
}

} // namespace

class ScientificTableWidget::Private
{
public:
    explicit Private(QList<TableColumn> columns)
        : sheet(std::move(columns))
    {}

    TableSheet sheet;
    TableEditor *editor = nullptr;
    QLabel *header = nullptr;
    QLabel *note = nullptr;
    QVBoxLayout *layout = nullptr;
    int above = 1;
    QWidget *lastAbove = nullptr; ///< the last of them in the tab order, or the heading
    bool isTelling = false;
    bool isEdited = false; ///< by hand, since that was told
};

ScientificTableWidget::ScientificTableWidget(QList<TableColumn> columns, const QString &title,
                                             const QString &kind, QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(std::move(columns)))
{
    d->header = new QLabel;
    d->header->setObjectName(QStringLiteral("header"));
    d->lastAbove = d->header;
    QFont bold = d->header->font();
    bold.setBold(true);
    d->header->setFont(bold);
    d->editor = new TableEditor(&d->sheet);
    d->editor->setKind(kind);
    d->editor->layout()->setContentsMargins({});
    d->note = new QLabel;
    d->note->setObjectName(QStringLiteral("note"));
    d->note->setWordWrap(true);
    d->note->setTextFormat(Qt::PlainText);
    d->note->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    d->note->hide();
    d->layout = new QVBoxLayout(this);
    d->layout->addWidget(d->header);
    d->layout->addWidget(d->editor, 1);
    d->layout->addWidget(d->note);
    setTitle(title);
    setFocusProxy(d->editor);
    connect(&d->sheet, &TableSheet::loaded, this, &ScientificTableWidget::tellChanged);
    connect(&d->sheet, &TableSheet::rowsReordered, this, &ScientificTableWidget::tellEdited);
    connect(&d->sheet, &TableSheet::cellsChanged, this, &ScientificTableWidget::tellEdited);
    connect(&d->sheet, &TableSheet::rowsInserted, this, &ScientificTableWidget::tellEdited);
    connect(&d->sheet, &TableSheet::rowsRemoved, this, &ScientificTableWidget::tellEdited);
}

ScientificTableWidget::~ScientificTableWidget()
{
    d->sheet.disconnect(this);
    // It reads the sheet, which goes with d.
    delete d->editor;
}

TableSheet *ScientificTableWidget::sheet() const
{
    return &d->sheet;
}

TableEditor *ScientificTableWidget::editor() const
{
    return d->editor;
}

TableView *ScientificTableWidget::view() const
{
    return d->editor->view();
}

TableModel *ScientificTableWidget::model() const
{
    return d->editor->view()->tableModel();
}

void ScientificTableWidget::setTitle(const QString &title)
{
    d->header->setText(title);
    d->editor->setTitle(title);
    setAccessibleName(title);
}

void ScientificTableWidget::hideHeader()
{
    d->header->hide();
}

QString ScientificTableWidget::toPlainText() const
{
    QStringList parts = {d->header->text(), textOf(*model())};
    if (!note().isEmpty())
        parts.append(note());
    return parts.join(u'\n');
}

QString ScientificTableWidget::textOf(const TableModel &model)
{
    QStringList lines;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column) {
            const QModelIndex index = model.index(row, column);
            const QString text = index.data().toString();
            const QString problem = index.data(TableModel::ProblemRole).toString();
            if (text.isEmpty() && problem.isEmpty())
                continue;
            const QString title = model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
            cells.append(problem.isEmpty() ? tr("%1: %2").arg(title, text)
                                           : tr("%1: %2 (%3)").arg(title, text, problem));
        }
        lines.append(tr("Row %1. %2").arg(model.sheetRow(row) + 1).arg(cells.join(QLatin1String("; "))));
    }
    return lines.isEmpty() ? tr("No rows.") : lines.join(u'\n');
}

QString ScientificTableWidget::note() const
{
    return d->note->text();
}

void ScientificTableWidget::insertAbove(QWidget *widget)
{
    d->layout->insertWidget(d->above++, widget);
    // They were made behind the table, and are read before it. Qt puts nothing behind what takes no focus.
    const Qt::FocusPolicy policy = d->header->focusPolicy();
    d->header->setFocusPolicy(Qt::TabFocus);
    for (QWidget *const stop : tabStopsIn(widget)) {
        QWidget::setTabOrder(d->lastAbove, stop);
        d->lastAbove = stop;
    }
    d->header->setFocusPolicy(policy);
}

void ScientificTableWidget::insertBelow(QWidget *widget)
{
    d->layout->insertWidget(d->layout->count() - 1, widget);
}

void ScientificTableWidget::setNote(const QString &text)
{
    const QString shown = beginningOf(text);
    if (shown == d->note->text())
        return;
    d->note->setText(shown);
    d->note->setAccessibleName(shown);
    d->note->setVisible(!shown.isEmpty());
    QAccessibleEvent event(d->note, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void ScientificTableWidget::noteLoad(const Error &error, const QString &unshown)
{
    setNote(error.hasError() ? (QStringList(error.errorMessage()) + error.details()).join(u' ') : unshown);
}

void ScientificTableWidget::tellEdited()
{
    d->isEdited = true;
    tellChanged();
}

void ScientificTableWidget::tellChanged()
{
    if (std::exchange(d->isTelling, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            d->isTelling = false;
            const bool isEdited = std::exchange(d->isEdited, false);
            const QPointer<ScientificTableWidget> self(this);
            Q_EMIT contentChanged();
            if (self && isEdited)
                Q_EMIT edited();
        },
        Qt::QueuedConnection);
}

} // namespace orv
