#pragma once

#include <orv/widgets/IFileAccessor.h>

namespace orv::DefaultWidgetCreator {

enum class FileAccessorType
{
    Local,  ///< the disks of this computer
    Server, ///< a server, where a host has registered an accessor for it; else local
};

using FileAccessorCreator = std::function<std::unique_ptr<IFileAccessor>()>;

/// A new accessor, never null.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT std::unique_ptr<IFileAccessor>
fileAccessor(FileAccessorType type = FileAccessorType::Local);

/// Makes fileAccessor() use \a create for \a type; an empty function brings the own one back.
ORV_PROPERTY_EDITOR_EXPORT void setFileAccessorCreator(FileAccessorType type,
                                                       const FileAccessorCreator &create);

} // namespace orv::DefaultWidgetCreator
