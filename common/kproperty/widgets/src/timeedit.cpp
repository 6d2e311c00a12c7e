#include "timeedit.h"

#include <QTime>

KPropertyTimeEditor::KPropertyTimeEditor(const KProperty *prop, QWidget *parent)
    : QTimeEdit(parent)
{
    if (prop) {
        const QTime minimum = prop->option("min").toTime();
        const QTime maximum = prop->option("max").toTime();
        if (minimum.isValid()) {
            setMinimumTime(minimum);
        }
        if (maximum.isValid() && (!minimum.isValid() || minimum <= maximum)) {
            setMaximumTime(maximum);
        }
        if (minimum.isValid()) {
            setSpecialValueText(prop->option("minValueText").toString());
        }
    }
    connect(this, &QTimeEdit::timeChanged, this, &KPropertyTimeEditor::onTimeChanged);
}

KPropertyTimeEditor::~KPropertyTimeEditor() = default;

QVariant KPropertyTimeEditor::value() const
{
    return time();
}

void KPropertyTimeEditor::setValue(const QVariant &value)
{
    const QSignalBlocker blocker(this);
    setTime(value.toTime());
}

void KPropertyTimeEditor::onTimeChanged()
{
    Q_EMIT commitData(this);
}

KPropertyTimeDelegate::KPropertyTimeDelegate() = default;

QString KPropertyTimeDelegate::valueToString(const QVariant &value, const QLocale &locale) const
{
    return locale.toString(value.toTime(), QLocale::ShortFormat);
}

QWidget *KPropertyTimeDelegate::createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                                             const QModelIndex &index) const
{
    Q_UNUSED(type)
    Q_UNUSED(option)
    return new KPropertyTimeEditor(KPropertyUtils::propertyForIndex(index), parent);
}
