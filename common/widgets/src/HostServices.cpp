#include "orv/widgets/HostServices.h"

#include <orv/core/Settings.h>

#include <QTabWidget>

namespace orv {

HostServices *HostServices::instance()
{
    static HostServices services;
    return &services;
}

void changeHostDocumentType(HostServices &services, int documentType)
{
    if (std::exchange(services.m_documentType, documentType) != documentType)
        Q_EMIT services.documentTypeChanged(documentType);
}

void changeHostDisplayNames(HostServices &services, bool hasOwnDisplayNames)
{
    if (std::exchange(services.m_hasOwnDisplayNames, hasOwnDisplayNames) != hasOwnDisplayNames)
        Q_EMIT services.displayColumnNamesChanged(hasOwnDisplayNames);
}

void ColumnFriendlyName::changeDocumentType(DocumentType documentType)
{
    changeHostDocumentType(*HostServices::instance(), documentType);
}

ColumnFriendlyName::DocumentType ColumnFriendlyName::documentType()
{
    return DocumentType(HostServices::instance()->documentType());
}

void MainWindowISSA::updateDisplayColumnNames(bool hasOwnDisplayNames)
{
    changeHostDisplayNames(*HostServices::instance(), hasOwnDisplayNames);
}

bool WorkflowNodeUtils::nodesEnabled()
{
    return as::value(QStringLiteral("MIREL/ProcessingNodesEnabled"), false).toBool();
}

void SquishUiUtils::setTabWidgetWindowTitle(QTabWidget *tabWidget, const QString &title)
{
    tabWidget->setWindowTitle(title);
    // The place of the mark of changes is nothing to read.
    tabWidget->setAccessibleName(QString(title).remove(QLatin1String("[*]")));
}

} // namespace orv
