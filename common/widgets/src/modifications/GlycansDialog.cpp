#include "orv/widgets/GlycansDialog.h"

#include "../scientific/SequenceColumns.h"

#include <orv/chemistry/DetachedGlycanUtils.h>
#include <orv/chemistry/GlycanOptions.h>
#include <orv/chemistry/GlycanText.h>
#include <orv/widgets/DialogService.h>
#include <orv/widgets/MeaningColors.h>
#include <orv/widgets/ScientificTableWidget.h>

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>

namespace orv {

namespace {

std::optional<ChemicalFormula> formulaOfGlycan(const QString &composition)
{
    static const GlycanOptions options =
        GlycanOptions::fromRowNode(DetachedGlycanUtils::defaultOptionsRowNode()).valueOr({});
    Glycan glycan;
    glycan.composition = composition;
    const Result<ChemicalFormula> formula = options.formula(glycan);
    return formula.hasError() ? std::nullopt : std::optional(*formula);
}

QList<TableColumn> glycanDatabaseColumns()
{
    TableColumn path{.name = QStringLiteral("path"),
                     .title = GlycansDialog::tr("Glycan database"),
                     .kind = TableColumnKind::File};
    path.isRequired = true;
    path.explanation = GlycansDialog::tr("File with a composition in each line.");
    path.fileFilter = GlycansDialog::tr("Glycan databases (*.txt)");
    path.check = [](QStringView text) {
        return text.contains(u']') ? GlycansDialog::tr("A path can't hold \"]\" here.") : QString();
    };
    return {path};
}

QList<TableColumn> compositionColumns()
{
    TableColumn composition{.name = QStringLiteral("composition"), .title = GlycansDialog::tr("Composition")};
    composition.isRequired = true;
    composition.explanation =
        GlycansDialog::tr("Monosaccharides with their counts, such as HexNAc(4)Hex(3)Fuc(1).");
    composition.check = [](QStringView text) {
        return text.isEmpty() ? QString() : GlycanText::problemOfComposition(text.toString());
    };
    TableColumn place{.name = QStringLiteral("place"), .title = GlycansDialog::tr("Site | use")};
    place.explanation = GlycansDialog::tr("Kind of site and number on a peptide, such as NGlycan | rare1.");
    place.defaultText = QStringLiteral("NGlycan | rare1");
    TableColumn mass{.name = QStringLiteral("mass"),
                     .title = GlycansDialog::tr("Mono. mass"),
                     .unit = GlycansDialog::tr("Da"),
                     .kind = TableColumnKind::Number};
    mass.explanation =
        GlycansDialog::tr("Monoisotopic mass of the free glycan in Da that follows from the composition.");
    mass.derive = [](const QStringList &texts) {
        const auto formula = formulaOfGlycan(texts[0]);
        return formula ? textOfMonoisotopicMass(formula->monoisotopicMass()) : QString();
    };
    TableColumn average{.name = QStringLiteral("average"),
                        .title = GlycansDialog::tr("Average mass"),
                        .unit = GlycansDialog::tr("Da"),
                        .kind = TableColumnKind::Number};
    average.explanation =
        GlycansDialog::tr("Average mass of the free glycan in Da that follows from the composition.");
    average.derive = [](const QStringList &texts) {
        const auto formula = formulaOfGlycan(texts[0]);
        return formula ? textOfAverageMass(formula->averageMass()) : QString();
    };
    return {composition, place, mass, average};
}

} // namespace

class GlycansDialog::Private
{
public:
    ScientificTableWidget *databases = nullptr;
    ScientificTableWidget *compositions = nullptr;
    QPlainTextEdit *edit = nullptr;
    QLabel *problem = nullptr;
    QString text;
    bool isPassing = false; ///< from tables to text or back
    QStringList lines;      ///< of compositions, by id of their row as they were read
};

GlycansDialog::GlycansDialog(QWidget *parent)
    : QDialog(parent)
    , d(std::make_unique<Private>())
{
    setWindowTitle(tr("Glycans"));
    setObjectName(QStringLiteral("GlycansDialog"));
    build();
    setText({});
}

GlycansDialog::~GlycansDialog()
{
    d->databases->sheet()->disconnect(this);
    d->compositions->sheet()->disconnect(this);
}

void GlycansDialog::build()
{
    d->databases = new ScientificTableWidget(glycanDatabaseColumns(), tr("Glycan databases"),
                                             QStringLiteral("GlycanDatabases"));
    d->databases->setObjectName(QStringLiteral("databases"));
    d->compositions = new ScientificTableWidget(compositionColumns(), tr("Compositions"),
                                                QStringLiteral("GlycanCompositions"));
    d->compositions->setObjectName(QStringLiteral("compositions"));
    auto *const tables = new QSplitter(Qt::Vertical);
    tables->setChildrenCollapsible(false);
    tables->addWidget(d->databases);
    tables->addWidget(d->compositions);
    tables->setStretchFactor(1, 2);
    d->edit = new QPlainTextEdit;
    d->edit->setObjectName(QStringLiteral("text"));
    d->edit->setAccessibleName(tr("Text of the glycans"));
    d->edit->setToolTip(tr("Files of databases in square brackets and compositions, one in a line. Lines "
                           "that begin with % are comments."));
    d->edit->setTabChangesFocus(true);
    d->edit->setLineWrapMode(QPlainTextEdit::NoWrap);
    d->edit->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    d->problem = new QLabel;
    d->problem->setObjectName(QStringLiteral("problem"));
    d->problem->setWordWrap(true);
    auto *const pages = new QTabWidget;
    pages->setAccessibleName(tr("Tables and text"));
    pages->addTab(tables, tr("&Tables"));
    pages->addTab(d->edit, tr("Te&xt"));
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(pages, 1);
    layout->addWidget(d->problem);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    for (const ScientificTableWidget *const table : {d->databases, d->compositions}) {
        connect(table->sheet(), &TableSheet::cellsChanged, this, &GlycansDialog::takeTables);
        connect(table->sheet(), &TableSheet::rowsInserted, this, &GlycansDialog::takeTables);
        connect(table->sheet(), &TableSheet::rowsRemoved, this, &GlycansDialog::takeTables);
        connect(table->sheet(), &TableSheet::rowsReordered, this, &GlycansDialog::takeTables);
    }
    connect(d->edit, &QPlainTextEdit::textChanged, this, &GlycansDialog::takeText);
    constexpr int kLetters = 130;
    resize(fontMetrics().averageCharWidth() * kLetters, fontMetrics().height() * 40);
}

QString GlycansDialog::text() const
{
    return d->text;
}

void GlycansDialog::setText(const QString &text)
{
    d->text = text;
    d->isPassing = true;
    d->edit->setPlainText(text);
    showTables();
    d->isPassing = false;
    showState();
}

void GlycansDialog::showTables()
{
    QList<QStringList> paths;
    for (const QString &path : GlycanText::databases(d->text))
        paths.append({path});
    d->lines = GlycanText::compositions(d->text);
    QList<QStringList> rows;
    for (const QString &line : std::as_const(d->lines))
        rows.append({GlycanText::compositionOf(line), GlycanText::placeOf(line)});
    const Error databases = d->databases->sheet()->load(paths);
    const Error compositions = d->compositions->sheet()->load(rows);
    d->databases->setNote(databases.hasError() ? databases.errorMessage() : QString());
    d->compositions->setNote(compositions.hasError() ? compositions.errorMessage() : QString());
}

void GlycansDialog::takeTables()
{
    if (d->isPassing)
        return;
    QStringList paths;
    for (const QStringList &row : d->databases->sheet()->allTexts()) {
        if (!row[0].trimmed().isEmpty())
            paths.append(QString(row[0]).replace(u'\n', u' '));
    }
    const TableSheet *const sheet = d->compositions->sheet();
    QStringList lines;
    for (int row = 0; row < sheet->rowCount(); ++row) {
        const QString composition = sheet->text(row, 0).toString().simplified();
        const QString place = sheet->text(row, 1).toString().simplified();
        const QString before = d->lines.value(sheet->rowId(row));
        if (!before.isEmpty() && GlycanText::compositionOf(before).simplified() == composition &&
            GlycanText::placeOf(before).simplified() == place)
            lines.append(before);
        else if (!composition.trimmed().isEmpty())
            lines.append(place.isEmpty() ? composition : composition + QLatin1String(" @ ") + place);
    }
    d->text = GlycanText::withCompositions(GlycanText::withDatabases(d->text, paths), lines);
    d->isPassing = true;
    d->edit->setPlainText(d->text);
    d->isPassing = false;
    showState();
}

void GlycansDialog::takeText()
{
    if (d->isPassing)
        return;
    d->text = d->edit->toPlainText();
    d->isPassing = true;
    showTables();
    d->isPassing = false;
    showState();
}

void GlycansDialog::showState()
{
    QString problem;
    int count = 0;
    for (const QString &line : GlycanText::compositions(d->text)) {
        const QString fault = GlycanText::problemOfComposition(GlycanText::compositionOf(line));
        if (!fault.isEmpty() && ++count == 1)
            problem = tr("\"%1\": %2").arg(line.trimmed(), fault);
    }
    if (count > 1)
        problem += u' ' + tr("Lines that can't be read: %1.").arg(count);
    QPalette colors = d->problem->palette();
    colors.setColor(QPalette::WindowText, MeaningColors::error(palette()));
    d->problem->setPalette(colors);
    d->problem->setText(problem);
    d->problem->setVisible(!problem.isEmpty());
    d->edit->setAccessibleDescription(problem);
}

QString GlycansDialog::toPlainText() const
{
    QStringList parts = {d->databases->toPlainText(), d->compositions->toPlainText()};
    if (!d->problem->text().isEmpty())
        parts.append(d->problem->text());
    return parts.join(u'\n');
}

QString GlycansDialog::getGlycansFromUser(const QString &strings, QWidget *parent, bool *ok)
{
    const QPointer<GlycansDialog> dialog = new GlycansDialog(parent);
    dialog->setText(strings);
    const bool isAccepted = DialogService::exec(*dialog) && dialog;
    QString edited = isAccepted ? dialog->text() : strings;
    delete dialog;
    if (ok)
        *ok = isAccepted;
    return edited;
}

} // namespace orv
