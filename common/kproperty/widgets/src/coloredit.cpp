#include "coloredit.h"

#include "internal/Painting.h"

#include <QColorDialog>
#include <QComboBox>
#include <QHBoxLayout>
#include <QPainter>

namespace {

/// Wong's palette: eight colours that people with a colour vision deficiency tell apart, and grey shades.
const char *const kColors[] = {"#000000", "#e69f00", "#56b4e9", "#009e73", "#f0e442", "#0072b2",
                               "#d55e00", "#cc79a7", "#808080", "#c0c0c0", "#ffffff"};

constexpr int kSwatchWidth = 28;

QIcon swatch(const QColor &color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setPen(Qt::gray);
    painter.setBrush(color);
    painter.drawRect(0, 2, 15, 11);
    return QIcon(pixmap);
}

} // namespace

class KPropertyColorComboEditor::Private
{
public:
    QComboBox *combo = nullptr;
    QColor color;

    void show(const QColor &shown)
    {
        const QSignalBlocker blocker(combo);
        color = shown;
        int index = combo->findData(shown);
        if (index < 0 && shown.isValid()) {
            combo->insertItem(0, swatch(shown), shown.name(), shown);
            index = 0;
        }
        combo->setCurrentIndex(index);
    }
};

KPropertyColorComboEditor::KPropertyColorComboEditor(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    d->combo = new QComboBox(this);
    d->combo->setFrame(false);
    for (const char *name : kColors) {
        const QColor color(QString::fromLatin1(name));
        d->combo->addItem(swatch(color), color.name(), color);
    }
    d->combo->insertSeparator(d->combo->count());
    d->combo->addItem(tr("More\u2026"));
    layout->addWidget(d->combo);
    setFocusProxy(d->combo);
    connect(d->combo, &QComboBox::activated, this, [this](int index) {
        const QVariant picked = d->combo->itemData(index);
        const QColor chosen =
            picked.isValid() ? picked.value<QColor>() : QColorDialog::getColor(d->color, this);
        if (chosen.isValid()) {
            slotValueChanged(chosen);
        } else {
            d->show(d->color);
        }
    });
}

KPropertyColorComboEditor::~KPropertyColorComboEditor() = default;

QVariant KPropertyColorComboEditor::value() const
{
    return d->color;
}

void KPropertyColorComboEditor::setValue(const QVariant &value)
{
    d->show(value.value<QColor>());
}

void KPropertyColorComboEditor::slotValueChanged(const QColor &color)
{
    d->show(color);
    Q_EMIT commitData(this);
}

KPropertyColorComboDelegate::KPropertyColorComboDelegate() = default;

QWidget *KPropertyColorComboDelegate::createEditor(int type, QWidget *parent,
                                                   const QStyleOptionViewItem &option,
                                                   const QModelIndex &index) const
{
    Q_UNUSED(type)
    Q_UNUSED(option)
    Q_UNUSED(index)
    return new KPropertyColorComboEditor(parent);
}

void KPropertyColorComboDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const
{
    const QColor color = index.data(Qt::EditRole).value<QColor>();
    const int margin = Internal::Painting::textMargin();
    QStyleOptionViewItem text(option);
    QRect box(option.rect.left() + margin, option.rect.top() + margin, kSwatchWidth,
              option.rect.height() - 2 * margin);
    Internal::Painting::placeInFront(&box, &text);
    painter->save();
    painter->setPen(option.palette.color(QPalette::Mid));
    painter->setBrush(color.isValid() ? QBrush(color)
                                      : QBrush(option.palette.color(QPalette::Mid), Qt::BDiagPattern));
    painter->drawRect(box);
    painter->restore();
    Internal::Painting::drawText(painter, text,
                                 color.isValid() ? valueToString(color, QLocale()) : QString());
}

QString KPropertyColorComboDelegate::valueToString(const QVariant &value, const QLocale &locale) const
{
    Q_UNUSED(locale)
    const QColor color = value.value<QColor>();
    if (!color.isValid()) {
        return QStringLiteral("#invalid");
    }
    return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}
