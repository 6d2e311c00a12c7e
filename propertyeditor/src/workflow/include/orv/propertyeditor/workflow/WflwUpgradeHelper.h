#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QList>
#include <QString>
#include <QUrl>

#include <memory>

QT_BEGIN_NAMESPACE
class QVersionNumber;
QT_END_NAMESPACE

namespace orv {

class SilentServers;

class PropertyEditorContent;
class WorkingContent;

/// The steps of the upgrade chain, each named for the first format version in which a document has the new
/// form. Made for one run of WflwUpgrader, on its thread. A step may also be called by itself, for any
/// document and at any time: while another step waits for a server as well.
///
/// A step replaces *content as a whole once it has succeeded; on a failure, and where it doesn't apply,
/// *content is untouched. Failures have the code MalformedStructure and a text of the step's own, details
/// name the place. \a content must not be null.
class ORV_WORKFLOW_EXPORT WflwUpgradeHelper
{
public:
    WflwUpgradeHelper();
    Q_DISABLE_COPY_MOVE(WflwUpgradeHelper)

    /// What the user should know of the run, in the order of the notes' kinds.
    [[nodiscard]] QList<QString> notes() const;

    // Hosts built against this header find the steps by their place: never reorder. The destructor comes last
    // for the same reason.

    /// Moves the old elution peak settings of the workflow into its samples table.
    virtual Error upgradeV_5_6_0(PropertyEditorContent *content);
    /// The automatic search for masses gets a new number.
    virtual Error upgradeV_5_9_0(PropertyEditorContent *content);
    /// Opens the samples' files and rebuilds the list of traces. Reads sample data.
    virtual Error upgradeV_5_10_1(PropertyEditorContent *content);
    /// The workflow type, which was told by the icon before.
    virtual Error upgradeV_5_12_0(PropertyEditorContent *content);
    /// How ion chromatograms are extracted, which stood among the expert settings before.
    virtual Error upgradeV_5_12_2(PropertyEditorContent *content);
    virtual Error upgradeV_5_13_0(PropertyEditorContent *content);
    virtual Error upgradeV_5_15_0(PropertyEditorContent *content);
    /// References to UNIFI items, from what the document knew of them on entry: \a initialContent, a document
    /// of \a initialVersion, of which earlier steps leave nothing behind.
    virtual Error upgradeV_5_16_1(PropertyEditorContent *content, const PropertyEditorContent *initialContent,
                                  const QVersionNumber &initialVersion);
    /// Stores what reading normalises.
    virtual Error upgradeV_5_17_0(PropertyEditorContent *content);
    /// Asks the UNIFI server anew what it knows of the samples.
    virtual Error upgradeV_5_18_0(PropertyEditorContent *content);
    /// The icIEF workflow under its new name.
    virtual Error upgradeV_5_19_0(PropertyEditorContent *content);
    virtual Error upgradeV_5_20_0(PropertyEditorContent *content);
    virtual Error upgradeV_5_21_0(PropertyEditorContent *content);
    /// A protein search becomes a search of digested oligonucleotides.
    virtual Error upgradeV_5_22_0(PropertyEditorContent *content);
    /// Search options that are decided when a search starts leave the document.
    virtual Error upgradeV_5_23_0(PropertyEditorContent *content);
    virtual Error upgradeV_5_24_0(PropertyEditorContent *content);
    /// References to UNIFI items that were named by their path get their ids.
    virtual Error upgradeV_5_25_0(PropertyEditorContent *content);
    virtual Error upgradeV_5_26_0(PropertyEditorContent *content);
    /// The preset that computes peaks from their width.
    virtual Error upgradeV_5_27_0(PropertyEditorContent *content);
    /// The theoretical digest gives way to a file of peptides.
    virtual Error upgradeV_5_28_0(PropertyEditorContent *content);
    /// No effect in this version.
    virtual Error upgradeV_5_29_0(PropertyEditorContent *content);
    virtual Error upgradeV_5_30_0(PropertyEditorContent *content);
    /// Formulas of building blocks are those of what a block adds.
    virtual Error upgradeV_5_31_0(PropertyEditorContent *content);
    /// Asks the UNIFI server for the folders of the samples.
    virtual Error upgradeV_5_32_0(PropertyEditorContent *content);
    /// Expert settings name the mode of the analysis.
    virtual Error upgradeV_5_33_0(PropertyEditorContent *content);
    virtual Error upgradeV_5_34_0(PropertyEditorContent *content);
    /// Ion chromatograms are extracted by the fast method. Leaves a note.
    virtual Error upgradeV_5_35_0(PropertyEditorContent *content);
    virtual Error upgradeV_5_36_0(PropertyEditorContent *content);
    virtual Error upgradeV_5_37_0(PropertyEditorContent *content);
    virtual Error upgradeV_5_38_0(PropertyEditorContent *content);
    /// Opens the samples' files and rebuilds traces of other kinds. Reads sample data.
    virtual Error upgradeV_5_39_0(PropertyEditorContent *content);
    virtual Error upgradeV_5_40_0(PropertyEditorContent *content);
    virtual Error upgradeV_5_41_0(PropertyEditorContent *content);
    virtual Error upgradeV_5_42_0(PropertyEditorContent *content);
    /// The alignment of in-silico peptides, which stood among the expert settings before.
    virtual Error upgradeV_5_43_0(PropertyEditorContent *content);
    virtual Error upgradeV_5_44_0(PropertyEditorContent *content);
    virtual Error upgradeV_5_45_0(PropertyEditorContent *content);
    /// A switch for in-silico peptides becomes a mode.
    virtual Error upgradeV_5_46_0(PropertyEditorContent *content);
    virtual Error upgradeV_5_47_0(PropertyEditorContent *content);
    /// Reads and writes the document, which gives it the current version.
    virtual Error upgradeToCurrentWorkflowVersion(PropertyEditorContent *content);

    virtual ~WflwUpgradeHelper();

protected:
    /// One note of a kind is enough, however many cells it is about; a further one is dropped.
    void addNote(int kind, const QString &text);

    /// The document as the tree that a step edits; see WorkingContent. Within a run the steps share one.
    [[nodiscard]] Result<WorkingContent> createPecToUpgrade(PropertyEditorContent *content);

    /// From which relative files count; see WflwUpgradeOptions.
    [[nodiscard]] QUrl baseUrl() const;
    /// Through which steps ask servers, so that none is waited for twice.
    [[nodiscard]] SilentServers &silentServers() const;

private:
    friend class WflwUpgradeRunner;

    class Private;
    std::unique_ptr<Private> d;
};

} // namespace orv
