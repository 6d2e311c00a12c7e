#include "KPropertyMultiLineStringEditor.h"

#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QToolButton>

class KPropertyMultiLineStringEditor::Private
{
public:
    QPlainTextEdit *edit = nullptr;
    QToolButton *button = nullptr;
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
    return d->edit->toPlainText();
}

void KPropertyMultiLineStringEditor::setValue(const QString &value)
{
    const QSignalBlocker blocker(d->edit);
    d->edit->setPlainText(value);
}

bool KPropertyMultiLineStringEditor::isReadOnly() const
{
    return d->edit->isReadOnly();
}

void KPropertyMultiLineStringEditor::setReadOnly(bool readOnly)
{
    d->edit->setReadOnly(readOnly);
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
