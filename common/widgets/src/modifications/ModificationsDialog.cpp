#include "orv/widgets/ModificationsDialog.h"

#include "../scientific/SequenceColumns.h"

#include <orv/chemistry/CommonModifications.h>
#include <orv/chemistry/ModificationText.h>
#include <orv/table_model/TableModel.h>
#include <orv/widgets/DialogService.h>
#include <orv/widgets/MeaningColors.h>
#include <orv/widgets/ScientificTableWidget.h>
#include <orv/widgets/TableEditor.h>

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QGroupBox>
#include <QItemSelectionModel>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
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

QString problemOfModificationMass(QStringView text)
{
    Modification modification;
    modification.mass = text.toString();
    return text.trimmed().isEmpty() || modification.massDa()
               ? QString()
               : ModificationsDialog::tr("Is neither a mass in Da nor a formula.");
}

QList<TableColumn> modificationColumns()
{
    using Kind = TableColumnKind;
    TableColumn name{.name = QStringLiteral("name"), .title = ModificationsDialog::tr("Name")};
    name.isRequired = true;
    name.explanation = ModificationsDialog::tr("By which results name the modification.");
    TableColumn mass{.name = QStringLiteral("mass"),
                     .title = ModificationsDialog::tr("Mass (Da) or formula")};
    mass.isRequired = true;
    mass.check = problemOfModificationMass;
    mass.explanation = ModificationsDialog::tr(
        "What the modification adds: a mass in Da with its sign, or a formula such as C2H3NO.");
    TableColumn residues{.name = QStringLiteral("residues"), .title = ModificationsDialog::tr("Residues")};
    residues.isRequired = true;
    residues.explanation =
        ModificationsDialog::tr("Letters of residues, NTerm or CTerm, with commas between.");
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
    TableColumn state{.name = QStringLiteral("state"), .title = ModificationsDialog::tr("State")};
    state.explanation = ModificationsDialog::tr("Why the row is no modification yet.");
    state.derive = [](const QStringList &texts) {
        const auto read = Modification::fromString(modificationOf(texts).toString());
        return read.hasError() ? read.error().details().join(u' ') : QString();
    };
    state.check = [](QStringView text) { return text.toString(); };
    return {name, mass, residues, use, limit, monoisotopic, state};
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
    QPlainTextEdit *edit = nullptr;
    QLabel *problem = nullptr;
    QString text;
    bool isPassing = false;                            ///< from table to text or back
    QHash<quint32, QPair<QStringList, QString>> lines; ///< the line of each row, as it was read
};

ModificationsDialog::ModificationsDialog(QWidget *parent)
    : QDialog(parent)
    , d(std::make_unique<Private>())
{
    setWindowTitle(tr("Modifications"));
    setObjectName(QStringLiteral("ModificationsDialog"));
    build();
    setText({});
}

ModificationsDialog::~ModificationsDialog()
{
    d->table->sheet()->disconnect(this);
}

void ModificationsDialog::build()
{
    d->table = new ScientificTableWidget(modificationColumns(), tr("Modifications"),
                                         QStringLiteral("Modifications"));
    d->table->setObjectName(QStringLiteral("modifications"));
    d->edit = new QPlainTextEdit;
    d->edit->setObjectName(QStringLiteral("text"));
    d->edit->setAccessibleName(tr("Text of the modifications"));
    d->edit->setToolTip(tr("One modification in a line: name / mass in Da @ residues | fixed, common1 or "
                           "rare1. Lines that begin with % are comments."));
    d->edit->setTabChangesFocus(true);
    d->edit->setLineWrapMode(QPlainTextEdit::NoWrap);
    d->edit->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    d->problem = new QLabel;
    d->problem->setObjectName(QStringLiteral("problem"));
    d->problem->setWordWrap(true);
    buildCommon();
    auto *const pages = new QTabWidget;
    pages->setAccessibleName(tr("Table and text"));
    pages->addTab(d->table, tr("&Table"));
    pages->addTab(d->edit, tr("Te&xt"));
    auto *const splitter = new QSplitter(Qt::Vertical);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(pages);
    splitter->addWidget(d->common->parentWidget());
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(splitter, 1);
    layout->addWidget(d->problem);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    const TableSheet *const sheet = d->table->sheet();
    connect(sheet, &TableSheet::cellsChanged, this, &ModificationsDialog::takeTable);
    connect(sheet, &TableSheet::rowsInserted, this, &ModificationsDialog::takeTable);
    connect(sheet, &TableSheet::rowsRemoved, this, &ModificationsDialog::takeTable);
    connect(sheet, &TableSheet::rowsReordered, this, &ModificationsDialog::takeTable);
    connect(d->edit, &QPlainTextEdit::textChanged, this, &ModificationsDialog::takeText);
    constexpr int kLetters = 150;
    resize(fontMetrics().averageCharWidth() * kLetters, fontMetrics().height() * 42);
}

void ModificationsDialog::buildCommon()
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

QString ModificationsDialog::text() const
{
    return d->text;
}

void ModificationsDialog::setText(const QString &text)
{
    d->text = text;
    d->isPassing = true;
    d->edit->setPlainText(text);
    showTable();
    d->isPassing = false;
    showState();
}

void ModificationsDialog::showTable()
{
    QList<QStringList> rows;
    const QList<ModificationText::Line> lines = ModificationText::lines(d->text);
    d->lines.clear();
    for (const ModificationText::Line &line : lines) {
        const QStringList texts =
            line.problem.isEmpty() ? textsOfModification(line.modification) : QStringList{line.text};
        // Ids of a new load begin at 0.
        d->lines.insert(quint32(rows.size()), {texts, line.text});
        rows.append(texts);
    }
    const Error error = d->table->sheet()->load(rows);
    d->table->setNote(error.hasError() ? error.errorMessage() : QString());
}

void ModificationsDialog::takeTable()
{
    if (d->isPassing)
        return;
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
    d->text = ModificationText::withLines(d->text, lines);
    d->isPassing = true;
    d->edit->setPlainText(d->text);
    d->isPassing = false;
    showState();
}

void ModificationsDialog::takeText()
{
    if (d->isPassing)
        return;
    d->text = d->edit->toPlainText();
    d->isPassing = true;
    showTable();
    d->isPassing = false;
    showState();
}

void ModificationsDialog::showState()
{
    QStringList problems;
    for (const ModificationText::Line &line : ModificationText::lines(d->text)) {
        if (!line.problem.isEmpty())
            problems.append(tr("Line %1: %2").arg(line.number).arg(line.problem));
    }
    if (d->text.count(ModificationText::customMarker(), Qt::CaseInsensitive) > 1)
        problems.append(tr("\"%1\" may stand only once.").arg(ModificationText::customMarker()));
    constexpr int kShown = 3;
    const qsizetype more = problems.size() - kShown;
    QString text = problems.mid(0, kShown).join(u'\n');
    if (more > 0)
        text += u'\n' + tr("and further problems: %1").arg(more);
    QPalette colors = d->problem->palette();
    colors.setColor(QPalette::WindowText, MeaningColors::error(palette()));
    d->problem->setPalette(colors);
    d->problem->setText(text);
    d->problem->setVisible(!text.isEmpty());
    d->edit->setAccessibleDescription(text);
}

QString ModificationsDialog::toPlainText() const
{
    return d->table->toPlainText() + (d->problem->text().isEmpty() ? QString() : u'\n' + d->problem->text());
}

QString ModificationsDialog::getModificationsFromUser(const QString &text, QWidget *parent, bool *ok)
{
    const QPointer<ModificationsDialog> dialog = new ModificationsDialog(parent);
    dialog->setText(text);
    const bool isAccepted = DialogService::exec(*dialog) && dialog;
    QString edited = isAccepted ? dialog->text() : text;
    delete dialog;
    if (ok)
        *ok = isAccepted;
    return edited;
}

} // namespace orv
