#include "CellEditors.h"

#include "CodesDialog.h"

#include <orv/core/PlainTip.h>
#include <orv/widgets/DialogService.h>
#include <orv/widgets/MeaningColors.h>
#include <orv/widgets/ORVFileDialog.h>
#include <orv/widgets/SequencePainting.h>

#include <QAccessible>
#include <QColorDialog>
#include <QPainter>
#include <QPointer>
#include <QStyle>
#include <QToolButton>
#include <QToolTip>
#include <QValidator>

#include <limits>

namespace orv {

namespace {

struct CellEditorsTr
{
    Q_DECLARE_TR_FUNCTIONS(CellEditors)
};

/// Lets pass whatever may become a number in any way of writing one.
class NumberCharacters : public QValidator
{
public:
    using QValidator::QValidator;

    State validate(QString &text, int & /*position*/) const override
    {
        const auto mayStand = [](QChar c) {
            return c.isDigit() || c.isSpace() || QStringView(u"+-\u2212.,eE'\u2019").contains(c);
        };
        return std::all_of(text.cbegin(), text.cend(), mayStand) ? Acceptable : Invalid;
    }
};

std::optional<QString> chooseFile(QWidget *parent, const QString &now)
{
    const QString chosen = ORVFileDialog::getOpenFileName(parent, CellEditorsTr::tr("Choose a File"), now);
    return chosen.isEmpty() ? std::nullopt : std::optional(chosen);
}

std::optional<QString> chooseColor(QWidget *parent, const QString &now)
{
    const QPointer<QColorDialog> dialog = new QColorDialog(QColor(now), parent);
    dialog->setWindowTitle(CellEditorsTr::tr("Choose a Colour"));
    const bool isAccepted = DialogService::exec(*dialog);
    auto chosen = dialog && isAccepted ? std::optional(dialog->currentColor().name()) : std::nullopt;
    delete dialog;
    return chosen;
}

} // namespace

bool runsLeftToRight(TableColumnKind kind)
{
    return kind != TableColumnKind::Text && kind != TableColumnKind::Choice;
}

CellLineEdit::CellLineEdit(const TableColumn &column, NumberText::DecimalSign sign, CellCheck problemOf,
                           QWidget *parent)
    : QLineEdit(parent)
    , m_column(column)
    , m_sign(sign)
    , m_problemOf(std::move(problemOf))
{
    setFrame(false);
    setMaxLength(std::numeric_limits<int>::max()); // else the end of a protein is cut
    setAccessibleName(column.header());
    if (runsLeftToRight(column.kind))
        setLayoutDirection(Qt::LeftToRight);
    if (column.isNumeric()) {
        setAlignment(Qt::AlignRight);
        setValidator(new NumberCharacters(this));
        setInputMethodHints(Qt::ImhFormattedNumbersOnly);
    }
    if (column.kind == TableColumnKind::Sequence)
        setFont(SequencePainting::fontLike(font()));
    connect(this, &QLineEdit::textChanged, this, [this] { check(); });
    check();
}

int CellLineEdit::signWidth() const
{
    return m_problem.isEmpty() ? 0 : fontMetrics().height();
}

void CellLineEdit::check()
{
    const QString problem = m_problemOf(m_column.kept(text(), m_sign));
    const bool isNew = problem != m_problem;
    m_problem = problem;
    const bool isMirrored = isRightToLeft();
    setTextMargins(isMirrored ? m_chooserWidth : signWidth(), 0, isMirrored ? signWidth() : m_chooserWidth,
                   0);
    setToolTip(PlainTip::of(problem));
    setAccessibleDescription(problem);
    if (isNew && isVisible())
        tell();
    update();
}

void CellLineEdit::tell()
{
    if (m_problem.isEmpty()) {
        QToolTip::hideText();
        return;
    }
    QToolTip::showText(mapToGlobal(rect().bottomLeft()), PlainTip::of(m_problem), this);
    QAccessibleEvent event(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&event);
}

void CellLineEdit::paintEvent(QPaintEvent *event)
{
    QLineEdit::paintEvent(event);
    if (m_problem.isEmpty())
        return;
    QPainter painter(this);
    const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
    const QRect room = QRect(margin, 0, signWidth() - margin, height()).adjusted(0, margin, 0, -margin);
    const QColor color = MeaningColors::error(palette());
    MeaningColors::paintErrorSign(painter, QStyle::visualRect(layoutDirection(), rect(), room), color);
}

void CellLineEdit::takeChosen(const Choose &choose)
{
    const QPointer<CellLineEdit> guard(this);
    const std::optional<QString> chosen = choose(window(), text());
    if (!guard || !chosen)
        return;
    setText(*chosen);
    setModified(true);
}

void CellLineEdit::addChooser(const QString &text, Choose choose)
{
    auto *const button = new QToolButton(this);
    button->setText(QStringLiteral("\u2026"));
    button->setAccessibleName(text);
    button->setToolTip(
        CellEditorsTr::tr("%1 (%2)").arg(text, QKeySequence(Qt::Key_F4).toString(QKeySequence::NativeText)));
    button->setAutoRaise(true);
    button->setCursor(Qt::ArrowCursor);
    button->setFocusPolicy(Qt::NoFocus); // the line keeps it, or the cell would close
    m_chooserWidth = button->sizeHint().width();
    auto *const action = new QAction(text, this);
    // As boxes of choices open; Alt+Down moves rows.
    action->setShortcut(QKeySequence(Qt::Key_F4));
    action->setShortcutContext(Qt::WidgetShortcut);
    addAction(action);
    connect(button, &QToolButton::clicked, action, &QAction::trigger);
    connect(action, &QAction::triggered, this, [this, choose = std::move(choose)] { takeChosen(choose); });
    check();
    const auto place = [this, button] {
        const QRect room(width() - m_chooserWidth, 0, m_chooserWidth, height());
        button->setGeometry(QStyle::visualRect(layoutDirection(), rect(), room));
    };
    connect(this, &CellLineEdit::resized, button, place);
    place();
}

void CellLineEdit::resizeEvent(QResizeEvent *event)
{
    QLineEdit::resizeEvent(event);
    Q_EMIT resized();
}

CellChoiceBox::CellChoiceBox(const TableColumn &column, QWidget *parent)
    : ChoiceBox(parent)
{
    setAccessibleName(column.header());
    setFrame(false);
    if (!column.isRequired)
        addItem(QString());
    addItems(column.choices);
}

QString CellChoiceBox::text() const
{
    return currentText();
}

void CellChoiceBox::setText(const QString &text)
{
    // What isn't allowed is kept until somebody chooses.
    if (findText(text) < 0)
        insertItem(0, text);
    setCurrentIndex(findText(text));
}

QWidget *createCellEditor(const TableColumn &column, NumberText::DecimalSign sign, const CellCheck &problemOf,
                          QWidget *parent)
{
    if (column.kind == TableColumnKind::Choice)
        return new CellChoiceBox(column, parent);
    auto *const line = new CellLineEdit(column, sign, problemOf, parent);
    if (column.kind == TableColumnKind::File)
        line->addChooser(CellEditorsTr::tr("Choose a file"), chooseFile);
    if (column.kind == TableColumnKind::Color)
        line->addChooser(CellEditorsTr::tr("Choose a colour"), chooseColor);
    if (const TableCodes codes = column.codes ? column.codes() : TableCodes(); !codes.list.isEmpty()) {
        line->addChooser(CellEditorsTr::tr("Choose from a list"),
                         [title = column.title, codes](QWidget *asking, const QString &now) {
                             return CodesDialog::ask(title, codes, now, asking);
                         });
    }
    return line;
}

} // namespace orv
