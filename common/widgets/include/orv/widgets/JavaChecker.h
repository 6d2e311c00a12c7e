#pragma once

#include <orv/widgets/Export.h>

#include <QString>

/// Whether the search engines find the Java runtime that they need.
namespace orv::JavaChecker {

enum Answer
{
    Usable = 0,
    NotFound = 1,
    Fails = 2,  ///< it was found, and doesn't run or doesn't answer
    TooOld = 3, ///< below kLowestVersion
};

inline constexpr int kLowestVersion = 8;

/// Asks the runtime for its version: that of JAVA_HOME, or else the first on the search path; waits 10 s at
/// most. Usable, or why not, with what to do in \a message, which may be null. Any thread.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT int isJavaInstalled(QString *message);

/// "1.8.0_292" is version 8, "17.0.2" 17; -1 for a text without a version.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT int majorVersion(const QString &output);

} // namespace orv::JavaChecker
