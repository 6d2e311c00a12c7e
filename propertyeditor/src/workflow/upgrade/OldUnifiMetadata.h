#pragma once

#include <orv/core/Result.h>

#include <QHash>
#include <QString>

namespace orv {

class PropertyEditorContent;

/// What documents before version 5.16.1 knew of a UNIFI item, beside the sample.
struct OldUnifiMetadata
{
    QString name;
    QString path;
    QString server; ///< its URL
    QString uuid;
};

/// By the samples' ids, from the raw cells of \a content. A document in which the samples can't be found
/// gives none, with a warning.
[[nodiscard]] Result<QHash<int, OldUnifiMetadata>> getOldUnifiMetadata(const PropertyEditorContent *content);

} // namespace orv
