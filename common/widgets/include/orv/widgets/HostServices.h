#pragma once

#include <orv/widgets/Export.h>

#include <QObject>

QT_FORWARD_DECLARE_CLASS(QTabWidget)

namespace orv {

/// What a document window tells the application around it. Hosts connect to HostServices::instance(), or ask
/// later. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT HostServices : public QObject
{
    Q_OBJECT

public:
    [[nodiscard]] static HostServices *instance();

    [[nodiscard]] int documentType() const { return m_documentType; }
    [[nodiscard]] bool hasOwnDisplayNames() const { return m_hasOwnDisplayNames; }

Q_SIGNALS:
    /// Columns are called as this kind of document calls them.
    void documentTypeChanged(int documentType);
    /// Whether columns have the names of the intact analysis.
    void displayColumnNamesChanged(bool hasOwnDisplayNames);

private:
    HostServices() = default;

    friend void changeHostDocumentType(HostServices &services, int documentType);
    friend void changeHostDisplayNames(HostServices &services, bool hasOwnDisplayNames);

    int m_documentType = 0;
    bool m_hasOwnDisplayNames = false;
};

/// How columns are called, by the kind of document on the screen.
class ORV_PROPERTY_EDITOR_EXPORT ColumnFriendlyName
{
public:
    /// Hosts give names by these numbers.
    enum DocumentType : int
    {
    };

    static void changeDocumentType(DocumentType documentType);
    static void changeDocumentType(int documentType) { changeDocumentType(DocumentType(documentType)); }
    [[nodiscard]] static DocumentType documentType();
};

namespace MainWindowISSA {

ORV_PROPERTY_EDITOR_EXPORT void updateDisplayColumnNames(bool hasOwnDisplayNames);

} // namespace MainWindowISSA

namespace WorkflowNodeUtils {

/// Whether workflows can be sent to processing nodes: the setting "MIREL/ProcessingNodesEnabled", false at
/// first.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT bool nodesEnabled();

} // namespace WorkflowNodeUtils

namespace SquishUiUtils {

/// Gives the tabs of a window its title, by which screen readers and automation tell several windows apart.
ORV_PROPERTY_EDITOR_EXPORT void setTabWidgetWindowTitle(QTabWidget *tabWidget, const QString &title);

} // namespace SquishUiUtils

} // namespace orv
