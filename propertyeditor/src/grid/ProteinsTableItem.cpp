#include "orv/propertyeditor/grid/ProteinsTableItem.h"

#include <orv/chemistry/ChemistryConstants.h>
#include <orv/chemistry/ProteinAnnotationEntry.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/widgets/ProteinAnnotationWidget.h>
#include <orv/widgets/ProteinOptionsWidget.h>
#include <orv/widgets/ProteinTableWidget.h>
#include <orv/widgets/ProteinTreeTable.h>

#include <QJsonArray>

namespace orv {

using namespace PropertyEditorJsonUtils;
using namespace PropertyEditorStringConstants;

namespace {

/// The proteins of a cell; old ones stand in its first entry under any name.
QJsonObject proteinsIn(const QJsonObject &cell)
{
    const QJsonArray entries = cell.value(PROPERTIES_KEY).toArray();
    for (const auto entry : entries) {
        if (findPropertyBackCompat(entry.toObject(), BaseItemType::Proteins) == PropertyId::Proteins)
            return propValueObject(entry.toObject());
    }
    return propValueObject(entries.at(0).toObject());
}

} // namespace

ProteinsTableItem::ProteinsTableItem(GridCommunicationManager *manager)
    : GridCommunicative(manager)
    , IGridItem({PropertyId::Proteins})
    , m_widget(new ProteinOptionsWidget)
{
    connect(m_widget->proteinTableWidget(), &ProteinTableWidget::proteinsChanged, this, [this] {
        if (!m_widget)
            return;
        const RowNode proteins = m_widget->proteinTableWidget()->proteinTreeTable()->rowNode();
        Q_EMIT sendMessage({this, PropertyId::Proteins, rowNodeToObject(proteins), {}});
    });
    const auto tell = [this] { tellEdited(); };
    connect(m_widget->proteinTableWidget(), &ProteinTableWidget::edited, this, tell);
    connect(m_widget->proteinAnnotationWidget(), &ProteinAnnotationWidget::edited, this, tell);
}

ProteinsTableItem::~ProteinsTableItem() = default;

QWidget *ProteinsTableItem::widget()
{
    return m_widget.get();
}

Error ProteinsTableItem::setContentInternal()
{
    if (!m_widget)
        return notInitialized();
    const QJsonObject value = proteinsIn(storedContent());
    Result<QList<ProteinAnnotationEntry>> annotations =
        ProteinAnnotationEntry::listFromJson(value.value(kProteinAnnotations).toArray());
    if (annotations.hasError())
        return annotations.ecatch();
    m_widget->proteinTableWidget()->addFromRowNode(objectToRowNode(value));
    m_widget->proteinAnnotationWidget()->addAnnotations(*annotations);
    return Error::NoError;
}

QJsonObject ProteinsTableItem::content() const
{
    if (!m_widget)
        return {};
    QJsonObject value = rowNodeToObject(m_widget->proteinTableWidget()->rowNode());
    const QList<ProteinAnnotationEntry> annotations = m_widget->proteinAnnotationWidget()->allAnnotations();
    value.insert(kProteinAnnotations, ProteinAnnotationEntry::listToJson(annotations));
    return contentWith({{PropertyId::Proteins, value}});
}

void ProteinsTableItem::messageReceived(const GridMessage &) {}

} // namespace orv
