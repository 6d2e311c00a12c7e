#include "orv/widgets/SequenceDatabasesWidget.h"

#include "../NoticeBar.h"
#include "../TablePage.h"

#include <orv/core/FileExtensionsNameFilter.h>
#include <orv/core_ms/SampleFileChecker.h>
#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/table_model/RecordSheet.h>
#include <orv/widgets/TableEditor.h>

#include <QVBoxLayout>

#include <limits>

namespace orv {

namespace {

using DatabaseSheet = RecordSheet<SequenceDatabaseItem>;

constexpr QLatin1String kFasta("fasta");

/// A stored text that is no reference is shown all the same, so that somebody can mend it.
QString fastaOf(const SequenceDatabaseItem &item)
{
    return item.fastaReference() ? item.fastaReference()->text() : item.toJson().value(kFasta).toString();
}

/// What is no reference yet is kept as a stored text.
void takeFasta(SequenceDatabaseItem *item, const QString &text)
{
    const auto reference = ResourceReference::fromString(text);
    item->setFastaReference(reference.hasError() || text.isEmpty() ? nullptr : *reference);
    if (!reference.hasError())
        return;
    QJsonObject json = item->toJson();
    json.insert(kFasta, text);
    *item = SequenceDatabaseItem::fromJson(json).valueOr(*item);
}

DatabaseSheet::Columns sequenceDatabaseColumns()
{
    TableColumn file{
        .name = kFasta, .title = SequenceDatabasesWidget::tr("FASTA file"), .kind = TableColumnKind::File};
    file.isRequired = true;
    file.explanation = SequenceDatabasesWidget::tr("The file with the sequences that are searched.");
    file.fileFilter = FileExtensionsNameFilter{FileTypes::FASTA}.nameFilters().value(0);
    file.check = [](QStringView text) {
        const auto reference = ResourceReference::fromString(text.toString());
        if (reference.hasError())
            return SequenceDatabasesWidget::tr(
                       "\"%1\" is no reference to a file. Enter a path, or choose a file.")
                .arg(text);
        return FileTypes::isType((*reference)->name(), FileTypes::FASTA)
                   ? QString()
                   : SequenceDatabasesWidget::tr("Is not a FASTA file. Its name must end with one of: %1.")
                         .arg(FileTypes::suffixes(FileTypes::FASTA).join(QLatin1String(", ")));
    };
    TableColumn species{.name = QStringLiteral("species"), .title = SequenceDatabasesWidget::tr("Species")};
    species.explanation =
        SequenceDatabasesWidget::tr("The species that is taken from the file; empty for all sequences.");
    return {
        {file, fastaOf, takeFasta},
        {species, [](const SequenceDatabaseItem &item) { return item.species(); },
         [](SequenceDatabaseItem *item, const QString &text) { item->setSpecies(text); }},
    };
}

} // namespace

class SequenceDatabasesWidget::Private
{
public:
    SequenceDatabaseItem fresh(quint32 row)
    {
        int &id = ids[row];
        if (id == 0)
            id = nextId++;
        return {nullptr, id, {}};
    }

    QHash<quint32, int> ids; ///< of rows that were added
    int nextId = SequenceDatabaseItem::START_ID;
    std::shared_ptr<DatabaseSheet> table;
    SampleFileChecker *checker = nullptr;
    TableEditor *editor = nullptr;
    NoticeBar *notice = nullptr;
    QUrl baseUrl;
};

SequenceDatabasesWidget::SequenceDatabasesWidget(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    d->table = std::make_shared<DatabaseSheet>(sequenceDatabaseColumns(),
                                               [this](quint32 row) { return d->fresh(row); });
    d->checker = new SampleFileChecker(this);
    d->notice = new NoticeBar;
    d->editor = TablePage::editorOf({d->table, d->table->sheet()}, tr("Sequence databases"),
                                    QStringLiteral("SequenceDatabases"));
    TableView *const view = d->editor->view();
    view->setEmptyText(tr("There are no sequence databases yet.\nDrop FASTA files here, or add a row and "
                          "choose a file."));
    view->setColumnWidth(0, fontMetrics().averageCharWidth() * 60);
    view->tableModel()->setNotes([this](quint32 row, int column) {
        if (column != 0)
            return QString();
        const auto reference = ResourceReference::fromString(d->table->sheet()->textOf(row, 0).toString());
        const auto answer =
            d->checker->answer(ResourceReferenceUtils::resolved(reference.valueOr({}), d->baseUrl));
        return answer ? answer->text : QString();
    });
    connect(d->checker, &SampleFileChecker::answered, view->tableModel(), &TableModel::tellNotesChanged);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(d->notice);
    layout->addWidget(d->editor, 1);
    setFocusProxy(d->editor);
    TablePage::tellAfterEvents(*d->table->sheet(), this, [this] { Q_EMIT itemsChanged(); });
}

SequenceDatabasesWidget::~SequenceDatabasesWidget()
{
    // A table takes what is being typed while it goes; then everything else is still there.
    d->table->sheet()->history()->disconnect(this);
    delete d->editor;
}

QList<SequenceDatabaseItem> SequenceDatabasesWidget::items() const
{
    return d->table->records();
}

void SequenceDatabasesWidget::setItems(const QList<SequenceDatabaseItem> &items)
{
    int highest = SequenceDatabaseItem::START_ID - 1;
    for (const SequenceDatabaseItem &item : items)
        highest = std::max(highest, item.id() < std::numeric_limits<int>::max() / 2 ? item.id() : 0);
    d->ids.clear();
    d->nextId = highest + 1;
    const Error error = d->table->load(items);
    d->notice->setText(error.hasError() ? error.errorMessage() : QString());
}

void SequenceDatabasesWidget::setBaseUrl(const QUrl &baseUrl)
{
    d->baseUrl = baseUrl;
    d->editor->view()->tableModel()->tellNotesChanged();
}

QString SequenceDatabasesWidget::plainText() const
{
    return TablePage::textOf(d->editor);
}

} // namespace orv
