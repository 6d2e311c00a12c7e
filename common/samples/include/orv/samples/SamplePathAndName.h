#pragma once

#include <QMetaType>
#include <QString>

namespace orv {

/// A sample that somebody adds: its file, as a path or another reference, and what it is called. A plain
/// value.
struct SamplePathAndName
{
    QString path;
    QString name; ///< empty to be called like its file

    bool operator==(const SamplePathAndName &) const = default;
};

} // namespace orv

Q_DECLARE_METATYPE(orv::SamplePathAndName)
