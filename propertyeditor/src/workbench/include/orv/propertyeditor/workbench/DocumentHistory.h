#pragma once

#include <orv/propertyeditor/workbench/DocumentState.h>
#include <orv/widgets/Export.h>

#include <QObject>
#include <QPointer>

#include <memory>

namespace orv {

class PropertyEditorWindow;

/// The steps of a document in a window, back and forth, through every column, tab and property of the
/// workflow. A step is what a person did from opening to leaving a field; steps of the tables' own histories
/// are among them, and so is an upgrade of the document until it is saved. Saving keeps the other steps, and
/// another document begins anew. What lies longest back is forgotten, by the tables too, once all steps hold
/// more than limit() bytes. GUI thread; the window may be destroyed from any handler.
class ORV_PROPERTY_EDITOR_EXPORT DocumentHistory : public QObject
{
    Q_OBJECT

public:
    static constexpr qsizetype kDefaultLimit = qsizetype(64) * 1024 * 1024;

    /// A child of \a window.
    explicit DocumentHistory(PropertyEditorWindow *window);
    ~DocumentHistory() override;

    /// What the window shows, with all that was told of edits until now. Cheap to copy.
    [[nodiscard]] DocumentState state();
    /// Whether it is another state than the one that lies on the disk, however it was reached; a document
    /// that was never saved counts from when it was shown.
    [[nodiscard]] bool isModified();
    /// No state counts as saved until the next save: of a document that comes from elsewhere than its file.
    void countAsUnsaved();

    /// Of a document that was just shown and comes from elsewhere than its file: what \a file has is what its
    /// settings were before, and all that differs becomes one step called \a text. False, and nothing is
    /// done, if somebody has made a step meanwhile, or if the window can't show the file's state.
    bool beginAt(const DocumentState &file, const QString &text);

    [[nodiscard]] int count() const;
    /// How many of the steps are done.
    [[nodiscard]] int index() const;
    [[nodiscard]] bool canUndo() const { return index() > 0; }
    [[nodiscard]] bool canRedo() const { return index() < count(); }
    /// Whether somebody took the upgrade of the document back: it isn't shown, and redo() shows it again.
    [[nodiscard]] bool isUpgradeTakenBack() const;
    /// What the step did, empty for none.
    [[nodiscard]] QString undoText() const;
    [[nodiscard]] QString redoText() const;

    /// About what the steps hold, those of the tables included, in bytes.
    [[nodiscard]] qsizetype heldBytes() const;
    [[nodiscard]] qsizetype limit() const;
    void setLimit(qsizetype bytes);

    /// What the next edits do becomes one step called \a text, until the group goes.
    class ORV_PROPERTY_EDITOR_EXPORT Group
    {
    public:
        Group(DocumentHistory *history, const QString &text);
        ~Group();
        Q_DISABLE_COPY_MOVE(Group)

    private:
        QPointer<DocumentHistory> m_history;
    };

    /// Shows \a to in place of \a from as one step called \a text, and goes there. What is being typed
    /// becomes a step first; false, and nothing is done, if the window shows another state than \a from then.
    bool edit(const DocumentState &from, const DocumentState &to, const QString &text);

public Q_SLOTS:
    /// Show the state at the other end of the step, and where it differs. What is being typed becomes a step
    /// first.
    void undo();
    void redo();
    /// Takes in what was told of edits; otherwise that happens once the event is handled.
    void takeIn();

Q_SIGNALS:
    /// The steps, the state or the saved state became others.
    void changed();
    /// An edit, an undo or a redo led to another state; comes before changed().
    void stateChanged();
    /// The upgrade was taken back, and something else was made in its place: what is shown belongs to no
    /// file.
    void upgradeDropped();

private:
    friend class Group;

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
