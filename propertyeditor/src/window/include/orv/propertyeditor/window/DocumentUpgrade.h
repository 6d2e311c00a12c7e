#pragma once

#include <orv/propertyeditor/workflow/WorkflowUpgradeReview.h>

#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVersionNumber>

namespace orv {

/// What an upgrade did to a document on its way into a window. Cheap to copy; safe to use from several
/// threads as any Qt value.
struct DocumentUpgrade
{
    QString path; ///< of its file, or its name if it has none
    QVersionNumber from;
    QVersionNumber to;
    QStringList notes; ///< what people should know of
    QList<WorkflowUpgradeStep> steps;
    bool hasFailed = false; ///< the steps are those before the one that failed
};

} // namespace orv

Q_DECLARE_METATYPE(orv::DocumentUpgrade)
