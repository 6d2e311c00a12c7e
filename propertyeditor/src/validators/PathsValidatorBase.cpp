#include <orv/propertyeditor/validators/PathsValidatorBase.h>

namespace orv::PropertyEditor {

PathsValidatorBase::~PathsValidatorBase() = default;

} // namespace orv::PropertyEditor
