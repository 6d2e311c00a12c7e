#pragma once

#include <orv/core/Export.h>
#include <orv/core/FileUtils.h>
#include <orv/propertyeditor/workflow/WorkflowType.h>

#include <QFileInfo>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

namespace orv {

class FileExtensionsNameFilter;

namespace PropertyEditor {
class Content;
class KeyValueItem;
} // namespace PropertyEditor

/// Hears what a portable save does, on its thread. Every member does nothing unless it is overridden.
class ORV_WORKFLOW_EXPORT PortableSaveObserver
{
public:
    PortableSaveObserver() = default;
    virtual ~PortableSaveObserver();
    Q_DISABLE_COPY_MOVE(PortableSaveObserver)

    /// Bytes of one file, again and again while it is copied.
    virtual void copying(const QString &source, qint64 done, qint64 total);
    virtual void copied(const QString &source, const QString &destination);
    /// A file that isn't carried along, such as one of a sample, and that the workflow in the folder doesn't
    /// find, as its path \a text is relative. Told once the folder is complete.
    virtual void dangling(const QString &text);
    /// The save ends here; \a side tells whether a file that the workflow names is the cause, or the folder.
    virtual void failed(FileUtils::CopyFailure::Side side);
};

/// Workflow files and folders on disk. Static functions, safe on any thread but for saveAsPortableWorkflow,
/// which belongs to the thread of its content.
class ORV_WORKFLOW_EXPORT WflwUtils
{
public:
    /// Everything that is a workflow, and what of it people choose as files.
    [[nodiscard]] static const FileExtensionsNameFilter &workflowFilters();
    [[nodiscard]] static const FileExtensionsNameFilter &workflowFiltersInDialog();

    /// The folder of the workflows that come with the application.
    [[nodiscard]] static QString builtinWorkflowsPath();
    [[nodiscard]] static QList<QFileInfo> enumerateBuiltinWorkflows();
    /// The workflow files and portable folders right below \a path, in the order in which the folder lists
    /// them; none for an empty path.
    [[nodiscard]] static QList<QFileInfo> enumerateWorkflows(const QString &path);

    /// What tells by its name alone that it is a workflow, or a portable folder.
    [[nodiscard]] static bool isMirelWorkflow(const QString &path);
    [[nodiscard]] static bool isMirelPortableWorkflow(const QString &path);

    /// The document in a portable folder: the first that is there, or else the one to write.
    [[nodiscard]] static QString workflowInPortableWorkflow(const QString &folder);

    /// The type of the workflow in a file; the default type, with a line in the log, if it can't be read.
    [[nodiscard]] static WorkflowType workflowType(const QString &path);

    /// Writes the workflow and copies of all files that its settings refer to, by relative paths from \a
    /// baseUrl or absolute ones, into \a folder. Whatever stands there is removed first; of a link only the
    /// link. \a content stays as it is. False with a text in \a error, which must be there, at the first file
    /// that can't be copied; what has been copied stays. \a observer may be null.
    static bool saveAsPortableWorkflow(const PropertyEditor::Content &content, const QString &folder,
                                       const QUrl &baseUrl, QString *error,
                                       PortableSaveObserver *observer = nullptr);

private:
    struct PortableFolder;

    static bool copyFilesAndUpdateUrls(PropertyEditor::KeyValueItem *item, const PortableFolder &target,
                                       QString *error);
    static bool copyReference(PropertyEditor::KeyValueItem *item, const QString &key,
                              const PortableFolder &target, QString *error);
    static bool copyGlycanDatabases(PropertyEditor::KeyValueItem *item, const QString &key,
                                    const PortableFolder &target, QString *error);
    static void reportNotValid(const QString &text, const PortableFolder &target, QString *error);
    static bool copyFile(const QUrl &source, const PortableFolder &target, QString *destination,
                         QString *error);
};

} // namespace orv
