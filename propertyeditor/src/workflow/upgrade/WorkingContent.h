#pragma once

#include <orv/core/Result.h>
#include <orv/propertyeditor/content/Content.h>

#include <QList>

#include <optional>

namespace orv {

/// The document as a tree to edit, read from its stamped text. A step that edits it writes it back or fails.
Result<PropertyEditor::Content> createPecToUpgrade(PropertyEditorContent *content);

/// Replaces *content by what the tree \a working holds now. Fails if a tab is no rectangle, as it would be
/// written empty.
Error writeBack(const PropertyEditor::Content &working, PropertyEditorContent *content);

/// The same, when among the cells only \a edited differ from what createPecToUpgrade gave. Names of columns
/// and the metadata may differ, too.
Error writeBack(const PropertyEditor::Content &working, PropertyEditorContent *content,
                const QList<PropertyEditor::BaseItem *> &edited);

/// While it lives, the steps on this thread share the tree of one document, so that a step that only looks
/// costs nothing, and one that edits a few cells costs these cells.
///
/// A tree is reused only for the very value that it was read from or written to. A cell is in normal form if
/// writing it gives what it was read from: to write and read it once more would then change nothing but its
/// stamp, and is left out once the document was written in full.
class UpgradeRun
{
public:
    UpgradeRun();
    ~UpgradeRun();
    Q_DISABLE_COPY_MOVE(UpgradeRun)

    [[nodiscard]] static UpgradeRun *current();

    Result<PropertyEditor::Content> workingContent(const PropertyEditorContent &content);
    Error writeAll(const PropertyEditor::Content &working, PropertyEditorContent *content);
    Error writeEdited(const PropertyEditor::Content &working, PropertyEditorContent *content,
                      const QList<PropertyEditor::BaseItem *> &edited);

private:
    /// A cell that was edited, and where it lies in the value form.
    struct EditedCell
    {
        PropertyEditor::BaseItem *item;
        qsizetype tab;
        qsizetype index;
    };

    [[nodiscard]] static QList<EditedCell> placesOf(const QList<PropertyEditor::BaseItem *> &items,
                                                    const PropertyEditor::Content &tree);
    [[nodiscard]] bool mirrors(const PropertyEditorContent &content) const;
    void forget();
    Error refreshEdited(const QString &user);

    std::optional<PropertyEditor::Content> m_tree;
    PropertyEditorContent m_mirrored;
    QList<EditedCell> m_edited; ///< of the tree, not read anew so far
    /// Cells that aren't in normal form: what a step inserts often gets its full form only when it is written
    /// a second time. Nothing as long as all cells have to be written.
    std::optional<QList<PropertyEditor::BaseItem *>> m_unsettled;
    bool m_writtenInFull = false;
    UpgradeRun *m_outer;
};

} // namespace orv
