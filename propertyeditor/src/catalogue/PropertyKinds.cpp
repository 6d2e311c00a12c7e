#include "PropertyKinds.h"

#include "PropertyValueForms.h"

#include <KProperty>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertiesTraits.h>
#include <orv/propertyeditor/UserVisibleListConverter.h>

#include <array>
#include <atomic>

namespace orv {

using namespace PropertyEditorStringConstants;

namespace {

using Priority = PropertySetCreator::Priority;

/// One property without a value for each kind and usual priority, made when it is first asked for.
class Models
{
public:
    /// Null for what can't be made, and for numbers that no priority has.
    const KProperty *find(PropertyId id, Priority priority)
    {
        constexpr int kLowest = int(Priority::Unset);
        const int index = int(priority) - kLowest;
        if (id < 0 || id >= kPropertyCount || index < 0 || index >= kPriorities)
            return nullptr;
        std::atomic<const KProperty *> &model = m_models[size_t(id)][size_t(index)];
        if (const KProperty *known = model)
            return known;
        return make(id, priority, model);
    }

private:
    static const KProperty *make(PropertyId id, Priority priority, std::atomic<const KProperty *> &model)
    {
        auto made = std::make_unique<KProperty>();
        QStringList errors;
        if (!makeOfKind(id, priority, made.get(), &errors))
            return nullptr;
        const KProperty *other = nullptr;
        return model.compare_exchange_strong(other, made.get()) ? made.release() : other;
    }

    static constexpr int kPriorities = int(Priority::Low) - int(Priority::Unset) + 1;
    std::array<std::array<std::atomic<const KProperty *>, kPriorities>, kPropertyCount> m_models{};
};

std::unique_ptr<KProperty> copyOfModel(PropertyId id, Priority priority)
{
    const KProperty *model = modelOf(id, priority);
    if (!model)
        return nullptr;
    auto property = std::make_unique<KProperty>(*model);
    // Captions depend on the kind of workflow that is open.
    const QString caption = PropertiesNames::displayNameForType(id);
    if (caption != property->captionForDisplaying())
        property->setCaption(caption);
    return property;
}

} // namespace

const KProperty *modelOf(PropertyId id, Priority priority)
{
    // Properties may be made while other static objects go.
    static auto *const models = new Models;
    return models->find(id, priority);
}

void setTexts(PropertyId id, KProperty *property)
{
    property->setName(PropertiesNames::internalNameForType(id).toUtf8());
    property->setCaption(PropertiesNames::displayNameForType(id));
    property->setDescription(PropertiesNames::tooltipForType(id));
}

void applyListOrEditor(PropertyId id, KProperty *property)
{
    switch (property->type()) {
    case KProperty::ValueFromList:
        fillListData(id, property);
        break;
    case PropertiesTraits::CheckableListType:
        property->setOption(OPTION_AVAILABLE_ITEMS.data(),
                            UserVisibleListConverter::valuesForCheckableList(id));
        break;
    case PropertiesTraits::ObjectType:
        applyEditor(PropertySetCreator::editorForProperty(id), property);
        break;
    default:
        break;
    }
}

bool makeOfKind(PropertyId id, Priority priority, KProperty *property, QStringList *errors)
{
    const QString name = PropertiesNames::internalNameForType(id);
    if (name.isEmpty()) {
        errors->append(PropertySetCreator::tr("Cannot find an internal name of the property #%1").arg(id));
        return false;
    }
    setTexts(id, property);
    if (!PropertySetCreator::setKPropertyType(id, property)) {
        errors->append(PropertySetCreator::tr("Cannot apply the type of %1").arg(name));
        return false;
    }
    property->setOption(kPriorityOption, int(priority));
    applyListOrEditor(id, property);
    return true;
}

bool readInto(PropertyId id, const QJsonValue &value, KProperty *property, QStringList *errors)
{
    const bool isRead = setStoredValue(id, value, property);
    if (!isRead) {
        errors->append(PropertySetCreator::tr("Cannot convert the value of %1")
                           .arg(PropertiesNames::internalNameForType(id)));
    }
    return isRead;
}

std::unique_ptr<KProperty> newProperty(PropertyId id, Priority priority, const QJsonValue &value,
                                       QStringList *errors)
{
    std::unique_ptr<KProperty> property = copyOfModel(id, priority);
    if (!property) {
        property = std::make_unique<KProperty>();
        if (!makeOfKind(id, priority, property.get(), errors))
            return nullptr;
    }
    return readInto(id, value, property.get(), errors) ? std::move(property) : nullptr;
}

} // namespace orv
