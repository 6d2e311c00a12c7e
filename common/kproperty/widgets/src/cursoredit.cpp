#include "cursoredit.h"

#include "KPropertyListData.h"
#include "internal/EnumNames.h"

#include <QPainter>

namespace {

struct Shape
{
    Qt::CursorShape shape;
    const char *name;
};

const Shape kShapes[] = {
    {Qt::ArrowCursor, QT_TRANSLATE_NOOP("KPropertyCursorEditor", "Arrow")},
    {Qt::UpArrowCursor, QT_TRANSLATE_NOOP("KPropertyCursorEditor", "Up arrow")},
    {Qt::CrossCursor, QT_TRANSLATE_NOOP("KPropertyCursorEditor", "Cross")},
    {Qt::WaitCursor, QT_TRANSLATE_NOOP("KPropertyCursorEditor", "Waiting")},
    {Qt::IBeamCursor, QT_TRANSLATE_NOOP("KPropertyCursorEditor", "Text")},
    {Qt::SizeVerCursor, QT_TRANSLATE_NOOP("KPropertyCursorEditor", "Size vertically")},
    {Qt::SizeHorCursor, QT_TRANSLATE_NOOP("KPropertyCursorEditor", "Size horizontally")},
    {Qt::SizeBDiagCursor, QT_TRANSLATE_NOOP("KPropertyCursorEditor", "Size slash")},
    {Qt::SizeFDiagCursor, QT_TRANSLATE_NOOP("KPropertyCursorEditor", "Size backslash")},
    {Qt::SizeAllCursor, QT_TRANSLATE_NOOP("KPropertyCursorEditor", "Size all")},
    {Qt::BlankCursor, QT_TRANSLATE_NOOP("KPropertyCursorEditor", "Blank")},
    {Qt::SplitVCursor, QT_TRANSLATE_NOOP("KPropertyCursorEditor", "Split vertically")},
    {Qt::SplitHCursor, QT_TRANSLATE_NOOP("KPropertyCursorEditor", "Split horizontally")},
    {Qt::PointingHandCursor, QT_TRANSLATE_NOOP("KPropertyCursorEditor", "Pointing hand")},
    {Qt::ForbiddenCursor, QT_TRANSLATE_NOOP("KPropertyCursorEditor", "Forbidden")},
    {Qt::WhatsThisCursor, QT_TRANSLATE_NOOP("KPropertyCursorEditor", "What's this?")},
    {Qt::BusyCursor, QT_TRANSLATE_NOOP("KPropertyCursorEditor", "Busy")},
    {Qt::OpenHandCursor, QT_TRANSLATE_NOOP("KPropertyCursorEditor", "Open hand")},
    {Qt::ClosedHandCursor, QT_TRANSLATE_NOOP("KPropertyCursorEditor", "Closed hand")},
    {Qt::DragCopyCursor, QT_TRANSLATE_NOOP("KPropertyCursorEditor", "Drag copy")},
    {Qt::DragMoveCursor, QT_TRANSLATE_NOOP("KPropertyCursorEditor", "Drag move")},
    {Qt::DragLinkCursor, QT_TRANSLATE_NOOP("KPropertyCursorEditor", "Drag link")},
};

KPropertyListData shapes()
{
    QVariantList keys;
    QStringList names;
    for (const Shape &row : kShapes) {
        keys.append(static_cast<int>(row.shape));
        names.append(KPropertyCursorEditor::tr(row.name));
    }
    return KPropertyListData(keys, names);
}

} // namespace

KPropertyCursorEditor::KPropertyCursorEditor(QWidget *parent)
    : KPropertyComboBoxEditor(shapes(), KPropertyComboBoxEditorOptions(), parent)
{}

KPropertyCursorEditor::~KPropertyCursorEditor() = default;

QCursor KPropertyCursorEditor::cursorValue() const
{
    return QCursor(static_cast<Qt::CursorShape>(value().toInt()));
}

void KPropertyCursorEditor::setCursorValue(const QCursor &value)
{
    setValue(static_cast<int>(value.shape()));
}

KPropertyCursorDelegate::KPropertyCursorDelegate() = default;

QWidget *KPropertyCursorDelegate::createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                                               const QModelIndex &index) const
{
    Q_UNUSED(type)
    Q_UNUSED(option)
    Q_UNUSED(index)
    return new KPropertyCursorEditor(parent);
}

void KPropertyCursorDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                    const QModelIndex &index) const
{
    KPropertyValuePainterInterface::paint(this, painter, option, index);
}

QString KPropertyCursorDelegate::valueToString(const QVariant &value, const QLocale &locale) const
{
    const Qt::CursorShape shape = value.value<QCursor>().shape();
    if (locale.language() == QLocale::C) {
        return Internal::enumKey(shape);
    }
    for (const Shape &row : kShapes) {
        if (row.shape == shape) {
            return KPropertyCursorEditor::tr(row.name);
        }
    }
    return QString();
}
