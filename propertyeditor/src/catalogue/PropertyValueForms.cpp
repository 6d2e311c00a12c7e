#include "PropertyValueForms.h"

#include <KProperty>
#include <KPropertyListData>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertiesTraits.h>
#include <orv/propertyeditor/UserVisibleListConverter.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/table/rn.h>

namespace orv {

using namespace PropertyEditorStringConstants;

void applyEditor(PropertySetCreator::Editor editor, KProperty *property)
{
    if (editor == PropertySetCreator::Editor::Unset)
        return;
    property->setOption(OPTION_EDITOR.data(), QVariant::fromValue(editor));
    if (editor == PropertySetCreator::Editor::ValueUnit) {
        property->setOption(OPTION_READONLY_INTERNAL_EDITOR.data(), false);
        property->setOption(OPTION_MULTILINE.data(), false);
        return;
    }
    property->setOption(OPTION_MULTILINE.data(), true);
    property->setOption(OPTION_MIN_HEIGHT.data(), OPTION_MULTILINE_HEIGHT);
    property->setOption(OPTION_MAX_HEIGHT.data(), OPTION_MULTILINE_HEIGHT);
}

void fillListData(PropertyId id, KProperty *property)
{
    QStringList keys;
    QStringList texts;
    UserVisibleListConverter::keysAndValuesForList(id, &keys, &texts);
    property->setListData(keys, texts);
    property->setOption(kExtraValueOption, PropertiesTraits::isEditableList(id));
}

QString listText(PropertyId id, const QVariant &value, bool *ok)
{
    using Lists = UserVisibleListConverter;
    const auto &formerSwitches = Lists::associativeListWithBoolBackwardsCompatibility();
    const auto formerSwitch = formerSwitches.constFind(id);
    const QVariant present = formerSwitch == formerSwitches.cend() ? value : (*formerSwitch)(value);

    *ok = true;
    if (const auto texts = Lists::listItemsMap().constFind(id); texts != Lists::listItemsMap().cend()) {
        return PropertyEditorJsonUtils::getValueFromList(present, *texts,
                                                         PropertiesNames::internalNameForType(id),
                                                         PropertiesTraits::isEditableList(id), ok);
    }
    if (Lists::associativeListItemsMap().contains(id))
        return QString::number(present.toInt());
    if (Lists::associativeStringListItemsMap().contains(id))
        return present.toString();
    *ok = false;
    return {};
}

bool nestsTooDeeply(const QByteArray &json)
{
    constexpr int kMaximum = rn::kMaxNesting;
    int depth = 0;
    bool isText = false;
    for (qsizetype i = 0; i < json.size() && depth <= kMaximum; ++i) {
        const char c = json.at(i);
        if (c == '"')
            isText = !isText;
        else if (isText)
            i += c == '\\' ? 1 : 0;
        else if (c == '{' || c == '[')
            ++depth;
        else if (c == '}' || c == ']')
            --depth;
    }
    return depth > kMaximum;
}

} // namespace orv
