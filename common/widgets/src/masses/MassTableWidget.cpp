#include "orv/widgets/MassTableWidget.h"

#include "../scientific/AsReadFields.h"
#include "../scientific/SampleNames.h"
#include "../scientific/UnitField.h"

#include <orv/chemistry/ChemistryConstants.h>
#include <orv/chemistry/MassTolerance.h>
#include <orv/chemistry/MassUtils.h>
#include <orv/table_model/NumberText.h>
#include <orv/table_model/RecordSheet.h>
#include <orv/table_model/RowNodeBinding.h>
#include <orv/widgets/TableView.h>

#include <QHBoxLayout>
#include <QLabel>

#include <cmath>

namespace orv {

namespace {

constexpr int kMassAt = 1;
constexpr int kSamplesIdsAt = 3;
constexpr int kWindowAt = 5;

using MassRecords = RecordSheet<DeltaMass>;

void setMassOf(DeltaMass *mass, const QString &text)
{
    mass->massDa = NumberText::value(text);
    mass->unreadableMass = mass->massDa ? QString() : text;
    mass->cellsAsRead.remove(QStringLiteral("Mass"));
}

QString textOfMass(const DeltaMass &mass)
{
    return mass.massDa ? RowNodeBinding::textOf(*mass.massDa)
           : !mass.unreadableMass.isEmpty()
               ? mass.unreadableMass
               : RowNodeBinding::textOf(mass.cellsAsRead.value(QStringLiteral("Mass")));
}

/// What holds more than ids is shown as it stands.
QString textOfSamples(const DeltaMass &mass)
{
    const auto asRead = mass.cellsAsRead.constFind(QStringLiteral("SamplesIds"));
    const QString text = asRead == mass.cellsAsRead.cend() ? QString() : RowNodeBinding::textOf(*asRead);
    return !text.isEmpty() && SampleNames::idsOf(text) == mass.samplesIds
               ? text
               : SampleNames::textOf(mass.samplesIds);
}

void setSamplesOf(DeltaMass *mass, const QString &text)
{
    mass->samplesIds = SampleNames::idsOf(text);
    mass->cellsAsRead.remove(QStringLiteral("SamplesIds"));
    if (SampleNames::textOf(mass->samplesIds) != text)
        mass->cellsAsRead.insert(QStringLiteral("SamplesIds"), text);
}

QList<MassRecords::Field> massFields()
{
    return {textFieldOf(QStringLiteral("Name"), &DeltaMass::name),
            {QStringLiteral("Mass"), textOfMass, setMassOf},
            textFieldOf(QStringLiteral("Protein"), &DeltaMass::protein),
            {QStringLiteral("SamplesIds"), textOfSamples, setSamplesOf}};
}

} // namespace

/// What columns go by beside their row.
struct MassTableWidget::Shared
{
    std::shared_ptr<SampleNames> samples = std::make_shared<SampleNames>();
    MassTolerance tolerance;

    [[nodiscard]] static QList<TableColumn> columns(const std::shared_ptr<Shared> &shared);
    [[nodiscard]] QString windowAt(QStringView mass) const;
};

QString MassTableWidget::Shared::windowAt(QStringView mass) const
{
    constexpr int kDigits = 4;
    const std::optional<double> massDa = NumberText::value(mass);
    const double window = massDa ? tolerance.inDaltonAt(std::abs(*massDa)) : 0.0;
    return massDa ? QString::number(window, 'g', kDigits) : QString();
}

QList<TableColumn> MassTableWidget::Shared::columns(const std::shared_ptr<Shared> &shared)
{
    using Kind = TableColumnKind;
    TableColumn name{.name = QStringLiteral("Name"), .title = tr("Name")};
    name.explanation = tr("By which matches of this mass are told apart.");
    TableColumn mass{
        .name = QStringLiteral("Mass"), .title = tr("Mass"), .unit = tr("Da"), .kind = Kind::Number};
    mass.explanation = tr("Expected mass in Da, or a difference of masses, which may be negative.");
    TableColumn protein{.name = QStringLiteral("Protein"), .title = tr("Protein")};
    protein.explanation = tr("Name of the protein that the mass belongs to; empty for all.");
    TableColumn window{.name = QStringLiteral("window"),
                       .title = tr("Window \u00B1"),
                       .unit = tr("Da"),
                       .kind = Kind::Number};
    window.explanation =
        tr("How far a match may lie from this mass, in Da. Follows from the match tolerance.");
    window.derive = [shared](const QStringList &texts) { return shared->windowAt(texts[kMassAt]); };
    return {name,
            mass,
            protein,
            SampleNames::idsColumn(QStringLiteral("SamplesIds"), shared->samples),
            SampleNames::namesColumn(shared->samples, kSamplesIdsAt),
            window};
}

class MassTableWidget::Private
{
public:
    Private(TableSheet *sheet, std::shared_ptr<Shared> ofColumns)
        : shared(std::move(ofColumns))
        , masses(sheet, massFields())
    {}

    std::shared_ptr<Shared> shared;
    MassRecords masses;
    RowNode tolerance;
    UnitField *toleranceField = nullptr;
    QWidget *toleranceRow = nullptr;
};

MassTableWidget::MassTableWidget(QWidget *parent)
    : MassTableWidget(tr("Masses"), QStringLiteral("Masses"), parent)
{}

MassTableWidget::MassTableWidget(const QString &title, const QString &kind, QWidget *parent)
    : MassTableWidget(std::make_shared<Shared>(), title, kind, parent)
{}

MassTableWidget::MassTableWidget(const std::shared_ptr<Shared> &shared, const QString &title,
                                 const QString &kind, QWidget *parent)
    : ScientificTableWidget(Shared::columns(shared), title, kind, parent)
    , d(std::make_unique<Private>(sheet(), shared))
{
    build();
    setMassTolerance(MassUtils::defaultMatchToleranceRowNode());
}

MassTableWidget::~MassTableWidget() = default;

void MassTableWidget::build()
{
    TableColumn column{.name = QStringLiteral("massTolerance"), .title = tr("Match tolerance")};
    column.kind = TableColumnKind::Number;
    column.minimum = 0;
    column.isRequired = true;
    column.explanation = tr("Largest difference between a measured and an expected mass, in Dalton or ppm.");
    d->toleranceField = new UnitField(column, MassUtils::possibleMassToleranceUnits());
    d->toleranceRow = new QWidget;
    auto *const layout = new QHBoxLayout(d->toleranceRow);
    layout->setContentsMargins({});
    auto *const label = new QLabel(tr("Match &tolerance:"));
    label->setBuddy(d->toleranceField);
    layout->addWidget(label);
    layout->addWidget(d->toleranceField);
    layout->addStretch(1);
    insertAbove(d->toleranceRow);
    connect(d->toleranceField, &UnitField::edited, this, [this] {
        takeTolerance();
        tellEdited();
    });
}

void MassTableWidget::takeTolerance()
{
    d->shared->tolerance.value = d->toleranceField->value().value_or(0.0);
    d->shared->tolerance.unit = d->toleranceField->unit();
    sheet()->deriveAnew();
}

QList<DeltaMass> MassTableWidget::masses() const
{
    return d->masses.records();
}

void MassTableWidget::setMasses(const QList<DeltaMass> &masses)
{
    const Error error = d->masses.load(masses);
    noteLoad(error);
}

RowNode MassTableWidget::massTolerance() const
{
    const RowNode *const row = d->tolerance.getChild(0);
    const QString before =
        row ? RowNodeBinding::textOf(row->getDataAt(QString(kMassToleranceValue))) : QString();
    const QString unitBefore = row ? row->getDataAt(QString(kMassToleranceUnit)).toString() : QString();
    if (d->toleranceField->text() == before && d->toleranceField->unit() == unitBefore)
        return d->tolerance;
    RowNode edited = d->tolerance;
    edited.addData(QStringList{kMassToleranceValue, kMassToleranceUnit}, true);
    if (edited.getChildListSize() == 0)
        edited.addNewChildMatchRootDataSize();
    RowNode *const child = edited.getChild(0);
    child->data.resize(std::max(child->data.size(), edited.data.size()));
    const std::optional<double> value = d->toleranceField->value();
    child->getDataAt(QString(kMassToleranceValue)) = value ? QVariant(*value) : d->toleranceField->text();
    child->getDataAt(QString(kMassToleranceUnit)) = d->toleranceField->unit();
    return edited;
}

void MassTableWidget::setMassTolerance(const RowNode &tolerance)
{
    d->tolerance = tolerance;
    const RowNode *const row = d->tolerance.getChild(0);
    d->toleranceField->set(row ? RowNodeBinding::textOf(row->getDataAt(QString(kMassToleranceValue)))
                               : QString(),
                           row ? row->getDataAt(QString(kMassToleranceUnit)).toString() : QString());
    takeTolerance();
}

void MassTableWidget::setMassToleranceVisible(bool isVisible)
{
    d->toleranceRow->setVisible(isVisible);
    view()->setColumnShown(kWindowAt, isVisible);
}

void MassTableWidget::updateSamplesIds(const QList<SamplesInput::Entry> &entries)
{
    d->shared->samples->set(entries);
    sheet()->deriveAnew();
}

bool MassTableWidget::validate(const QList<DeltaMass> &masses, const QList<SamplesInput::Entry> &samples,
                               QStringList *errors, QStringList *warnings)
{
    QList<int> ids;
    for (const SamplesInput::Entry &entry : samples)
        ids.append(entry.id);
    return MassUtils::validate(masses, ids, errors, warnings);
}

QString MassTableWidget::toPlainText() const
{
    if (d->toleranceRow->isHidden())
        return ScientificTableWidget::toPlainText();
    return ScientificTableWidget::toPlainText() + u'\n' +
           tr("Match tolerance: %1 %2").arg(d->toleranceField->text(), d->toleranceField->unit());
}

} // namespace orv
