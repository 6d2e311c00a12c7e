#include "orv/widgets/PeakFilterDialog.h"

#include "../TablePage.h"
#include "TableDialogLayout.h"

#include <orv/chemistry/ChemicalFormula.h>
#include <orv/chemistry/MassCalculator.h>
#include <orv/table_model/RecordSheet.h>
#include <orv/widgets/DialogService.h>
#include <orv/widgets/TableEditor.h>

#include <QDialogButtonBox>
#include <QMenu>
#include <QPointer>
#include <QPushButton>

#include <array>

namespace orv {

namespace {

/// A line of the text.
struct Peak
{
    QString mz; ///< in its digits; of a line that can't be read all of it
    QString name;
};

using PeakSheet = RecordSheet<Peak>;

struct CommonIon
{
    const char *name;
    const char *formula; ///< of the neutral fragment, which carries one proton
};

/// Of glycopeptides.
constexpr std::array kOxoniumIons = {
    CommonIon{"HexNAc - C2H6O3", "C6H7NO2"},
    CommonIon{"HexNAc - CH6O3", "C7H7NO2"},
    CommonIon{"HexNAc - C2H4O2", "C6H9NO3"},
    CommonIon{"Hex", "C6H10O5"},
    CommonIon{"HexNAc - 2 H2O", "C8H9NO3"},
    CommonIon{"HexNAc - H2O", "C8H11NO4"},
    CommonIon{"HexNAc", "C8H13NO5"},
    CommonIon{"NeuAc - H2O", "C11H15NO7"},
    CommonIon{"NeuAc", "C11H17NO8"},
    CommonIon{"HexNAc Hex", "C14H23NO10"},
    CommonIon{"HexNAc Hex NeuAc", "C25H40N2O18"},
};

QString mzOf(const CommonIon &ion)
{
    const auto formula = ChemicalFormula::parse(QString::fromLatin1(ion.formula));
    return formula.hasError()
               ? QString()
               : QString::number(MassCalculator(MassType::Monoisotopic).mz(*formula, 1), 'f', 4);
}

PeakSheet::Columns peakColumns()
{
    TableColumn mz{
        .name = QStringLiteral("mz"), .title = PeakFilterDialog::tr("m/z"), .kind = TableColumnKind::Number};
    mz.isRequired = true;
    mz.explanation = PeakFilterDialog::tr("Of the diagnostic peak.");
    mz.check = [](QStringView text) {
        return NumberText::value(text).value_or(0) > 0 ? QString() : PeakFilterDialog::tr("Must be above 0.");
    };
    TableColumn name{.name = QStringLiteral("name"), .title = PeakFilterDialog::tr("Name")};
    name.explanation = PeakFilterDialog::tr("What makes the peak, such as an oxonium ion.");
    name.check = [](QStringView text) {
        return text.contains(u'\n') ? PeakFilterDialog::tr("A name stands on one line.") : QString();
    };
    return {{mz, [](const Peak &peak) { return peak.mz; },
             [](Peak *peak, const QString &text) { peak->mz = text; }},
            {name, [](const Peak &peak) { return peak.name; },
             [](Peak *peak, const QString &text) { peak->name = text; }}};
}

QList<Peak> peaksOf(const QString &text)
{
    QList<Peak> peaks;
    for (const QString &line : text.split(u'\n')) {
        const QString trimmed = line.trimmed();
        const qsizetype blank = trimmed.indexOf(u' ');
        const QString first = blank < 0 ? trimmed : trimmed.first(blank);
        if (NumberText::isCanonical(first))
            peaks.append({first, blank < 0 ? QString() : trimmed.sliced(blank + 1).trimmed()});
        else if (!trimmed.isEmpty())
            peaks.append({trimmed, {}});
    }
    return peaks;
}

QString textOfPeaks(const QList<Peak> &peaks)
{
    QStringList lines;
    for (const Peak &peak : peaks)
        lines.append(QString(peak.mz + u' ' + peak.name).simplified());
    lines.removeAll(QString());
    return lines.join(u'\n');
}

} // namespace

class PeakFilterDialog::Private
{
public:
    QString given;
    std::shared_ptr<PeakSheet> table = std::make_shared<PeakSheet>(peakColumns());
    QPointer<TableEditor> editor;
};

PeakFilterDialog::PeakFilterDialog(const QString &text, QWidget *parent)
    : QDialog(parent)
    , d(std::make_unique<Private>())
{
    setWindowTitle(tr("Diagnostic Peaks"));
    d->given = text;
    d->editor = TablePage::editorOf({d->table, d->table->sheet()}, tr("Diagnostic peaks"),
                                    QStringLiteral("PeakFilter"));
    if (const Error error = d->table->load(peaksOf(text)); error.hasError())
        Q_EMIT d->editor->view()->said(error.errorMessage());
    QDialogButtonBox *const buttons = layOutTableDialog(this, d->editor);
    QPushButton *const common = buttons->addButton(tr("Add Oxonium &Ions"), QDialogButtonBox::ActionRole);
    common->setObjectName(QStringLiteral("addOxoniumIons"));
    common->setToolTip(tr("Adds the common oxonium ions of glycopeptides that the list lacks"));
    common->setAutoDefault(false);
    connect(common, &QPushButton::clicked, this, &PeakFilterDialog::addCommonIons);
}

PeakFilterDialog::~PeakFilterDialog()
{
    delete d->editor;
}

QString PeakFilterDialog::peakFilter() const
{
    return d->table->isEdited() ? textOfPeaks(d->table->records()) : d->given;
}

QString PeakFilterDialog::plainText() const
{
    return TablePage::textOf(d->editor);
}

void PeakFilterDialog::addCommonIons()
{
    QSet<QString> present;
    for (const Peak &peak : d->table->records())
        present.insert(QString::number(peak.mz.toDouble(), 'f', 2));
    QList<QStringList> rows;
    for (const CommonIon &ion : kOxoniumIons) {
        const QString mz = mzOf(ion);
        if (!present.contains(QString::number(mz.toDouble(), 'f', 2)))
            rows.append({mz, QString::fromLatin1(ion.name)});
    }
    TableSheet *const sheet = d->table->sheet();
    const Error error = sheet->insertRows(sheet->rowCount(), rows, tr("add oxonium ions"));
    Q_EMIT d->editor->view()->said(error.hasError() ? error.errorMessage()
                                                    : tr("Peaks added: %1.").arg(rows.size()));
}

QString PeakFilterDialog::getPeakFilterFromUser(const QString &text, QWidget *parent, bool *ok)
{
    const QPointer<PeakFilterDialog> dialog = new PeakFilterDialog(text, parent);
    const bool isAccepted = DialogService::exec(*dialog) && dialog;
    if (ok)
        *ok = isAccepted;
    QString edited = isAccepted ? dialog->peakFilter() : text;
    delete dialog;
    return edited;
}

} // namespace orv
