#pragma once

#include <orv/core/Export.h>
#include <orv/core/LossObserver.h>
#include <orv/core/Result.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/ContentOptions.h>
#include <orv/propertyeditor/validators/WorkflowCheck.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>
#include <orv/propertyeditor/workflow/WorkflowUpgrade.h>

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QVersionNumber>

#include <memory>

namespace orv::PropertyEditor {

/// The tree of a document, and what its load dropped.
struct ORV_WORKFLOW_EXPORT LoadedContent
{
    std::unique_ptr<Content> content;
    QList<Loss> lost;
};

/// A workflow file as a host meets it: read with bounds, judged, upgraded, checked with places, and saved
/// only where nothing is lost by it that nobody knows of. \code
///     Result<WorkflowFile> file = WorkflowFile::open(path);
///     if (file.hasError())
///         return refuse(file.error());
///     const WorkflowUpgradeReport upgrade = file->upgrade();
///     const Result<WorkflowCheckReport> check = file->check();
///     if (const Error error = file->save(path))
///         return refuse(error);
/// \endcode
/// A value: copies are independent and cheap. Safe on any thread; what is loaded belongs to the thread that
/// asks for it.
class ORV_WORKFLOW_EXPORT WorkflowFile
{
public:
    enum class Losses
    {
        Refused, ///< where the only copy would be written over
        Accepted,
    };

    /// Reads a file, or that in a portable folder. CannotOpenFile and InvalidContent as FileUtils::readFile;
    /// InvalidContent with the place for text that is no JSON object, or of which something would be lost.
    /// Documents of any version and shape are opened, so that they can be shown: see state() and fault().
    [[nodiscard]] static Result<WorkflowFile> open(const QString &path);
    /// The same for text that comes from elsewhere, such as a pipe. Its relative files count from
    /// \a folderUrl, with a slash at its end.
    [[nodiscard]] static Result<WorkflowFile> fromText(const QByteArray &text, const QUrl &folderUrl);
    /// The same for a document that is already parsed. Findings have no lines without its text.
    explicit WorkflowFile(const WorkflowSource &source, const QUrl &folderUrl = {});

    /// The file that a path means: the document in a portable folder, else the path itself.
    [[nodiscard]] static QString fileAt(const QString &path);

    /// Of the file; empty for what comes from elsewhere.
    [[nodiscard]] const QString &path() const { return m_path; }
    [[nodiscard]] const QUrl &folderUrl() const { return m_folderUrl; }

    /// As it is now: read, upgraded or assigned. The text is empty for what was made of a document alone.
    [[nodiscard]] const QByteArray &text() const { return m_source.text; }
    [[nodiscard]] const QJsonObject &document() const { return m_source.document; }
    [[nodiscard]] QVersionNumber version() const;
    /// Whether it can be used; reasons for NotSupported are appended to \a reasons, which may be null.
    [[nodiscard]] WflwMetaData::WflwState state(QStringList *reasons = nullptr) const;
    /// Whether it may hold what this software doesn't know. Such a document is shown and checked, and its
    /// file isn't written over.
    [[nodiscard]] bool isNewer() const;
    /// What load() refuses whatever the cells hold: a broken structure, or metadata that say a thing twice.
    [[nodiscard]] Error fault() const;

    /// What the upgrades, and the loads of what was assigned, dropped since the file was read.
    [[nodiscard]] const QList<Loss> &lost() const { return m_lost; }

    /// The tree, cells of unknown types included unless \a options are strict, with the folder as base URL.
    [[nodiscard]] Result<LoadedContent>
    load(ValidationOptions options = ValidationOption::SkipTypeValidation) const;
    /// Takes the document of a tree that load() gave, with what it told to be \a lost. The errors are those
    /// of Content::checkWritable; then it stays what it is. Nothing is stamped.
    [[nodiscard]] Error assign(const Content &content, const QList<Loss> &lost);

    /// Brings it into the present form, in memory. It stays what it is if the report tells an error or that
    /// nothing is changed. Without a base URL in \a options the folder counts. Blocks as WflwUpgrader does.
    WorkflowUpgradeReport upgrade(WorkflowUpgradeOptions options = {});

    /// WorkflowCheck by short names of validators, the default set with none. Places and lines are those of
    /// text(), so a check before the upgrade tells where things stand in the file.
    [[nodiscard]] Result<WorkflowCheckReport> check(const QStringList &validators = {}) const;

    /// Writes text(), or the document where there is none, whole or not at all, to a file or into a portable
    /// folder. InvalidContent for a file that holds a newer document, for what is larger than can be read,
    /// and, unless losses are accepted, for the file that it was read from if something is lost();
    /// MalformedStructure likewise if an upgrade mended its structure. CannotOpenFile is the file's.
    [[nodiscard]] Error save(const QString &path, Losses losses = Losses::Refused) const;

private:
    [[nodiscard]] Error checkNewer(const QString &file) const;
    [[nodiscard]] Error checkOnlyCopy(const QString &file) const;

    WorkflowSource m_source;
    QUrl m_folderUrl;
    QString m_path;
    QList<Loss> m_lost;
    Error m_mended; ///< what was wrong with the structure before the upgrade
};

} // namespace orv::PropertyEditor
