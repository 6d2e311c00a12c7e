#pragma once

// The interface that is offered, not a version of this product: code that tests for a feature of the
// Qt 5 library must come to the same answer here.
#define KPROPERTY_VERSION_STRING "3.2.0"
#define KPROPERTY_VERSION_MAJOR 3
#define KPROPERTY_VERSION_MINOR 2
#define KPROPERTY_VERSION_PATCH 0
#define KPROPERTY_VERSION ((3 << 16) | (2 << 8) | 0)
