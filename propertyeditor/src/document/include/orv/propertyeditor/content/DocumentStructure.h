#pragma once

#include <orv/core/Error.h>
#include <orv/core/Export.h>

#include <QJsonObject>

namespace orv {

class LossObserver;

/// The structure that documents of all versions share, apart from what their cells hold. Free of shared
/// state; safe on any thread.
namespace DocumentStructure {

/// MalformedStructure, with the place and what stands there, for a document that the object form refuses
/// whatever its cells hold: tabs that are no objects with a name, columns and cells, cells that are no
/// objects or have no column. The value form drops or mends all of that.
[[nodiscard]] ORV_WORKFLOW_EXPORT Error check(const QJsonObject &document);

/// Tells \a observer, which may be null, what PropertyEditorContent drops of \a document.
ORV_WORKFLOW_EXPORT void reportLosses(const QJsonObject &document, LossObserver *observer);

} // namespace DocumentStructure

} // namespace orv
