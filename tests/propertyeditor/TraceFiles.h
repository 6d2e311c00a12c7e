// Files with traces.
#pragma once

#include "TestData.h"

inline QString goodFile()
{
    return TestData::path(QStringLiteral("core_ms/ms/three_test_scans.mzML"));
}
