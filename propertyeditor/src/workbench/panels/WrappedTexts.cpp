#include "WrappedTexts.h"

#include <QHeaderView>
#include <QTreeView>

namespace orv {

namespace {

/// More letters than that without a sign or a hump are broken anywhere.
constexpr int kLongestPiece = 20;

/// With places to break long words at, which nobody sees.
QString breakable(const QString &text)
{
    constexpr QChar kBreak(0x200B);
    QString broken;
    int piece = 0;
    for (const QChar letter : text) {
        const bool isHump = letter.isUpper() && !broken.isEmpty() && broken.back().isLower();
        if (isHump) {
            broken += kBreak;
            piece = 0;
        }
        broken += letter;
        piece = letter.isSpace() ? 0 : piece + 1;
        const bool isSign = !letter.isLetterOrNumber() && !letter.isSpace() && !letter.isSurrogate();
        const bool isWhole = !letter.isHighSurrogate() && !letter.isMark();
        if (piece > 0 && isWhole && (isSign || piece >= kLongestPiece)) {
            broken += kBreak;
            piece = 0;
        }
    }
    return broken;
}

} // namespace

WrappedTexts::WrappedTexts(QTreeView *view)
    : QStyledItemDelegate(view)
    , m_view(view)
{
    view->setItemDelegate(this);
    view->setUniformRowHeights(false);
    view->setWordWrap(true);
    view->setTextElideMode(Qt::ElideNone);
    m_measuring.setSingleShot(true);
    m_measuring.setInterval(0);
    connect(&m_measuring, &QTimer::timeout, this, [this] { Q_EMIT sizeHintChanged({}); });
    connect(view->header(), &QHeaderView::sectionResized, &m_measuring, qOverload<>(&QTimer::start));
}

int WrappedTexts::widthOf(const QModelIndex &index) const
{
    const bool isSpanned = m_view->isFirstColumnSpanned(index.row(), index.parent());
    if (index.column() != 0)
        return isSpanned ? 0 : m_view->columnWidth(index.column());
    int depth = m_view->rootIsDecorated() ? 1 : 0;
    for (QModelIndex above = index.parent(); above.isValid(); above = above.parent())
        ++depth;
    const int width = isSpanned ? m_view->viewport()->width() : m_view->columnWidth(0);
    return width - depth * m_view->indentation();
}

void WrappedTexts::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->features |= QStyleOptionViewItem::WrapText;
    option->text = breakable(option->text);
    option->displayAlignment = Qt::AlignLeading | Qt::AlignTop;
    option->decorationAlignment = option->displayAlignment;
}

QSize WrappedTexts::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem measured = option;
    measured.rect = QRect(0, 0, std::max(1, widthOf(index)), 1); // an empty one counts as endless
    return QStyledItemDelegate::sizeHint(measured, index);
}

} // namespace orv
