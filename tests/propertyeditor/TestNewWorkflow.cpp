#include "Documents.h"
#include "OrvTest.h"

#include <orv/core/LossObserver.h>
#include <orv/propertyeditor/AllowedProperties.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/workflow/NewWorkflow.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>
#include <orv/propertyeditor/workflow/WorkflowDifferences.h>

using namespace orv;
using namespace Qt::StringLiterals;
using PropertyEditor::Content;
using PropertyEditor::KeyValueItem;

/// Documents to begin with.
class TestNewWorkflow : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void cellsMayHaveEveryTypeButUnknown();
    void everyMadeDocumentComesBackEqual_data();
    void everyMadeDocumentComesBackEqual();
    void aDocumentOfAllTypesComesBackEqual();
    void settingsCellsHoldEveryAllowedPropertyInOrder_data();
    void settingsCellsHoldEveryAllowedPropertyInOrder();
    void everySettingHoldsItsDefault_data();
    void everySettingHoldsItsDefault();
    void theSingleDatabaseFileStandsNowhere();
    void tableCellsHoldTheirTable_data();
    void tableCellsHoldTheirTable();
    void documentsAreStamped();
    void aNameIsOptional();
    void aDocumentMayBeEmpty();
    void columnsOfOneTypeAreToldApart();
    void thereIsNoCellOfUnknownType();
};

namespace {

void addTypes()
{
    QTest::addColumn<BaseItemType>("type");
    for (const BaseItemType type : NewWorkflow::cellTypes())
        QTest::newRow(qPrintable(baseItemTypeToString(type))) << type;
}

QJsonObject made(const QList<BaseItemType> &types, const QString &name = {})
{
    return Documents::parse(NewWorkflow::make(name, types).toJson());
}

/// What \a document loses or changes by a load and a save, as lines.
QStringList changesByLoad(const QJsonObject &document)
{
    Content content;
    LossCollector collector;
    content.setLossObserver(&collector);
    const Error error = content.assignFromJson(document);
    if (error.hasError())
        return {u"error: %1"_s.arg(error.errorMessages().join(u' '))};
    QStringList lines;
    for (const Loss &loss : collector.losses())
        lines.append(u"lost %1: %2"_s.arg(loss.path, loss.why));
    const QJsonObject saved =
        Documents::parse(content.toJson(PropertyEditor::PropertyConversionFlag::KeepPaths));
    for (const auto &difference : WorkflowDifferences::between(document, saved, false))
        lines.append(difference.path);
    return lines;
}

} // namespace

void TestNewWorkflow::cellsMayHaveEveryTypeButUnknown()
{
    QCOMPARE(NewWorkflow::cellTypes().size(), PropertyEditor::BaseItem::typeNames().size() - 1);
    QVERIFY(!NewWorkflow::cellTypes().contains(BaseItemType::Unknown));
}

void TestNewWorkflow::everyMadeDocumentComesBackEqual_data()
{
    addTypes();
}

void TestNewWorkflow::everyMadeDocumentComesBackEqual()
{
    QFETCH(const BaseItemType, type);
    QCOMPARE(changesByLoad(made({type})), QStringList());
}

void TestNewWorkflow::aDocumentOfAllTypesComesBackEqual()
{
    QCOMPARE(changesByLoad(made(NewWorkflow::cellTypes())), QStringList());
}

void TestNewWorkflow::settingsCellsHoldEveryAllowedPropertyInOrder_data()
{
    QTest::addColumn<BaseItemType>("type");
    for (const BaseItemType type : NewWorkflow::cellTypes()) {
        if (KeyValueItem::holds(type))
            QTest::newRow(qPrintable(baseItemTypeToString(type))) << type;
    }
}

void TestNewWorkflow::settingsCellsHoldEveryAllowedPropertyInOrder()
{
    QFETCH(const BaseItemType, type);
    QList<int> ids;
    for (const auto entry : NewWorkflow::defaultCell(type).value(u"properties"_s).toArray())
        ids.append(PropertiesNames::findPropertyForName(entry[u"name"].toString()));
    QList<int> expected;
    for (const PropertyId id : allowedProperties(type))
        expected.append(id);
    std::ranges::sort(expected);
    QCOMPARE(ids, expected);
    QVERIFY(!ids.isEmpty());
}

void TestNewWorkflow::everySettingHoldsItsDefault_data()
{
    settingsCellsHoldEveryAllowedPropertyInOrder_data();
}

/// The reader of the catalogue gives back what the catalogue says.
void TestNewWorkflow::everySettingHoldsItsDefault()
{
    QFETCH(const BaseItemType, type);
    for (const auto element : NewWorkflow::defaultCell(type).value(u"properties"_s).toArray()) {
        const QJsonObject entry = element.toObject();
        const PropertyId id = PropertiesNames::findPropertyForName(entry.value(u"name"_s).toString());
        const PropertyFeatures features = PropertiesNames::names()->value(id);
        if (features.typeName != u"double" && features.typeName != u"int" && features.typeName != u"bool")
            continue;
        const QVariant read = features.valueFromJson(entry);
        QVERIFY2(qFuzzyCompare(1 + read.toDouble(), 1 + features.defaultValue.toDouble()),
                 qPrintable(features.internalNameV2));
    }
}

/// In a cell its name reads as the list of today.
void TestNewWorkflow::theSingleDatabaseFileStandsNowhere()
{
    for (const BaseItemType type : NewWorkflow::cellTypes())
        QVERIFY(!NewWorkflow::settingsOf(type).contains(PropertyId::DatabaseFile));
}

void TestNewWorkflow::tableCellsHoldTheirTable_data()
{
    QTest::addColumn<BaseItemType>("type");
    QTest::addColumn<QJsonObject>("cell");
    for (const BaseItemType type : NewWorkflow::cellTypes()) {
        if (!KeyValueItem::holds(type) && type != BaseItemType::Samples && type != BaseItemType::Database)
            QTest::newRow(qPrintable(baseItemTypeToString(type)))
                << type << PropertyEditorJsonUtils::defaultJsonContents(type);
    }
    const auto cell = [](const char *json) { return Documents::parse(QByteArray(json).replace('\'', '"')); };
    QTest::newRow("Samples") << BaseItemType::Samples
                             << cell("{'properties': [{'name': 'SamplesTable', 'value': {'Samples': []}}]}");
    QTest::newRow("Database") << BaseItemType::Database
                              << cell("{'type': 'Database', 'properties': [{'name': 'SequenceDatabases',"
                                      " 'value': {'sequences': []}}]}");
}

void TestNewWorkflow::tableCellsHoldTheirTable()
{
    QFETCH(const BaseItemType, type);
    QFETCH(const QJsonObject, cell);
    const QJsonArray entries = NewWorkflow::defaultCell(type).value(u"properties"_s).toArray();
    for (const auto expected : cell.value(u"properties"_s).toArray()) {
        const auto found = std::ranges::find_if(
            entries, [&expected](const QJsonValue &entry) { return entry[u"name"] == expected[u"name"]; });
        QVERIFY(found != entries.end());
        const QJsonObject value = found->toObject().value(u"value"_s).toObject();
        const QJsonObject wanted = expected[u"value"].toObject();
        for (auto it = wanted.begin(); it != wanted.end(); ++it)
            QCOMPARE(value.value(it.key()), it.value());
    }
    QCOMPARE(NewWorkflow::settingsOf(type), QList<PropertyId>());
}

void TestNewWorkflow::documentsAreStamped()
{
    const PropertyEditorContent content(made({BaseItemType::Samples}, u"Check"_s));
    const QJsonObject metadata = content.metadata();
    QCOMPARE(WflwMetaData::nameFromMetaDataObject(metadata), u"Check"_s);
    QCOMPARE(WflwMetaData::versionNumberFromMetaDataObject(metadata), WflwMetaData::currentWorkflowVersion());
    QVERIFY(!metadata.value(u"user"_s).toString().isEmpty());
    QVERIFY(!metadata.value(u"created"_s).toString().isEmpty());
    QStringList messages;
    QCOMPARE(WflwMetaData::checkWorkflowVersion(WflwMetaData::currentWorkflowVersion(), &content, &messages),
             WflwMetaData::WflwState::UpToDate);
}

void TestNewWorkflow::aNameIsOptional()
{
    QVERIFY(!PropertyEditorContent(made({})).metadata().contains(u"name"_s));
}

void TestNewWorkflow::aDocumentMayBeEmpty()
{
    QCOMPARE(changesByLoad(made({})), QStringList());
}

void TestNewWorkflow::columnsOfOneTypeAreToldApart()
{
    const auto tabs =
        NewWorkflow::make({}, {BaseItemType::Masses, BaseItemType::Karvon, BaseItemType::Masses})
            .tabsAndContent();
    QCOMPARE(tabs.size(), 1);
    QCOMPARE(tabs.first().second.first, QStringList({u"Masses"_s, u"Karvon"_s, u"Masses 2"_s}));
}

void TestNewWorkflow::thereIsNoCellOfUnknownType()
{
    QCOMPARE(NewWorkflow::defaultCell(BaseItemType::Unknown), QJsonObject());
}

ORV_REGISTER_TEST(TestNewWorkflow)
#include "TestNewWorkflow.moc"
