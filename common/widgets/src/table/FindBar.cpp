#include "FindBar.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>

namespace orv {

namespace {

/// More are told as "1000 or more": people want to know whether, not how many.
constexpr int kCountedCells = 1000;

QPushButton *addButton(QBoxLayout *row, const QString &text, const char *name)
{
    auto *const button = new QPushButton(text);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    row->addWidget(button);
    return button;
}

QLineEdit *addLine(QBoxLayout *row, const QString &name, const char *objectName)
{
    auto *const line = new QLineEdit;
    line->setPlaceholderText(name);
    line->setAccessibleName(name);
    line->setObjectName(QLatin1String(objectName));
    line->setClearButtonEnabled(true);
    row->addWidget(line, 1);
    return line;
}

QBoxLayout *addBarRow(QBoxLayout *bar)
{
    auto *const row = new QHBoxLayout;
    bar->addLayout(row);
    return row;
}

} // namespace

FindBar::FindBar(TableView *view, QWidget *parent)
    : QWidget(parent)
    , m_view(view)
{
    build();
    hide();
}

void FindBar::build()
{
    auto *const rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    QBoxLayout *const findRow = addBarRow(rows);
    m_text = addLine(findRow, tr("Find"), "findText");
    QPushButton *const previous = addButton(findRow, tr("Previ&ous"), "findPrevious");
    QPushButton *const next = addButton(findRow, tr("Ne&xt"), "findNext");
    QPushButton *const close = addButton(findRow, tr("Close"), "findClose");
    QBoxLayout *const optionRow = addBarRow(rows);
    m_caseSensitive = new QCheckBox(tr("Match &case"));
    m_wholeCell = new QCheckBox(tr("&Whole cells"));
    m_count = new QLabel;
    m_count->setObjectName(QStringLiteral("findCount"));
    optionRow->addWidget(m_caseSensitive);
    optionRow->addWidget(m_wholeCell);
    optionRow->addStretch();
    optionRow->addWidget(m_count);
    m_replaceRow = new QWidget;
    auto *const replaceRow = new QHBoxLayout(m_replaceRow);
    replaceRow->setContentsMargins({});
    m_replacement = addLine(replaceRow, tr("Replace with"), "replacement");
    QPushButton *const one = addButton(replaceRow, tr("&Replace"), "replaceOne");
    QPushButton *const all = addButton(replaceRow, tr("Replace A&ll"), "replaceAll");
    rows->addWidget(m_replaceRow);

    connect(m_text, &QLineEdit::textChanged, this, &FindBar::tellCount);
    connect(m_caseSensitive, &QCheckBox::toggled, this, &FindBar::tellCount);
    connect(m_wholeCell, &QCheckBox::toggled, this, &FindBar::tellCount);
    connect(next, &QPushButton::clicked, this, [this] { go(TableFind::Direction::Forward); });
    connect(previous, &QPushButton::clicked, this, [this] { go(TableFind::Direction::Backward); });
    connect(one, &QPushButton::clicked, this, &FindBar::replaceOne);
    connect(all, &QPushButton::clicked, this, &FindBar::replaceAll);
    connect(close, &QPushButton::clicked, this, [this] {
        hide();
        m_view->setFocus();
    });
}

void FindBar::begin(bool withReplacement)
{
    m_replaceRow->setVisible(withReplacement);
    show();
    m_text->setFocus();
    m_text->selectAll();
    tellCount();
}

TableSearch FindBar::search() const
{
    return {.text = m_text->text(),
            .isCaseSensitive = m_caseSensitive->isChecked(),
            .isWholeCell = m_wholeCell->isChecked(),
            .columns = m_view->shownColumns()};
}

void FindBar::keyPressEvent(QKeyEvent *event)
{
    const bool isBackward = event->modifiers().testFlag(Qt::ShiftModifier);
    switch (event->key()) {
    case Qt::Key_Escape:
        hide();
        m_view->setFocus();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F3:
        go(isBackward ? TableFind::Direction::Backward : TableFind::Direction::Forward);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void FindBar::go(TableFind::Direction direction)
{
    const QModelIndex found =
        TableFind::next(*m_view->tableModel(), search(), m_view->currentIndex(), direction);
    if (found.isValid())
        m_view->goTo(found);
    tellCount();
}

void FindBar::replaceOne()
{
    const QPointer<FindBar> guard(this);
    const Result<int> replaced =
        TableFind::replace(*m_view->tableModel(), search(), m_view->currentIndex(), m_replacement->text());
    if (guard && replaced.hasError())
        Q_EMIT m_view->said(replaced.error().errorMessage());
    if (guard)
        go(TableFind::Direction::Forward);
}

void FindBar::replaceAll()
{
    const QPointer<FindBar> guard(this);
    const Result<int> replaced =
        TableFind::replaceAll(*m_view->tableModel(), search(), m_replacement->text());
    if (!guard)
        return;
    Q_EMIT m_view->said(replaced.hasError() ? replaced.error().errorMessage()
                                            : tr("Cells changed: %1").arg(replaced.value()));
    if (guard)
        tellCount();
}

void FindBar::tellCount()
{
    const int count = TableFind::count(*m_view->tableModel(), search(), kCountedCells);
    m_count->setText(m_text->text().isEmpty() ? QString()
                     : count == 0             ? tr("Nothing found")
                     : count == kCountedCells ? tr("Cells: %1 or more").arg(count)
                                              : tr("Cells: %1").arg(count));
}

} // namespace orv
