#include "orv/widgets/SamplesAndTracesInputWidget.h"

#include "../NoticeBar.h"
#include "../TablePage.h"
#include "AddedSamples.h"
#include "ColumnDialog.h"
#include "SampleDrop.h"
#include "SampleModes.h"
#include "SampleNotes.h"
#include "SampleSearch.h"

#include <orv/core_ms/SampleFileChecker.h>
#include <orv/samples/SamplesAndTracesTables.h>
#include <orv/widgets/DialogService.h>
#include <orv/widgets/Icons.h>
#include <orv/widgets/ORVFileDialog.h>
#include <orv/widgets/ORVStyle.h>
#include <orv/widgets/TableEditor.h>

#include <QAction>
#include <QCheckBox>
#include <QIcon>
#include <QMenu>
#include <QPointer>
#include <QSplitter>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace orv {

namespace {

bool isEmptyColumn(const TableSheet &sheet, int column)
{
    for (int row = 0; row < sheet.rowCount(); ++row) {
        const QStringView text = sheet.text(row, column);
        if (!text.isEmpty() && text != sheet.columns()[column].defaultText)
            return false;
    }
    return true;
}

} // namespace

class SamplesAndTracesInputWidget::Private
{
public:
    SamplesAndTracesTables *tables = nullptr;
    SampleFileChecker *checker = nullptr;
    NoticeBar *notice = nullptr;
    QToolBar *bar = nullptr;
    QMenu *columnMenu = nullptr;
    QAction *showTraces = nullptr;
    QSplitter *splitter = nullptr;
    QTabWidget *pane = nullptr;
    QPointer<TableEditor> samples;
    QPointer<TableEditor> traces;
    QPointer<TableEditor> presets;
    QPointer<QCheckBox> onlySelected;
    QList<SamplesInput::Mode> modes;
    std::unique_ptr<SampleNotes> notes;
    SampleSearch *search = nullptr;
    int calls = 0; ///< of functions that tell of changes themselves
    bool isTelling = false;
    bool haveSamplesChanged = false; ///< and listeners don't know yet
    bool isEdited = false;
};

SamplesAndTracesInputWidget::SamplesAndTracesInputWidget(QWidget *parent)
    : SamplesAndTracesInputWidget(new SampleFileChecker, parent)
{}

SamplesAndTracesInputWidget::SamplesAndTracesInputWidget(SampleFileChecker *checker, QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    d->tables = new SamplesAndTracesTables(this);
    d->checker = checker;
    checker->setParent(this);
    d->notes = std::make_unique<SampleNotes>(*d->tables, *d->checker);
    d->search = new SampleSearch(this);
    build();
    connect(d->tables, &SamplesAndTracesTables::sheetsChanged, this, [this] {
        buildSamples();
        buildTraces();
    });
    connect(d->tables, &SamplesAndTracesTables::samplesChanged, this, &SamplesAndTracesInputWidget::hear);
    connect(d->tables, &SamplesAndTracesTables::edited, this, [this] {
        d->isEdited = d->isEdited || d->calls == 0;
        tellSoon();
    });
    connect(d->checker, &SampleFileChecker::answered, this, [this] {
        if (d->samples)
            d->samples->view()->tableModel()->tellNotesChanged();
    });
    connect(d->search, &SampleSearch::started, this, [this] { say(tr("Looking for samples...")); });
    connect(d->search, &SampleSearch::found, this, &SamplesAndTracesInputWidget::addFound);
    connect(d->search, &SampleSearch::failed, this, [this](const Error &error) {
        const QStringList texts = error.errorMessages() + error.details();
        d->notice->setText(tr("No samples were added. %1").arg(texts.join(u' ')), NoticeBar::Kind::Error);
    });
}

SamplesAndTracesInputWidget::~SamplesAndTracesInputWidget()
{
    d->tables->disconnect(this);
    d->checker->disconnect(this);
    d->search->disconnect(this);
    // Until traces were shown it belongs to no page.
    if (!d->onlySelected->parent())
        delete d->onlySelected;
    // Tables take what is being typed while they go; then everything else is still there.
    delete d->samples;
    delete d->traces;
    delete d->presets;
}

/// Most widgets get their content before anybody looks at them; tables without it would be made in vain.
void SamplesAndTracesInputWidget::needTables()
{
    if (d->samples)
        return;
    buildSamples();
    buildTraces();
}

bool SamplesAndTracesInputWidget::event(QEvent *event)
{
    if (event->type() == QEvent::Polish)
        needTables();
    return QWidget::event(event);
}

void SamplesAndTracesInputWidget::build()
{
    d->notice = new NoticeBar;
    d->bar = new QToolBar;
    d->bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
    d->bar->setIconSize({side, side});
    d->splitter = new QSplitter(Qt::Vertical);
    d->splitter->setChildrenCollapsible(false);
    d->pane = new QTabWidget;
    d->pane->setObjectName(QStringLiteral("tracesPane"));
    d->pane->setAccessibleName(tr("Traces and peak options"));
    d->onlySelected = new QCheckBox(tr("&Only traces of the selected samples"));
    d->onlySelected->setObjectName(QStringLiteral("onlySelected"));
    d->onlySelected->setToolTip(tr("Hides traces that none of the samples selected above uses"));
    connect(d->onlySelected, &QCheckBox::toggled, this, &SamplesAndTracesInputWidget::showTracesOfSelected);
    addCommands();
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(d->bar);
    layout->addWidget(d->notice);
    layout->addWidget(d->splitter, 1);
    d->splitter->addWidget(d->pane);
}

void SamplesAndTracesInputWidget::addCommands()
{
    const auto add = [this](const char *name, IconName icon, const QString &text, const QString &tip,
                            auto handler) {
        QAction *const action = d->bar->addAction(Icons::icon(icon), text, this, handler);
        action->setObjectName(QLatin1String(name));
        action->setToolTip(tip);
        // A bar's buttons have letters only where these stand in what is told for icons.
        action->setIconText(QString(text).remove(QLatin1String("...")));
        d->bar->widgetForAction(action)->setObjectName(QLatin1String(name));
    };
    add("addFiles", IconName::Add, tr("&Add Files..."), tr("Add files as samples"),
        &SamplesAndTracesInputWidget::chooseFiles);
    add("addFolder", IconName::Open, tr("Add Fol&der..."),
        tr("Add a folder of a vendor as one sample, or all samples that a folder holds"),
        &SamplesAndTracesInputWidget::chooseFolder);
    add("nameByFiles", IconName::Edit, tr("&Name by Files"),
        tr("Give samples without a name that of their file"), [this] {
            const Result<int> named = d->tables->nameByFiles();
            say(named.hasError() ? named.error().errorMessage()
                : *named == 0    ? tr("All samples with a file have names already.")
                                 : tr("Samples named: %1.").arg(*named));
        });
    add("checkFiles", IconName::Find, tr("&Check Files"), tr("Look again whether the files are there"),
        [this] {
            d->checker->forget();
            d->samples->view()->tableModel()->tellNotesChanged();
        });
    auto *const columns = new QToolButton;
    columns->setObjectName(QStringLiteral("columns"));
    columns->setIcon(Icons::icon(IconName::Columns));
    columns->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    columns->setText(tr("Colu&mns"));
    columns->setToolTip(tr("Add or remove columns of your own, such as \"Condition\""));
    columns->setPopupMode(QToolButton::InstantPopup);
    d->columnMenu = new QMenu(columns);
    columns->setMenu(d->columnMenu);
    d->bar->addWidget(columns);
    d->showTraces = d->bar->addAction(tr("T&races"));
    d->showTraces->setObjectName(QStringLiteral("showTraces"));
    d->showTraces->setIconText(d->showTraces->text());
    d->showTraces->setCheckable(true);
    d->showTraces->setToolTip(tr("Show the traces of the samples, and how peaks are found in them"));
    d->bar->widgetForAction(d->showTraces)->setObjectName(QStringLiteral("showTraces"));
    // No menu or shortcut has these commands, and a tool bar takes its buttons out of the tab order.
    for (QAction *action : d->bar->actions())
        d->bar->widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
    d->pane->hide();
    connect(d->showTraces, &QAction::toggled, d->pane, &QWidget::setVisible);
}

void SamplesAndTracesInputWidget::buildSamples()
{
    TableEditor *const before = d->samples;
    d->samples = TablePage::editorOf(d->tables->samples(), tr("Samples"), QStringLiteral("Samples"),
                                     [this](quint32 row, int column) { return d->notes->note(row, column); });
    TableView *const view = d->samples->view();
    view->setEmptyText(tr("There are no samples yet.\nDrop files or folders here, add them with \"Add "
                          "Files\", or paste rows from a spreadsheet."));
    auto *const drop = new SampleDrop(view);
    connect(drop, &SampleDrop::pathsCame, d->search, &SampleSearch::add);
    connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &SamplesAndTracesInputWidget::showTracesOfSelected);
    const QList<int> sizes = d->splitter->sizes();
    if (before) {
        // It may be the one that a person is just typing in.
        before->setParent(this);
        before->hide();
        before->deleteLater();
    }
    d->splitter->insertWidget(0, d->samples);
    d->splitter->setSizes(before && sizes.value(0) > 0 ? sizes : QList<int>{600, 400});
    d->samples->setEnabled(!d->tables->isUnreadable());
    d->bar->setEnabled(!d->tables->isUnreadable());
    d->columnMenu->clear();
    d->columnMenu->addAction(tr("&Add Column..."), this, &SamplesAndTracesInputWidget::askForColumn);
    for (const QString &name : d->tables->customColumns().customColumnNames())
        d->columnMenu->addAction(tr("Remove \"%1\"").arg(QString(name).replace(u'&', QLatin1String("&&"))),
                                 this, [this, name] { askToRemove(name); });
    showColumns();
    setFocusProxy(d->samples);
    orderFocus();
}

void SamplesAndTracesInputWidget::buildTraces()
{
    for (const QPointer<TableEditor> &before : {d->traces, d->presets}) {
        if (before)
            before->deleteLater();
    }
    d->traces = TablePage::editorOf(d->tables->traces(), tr("Traces"), QStringLiteral("Traces"));
    d->presets = TablePage::editorOf(d->tables->presets(), tr("Peak options"), QStringLiteral("PeakOptions"));
    d->traces->view()->setEmptyText(tr("No traces are chosen yet. Add a row for each trace."));
    TableModel *const model = d->traces->view()->tableModel();
    const int samples = d->traces->view()->sheet()->columnOf(QStringLiteral("samplesIds"));
    model->setNotes([this, samples](quint32 row, int column) {
        return column == samples ? d->tables->namesOfSamples(d->tables->traces()->textOf(row, column))
                                 : QString();
    });
    connect(model, &QAbstractItemModel::rowsInserted, this,
            &SamplesAndTracesInputWidget::showTracesOfSelected);
    connect(model, &QAbstractItemModel::modelReset, this, &SamplesAndTracesInputWidget::showTracesOfSelected);
    auto *const page = new QWidget;
    auto *const layout = new QVBoxLayout(page);
    d->onlySelected->setParent(page);
    layout->addWidget(d->onlySelected);
    layout->addWidget(d->traces);
    const int current = d->pane->currentIndex();
    while (d->pane->count() > 0) {
        QWidget *const old = d->pane->widget(0);
        d->pane->removeTab(0);
        old->deleteLater();
    }
    d->pane->addTab(page, tr("&Traces"));
    d->pane->addTab(d->presets, tr("&Peak Options"));
    d->pane->setCurrentIndex(std::max(current, 0));
    d->pane->setEnabled(!d->tables->isUnreadable());
    showTracesOfSelected();
    orderFocus();
}

/// Tables are made anew with their columns, and what is made last would be reached last.
void SamplesAndTracesInputWidget::orderFocus()
{
    const QList<const QWidget *> parts = {d->bar, d->notice, d->samples, d->pane};
    TablePage::orderFocus(*this, parts);
}

QJsonObject SamplesAndTracesInputWidget::jsonContent() const
{
    return d->tables->jsonContent();
}

Error SamplesAndTracesInputWidget::setFromJsonContent(const QJsonObject &json)
{
    ++d->calls;
    Error error = d->tables->setJsonContent(json);
    --d->calls;
    // What was edited before is gone.
    d->isEdited = false;
    showNotice(error);
    Q_EMIT samplesChanged(samplesInput());
    return error.hasError() ? error.ecatch() : Error::NoError;
}

void SamplesAndTracesInputWidget::showNotice(const Error &error)
{
    d->notice->setText(error.hasError() ? tr("The samples can't be shown, and stay as they are: %1 %2")
                                              .arg(error.errorMessage(), error.details().join(u' '))
                                        : QString());
}

QList<SamplesInput::Entry> SamplesAndTracesInputWidget::samplesInput() const
{
    return d->tables->entries();
}

void SamplesAndTracesInputWidget::addNewSampleFiles(const QList<SamplePathAndName> &files)
{
    needTables();
    ++d->calls;
    const int added = addSamples(files);
    --d->calls;
    if (added == 0)
        return;
    const QPointer<SamplesAndTracesInputWidget> self(this);
    Q_EMIT samplesChanged(samplesInput());
    if (self)
        Q_EMIT edited();
}

/// Tells and shows what was added; how many.
int SamplesAndTracesInputWidget::addSamples(const QList<SamplePathAndName> &files)
{
    const int before = int(samplesInput().size());
    const Result<int> added = d->tables->addFiles(files);
    if (added.hasError()) {
        say(added.error().errorMessage());
        return 0;
    }
    say(AddedSamples::wordsOnAdded(*added, files.size()));
    if (*added == 0)
        return 0;
    TableView *const view = d->samples->view();
    if (!view->isArranged())
        view->fitColumns();
    AddedSamples::showRows(*view, before, *added);
    AddedSamples::showInAreas(*view->viewport(), view->visualRect(view->currentIndex()));
    return *added;
}

void SamplesAndTracesInputWidget::addFound(const SampleFileFinder::Found &found)
{
    QStringList leftOut;
    if (!found.leftOut.isEmpty())
        leftOut.append(AddedSamples::wordsOnLeftOut(found.leftOut));
    if (found.isCut)
        leftOut.append(tr("There were too many files or folders to look into all."));
    d->notice->setText(leftOut.join(u' '), NoticeBar::Kind::Warning);
    (void)addSamples(found.samples);
}

bool SamplesAndTracesInputWidget::validate(QStringList *warnings, QStringList *errors,
                                           QStringList *details) const
{
    return d->tables->validate(warnings, errors, details);
}

void SamplesAndTracesInputWidget::setModes(const QList<SamplesInput::Mode> &modes)
{
    d->modes = modes;
    if (d->samples)
        showColumns();
}

void SamplesAndTracesInputWidget::setBaseUrl(const QUrl &baseUrl)
{
    d->notes->setBaseUrl(baseUrl);
    if (d->samples)
        d->samples->view()->tableModel()->tellNotesChanged();
}

QString SamplesAndTracesInputWidget::plainText() const
{
    QStringList texts = {d->notice->text(), TablePage::textOf(d->samples), TablePage::textOf(d->traces),
                         TablePage::textOf(d->presets)};
    texts.removeAll(QString());
    return texts.join(u'\n');
}

/// What nobody needs is hidden while it is empty: nothing that a document holds may be out of sight.
void SamplesAndTracesInputWidget::showColumns()
{
    const QStringList unneeded = SampleModes::unneededColumns(d->modes);
    const TableSheet *const sheet = d->samples->view()->sheet();
    for (const QString &name : SampleModes::unneededColumns({SamplesInput::Mode::MultiDocReport})) {
        const int column = sheet->columnOf(name);
        d->samples->view()->setColumnShown(column,
                                           !unneeded.contains(name) || !isEmptyColumn(*sheet, column));
    }
    const bool hasTraces = d->tables->traces()->rowCount() > 0 || d->tables->presets()->rowCount() > 0;
    d->showTraces->setVisible(hasTraces || SampleModes::needTraces(d->modes));
    d->showTraces->setChecked(d->showTraces->isVisible() && (hasTraces || d->showTraces->isChecked()));
}

void SamplesAndTracesInputWidget::showTracesOfSelected()
{
    if (!d->traces || !d->samples)
        return;
    const TableModel *const samples = d->samples->view()->tableModel();
    QList<int> ids;
    for (const QItemSelectionRange &range : d->samples->view()->selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            ids.append(d->tables->sampleIdOfRow(samples->rowId(row)));
    }
    const bool isAll = !d->onlySelected->isChecked() || ids.isEmpty();
    const TableModel *const traces = d->traces->view()->tableModel();
    for (int row = 0; row < traces->rowCount(); ++row)
        d->traces->view()->setRowHidden(row, !isAll && !d->tables->isTraceOf(traces->sheetRow(row), ids));
}

void SamplesAndTracesInputWidget::chooseFiles()
{
    const QPointer<SamplesAndTracesInputWidget> self = this;
    const QStringList paths = ORVFileDialog::getSampleFileNames(this, tr("Add Files"));
    if (self && !paths.isEmpty())
        d->search->add(paths);
}

void SamplesAndTracesInputWidget::chooseFolder()
{
    const QPointer<SamplesAndTracesInputWidget> self = this;
    const QString path = ORVFileDialog::getExistingDirectory(this, tr("Add Folder"));
    if (self && !path.isEmpty())
        d->search->add({path});
}

void SamplesAndTracesInputWidget::askForColumn()
{
    const QPointer<ColumnDialog> dialog = new ColumnDialog(d->tables->customColumns(), this);
    const bool isAccepted = DialogService::exec(*dialog);
    // The widget may have gone with the dialog meanwhile.
    if (!dialog)
        return;
    const SamplesInput::CustomColumn column = dialog->column();
    dialog->deleteLater();
    if (!isAccepted)
        return;
    if (const Error error = d->tables->addCustomColumn(column); error.hasError())
        say(error.errorMessage());
    else
        say(tr("Column \"%1\" added.").arg(column.name));
}

void SamplesAndTracesInputWidget::askToRemove(const QString &column)
{
    const QPointer<SamplesAndTracesInputWidget> self = this;
    // A column doesn't come back by undo.
    if (d->tables->hasValues(column)) {
        const auto answer = ORVStyle::question(
            this, tr("Remove Column"),
            tr("The column \"%1\" holds values, which can't be brought back. Remove it?").arg(column),
            QMessageBox::Yes | QMessageBox::Cancel, {{QMessageBox::Yes, tr("Remove")}});
        if (!self || answer != QMessageBox::Yes)
            return;
    }
    if (!d->tables->removeCustomColumn(column))
        return;
    say(tr("Column \"%1\" removed.").arg(column));
    Q_EMIT removeCustomColumn(column);
}

/// A listener may do anything, closing the window included, which must not happen inside of a cell's editor.
void SamplesAndTracesInputWidget::hear()
{
    if (d->traces)
        d->traces->view()->tableModel()->tellNotesChanged();
    d->haveSamplesChanged = d->haveSamplesChanged || d->calls == 0;
    tellSoon();
}

void SamplesAndTracesInputWidget::tellSoon()
{
    if (d->calls > 0 || std::exchange(d->isTelling, true))
        return;
    QMetaObject::invokeMethod(this, &SamplesAndTracesInputWidget::tell, Qt::QueuedConnection);
}

void SamplesAndTracesInputWidget::tell()
{
    const QPointer<SamplesAndTracesInputWidget> self(this);
    const bool isEdited = std::exchange(d->isEdited, false);
    d->isTelling = false;
    if (std::exchange(d->haveSamplesChanged, false))
        Q_EMIT samplesChanged(samplesInput());
    if (self && isEdited)
        Q_EMIT edited();
}

void SamplesAndTracesInputWidget::say(const QString &text)
{
    if (d->samples)
        Q_EMIT d->samples->view()->said(text);
}

} // namespace orv
