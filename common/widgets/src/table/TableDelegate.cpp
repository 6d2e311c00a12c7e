#include "TableDelegate.h"

#include "CellEditors.h"

#include <orv/table_model/TableModel.h>
#include <orv/widgets/MeaningColors.h>
#include <orv/widgets/SequencePainting.h>

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>

#include <algorithm>

namespace orv {

namespace {

const TableModel *tableModelOf(const QModelIndex &index)
{
    return qobject_cast<const TableModel *>(index.model());
}

bool hasProblem(const QModelIndex &index)
{
    return !index.data(TableModel::ProblemRole).toString().isEmpty();
}

TableColumnKind kindOf(const QModelIndex &index)
{
    return TableColumnKind(index.data(TableModel::KindRole).toInt());
}

/// More than the widest screen shows; laying out a text of megabytes takes seconds.
constexpr qsizetype kPaintedUnits = 2000;

/// What a column of files is wide enough for at least.
constexpr int kFileCharacters = 36;

/// What is known of most files.
constexpr int kNoteCharacters = 24;

int contentMargin(const QStyleOptionViewItem &option)
{
    return QApplication::style()->pixelMetric(QStyle::PM_FocusFrameHMargin, &option, option.widget) + 1;
}

constexpr QChar kLeftToRight(0x2066);
constexpr QChar kEndOfDirection(0x2069);

QPixmap swatchOf(const QString &color, const QStyleOptionViewItem &option)
{
    const int side = option.fontMetrics.ascent();
    const qreal ratio = option.widget ? option.widget->devicePixelRatioF() : 1;
    QPixmap pixmap(QSize(side, side) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(QColor(color));
    QPainter painter(&pixmap);
    painter.setPen(option.palette.color(QPalette::Mid));
    painter.drawRect(0, 0, side - 1, side - 1);
    return pixmap;
}

constexpr const char *kCellProperty = "orvCell";

/// A path keeps the name of its file as long as it can, and gives way in the middle of its folder.
QString elidedPath(const QString &path, const QFontMetrics &metrics, int width)
{
    if (metrics.horizontalAdvance(path) <= width)
        return path;
    const QString name = path.mid(path.lastIndexOf(u'/'));
    const int left = width - metrics.horizontalAdvance(name);
    if (left > metrics.averageCharWidth() * 2)
        return metrics.elidedText(path.chopped(name.size()), Qt::ElideMiddle, left) + name;
    // A name with its slash alone would read as a whole path.
    const QString cut = name.size() < path.size() ? QStringLiteral("\u2026") : QString();
    return cut + metrics.elidedText(name, Qt::ElideMiddle, width - metrics.horizontalAdvance(cut));
}

/// What of a cell's text has to be read: of a path its file.
int readableWidth(const QStyleOptionViewItem &option, const QModelIndex &index)
{
    QString text = index.data().toString().left(kPaintedUnits);
    if (kindOf(index) == TableColumnKind::File)
        text = text.mid(text.lastIndexOf(u'/') + 1);
    return option.fontMetrics.horizontalAdvance(text) + 2 * contentMargin(option);
}

/// Paints what is known of a cell at its end, and tells the room that stays for its text.
QRect paintNote(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const QString note = index.data(TableModel::NoteRole).toString();
    const int margin = option.fontMetrics.averageCharWidth();
    if (note.isEmpty())
        return option.rect;
    const int width = std::min(option.fontMetrics.horizontalAdvance(note) + 2 * margin,
                               option.rect.width() - readableWidth(option, index));
    if (width < 4 * margin)
        return option.rect;
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const QRect room(option.rect.right() - width, option.rect.top(), width, option.rect.height());
    const QRect shown = QStyle::visualRect(option.direction, option.rect, room);
    if (isSelected)
        painter->fillRect(shown, option.palette.highlight());
    painter->save();
    painter->setPen(isSelected ? option.palette.color(QPalette::HighlightedText)
                               : MeaningColors::quiet(option.palette));
    const QString text = option.fontMetrics.elidedText(note, Qt::ElideRight, width - margin);
    painter->drawText(shown.adjusted(0, 0, -margin, 0), Qt::AlignRight | Qt::AlignVCenter, text);
    painter->restore();
    return QStyle::visualRect(option.direction, option.rect, option.rect.adjusted(0, 0, -width, 0));
}

} // namespace

QPersistentModelIndex TableDelegate::cellOf(const QWidget *editor)
{
    return editor ? editor->property(kCellProperty).value<QPersistentModelIndex>() : QPersistentModelIndex();
}

void TableDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (option->text.size() > kPaintedUnits)
        option->text = option->text.first(kPaintedUnits) + QStringLiteral("\u2026");
    const TableColumnKind kind = kindOf(index);
    const QString color = option->text;
    option->textElideMode = kind == TableColumnKind::File ? Qt::ElideMiddle : Qt::ElideRight;
    if (kind == TableColumnKind::File && option->rect.isValid())
        option->text =
            elidedPath(option->text, option->fontMetrics, option->rect.width() - 2 * contentMargin(*option));
    if (kind == TableColumnKind::Sequence) {
        option->font = SequencePainting::fontLike(option->font);
        option->fontMetrics = QFontMetrics(option->font);
    }
    if (option->direction == Qt::RightToLeft && runsLeftToRight(kind))
        option->text = kLeftToRight + option->text + kEndOfDirection;
    if (kind == TableColumnKind::Color && QColor::isValidColor(color)) {
        option->icon = QIcon(swatchOf(color, *option));
        option->decorationSize = QSize(option->fontMetrics.ascent(), option->fontMetrics.ascent());
        option->features |= QStyleOptionViewItem::HasDecoration;
    }
}

QSize TableDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    if (kindOf(index) == TableColumnKind::Sequence)
        size.setWidth(
            SequencePainting::width(index.data().toString(), SequencePainting::fontLike(option.font)) +
            2 * contentMargin(option));
    const int character = option.fontMetrics.averageCharWidth();
    if (const QString note = index.data(TableModel::NoteRole).toString(); !note.isEmpty())
        size.rwidth() += option.fontMetrics.horizontalAdvance(note) + 3 * character;
    // Paths are long, and what is known of a file comes later.
    if (kindOf(index) == TableColumnKind::File && !index.data().toString().isEmpty() &&
        index.data(TableModel::NoteRole).toString().isEmpty())
        size.rwidth() += character * kNoteCharacters;
    if (kindOf(index) == TableColumnKind::File)
        size.setWidth(std::max(size.width(), character * kFileCharacters));
    return size;
}

void TableDelegate::paintContent(QPainter *painter, const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const
{
    if (kindOf(index) != TableColumnKind::Sequence) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem frame = option;
    initStyleOption(&frame, index);
    frame.text.clear();
    QApplication::style()->drawControl(QStyle::CE_ItemViewItem, &frame, painter, frame.widget);
    const QString sequence = index.data().toString();
    const int margin = contentMargin(option);
    QRect room = option.rect.adjusted(margin, 0, -margin, 0);
    const int width = SequencePainting::width(sequence, frame.font);
    if (option.direction == Qt::RightToLeft && width < room.width())
        room.setLeft(room.right() + 1 - width);
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const QPalette::ColorGroup group = !option.state.testFlag(QStyle::State_Enabled)  ? QPalette::Disabled
                                       : !option.state.testFlag(QStyle::State_Active) ? QPalette::Inactive
                                                                                      : QPalette::Active;
    SequencePainting::paint(
        *painter, room, sequence, frame.font,
        option.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text));
}

void TableDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    if (!hasProblem(index)) {
        QStyleOptionViewItem beside = option;
        beside.rect = paintNote(painter, option, index);
        paintContent(painter, beside, index);
        return;
    }
    const int side = option.fontMetrics.height();
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    if (!isSelected)
        painter->fillRect(option.rect, MeaningColors::errorBackground(option.palette));
    else
        painter->fillRect(option.rect, option.palette.highlight());
    QStyleOptionViewItem text = option;
    const QRect beside = option.rect.adjusted(side, 0, 0, 0);
    text.rect = QStyle::visualRect(option.direction, option.rect, beside);
    paintContent(painter, text, index);
    const int margin = contentMargin(option);
    const QRect room(option.rect.left() + margin, option.rect.top(), side - margin, option.rect.height());
    const QColor color =
        isSelected ? option.palette.color(QPalette::HighlightedText) : MeaningColors::error(option.palette);
    MeaningColors::paintErrorSign(
        *painter, QStyle::visualRect(option.direction, option.rect, room).adjusted(0, margin, 0, -margin),
        color);
}

QWidget *TableDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem & /*option*/,
                                     const QModelIndex &index) const
{
    const TableModel *const model = tableModelOf(index);
    if (!model)
        return nullptr;
    const CellCheck problemOf = [sheet = QPointer(model->sheet()), row = model->rowId(index.row()),
                                 column = index.column()](QStringView kept) {
        return sheet ? sheet->problemOf(row, column, kept) : QString();
    };
    QWidget *const editor =
        createCellEditor(model->sheet()->columns()[index.column()], model->decimalSign(), problemOf, parent);
    editor->setAutoFillBackground(true);
    editor->setProperty(kCellProperty, QVariant::fromValue(QPersistentModelIndex(index)));
    return editor;
}

void TableDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    const QString text = index.data(Qt::EditRole).toString();
    if (auto *const line = qobject_cast<CellLineEdit *>(editor)) {
        // A change elsewhere in the row must not take what is being typed.
        if (!line->isModified())
            line->setText(text);
        line->check();
    } else if (auto *const box = qobject_cast<CellChoiceBox *>(editor)) {
        box->setText(text);
    }
}

void TableDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    const auto *const line = qobject_cast<CellLineEdit *>(editor);
    // What was only looked at may have lost what a line can't show.
    if (line && line->isModified())
        model->setData(index, line->text());
    else if (const auto *const box = qobject_cast<CellChoiceBox *>(editor))
        model->setData(index, box->text());
}

/// Whoever hears of the edit may take the table away.
void TableDelegate::take(QWidget *editor, EndEditHint hint)
{
    const QPointer<TableDelegate> guard(this);
    const QPointer<QWidget> open(editor);
    Q_EMIT commitData(editor);
    if (guard && open)
        Q_EMIT closeEditor(editor, hint);
}

bool TableDelegate::eventFilter(QObject *watched, QEvent *event)
{
    auto *const editor = qobject_cast<QWidget *>(watched);
    const bool isKey = event->type() == QEvent::KeyPress;
    switch (editor && isKey ? static_cast<QKeyEvent *>(event)->key() : 0) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        take(editor, SubmitModelCache); // the view takes this for a step to the cell below
        return true;
    case Qt::Key_Tab:
        take(editor, EditNextItem);
        return true;
    case Qt::Key_Backtab:
        take(editor, EditPreviousItem);
        return true;
    default:
        return QStyledItemDelegate::eventFilter(watched, event);
    }
}

} // namespace orv
