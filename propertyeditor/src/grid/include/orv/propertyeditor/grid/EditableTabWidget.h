#pragma once

#include <orv/widgets/Export.h>

#include <QTabWidget>

namespace orv {

class EditableTabBar;

/// Tabs with titles that can be edited.
class ORV_PROPERTY_EDITOR_EXPORT EditableTabWidget : public QTabWidget
{
    Q_OBJECT

public:
    explicit EditableTabWidget(QWidget *parent = nullptr);
    ~EditableTabWidget() override;

    [[nodiscard]] EditableTabBar *editableTabBar() const { return m_bar; }

private:
    EditableTabBar *m_bar;
};

} // namespace orv
