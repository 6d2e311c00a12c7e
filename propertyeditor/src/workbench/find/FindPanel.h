#pragma once

#include "FindHits.h"
#include "panels/LeavablePanel.h"
#include "panels/WorkList.h"

#include <QTimer>
#include <QWidget>

#include <array>

QT_FORWARD_DECLARE_CLASS(QAction)
QT_FORWARD_DECLARE_CLASS(QCheckBox)
QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QLineEdit)
QT_FORWARD_DECLARE_CLASS(QStackedLayout)

namespace orv {

/// A list that tells which row somebody chose, by a click or by Enter.
class FindList : public WorkList
{
    Q_OBJECT

public:
    explicit FindList(QWidget *parent = nullptr);

Q_SIGNALS:
    void chosen(const QModelIndex &index);

protected:
    void keyPressEvent(QKeyEvent *event) override;
};

/// The field, the filters and the hits of a search in settings. Tells what a person wants, and does nothing
/// itself to the document.
class FindPanel : public LeavablePanel
{
    Q_OBJECT

public:
    enum class Filter
    {
        FromDefault,
        SinceSaving,
        HasFinding,
        Differs,
        Count,
    };

    /// \a columns becomes the panel's.
    explicit FindPanel(SettingColumns *columns, QWidget *parent = nullptr);
    ~FindPanel() override;

    /// For what is typed from here on.
    void begin();
    /// Why nothing can be set back; empty if it can.
    void setRefusal(const QString &reason);
    /// A null \a passes takes the filter away for the \a reason that is shown then.
    void setFilter(Filter filter, const std::function<bool(const SettingPlace &)> &passes,
                   const QString &reason);

Q_SIGNALS:
    void chosen(const orv::SettingPlace &place);
    void setBackWanted(const orv::SettingPlace &place, orv::SettingColumns::Former former);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void buildField();
    void layOut();
    void buildList();
    [[nodiscard]] QWidget *buildFilters();
    void addSetBack(const QString &text, const QString &name, const QKeySequence &shortcut,
                    SettingColumns::Former former);
    [[nodiscard]] bool isChecked(Filter filter) const;
    [[nodiscard]] SettingQuery query() const;
    /// The best hit is current behind it.
    void search();
    /// The same, but for the hit that is current, which stays it if it is still there.
    void searchAgain();
    void showHits();
    void follow();
    void choose(const QModelIndex &index);
    void tellCount();
    void announce();
    [[nodiscard]] QString emptyText(const SettingQuery &query) const;

    SettingColumns *m_columns;
    FindHits *m_hits;
    QLineEdit *m_field;
    QLabel *m_count;
    QLabel *m_empty;
    FindList *m_list;
    QStackedLayout *m_pages = nullptr;
    std::array<QCheckBox *, int(Filter::Count)> m_filters{};
    std::array<std::function<bool(const SettingPlace &)>, 2> m_further;
    QTimer m_pause;
    bool m_isStale = true;
};

} // namespace orv
