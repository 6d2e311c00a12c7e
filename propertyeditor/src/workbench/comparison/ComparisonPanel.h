#pragma once

#include "ComparisonModel.h"
#include "panels/LeavablePanel.h"
#include "panels/WorkList.h"

#include <QTimer>

QT_FORWARD_DECLARE_CLASS(QAction)
QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QProgressBar)
QT_FORWARD_DECLARE_CLASS(QPushButton)
QT_FORWARD_DECLARE_CLASS(QStackedLayout)

namespace orv {

/// A tree whose rows are chosen by a double click or Enter and checked by Space in any column.
class ComparisonView : public WorkList
{
    Q_OBJECT

public:
    explicit ComparisonView(QWidget *parent = nullptr);

Q_SIGNALS:
    void chosen(const QModelIndex &index);

protected:
    void keyPressEvent(QKeyEvent *event) override;
};

/// What differs from a second document, and the button that takes over what is checked. Tells what a person
/// wants, and does nothing itself.
class ComparisonPanel : public LeavablePanel
{
    Q_OBJECT

public:
    /// \a compare asks for the second document.
    explicit ComparisonPanel(QAction *compare, QWidget *parent = nullptr);
    ~ComparisonPanel() override;

    [[nodiscard]] ComparisonModel *model() const { return m_model; }

    /// Nothing is compared.
    void showNothing();
    void showReading(const QString &name);
    void showError(const QString &summary, const QString &text);
    /// Checks, folds, the current row and the scroll position stay with what they are about.
    void showTree(const ComparisonTree &tree, const QString &otherName, const QString &note);
    /// What was taken over, until something else is checked, undone, edited or compared.
    void tellOutcome(const QString &text);
    /// Why nothing can be taken over whatever is checked; empty if it can.
    void setRefusal(const QString &reason);
    /// A second document is read or compared, which is shown once it takes time.
    void setBusy(bool isBusy);
    void announce();

Q_SIGNALS:
    void fileDropped(const QString &path);
    void chosen(const QModelIndex &index);
    void takeOverWanted();

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void buildTree();
    void layOut(QAction *compare);
    void showPage(const QString &summary, const QString &note, const QString &emptyText);
    void updateButton();
    void unfold(const QModelIndex &above);

    ComparisonModel *m_model;
    ComparisonView *m_tree;
    QLabel *m_summary;
    QLabel *m_note;
    QLabel *m_empty;
    QLabel *m_checked;
    QProgressBar *m_progress;
    QPushButton *m_compare;
    QPushButton *m_takeOver;
    QStackedLayout *m_pages = nullptr;
    QTimer m_patience;
    QString m_refusal;
    QString m_outcome;
    bool m_isOutcomeNew = false;     ///< the comparison that follows it is still to come
    QHash<QString, bool> m_unfolded; ///< by a person
    bool m_isRestoring = false;
};

} // namespace orv
