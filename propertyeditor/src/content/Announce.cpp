#include "Announce.h"

#include <QCoreApplication>

namespace orv::PropertyEditor {

Error removedWhileLoading()
{
    return {ErrorCode::InvalidContent,
            QCoreApplication::translate("Content", "What was loaded was removed in the middle of the load.")};
}

} // namespace orv::PropertyEditor
