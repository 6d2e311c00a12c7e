#include "KPropertyUtils.h"

#include "KPropertyEditorView.h"
#include "internal/EditorDataModel.h"
#include "utils.h"

#include <QEvent>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

class KPropertyGroupWidget::Private
{
public:
    QToolButton *header = nullptr;
    QWidget *contents = nullptr;
    QVBoxLayout *layout = nullptr;
};

KPropertyGroupWidget::KPropertyGroupWidget(const QString &title, QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    d->layout = new QVBoxLayout(this);
    d->layout->setContentsMargins(0, 0, 0, 0);
    d->layout->setSpacing(0);
    d->header = new QToolButton(this);
    d->header->setText(title);
    d->header->setCheckable(true);
    d->header->setChecked(true);
    d->header->setAutoRaise(true);
    d->header->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    d->header->setArrowType(Qt::DownArrow);
    d->header->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(d->header, &QToolButton::toggled, this, [this](bool open) {
        d->header->setArrowType(open ? Qt::DownArrow : Qt::RightArrow);
        if (d->contents) {
            d->contents->setVisible(open);
        }
    });
    d->layout->addWidget(d->header);
}

KPropertyGroupWidget::~KPropertyGroupWidget() = default;

void KPropertyGroupWidget::setContents(QWidget *contents)
{
    if (contents == d->contents) {
        return;
    }
    delete d->contents;
    d->contents = contents;
    if (contents) {
        d->layout->addWidget(contents);
        contents->setVisible(d->header->isChecked());
    }
}

bool KPropertyGroupWidget::event(QEvent *e)
{
    if (d && d->header && (e->type() == QEvent::FontChange || e->type() == QEvent::StyleChange)) {
        QFont bold = font();
        bold.setBold(true);
        d->header->setFont(bold);
    }
    return QWidget::event(e);
}

namespace KPropertyUtils {

KProperty *propertyForIndex(const QModelIndex &index)
{
    const auto *const model = qobject_cast<const Internal::EditorDataModel *>(index.model());
    return model ? model->property(index) : nullptr;
}

KPropertyEditorView *viewForEditor(const QWidget *editor)
{
    for (QWidget *widget = editor ? editor->parentWidget() : nullptr; widget;
         widget = widget->parentWidget()) {
        if (auto *const view = qobject_cast<KPropertyEditorView *>(widget)) {
            return view;
        }
    }
    return nullptr;
}

void setupDotDotDotButton(QPushButton *button, const QString &toolTip, const QString &whatsThis)
{
    button->setText(QStringLiteral("\u2026"));
    button->setToolTip(toolTip);
    button->setWhatsThis(whatsThis);
    button->setAccessibleName(toolTip.isEmpty() ? QPushButton::tr("Choose") : toolTip);
    button->setAutoDefault(false);
    button->setFocusPolicy(Qt::ClickFocus);
    button->setMaximumWidth(button->fontMetrics().height() + 10);
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
}

} // namespace KPropertyUtils
