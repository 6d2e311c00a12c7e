#include "orv/propertyeditor/grid/SequenceDatabasesViewItem.h"

#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/SequenceDatabaseItems.h>
#include <orv/widgets/SequenceDatabasesWidget.h>

namespace orv {

using PropertyEditor::SequenceDatabaseItems;

SequenceDatabasesViewItem::SequenceDatabasesViewItem(SequenceDatabasesWidget *widget)
    : m_widget(widget ? widget : new SequenceDatabasesWidget)
{
    QObject::connect(m_widget.get(), &SequenceDatabasesWidget::itemsChanged, edits(),
                     [this] { tellEdited(); });
}

SequenceDatabasesViewItem::~SequenceDatabasesViewItem() = default;

QWidget *SequenceDatabasesViewItem::widget()
{
    return m_widget.get();
}

bool SequenceDatabasesViewItem::validate(QStringList *warnings, QStringList *errors, QStringList *,
                                         WidgetValidationType type) const
{
    return type == WidgetValidationType::SaveWorkflow || !m_widget ||
           SequenceDatabaseItems::validate(m_widget->items(), errors, warnings);
}

Error SequenceDatabasesViewItem::setContentInternal()
{
    if (!m_widget)
        return notInitialized();
    Result<QList<SequenceDatabaseItem>> items = SequenceDatabaseItems::fromJson(
        PropertyEditorJsonUtils::getPropertyWithType(storedContent(), PropertyId::SequenceDatabases));
    if (items.hasError())
        return items.ecatch();
    m_widget->setItems(*items);
    return Error::NoError;
}

QJsonObject SequenceDatabasesViewItem::content() const
{
    if (!m_widget)
        return {};
    return contentWith({{PropertyId::SequenceDatabases, SequenceDatabaseItems::toJson(m_widget->items())}});
}

} // namespace orv
