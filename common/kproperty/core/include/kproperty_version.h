#pragma once

// The interface that is offered, not a version of this product: code that tests for a feature of the
// Qt 5 library must come to the same answer here.
#define KPROPERTY_VERSION_STRING "3.2.0"
#define KPROPERTY_VERSION_MAJOR 3
#define KPROPERTY_VERSION_MINOR 2
#define KPROPERTY_VERSION_PATCH 0
#define KPROPERTY_VERSION ((3 << 16) | (2 << 8) | 0)

// The names that the header of the Qt 5 library has.
#define KPROPERTYWIDGETS_VERSION_STRING KPROPERTY_VERSION_STRING
#define KPROPERTYWIDGETS_VERSION_MAJOR KPROPERTY_VERSION_MAJOR
#define KPROPERTYWIDGETS_VERSION_MINOR KPROPERTY_VERSION_MINOR
#define KPROPERTYWIDGETS_VERSION_PATCH KPROPERTY_VERSION_PATCH
#define KPROPERTYWIDGETS_VERSION KPROPERTY_VERSION
