#include "BuiltinFactory.h"

#include "FontNameEditor.h"
#include "KPropertyRectFEditor.h"
#include "KPropertyStringEditor.h"
#include "KPropertyUrlEditor.h"
#include "RealGeometry.h"
#include "SymbolEditor.h"
#include "booledit.h"
#include "coloredit.h"
#include "combobox.h"
#include "cursoredit.h"
#include "dateedit.h"
#include "datetimeedit.h"
#include "fontedit.h"
#include "linestyleedit.h"
#include "pixmapedit.h"
#include "pointedit.h"
#include "rectedit.h"
#include "sizeedit.h"
#include "sizepolicyedit.h"
#include "spinbox.h"
#include "timeedit.h"

namespace Internal {

namespace {

template<typename Creator>
KPropertyEditorCreatorInterface *create()
{
    return new Creator;
}

struct Row
{
    KPropertyEditorCreatorInterface *(*create)();
    std::initializer_list<int> types;
};

const Row kRows[] = {
    {create<KPropertyBoolDelegate>, {KProperty::Bool}},
    {create<KPropertyColorComboDelegate>, {KProperty::Color}},
    {create<KPropertyComboBoxDelegate>, {KProperty::ValueFromList}},
    {create<KPropertyCursorDelegate>, {KProperty::Cursor}},
    {create<KPropertyDateDelegate>, {KProperty::Date}},
    {create<KPropertyDateTimeDelegate>, {KProperty::DateTime}},
    {create<KPropertyDoubleSpinBoxDelegate>, {KProperty::Double}},
    {create<KPropertyFontDelegate>, {KProperty::Font}},
    {create<FontNameDelegate>, {KProperty::FontName}},
    {create<KPropertyIntSpinBoxDelegate>,
     {KProperty::Int, KProperty::UInt, KProperty::LongLong, KProperty::ULongLong}},
    {create<KPropertyLineStyleComboDelegate>, {KProperty::LineStyle}},
    {create<KPropertyPixmapDelegate>, {KProperty::Pixmap}},
    {create<KPropertyPointDelegate>, {KProperty::Point}},
    {create<PointFDelegate>, {KProperty::PointF}},
    {create<KPropertyRectDelegate>, {KProperty::Rect}},
    {create<KPropertyRectFDelegate>, {KProperty::RectF}},
    {create<KPropertySizeDelegate>, {KProperty::Size}},
    {create<SizeFDelegate>, {KProperty::SizeF}},
    {create<KPropertySizePolicyDelegate>, {KProperty::SizePolicy}},
    {create<KPropertyStringDelegate>, {KProperty::String}},
    {create<SymbolDelegate>, {KProperty::Symbol}},
    {create<KPropertyTimeDelegate>, {KProperty::Time}},
    {create<KPropertyUrlDelegate>, {KProperty::Url, KProperty::ComposedUrl}},
};

} // namespace

BuiltinFactory::BuiltinFactory()
{
    for (const Row &row : kRows) {
        KPropertyEditorCreatorInterface *const creator = row.create();
        for (const int type : row.types) {
            addEditor(type, creator);
        }
    }
}

} // namespace Internal
