#include "orv/widgets/GlycanTableWidget.h"

#include "../scientific/AsReadFields.h"
#include "../scientific/SequenceColumns.h"

#include <orv/chemistry/DetachedGlycanUtils.h>
#include <orv/chemistry/GlycanComposition.h>
#include <orv/table_model/NumberText.h>
#include <orv/table_model/RecordSheet.h>
#include <orv/table_model/RowNodeBinding.h>

namespace orv {

namespace {

constexpr int kCompositionAt = 1;

using GlycanRecords = RecordSheet<Glycan>;

/// A member that a cell may not be able to fill.
GlycanRecords::Field numberField(const QString &column, std::optional<double> Glycan::*member)
{
    return {column,
            [column, member](const Glycan &glycan) {
                return glycan.*member ? RowNodeBinding::textOf(*(glycan.*member))
                                      : RowNodeBinding::textOf(glycan.cellsAsRead.value(column));
            },
            [column, member](Glycan *glycan, const QString &text) {
                glycan->*member = NumberText::value(text);
                glycan->cellsAsRead.remove(column);
                if (!text.isEmpty() && !(glycan->*member))
                    glycan->cellsAsRead.insert(column, text);
            }};
}

QString problemOfGlycan(QStringView text)
{
    if (text.trimmed().isEmpty())
        return {};
    const Result<GlycanComposition> composition = GlycanComposition::parse(text.toString());
    return composition.hasError() ? composition.error().details().join(u' ') : QString();
}

QList<GlycanRecords::Field> glycanFields()
{
    return {textFieldOf(QStringLiteral("Name"), &Glycan::name),
            textFieldOf(QStringLiteral("Composition"), &Glycan::composition),
            numberField(QStringLiteral("Mass"), &Glycan::massDa),
            textFieldOf(QStringLiteral("Label"), &Glycan::label),
            numberField(QStringLiteral("RetentionTime"), &Glycan::retentionTimeMinutes)};
}

} // namespace

/// What columns go by beside their row.
struct GlycanTableWidget::Shared
{
    GlycanOptions options =
        GlycanOptions::fromRowNode(DetachedGlycanUtils::defaultOptionsRowNode()).valueOr({});

    [[nodiscard]] std::optional<ChemicalFormula> formulaOf(const QString &composition) const;
    [[nodiscard]] static QList<TableColumn> columns(const std::shared_ptr<Shared> &shared);
};

std::optional<ChemicalFormula> GlycanTableWidget::Shared::formulaOf(const QString &composition) const
{
    Glycan glycan;
    glycan.composition = composition;
    const Result<ChemicalFormula> formula = options.formula(glycan);
    return formula.hasError() ? std::nullopt : std::optional(*formula);
}

QList<TableColumn> GlycanTableWidget::Shared::columns(const std::shared_ptr<Shared> &shared)
{
    using Kind = TableColumnKind;
    TableColumn name{.name = QStringLiteral("Name"), .title = tr("Name")};
    name.explanation = tr("What the glycan is called, such as G0F.");
    TableColumn composition{.name = QStringLiteral("Composition"), .title = tr("Composition")};
    composition.explanation = tr("Monosaccharides with their counts, such as HexNAc(4)Hex(3)Fuc(1).");
    composition.check = problemOfGlycan;
    TableColumn mass{
        .name = QStringLiteral("Mass"), .title = tr("Mass"), .unit = tr("Da"), .kind = Kind::Number};
    mass.explanation =
        tr("Mass of the neutral, unlabelled glycan in Da; empty where it follows from the composition.");
    TableColumn label{.name = QStringLiteral("Label"), .title = tr("Label")};
    label.explanation = tr("Name of the label at the reducing end; empty for none.");
    TableColumn time{.name = QStringLiteral("RetentionTime"),
                     .title = tr("Retention time"),
                     .unit = tr("min"),
                     .kind = Kind::Number};
    time.minimum = 0;
    time.explanation = tr("Expected retention time in minutes.");
    TableColumn calculated{.name = QStringLiteral("calculated"),
                           .title = tr("Calculated mass"),
                           .unit = tr("Da"),
                           .kind = Kind::Number};
    calculated.explanation =
        tr("Monoisotopic mass in Da that follows from the composition, neutral and unlabelled.");
    calculated.derive = [shared](const QStringList &texts) {
        const auto formula = shared->formulaOf(texts[kCompositionAt]);
        return formula ? textOfMonoisotopicMass(formula->monoisotopicMass()) : QString();
    };
    TableColumn formula{.name = QStringLiteral("formula"), .title = tr("Formula")};
    formula.explanation = tr("Atoms that follow from the composition.");
    formula.derive = [shared](const QStringList &texts) {
        const auto found = shared->formulaOf(texts[kCompositionAt]);
        return found ? found->toString() : QString();
    };
    return {name, composition, mass, label, time, calculated, formula};
}

class GlycanTableWidget::Private
{
public:
    Private(TableSheet *sheet, std::shared_ptr<Shared> ofColumns)
        : shared(std::move(ofColumns))
        , glycans(sheet, glycanFields())
    {}

    std::shared_ptr<Shared> shared;
    GlycanRecords glycans;
};

GlycanTableWidget::GlycanTableWidget(QWidget *parent)
    : GlycanTableWidget(std::make_shared<Shared>(), parent)
{}

GlycanTableWidget::GlycanTableWidget(const std::shared_ptr<Shared> &shared, QWidget *parent)
    : ScientificTableWidget(Shared::columns(shared), tr("Released glycans"), QStringLiteral("Glycans"),
                            parent)
    , d(std::make_unique<Private>(sheet(), shared))
{}

GlycanTableWidget::~GlycanTableWidget() = default;

GlycanTable GlycanTableWidget::table() const
{
    return GlycanTable(d->glycans.records());
}

void GlycanTableWidget::setTable(const GlycanTable &table)
{
    const Error error = d->glycans.load(table.glycans());
    noteLoad(error);
}

void GlycanTableWidget::setGlycanOptions(const GlycanOptions &options)
{
    d->shared->options = options;
    sheet()->deriveAnew();
}

} // namespace orv
