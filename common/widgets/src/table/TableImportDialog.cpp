#include "orv/widgets/TableImportDialog.h"

#include "ImportModels.h"
#include "TableDelegate.h"

#include <orv/widgets/ChoiceBox.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

namespace orv {

namespace {

ChoiceBox *importChoice(const QString &name)
{
    auto *box = new ChoiceBox;
    box->setAccessibleName(name);
    // The longest choice is seen when the list opens; four boxes side by side don't make the dialog as wide.
    constexpr int kLetters = 9;
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(kLetters);
    return box;
}

template<typename T>
void choose(QComboBox *box, T value)
{
    const QSignalBlocker blocker(box);
    box->setCurrentIndex(box->findData(int(value)));
}

} // namespace

class TableImportDialog::Private
{
public:
    Private(const QByteArray &bytes, const TableImportTarget &target)
        : columns(target.columns)
        , shared(std::make_shared<TableImport>(bytes, target))
        , import(*shared)
    {}

    QList<TableColumn> columns;
    std::shared_ptr<TableImport> shared;
    TableImport &import;
    QComboBox *separator = nullptr;
    QComboBox *quote = nullptr;
    QComboBox *decimalSign = nullptr;
    QComboBox *encoding = nullptr;
    QCheckBox *hasHeader = nullptr;
    QTableView *preview = nullptr;
    ImportPreviewModel *previewModel = nullptr;
    QList<QComboBox *> targets;
    QWidget *problemPane = nullptr;
    QLabel *problemText = nullptr;
    QTableView *problems = nullptr;
    ImportProblemModel *problemModel = nullptr;
    QCheckBox *takeFaulty = nullptr;
    QPushButton *accept = nullptr;
};

TableImportDialog::TableImportDialog(const QString &name, const QByteArray &bytes,
                                     const TableImportTarget &target, QWidget *parent)
    : QDialog(parent)
    , d(std::make_unique<Private>(bytes, target))
{
    setWindowTitle(tr("Import %1").arg(name));
    setObjectName(QStringLiteral("TableImportDialog"));
    build();
    showFormat(d->import.format());
    showMapping();
    showState();
}

TableImportDialog::~TableImportDialog() = default;

const TableImport &TableImportDialog::import() const
{
    return d->import;
}

TableImport::Faulty TableImportDialog::faulty() const
{
    return d->takeFaulty->isChecked() ? TableImport::Faulty::Take : TableImport::Faulty::LeaveOut;
}

QList<QStringList> TableImportDialog::rows() const
{
    return d->import.rows(faulty());
}

void TableImportDialog::build()
{
    auto *const layout = new QVBoxLayout(this);
    buildFormat(layout);
    auto *const splitter = new QSplitter(Qt::Vertical);
    splitter->setChildrenCollapsible(false);
    d->previewModel = new ImportPreviewModel(d->shared, d->columns, this);
    d->preview = new QTableView;
    d->preview->setObjectName(QStringLiteral("importPreview"));
    d->preview->setAccessibleName(tr("Preview"));
    d->preview->setModel(d->previewModel);
    d->preview->setItemDelegate(new TableDelegate(d->preview));
    d->preview->setEditTriggers(QAbstractItemView::NoEditTriggers);
    d->preview->setTabKeyNavigation(false);
    d->preview->setWordWrap(false);
    d->preview->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    d->preview->verticalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    splitter->addWidget(d->preview);
    d->problemPane = new QWidget;
    auto *const problemLayout = new QVBoxLayout(d->problemPane);
    problemLayout->setContentsMargins({});
    buildProblems(problemLayout);
    splitter->addWidget(d->problemPane);
    splitter->setStretchFactor(0, 2);
    splitter->setStretchFactor(1, 1);
    layout->addWidget(splitter, 1);
    buildButtons(layout);
    const int line = fontMetrics().height();
    resize(line * 44, line * 32);
}

void TableImportDialog::buildFormat(QBoxLayout *layout)
{
    auto *const row = new QHBoxLayout;
    const auto addChoice = [&](const QString &name, const char *objectName) {
        QComboBox *const box = importChoice(QString(name).remove(u'&'));
        box->setObjectName(QLatin1String(objectName));
        auto *const label = new QLabel(name);
        label->setBuddy(box);
        auto *const column = new QVBoxLayout;
        column->addWidget(label);
        column->addWidget(box);
        row->addLayout(column);
        return box;
    };
    d->separator = addChoice(tr("&Separator"), "separator");
    d->separator->addItem(tr("Comma"), int(','));
    d->separator->addItem(tr("Semicolon"), int(';'));
    d->separator->addItem(tr("Tabulator"), int('\t'));
    d->separator->addItem(tr("Vertical bar"), int('|'));
    d->quote = addChoice(tr("&Quotes"), "quote");
    d->quote->addItem(tr("Double"), int('"'));
    d->quote->addItem(tr("Single"), int('\''));
    d->decimalSign = addChoice(tr("&Decimal sign"), "decimalSign");
    d->decimalSign->addItem(tr("Point"), int(NumberText::DecimalSign::Point));
    d->decimalSign->addItem(tr("Comma"), int(NumberText::DecimalSign::Comma));
    d->encoding = addChoice(tr("&Encoding"), "encoding");
    d->encoding->addItem(tr("UTF-8"), int(TextEncoding::Utf8));
    d->encoding->addItem(tr("UTF-16"), int(TextEncoding::Utf16LittleEndian));
    d->encoding->addItem(tr("UTF-16, big endian"), int(TextEncoding::Utf16BigEndian));
    d->encoding->addItem(tr("Western (Windows 1252)"), int(TextEncoding::Windows1252));
    row->addStretch();
    layout->addLayout(row);
    d->hasHeader = new QCheckBox(tr("The first row names the &columns"));
    d->hasHeader->setObjectName(QStringLiteral("hasHeader"));
    layout->addWidget(d->hasHeader);
    for (QComboBox *box : {d->separator, d->quote, d->decimalSign, d->encoding})
        connect(box, &QComboBox::currentIndexChanged, this, &TableImportDialog::readAnew);
    connect(d->hasHeader, &QCheckBox::toggled, this, &TableImportDialog::readAnew);
}

void TableImportDialog::buildProblems(QBoxLayout *layout)
{
    d->problemText = new QLabel;
    d->problemText->setObjectName(QStringLiteral("problemText"));
    d->problemText->setWordWrap(true);
    d->problemText->setTextFormat(Qt::PlainText);
    d->problemText->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    layout->addWidget(d->problemText);
    d->problemModel = new ImportProblemModel(d->shared, this);
    d->problems = new QTableView;
    d->problems->setObjectName(QStringLiteral("importProblems"));
    d->problems->setAccessibleName(tr("Problems"));
    d->problems->setModel(d->problemModel);
    d->problems->setSelectionBehavior(QAbstractItemView::SelectRows);
    d->problems->setEditTriggers(QAbstractItemView::NoEditTriggers);
    d->problems->setTabKeyNavigation(false);
    d->problems->setWordWrap(false);
    d->problems->verticalHeader()->hide();
    d->problems->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    d->problems->horizontalHeader()->setStretchLastSection(true);
    layout->addWidget(d->problems, 1);
    d->takeFaulty = new QCheckBox(tr("&Take rows with problems too, and mark their cells"));
    d->takeFaulty->setObjectName(QStringLiteral("takeFaulty"));
    layout->addWidget(d->takeFaulty);
    connect(d->takeFaulty, &QCheckBox::toggled, this, &TableImportDialog::showState);
    connect(d->problems->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &current) { showProblem(current.row()); });
}

void TableImportDialog::buildButtons(QBoxLayout *layout)
{
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    d->accept = buttons->button(QDialogButtonBox::Ok);
    d->accept->setObjectName(QStringLiteral("importButton"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
}

void TableImportDialog::readAnew()
{
    TableTextFormat format;
    format.separator = char(d->separator->currentData().toInt());
    format.quote = char(d->quote->currentData().toInt());
    format.decimalSign = NumberText::DecimalSign(d->decimalSign->currentData().toInt());
    format.encoding = TextEncoding(d->encoding->currentData().toInt());
    format.hasHeader = d->hasHeader->isChecked();
    d->import.setFormat(format);
    showMapping();
    showState();
}

void TableImportDialog::showFormat(const TableTextFormat &format)
{
    choose(d->separator, format.separator);
    choose(d->quote, format.quote);
    choose(d->decimalSign, format.decimalSign);
    choose(d->encoding, format.encoding);
    const QSignalBlocker blocker(d->hasHeader);
    d->hasHeader->setChecked(format.hasHeader);
}

void TableImportDialog::showMapping()
{
    d->previewModel->refresh();
    d->targets.clear();
    for (int field = 0; field < d->previewModel->columnCount(); ++field) {
        QComboBox *const target = importChoice(tr("%1 goes to").arg(d->import.fieldNames()[field]));
        target->addItem(tr("(left out)"), -1);
        for (int column = 0; column < d->columns.size(); ++column)
            target->addItem(d->columns[column].header(), column);
        choose(target, d->import.mapping()[field]);
        connect(target, &QComboBox::currentIndexChanged, this, &TableImportDialog::mapAnew);
        d->targets.append(target);
        d->preview->setIndexWidget(d->previewModel->index(0, field), target);
    }
    d->preview->horizontalHeader()->setResizeContentsPrecision(50);
    d->preview->resizeColumnsToContents();
    if (!d->targets.isEmpty())
        d->preview->setRowHeight(0, d->targets.constFirst()->sizeHint().height());
    for (int field = 0; field < d->targets.size(); ++field) {
        const int needed = std::max(d->preview->columnWidth(field), d->targets[field]->sizeHint().width());
        d->preview->setColumnWidth(field, needed + fontMetrics().height());
    }
}

void TableImportDialog::mapAnew()
{
    const auto *const changed = qobject_cast<QComboBox *>(sender());
    QList<int> mapping;
    for (QComboBox *target : std::as_const(d->targets)) {
        // A column takes one field: the one that was chosen last.
        const bool isTaken = changed && target != changed && target->currentData() == changed->currentData();
        if (isTaken)
            choose(target, -1);
        mapping.append(target->currentData().toInt());
    }
    d->import.setMapping(mapping);
    d->preview->viewport()->update();
    showState();
}

void TableImportDialog::showState()
{
    d->problemModel->refresh();
    d->problems->resizeColumnsToContents();
    const Error &fault = d->import.fault();
    const int faulty = d->import.faultyRecordCount();
    d->problemPane->setVisible(fault.hasError() || faulty > 0);
    d->problems->setVisible(faulty > 0);
    d->takeFaulty->setVisible(faulty > 0);
    QStringList texts;
    if (fault.hasError()) {
        const QString told = (fault.errorMessages() + fault.details()).join(u' ');
        texts.append(tr("The file can't be read to its end: %1").arg(told));
    }
    if (faulty > 0)
        texts.append(tr("Rows with problems: %1.").arg(faulty));
    if (d->import.problemCount() > d->import.problems().size())
        texts.append(tr("The first %1 of %2 problems are listed.")
                         .arg(d->import.problems().size())
                         .arg(d->import.problemCount()));
    d->problemText->setText(texts.join(u' '));
    const int taken = d->import.recordCount() - (d->takeFaulty->isChecked() ? 0 : faulty);
    const bool isAnyMapped = d->import.mapping().count(-1) < d->import.mapping().size();
    d->accept->setText(tr("Import Rows (%1)").arg(locale().toString(taken)));
    d->accept->setEnabled(taken > 0 && isAnyMapped);
}

void TableImportDialog::showProblem(int row)
{
    if (row < 0 || row >= d->import.problems().size())
        return;
    const TableImportProblem &problem = d->import.problems()[row];
    const QModelIndex cell = d->previewModel->index(problem.record + 1, std::max(0, problem.field));
    d->preview->setCurrentIndex(cell);
    d->preview->scrollTo(cell);
}

} // namespace orv
