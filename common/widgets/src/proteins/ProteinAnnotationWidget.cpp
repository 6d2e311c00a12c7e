#include "orv/widgets/ProteinAnnotationWidget.h"

#include <orv/table_model/NumberText.h>
#include <orv/table_model/RecordSheet.h>
#include <orv/widgets/TableEditor.h>

namespace orv {

namespace {

constexpr int kAnnotatedAt = 0;
constexpr int kFirstResidueAt = 2;
constexpr int kLastResidueAt = 3;

using AnnotationRecords = RecordSheet<ProteinAnnotationEntry>;

void setResidue(int *place, QStringView text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (isNumber && number > 0)
        *place = number;
}

QList<AnnotationRecords::Field> annotationFields()
{
    using Entry = ProteinAnnotationEntry;
    return {
        {QStringLiteral("protein"), [](const Entry &entry) { return entry.protein; },
         [](Entry *entry, QStringView text) { entry->protein = text.toString(); }},
        {QStringLiteral("name"), [](const Entry &entry) { return entry.name; },
         [](Entry *entry, QStringView text) { entry->name = text.toString(); }},
        {QStringLiteral("begin"), [](const Entry &entry) { return QString::number(entry.begin); },
         [](Entry *entry, QStringView text) {
             setResidue(&entry->begin, text);
             // A stretch that ends before it begins can't be read back.
             entry->end = std::max(entry->end, entry->begin);
         }},
        {QStringLiteral("end"), [](const Entry &entry) { return QString::number(entry.end); },
         [](Entry *entry, QStringView text) {
             setResidue(&entry->end, text);
             entry->end = std::max(entry->end, entry->begin);
         }},
        {QStringLiteral("colour"), [](const Entry &entry) { return entry.colour; },
         [](Entry *entry, QStringView text) { entry->colour = text.toString(); }},
    };
}

} // namespace

struct ProteinAnnotationWidget::Shared
{
    QHash<QString, QString> sequences;
    bool areSequencesKnown = false;

    [[nodiscard]] QString residuesOf(const QStringList &texts) const;
    [[nodiscard]] QString problemOf(QStringView protein) const;
    [[nodiscard]] static QList<TableColumn> columns(const std::shared_ptr<Shared> &shared);
};

QString ProteinAnnotationWidget::Shared::residuesOf(const QStringList &texts) const
{
    const QString sequence = sequences.value(texts[kAnnotatedAt]);
    const int begin = texts[kFirstResidueAt].toInt();
    const int end = texts[kLastResidueAt].toInt();
    if (sequence.isEmpty())
        return {};
    if (begin < 1 || begin > end)
        return tr("(ends before it begins)");
    return end > sequence.size() ? tr("(the protein ends at %1)").arg(sequence.size())
                                 : sequence.mid(begin - 1, end - begin + 1);
}

QString ProteinAnnotationWidget::Shared::problemOf(QStringView protein) const
{
    const bool isKnown = !areSequencesKnown || protein.isEmpty() || sequences.contains(protein.toString());
    return isKnown ? QString() : tr("There is no protein \"%1\".").arg(protein);
}

QList<TableColumn> ProteinAnnotationWidget::Shared::columns(const std::shared_ptr<Shared> &shared)
{
    using Kind = TableColumnKind;
    TableColumn protein{.name = QStringLiteral("protein"), .title = tr("Protein")};
    protein.explanation = tr("Accession of the protein.");
    protein.check = [shared](QStringView text) { return shared->problemOf(text); };
    TableColumn name{.name = QStringLiteral("name"), .title = tr("Name")};
    name.explanation = tr("What the stretch is called, such as CDR-H3.");
    TableColumn begin{.name = QStringLiteral("begin"), .title = tr("First residue"), .kind = Kind::Integer};
    begin.minimum = 1;
    begin.defaultText = QStringLiteral("1");
    begin.isRequired = true;
    begin.explanation = tr("Counted from 1.");
    TableColumn end = begin;
    end.name = QStringLiteral("end");
    end.title = tr("Last residue");
    TableColumn colour{.name = QStringLiteral("colour"), .title = tr("Colour"), .kind = Kind::Color};
    colour.explanation = tr("In which the stretch is drawn; empty for the usual one.");
    TableColumn residues{.name = QStringLiteral("residues"), .title = tr("Residues"), .kind = Kind::Sequence};
    residues.explanation = tr("The stretch itself. Follows from the sequence of the protein.");
    residues.derive = [shared](const QStringList &texts) { return shared->residuesOf(texts); };
    // What is told in its place is no sequence.
    residues.kind = Kind::Text;
    return {protein, name, begin, end, colour, residues};
}

class ProteinAnnotationWidget::Private
{
public:
    Private(TableSheet *sheet, std::shared_ptr<Shared> ofColumns)
        : shared(std::move(ofColumns))
        , annotations(sheet, annotationFields())
    {}

    std::shared_ptr<Shared> shared;
    AnnotationRecords annotations;
};

ProteinAnnotationWidget::ProteinAnnotationWidget(QWidget *parent)
    : ProteinAnnotationWidget(std::make_shared<Shared>(), parent)
{}

ProteinAnnotationWidget::ProteinAnnotationWidget(const std::shared_ptr<Shared> &shared, QWidget *parent)
    : ScientificTableWidget(Shared::columns(shared), tr("Annotations of proteins"),
                            QStringLiteral("ProteinAnnotations"), parent)
    , d(std::make_unique<Private>(sheet(), shared))
{
    sheet()->setRowRules(
        {TableRules::inOrder(sheet()->columns(), QStringLiteral("begin"), QStringLiteral("end"))});
}

ProteinAnnotationWidget::~ProteinAnnotationWidget() = default;

QList<ProteinAnnotationEntry> ProteinAnnotationWidget::allAnnotations() const
{
    return d->annotations.records();
}

void ProteinAnnotationWidget::addAnnotations(const QList<ProteinAnnotationEntry> &annotations)
{
    const Error error = d->annotations.load(annotations);
    noteLoad(error);
}

void ProteinAnnotationWidget::setAsDigestedOligoProject(bool isOligo)
{
    setTitle(isOligo ? tr("Annotations of oligonucleotides") : tr("Annotations of proteins"));
}

void ProteinAnnotationWidget::setSequences(const QHash<QString, QString> &sequences)
{
    if (d->shared->areSequencesKnown && sequences == d->shared->sequences)
        return;
    d->shared->sequences = sequences;
    d->shared->areSequencesKnown = true;
    sheet()->deriveAnew();
}

} // namespace orv
