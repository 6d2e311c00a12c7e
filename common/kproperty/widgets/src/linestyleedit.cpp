#include "linestyleedit.h"

#include "internal/EnumNames.h"
#include "internal/Painting.h"

#include <QPainter>

namespace {

struct Style
{
    Qt::PenStyle style;
    const char *name;
};

const Style kStyles[] = {
    {Qt::NoPen, QT_TRANSLATE_NOOP("KPropertyLineStyleComboEditor", "None")},
    {Qt::SolidLine, QT_TRANSLATE_NOOP("KPropertyLineStyleComboEditor", "Solid")},
    {Qt::DashLine, QT_TRANSLATE_NOOP("KPropertyLineStyleComboEditor", "Dashes")},
    {Qt::DotLine, QT_TRANSLATE_NOOP("KPropertyLineStyleComboEditor", "Dots")},
    {Qt::DashDotLine, QT_TRANSLATE_NOOP("KPropertyLineStyleComboEditor", "Dash and dot")},
    {Qt::DashDotDotLine, QT_TRANSLATE_NOOP("KPropertyLineStyleComboEditor", "Dash and two dots")},
};

constexpr int kLineWidth = 2;
constexpr int kSampleWidth = 56;

void drawSample(QPainter *painter, const QRect &rect, Qt::PenStyle style, const QColor &color)
{
    painter->save();
    painter->setPen(QPen(color, kLineWidth, style));
    painter->drawLine(rect.left(), rect.center().y(), rect.right(), rect.center().y());
    painter->restore();
}

QIcon sampleIcon(Qt::PenStyle style, const QPalette &palette)
{
    QPixmap pixmap(kSampleWidth, 16);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    drawSample(&painter, pixmap.rect(), style, palette.color(QPalette::Text));
    return QIcon(pixmap);
}

} // namespace

KPropertyLineStyleComboEditor::KPropertyLineStyleComboEditor(QWidget *parent)
    : QComboBox(parent)
{
    setIconSize(QSize(kSampleWidth, 16));
    for (const Style &row : kStyles) {
        addItem(sampleIcon(row.style, palette()), tr(row.name), static_cast<int>(row.style));
    }
    connect(this, &QComboBox::activated, this, &KPropertyLineStyleComboEditor::slotValueChanged);
}

KPropertyLineStyleComboEditor::~KPropertyLineStyleComboEditor() = default;

QVariant KPropertyLineStyleComboEditor::value() const
{
    return currentData();
}

void KPropertyLineStyleComboEditor::setValue(const QVariant &value)
{
    const QSignalBlocker blocker(this);
    const int style = value.toInt();
    int index = findData(style);
    if (index < 0 && style == Qt::CustomDashLine) {
        // Kept when it is there; one cannot choose a pattern that is told nowhere.
        addItem(tr("Custom"), style);
        index = count() - 1;
    }
    setCurrentIndex(index);
}

void KPropertyLineStyleComboEditor::slotValueChanged(int)
{
    Q_EMIT commitData(this);
}

KPropertyLineStyleComboDelegate::KPropertyLineStyleComboDelegate() = default;

QWidget *KPropertyLineStyleComboDelegate::createEditor(int type, QWidget *parent,
                                                       const QStyleOptionViewItem &option,
                                                       const QModelIndex &index) const
{
    Q_UNUSED(type)
    Q_UNUSED(option)
    Q_UNUSED(index)
    return new KPropertyLineStyleComboEditor(parent);
}

void KPropertyLineStyleComboDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                            const QModelIndex &index) const
{
    const auto style = static_cast<Qt::PenStyle>(index.data(Qt::EditRole).toInt());
    const int margin = Internal::Painting::textMargin();
    QStyleOptionViewItem text(option);
    if (style > Qt::NoPen && style < Qt::CustomDashLine) {
        const bool selected = option.state.testFlag(QStyle::State_Selected);
        QRect sample(option.rect.left() + margin, option.rect.top(), kSampleWidth, option.rect.height());
        Internal::Painting::placeInFront(&sample, &text);
        drawSample(painter, sample, style,
                   option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    }
    Internal::Painting::drawText(painter, text, valueToString(index.data(Qt::EditRole), QLocale()));
}

QString KPropertyLineStyleComboDelegate::valueToString(const QVariant &value, const QLocale &locale) const
{
    const auto style = static_cast<Qt::PenStyle>(value.toInt());
    if (locale.language() == QLocale::C) {
        return Internal::enumKey(style);
    }
    for (const Style &row : kStyles) {
        if (row.style == style) {
            return KPropertyLineStyleComboEditor::tr(row.name);
        }
    }
    return style == Qt::CustomDashLine ? KPropertyLineStyleComboEditor::tr("Custom") : QString();
}
