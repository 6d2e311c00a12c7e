#pragma once

#include <orv/core/Export.h>

#include <QString>

/// Tool tips take a text that looks like markup for markup. What comes from a document or a file, as names
/// and values do, goes through here.
namespace orv::PlainTip {

/// The tool tip that shows \a text letter by letter.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString of(const QString &text);

} // namespace orv::PlainTip
