#include "orv/widgets/IsotopeTableWidget.h"

#include <orv/chemistry/IsotopeUtils.h>
#include <orv/table_model/RowNodeBinding.h>

#include <QCoreApplication>

namespace orv {

namespace {

constexpr int kElementAt = 1;
constexpr int kMassNumberAt = 2;

std::optional<double> abundanceOf(const QStringList &texts)
{
    return IsotopeUtils::naturalAbundancePercent(texts[kElementAt].trimmed(), texts[kMassNumberAt].toInt());
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
        const std::optional<double> abundance = abundanceOf(texts);
        return abundance ? QString::number(*abundance, 'f', kDigits) : QString();
    };
    TableColumn state{.name = QStringLiteral("state"), .title = IsotopeTableWidget::tr("State")};
    state.explanation = IsotopeTableWidget::tr("Why there is no such isotope.");
    state.derive = [](const QStringList &texts) {
        return abundanceOf(texts) ? QString()
                                  : IsotopeTableWidget::tr("There is no natural isotope \"%1\" of \"%2\".")
                                        .arg(texts[kMassNumberAt], texts[kElementAt]);
    };
    state.check = [](QStringView text) { return text.toString(); };
    return {name, element, massNumber, enrichment, natural, state};
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
    const QStringList columns = d->rows.columnsNotShown();
    setNote(error.hasError() ? error.errorMessage()
            : columns.isEmpty()
                ? QString()
                : tr("These columns are kept but not shown: %1.").arg(columns.join(QLatin1String(", "))));
}

} // namespace orv
