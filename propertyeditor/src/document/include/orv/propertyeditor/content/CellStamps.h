#pragma once

#include <orv/core/Export.h>

#include <QJsonObject>

namespace orv {

class LossObserver;

namespace PropertyEditor {
class LoadContext;
}

/// The "metadata" of cells: the JSON text that tells who wrote a cell and when. Free of shared state; safe on
/// any thread.
namespace CellStamps {

/// Tells the observer of \a cell, the place of \a object, if its metadata isn't the JSON text of an object,
/// or isn't read as it is written: a load of settings replaces such a text by a new stamp.
ORV_WORKFLOW_EXPORT void reportUnreadable(const QJsonObject &object, const PropertyEditor::LoadContext &cell);

/// Tells \a observer, which may be null, what is dropped when the value form stamps the cells of \a document:
/// all but the user, the time and the version.
ORV_WORKFLOW_EXPORT void reportLosses(const QJsonObject &document, LossObserver *observer);

/// \a document with the metadata that the cells at the same places of \a source have, none where they have
/// none. For whoever wrote settings by way of the object form, whose load stamps them anew, and didn't mean
/// to.
[[nodiscard]] ORV_WORKFLOW_EXPORT QJsonObject restored(QJsonObject document, const QJsonObject &source);

/// \a cell as it stands in the state of a document: whoever reads it from a window stamps it anew.
[[nodiscard]] ORV_WORKFLOW_EXPORT QJsonObject without(QJsonObject cell);

/// Whether two cells differ in their metadata or not at all.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool differsInStampAlone(const QJsonObject &cell, const QJsonObject &other);

} // namespace CellStamps

} // namespace orv
