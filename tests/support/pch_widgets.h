// What nearly every test of widgets reads.
#pragma once

#include "../../cmake/pch_widgets.h"
#include "pch.h"
