#pragma once

#include "SameSettingModel.h"
#include "panels/LeavablePanel.h"

QT_FORWARD_DECLARE_CLASS(QCheckBox)
QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QPushButton)
QT_FORWARD_DECLARE_CLASS(QTreeView)

namespace orv {

/// The list of columns that have one setting, with a box each. Tells what a person wants, and does nothing
/// itself to the document.
class SameSettingPanel : public LeavablePanel
{
    Q_OBJECT

public:
    explicit SameSettingPanel(QWidget *parent = nullptr);
    ~SameSettingPanel() override;

    [[nodiscard]] SameSettingModel *model() const { return m_model; }
    /// Tells in the panel what became of an edit, until tell() is called again.
    void tell(const QString &text);

Q_SIGNALS:
    void applied();
    /// Enter or a double click on a row.
    void chosen(int row);
    /// The panel is seen from now on.
    void shown();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void buildList();
    void layOut();
    void update();
    void tellValue();
    [[nodiscard]] QString whyNothingIsApplied() const;
    void toggleSelected();

    SameSettingModel *m_model;
    QLabel *m_heading;
    QLabel *m_alone; ///< where there is nothing to apply to
    QTreeView *m_list;
    QCheckBox *m_all;
    QPushButton *m_apply;
    QLabel *m_outcome;
};

} // namespace orv
