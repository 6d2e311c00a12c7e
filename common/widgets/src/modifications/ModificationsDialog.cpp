#include "orv/widgets/ModificationsDialog.h"

#include "../scientific/SequenceColumns.h"

#include <orv/chemistry/CommonModifications.h>
#include <orv/chemistry/ModificationText.h>
#include <orv/table_model/TableModel.h>
#include <orv/widgets/ScientificTableWidget.h>
#include <orv/widgets/TableEditor.h>

#include <QGroupBox>
#include <QItemSelectionModel>
#include <QPushButton>
#include <QToolBar>
#include <QVBoxLayout>

namespace orv {

namespace {

constexpr int kModificationMassAt = 1;
constexpr int kUseAt = 3;

Modification modificationOf(const QStringList &texts)
{
    Modification modification;
    // A line holds one modification, whatever was pasted.
    modification.name = texts[0].simplified();
    // As a comment it would be lost to the table.
    while (modification.name.startsWith(u'%'))
        modification.name.remove(0, 1);
    modification.mass = texts[kModificationMassAt].simplified();
    modification.residues = texts[2].simplified();
    modification.use = Modification::useFromString(texts[kUseAt]).value_or(Modification::Use::Fixed);
    const bool isFixed = modification.use == Modification::Use::Fixed;
    modification.limit = isFixed ? 0 : std::max(1, texts[kUseAt + 1].toInt());
    return modification;
}

QStringList textsOfModification(const Modification &modification)
{
    const bool isFixed = modification.use == Modification::Use::Fixed;
    return {modification.name, modification.mass, modification.residues,
            Modification::useToString(modification.use),
            isFixed ? QString() : QString::number(modification.limit)};
}

/// Why one part of a modification may not stand, by the reader of whole lines.
QString problemOfPart(QString Modification::*part, QStringView text)
{
    if (text.trimmed().isEmpty())
        return {};
    Modification sound{QStringLiteral("A"), QStringLiteral("1"), QStringLiteral("C"),
                       Modification::Use::Fixed, 0};
    sound.*part = text.toString().simplified();
    const Result<Modification> read = Modification::fromString(sound.toString());
    if (read.hasError())
        return read.error().details().join(u' ');
    const bool isSame = *read == sound;
    return isSame ? QString()
                  : ModificationsDialog::tr("The signs \"/\", \"@\" and \"|\" part what a line holds.");
}

TableColumn partColumn(const char *name, const QString &title, const QString &explanation,
                       QString Modification::*part)
{
    TableColumn column{.name = QString::fromLatin1(name), .title = title};
    column.isRequired = true;
    column.explanation = explanation;
    column.check = [part](QStringView text) { return problemOfPart(part, text); };
    return column;
}

QList<TableColumn> modificationColumns()
{
    using Kind = TableColumnKind;
    TableColumn use{
        .name = QStringLiteral("use"), .title = ModificationsDialog::tr("Kind"), .kind = Kind::Choice};
    for (const Modification::Use one :
         {Modification::Use::Fixed, Modification::Use::Common, Modification::Use::Rare})
        use.choices.append(Modification::useToString(one));
    use.isRequired = true;
    use.defaultText = Modification::useToString(Modification::Use::Common);
    use.explanation =
        ModificationsDialog::tr("fixed: on each of the residues; common: on some; rare: on few.");
    TableColumn limit{
        .name = QStringLiteral("limit"), .title = ModificationsDialog::tr("At most"), .kind = Kind::Integer};
    limit.minimum = 1;
    limit.maximum = 100;
    limit.explanation = ModificationsDialog::tr("Largest number on one peptide; a fixed one has none.");
    TableColumn monoisotopic{.name = QStringLiteral("monoisotopic"),
                             .title = ModificationsDialog::tr("Mono. mass"),
                             .unit = ModificationsDialog::tr("Da"),
                             .kind = Kind::Number};
    monoisotopic.explanation =
        ModificationsDialog::tr("Monoisotopic mass in Da that follows from mass or formula.");
    monoisotopic.derive = [](const QStringList &texts) {
        return textOfMonoisotopicMass(modificationOf(texts).massDa());
    };
    return {partColumn("name", ModificationsDialog::tr("Name"),
                       ModificationsDialog::tr("By which results name the modification."),
                       &Modification::name),
            partColumn("mass", ModificationsDialog::tr("Mass (Da) or formula"),
                       ModificationsDialog::tr("What the modification adds: a mass in Da with its sign, or a "
                                               "formula such as C2H3NO."),
                       &Modification::mass),
            partColumn("residues", ModificationsDialog::tr("Residues"),
                       ModificationsDialog::tr("Letters of residues, NTerm or CTerm, with commas between."),
                       &Modification::residues),
            use,
            limit,
            monoisotopic};
}

QList<TableColumn> commonColumns()
{
    TableColumn name{.name = QStringLiteral("name"), .title = ModificationsDialog::tr("Name")};
    TableColumn mass{.name = QStringLiteral("mass"),
                     .title = ModificationsDialog::tr("Mono. mass"),
                     .unit = ModificationsDialog::tr("Da"),
                     .kind = TableColumnKind::Number};
    TableColumn formula{.name = QStringLiteral("formula"), .title = ModificationsDialog::tr("Formula")};
    TableColumn residues{.name = QStringLiteral("residues"), .title = ModificationsDialog::tr("Residues")};
    for (TableColumn *const column : {&name, &mass, &formula, &residues})
        column->isReadOnly = true;
    return {name, mass, formula, residues};
}

QList<QStringList> commonRows()
{
    constexpr int kDigits = 6;
    QList<QStringList> rows;
    for (const CommonModification &one : CommonModifications::all())
        rows.append({one.name, QString::number(one.formula.monoisotopicMass(), 'f', kDigits),
                     one.formula.toString(), one.residues});
    return rows;
}

} // namespace

class ModificationsDialog::Private
{
public:
    ScientificTableWidget *table = nullptr;
    ScientificTableWidget *common = nullptr;
    QHash<quint32, QPair<QStringList, QString>> lines; ///< the line of each row, as it was read
};

ModificationsDialog::ModificationsDialog(QWidget *parent)
    : TextTablesDialog(parent)
    , d(std::make_unique<Private>())
{
    setWindowTitle(tr("Modifications"));
    setObjectName(QStringLiteral("ModificationsDialog"));
    d->table = new ScientificTableWidget(modificationColumns(), tr("Modifications"),
                                         QStringLiteral("Modifications"));
    d->table->setObjectName(QStringLiteral("modifications"));
    build(
        {.pages = tr("Table and text"),
         .tablePage = tr("&Table"),
         .text = tr("Text of the modifications"),
         .textTip = tr("One modification in a line: name / mass in Da @ residues | fixed, common1 or rare1. "
                       "Lines that begin with % are comments.")},
        d->table, {d->table}, newCommonList());
}

ModificationsDialog::~ModificationsDialog() = default;

QWidget *ModificationsDialog::newCommonList()
{
    auto *const group = new QGroupBox(tr("Common modifications (%1)").arg(CommonModifications::source()));
    d->common = new ScientificTableWidget(commonColumns(), tr("Common modifications"),
                                          QStringLiteral("CommonModifications"), group);
    d->common->setObjectName(QStringLiteral("common"));
    d->common->hideHeader();
    // The list is there to be chosen from.
    for (QToolBar *const bar : d->common->findChildren<QToolBar *>())
        bar->hide();
    (void)d->common->sheet()->load(commonRows()).ecatch();
    auto *const add = new QPushButton(tr("&Add to the Table"));
    add->setObjectName(QStringLiteral("addCommon"));
    add->setToolTip(tr("Adds the selected common modifications as common ones, once on a peptide."));
    add->setAutoDefault(false);
    auto *const layout = new QVBoxLayout(group);
    layout->addWidget(d->common, 1);
    layout->addWidget(add, 0, Qt::AlignRight);
    connect(add, &QPushButton::clicked, this, &ModificationsDialog::addCommon);
    connect(d->common->view(), &QAbstractItemView::doubleClicked, this, &ModificationsDialog::addCommon);
    return group;
}

void ModificationsDialog::addCommon()
{
    QList<QStringList> rows;
    for (const QModelIndex &index : d->common->view()->selectionModel()->selectedIndexes()) {
        const int row = d->common->model()->sheetRow(index.row());
        const QStringList texts = d->common->sheet()->texts(row);
        Modification modification{texts[0], texts[1], texts[3], Modification::Use::Common, 1};
        if (!modification.mass.startsWith(u'-'))
            modification.mass.prepend(u'+');
        if (!rows.contains(textsOfModification(modification)))
            rows.append(textsOfModification(modification));
    }
    TableSheet *const sheet = d->table->sheet();
    if (const Error error = sheet->insertRows(sheet->rowCount(), rows, tr("add common modifications"));
        error.hasError())
        d->table->setNote(error.errorMessage());
}

void ModificationsDialog::showTables(const QString &text)
{
    QList<QStringList> rows;
    d->lines.clear();
    for (const ModificationText::Line &line : ModificationText::lines(text)) {
        const QStringList texts =
            line.problem.isEmpty() ? textsOfModification(line.modification) : QStringList{line.text};
        // Ids of a new load begin at 0.
        d->lines.insert(quint32(rows.size()), {texts, line.text});
        rows.append(texts);
    }
    d->table->noteLoad(d->table->sheet()->load(rows));
}

QString ModificationsDialog::withTables(const QString &text) const
{
    const TableSheet *const sheet = d->table->sheet();
    QStringList lines;
    for (int row = 0; row < sheet->rowCount(); ++row) {
        const QStringList texts = sheet->texts(row);
        const auto known = d->lines.constFind(sheet->rowId(row));
        const bool isUnedited =
            known != d->lines.cend() && known->first == texts.mid(0, known->first.size()) &&
            texts.mid(known->first.size(), kUseAt + 2 - known->first.size()).join(QString()).isEmpty();
        const bool isEmpty = texts[0].isEmpty() && texts[kModificationMassAt].isEmpty() && texts[2].isEmpty();
        if (isUnedited)
            lines.append(known->second);
        else if (!isEmpty)
            lines.append(modificationOf(texts).toString());
    }
    return ModificationText::withLines(text, lines);
}

QStringList ModificationsDialog::problemsOf(const QString &text) const
{
    QStringList problems;
    for (const ModificationText::Line &line : ModificationText::lines(text)) {
        if (!line.problem.isEmpty())
            problems.append(tr("Line %1: %2").arg(line.number).arg(line.problem));
    }
    if (text.count(ModificationText::customMarker(), Qt::CaseInsensitive) > 1)
        problems.append(tr("\"%1\" may stand only once.").arg(ModificationText::customMarker()));
    return problems;
}

QString ModificationsDialog::getModificationsFromUser(const QString &text, QWidget *parent, bool *ok)
{
    return ask(new ModificationsDialog(parent), text, ok);
}

} // namespace orv
