#include "orv/propertyeditor/grid/SequenceDatabasesViewItem.h"

#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/SequenceDatabaseItems.h>
#include <orv/widgets/SequenceDatabasesWidget.h>

namespace orv {

using PropertyEditor::SequenceDatabaseItems;

SequenceDatabasesViewItem::SequenceDatabasesViewItem(SequenceDatabasesWidget *widget)
    : IGridItem({PropertyId::SequenceDatabases})
    , m_widget(widget ? widget : new SequenceDatabasesWidget)
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
    m_shown = SequenceDatabaseItems::toJson(m_widget->items());
    return Error::NoError;
}

QJsonObject SequenceDatabasesViewItem::content() const
{
    if (!m_widget)
        return {};
    const QJsonObject shown = SequenceDatabaseItems::toJson(m_widget->items());
    // An older form stays until somebody edits it.
    if (shown == m_shown)
        return contentWith({});
    QJsonObject value = PropertyEditorJsonUtils::propValueObject(
        PropertyEditorJsonUtils::getPropertyWithType(storedContent(), PropertyId::SequenceDatabases));
    for (auto member = shown.begin(); member != shown.end(); ++member)
        value.insert(member.key(), member.value());
    return contentWith({{PropertyId::SequenceDatabases, value}});
}

} // namespace orv
