#pragma once

#include <QtGlobal>

#if defined(KPropertyCore_EXPORTS)
#define KPROPERTYCORE_EXPORT Q_DECL_EXPORT
#else
#define KPROPERTYCORE_EXPORT Q_DECL_IMPORT
#endif
