#pragma once

#include <orv/propertyeditor/content/BaseItemType.h>

#include <memory>

namespace orv::PropertyEditor {

class BaseItem;

/// An empty item of the class that belongs to \a type; null for a number that is no type.
std::unique_ptr<BaseItem> createItem(BaseItemType type);

} // namespace orv::PropertyEditor
