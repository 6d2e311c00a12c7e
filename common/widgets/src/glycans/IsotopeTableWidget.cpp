#include "orv/widgets/IsotopeTableWidget.h"

#include <orv/chemistry/IsotopeUtils.h>
#include <orv/table_model/RowNodeBinding.h>

#include <QCoreApplication>

namespace orv {

namespace {

constexpr int kElementAt = 1;
constexpr int kMassNumberAt = 2;

std::optional<double> abundanceOf(QStringView element, QStringView massNumber)
{
    return IsotopeUtils::naturalAbundancePercent(element.trimmed().toString(), massNumber.toInt());
}

QList<TableRowProblem> problemsOfIsotope(const QList<QStringView> &texts)
{
    const QStringView element = texts[kElementAt];
    const QStringView massNumber = texts[kMassNumberAt];
    if (element.isEmpty() || massNumber.isEmpty() || abundanceOf(element, massNumber))
        return {};
    return {
        {kMassNumberAt,
         IsotopeTableWidget::tr("There is no natural isotope \"%1\" of \"%2\".").arg(massNumber, element)}};
}

QList<TableColumn> isotopeColumns()
{
    using Kind = TableColumnKind;
    TableColumn name{.name = QStringLiteral("Name"), .title = IsotopeTableWidget::tr("Name")};
    name.explanation = IsotopeTableWidget::tr("What the label is called; rows of one name belong together.");
    TableColumn element{.name = QStringLiteral("Element"), .title = IsotopeTableWidget::tr("Element")};
    element.isRequired = true;
    element.explanation = IsotopeTableWidget::tr("Symbol of the element, such as C.");
    TableColumn massNumber{.name = QStringLiteral("MassNumber"),
                           .title = IsotopeTableWidget::tr("Mass number"),
                           .kind = Kind::Integer};
    massNumber.minimum = 1;
    massNumber.isRequired = true;
    massNumber.explanation = IsotopeTableWidget::tr("Protons and neutrons of the isotope, such as 13.");
    TableColumn enrichment{.name = QStringLiteral("Enrichment"),
                           .title = IsotopeTableWidget::tr("Enrichment"),
                           .unit = QStringLiteral("%"),
                           .kind = Kind::Number};
    enrichment.minimum = 0;
    enrichment.maximum = 100;
    enrichment.explanation =
        IsotopeTableWidget::tr("Share of the element's atoms in percent; empty for the natural abundance.");
    TableColumn natural{.name = QStringLiteral("natural"),
                        .title = IsotopeTableWidget::tr("Natural abundance"),
                        .unit = QStringLiteral("%"),
                        .kind = Kind::Number};
    natural.explanation = IsotopeTableWidget::tr("Share of the element's atoms in nature, in percent.");
    natural.derive = [](const QStringList &texts) {
        constexpr int kDigits = 4;
        const std::optional<double> abundance = abundanceOf(texts[kElementAt], texts[kMassNumberAt]);
        return abundance ? QString::number(*abundance, 'f', kDigits) : QString();
    };
    return {name, element, massNumber, enrichment, natural};
}

} // namespace

class IsotopeTableWidget::Private
{
public:
    explicit Private(TableSheet *sheet)
        : rows(sheet)
    {}

    RowNodeBinding rows;
};

IsotopeTableWidget::IsotopeTableWidget(QWidget *parent)
    : ScientificTableWidget(isotopeColumns(), tr("Isotopes"), QStringLiteral("Isotopes"), parent)
    , d(std::make_unique<Private>(sheet()))
{
    sheet()->setRowRules({problemsOfIsotope});
    setIsotopeList(IsotopeUtils::defaultRowNode());
}

IsotopeTableWidget::~IsotopeTableWidget() = default;

RowNode IsotopeTableWidget::isotopeList() const
{
    return d->rows.table();
}

void IsotopeTableWidget::setIsotopeList(const RowNode &isotopes)
{
    const Error error = d->rows.load(isotopes);
    noteLoad(error, d->rows.noteOnUnshown());
}

} // namespace orv
