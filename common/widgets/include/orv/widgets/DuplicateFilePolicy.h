#pragma once

#include <orv/widgets/Export.h>

#include <QMetaType>
#include <QString>

namespace orv {

/// What becomes of a result whose file exists already.
enum class DuplicateFilePolicy
{
    KeepBoth, ///< the new one gets a number in its name
    Overwrite,
    Skip, ///< the old one stays, the new one isn't made
};

/// Where a result goes under \a policy: \a path where nothing is in the way. For KeepBoth the first free name
/// of "NAME (2).SUFFIX", "NAME (3).SUFFIX" and so on; empty for Skip. Looks at the disk, changes nothing.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT QString pathForResult(const QString &path,
                                                               DuplicateFilePolicy policy);

} // namespace orv

Q_DECLARE_METATYPE(orv::DuplicateFilePolicy)
