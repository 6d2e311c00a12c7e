#include "orv/widgets/GlycansDialog.h"

#include "../scientific/SequenceColumns.h"

#include <orv/chemistry/DetachedGlycanUtils.h>
#include <orv/chemistry/GlycanOptions.h>
#include <orv/chemistry/GlycanText.h>
#include <orv/widgets/ScientificTableWidget.h>

#include <QSplitter>

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
    QStringList lines; ///< of compositions, by id of their row as they were read
};

GlycansDialog::GlycansDialog(QWidget *parent)
    : TextTablesDialog(parent)
    , d(std::make_unique<Private>())
{
    setWindowTitle(tr("Glycans"));
    setObjectName(QStringLiteral("GlycansDialog"));
    d->databases = new ScientificTableWidget(glycanDatabaseColumns(), tr("Glycan databases"),
                                             QStringLiteral("GlycanDatabases"));
    d->databases->setObjectName(QStringLiteral("databases"));
    d->compositions = new ScientificTableWidget(compositionColumns(), tr("Compositions"),
                                                QStringLiteral("GlycanCompositions"));
    d->compositions->setObjectName(QStringLiteral("compositions"));
    auto *const page = new QSplitter(Qt::Vertical);
    page->setChildrenCollapsible(false);
    page->addWidget(d->databases);
    page->addWidget(d->compositions);
    page->setStretchFactor(1, 2);
    build({.pages = tr("Tables and text"),
           .tablePage = tr("&Tables"),
           .text = tr("Text of the glycans"),
           .textTip = tr("Files of databases in square brackets and compositions, one in a line. Lines that "
                         "begin with % are comments.")},
          page, {d->databases, d->compositions});
}

GlycansDialog::~GlycansDialog() = default;

void GlycansDialog::showTables(const QString &text)
{
    QList<QStringList> paths;
    for (const QString &path : GlycanText::databases(text))
        paths.append({path});
    d->lines = GlycanText::compositions(text);
    QList<QStringList> rows;
    for (const QString &line : std::as_const(d->lines))
        rows.append({GlycanText::compositionOf(line), GlycanText::placeOf(line)});
    d->databases->noteLoad(d->databases->sheet()->load(paths));
    d->compositions->noteLoad(d->compositions->sheet()->load(rows));
}

QString GlycansDialog::withTables(const QString &text) const
{
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
        else if (!composition.isEmpty())
            lines.append(place.isEmpty() ? composition : composition + QLatin1String(" @ ") + place);
    }
    return GlycanText::withCompositions(GlycanText::withDatabases(text, paths), lines);
}

QStringList GlycansDialog::problemsOf(const QString &text) const
{
    QStringList problems;
    for (const QString &line : GlycanText::compositions(text)) {
        const QString fault = GlycanText::problemOfComposition(GlycanText::compositionOf(line));
        if (!fault.isEmpty())
            problems.append(tr("\"%1\": %2").arg(line.trimmed(), fault));
    }
    return problems;
}

QString GlycansDialog::getGlycansFromUser(const QString &strings, QWidget *parent, bool *ok)
{
    return ask(new GlycansDialog(parent), strings, ok);
}

} // namespace orv
