#include "orv/chemistry/DeltaMass.h"

namespace orv {

bool DeltaMass::isEmpty() const
{
    return name.trimmed().isEmpty() && !massDa && unreadableMass.isEmpty() && protein.trimmed().isEmpty() &&
           samplesIds.isEmpty() && otherCells.isEmpty() && cellsAsRead.isEmpty();
}

} // namespace orv
