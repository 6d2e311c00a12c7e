#pragma once

#include <QCoreApplication>
#include <QString>

namespace orv::PropertyEditor {

/// A text in the context that all validators share.
inline QString validatorText(const char *text)
{
    return QCoreApplication::translate("AbstractValidator", text);
}

} // namespace orv::PropertyEditor
