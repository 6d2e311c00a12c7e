#pragma once

#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/widgets/Export.h>

#include <QJsonObject>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

namespace orv {

class Error;
class PropertyEditorWindow;
class RecoveryJournal;
class RecoveryStore;

/// Keeps the unsaved changes of a document window in a journal: a state is taken soon behind an edit, and the
/// last one when the window closes. What can't be kept is told in the window's status line. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT JournalKeeper : public QObject
{
    Q_OBJECT

public:
    /// How the document is read. They are called on the GUI thread while the window lives.
    struct Source
    {
        /// As it is now; behind an edit, see setInterval(). Nothing where what the journal has shall stay.
        std::function<std::optional<PropertyEditorContent>()> state;
        std::function<QJsonObject()> saved;     ///< as it was opened or saved last
        std::function<QStringList()> lost = {}; ///< what it lacks of its file; may be null
    };

    /// A child of \a window. \a store is kept alive.
    JournalKeeper(PropertyEditorWindow *window, std::shared_ptr<RecoveryStore> store, Source source);
    ~JournalKeeper() override;

    /// The time from an edit until a state is taken, and so between two of them: 1.5 s at first, so that at
    /// most two seconds of edits are lost.
    void setInterval(int milliseconds);

    /// Takes the state now if there was an edit behind the last one. Windows that are deleted without being
    /// closed call it in their destructor.
    void flush();

    /// For changes that neither the tabs nor the window tell of, such as undoing.
    void noteEdit();

    /// The window shows something else now, which belongs to no file: what was kept stays in its journal.
    void beginWithoutFile();

    /// Goes on with \a journal, from which the document in the window was recovered.
    void adopt(std::unique_ptr<RecoveryJournal> journal);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void begin();
    void beginSaved();
    void useJournal(std::unique_ptr<RecoveryJournal> journal);
    void tell(const Error &error);

    PropertyEditorWindow *const m_window;
    const std::shared_ptr<RecoveryStore> m_store;
    const Source m_source;
    std::unique_ptr<RecoveryJournal> m_journal;
    QTimer m_timer;
    bool m_hasEdit = false; ///< behind the last state
    bool m_isClosing = false;
};

} // namespace orv
