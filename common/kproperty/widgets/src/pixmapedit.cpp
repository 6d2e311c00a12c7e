#include "pixmapedit.h"

#include "internal/Painting.h"
#include "utils.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QImageReader>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QShortcut>
#include <QToolButton>

namespace {

QString &lastFolder()
{
    static QString folder;
    return folder;
}

QString imageFilter()
{
    QStringList patterns;
    const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    for (const QByteArray &format : formats) {
        patterns << QStringLiteral("*.") + QString::fromLatin1(format);
    }
    return KPropertyPixmapEditor::tr("Pictures (%1)").arg(patterns.join(QLatin1Char(' ')));
}

} // namespace

class KPropertyPixmapEditor::Private
{
public:
    QPixmap pixmap;
    QLabel *label = nullptr;
    QToolButton *clear = nullptr;
};

KPropertyPixmapEditor::KPropertyPixmapEditor(KProperty *prop, QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    Q_UNUSED(prop)
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(Internal::Painting::textMargin(), 0, 0, 0);
    layout->setSpacing(0);
    d->label = new QLabel(this);
    d->label->setFocusPolicy(Qt::StrongFocus);
    layout->addWidget(d->label, 1);
    setFocusProxy(d->label);
    d->clear = new QToolButton(this);
    d->clear->setText(QStringLiteral("\u00d7"));
    d->clear->setToolTip(tr("Clear"));
    d->clear->setAccessibleName(tr("Clear"));
    d->clear->setAutoRaise(true);
    layout->addWidget(d->clear);
    connect(d->clear, &QToolButton::clicked, this, [this] {
        setValue(QPixmap());
        Q_EMIT commitData(this);
    });
    auto *const select = new QPushButton(this);
    KPropertyUtils::setupDotDotDotButton(select, tr("Choose a picture"));
    layout->addWidget(select);
    connect(select, &QPushButton::clicked, this, [this] { selectPixmap(); });
    auto *const shortcut = new QShortcut(Qt::Key_F4, this);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, select, &QPushButton::click);
}

KPropertyPixmapEditor::~KPropertyPixmapEditor() = default;

QVariant KPropertyPixmapEditor::value() const
{
    return d->pixmap;
}

void KPropertyPixmapEditor::setValue(const QVariant &value)
{
    d->pixmap = value.value<QPixmap>();
    d->clear->setVisible(!d->pixmap.isNull());
    d->label->setText(d->pixmap.isNull() ? tr("None")
                                         : tr("%1x%2px").arg(d->pixmap.width()).arg(d->pixmap.height()));
}

QString KPropertyPixmapEditor::selectPixmapFileName()
{
    QString name = QFileDialog::getOpenFileName(this, tr("Choose a picture"), lastFolder(), imageFilter());
    if (!name.isEmpty()) {
        lastFolder() = QFileInfo(name).absolutePath();
    }
    return name;
}

void KPropertyPixmapEditor::selectPixmap()
{
    const QPointer<KPropertyPixmapEditor> self(this);
    const QString name = selectPixmapFileName();
    QPixmap pixmap;
    // A file that holds no picture leaves the value as it was; the editor may be gone since the dialog
    // opened.
    if (self && !name.isEmpty() && pixmap.load(name)) {
        setValue(pixmap);
        Q_EMIT commitData(this);
    }
}

KPropertyPixmapDelegate::KPropertyPixmapDelegate() = default;

QWidget *KPropertyPixmapDelegate::createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                                               const QModelIndex &index) const
{
    Q_UNUSED(type)
    Q_UNUSED(option)
    return new KPropertyPixmapEditor(KPropertyUtils::propertyForIndex(index), parent);
}

void KPropertyPixmapDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                    const QModelIndex &index) const
{
    const auto pixmap = index.data(Qt::EditRole).value<QPixmap>();
    QStyleOptionViewItem text(option);
    if (!pixmap.isNull()) {
        const int margin = Internal::Painting::textMargin();
        const QRect room = option.rect.adjusted(margin, 2, -margin, -2);
        const QSize size =
            pixmap.size().scaled(qMin(room.width(), 3 * room.height()), room.height(), Qt::KeepAspectRatio);
        QRect target(room.left(), room.center().y() - size.height() / 2, size.width(), size.height());
        Internal::Painting::placeInFront(&target, &text);
        painter->drawPixmap(target, pixmap);
    }
    Internal::Painting::drawText(painter, text, valueToString(pixmap, QLocale()));
}

QString KPropertyPixmapDelegate::valueToString(const QVariant &value, const QLocale &locale) const
{
    Q_UNUSED(locale)
    const auto pixmap = value.value<QPixmap>();
    return pixmap.isNull() ? QString()
                           : KPropertyPixmapEditor::tr("%1x%2px").arg(pixmap.width()).arg(pixmap.height());
}
