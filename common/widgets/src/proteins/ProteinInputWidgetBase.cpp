#include "orv/widgets/ProteinInputWidgetBase.h"

#include "ChainColumns.h"
#include "FastaRows.h"

#include <orv/chemistry/ChemistryConstants.h>
#include <orv/chemistry/ProteinGenerator.h>
#include <orv/chemistry/ProteinUtils.h>
#include <orv/table_model/RowNodeBinding.h>
#include <orv/widgets/ScientificTableWidget.h>
#include <orv/widgets/TableEditor.h>

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>

#include <array>

namespace orv {

namespace {

constexpr QLatin1String kDataSource("DataSource");
constexpr QLatin1String kSource("Source");

/// The child that holds a table of the root, null for none.
const RowNode *tableIn(const RowNode &root, const QString &name)
{
    return root.getChild(int(root.data.indexOf(name)));
}

void putTable(RowNode *root, const QString &name, const RowNode &table)
{
    if (!root->data.contains(name))
        root->data.append(name);
    const int place = int(root->data.indexOf(name));
    while (root->getChildListSize() <= place)
        root->addNewChild(VariantItems());
    *root->getChild(place) = table;
}

} // namespace

class ProteinInputWidgetBase::Private
{
public:
    struct Page
    {
        QString table;
        ScientificTableWidget *widget = nullptr;
        std::unique_ptr<RowNodeBinding> rows;
        RowNode loaded; ///< what the sheet showed at first

        void load(const RowNode &root);
    };

    std::shared_ptr<ChainTables> tables = std::make_shared<ChainTables>();
    std::array<Page, 3> pages; ///< chains, proteins, building blocks
    QTabWidget *tabs = nullptr;
    QComboBox *source = nullptr;
    RowNode original;
    RowNode shown; ///< the original as tables of chains and proteins
    QList<SamplesInput::Entry> samples;
    bool areSamplesKnown = false;
    int loadedSource = Typed;
};

void ProteinInputWidgetBase::Private::Page::load(const RowNode &root)
{
    const RowNode *const node = tableIn(root, table);
    const Error error = rows->load(node ? *node : RowNode());
    loaded = rows->table();
    // Those follow from the sequence, or tell where a chain came from.
    widget->noteLoad(error, rows->noteOnUnshown({QStringLiteral("MonoisotopicMass"),
                                                 QStringLiteral("AverageMass"), QString(kisCustom)}));
}

ProteinInputWidgetBase::ProteinInputWidgetBase(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    build();
    addFromRowNode(defaultRowNode());
}

ProteinInputWidgetBase::~ProteinInputWidgetBase()
{
    for (const Private::Page &page : d->pages)
        page.widget->sheet()->disconnect(this);
}

void ProteinInputWidgetBase::build()
{
    d->source = new QComboBox;
    d->source->setObjectName(QStringLiteral("proteinDataSource"));
    d->source->setAccessibleName(tr("Source of the proteins"));
    d->source->setToolTip(
        tr("Whether the proteins are typed here or come with an import of samples and proteins."));
    d->source->setFocusPolicy(Qt::StrongFocus);
    d->source->addItem(tr("typed here"), int(Typed));
    d->source->addItem(tr("from a CSV file with samples"), int(Csv));
    auto *const label = new QLabel(tr("P&roteins:"));
    label->setBuddy(d->source);
    auto *const row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(d->source);
    row->addStretch(1);
    const auto make = [this](Private::Page &page, const QString &table, QList<TableColumn> columns,
                             const QString &title, const QStringList &lists) {
        page.table = table;
        page.widget = new ScientificTableWidget(std::move(columns), title, QStringLiteral("Protein") + table);
        page.widget->setObjectName(table);
        page.widget->hideHeader();
        page.rows = std::make_unique<RowNodeBinding>(page.widget->sheet(), lists);
        connect(page.widget, &ScientificTableWidget::edited, this, &ProteinInputWidgetBase::edited);
    };
    make(d->pages[0], kChains, chainColumns(d->tables), tr("Chains"), {});
    d->tables->chains = d->pages[0].widget->sheet();
    d->tables->chains->setRowRules({chainRule(d->tables)});
    make(d->pages[1], kProteins, builtProteinColumns(d->tables), tr("Proteins"),
         {QStringLiteral("ChainNumbers"), QStringLiteral("SamplesIds")});
    make(d->pages[2], kBuildingBlocks, buildingBlockColumns(), tr("Building blocks"), {});
    d->tabs = new QTabWidget;
    d->tabs->setAccessibleName(tr("Chains, proteins and building blocks"));
    d->tabs->addTab(d->pages[0].widget, tr("&Chains"));
    d->tabs->addTab(d->pages[1].widget, tr("&Built proteins"));
    d->tabs->addTab(d->pages[2].widget, tr("B&uilding blocks"));
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(row);
    layout->addWidget(d->tabs, 1);
    const TableSheet *const sheet = d->pages[0].widget->sheet();
    const FastaColumns columns{sheet->columnCount(), sheet->columnOf(QStringLiteral("Name")), -1,
                               sheet->columnOf(QStringLiteral("Sequence"))};
    d->pages[0].widget->view()->setTextReader(
        [columns](const QByteArray &text) { return readFastaRows(text, columns); });
    connect(d->source, &QComboBox::currentIndexChanged, this, &ProteinInputWidgetBase::edited,
            Qt::QueuedConnection);
    followChains();
}

void ProteinInputWidgetBase::followChains()
{
    const auto renew = [this] { d->pages[1].widget->sheet()->deriveAnew(); };
    const TableSheet *const chains = d->pages[0].widget->sheet();
    connect(chains, &TableSheet::cellsChanged, this, renew);
    connect(chains, &TableSheet::rowsInserted, this, renew);
    connect(chains, &TableSheet::rowsRemoved, this, renew);
    connect(chains, &TableSheet::derivedAnew, this, renew);
    const auto takeBlocks = [this] {
        RowNode root;
        putTable(&root, kChains, RowNode());
        putTable(&root, kBuildingBlocks, d->pages[2].rows->table());
        const auto options = ProteinGenerator::parseInputOptions(root);
        if (options.hasError())
            return;
        const Result<ChemicalFactory> factory =
            ChemicalFactory::defaultFactory().withBuildingBlocks(options->buildingBlocks);
        d->tables->source->factory = factory.hasError() ? ChemicalFactory::defaultFactory() : *factory;
        d->tables->source->forget();
        d->pages[0].widget->sheet()->deriveAnew();
    };
    const TableSheet *const blocks = d->pages[2].widget->sheet();
    connect(blocks, &TableSheet::cellsChanged, this, takeBlocks);
    connect(blocks, &TableSheet::rowsInserted, this, takeBlocks);
    connect(blocks, &TableSheet::rowsRemoved, this, takeBlocks);
    connect(blocks, &TableSheet::loaded, this, takeBlocks);
}

RowNode ProteinInputWidgetBase::defaultRowNode()
{
    return ProteinUtils::defaultInputRowNode();
}

int ProteinInputWidgetBase::proteinDataSource(const RowNode &root)
{
    const RowNode *const table = tableIn(root, kDataSource);
    const RowNode *const row = table ? table->getChild(0) : nullptr;
    return row ? row->data.value(table->data.indexOf(kSource)).toInt() : int(Typed);
}

int ProteinInputWidgetBase::proteinDataSource() const
{
    return d->source->currentData().toInt();
}

void ProteinInputWidgetBase::setProteinDataSource(int source)
{
    if (d->source->findData(source) < 0)
        d->source->addItem(QString::number(source), source);
    const QSignalBlocker silent(d->source);
    d->source->setCurrentIndex(d->source->findData(source));
}

RowNode ProteinInputWidgetBase::getOptionsFromUI() const
{
    const bool isSourceEdited = proteinDataSource() != d->loadedSource;
    bool isEdited = isSourceEdited;
    RowNode root = d->shown;
    for (const Private::Page &page : d->pages) {
        RowNode table = page.rows->table();
        if (!page.rows->isEdited() || table == page.loaded)
            continue;
        isEdited = true;
        if (page.table == kChains)
            renewStoredMasses(&table, page.loaded, *d->tables->source);
        putTable(&root, page.table, table);
    }
    if (isSourceEdited) {
        RowNode table;
        table.data.append(QString(kSource));
        table.addNewChild({proteinDataSource()});
        putTable(&root, kDataSource, table);
    }
    return isEdited ? root : d->original;
}

void ProteinInputWidgetBase::addFromRowNode(const RowNode &root)
{
    d->original = root;
    d->shown = root;
    d->loadedSource = proteinDataSource(root);
    setProteinDataSource(d->loadedSource);
    if (!root.data.isEmpty() && !root.data.contains(kChains)) {
        // A plain table of sequences.
        if (const auto options = ProteinGenerator::parseInputOptions(root); !options.hasError())
            d->shown = options->toRowNode();
    }
    for (Private::Page &page : d->pages)
        page.load(d->shown);
}

void ProteinInputWidgetBase::loadFromCsv(const RowNode &root)
{
    const int source = proteinDataSource();
    addFromRowNode(root);
    // What the file holds isn't what a document held.
    d->original = d->shown;
    setProteinDataSource(source);
}

void ProteinInputWidgetBase::updateSamplesIds(const QList<SamplesInput::Entry> &entries)
{
    d->samples = entries;
    d->areSamplesKnown = true;
    d->tables->samples->set(entries);
    d->pages[1].widget->sheet()->deriveAnew();
}

bool ProteinInputWidgetBase::validate(QStringList *warnings, QStringList *errors) const
{
    const auto options = ProteinGenerator::parseInputOptions(getOptionsFromUI());
    if (options.hasError()) {
        if (errors)
            errors->append((options.error().errorMessages() + options.error().details()).join(u' '));
        return false;
    }
    QList<int> ids;
    for (const SamplesInput::Entry &entry : std::as_const(d->samples))
        ids.append(entry.id);
    // Until somebody tells the samples, none has gone.
    for (const ProteinComplex &protein : options->proteins)
        ids.append(d->areSamplesKnown ? QList<int>() : protein.samplesIds);
    return ProteinUtils::validate(*options, ids, errors, warnings);
}

ScientificTableWidget *ProteinInputWidgetBase::chains() const
{
    return d->pages[0].widget;
}

ScientificTableWidget *ProteinInputWidgetBase::proteins() const
{
    return d->pages[1].widget;
}

ScientificTableWidget *ProteinInputWidgetBase::buildingBlocks() const
{
    return d->pages[2].widget;
}

QString ProteinInputWidgetBase::toPlainText() const
{
    QStringList texts;
    for (const Private::Page &page : d->pages)
        texts.append(page.widget->toPlainText());
    return texts.join(u'\n');
}

} // namespace orv
