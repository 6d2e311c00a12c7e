#pragma once

#include <orv/core/Export.h>

#include <QObject>
#include <QString>

#include <memory>
#include <vector>

namespace orv {

class TableEdit;

/// The steps of a table, back and forth. Qt's own history lies in Qt Gui, which takes longer to load than all
/// else that a program without a screen needs. GUI thread, or the one of the sheet.
class ORV_WORKFLOW_EXPORT TableHistory : public QObject
{
    Q_OBJECT

public:
    explicit TableHistory(QObject *parent = nullptr);
    ~TableHistory() override;

    [[nodiscard]] int count() const { return int(m_edits.size()); }
    /// How many of them are done; undo takes the last of these back.
    [[nodiscard]] int index() const { return m_index; }
    [[nodiscard]] bool canUndo() const { return m_index > 0; }
    [[nodiscard]] bool canRedo() const { return m_index < count(); }
    /// What the step was called, empty for none.
    [[nodiscard]] QString undoText() const;
    [[nodiscard]] QString redoText() const;

    /// Nothing happens where there is no step. Who hears of a step may take further ones, and may delete the
    /// sheet.
    void undo();
    void redo();
    void clear();

    /// What its steps hold beside the rows and texts of the table, in bytes.
    [[nodiscard]] qsizetype heldBytes() const { return m_heldBytes; }
    /// Forgets what lies longest back, \a steps of those that are done, and gives the bytes that are free
    /// then. The table stays as it is, and nothing is told.
    qsizetype forget(int steps);
    /// How many were forgotten that way, all in all.
    [[nodiscard]] int forgotten() const { return m_forgotten; }

    /// Does the step and forgets those that were undone.
    void push(std::unique_ptr<TableEdit> edit);

Q_SIGNALS:
    void indexChanged();

private:
    std::vector<std::shared_ptr<TableEdit>> m_edits;
    int m_index = 0;
    int m_forgotten = 0;
    qsizetype m_heldBytes = 0;

    qsizetype drop(size_t first, size_t last);
};

} // namespace orv
