#pragma once

#include "kpropertywidgets_export.h"

#include <QString>

class QPushButton;

namespace KPropertyUtils {

/// Makes \a button a narrow "..." button.
KPROPERTYWIDGETS_EXPORT void setupDotDotDotButton(QPushButton *button, const QString &toolTip = QString(),
                                                  const QString &whatsThis = QString());

} // namespace KPropertyUtils
