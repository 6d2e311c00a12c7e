// The current format version, which one test pins as a literal; all others follow it.
#pragma once

#include <orv/propertyeditor/workflow/WflwMetaData.h>

#include <QString>
#include <QVersionNumber>

inline QVersionNumber currentVersion()
{
    return orv::WflwMetaData::currentWorkflowVersion();
}

inline QString currentVersionText()
{
    return currentVersion().toString();
}

inline QVersionNumber nextPatch()
{
    const QVersionNumber current = currentVersion();
    return {current.majorVersion(), current.minorVersion(), current.microVersion() + 1};
}

/// Its first two numbers, which compare below it.
inline QString currentVersionCutShort()
{
    return QVersionNumber(currentVersion().majorVersion(), currentVersion().minorVersion()).toString();
}
