#pragma once

#include <QtGlobal>

#if defined(KPropertyWidgets_EXPORTS)
#define KPROPERTYWIDGETS_EXPORT Q_DECL_EXPORT
#else
#define KPROPERTYWIDGETS_EXPORT Q_DECL_IMPORT
#endif
