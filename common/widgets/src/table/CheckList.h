#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QSet>
#include <QString>

namespace orv {

/// Lines of text with boxes to check.
class CheckList : public QAbstractListModel
{
    Q_OBJECT

public:
    struct Line
    {
        QString text;
        QString tip;
    };

    explicit CheckList(QList<Line> lines, QObject *parent = nullptr);

    /// Ascending.
    [[nodiscard]] QList<int> checkedRows() const;
    void setCheckedRows(const QList<int> &rows);
    void checkAll();

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

Q_SIGNALS:
    void checkedChanged();

private:
    QList<Line> m_lines;
    QSet<int> m_checked;
};

} // namespace orv
