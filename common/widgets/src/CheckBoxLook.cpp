#include "orv/widgets/CheckBoxLook.h"

#include <QApplication>
#include <QCheckBox>
#include <QEvent>
#include <QPainter>
#include <QStyleOptionButton>
#include <QStyleOptionViewItem>

namespace orv::CheckBoxLook {

namespace {

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Base).lightness() < palette.color(QPalette::Text).lightness();
}

/// Between the text and what it stands on, nearer to the text.
QColor frameColor(const QPalette &palette)
{
    constexpr int kTextInPercent = 60;
    const QColor text = palette.color(QPalette::Text);
    const QColor base = palette.color(QPalette::Base);
    const auto mixed = [](int first, int second) {
        return (first * kTextInPercent + second * (100 - kTextInPercent)) / 100;
    };
    return {mixed(text.red(), base.red()), mixed(text.green(), base.green()),
            mixed(text.blue(), base.blue())};
}

/// Paints a frame over the one that the box has painted itself.
class BoxFramer : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *const box = event->type() == QEvent::Paint ? qobject_cast<QCheckBox *>(watched) : nullptr;
        if (!box || m_isPainting || !isDark(box->palette()))
            return false;
        m_isPainting = true;
        watched->event(event);
        m_isPainting = false;
        QStyleOptionButton option;
        option.initFrom(box);
        option.text = box->text();
        const QRect frame = box->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, box);
        QPainter painter(box);
        painter.setPen(frameColor(box->palette()));
        painter.drawRect(frame.adjusted(0, 0, -1, -1));
        return true;
    }

private:
    bool m_isPainting = false;
};

} // namespace

void install()
{
    const QString name = QStringLiteral("orvCheckBoxLook");
    if (!qApp || qApp->findChild<QObject *>(name, Qt::FindDirectChildrenOnly))
        return;
    auto *const framer = new BoxFramer(qApp);
    framer->setObjectName(name);
    qApp->installEventFilter(framer);
}

void apply(QStyleOptionViewItem *option)
{
    // What styles make darker before they paint the frame with it.
    constexpr int kLighter = 130;
    if (isDark(option->palette))
        option->palette.setColor(QPalette::Window, frameColor(option->palette).lighter(kLighter));
}

} // namespace orv::CheckBoxLook
