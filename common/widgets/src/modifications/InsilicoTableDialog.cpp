#include "orv/widgets/InsilicoTableDialog.h"

#include "../proteins/DigestBar.h"
#include "../proteins/ProteinDigest.h"
#include "../scientific/SequenceColumns.h"
#include "../table/CheckList.h"

#include <orv/chemistry/ChemistryConstants.h>
#include <orv/chemistry/DisulfideUtils.h>
#include <orv/chemistry/ProteinGenerator.h>
#include <orv/table_model/RowNodeBinding.h>
#include <orv/widgets/ScientificTableWidget.h>
#include <orv/widgets/TableView.h>

#include <QDialogButtonBox>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QScreen>
#include <QSet>
#include <QSplitter>
#include <QVBoxLayout>

namespace orv {

namespace {

constexpr int kPeptideProteinAt = 1;
constexpr int kPeptideBeginAt = 2;

QList<TableColumn> peptideColumns(const std::shared_ptr<SequenceSource> &source)
{
    using Kind = TableColumnKind;
    const auto ofProtein = [](const QStringList &) { return ChainType::Protein; };
    TableColumn sequence{.name = QStringLiteral("Sequence"),
                         .title = InsilicoTableDialog::tr("Sequence"),
                         .kind = Kind::Sequence};
    sequence.isRequired = true;
    sequence.explanation = InsilicoTableDialog::tr("Residues in one-letter code.");
    sequence.check = [source](QStringView text) {
        return source->problemOf(text.toString(), ChainType::Protein);
    };
    TableColumn protein{.name = QStringLiteral("Protein"), .title = InsilicoTableDialog::tr("Protein")};
    protein.explanation = InsilicoTableDialog::tr("Protein that the peptide is a piece of.");
    TableColumn begin{.name = QStringLiteral("Begin"),
                      .title = InsilicoTableDialog::tr("First residue"),
                      .kind = Kind::Integer};
    begin.minimum = 1;
    begin.explanation = InsilicoTableDialog::tr("Place of the first residue in the protein, counted from 1.");
    TableColumn modifications{.name = QStringLiteral("Modifications"),
                              .title = InsilicoTableDialog::tr("Modifications")};
    modifications.explanation = InsilicoTableDialog::tr("Modifications that the peptide carries.");
    TableColumn bonds{.name = QStringLiteral("Disulfides"),
                      .title = InsilicoTableDialog::tr("Disulfide bonds")};
    bonds.explanation = InsilicoTableDialog::tr("Bonds of cysteines of the peptide.");
    TableColumn charge{
        .name = QStringLiteral("Charge"), .title = InsilicoTableDialog::tr("Charge"), .kind = Kind::Integer};
    charge.explanation = InsilicoTableDialog::tr("Charge in which the peptide is looked for; empty for any.");
    TableColumn time{.name = QStringLiteral("RetentionTime"),
                     .title = InsilicoTableDialog::tr("Retention time"),
                     .unit = InsilicoTableDialog::tr("min"),
                     .kind = Kind::Number};
    time.minimum = 0;
    time.explanation = InsilicoTableDialog::tr("Expected retention time in minutes.");
    return {sequence,
            protein,
            begin,
            modifications,
            bonds,
            charge,
            time,
            sequenceFigureColumn(SequenceFigure::Length, source, 0, ofProtein),
            sequenceFigureColumn(SequenceFigure::MonoisotopicMass, source, 0, ofProtein),
            sequenceFigureColumn(SequenceFigure::AverageMass, source, 0, ofProtein)};
}

struct DigestibleProtein
{
    QString name;
    QString sequence;
};

QList<DigestibleProtein> proteinsOf(const RowNode &table)
{
    QList<DigestibleProtein> proteins;
    for (int row = 0; row < table.getChildListSize(); ++row) {
        const auto cell = [&](QLatin1String column) {
            return RowNodeBinding::textOf(table.getChild(row)->data.value(table.data.indexOf(column)));
        };
        const QString accession = cell(kProteinAccessionName);
        proteins.append({accession.isEmpty() ? cell(kProteinAliasName) : accession,
                         ProteinGenerator::cleanSequence(cell(kProteinSequence), ChainType::Protein)});
    }
    return proteins;
}

/// "C22-C96, C140-LC C214" for the bonds that begin or end in a stretch of a protein.
QString bondsIn(const QList<Disulfide::Bond> &bonds, const QString &protein, int first, int last)
{
    QStringList texts;
    for (const Disulfide::Bond &bond : bonds) {
        const auto isInside = [&](const QString &chain, int position) {
            return chain == protein && position >= first && position <= last;
        };
        if (!isInside(bond.firstChain, bond.firstPosition) &&
            !isInside(bond.secondChain, bond.secondPosition))
            continue;
        const auto endOf = [&](const QString &chain, int position) {
            const QString cysteine = u'C' + QString::number(position);
            return chain == protein ? cysteine : chain + u' ' + cysteine;
        };
        texts.append(endOf(bond.firstChain, bond.firstPosition) + u'-' +
                     endOf(bond.secondChain, bond.secondPosition));
    }
    return texts.join(QLatin1String(", "));
}

QString keyOf(const QStringList &peptide)
{
    return peptide[0] + u'\n' + peptide[kPeptideProteinAt] + u'\n' + peptide[kPeptideBeginAt];
}

} // namespace

class InsilicoTableDialog::Private
{
public:
    std::shared_ptr<SequenceSource> source = std::make_shared<SequenceSource>();
    QList<Disulfide::Bond> bonds;
    ScientificTableWidget *table = nullptr;
    std::unique_ptr<RowNodeBinding> rows;
    QList<DigestibleProtein> proteins;
    CheckList *checks = nullptr;
    DigestBar *digest = nullptr;
    QLabel *state = nullptr;
    QHash<quint32, QStringList> digested; ///< rows that a digest has made, with what it wrote
};

InsilicoTableDialog::InsilicoTableDialog(const RowNode &proteins, const RowNode &disulfides, QWidget *parent)
    : QDialog(parent)
    , d(std::make_unique<Private>())
{
    setWindowTitle(tr("Theoretical Peptides"));
    setObjectName(QStringLiteral("InsilicoTableDialog"));
    const auto bonds = Disulfide::DisulfideUtils::bondsFromRowNode(disulfides);
    build(proteins);
    if (bonds.hasError())
        d->state->setText((bonds.error().errorMessages() + bonds.error().details()).join(u' '));
    else
        d->bonds = *bonds;
}

InsilicoTableDialog::~InsilicoTableDialog() = default;

void InsilicoTableDialog::build(const RowNode &proteins)
{
    d->table = new ScientificTableWidget(peptideColumns(d->source), tr("Theoretical peptides"),
                                         QStringLiteral("InsilicoPeptides"));
    d->table->setObjectName(QStringLiteral("peptides"));
    d->rows = std::make_unique<RowNodeBinding>(d->table->sheet());
    d->proteins = proteinsOf(proteins);
    QList<CheckList::Line> lines;
    for (const DigestibleProtein &protein : std::as_const(d->proteins))
        lines.append({protein.name, tr("%1: %2 residues").arg(protein.name).arg(protein.sequence.size())});
    d->checks = new CheckList(lines, this);
    d->digest = new DigestBar;
    d->state = new QLabel;
    d->state->setObjectName(QStringLiteral("state"));
    d->state->setWordWrap(true);
    d->state->setTextFormat(Qt::PlainText);
    auto *const list = new QListView;
    list->setObjectName(QStringLiteral("proteins"));
    list->setAccessibleName(tr("Proteins that are digested"));
    list->setToolTip(tr("Check the proteins whose peptides are expected."));
    list->setModel(d->checks);
    list->setUniformItemSizes(true);
    auto *const all = new QPushButton(tr("&All Proteins"));
    all->setObjectName(QStringLiteral("allProteins"));
    all->setAutoDefault(false);
    all->setToolTip(tr("Checks every protein."));
    auto *const left = new QWidget;
    auto *const leftLayout = new QVBoxLayout(left);
    leftLayout->setContentsMargins({});
    leftLayout->addWidget(list, 1);
    leftLayout->addWidget(all);
    auto *const splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(left);
    splitter->addWidget(d->table);
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 5);
    list->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    left->setMinimumWidth(fontMetrics().averageCharWidth() * 28);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(d->digest);
    layout->addWidget(splitter, 1);
    layout->addWidget(d->state);
    layout->addWidget(buttons);
    connect(all, &QPushButton::clicked, d->checks, &CheckList::checkAll);
    connect(d->checks, &CheckList::checkedChanged, this, &InsilicoTableDialog::digest);
    connect(d->digest, &DigestBar::edited, this, &InsilicoTableDialog::digest);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    constexpr int kLetters = 190;
    constexpr int kInTenths = 9;
    const QSize wanted(fontMetrics().averageCharWidth() * kLetters, fontMetrics().height() * 36);
    resize(wanted.boundedTo(screen()->availableSize() * kInTenths / 10));
}

RowNode InsilicoTableDialog::insilicoPeptides() const
{
    return d->rows->table();
}

void InsilicoTableDialog::setInsilicoPeptides(const RowNode &peptides)
{
    d->digested.clear();
    const Error error = d->rows->load(peptides);
    d->table->noteLoad(error, d->rows->noteOnUnshown());
}

void InsilicoTableDialog::digest()
{
    if (!d->digest->rule())
        return; // what is typed is no rule yet
    TableSheet *const sheet = d->table->sheet();
    QList<int> old;
    QSet<QString> present;
    for (int row = 0; row < sheet->rowCount(); ++row) {
        const QStringList texts = sheet->texts(row);
        const auto made = d->digested.constFind(sheet->rowId(row));
        // A row that somebody has edited is theirs.
        if (made != d->digested.cend() && *made == texts.mid(0, made->size()))
            old.append(row);
        else
            present.insert(keyOf(texts));
    }
    QList<QStringList> rows;
    bool isCut = false;
    for (const int checked : d->checks->checkedRows()) {
        const DigestibleProtein &protein = d->proteins[checked];
        if (isCut)
            break;
        for (const DigestedPeptide &peptide :
             digestOfProtein(protein.sequence, d->digest->rule(), d->digest->limits(), kMostPeptides)) {
            const int begin = peptide.offset + 1;
            const QStringList row = {
                peptide.sequence,
                protein.name,
                QString::number(begin),
                QString(),
                bondsIn(d->bonds, protein.name, begin, peptide.offset + int(peptide.sequence.size())),
                QString(),
                QString()};
            isCut = isCut || rows.size() >= kMostPeptides;
            if (!isCut && !present.contains(keyOf(row)))
                rows.append(row);
        }
    }
    sheet->removeRows(old);
    d->digested.clear();
    const int first = sheet->rowCount();
    const Error error = sheet->insertRows(first, rows, tr("digest"));
    if (first == 0)
        d->table->view()->fitColumns();
    for (int row = first; row < sheet->rowCount(); ++row)
        d->digested.insert(sheet->rowId(row), rows[row - first]);
    d->state->setText(error.hasError() ? error.errorMessage()
                      : isCut
                          ? tr("There are more peptides than %1; choose fewer proteins or missed cleavages.")
                                .arg(kMostPeptides)
                          : tr("Peptides of the digest: %1").arg(rows.size()));
}

QString InsilicoTableDialog::toPlainText() const
{
    return d->table->toPlainText() + u'\n' + d->state->text();
}

} // namespace orv
