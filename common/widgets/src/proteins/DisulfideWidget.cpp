#include "orv/widgets/DisulfideWidget.h"

#include "DisulfideMap.h"

#include <orv/chemistry/ChemistryConstants.h>
#include <orv/chemistry/DisulfideUtils.h>
#include <orv/chemistry/ProteinGenerator.h>
#include <orv/table_model/RowNodeBinding.h>
#include <orv/widgets/TableEditor.h>

#include <QHash>
#include <QScrollArea>
#include <QSet>

#include <array>

namespace orv {

namespace {

/// Bonds of more chains than a person can tell apart aren't drawn.
constexpr int kDrawnChains = 200;

constexpr int kFirstChainAt = 0;
constexpr int kFirstAt = 1;
constexpr int kSecondChainAt = 2;
constexpr int kSecondAt = 3;

} // namespace

/// What columns go by beside their row.
struct DisulfideWidget::Shared
{
    QStringList names; ///< in the order of the proteins
    QHash<QString, QString> sequences;

    [[nodiscard]] QList<TableRowProblem> problemsOf(const QList<QStringView> &texts) const;
    [[nodiscard]] QString distanceOf(const QStringList &texts) const;
    [[nodiscard]] static QList<TableColumn> columns(const std::shared_ptr<Shared> &shared);
};

QList<TableRowProblem> DisulfideWidget::Shared::problemsOf(const QList<QStringView> &texts) const
{
    QList<TableRowProblem> problems;
    if (sequences.isEmpty())
        return problems;
    for (const auto &[chainAt, positionAt] :
         {std::pair(kFirstChainAt, kFirstAt), std::pair(kSecondChainAt, kSecondAt)}) {
        const QString chain = texts[chainAt].toString();
        const QString fault =
            Disulfide::DisulfideUtils::faultOfEnd(chain, texts[positionAt].toInt(), sequences);
        if (!fault.isEmpty() && !chain.isEmpty())
            problems.append({sequences.contains(chain) ? positionAt : chainAt, fault});
    }
    if (texts[kFirstChainAt] == texts[kSecondChainAt] && texts[kFirstAt] == texts[kSecondAt])
        problems.append({kSecondAt, tr("The bond leads to the cysteine from which it comes.")});
    return problems;
}

QString DisulfideWidget::Shared::distanceOf(const QStringList &texts) const
{
    if (texts[kFirstChainAt] != texts[kSecondChainAt])
        return tr("between chains");
    const int residues = std::abs(texts[kSecondAt].toInt() - texts[kFirstAt].toInt());
    return tr("%1 residues").arg(residues);
}

QList<TableColumn> DisulfideWidget::Shared::columns(const std::shared_ptr<Shared> &shared)
{
    const auto chain = [](const char *name, const QString &title) {
        TableColumn column{.name = QString::fromLatin1(name), .title = title};
        column.isRequired = true;
        column.explanation = tr("Accession of the protein that the cysteine belongs to.");
        return column;
    };
    const auto position = [](const char *name, const QString &title) {
        TableColumn column{
            .name = QString::fromLatin1(name), .title = title, .kind = TableColumnKind::Integer};
        column.minimum = 1;
        column.isRequired = true;
        column.explanation = tr("Place of the cysteine, counted from 1.");
        return column;
    };
    TableColumn span{.name = QStringLiteral("span"), .title = tr("Spans")};
    span.explanation = tr("How far the cysteines lie apart. Follows from their places.");
    span.derive = [shared](const QStringList &texts) { return shared->distanceOf(texts); };
    return {chain("FirstChain", tr("First protein")), position("FirstPosition", tr("First cysteine")),
            chain("SecondChain", tr("Second protein")), position("SecondPosition", tr("Second cysteine")),
            span};
}

class DisulfideWidget::Private
{
public:
    Private(TableSheet *sheet, std::shared_ptr<Shared> ofColumns)
        : shared(std::move(ofColumns))
        , rows(sheet)
    {}

    std::shared_ptr<Shared> shared;
    RowNodeBinding rows;
    DisulfideMap *map = nullptr;
    int loading = 0;
    bool isChanged = false; ///< while presets are loaded
};

DisulfideWidget::DisulfideWidget(QWidget *parent)
    : DisulfideWidget(std::make_shared<Shared>(), parent)
{}

DisulfideWidget::DisulfideWidget(const std::shared_ptr<Shared> &shared, QWidget *parent)
    : ScientificTableWidget(Shared::columns(shared), tr("Disulfide bonds"), QStringLiteral("Disulfide"),
                            parent)
    , d(std::make_unique<Private>(sheet(), shared))
{
    build();
    sheet()->setRowRules({[shared](const QList<QStringView> &texts) { return shared->problemsOf(texts); }});
    setOptionsToUI(Disulfide::DisulfideUtils::defaultRowNode());
    draw();
}

DisulfideWidget::~DisulfideWidget()
{
    sheet()->disconnect(this);
}

void DisulfideWidget::build()
{
    d->map = new DisulfideMap;
    auto *const area = new QScrollArea;
    area->setWidget(d->map);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setMinimumHeight(fontMetrics().height() * 6);
    area->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    insertAbove(area);
    view()->setEmptyText(view()->emptyText() + u'\n' + tr("Or click two cysteines above."));
    connect(d->map, &DisulfideMap::bondWanted, this, &DisulfideWidget::addBond);
    for (auto signal : {&TableSheet::loaded, &TableSheet::rowsReordered})
        connect(sheet(), signal, this, &DisulfideWidget::draw);
    connect(sheet(), &TableSheet::cellsChanged, this, &DisulfideWidget::draw);
    connect(sheet(), &TableSheet::rowsInserted, this, &DisulfideWidget::draw);
    connect(sheet(), &TableSheet::rowsRemoved, this, &DisulfideWidget::draw);
    connect(this, &ScientificTableWidget::contentChanged, this, [this] {
        if (d->loading > 0)
            d->isChanged = true;
        else
            Q_EMIT disulfideDataChanged();
    });
}

RowNode DisulfideWidget::getOptionsFromUI() const
{
    return d->rows.table();
}

void DisulfideWidget::setOptionsToUI(const RowNode &bonds)
{
    const Error error = d->rows.load(bonds);
    noteLoad(error, d->rows.noteOnUnshown());
}

void DisulfideWidget::setProteinData(const RowNode &proteins)
{
    d->shared->names.clear();
    d->shared->sequences.clear();
    for (int row = 0; row < proteins.getChildListSize(); ++row) {
        const RowNode *const protein = proteins.getChild(row);
        const auto cell = [&](QLatin1String column) {
            return RowNodeBinding::textOf(protein->data.value(proteins.data.indexOf(column)));
        };
        const QString accession = cell(kProteinAccessionName);
        const QString name = accession.isEmpty() ? cell(kProteinAliasName) : accession;
        if (!d->shared->sequences.contains(name))
            d->shared->names.append(name);
        d->shared->sequences.insert(
            name, ProteinGenerator::cleanSequence(cell(kProteinSequence), ChainType::Protein));
    }
    sheet()->deriveAnew();
    draw();
}

void DisulfideWidget::draw()
{
    QList<DisulfideMap::Chain> chains;
    QHash<QString, int> places;
    for (const QString &name : std::as_const(d->shared->names)) {
        const QString &sequence = d->shared->sequences[name];
        DisulfideMap::Chain chain{name, int(sequence.size()), {}};
        for (qsizetype at = sequence.indexOf(u'C'); at >= 0; at = sequence.indexOf(u'C', at + 1))
            chain.cysteines.append(int(at) + 1);
        if (chain.cysteines.isEmpty() || chains.size() >= kDrawnChains)
            continue;
        places.insert(name, int(chains.size()));
        chains.append(chain);
    }
    QList<DisulfideMap::Bond> bonds;
    QHash<std::pair<int, int>, int> bound;
    for (int row = 0; row < sheet()->rowCount(); ++row) {
        const auto end = [&](int chainAt, int positionAt) {
            return DisulfideMap::Cysteine{places.value(sheet()->text(row, chainAt).toString(), -1),
                                          sheet()->text(row, positionAt).toInt()};
        };
        const DisulfideMap::Cysteine first = end(kFirstChainAt, kFirstAt);
        const DisulfideMap::Cysteine second = end(kSecondChainAt, kSecondAt);
        const auto stands = [&](const DisulfideMap::Cysteine &one) {
            return one.chain >= 0 && chains[one.chain].cysteines.contains(one.position);
        };
        if (!stands(first) || !stands(second))
            continue;
        const bool isTwice = bound[{first.chain, first.position}]++ > 0;
        const bool isSecondTwice = bound[{second.chain, second.position}]++ > 0;
        bonds.append({first, second, isTwice || isSecondTwice});
    }
    d->map->showBonds(chains, bonds);
}

void DisulfideWidget::addBond(const QString &firstChain, int first, const QString &secondChain, int second)
{
    const QStringList bond = {firstChain, QString::number(first), secondChain, QString::number(second)};
    for (int row = 0; row < sheet()->rowCount(); ++row) {
        const QStringList texts = sheet()->texts(row).mid(0, bond.size());
        const bool isSame = texts == bond || texts == bond.mid(2) + bond.mid(0, 2);
        if (isSame) {
            sheet()->removeRows({row});
            return;
        }
    }
    const Error error = sheet()->insertRows(sheet()->rowCount(), {bond}, tr("add a bond"));
    setNote(error.hasError() ? error.errorMessage() : note());
}

bool DisulfideWidget::validate(QStringList *warnings) const
{
    const auto bonds = Disulfide::DisulfideUtils::bondsFromRowNode(getOptionsFromUI());
    if (bonds.hasError()) {
        if (warnings)
            warnings->append((bonds.error().errorMessages() + bonds.error().details()).join(u' '));
        return false;
    }
    return d->shared->sequences.isEmpty() ||
           Disulfide::DisulfideUtils::validate(*bonds, d->shared->sequences, warnings);
}

void DisulfideWidget::beginPresetLoading()
{
    ++d->loading;
}

void DisulfideWidget::endPresetLoading()
{
    if (d->loading == 0 || --d->loading > 0)
        return;
    if (std::exchange(d->isChanged, false))
        tellChanged();
}

QString DisulfideWidget::toPlainText() const
{
    QStringList lines = {ScientificTableWidget::toPlainText()};
    for (const DisulfideMap::Chain &chain : d->map->chains()) {
        QStringList positions;
        for (const int position : chain.cysteines)
            positions.append(QString::number(position));
        lines.append(tr("Cysteines of %1: %2").arg(chain.name, positions.join(QLatin1String(", "))));
    }
    return lines.join(u'\n');
}

} // namespace orv
