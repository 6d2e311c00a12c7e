#pragma once

#include "FindingsModel.h"
#include "find/FindPanel.h"

#include <QWidget>

QT_FORWARD_DECLARE_CLASS(QAbstractItemDelegate)
QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QVBoxLayout)

namespace orv {

/// The list of findings with a line above it that sums up. Tells what a person chooses.
class FindingsPanel : public LeavablePanel
{
    Q_OBJECT

public:
    explicit FindingsPanel(QWidget *parent = nullptr);
    ~FindingsPanel() override;

    /// The finding that is current stays it, if it is still there.
    void show(const QList<PropertyEditor::LocatedFinding> &findings);
    void setSummary(const QString &text);
    /// Tells a screen reader the summary.
    void announce();

    /// The next finding in the list, or the one before for a \a step of -1, becomes current, from one end to
    /// the other; its number, or -1 for none. Begins at the current one if nobody has gone there yet.
    int step(int step);

Q_SIGNALS:
    void chosen(int row);

private:
    void setWrapped(bool isWrapped);
    void copy();

    FindingsModel *m_model;
    FindList *m_list;
    QAbstractItemDelegate *m_even;    ///< the list's
    QAbstractItemDelegate *m_wrapped; ///< the list's
    QLabel *m_summary;
    int m_visited = -1;
};

} // namespace orv
