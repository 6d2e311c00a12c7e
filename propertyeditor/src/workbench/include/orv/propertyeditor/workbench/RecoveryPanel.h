#pragma once

#include <orv/propertyeditor/workbench/RecoveryEntry.h>
#include <orv/widgets/Export.h>

#include <QHash>
#include <QSet>
#include <QWidget>

#include <memory>
#include <optional>

QT_FORWARD_DECLARE_CLASS(QItemSelectionModel)
QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QPushButton)
QT_FORWARD_DECLARE_CLASS(QTreeView)

namespace orv {

class Error;
class RecoveryChangesModel;
class RecoveryModel;
class RecoveryStore;

/// Lists the workflows that can be recovered with what changed in them, and asks what shall become of them.
/// Recovering itself is the application's. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT RecoveryPanel : public QWidget
{
    Q_OBJECT

public:
    explicit RecoveryPanel(std::shared_ptr<RecoveryStore> store, QWidget *parent = nullptr);
    ~RecoveryPanel() override;

    /// Reads the folder again; whether there is something to recover.
    bool refresh();

    /// Says in the panel what went wrong.
    void tell(const Error &error);

Q_SIGNALS:
    /// One that is chosen shall be opened; as a new workflow unless \a state tells that its file is the
    /// one that it was opened from.
    void recoverRequested(const orv::RecoveryEntry &entry, orv::RecoveryFileState state);
    /// Nothing shall happen now.
    void keptForLater();
    /// Nothing is left to be recovered.
    void emptied();

private:
    void build();
    QWidget *makeEntries();
    QWidget *makeChanges();
    QWidget *makeButtons();
    void showCurrent();
    void askFiles();
    void askFile(const RecoveryEntry &entry);
    void recoverSelected();
    void discardSelected();
    void discard(const QList<RecoveryEntry> &entries);
    [[nodiscard]] QList<RecoveryEntry> selected() const;
    [[nodiscard]] std::optional<RecoveryEntry> current() const;
    [[nodiscard]] QString remarkOn(const RecoveryEntry &entry) const;

    const std::shared_ptr<RecoveryStore> m_store;
    RecoveryModel *m_model;
    RecoveryChangesModel *m_changes;
    QTreeView *m_view = nullptr;
    QTreeView *m_changesView = nullptr;
    QLabel *m_title = nullptr;
    QLabel *m_remark = nullptr;
    QLabel *m_count = nullptr;
    QPushButton *m_recover = nullptr;
    QPushButton *m_discard = nullptr;
    QHash<QString, RecoveryFileState> m_states; ///< by journal, as far as they are known
    QSet<QString> m_asked;                      ///< the journals about whose files somebody asks or asked
};

} // namespace orv
