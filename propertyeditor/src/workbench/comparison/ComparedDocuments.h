#pragma once

#include "ComparisonTree.h"
#include "orv/propertyeditor/workbench/DocumentState.h"

#include <QSet>
#include <QString>

#include <atomic>

/// A document of a window beside another one. Any thread, in time linear in their size; what is cancelled
/// ends soon, and its result means nothing.
namespace orv::ComparedDocuments {

/// What differs. Stamps and other metadata that nobody edits don't count.
[[nodiscard]] ComparisonTree compared(const DocumentState &left, const DocumentState &right,
                                      const std::atomic_bool &isCancelled);

/// \a left with the rows of these keys as they are in \a right; keys without a row are passed over.
[[nodiscard]] DocumentState takenOver(const DocumentState &left, const DocumentState &right,
                                      const QSet<QString> &keys, const std::atomic_bool &isCancelled);

} // namespace orv::ComparedDocuments
