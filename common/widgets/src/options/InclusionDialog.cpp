#include "orv/widgets/InclusionDialog.h"

#include "../TablePage.h"
#include "TableDialogLayout.h"

#include <orv/table_model/RecordSheet.h>
#include <orv/widgets/TableEditor.h>

#include <QPointer>

namespace orv {

namespace {

using InclusionSheet = RecordSheet<InclusionItem>;
using InclusionColumn = RecordColumn<InclusionItem>;

QString shortest(double number)
{
    return NumberText::fromDouble(number);
}

InclusionColumn mzColumn()
{
    TableColumn column{
        .name = QStringLiteral("mz"), .title = InclusionDialog::tr("m/z"), .kind = TableColumnKind::Number};
    column.isRequired = true;
    column.explanation = InclusionDialog::tr("Of the precursor.");
    column.check = [](QStringView text) {
        return NumberText::value(text).value_or(0) > 0 ? QString() : InclusionDialog::tr("Must be above 0.");
    };
    return {column, [](const InclusionItem &item) { return item.mz > 0 ? shortest(item.mz) : QString(); },
            [](InclusionItem *item, const QString &text) { item->mz = NumberText::value(text).value_or(0); }};
}

InclusionColumn chargeColumn()
{
    TableColumn column{.name = QStringLiteral("charge"),
                       .title = InclusionDialog::tr("Charge"),
                       .kind = TableColumnKind::Integer};
    column.minimum = -1000;
    column.maximum = 1000;
    column.explanation = InclusionDialog::tr("Of the precursor; empty for any.");
    return {
        column,
        [](const InclusionItem &item) { return item.charge == 0 ? QString() : QString::number(item.charge); },
        [](InclusionItem *item, const QString &text) { item->charge = text.toInt(); }};
}

InclusionColumn inclusionTimeColumn(const QString &name, const QString &title, const QString &explanation,
                                    std::optional<double> InclusionItem::*member)
{
    TableColumn column{.name = name, .title = title, .kind = TableColumnKind::Number};
    column.unit = InclusionDialog::tr("min");
    column.minimum = 0;
    column.explanation = explanation;
    return {
        column,
        [member](const InclusionItem &item) { return item.*member ? shortest(*(item.*member)) : QString(); },
        [member](InclusionItem *item, const QString &text) { item->*member = NumberText::value(text); }};
}

InclusionSheet::Columns inclusionColumns()
{
    TableColumn name{.name = QStringLiteral("name"), .title = InclusionDialog::tr("Name")};
    name.explanation = InclusionDialog::tr("Of the precursor, such as its peptide.");
    return {
        mzColumn(),
        chargeColumn(),
        inclusionTimeColumn(QStringLiteral("start"), InclusionDialog::tr("From"),
                            InclusionDialog::tr("Where its retention time begins; empty for no limit."),
                            &InclusionItem::startMinutes),
        inclusionTimeColumn(QStringLiteral("end"), InclusionDialog::tr("To"),
                            InclusionDialog::tr("Where its retention time ends; empty for no limit."),
                            &InclusionItem::endMinutes),
        {name, [](const InclusionItem &item) { return item.name; },
         [](InclusionItem *item, const QString &text) { item->name = text; }},
    };
}

} // namespace

class InclusionDialog::Private
{
public:
    std::shared_ptr<InclusionSheet> table = std::make_shared<InclusionSheet>(inclusionColumns());
    QPointer<TableEditor> editor;
};

InclusionDialog::InclusionDialog(QWidget *parent)
    : QDialog(parent)
    , d(std::make_unique<Private>())
{
    setWindowTitle(tr("Inclusion List"));
    TableSheet *const sheet = d->table->sheet();
    sheet->setRowRules(
        {TableRules::inOrder(sheet->columns(), QStringLiteral("start"), QStringLiteral("end"))});
    d->editor = TablePage::editorOf({d->table, d->table->sheet()}, tr("Inclusion list"),
                                    QStringLiteral("InclusionList"));
    // What couldn't be read the next time isn't given back.
    layOutTableDialog(this, d->editor, [this] {
        const auto items = InclusionList::toVector(InclusionList::toJson(d->table->records()));
        return items.hasError() ? items.error() : Error::NoError;
    });
}

InclusionDialog::~InclusionDialog()
{
    delete d->editor;
}

QList<InclusionItem> InclusionDialog::items() const
{
    return d->table->records();
}

void InclusionDialog::setItems(const QList<InclusionItem> &items)
{
    if (const Error error = d->table->load(items); error.hasError())
        Q_EMIT d->editor->view()->said(error.errorMessage());
}

QString InclusionDialog::plainText() const
{
    return TablePage::textOf(d->editor);
}

} // namespace orv
