#pragma once

#include <QAbstractButton>
#include <QCoreApplication>
#include <QLabel>
#include <QToolBar>
#include <QTranslator>

/// Texts as other languages have them, and whether widgets have room for them.
namespace TextRoom {

/// Every text a third longer, as German is, and marked, so that what isn't translated shows.
class LongTexts : public QTranslator
{
public:
    LongTexts() { QCoreApplication::installTranslator(this); }
    ~LongTexts() override { QCoreApplication::removeTranslator(this); }
    Q_DISABLE_COPY_MOVE(LongTexts)

    QString translate(const char * /*context*/, const char *source, const char * /*note*/,
                      int count) const override
    {
        const QString all = QString::fromUtf8(source);
        QString longer = all + QString(all.size() / 3 + 1, u'~');
        return count >= 0 ? longer.replace(QStringLiteral("%n"), QString::number(count)) : longer;
    }
    [[nodiscard]] bool isEmpty() const override { return false; }
};

/// Every text in signs as wide and tall as Japanese ones, of which it takes half as many.
class TallTexts : public QTranslator
{
public:
    TallTexts() { QCoreApplication::installTranslator(this); }
    ~TallTexts() override { QCoreApplication::removeTranslator(this); }
    Q_DISABLE_COPY_MOVE(TallTexts)

    QString translate(const char * /*context*/, const char *source, const char * /*note*/,
                      int /*count*/) const override
    {
        const QString all = QString::fromUtf8(source);
        // Places and mnemonics stay, as a translator keeps them.
        return QString(all.size() / 2 + 1, QChar(0x8cea)) +
               (all.contains(u"%1") ? QStringLiteral("%1") : QString()) +
               (all.contains(u"%2") ? QStringLiteral("%2") : QString());
    }
    [[nodiscard]] bool isEmpty() const override { return false; }
};

/// Labels and buttons whose text has no room.
inline QStringList clipped(const QWidget &window)
{
    QStringList names;
    const QList<QWidget *> children = window.findChildren<QWidget *>();
    for (const QWidget *child : children) {
        const auto *const label = qobject_cast<const QLabel *>(child);
        const auto *const button = qobject_cast<const QAbstractButton *>(child);
        const bool hasText = (label && !label->wordWrap() && !label->text().isEmpty()) ||
                             (button && !button->text().isEmpty());
        const bool isInBar = qobject_cast<const QToolBar *>(child->parentWidget()) != nullptr;
        if (!hasText || isInBar || !child->isVisible() || child->objectName() == QLatin1String("message"))
            continue;
        const QRect place(child->mapTo(&window, QPoint()), child->size());
        if (!window.rect().contains(place) || child->width() < child->minimumSizeHint().width())
            names.append(QStringLiteral("%1 at %2, %3 wide of %4")
                             .arg(label ? label->text() : button->text())
                             .arg(place.x())
                             .arg(child->width())
                             .arg(child->minimumSizeHint().width()));
    }
    return names;
}

} // namespace TextRoom
