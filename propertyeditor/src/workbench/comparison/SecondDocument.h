#pragma once

#include "orv/propertyeditor/workbench/DocumentState.h"

#include <orv/core/Error.h>

#include <QString>

#include <atomic>

namespace orv {

/// A workflow file as a window would show it. Nothing of it is ever written.
struct SecondDocument
{
    QString path;
    QString name; ///< of the file or of the portable folder, for people
    DocumentState state;
    bool isOwnFile = false; ///< of the document to compare with
    QString note;           ///< what was done to it, or what is odd about it; empty for nothing
    QString refusal;        ///< why nothing can be taken over from it; empty if it can
    Error error;            ///< why there is no state

    /// Reads a file or a portable folder, and upgrades it in memory. Its relative files get absolute paths
    /// unless they count from the folder of \a own, the file of the document to compare with, which may be
    /// empty. Any thread; blocks as an upgrade does. What is cancelled ends between two steps, and its result
    /// means nothing.
    [[nodiscard]] static SecondDocument read(const QString &path, const QString &own,
                                             const std::atomic_bool &isCancelled);
};

} // namespace orv
