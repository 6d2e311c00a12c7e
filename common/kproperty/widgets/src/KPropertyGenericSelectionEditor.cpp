#include "KPropertyGenericSelectionEditor.h"

#include "utils.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>

class KPropertyGenericSelectionEditor::Private
{
public:
    QHBoxLayout *layout = nullptr;
    QWidget *mainWidget = nullptr;
    QPushButton *button = nullptr;
};

KPropertyGenericSelectionEditor::KPropertyGenericSelectionEditor(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    d->layout = new QHBoxLayout(this);
    d->layout->setContentsMargins(0, 0, 0, 0);
    d->layout->setSpacing(0);
    d->button = new QPushButton(this);
    KPropertyUtils::setupDotDotDotButton(d->button, tr("Choose"));
    d->layout->addWidget(d->button);
    // The button takes no focus, so this is the way to it for those who don't use a mouse.
    auto *const shortcut = new QShortcut(Qt::Key_F4, this);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this, [this] {
        if (d->button->isVisibleTo(this)) {
            d->button->click();
        }
    });
    // Through a lambda, so that the function of a subclass is called.
    connect(d->button, &QPushButton::clicked, this, [this] { selectButtonClicked(); });
}

KPropertyGenericSelectionEditor::~KPropertyGenericSelectionEditor() = default;

void KPropertyGenericSelectionEditor::setSelectionButtonVisible(bool set)
{
    d->button->setVisible(set);
}

void KPropertyGenericSelectionEditor::setMainWidget(QWidget *widget)
{
    if (widget == d->mainWidget) {
        return;
    }
    delete d->mainWidget;
    d->mainWidget = widget;
    if (widget) {
        widget->setParent(this);
        d->layout->insertWidget(0, widget, 1);
        setFocusProxy(widget);
    }
}

void KPropertyGenericSelectionEditor::selectButtonClicked() {}
