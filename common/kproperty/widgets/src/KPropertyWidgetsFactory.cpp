#include "KPropertyWidgetsFactory.h"

#include "KPropertyEditorView.h"
#include "internal/Painting.h"

#include <QSet>

class KPropertyEditorCreatorOptions::Private
{
public:
    bool bordersVisible = false;
};

KPropertyEditorCreatorOptions::KPropertyEditorCreatorOptions()
    : d(std::make_unique<Private>())
{}

KPropertyEditorCreatorOptions::KPropertyEditorCreatorOptions(const KPropertyEditorCreatorOptions &other)
    : d(std::make_unique<Private>(*other.d))
{}

KPropertyEditorCreatorOptions::~KPropertyEditorCreatorOptions() = default;

bool KPropertyEditorCreatorOptions::bordersVisible() const
{
    return d->bordersVisible;
}

void KPropertyEditorCreatorOptions::setBordersVisible(bool visible)
{
    d->bordersVisible = visible;
}

KPropertyEditorCreatorOptions &
KPropertyEditorCreatorOptions::operator=(const KPropertyEditorCreatorOptions &other)
{
    *d = *other.d;
    return *this;
}

bool KPropertyEditorCreatorOptions::operator==(const KPropertyEditorCreatorOptions &other) const
{
    return d->bordersVisible == other.d->bordersVisible;
}

class KPropertyEditorCreatorInterface::Private
{
public:
    KPropertyEditorCreatorOptions options;
};

KPropertyEditorCreatorInterface::KPropertyEditorCreatorInterface()
    : d(std::make_unique<Private>())
{}

KPropertyEditorCreatorInterface::~KPropertyEditorCreatorInterface() = default;

QWidget *KPropertyEditorCreatorInterface::createEditor(int, QWidget *, const QStyleOptionViewItem &,
                                                       const QModelIndex &) const
{
    return nullptr;
}

const KPropertyEditorCreatorOptions *KPropertyEditorCreatorInterface::options() const
{
    return &d->options;
}

KPropertyEditorCreatorOptions *KPropertyEditorCreatorInterface::options()
{
    return &d->options;
}

KPropertyValuePainterInterface::KPropertyValuePainterInterface() = default;
KPropertyValuePainterInterface::~KPropertyValuePainterInterface() = default;

void KPropertyValuePainterInterface::paint(const KPropertyValueDisplayInterface *iface, QPainter *painter,
                                           const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const KProperty *const property = KPropertyUtils::propertyForIndex(index);
    const QString text = property ? iface->propertyValueToString(property, QLocale())
                                  : iface->valueToString(index.data(Qt::EditRole), QLocale());
    Internal::Painting::drawText(painter, option, text);
}

class KPropertyLabel::Private
{
public:
    const KProperty *property;
    const KPropertyValueDisplayInterface *display;
    QVariant value;
};

KPropertyLabel::KPropertyLabel(QWidget *parent, const KProperty *property,
                               const KPropertyValueDisplayInterface *iface)
    : QLabel(parent)
    , d(new Private{property, iface, QVariant()})
{
    setTextInteractionFlags(Qt::NoTextInteraction);
    setFocusPolicy(Qt::StrongFocus);
    setContentsMargins(Internal::Painting::textMargin(), 0, Internal::Painting::textMargin(), 0);
}

KPropertyLabel::~KPropertyLabel() = default;

QVariant KPropertyLabel::value() const
{
    return d->value;
}

void KPropertyLabel::setValue(const QVariant &value)
{
    d->value = value;
    setText(d->property ? d->display->propertyValueToString(d->property, QLocale())
                        : d->display->valueToString(value, QLocale()));
}

void KPropertyLabel::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    KPropertyWidgetsFactory::paintTopGridLine(this);
}

class KPropertyWidgetsFactory::Private
{
public:
    QHash<int, KPropertyEditorCreatorInterface *> editors;
    QHash<int, KPropertyValuePainterInterface *> painters;
    QSet<KPropertyEditorCreatorInterface *> ownedEditors;
    QSet<KPropertyValuePainterInterface *> ownedPainters;
};

KPropertyWidgetsFactory::KPropertyWidgetsFactory()
    : d(std::make_unique<Private>())
{}

KPropertyWidgetsFactory::~KPropertyWidgetsFactory()
{
    qDeleteAll(d->ownedEditors);
    qDeleteAll(d->ownedPainters);
}

QHash<int, KPropertyEditorCreatorInterface *> KPropertyWidgetsFactory::editorCreators() const
{
    return d->editors;
}

QHash<int, KPropertyValuePainterInterface *> KPropertyWidgetsFactory::valuePainters() const
{
    return d->painters;
}

void KPropertyWidgetsFactory::addEditor(int type, KPropertyEditorCreatorInterface *creator)
{
    addEditorInternal(type, creator, true);
    // One object in several roles is owned in the first.
    if (auto *const composed = dynamic_cast<KComposedPropertyCreatorInterface *>(creator)) {
        addComposedPropertyCreatorInternal(type, composed, false);
    }
    if (auto *const painter = dynamic_cast<KPropertyValuePainterInterface *>(creator)) {
        addPainterInternal(type, painter, false);
    }
    if (auto *const display = dynamic_cast<KPropertyValueDisplayInterface *>(creator)) {
        addDisplayInternal(type, display, false);
    }
}

void KPropertyWidgetsFactory::addPainter(int type, KPropertyValuePainterInterface *painter)
{
    addPainterInternal(type, painter, true);
    if (auto *const display = dynamic_cast<KPropertyValueDisplayInterface *>(painter)) {
        addDisplayInternal(type, display, false);
    }
}

void KPropertyWidgetsFactory::addEditorInternal(int type, KPropertyEditorCreatorInterface *editor, bool own)
{
    d->editors.insert(type, editor);
    if (own) {
        d->ownedEditors.insert(editor);
    }
}

void KPropertyWidgetsFactory::addPainterInternal(int type, KPropertyValuePainterInterface *painter, bool own)
{
    d->painters.insert(type, painter);
    if (own) {
        d->ownedPainters.insert(painter);
    }
}

void KPropertyWidgetsFactory::paintTopGridLine(QWidget *widget)
{
    const KPropertyEditorView *const view = KPropertyUtils::viewForEditor(widget);
    if (!view || !view->gridLineColor().isValid()) {
        return;
    }
    QPainter painter(widget);
    painter.setPen(view->gridLineColor());
    painter.drawLine(0, 0, widget->width(), 0);
}

void KPropertyWidgetsFactory::setTopAndBottomBordersUsingStyleSheet(QWidget *widget,
                                                                    const QString &extraStyleSheet)
{
    const KPropertyEditorView *const view = KPropertyUtils::viewForEditor(widget);
    const QColor color = view ? view->gridLineColor() : KPropertyEditorView::defaultGridLineColor();
    const QString line =
        color.isValid() ? QStringLiteral("1px solid %1").arg(color.name()) : QStringLiteral("none");
    widget->setStyleSheet(
        QStringLiteral("%1 { border-top: %2; border-bottom: %2; } %3")
            .arg(QString::fromLatin1(widget->metaObject()->className()), line, extraStyleSheet));
}
