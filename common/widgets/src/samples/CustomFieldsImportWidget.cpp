#include "orv/widgets/CustomFieldsImportWidget.h"

#include "../LongText.h"
#include "../NoticeBar.h"
#include "../TablePage.h"

#include <orv/table_model/RowNodeSheet.h>
#include <orv/widgets/Icons.h>
#include <orv/widgets/ORVFileDialog.h>
#include <orv/widgets/TableEditor.h>

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace orv {

class CustomFieldsImportWidget::Private
{
public:
    RowNode header;
    RowNodeSheet table;
    RowNode unshown; ///< a table that was set and can't be shown
    bool isShown = true;
    NoticeBar *notice = nullptr;
    QLabel *fields = nullptr;
    QPointer<TableEditor> editor;
};

CustomFieldsImportWidget::CustomFieldsImportWidget(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    build();
    showHeader();
    showTable();
}

CustomFieldsImportWidget::~CustomFieldsImportWidget()
{
    // A table takes what is being typed while it goes; then everything else is still there.
    d->table.sheet()->history()->disconnect(this);
    delete d->editor;
}

void CustomFieldsImportWidget::build()
{
    d->notice = new NoticeBar;
    d->fields = new QLabel;
    d->fields->setObjectName(QStringLiteral("fields"));
    d->fields->setTextFormat(Qt::PlainText);
    d->fields->setWordWrap(true);
    auto *const import = new QPushButton(Icons::icon(IconName::Import), tr("&Import Text File..."));
    import->setObjectName(QStringLiteral("importCsv"));
    import->setToolTip(tr("Replace the table by a CSV file of samples and proteins"));
    connect(import, &QPushButton::clicked, this, &CustomFieldsImportWidget::chooseFile);
    auto *const top = new QHBoxLayout;
    top->addWidget(d->fields, 1);
    top->addWidget(import);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(d->notice);
    layout->addLayout(top);
}

RowNode CustomFieldsImportWidget::headerContent() const
{
    return d->header;
}

void CustomFieldsImportWidget::setHeaderContent(const RowNode &header)
{
    d->header = header;
    showHeader();
}

void CustomFieldsImportWidget::showHeader()
{
    QStringList fields;
    for (int i = 0; i < d->header.getChildListSize(); ++i) {
        QStringList words = d->header.getChild(i)->getRowDataToStringList();
        words.removeAll(QString());
        const QString name = words.isEmpty() ? QString() : words.takeFirst();
        const QString field =
            words.isEmpty() ? name : tr("%1 (%2)").arg(name, words.join(QLatin1String(", ")));
        constexpr qsizetype kFieldUnits = 120;
        fields.append(beginningOf(field, kFieldUnits));
    }
    d->fields->setText(fields.isEmpty()
                           ? tr("No fields yet. Import a text file with a column for each.")
                           : beginningOf(tr("Fields: %1").arg(fields.join(QLatin1String("; ")))));
}

RowNode CustomFieldsImportWidget::tableContent() const
{
    return d->isShown ? d->table.table() : d->unshown;
}

void CustomFieldsImportWidget::setTableContent(const RowNode &table)
{
    const Error error = d->table.load(table);
    d->isShown = !error.hasError();
    d->unshown = error.hasError() ? table : RowNode();
    showError(error);
    if (!error.hasError())
        d->notice->setText(d->table.noteOnUnshown());
    showTable();
}

void CustomFieldsImportWidget::showTable()
{
    if (d->editor)
        d->editor->deleteLater();
    d->editor =
        TablePage::editorOf(d->table.sheet(), tr("Samples and proteins"), QStringLiteral("SamplesProteins"));
    d->editor->view()->setEmptyText(tr("There are no samples and proteins yet. Import a text file."));
    d->editor->setEnabled(d->isShown);
    layout()->addWidget(d->editor);
    setFocusProxy(d->editor);
    TablePage::tellAfterEvents(*d->table.sheet(), this, [this] { Q_EMIT contentChanged(); });
}

void CustomFieldsImportWidget::importCSV(const QString &path)
{
    showError(Error::NoError);
    Q_EMIT importWanted(path);
}

void CustomFieldsImportWidget::showError(const Error &error)
{
    d->notice->setText(error.hasError() ? (error.errorMessages() + error.details()).join(u' ') : QString());
}

QString CustomFieldsImportWidget::plainText() const
{
    return d->fields->text() + u'\n' + TablePage::textOf(d->editor);
}

void CustomFieldsImportWidget::chooseFile()
{
    const QPointer<CustomFieldsImportWidget> self = this;
    const QString path = ORVFileDialog::getOpenFileName(this, tr("Import Samples and Proteins"), {},
                                                        {FileTypes::CSV, FileTypes::TXT});
    if (self && !path.isEmpty())
        importCSV(path);
}

} // namespace orv
