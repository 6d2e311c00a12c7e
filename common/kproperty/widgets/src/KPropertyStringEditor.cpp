#include "KPropertyStringEditor.h"

#include "KPropertyMultiLineStringEditor.h"
#include "internal/Painting.h"

#include <QPainter>
#include <QResizeEvent>
#include <QToolButton>

#include <limits>

class KPropertyStringEditor::Private
{
public:
    QToolButton *button = nullptr;
};

KPropertyStringEditor::KPropertyStringEditor(QWidget *parent)
    : QLineEdit(parent)
    , d(std::make_unique<Private>())
{
    setMaxLength(std::numeric_limits<int>::max()); // else the first letter typed would cut a long text
    connect(this, &QLineEdit::textChanged, this, &KPropertyStringEditor::slotTextChanged);
}

KPropertyStringEditor::~KPropertyStringEditor() = default;

QString KPropertyStringEditor::value() const
{
    return text();
}

void KPropertyStringEditor::setValue(const QString &value)
{
    const QSignalBlocker blocker(this);
    setText(value);
}

void KPropertyStringEditor::slotTextChanged(const QString &)
{
    Q_EMIT commitData(this);
}

void KPropertyStringEditor::setSelectionButtonVisible(bool set)
{
    if (set && !d->button) {
        d->button = new QToolButton(this);
        d->button->setText(QStringLiteral("\u2026"));
        d->button->setToolTip(tr("Edit"));
        d->button->setAccessibleName(tr("Edit"));
        d->button->setCursor(Qt::ArrowCursor);
        d->button->setFocusPolicy(Qt::NoFocus);
        connect(d->button, &QToolButton::clicked, this, &KPropertyStringEditor::selectButtonClicked);
    }
    if (d->button) {
        d->button->setVisible(set);
        setTextMargins(0, 0, set ? d->button->sizeHint().width() : 0, 0);
    }
}

void KPropertyStringEditor::resizeEvent(QResizeEvent *event)
{
    QLineEdit::resizeEvent(event);
    if (d->button) {
        const int width = d->button->sizeHint().width();
        d->button->setGeometry(this->width() - width, 0, width, height());
    }
}

KPropertyStringDelegate::KPropertyStringDelegate() = default;

QWidget *KPropertyStringDelegate::createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                                               const QModelIndex &index) const
{
    Q_UNUSED(type)
    Q_UNUSED(option)
    const KProperty *const property = KPropertyUtils::propertyForIndex(index);
    if (property && property->option("multiLine").toBool()) {
        return new KPropertyMultiLineStringEditor(parent);
    }
    return new KPropertyStringEditor(parent);
}

void KPropertyStringDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                    const QModelIndex &index) const
{
    if (option.text.isEmpty()) {
        KPropertyValuePainterInterface::paint(this, painter, option, index);
    } else {
        Internal::Painting::drawText(painter, option, option.text);
    }
}

QString KPropertyStringDelegate::valueToString(const QVariant &value, const QLocale &locale) const
{
    return locale.language() == QLocale::C ? value.toString() : valueToLocalizedString(value);
}
