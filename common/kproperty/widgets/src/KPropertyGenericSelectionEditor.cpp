#include "KPropertyGenericSelectionEditor.h"

#include "utils.h"

#include <QHBoxLayout>
#include <QPushButton>

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
