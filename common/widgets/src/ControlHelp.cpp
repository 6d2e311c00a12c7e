#include "orv/widgets/ControlHelp.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QWhatsThis>

#include <algorithm>

namespace orv::ControlHelp {

namespace {

struct ControlHelpTr
{
    Q_DECLARE_TR_FUNCTIONS(ControlHelp)
};

QString escaped(const QString &text)
{
    return text.toHtmlEscaped().replace(u'\n', QStringLiteral("<br/>"));
}

QString paragraph(const QString &text)
{
    const QString markup = Qt::mightBeRichText(text) ? text : escaped(text);
    return text.isEmpty() ? QString() : QStringLiteral("<p>%1</p>").arg(markup);
}

/// Descriptions for screen readers are no markup, whatever they look like: values of documents stand in them.
QString plainParagraph(const QString &text)
{
    return text.isEmpty() ? QString() : QStringLiteral("<p>%1</p>").arg(escaped(text));
}

QString heading(const QString &text)
{
    return text.isEmpty() ? QString() : QStringLiteral("<p><b>%1</b></p>").arg(text.toHtmlEscaped());
}

QString firstTold(std::initializer_list<QString> texts)
{
    const auto told =
        std::find_if(texts.begin(), texts.end(), [](const QString &text) { return !text.isEmpty(); });
    return told == texts.end() ? QString() : *told;
}

QString ownParagraph(const QWidget &control)
{
    const QString told = firstTold({control.whatsThis(), control.toolTip()});
    return told.isEmpty() ? plainParagraph(control.accessibleDescription()) : paragraph(told);
}

QString nameOf(const QWidget &control)
{
    QAccessibleInterface *const accessible =
        QAccessible::queryAccessibleInterface(const_cast<QWidget *>(&control));
    return accessible ? accessible->text(QAccessible::Name).remove(u'&') : control.accessibleName();
}

/// The view that this is, or is part of, as its editors are.
const QAbstractItemView *viewOf(const QWidget *control)
{
    for (const QWidget *at = control; at && !at->isWindow(); at = at->parentWidget()) {
        if (const auto *const view = qobject_cast<const QAbstractItemView *>(at))
            return view;
    }
    return qobject_cast<const QAbstractItemView *>(control);
}

QString cellExplanation(const QModelIndex &cell)
{
    if (!cell.isValid())
        return {};
    const auto header = [&](int role) {
        return cell.model()->headerData(cell.column(), Qt::Horizontal, role).toString();
    };
    // What a cell tells itself is of its row, and whole.
    if (const QString own = cell.data(Qt::WhatsThisRole).toString(); !own.isEmpty())
        return paragraph(own);
    const QString told = firstTold({header(Qt::WhatsThisRole), header(Qt::ToolTipRole)});
    if (told.isEmpty())
        return {};
    const QString problem = cell.data(Qt::AccessibleDescriptionRole).toString();
    return heading(header(Qt::DisplayRole)) + paragraph(told) +
           plainParagraph(problem.isEmpty() ? QString() : ControlHelpTr::tr("This cell: %1").arg(problem));
}

/// On the screen: the row of a view, else the control.
QRect explained(const QWidget &control)
{
    const QAbstractItemView *const view = viewOf(&control);
    const QWidget *const area = view ? view->viewport() : &control;
    QRect place = area->rect();
    if (view && view->currentIndex().isValid()) {
        const QRect cell = view->visualRect(view->currentIndex());
        place.setTop(cell.top());
        place.setBottom(cell.bottom());
    }
    return {area->mapToGlobal(place.topLeft()), place.size()};
}

/// Qt pushes an explanation that has no room below over what it explains.
void uncover(const QRect &place, const QRect &screen)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto help = std::find_if(windows.cbegin(), windows.cend(), [](const QWidget *window) {
        return window->isVisible() && window->inherits("QWhatsThat");
    });
    if (help == windows.cend() || !(*help)->geometry().intersects(place))
        return;
    const int above = place.top() - (*help)->height() - 1;
    const int beside = place.right() + 1;
    if (above >= screen.top())
        (*help)->move((*help)->x(), above);
    else if (beside + (*help)->width() <= screen.right())
        (*help)->move(beside, (*help)->y());
}

/// Hears the key before the control that has the focus.
class HelpKey : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress || !watched->isWidgetType() ||
            !static_cast<QKeyEvent *>(event)->matches(QKeySequence::HelpContents))
            return false;
        QWidget *const control = QApplication::focusWidget();
        if (!control)
            return false;
        const QString text = explanation(control);
        if (text.isEmpty())
            return false;
        const QRect place = explained(*control);
        QWhatsThis::showText(place.bottomLeft(), text, control);
        uncover(place, control->screen()->availableGeometry());
        return true;
    }
};

} // namespace

void install()
{
    const QString name = QStringLiteral("orvHelpKey");
    if (!qApp || qApp->findChild<QObject *>(name, Qt::FindDirectChildrenOnly))
        return;
    auto *const key = new HelpKey(qApp);
    key->setObjectName(name);
    qApp->installEventFilter(key);
}

QString explanation(const QWidget *control)
{
    if (!control)
        return {};
    if (const QAbstractItemView *const view = viewOf(control)) {
        if (QString ofCell = cellExplanation(view->currentIndex()); !ofCell.isEmpty())
            return ofCell;
    }
    for (const QWidget *at = control; at; at = at->parentWidget()) {
        if (const QString text = ownParagraph(*at); !text.isEmpty())
            return heading(nameOf(*control)) + text;
        // The list of a combo box is a window, but part of it.
        if (at->isWindow() && at->windowType() != Qt::Popup)
            break;
    }
    return {};
}

} // namespace orv::ControlHelp
