#pragma once

#include <orv/table_model/TableFind.h>
#include <orv/widgets/TableView.h>

#include <QWidget>

QT_FORWARD_DECLARE_CLASS(QCheckBox)
QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QLineEdit)

namespace orv {

/// Finds and replaces in the cells that a view shows.
class FindBar : public QWidget
{
    Q_OBJECT

public:
    explicit FindBar(TableView *view, QWidget *parent = nullptr);

    void begin(bool withReplacement);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void build();
    void go(TableFind::Direction direction);
    void replaceOne();
    void replaceAll();
    void tellCount();
    [[nodiscard]] TableSearch search() const;

    TableView *m_view;
    QLineEdit *m_text = nullptr;
    QLineEdit *m_replacement = nullptr;
    QCheckBox *m_caseSensitive = nullptr;
    QCheckBox *m_wholeCell = nullptr;
    QLabel *m_count = nullptr;
    QWidget *m_replaceRow = nullptr;
};

} // namespace orv
