#include "orv/propertyeditor/validators/AbstractValidator.h"

namespace orv::PropertyEditor {

AbstractValidator::~AbstractValidator() = default;

} // namespace orv::PropertyEditor
