#pragma once

#include <orv/core/Export.h>
#include <orv/propertyeditor/PropertyId.h>

#include <QMap>
#include <QObject>
#include <QStringList>

namespace orv {

/// What a property set needs to know of a property to show it. All functions are static and safe on any
/// thread.
class ORV_WORKFLOW_EXPORT PropertySetCreator
{
    Q_GADGET

public:
    /// How prominently a property is shown. Stored in files, never renumber.
    enum class Priority : int
    {
        Unset = -1,
        High = 1,
        Medium = 2,
        Low = 3,
    };
    Q_ENUM(Priority)

    /// The kind of editor of a property that no plain editor can show. The numbers are options of properties
    /// by which hosts choose widgets: never renumber.
    enum class Editor : int
    {
        Unset = 0, ///< the editor of the property's type
        ValueUnit = 1,
        Modifications = 2,
        Glycans = 3,
        Proteins = 4,
        Isotope = 5,
        Disulfide = 6,
        IntactOptions = 7,
        OligoOptions = 8,
        Masses = 9,
        DetachedGlycans = 10,
        GlycanOptions = 11,
        PeakFilter = 12,
        TracePlot = 13,
        DeconvolvedMassPlot = 14,
        InclusionList = 15,
        TheoreticalTable = 16,
    };
    Q_ENUM(Editor)

    [[nodiscard]] static Editor editorForProperty(PropertyId id);

    /// The texts of the properties whose value is one of a list, by position.
    [[nodiscard]] static const QMap<PropertyId, QStringList> &listPropertiesData();

    /// Whether files hold the text of a list property, and not its position or number.
    [[nodiscard]] static bool isStringSerializableList(PropertyId id);
};

} // namespace orv
