#pragma once

#include <QList>
#include <QObject>

QT_FORWARD_DECLARE_CLASS(QTreeView)

namespace orv {

/// Shares the width of a list among its columns, so that none is out of sight, until somebody drags one.
class ColumnShares : public QObject
{
    Q_OBJECT

public:
    /// A share for each column; one of 0 is as wide as its texts. Goes with \a view, which has its model
    /// already.
    ColumnShares(QTreeView *view, const QList<int> &shares);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fit();
    void fitUnlessChosen();
    void follow(int column);

    QTreeView *m_view;
    const QList<int> m_shares;
    bool m_isFitting = false;
    bool m_isChosen = false; ///< by a person
};

} // namespace orv
