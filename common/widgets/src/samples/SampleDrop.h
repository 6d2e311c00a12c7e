#pragma once

#include <QObject>
#include <QStringList>

namespace orv {

class TableView;

/// Takes files and folders that are dropped on a table of samples or pasted into it, where the table itself
/// would make a row of each. A drop on a cell for a file and a text table are left to the table.
class SampleDrop : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the view.
    explicit SampleDrop(TableView *view);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void pathsCame(const QStringList &paths);

private:
    TableView *m_view;
    QObject *m_viewport; ///< not to be asked of a view that is going
};

} // namespace orv
