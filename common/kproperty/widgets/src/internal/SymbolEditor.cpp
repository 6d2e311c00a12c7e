#include "SymbolEditor.h"

namespace Internal {

namespace {

QString symbolText(const QVariant &value)
{
    const uint code = value.toUInt();
    const auto character = static_cast<char32_t>(code);
    const bool isCharacter = code > 0 && code <= QChar::LastValidCodePoint && !QChar::isSurrogate(character);
    return isCharacter ? QString::fromUcs4(&character, 1) : QString();
}

} // namespace

SymbolEditor::SymbolEditor(QWidget *parent)
    : QLineEdit(parent)
{
    connect(this, &QLineEdit::textEdited, this, [this](const QString &text) {
        const QList<uint> codes = text.toUcs4();
        if (codes.isEmpty()) {
            return;
        }
        // The character typed last takes the place of the former one.
        setValue(static_cast<int>(codes.last()));
        Q_EMIT commitData(this);
    });
}

QVariant SymbolEditor::value() const
{
    return m_value;
}

void SymbolEditor::setValue(const QVariant &value)
{
    m_value = value;
    setText(symbolText(value));
}

QWidget *SymbolDelegate::createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                                      const QModelIndex &index) const
{
    Q_UNUSED(type)
    Q_UNUSED(option)
    Q_UNUSED(index)
    return new SymbolEditor(parent);
}

QString SymbolDelegate::valueToString(const QVariant &value, const QLocale &locale) const
{
    Q_UNUSED(locale)
    return symbolText(value);
}

} // namespace Internal
