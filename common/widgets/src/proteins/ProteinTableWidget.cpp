#include "orv/widgets/ProteinTableWidget.h"

#include "../scientific/SequenceColumns.h"
#include "../scientific/SequenceView.h"
#include "DigestBar.h"
#include "FastaRows.h"

#include <orv/chemistry/ChemistryConstants.h>
#include <orv/chemistry/ProteinGenerator.h>
#include <orv/chemistry/ProteinUtils.h>
#include <orv/table_model/RowNodeBinding.h>
#include <orv/table_model/TableModel.h>
#include <orv/widgets/ExtendedTreeView.h>
#include <orv/widgets/ProteinTreeTable.h>
#include <orv/widgets/TableEditor.h>

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>

namespace orv {

namespace {

constexpr int kAccessionAt = 0;
constexpr int kAliasAt = 1;
constexpr int kProteinSequenceAt = 2;
constexpr int kAverageAt = 5;

} // namespace

/// What columns go by beside their row.
struct ProteinTableShared
{
    std::shared_ptr<SequenceSource> source = std::make_shared<SequenceSource>();
    ChainType type = ChainType::Protein;
};

namespace {

QList<TableColumn> proteinColumns(const std::shared_ptr<ProteinTableShared> &shared)
{
    const auto typeOf = [shared](const QStringList &) { return shared->type; };
    TableColumn name{.name = kProteinAccessionName, .title = ProteinTableWidget::tr("Accession")};
    name.explanation = ProteinTableWidget::tr("By which annotations and disulfide bonds name the protein.");
    TableColumn alias{.name = kProteinAliasName, .title = ProteinTableWidget::tr("Name")};
    alias.explanation = ProteinTableWidget::tr("What the protein is called, for people.");
    TableColumn sequence{.name = kProteinSequence,
                         .title = ProteinTableWidget::tr("Sequence"),
                         .kind = TableColumnKind::Sequence};
    sequence.explanation = ProteinTableWidget::tr("One-letter code, without blanks.");
    sequence.check = [shared](QStringView text) {
        return shared->source->problemOf(text.toString(), shared->type);
    };
    QList<TableColumn> columns = {name, alias, sequence};
    for (const SequenceFigure figure :
         {SequenceFigure::Length, SequenceFigure::MonoisotopicMass, SequenceFigure::AverageMass,
          SequenceFigure::CleavageSites, SequenceFigure::Coverage, SequenceFigure::Formula})
        columns.append(sequenceFigureColumn(figure, shared->source, kProteinSequenceAt, typeOf));
    return columns;
}

} // namespace

class ProteinTableWidget::Private
{
public:
    Private(TableSheet *sheet, std::shared_ptr<ProteinTableShared> ofColumns)
        : shared(std::move(ofColumns))
        , rows(sheet)
    {}

    std::shared_ptr<ProteinTableShared> shared;
    RowNodeBinding rows;
    DigestBar *digest = nullptr;
    SequenceView *sequence = nullptr;
    QLabel *figures = nullptr;
    ProteinTreeTable *tree = nullptr;
    ExtendedTreeView *treeView = nullptr;
    QTabWidget *pages = nullptr;
    QList<ProteinAnnotationEntry> annotations;
    bool isAverageMassVisible = false;
};

namespace {

/// The base makes its columns before members exist, so that what they share comes first.
std::shared_ptr<ProteinTableShared> newProteinShared()
{
    auto shared = std::make_shared<ProteinTableShared>();
    shared->source->isMassNeeded = false;
    return shared;
}

} // namespace

ProteinTableWidget::ProteinTableWidget(QWidget *parent)
    : ProteinTableWidget(newProteinShared(), parent)
{}

ProteinTableWidget::ProteinTableWidget(const std::shared_ptr<ProteinTableShared> &shared, QWidget *parent)
    : ScientificTableWidget(proteinColumns(shared), tr("Proteins"), QStringLiteral("Proteins"), parent)
    , d(std::make_unique<Private>(sheet(), shared))
{
    build();
    takeDigest();
    updateColumnsVisibility();
    addFromRowNode(ProteinUtils::defaultRowNode());
}

ProteinTableWidget::~ProteinTableWidget()
{
    sheet()->disconnect(this);
}

void ProteinTableWidget::build()
{
    d->digest = new DigestBar;
    insertAbove(d->digest);
    d->sequence = new SequenceView;
    d->figures = new QLabel;
    d->figures->setObjectName(QStringLiteral("figures"));
    d->figures->setTextFormat(Qt::PlainText);
    d->figures->setTextInteractionFlags(Qt::TextSelectableByMouse);
    d->figures->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto *const sequencePage = new QWidget;
    auto *const sequenceLayout = new QVBoxLayout(sequencePage);
    sequenceLayout->addWidget(d->sequence, 1);
    sequenceLayout->addWidget(d->figures);
    d->tree = new ProteinTreeTable(this);
    d->treeView = new ExtendedTreeView;
    d->treeView->setObjectName(QStringLiteral("peptides"));
    d->treeView->setAccessibleName(tr("Peptides of the digest"));
    d->treeView->setModel(d->tree);
    d->treeView->header()->resizeSection(0, fontMetrics().averageCharWidth() * 40);
    d->pages = new QTabWidget;
    d->pages->setAccessibleName(tr("Sequence and peptides"));
    d->pages->addTab(sequencePage, tr("&Sequence"));
    d->pages->addTab(d->treeView, tr("&Peptides"));
    d->pages->setMinimumHeight(fontMetrics().height() * 8);
    d->pages->setMaximumHeight(fontMetrics().height() * 16);
    insertBelow(d->pages);
    const FastaColumns columns{sheet()->columnCount(), kAccessionAt, kAliasAt, kProteinSequenceAt};
    view()->setTextReader([columns](const QByteArray &text) { return readFastaRows(text, columns); });
    view()->setEmptyText(view()->emptyText() + u'\n' + tr("Or paste or drop sequences as FASTA."));
    connect(d->digest, &DigestBar::edited, this, &ProteinTableWidget::takeDigest);
    connect(view()->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &ProteinTableWidget::showCurrent);
    connect(model(), &QAbstractItemModel::dataChanged, this, &ProteinTableWidget::showCurrent);
    connect(model(), &QAbstractItemModel::modelReset, this, &ProteinTableWidget::showCurrent);
    connect(model(), &QAbstractItemModel::rowsRemoved, this, &ProteinTableWidget::showCurrent);
    connect(this, &ScientificTableWidget::contentChanged, this, &ProteinTableWidget::proteinsChanged);
}

RowNode ProteinTableWidget::rowNode() const
{
    return d->rows.table();
}

void ProteinTableWidget::addFromRowNode(const RowNode &table)
{
    const Error error = d->rows.load(table);
    noteLoad(error, d->rows.noteOnUnshown());
    d->treeView->refreshDelegates();
}

ProteinTreeTable *ProteinTableWidget::proteinTreeTable() const
{
    return d->tree;
}

ExtendedTreeView *ProteinTableWidget::getExtendedTreeView() const
{
    return d->treeView;
}

void ProteinTableWidget::setAsDigestedOligoProject(bool isOligo)
{
    const ChainType type = isOligo ? ChainType::Rna : ChainType::Protein;
    if (type == d->shared->type)
        return;
    d->shared->type = type;
    d->digest->setVisible(!isOligo);
    d->pages->setTabVisible(d->pages->indexOf(d->treeView), !isOligo);
    updateColumnsVisibility();
    sheet()->deriveAnew();
}

void ProteinTableWidget::setAverageMassVisible(bool isVisible)
{
    d->isAverageMassVisible = isVisible;
    view()->setColumnShown(kAverageAt, isVisible);
    // Columns that were hidden had no room when the others were fitted.
    if (isVisible)
        view()->resizeColumnToContents(kAverageAt);
}

void ProteinTableWidget::setFastaCheckerRule(bool isMassNeeded)
{
    if (isMassNeeded == d->shared->source->isMassNeeded)
        return;
    d->shared->source->isMassNeeded = isMassNeeded;
    sheet()->deriveAnew();
}

void ProteinTableWidget::adjustHeaderSize()
{
    view()->fitColumns();
}

void ProteinTableWidget::updateColumnsVisibility()
{
    const bool isProtein = d->shared->type == ChainType::Protein;
    view()->setColumnShown(kAverageAt, d->isAverageMassVisible);
    for (const char *const name : {"sites", "coverage"})
        view()->setColumnShown(sheet()->columnOf(QString::fromLatin1(name)), isProtein);
}

std::optional<ProteinDigestionItem> ProteinTableWidget::digestRule() const
{
    return d->digest->rule();
}

DigestionLimits ProteinTableWidget::digestLimits() const
{
    return d->digest->limits();
}

void ProteinTableWidget::takeDigest()
{
    d->shared->source->rule = d->digest->rule();
    d->shared->source->limits = d->digest->limits();
    d->shared->source->forget();
    sheet()->deriveAnew();
}

QHash<QString, QString> ProteinTableWidget::sequences() const
{
    QHash<QString, QString> sequences;
    for (int row = 0; row < sheet()->rowCount(); ++row) {
        const QStringView accession = sheet()->text(row, kAccessionAt);
        const QString name = (accession.isEmpty() ? sheet()->text(row, kAliasAt) : accession).toString();
        sequences.insert(name, ProteinGenerator::cleanSequence(
                                   sheet()->text(row, kProteinSequenceAt).toString(), d->shared->type));
    }
    return sequences;
}

void ProteinTableWidget::showAnnotations(const QList<ProteinAnnotationEntry> &annotations)
{
    d->annotations = annotations;
    showCurrent();
}

void ProteinTableWidget::showCurrent()
{
    const QModelIndex current = view()->currentIndex();
    const int row = current.isValid() ? model()->sheetRow(current.row()) : -1;
    const QString name = row < 0 ? QString() : sheet()->text(row, kAccessionAt).toString();
    const QString sequence =
        row < 0 ? QString()
                : ProteinGenerator::cleanSequence(sheet()->text(row, kProteinSequenceAt).toString(),
                                                  d->shared->type);
    const SequenceFigures figures = SequenceFigures::of(sequence, d->shared->type);
    SequenceView::Marks marks;
    marks.unknown = figures.unknownPlaces;
    if (d->shared->source->rule && d->shared->type == ChainType::Protein)
        marks.cuts = d->shared->source->digestOf(sequence).places;
    for (const ProteinAnnotationEntry &annotation : std::as_const(d->annotations)) {
        if (annotation.protein == name && row >= 0)
            marks.stretches.append({annotation.begin - 1, annotation.end - 1, QColor(annotation.colour)});
    }
    d->sequence->showSequence(sequence, marks);
    QStringList told;
    if (figures.formula)
        told.append({figures.formula->toString(),
                     tr("monoisotopic %1 Da").arg(textOfMonoisotopicMass(figures.monoisotopicMassDa)),
                     tr("average %1 Da").arg(textOfAverageMass(figures.averageMassDa))});
    if (!figures.unknownPlaces.isEmpty())
        told.append(tr("letters without mass: %1").arg(figures.unknownPlaces.size()));
    else if (!figures.problem.isEmpty())
        told.append(figures.problem);
    d->figures->setText(told.join(QLatin1String(", ")));
    d->sequence->setAccessibleDescription(d->figures->text());
}

QString ProteinTableWidget::toPlainText() const
{
    return ScientificTableWidget::toPlainText() + u'\n' + d->treeView->toPlainText();
}

} // namespace orv
