#pragma once

#include <orv/core/Error.h>
#include <orv/propertyeditor/content/BaseItemType.h>
#include <orv/propertyeditor/workflow/WorkflowType.h>
#include <orv/widgets/Export.h>

#include <QList>
#include <QMap>
#include <QPointer>
#include <QString>
#include <QVariant>

#include <functional>

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace orv {

class GlycanOptionsWidget;
class GlycanTableWidget;
class PropertyGridWidget;
class ProteinInputWidgetBase;
class SamplesAndTracesInputWidget;

/// Keeps widgets of different tabs in step with the set of columns that a document has: tables of proteins
/// show what its analyses need, samples what they are for. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT DependentWidgets
{
public:
    using Grids = QList<QPointer<PropertyGridWidget>>;

    /// What runs around the import of a table of samples and proteins where there is an intact analysis.
    struct ImportChecks
    {
        std::function<bool(const QMap<QString, QList<QVariant>> &columns)> preFlight;
        std::function<Error()> postFlight;
    };

    /// The last of each kind in the order of tabs and columns; null without one, and once it has gone.
    struct Found
    {
        QPointer<SamplesAndTracesInputWidget> samples;
        QPointer<ProteinInputWidgetBase> intactProteins;
        QPointer<GlycanOptionsWidget> glycanOptions;
        QList<QPointer<GlycanTableWidget>> glycans; ///< all of them
    };

    /// Types of the columns that yield a result or a report, in order, with repetitions.
    [[nodiscard]] static QList<BaseItemType> documents(const Grids &grids);

    /// Whoever hears of a change may remove columns and tabs; the rest goes on with what is left.
    [[nodiscard]] static Found update(const Grids &grids, WorkflowType workflowType,
                                      const ImportChecks &checks);
};

} // namespace orv
