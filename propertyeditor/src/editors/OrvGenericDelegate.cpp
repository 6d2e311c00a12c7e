#include "orv/propertyeditor/editors/OrvGenericDelegate.h"

#include "GenericEditorText.h"

#include <KProperty.h>
#include <KPropertyUtils.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/editors/OrvGenericEditor.h>

namespace orv {

using namespace PropertyEditorStringConstants;

QWidget *OrvGenericDelegate::createEditor(int, QWidget *parent, const QStyleOptionViewItem &,
                                          const QModelIndex &index) const
{
    KProperty *property = KPropertyUtils::propertyForIndex(index);
    if (!property)
        return nullptr;
    const auto editor = PropertySetCreator::Editor(property->option(OPTION_EDITOR.data()).toInt());
    const QVariant hasSeveralLines = property->option(OPTION_MULTILINE.data());
    if (!hasSeveralLines.isValid())
        return nullptr;
    if (hasSeveralLines.toBool())
        return new OrvGenericMultiLineEditor(editor, property, parent);
    return new OrvGenericEditor(editor, property, parent);
}

void OrvGenericDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                               const QModelIndex &index) const
{
    const KProperty *property = KPropertyUtils::propertyForIndex(index);
    if (!property)
        return;
    QStyleOptionViewItem withText(option);
    withText.text = GenericEditorText::textOf(*property, GenericEditorText::Place::Cell);
    // Without a text of its own the base would paint the bytes of the value.
    if (!withText.text.isEmpty())
        KPropertyStringDelegate::paint(painter, withText, index);
}

QString OrvGenericDelegate::propertyValueToString(const KProperty *property, const QLocale &) const
{
    return GenericEditorText::textOf(*property, GenericEditorText::Place::Cell);
}

QString OrvGenericDelegate::summary(const KProperty &property)
{
    constexpr int kMostLines = 24;
    QString text = GenericEditorText::textOf(property, GenericEditorText::Place::Whole);
    qsizetype end = -1;
    for (int line = 0; line < kMostLines; ++line) {
        end = text.indexOf(u'\n', end + 1);
        if (end < 0)
            return text;
    }
    return text.left(end + 1) + u'\u2026';
}

} // namespace orv
