#include "orv/propertyeditor/grid/EditableTabWidget.h"

#include "orv/propertyeditor/grid/EditableTabBar.h"

namespace orv {

EditableTabWidget::EditableTabWidget(QWidget *parent)
    : QTabWidget(parent)
    , m_bar(new EditableTabBar(this))
{
    setTabBar(m_bar);
}

EditableTabWidget::~EditableTabWidget() = default;

} // namespace orv
