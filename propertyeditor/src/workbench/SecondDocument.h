#pragma once

#include "orv/propertyeditor/workbench/DocumentState.h"

#include <orv/core/Error.h>

#include <QString>
#include <QUrl>

namespace orv {

/// A workflow file as a window would show it. Nothing of it is ever written.
struct SecondDocument
{
    QString path;
    QString name; ///< of the file or of the portable folder, for people
    DocumentState state;
    QString note;    ///< what was done to it, or what is odd about it; empty for nothing
    QString refusal; ///< why nothing can be taken over from it; empty if it can
    Error error;     ///< why there is no state

    /// Reads a file or a portable folder, and upgrades it in memory. Its relative files get absolute paths
    /// unless they count from \a folder, with a slash at its end, that of the document to compare with. Any
    /// thread; blocks as an upgrade does.
    [[nodiscard]] static SecondDocument read(const QString &path, const QUrl &folder);
};

} // namespace orv
