#include "orv/widgets/OligoMassTableWidget.h"

#include "../scientific/UnitField.h"

#include <orv/table_model/RowNodeBinding.h>
#include <orv/widgets/TolerancesWidget.h>

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>

#include <array>

namespace orv {

namespace {

struct CountRow
{
    const char *name;
    const char *label;
    const char *explanation;
    int OligoImpurities::*count;
};

// clang-format off
constexpr std::array kCounts = {
    CountRow{"fivePrimeTruncations", QT_TRANSLATE_NOOP("orv::OligoMassTableWidget", "Missing at the &5' end:"),
             QT_TRANSLATE_NOOP("orv::OligoMassTableWidget", "Number of nucleotides, at most, that are missing at the 5' end."),
             &OligoImpurities::fivePrimeTruncations},
    CountRow{"threePrimeTruncations", QT_TRANSLATE_NOOP("orv::OligoMassTableWidget", "Missing at the &3' end:"),
             QT_TRANSLATE_NOOP("orv::OligoMassTableWidget", "Number of nucleotides, at most, that are missing at the 3' end."),
             &OligoImpurities::threePrimeTruncations},
    CountRow{"additions", QT_TRANSLATE_NOOP("orv::OligoMassTableWidget", "&Additions:"),
             QT_TRANSLATE_NOOP("orv::OligoMassTableWidget", "Number of nucleotides, at most, that stand twice."),
             &OligoImpurities::additions},
    CountRow{"baseLosses", QT_TRANSLATE_NOOP("orv::OligoMassTableWidget", "&Base losses:"),
             QT_TRANSLATE_NOOP("orv::OligoMassTableWidget", "Number of bases, at most, in whose place water was added."),
             &OligoImpurities::baseLosses},
};
// clang-format on

} // namespace

class OligoMassTableWidget::Private
{
public:
    OligoImpurities impurities;
    TolerancesWidget *tolerances = nullptr;
    std::array<UnitField *, kCounts.size()> counts{};
    QCheckBox *sulfurLoss = nullptr;
};

OligoMassTableWidget::OligoMassTableWidget(QWidget *parent)
    : MassTableWidget(tr("Masses of oligonucleotides"), QStringLiteral("OligoMasses"), parent)
    , d(std::make_unique<Private>())
{
    build();
    setOligoImpurities({});
}

OligoMassTableWidget::~OligoMassTableWidget() = default;

void OligoMassTableWidget::build()
{
    d->tolerances = new TolerancesWidget;
    auto *const tolerances = new QGroupBox(tr("Tolerances"));
    (new QHBoxLayout(tolerances))->addWidget(d->tolerances);
    auto *const impurities = new QGroupBox(tr("Impurities"));
    auto *const form = new QFormLayout(impurities);
    for (size_t i = 0; i < kCounts.size(); ++i) {
        const CountRow &row = kCounts.at(i);
        TableColumn column{.name = QString::fromLatin1(row.name), .kind = TableColumnKind::Integer};
        column.title = tr(row.label).remove(u'&').remove(u':');
        column.minimum = 0;
        column.maximum = OligoImpurities::kMaximumCount;
        column.isRequired = true;
        column.explanation = tr(row.explanation);
        d->counts.at(i) = new UnitField(column, {});
        form->addRow(tr(row.label), d->counts.at(i));
        connect(d->counts.at(i), &UnitField::edited, this, &OligoMassTableWidget::tellEdited);
    }
    d->sulfurLoss = new QCheckBox(tr("&Sulfur loss"));
    d->sulfurLoss->setObjectName(QStringLiteral("sulfurLoss"));
    d->sulfurLoss->setToolTip(tr("A phosphodiester stands in the place of a phosphorothioate."));
    form->addRow(d->sulfurLoss);
    auto *const row = new QWidget;
    auto *const layout = new QHBoxLayout(row);
    layout->setContentsMargins({});
    layout->addWidget(tolerances, 1, Qt::AlignTop);
    layout->addWidget(impurities, 1, Qt::AlignTop);
    insertBelow(row);
    connect(d->tolerances, &TolerancesWidget::edited, this, &OligoMassTableWidget::tellEdited);
    connect(d->sulfurLoss, &QCheckBox::clicked, this, &OligoMassTableWidget::tellEdited);
}

TolerancesWidget *OligoMassTableWidget::tolerancesWidget() const
{
    return d->tolerances;
}

OligoImpurities OligoMassTableWidget::oligoImpurities() const
{
    OligoImpurities impurities = d->impurities;
    for (size_t i = 0; i < kCounts.size(); ++i) {
        if (const std::optional<double> count = d->counts.at(i)->value())
            impurities.*kCounts.at(i).count = int(*count);
    }
    impurities.sulfurLoss = d->sulfurLoss->isChecked();
    return impurities;
}

void OligoMassTableWidget::setOligoImpurities(const OligoImpurities &impurities)
{
    d->impurities = impurities;
    for (size_t i = 0; i < kCounts.size(); ++i)
        d->counts.at(i)->set(QString::number(impurities.*kCounts.at(i).count));
    d->sulfurLoss->setChecked(impurities.sulfurLoss);
}

QString OligoMassTableWidget::toPlainText() const
{
    QStringList lines = {MassTableWidget::toPlainText(), d->tolerances->toPlainText()};
    for (size_t i = 0; i < kCounts.size(); ++i)
        lines.append(tr(kCounts.at(i).label).remove(u'&') + u' ' + d->counts.at(i)->text());
    lines.append(d->sulfurLoss->isChecked() ? tr("Sulfur loss: yes") : tr("Sulfur loss: no"));
    return lines.join(u'\n');
}

} // namespace orv
