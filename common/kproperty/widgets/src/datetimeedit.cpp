#include "datetimeedit.h"

#include <QDateTime>

KPropertyDateTimeEditor::KPropertyDateTimeEditor(const KProperty *prop, QWidget *parent)
    : QDateTimeEdit(parent)
{
    setCalendarPopup(true);
    if (prop) {
        const QDateTime minimum = prop->option("min").toDateTime();
        const QDateTime maximum = prop->option("max").toDateTime();
        if (minimum.isValid()) {
            setMinimumDateTime(minimum);
        }
        if (maximum.isValid() && (!minimum.isValid() || minimum <= maximum)) {
            setMaximumDateTime(maximum);
        }
        if (minimum.isValid()) {
            setSpecialValueText(prop->option("minValueText").toString());
        }
    }
    connect(this, &QDateTimeEdit::dateTimeChanged, this, &KPropertyDateTimeEditor::onDateTimeChanged);
}

KPropertyDateTimeEditor::~KPropertyDateTimeEditor() = default;

QVariant KPropertyDateTimeEditor::value() const
{
    return dateTime();
}

void KPropertyDateTimeEditor::setValue(const QVariant &value)
{
    const QSignalBlocker blocker(this);
    setDateTime(value.toDateTime());
}

void KPropertyDateTimeEditor::onDateTimeChanged()
{
    Q_EMIT commitData(this);
}

KPropertyDateTimeDelegate::KPropertyDateTimeDelegate() = default;

QString KPropertyDateTimeDelegate::valueToString(const QVariant &value, const QLocale &locale) const
{
    return locale.toString(value.toDateTime(), QLocale::ShortFormat);
}

QWidget *KPropertyDateTimeDelegate::createEditor(int type, QWidget *parent,
                                                 const QStyleOptionViewItem &option,
                                                 const QModelIndex &index) const
{
    Q_UNUSED(type)
    Q_UNUSED(option)
    return new KPropertyDateTimeEditor(KPropertyUtils::propertyForIndex(index), parent);
}
