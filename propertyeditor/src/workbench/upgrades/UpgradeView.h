#pragma once

#include "panels/LeavablePanel.h"

#include <orv/propertyeditor/window/DocumentUpgrade.h>

QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QTreeView)

namespace orv {

class UpgradeModel;

/// What an upgrade changed, step by step, with a line above it.
class UpgradeView : public LeavablePanel
{
    Q_OBJECT

public:
    explicit UpgradeView(QWidget *parent = nullptr);
    ~UpgradeView() override;

    void setUpgrade(const DocumentUpgrade &upgrade);
    void setTitle(const QString &text);
    /// Of all steps.
    [[nodiscard]] qsizetype changeCount() const;

    /// With room for some steps, which a question is as large as.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

private:
    void copy();
    [[nodiscard]] bool hasList() const;

    UpgradeModel *m_model;
    QLabel *m_title;
    QTreeView *m_steps;
};

} // namespace orv
