#include "orv/widgets/TableEditor.h"

#include "../LongText.h"
#include "FindBar.h"

#include <orv/core/FileUtils.h>
#include <orv/core/PlainTip.h>
#include <orv/core/Settings.h>
#include <orv/table_model/TableExport.h>
#include <orv/widgets/DialogService.h>
#include <orv/widgets/Icons.h>
#include <orv/widgets/MeaningColors.h>
#include <orv/widgets/ORVFileDialog.h>
#include <orv/widgets/ORVStyle.h>
#include <orv/widgets/TableImportDialog.h>

#include <QAccessible>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QShortcut>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace orv {

namespace {

/// Rows looked at in one go, a few milliseconds.
constexpr int kCountedRows = 2000;

FileExtensionsNameFilter textTables()
{
    return {FileTypes::CSV, FileTypes::TXT};
}

QString namesOfColumns(const TableSheet &sheet)
{
    QStringList names;
    for (const TableColumn &column : sheet.columns())
        names.append(column.name);
    return names.join(u' ');
}

} // namespace

class TableEditor::Private
{
public:
    [[nodiscard]] TableSheet *sheet() const { return view->sheet(); }

    TableView *view = nullptr;
    FindBar *findBar = nullptr;
    QLineEdit *filter = nullptr;
    QToolButton *onlyProblems = nullptr;
    QLabel *message = nullptr;
    QLabel *counts = nullptr;
    QTimer *counting = nullptr;
    QString settingsKey; ///< empty while nothing is remembered
};

TableEditor::TableEditor(TableSheet *sheet, QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    build(sheet);
    d->counting = new QTimer(this);
    d->counting->setInterval(0);
    connect(d->counting, &QTimer::timeout, this, &TableEditor::countOn);
    const auto recount = [this] {
        if (!d->sheet()->areProblemsCounted())
            d->counting->start();
        showCounts();
    };
    connect(sheet, &TableSheet::loaded, this, recount);
    connect(sheet, &TableSheet::loaded, d->view, &TableView::fitColumns);
    connect(sheet, &TableSheet::rowsInserted, this, recount);
    connect(sheet, &TableSheet::rowsRemoved, this, recount);
    connect(sheet, &TableSheet::cellsChanged, this, recount);
    connect(sheet, &TableSheet::problemsChanged, this, recount);
    connect(sheet, &TableSheet::derivedAnew, this, recount);
    recount();
}

TableEditor::~TableEditor()
{
    // A cell that is being edited is taken while the view goes, when nothing here may be asked any more.
    d->sheet()->disconnect(this);
    d->view->disconnect(this);
    keepLayout();
}

void TableEditor::build(TableSheet *sheet)
{
    d->view = new TableView(sheet);
    d->filter = new QLineEdit;
    d->filter->setObjectName(QStringLiteral("filter"));
    d->filter->setPlaceholderText(tr("Filter rows"));
    d->filter->setAccessibleName(tr("Filter rows"));
    d->filter->setToolTip(tr("Shows only rows that hold all of these words"));
    d->filter->setClearButtonEnabled(true);
    d->onlyProblems = new QToolButton;
    d->onlyProblems->setObjectName(QStringLiteral("onlyProblems"));
    d->onlyProblems->setCheckable(true);
    d->onlyProblems->setToolTip(tr("Show only rows with a cell that isn't allowed or with a finding"));
    auto *const top = new QHBoxLayout;
    top->addWidget(d->filter, 1);
    top->addWidget(d->onlyProblems);
    d->filter->addAction(Icons::icon(IconName::Filter), QLineEdit::LeadingPosition);
    d->onlyProblems->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    d->message = new QLabel;
    d->message->setObjectName(QStringLiteral("message"));
    d->message->setTextFormat(Qt::PlainText);
    d->message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    d->counts = new QLabel;
    d->counts->setObjectName(QStringLiteral("counts"));
    // Beside the buttons, where people look who press them, and which stand in the window when the end of a
    // table doesn't.
    auto *const commands = new QHBoxLayout;
    commands->addWidget(buildToolBar());
    commands->addWidget(d->message, 1);
    commands->addWidget(d->counts);
    d->findBar = new FindBar(d->view);
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addLayout(commands);
    layout->addWidget(d->view, 1);
    layout->addWidget(d->findBar);
    setFocusProxy(d->view);
    connect(d->filter, &QLineEdit::textChanged, this, &TableEditor::applyFilter);
    connect(d->onlyProblems, &QToolButton::toggled, this, &TableEditor::applyFilter);
    connect(d->view->tableModel(), &QAbstractItemModel::headerDataChanged, this, &TableEditor::showCounts);
    connect(d->view, &TableView::said, this, &TableEditor::say);
    connect(d->view, &TableView::findWanted, d->findBar, &FindBar::begin);
    connect(d->view, &TableView::exportWanted, this, &TableEditor::chooseExport);
    connect(d->view, &TableView::importWanted, this,
            [this](const QString &path) { path.isEmpty() ? chooseImport() : importFile(path); });
}

QToolBar *TableEditor::buildToolBar()
{
    auto *const bar = new QToolBar;
    bar->setToolButtonStyle(Qt::ToolButtonIconOnly);
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    bar->setIconSize(QSize(side, side));
    using C = TableView::Command;
    const QList<QList<C>> groups = {{C::AddRow, C::DuplicateRows, C::RemoveRows},
                                    {C::MoveUp, C::MoveDown},
                                    {C::Undo, C::Redo},
                                    {C::Find},
                                    {C::Import, C::Export}};
    for (const QList<C> &group : groups) {
        if (!bar->actions().isEmpty())
            bar->addSeparator();
        for (const C command : group)
            bar->addAction(d->view->action(command));
    }
    return bar;
}

TableView *TableEditor::view() const
{
    return d->view;
}

void TableEditor::setTitle(const QString &title)
{
    d->view->setAccessibleName(title);
    setAccessibleName(title);
}

void TableEditor::setKind(const QString &kind)
{
    d->settingsKey = QStringLiteral("Tables/%1/Columns").arg(kind);
    restoreLayout();
}

/// The state of a header fits the columns that it was taken of, so their names stand in front.
void TableEditor::keepLayout()
{
    // What nobody has arranged fits the rows of one document, and not those of the next.
    if (d->settingsKey.isEmpty() || !d->view->isArranged())
        return;
    const QByteArray state = d->view->horizontalHeader()->saveState().toBase64();
    const QStringList layout = {namesOfColumns(*d->sheet()), QString::fromLatin1(state)};
    // A write goes to the disk, a look mostly doesn't.
    if (layout != as::value(d->settingsKey, QStringList()).toStringList())
        as::setValue(d->settingsKey, layout);
}

void TableEditor::restoreLayout()
{
    const QStringList kept = as::value(d->settingsKey, QStringList()).toStringList();
    if (kept.size() != 2 || kept[0] != namesOfColumns(*d->sheet()))
        return;
    QHeaderView *const header = d->view->horizontalHeader();
    header->restoreState(QByteArray::fromBase64(kept[1].toLatin1()));
    header->setSortIndicator(-1, Qt::AscendingOrder);
    for (int column = 0; column < d->sheet()->columnCount(); ++column)
        d->view->setColumnShown(column, !d->view->isColumnHidden(column));
    // What somebody has set isn't fitted anew when rows are loaded.
    disconnect(d->sheet(), &TableSheet::loaded, d->view, &TableView::fitColumns);
}

void TableEditor::applyFilter()
{
    TableModel *const model = d->view->tableModel();
    const QModelIndex before = d->view->currentIndex();
    const quint32 row = before.isValid() ? model->rowId(before.row()) : 0;
    model->setFilter({d->filter->text(), d->onlyProblems->isChecked()});
    // Many rows at once reset the view; the current cell stays all the same while it is shown.
    const int now = before.isValid() ? model->rowOfId(row) : -1;
    if (now >= 0 && !d->view->currentIndex().isValid())
        d->view->goTo(model->index(now, before.column()));
    d->view->viewport()->update();
    showCounts();
}

void TableEditor::say(const QString &text)
{
    d->message->setText(beginningOf(text));
    d->message->setToolTip(PlainTip::of(d->message->text()));
    QAccessibleEvent event(d->message, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void TableEditor::countOn()
{
    const QPointer<TableEditor> guard(this);
    d->sheet()->countProblems(kCountedRows);
    if (!guard)
        return;
    if (d->sheet()->areProblemsCounted())
        d->counting->stop();
    showCounts();
}

void TableEditor::showCounts()
{
    const int all = d->sheet()->rowCount();
    const int shown = d->view->tableModel()->rowCount();
    const QLocale locale = this->locale();
    d->counts->setText(shown == all ? tr("Rows: %1").arg(locale.toString(all))
                                    : tr("Rows: %1 of %2").arg(locale.toString(shown), locale.toString(all)));
    // A row has its sign for what a check found, too, which the button must not deny.
    const int problems = d->sheet()->problemCount() + d->view->tableModel()->remarkedRowCount();
    d->onlyProblems->setText(problems == 0 ? tr("No problems")
                                           : tr("Problems: %1").arg(locale.toString(problems)));
    d->onlyProblems->setIcon(problems == 0 ? QIcon() : Icons::icon(IconName::Error));
    d->onlyProblems->setEnabled(problems > 0 || d->onlyProblems->isChecked());
    QPalette colors = palette();
    if (problems > 0)
        colors.setColor(QPalette::ButtonText, MeaningColors::error(palette()));
    d->onlyProblems->setPalette(colors);
}

void TableEditor::chooseImport()
{
    const QPointer<TableEditor> guard(this);
    const QString path = ORVFileDialog::getOpenFileName(this, tr("Import a Text File"), {}, textTables());
    if (guard && !path.isEmpty())
        importFile(path);
}

void TableEditor::importFile(const QString &path)
{
    const Result<QByteArray> bytes = FileUtils::readFile(path);
    if (bytes.hasError()) {
        ORVStyle::warning(this, tr("Import"), bytes.error().errorMessage(), QMessageBox::Ok, {},
                          QMessageBox::NoButton, bytes.error().details().join(u'\n'));
        return;
    }
    if (const auto read = d->view->readText(bytes.value())) {
        importRead(path, *read);
        return;
    }
    auto *const dialog = new TableImportDialog(QFileInfo(path).fileName(), bytes.value(),
                                               TableImportTarget::of(*d->sheet()), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog] {
        const QList<QStringList> rows = dialog->rows();
        const int first = d->sheet()->rowCount();
        const QPointer<TableEditor> guard(this);
        const Error error = d->sheet()->insertRows(first, rows, tr("import"));
        if (!guard)
            return;
        say(error.hasError() ? error.errorMessage() : tr("Rows imported: %1").arg(rows.size()));
        if (const int row = first < d->sheet()->rowCount() ? d->view->tableModel()->rowOfSheetRow(first) : -1;
            row >= 0)
            d->view->goTo(d->view->tableModel()->index(row, d->view->shownColumns().value(0)));
    });
    DialogService::prepare(*dialog);
    dialog->open();
}

void TableEditor::importRead(const QString &path, const Result<QList<QStringList>> &read)
{
    if (read.hasError()) {
        ORVStyle::warning(this, tr("Import"), read.error().errorMessage(), QMessageBox::Ok, {},
                          QMessageBox::NoButton, read.error().details().join(u'\n'));
        return;
    }
    const Error error = d->sheet()->insertRows(d->sheet()->rowCount(), *read, tr("import"));
    say(error.hasError() ? error.errorMessage()
                         : tr("Rows imported from %1: %2").arg(QFileInfo(path).fileName()).arg(read->size()));
}

void TableEditor::chooseExport()
{
    const QPointer<TableEditor> guard(this);
    const QString path = ORVFileDialog::getSaveFileName(this, tr("Export the Table"), {}, textTables());
    if (guard && !path.isEmpty())
        exportFile(path);
}

void TableEditor::exportFile(const QString &path)
{
    const bool isCsv = path.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive);
    const auto separator = isCsv ? TableExport::Separator::Comma : TableExport::Separator::Tabulator;
    const QByteArray text = TableExport::text(*d->view->tableModel(), d->view->shownColumns(), separator);
    QString reason;
    if (FileUtils::writeToFile(path, text, &reason) != QFileDevice::NoError)
        ORVStyle::warning(this, tr("Export"), tr("Cannot write the file \"%1\": %2").arg(path, reason));
    else
        say(tr("Rows written to %1: %2")
                .arg(QFileInfo(path).fileName())
                .arg(d->view->tableModel()->rowCount()));
}

} // namespace orv
