#include "orv/widgets/GlycanOptionsWidget.h"

#include "../scientific/SequenceColumns.h"

#include <orv/table_model/RecordSheet.h>

#include <QCoreApplication>
#include <QSet>

#include <algorithm>
#include <array>

namespace orv {

namespace {

constexpr int kOptionFormulaAt = 2;

using OptionRecords = RecordSheet<GlycanOption>;

struct OptionKindRow
{
    GlycanOptionKind kind;
    QLatin1String text;
};

// As the kinds stand in files.
constexpr std::array kOptionKinds = {
    OptionKindRow{GlycanOptionKind::Moiety, QLatin1String("Moiety")},
    OptionKindRow{GlycanOptionKind::Label, QLatin1String("Label")},
    OptionKindRow{GlycanOptionKind::Adduct, QLatin1String("Adduct")},
    OptionKindRow{GlycanOptionKind::Derivatization, QLatin1String("Derivatization")},
};

constexpr QLatin1String kAll("all");
constexpr QLatin1String kSome("some");

QString textOfOptionKind(const GlycanOption &option)
{
    return std::find_if(kOptionKinds.begin(), kOptionKinds.end(),
                        [&](const OptionKindRow &row) { return row.kind == option.kind; })
        ->text;
}

void setOptionKind(GlycanOption *option, QStringView text)
{
    for (const OptionKindRow &row : kOptionKinds) {
        if (text == row.text)
            option->kind = row.kind;
    }
}

void setOptionFormula(GlycanOption *option, QStringView text)
{
    const Result<ChemicalFormula> formula = ChemicalFormula::parse(text.toString());
    if (!formula.hasError())
        option->formula = *formula;
}

QList<OptionRecords::Field> optionFields()
{
    return {
        {QStringLiteral("Kind"), textOfOptionKind, setOptionKind},
        {QStringLiteral("Name"), [](const GlycanOption &option) { return option.name; },
         [](GlycanOption *option, QStringView text) { option->name = text.toString(); }},
        {QStringLiteral("Formula"), [](const GlycanOption &option) { return option.formula.toString(); },
         setOptionFormula},
        {QStringLiteral("Complete"),
         [](const GlycanOption &option) { return QString(option.complete ? kAll : kSome); },
         [](GlycanOption *option, QStringView text) { option->complete = text != kSome; }},
    };
}

TableColumn massOfFormula(const char *name, const QString &title, bool isAverage)
{
    TableColumn column{.name = QString::fromLatin1(name),
                       .title = title,
                       .unit = GlycanOptionsWidget::tr("Da"),
                       .kind = TableColumnKind::Number};
    column.explanation = GlycanOptionsWidget::tr("Mass of the formula in Da.");
    column.derive = [isAverage](const QStringList &texts) {
        const Result<ChemicalFormula> formula = ChemicalFormula::parse(texts[kOptionFormulaAt]);
        if (formula.hasError() || formula->isEmpty())
            return QString();
        return isAverage ? textOfAverageMass(formula->averageMass())
                         : textOfMonoisotopicMass(formula->monoisotopicMass());
    };
    return column;
}

QList<TableColumn> optionColumns()
{
    TableColumn kind{.name = QStringLiteral("Kind"),
                     .title = GlycanOptionsWidget::tr("Kind"),
                     .kind = TableColumnKind::Choice};
    for (const OptionKindRow &row : kOptionKinds)
        kind.choices.append(row.text);
    kind.defaultText = kOptionKinds.front().text;
    kind.isRequired = true;
    kind.explanation = GlycanOptionsWidget::tr(
        "A monosaccharide, a label, an adduct that carries a charge, or a derivatisation.");
    TableColumn name{.name = QStringLiteral("Name"), .title = GlycanOptionsWidget::tr("Name")};
    name.isRequired = true;
    name.explanation = GlycanOptionsWidget::tr("By which compositions and glycans name it.");
    TableColumn formula{.name = QStringLiteral("Formula"), .title = GlycanOptionsWidget::tr("Formula")};
    formula.explanation =
        GlycanOptionsWidget::tr("Of a monosaccharide the sugar without water, of the others what they add.");
    formula.check = [](QStringView text) {
        const Result<ChemicalFormula> read = ChemicalFormula::parse(text.toString());
        return read.hasError() ? read.error().details().join(u' ') : QString();
    };
    TableColumn complete{.name = QStringLiteral("Complete"),
                         .title = GlycanOptionsWidget::tr("On molecules"),
                         .kind = TableColumnKind::Choice};
    complete.choices = {kAll, kSome};
    complete.defaultText = kAll;
    complete.isRequired = true;
    complete.explanation = GlycanOptionsWidget::tr("Whether it is present on all molecules.");
    return {kind,
            name,
            formula,
            complete,
            massOfFormula("monoisotopic", GlycanOptionsWidget::tr("Mono. mass"), false),
            massOfFormula("average", GlycanOptionsWidget::tr("Average mass"), true)};
}

} // namespace

class GlycanOptionsWidget::Private
{
public:
    explicit Private(TableSheet *sheet)
        : options(sheet, optionFields())
    {}

    OptionRecords options;
    QList<GlycanOption> loaded;
};

GlycanOptionsWidget::GlycanOptionsWidget(QWidget *parent)
    : ScientificTableWidget(optionColumns(), tr("Glycan options"), QStringLiteral("GlycanOptions"), parent)
    , d(std::make_unique<Private>(sheet()))
{
    connect(this, &ScientificTableWidget::contentChanged, this, &GlycanOptionsWidget::tellLeftOut);
}

GlycanOptionsWidget::~GlycanOptionsWidget() = default;

GlycanOptions GlycanOptionsWidget::options() const
{
    const QList<GlycanOption> all = d->options.records();
    if (all == d->loaded)
        return GlycanOptions(all);
    QList<GlycanOption> readable;
    QSet<std::pair<int, QString>> names;
    for (const GlycanOption &option : all) {
        const std::pair<int, QString> name(int(option.kind), option.name);
        if (option.name.trimmed().isEmpty() || names.contains(name))
            continue;
        names.insert(name);
        readable.append(option);
    }
    return GlycanOptions(readable);
}

void GlycanOptionsWidget::setOptions(const GlycanOptions &options)
{
    const Error error = d->options.load(options.options());
    d->loaded = error.hasError() ? d->loaded : options.options();
    noteLoad(error);
}

void GlycanOptionsWidget::tellLeftOut()
{
    const qsizetype leftOut = sheet()->rowCount() - options().options().size();
    setNote(leftOut == 0
                ? QString()
                : tr("Rows without name, or with one that stands twice, aren't saved: %1.").arg(leftOut));
}

} // namespace orv
