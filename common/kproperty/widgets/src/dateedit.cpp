#include "dateedit.h"

#include <QDate>

KPropertyDateEditor::KPropertyDateEditor(const KProperty *prop, QWidget *parent)
    : QDateEdit(parent)
{
    setCalendarPopup(true);
    if (prop) {
        const QDate minimum = prop->option("min").toDate();
        const QDate maximum = prop->option("max").toDate();
        if (minimum.isValid()) {
            setMinimumDate(minimum);
        }
        if (maximum.isValid() && (!minimum.isValid() || minimum <= maximum)) {
            setMaximumDate(maximum);
        }
        if (minimum.isValid()) {
            setSpecialValueText(prop->option("minValueText").toString());
        }
    }
    connect(this, &QDateEdit::dateChanged, this, &KPropertyDateEditor::onDateChanged);
}

KPropertyDateEditor::~KPropertyDateEditor() = default;

QVariant KPropertyDateEditor::value() const
{
    return date();
}

void KPropertyDateEditor::setValue(const QVariant &value)
{
    const QSignalBlocker blocker(this);
    setDate(value.toDate());
}

void KPropertyDateEditor::onDateChanged()
{
    Q_EMIT commitData(this);
}

KPropertyDateDelegate::KPropertyDateDelegate() = default;

QString KPropertyDateDelegate::valueToString(const QVariant &value, const QLocale &locale) const
{
    return locale.toString(value.toDate(), QLocale::ShortFormat);
}

QWidget *KPropertyDateDelegate::createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                                             const QModelIndex &index) const
{
    Q_UNUSED(type)
    Q_UNUSED(option)
    return new KPropertyDateEditor(KPropertyUtils::propertyForIndex(index), parent);
}
