#pragma once

#include "SettingReader.h"
#include "SettingView.h"
#include "orv/propertyeditor/workbench/DocumentState.h"
#include "orv/propertyeditor/workbench/SettingIndex.h"

#include <QObject>
#include <QPointer>

#include <optional>

namespace orv {

class PropertyEditorWindow;

/// The columns of settings of the document in a window, with an index that follows them: what was edited is
/// read again when somebody asks. GUI thread.
class SettingColumns : public QObject
{
    Q_OBJECT

public:
    explicit SettingColumns(PropertyEditorWindow *window, QObject *parent = nullptr);
    ~SettingColumns() override;

    enum class Change
    {
        None,
        Values,
        Places, ///< columns came, went or moved
    };
    /// Brings the index to the present; what changed since the last call.
    Change refresh();
    /// As of the last refresh().
    [[nodiscard]] SettingIndex &index() { return m_index; }

    /// Null for a place without a column.
    [[nodiscard]] GridPropertyEditorView *view(const SettingPlace &place) const;

    enum class Former
    {
        Default,
        Saved,
    };
    /// \a document is what was saved, in place of what was shown first; until the next save.
    void takeSaved(const DocumentState &document);
    /// Gives a setting its former value, as an edit; false where there is none or it is the present one, and
    /// where the setting can't be edited.
    bool setBack(const SettingPlace &place, Former former);

Q_SIGNALS:
    /// refresh() has something to do. Once for all changes of an event.
    void changed();

private:
    using Column = SettingView;
    struct Saved
    {
        Column column;
        std::optional<StoredSettings> values;
        StateCell unread; ///< of a file; values are made of it when somebody asks
    };

    [[nodiscard]] bool isReadOnly() const;
    [[nodiscard]] SettingIndex::Column read(const Column &column);
    [[nodiscard]] const StoredSettings *savedOf(const Column &column);
    [[nodiscard]] static const StoredSettings *valuesOf(Saved *saved);
    void hear(GridPropertyEditorView *view);
    void touch(GridPropertyEditorView *view);
    void tellSoon();
    void keepAsSaved();

    const QPointer<PropertyEditorWindow> m_window;
    SettingReader m_reader;
    SettingIndex m_index;
    QList<Column> m_columns;
    QList<Saved> m_saved;
    QList<QPointer<GridPropertyEditorView>> m_touched;
    bool m_isTelling = false;
    bool m_isStale = true; ///< the saved values are others, or nothing can be edited any more
    bool m_wasReadOnly = false;
};

} // namespace orv
