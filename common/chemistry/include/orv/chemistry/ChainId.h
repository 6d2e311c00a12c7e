#pragma once

#include <orv/chemistry/Chain.h>
#include <orv/core/Export.h>

#include <QList>
#include <QString>

/// Texts that tell chains apart.
namespace orv::ChainId {

/// The id of the chain with the number \a number, from 1: A to Z, then AA, AB and so on. When one of \a
/// chains has it already, the next that is free.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString createDefaultIdText(int number, const QList<Chain> &chains);

} // namespace orv::ChainId
