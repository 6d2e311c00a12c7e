#include "KPropertyMultiLineStringEditor.h"

#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QToolButton>

#include <optional>

namespace {

/// The time to wrap a line grows with the square of its longest word.
constexpr qsizetype kMostLettersOfLine = 20'000;

QString withShortLines(const QString &text)
{
    QString shown;
    for (QStringView rest = text;;) {
        const qsizetype end = rest.indexOf(QLatin1Char('\n'));
        const QStringView line = end < 0 ? rest : rest.first(end);
        const qsizetype more = line.size() - kMostLettersOfLine;
        shown += more > 0 ? line.first(kMostLettersOfLine) : line;
        if (more > 0) {
            shown +=
                KPropertyMultiLineStringEditor::tr("\u2026 [%1 more letters: too long to be edited here]")
                    .arg(more);
        }
        if (end < 0) {
            return shown;
        }
        shown += QLatin1Char('\n');
        rest = rest.sliced(end + 1);
    }
}

} // namespace

class KPropertyMultiLineStringEditor::Private
{
public:
    QPlainTextEdit *edit = nullptr;
    QToolButton *button = nullptr;
    /// A value that isn't shown as it is.
    std::optional<QString> held;
    bool readOnly = false;
};

KPropertyMultiLineStringEditor::KPropertyMultiLineStringEditor(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    d->edit = new QPlainTextEdit(this);
    d->edit->setFrameShape(QFrame::NoFrame);
    d->edit->setTabChangesFocus(true);
    layout->addWidget(d->edit);
    setFocusProxy(d->edit);
    connect(d->edit, &QPlainTextEdit::textChanged, this, &KPropertyMultiLineStringEditor::slotTextChanged);
}

KPropertyMultiLineStringEditor::~KPropertyMultiLineStringEditor() = default;

QString KPropertyMultiLineStringEditor::value() const
{
    return d->held.value_or(d->edit->toPlainText());
}

void KPropertyMultiLineStringEditor::setValue(const QString &value)
{
    const QSignalBlocker blocker(d->edit);
    const QString shown = withShortLines(value);
    d->held = shown == value ? std::nullopt : std::optional(value);
    d->edit->setReadOnly(d->readOnly || d->held);
    d->edit->setPlainText(shown);
}

bool KPropertyMultiLineStringEditor::isReadOnly() const
{
    return d->edit->isReadOnly();
}

void KPropertyMultiLineStringEditor::setReadOnly(bool readOnly)
{
    d->readOnly = readOnly;
    d->edit->setReadOnly(readOnly || d->held);
}

void KPropertyMultiLineStringEditor::setSelectionButtonVisible(bool set)
{
    if (set && !d->button) {
        d->button = new QToolButton(this);
        d->button->setText(QStringLiteral("\u2026"));
        d->button->setToolTip(tr("Edit"));
        d->button->setAccessibleName(tr("Edit"));
        d->button->setFocusPolicy(Qt::NoFocus);
        d->button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
        layout()->addWidget(d->button);
        connect(d->button, &QToolButton::clicked, this, &KPropertyMultiLineStringEditor::selectButtonClicked);
    }
    if (d->button) {
        d->button->setVisible(set);
    }
}

void KPropertyMultiLineStringEditor::slotTextChanged()
{
    Q_EMIT commitData(this);
}

void KPropertyMultiLineStringEditor::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    KPropertyWidgetsFactory::paintTopGridLine(this);
}
