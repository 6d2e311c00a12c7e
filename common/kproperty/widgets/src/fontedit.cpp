#include "fontedit.h"

#include "internal/FontEditor.h"
#include "internal/Painting.h"

#include <QFontDialog>
#include <QLabel>
#include <QStringList>

namespace Internal {

QString fontText(const QFont &font)
{
    QStringList parts{font.family()};
    parts << (font.pixelSize() > 0 ? QStringLiteral("%1px").arg(font.pixelSize())
                                   : QStringLiteral("%1pt").arg(font.pointSizeF()));
    if (font.bold()) {
        parts << FontEditor::tr("bold");
    }
    if (font.italic()) {
        parts << FontEditor::tr("italic");
    }
    if (font.strikeOut()) {
        parts << FontEditor::tr("strikeout");
    }
    if (font.underline()) {
        parts << FontEditor::tr("underline");
    }
    return parts.join(QLatin1String(", "));
}

FontEditor::FontEditor(QWidget *parent)
    : KPropertyGenericSelectionEditor(parent)
    , m_label(new QLabel(this))
{
    m_label->setFocusPolicy(Qt::StrongFocus);
    m_label->setContentsMargins(Painting::textMargin(), 0, 0, 0);
    setMainWidget(m_label);
}

QVariant FontEditor::value() const
{
    return m_font;
}

void FontEditor::setValue(const QVariant &value)
{
    m_font = value.value<QFont>();
    m_label->setText(fontText(m_font));
}

void FontEditor::selectButtonClicked()
{
    bool accepted = false;
    const QFont chosen = QFontDialog::getFont(&accepted, m_font, this);
    if (accepted) {
        setValue(chosen);
        Q_EMIT commitData(this);
    }
}

} // namespace Internal

KPropertyFontDelegate::KPropertyFontDelegate() = default;

QWidget *KPropertyFontDelegate::createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                                             const QModelIndex &index) const
{
    Q_UNUSED(type)
    Q_UNUSED(option)
    Q_UNUSED(index)
    return new Internal::FontEditor(parent);
}

void KPropertyFontDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                  const QModelIndex &index) const
{
    // In the family and style of the value, but in the size of the tree.
    QStyleOptionViewItem text(option);
    const auto font = index.data(Qt::EditRole).value<QFont>();
    text.font = font;
    text.font.setPointSizeF(option.font.pointSizeF() > 0 ? option.font.pointSizeF() : 9.0);
    text.fontMetrics = QFontMetrics(text.font);
    Internal::Painting::drawText(painter, text, Internal::fontText(font));
}

QString KPropertyFontDelegate::valueToString(const QVariant &value, const QLocale &locale) const
{
    Q_UNUSED(locale)
    return Internal::fontText(value.value<QFont>());
}
