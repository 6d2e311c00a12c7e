#include "orv/propertyeditor/content/ExtendedMetadataSink.h"

namespace orv::PropertyEditor {

ExtendedMetadataSink::~ExtendedMetadataSink() = default;

} // namespace orv::PropertyEditor
