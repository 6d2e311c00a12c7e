#pragma once

#include <QCoreApplication>

namespace orv::PropertyEditor {

/// The context that the texts of all validators share.
struct ValidatorText
{
    Q_DECLARE_TR_FUNCTIONS(AbstractValidator)
};

} // namespace orv::PropertyEditor
