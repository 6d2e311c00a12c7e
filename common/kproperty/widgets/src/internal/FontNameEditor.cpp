#include "FontNameEditor.h"

namespace Internal {

FontNameEditor::FontNameEditor(QWidget *parent)
    : QFontComboBox(parent)
{
    connect(this, &QComboBox::currentTextChanged, this, [this] { Q_EMIT commitData(this); });
}

void FontNameEditor::setValue(const QString &value)
{
    const QSignalBlocker blocker(this);
    setCurrentText(value);
}

QWidget *FontNameDelegate::createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const
{
    Q_UNUSED(type)
    Q_UNUSED(option)
    Q_UNUSED(index)
    return new FontNameEditor(parent);
}

QString FontNameDelegate::valueToString(const QVariant &value, const QLocale &locale) const
{
    Q_UNUSED(locale)
    return value.toString();
}

} // namespace Internal
