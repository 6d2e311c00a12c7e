#include "booledit.h"

#include "KPropertyListData.h"
#include "internal/Painting.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOptionButton>

namespace {

QString stateText(const KProperty *property, const char *option, const QString &byDefault)
{
    return property->option(option, byDefault).toString();
}

bool isThreeState(const KProperty *property)
{
    return property && property->option("3State", false).toBool();
}

/// In the C locale texts are for files and logs, so the names are those of the values.
QString boolText(const QVariant &value, const QLocale &locale)
{
    if (locale.language() == QLocale::C) {
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    }
    return value.toBool() ? KPropertyBoolEditor::tr("Yes") : KPropertyBoolEditor::tr("No");
}

QString nullText(const QLocale &locale)
{
    return locale.language() == QLocale::C ? QStringLiteral("null") : KPropertyBoolEditor::tr("None");
}

QString propertyText(const KProperty *property, const QVariant &value, const QLocale &locale)
{
    if (!value.isValid()) {
        if (isThreeState(property)) {
            return stateText(property, "3rdStateName", nullText(locale));
        }
        const QVariant name = property->option("nullName");
        if (name.isValid()) {
            return name.toString();
        }
    }
    return stateText(property, value.toBool() ? "yesName" : "noName", boolText(value, locale));
}

} // namespace

class KPropertyBoolEditor::Private
{
public:
    QString yesText;
    QString noText;
    QString nullText;
    bool isNull = false;
};

KPropertyBoolEditor::KPropertyBoolEditor(const KProperty *prop, QWidget *parent)
    : QToolButton(parent)
    , d(std::make_unique<Private>())
{
    const QLocale locale;
    d->yesText = prop ? propertyText(prop, true, locale) : boolText(true, locale);
    d->noText = prop ? propertyText(prop, false, locale) : boolText(false, locale);
    d->nullText = prop ? propertyText(prop, QVariant(), locale) : d->noText;
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QToolButton::toggled, this, &KPropertyBoolEditor::slotValueChanged);
}

KPropertyBoolEditor::~KPropertyBoolEditor() = default;

QVariant KPropertyBoolEditor::value() const
{
    return d->isNull ? QVariant() : QVariant(isChecked());
}

void KPropertyBoolEditor::setValue(const QVariant &value)
{
    const QSignalBlocker blocker(this);
    d->isNull = !value.isValid();
    setChecked(value.toBool());
}

void KPropertyBoolEditor::slotValueChanged(bool)
{
    d->isNull = false;
    Q_EMIT commitData(this);
}

QRect KPropertyBoolEditor::indicatorRect(const QRect &r, const QWidget *widget)
{
    const QStyle *const style = widget ? widget->style() : QApplication::style();
    const Qt::LayoutDirection direction =
        widget ? widget->layoutDirection() : QGuiApplication::layoutDirection();
    const int width = style->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, widget);
    const int height = style->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, widget);
    const QRect box(r.left() + Internal::Painting::textMargin(), r.top() + (r.height() - height) / 2, width,
                    height);
    return QStyle::visualRect(direction, r, box);
}

void KPropertyBoolEditor::draw(QPainter *p, const QRect &r, const QVariant &value, const QString &text,
                               bool threeState)
{
    const auto *const widget = dynamic_cast<QWidget *>(p->device());
    QStyleOptionButton box;
    box.palette = widget ? widget->palette() : QGuiApplication::palette();
    box.rect = indicatorRect(r);
    box.state = QStyle::State_Enabled;
    if (threeState && !value.isValid()) {
        box.state |= QStyle::State_NoChange;
    } else {
        box.state |= value.toBool() ? QStyle::State_On : QStyle::State_Off;
    }
    QStyleOptionViewItem textOption;
    textOption.direction = p->layoutDirection();
    textOption.rect = r;
    box.rect = QStyle::visualRect(QGuiApplication::layoutDirection(), r, box.rect);
    Internal::Painting::placeInFront(&box.rect, &textOption);
    QApplication::style()->drawPrimitive(QStyle::PE_IndicatorCheckBox, &box, p);
    Internal::Painting::drawBoxFrame(p, box.rect, box.palette);
    p->drawText(textOption.rect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                p->fontMetrics().elidedText(text, Qt::ElideRight, textOption.rect.width()));
}

void KPropertyBoolEditor::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    painter.setPen(palette().color(QPalette::Text));
    const QString text = d->isNull ? d->nullText : (isChecked() ? d->yesText : d->noText);
    draw(&painter, rect(), value(), text, false);
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

KPropertyThreeStateBoolEditor::KPropertyThreeStateBoolEditor(const KPropertyListData &listData,
                                                             QWidget *parent)
    : KPropertyComboBoxEditor(listData, KPropertyComboBoxEditorOptions(), parent)
{}

KPropertyThreeStateBoolEditor::~KPropertyThreeStateBoolEditor() = default;

QVariant KPropertyThreeStateBoolEditor::value() const
{
    return currentIndex() == 2 ? QVariant() : QVariant(currentIndex() == 0);
}

void KPropertyThreeStateBoolEditor::setValue(const QVariant &value)
{
    const QSignalBlocker blocker(this);
    setCurrentIndex(!value.isValid() ? 2 : value.toBool() ? 0 : 1);
}

KPropertyBoolDelegate::KPropertyBoolDelegate() = default;

QWidget *KPropertyBoolDelegate::createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                                             const QModelIndex &index) const
{
    Q_UNUSED(type)
    Q_UNUSED(option)
    const KProperty *const property = KPropertyUtils::propertyForIndex(index);
    if (!isThreeState(property)) {
        return new KPropertyBoolEditor(property, parent);
    }
    const QLocale locale;
    return new KPropertyThreeStateBoolEditor(
        KPropertyListData(QVariantList{true, false, QVariant()},
                          QStringList{propertyText(property, true, locale),
                                      propertyText(property, false, locale),
                                      propertyText(property, QVariant(), locale)}),
        parent);
}

void KPropertyBoolDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                  const QModelIndex &index) const
{
    const KProperty *const property = KPropertyUtils::propertyForIndex(index);
    if (!property) {
        return;
    }
    painter->save();
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    if (!option.state.testFlag(QStyle::State_Enabled)) {
        painter->setOpacity(0.5); // styles differ in how, and whether, a disabled box is greyed
    }
    painter->setPen(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    KPropertyBoolEditor::draw(painter, option.rect, property->value(),
                              propertyValueToString(property, QLocale()), isThreeState(property));
    painter->restore();
}

QString KPropertyBoolDelegate::propertyValueToString(const KProperty *prop, const QLocale &locale) const
{
    return propertyText(prop, prop->value(), locale);
}

QString KPropertyBoolDelegate::valueToString(const QVariant &value, const QLocale &locale) const
{
    return boolText(value, locale);
}
