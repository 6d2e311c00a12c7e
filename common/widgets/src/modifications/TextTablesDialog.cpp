#include "orv/widgets/TextTablesDialog.h"

#include "../LongText.h"
#include "../NoticeBar.h"

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

class TextTablesDialog::Private
{
public:
    QList<ScientificTableWidget *> tables;
    QPlainTextEdit *edit = nullptr;
    NoticeBar *notice = nullptr; ///< of the text
    QLabel *problem = nullptr;
    QString text;
    bool isPassing = false; ///< from tables to text or back
};

TextTablesDialog::TextTablesDialog(QWidget *parent)
    : QDialog(parent)
    , d(std::make_unique<Private>())
{}

TextTablesDialog::~TextTablesDialog()
{
    // A cell that is being edited is taken while its table goes.
    for (const ScientificTableWidget *const table : std::as_const(d->tables))
        table->sheet()->disconnect(this);
}

QWidget *TextTablesDialog::newEdit(const Words &words)
{
    d->edit = new QPlainTextEdit;
    d->edit->setObjectName(QStringLiteral("text"));
    d->edit->setAccessibleName(words.text);
    d->edit->setToolTip(words.textTip);
    d->edit->setTabChangesFocus(true);
    d->edit->setLineWrapMode(QPlainTextEdit::NoWrap);
    d->edit->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    connect(d->edit, &QPlainTextEdit::textChanged, this, &TextTablesDialog::takeText);
    d->notice = new NoticeBar;
    d->notice->setObjectName(QStringLiteral("textNotice"));
    auto *const page = new QWidget;
    auto *const layout = new QVBoxLayout(page);
    layout->setContentsMargins({});
    layout->addWidget(d->notice);
    layout->addWidget(d->edit);
    page->setFocusProxy(d->edit);
    return page;
}

void TextTablesDialog::showText()
{
    const QString shown = withShortLines(d->text);
    const bool isWhole = shown == d->text;
    d->isPassing = true;
    d->edit->setPlainText(shown);
    d->isPassing = false;
    // What isn't shown would be lost with the first letter that is typed.
    d->edit->setReadOnly(!isWhole);
    d->notice->setText(isWhole
                           ? QString()
                           : tr("Lines too long to be laid out end with \"\u2026\" here, and nothing can be "
                                "typed. All of the text is kept; change it in the table."));
}

void TextTablesDialog::build(const Words &words, QWidget *page, const QList<ScientificTableWidget *> &tables,
                             QWidget *below)
{
    auto *const pages = new QTabWidget;
    pages->setAccessibleName(words.pages);
    pages->addTab(page, words.tablePage);
    pages->addTab(newEdit(words), tr("Te&xt"));
    auto *const splitter = new QSplitter(Qt::Vertical);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(pages);
    if (below)
        splitter->addWidget(below);
    d->problem = new QLabel;
    d->problem->setObjectName(QStringLiteral("problem"));
    d->problem->setWordWrap(true);
    d->problem->setTextFormat(Qt::PlainText);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(splitter, 1);
    layout->addWidget(d->problem);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    d->tables = tables;
    for (const ScientificTableWidget *const table : tables) {
        connect(table->sheet(), &TableSheet::cellsChanged, this, &TextTablesDialog::takeTables);
        connect(table->sheet(), &TableSheet::rowsInserted, this, &TextTablesDialog::takeTables);
        connect(table->sheet(), &TableSheet::rowsRemoved, this, &TextTablesDialog::takeTables);
        connect(table->sheet(), &TableSheet::rowsReordered, this, &TextTablesDialog::takeTables);
    }
    constexpr int kLetters = 150;
    constexpr int kLines = 42;
    resize(fontMetrics().averageCharWidth() * kLetters, fontMetrics().height() * kLines);
    setText({});
}

QString TextTablesDialog::text() const
{
    return d->text;
}

void TextTablesDialog::setText(const QString &text)
{
    d->text = text;
    showText();
    d->isPassing = true;
    showTables(text);
    d->isPassing = false;
    showProblems();
}

void TextTablesDialog::takeTables()
{
    if (d->isPassing)
        return;
    d->text = withTables(d->text);
    showText();
    showProblems();
}

void TextTablesDialog::takeText()
{
    if (d->isPassing)
        return;
    d->text = d->edit->toPlainText();
    d->isPassing = true;
    showTables(d->text);
    d->isPassing = false;
    showProblems();
}

void TextTablesDialog::showProblems()
{
    constexpr int kShown = 3;
    const QStringList problems = problemsOf(d->text);
    const qsizetype more = problems.size() - kShown;
    QString text = beginningOf(problems.mid(0, kShown).join(u'\n'));
    if (more > 0)
        text += u'\n' + tr("and further problems: %1").arg(more);
    QPalette colors = d->problem->palette();
    colors.setColor(QPalette::WindowText, MeaningColors::error(palette()));
    d->problem->setPalette(colors);
    d->problem->setText(text);
    d->problem->setVisible(!text.isEmpty());
    d->edit->setAccessibleDescription(text);
}

QString TextTablesDialog::toPlainText() const
{
    QStringList parts;
    for (const ScientificTableWidget *const table : std::as_const(d->tables))
        parts.append(table->toPlainText());
    if (!d->problem->text().isEmpty())
        parts.append(d->problem->text());
    return parts.join(u'\n');
}

QString TextTablesDialog::ask(TextTablesDialog *dialog, const QString &text, bool *ok)
{
    const QPointer<TextTablesDialog> shown = dialog;
    dialog->setText(text);
    const bool isAccepted = DialogService::exec(*dialog) && shown;
    QString edited = isAccepted ? shown->text() : text;
    delete shown;
    if (ok)
        *ok = isAccepted;
    return edited;
}

} // namespace orv
