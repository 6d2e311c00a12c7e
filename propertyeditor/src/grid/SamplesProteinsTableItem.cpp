#include "orv/propertyeditor/grid/SamplesProteinsTableItem.h"

#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/content/SamplesProteinsColumns.h>
#include <orv/widgets/CsvSamplesProteinsController.h>
#include <orv/widgets/CsvSamplesProteinsControllerConnector.h>
#include <orv/widgets/CustomFieldsImportWidget.h>

#include <QJsonArray>

namespace orv {

using namespace PropertyEditorJsonUtils;
using namespace PropertyEditorStringConstants;

namespace {

constexpr QLatin1String kHeader("header");
constexpr QLatin1String kTable("table");

QJsonArray childrenOf(const QJsonObject &node)
{
    return node.value(CHILDREN).toArray();
}

} // namespace

SamplesProteinsTableItem::SamplesProteinsTableItem(GridCommunicationManager *manager)
    : GridCommunicative(manager)
    , IGridItem({PropertyId::SamplesProteins})
    , m_widget(new CustomFieldsImportWidget)
    , m_controller(new CsvSamplesProteinsController(this))
{
    connect(m_controller, &CsvSamplesProteinsController::newProteinsDetected, this,
            [this](const RowNode &proteins) {
                send({rowNodeToObject(proteins), {}});
            });
    connect(m_controller, &CsvSamplesProteinsController::newFilePathsDetected, this,
            [this](const QList<SamplePathAndName> &files) {
                send({{}, files});
            });
    CsvSamplesProteinsControllerConnector::connect(m_controller, m_widget.get());
    const auto tell = [this] { tellEdited(); };
    connect(m_widget.get(), &CustomFieldsImportWidget::contentChanged, this, tell);
    connect(m_controller, &CsvSamplesProteinsController::tableImported, this, tell);
}

SamplesProteinsTableItem::~SamplesProteinsTableItem() = default;

void SamplesProteinsTableItem::send(const InternalMessage &message)
{
    Q_EMIT sendMessage({this, PropertyId::SamplesProteins, QVariant::fromValue(message), {}});
}

QWidget *SamplesProteinsTableItem::widget()
{
    return m_widget.get();
}

void SamplesProteinsTableItem::importCSV(const QString &path)
{
    if (m_widget)
        m_widget->importCSV(path);
}

void SamplesProteinsTableItem::setCsvImportExtraPreFlightCheck(
    const std::function<bool(QMap<QString, QList<QVariant>>)> &check)
{
    m_controller->setCsvImportExtraPreFlightCheck(check);
}

void SamplesProteinsTableItem::setCsvImportExtraPostFlightCheck(const std::function<Error()> &check)
{
    m_controller->setCsvImportExtraPostFlightCheck(check);
}

void SamplesProteinsTableItem::getHeaderAndTable(const QJsonObject &value, QJsonObject *header,
                                                 QJsonObject *table)
{
    if (header)
        *header = value.value(kHeader).toObject();
    if (table)
        *table = value.value(kTable).toObject();
}

Result<QStringList> SamplesProteinsTableItem::columnNames(const QJsonObject &value, const QString &type)
{
    return PropertyEditor::SamplesProteinsColumns::columnNames(value, type);
}

QList<QList<QVariant>> SamplesProteinsTableItem::toReportModuleStructure(const QJsonObject &value)
{
    QJsonObject header;
    QJsonObject table;
    getHeaderAndTable(value, &header, &table);
    QList<QVariant> headings;
    for (const auto child : childrenOf(header)) {
        QStringList attributes;
        for (const auto attribute : child[DATA].toArray())
            attributes.append(attribute.toVariant().toString());
        headings.append(attributes.join(QLatin1String("<br>")));
    }
    QList<QList<QVariant>> report{headings};
    for (const auto child : childrenOf(table))
        report.append(child[DATA].toArray().toVariantList());
    return report;
}

Error SamplesProteinsTableItem::setContentInternal()
{
    if (!m_widget)
        return notInitialized();
    QJsonObject header;
    QJsonObject table;
    getHeaderAndTable(propValueObject(getPropertyWithType(storedContent(), PropertyId::SamplesProteins)),
                      &header, &table);
    m_widget->setHeaderContent(objectToRowNode(header));
    m_widget->setTableContent(objectToRowNode(table));
    return Error::NoError;
}

QJsonObject SamplesProteinsTableItem::content() const
{
    if (!m_widget)
        return {};
    const QJsonObject value{{kHeader, rowNodeToObject(m_widget->headerContent())},
                            {kTable, rowNodeToObject(m_widget->tableContent())}};
    return contentWith({{PropertyId::SamplesProteins, value}});
}

void SamplesProteinsTableItem::messageReceived(const GridMessage &) {}

} // namespace orv
