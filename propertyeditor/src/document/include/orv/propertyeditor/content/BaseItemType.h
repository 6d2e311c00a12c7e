#pragma once

#include <orv/core/Export.h>

#include <QObject>
#include <QString>

#include <optional>

namespace orv {

/// Holder that makes the enumeration known to the meta-object system.
class ORV_WORKFLOW_EXPORT ORV_QEnumsBaseItemType
{
    Q_GADGET

public:
    /// The kind of a cell. The enumerator's name is the cell's "type" in files: never rename or renumber.
    enum BaseItemType : int
    {
        Unknown = 0,
        Senthia = 1,
        Dravik = 2,
        Karvon = 3,
        Database = 4,
        DetachedGlycans = 5,
        Disulfide = 6,
        GlycanOptions = 7,
        Intact = 8,
        IntactOptions = 9,
        Oligo = 10,
        OligoOptions = 11,
        OligoMasses = 12,
        Isotope = 13,
        Masses = 14,
        MultiDocReport = 15,
        Proteins = 16,
        Preview = 17,
        IntactProteins = 18,
        OligoMolecules = 19,
        Ostrale = 20,
        Samples = 21,
        SamplesProteins = 22,
        Trenq = 23,
        TrenqPreview = 24,
        CaldrinDIA = 25,
    };
    Q_ENUM(BaseItemType)
};

using BaseItemType = ORV_QEnumsBaseItemType::BaseItemType;

/// The type of exactly that name.
[[nodiscard]] ORV_WORKFLOW_EXPORT std::optional<BaseItemType> findBaseItemType(const QString &text);

/// Unknown for an empty text, and, with a warning, for a text that is no type.
[[nodiscard]] ORV_WORKFLOW_EXPORT BaseItemType baseItemTypeFromString(const QString &text);
[[nodiscard]] ORV_WORKFLOW_EXPORT QString baseItemTypeToString(BaseItemType type);

} // namespace orv
