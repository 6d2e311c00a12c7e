#pragma once

#include "TreeWatch.h"

#include <orv/core/Result.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/propertyeditor/workflow/WflwUpgradeObserver.h>

#include <QJsonObject>
#include <QSet>
#include <QStringList>

#include <optional>
#include <utility>

namespace orv {

/// One upgrade of one document, whose steps share a tree of it, so that a step that only looks costs nothing,
/// and one that edits a few cells costs these cells.
///
/// The tree is lent to one step at a time, and for that document alone: what asks while a step waits, for
/// this document or another one, gets a tree of its own. It is reused only for the very value that it was
/// read from or written to. A cell is in normal form if writing it gives what it was read from: to write and
/// read it once more would then change nothing but its stamp, and is left out once the document was written
/// in full.
class UpgradeRun
{
public:
    /// \a document must outlive the run.
    explicit UpgradeRun(const PropertyEditorContent *document);
    Q_DISABLE_COPY_MOVE(UpgradeRun)

    [[nodiscard]] bool canLend(const PropertyEditorContent *document) const;
    /// The tree of the document, which has to be given back. Only where canLend answers true.
    Result<PropertyEditor::Content> lend();
    /// Whatever was edited in it and not written doesn't show in the next loan.
    void takeBack();

    /// What a step says of its edits.
    void tellRenamed(const WflwUpgradeRenaming &renaming) { m_renamed.append(renaming); }
    /// All that was said since this was last asked.
    [[nodiscard]] QList<WflwUpgradeRenaming> takeRenamed() { return std::exchange(m_renamed, {}); }

    /// Replaces *document by what the lent tree \a working holds now.
    Error write(const PropertyEditor::Content &working, PropertyEditorContent *document);

private:
    /// What of a tree changes without a signal of its cells.
    struct Heading
    {
        QJsonObject metadata;
        QStringList names;

        bool operator==(const Heading &) const = default;
    };

    [[nodiscard]] static Heading headingOf(const PropertyEditor::Content &tree);
    [[nodiscard]] bool mirrorsDocument() const;
    [[nodiscard]] bool isAsLent() const;
    Error readDocument();
    bool refreshStale();
    Error writeAll(const PropertyEditor::Content &working, PropertyEditorContent *document);
    void writeCells(const QSet<qsizetype> &cells, const PropertyEditor::Content &working,
                    PropertyEditorContent *document);
    void forget();

    const PropertyEditorContent *m_document;
    bool m_isLent = false;
    std::optional<PropertyEditor::Content> m_tree;
    std::optional<TreeWatch> m_watch; ///< of the tree
    Heading m_heading;
    PropertyEditorContent m_mirrored;
    QSet<qsizetype> m_stale; ///< cells that were written, and not read anew so far
    /// Cells that aren't in normal form: what a step inserts often gets its full form only when it is written
    /// a second time. Nothing as long as all cells have to be written.
    std::optional<QSet<qsizetype>> m_unsettled;
    bool m_writtenInFull = false;
    QList<WflwUpgradeRenaming> m_renamed;
};

} // namespace orv
