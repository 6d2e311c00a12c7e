#include "OrvTest.h"

#include <orv/propertyeditor/AllowedProperties.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/workflow/NewWorkflow.h>
#include <orv/propertyeditor/workflow/WorkflowSchema.h>

#include <QJsonArray>

using namespace orv;
using namespace Qt::StringLiterals;
using PropertyEditor::KeyValueItem;

/// The parts of the JSON Schema; an independent validator tests it as a whole.
class TestWorkflowSchema : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void theDialectIsNamed();
    void everyTypeOfCellIsNamed();
    void everyReferenceHasItsDefinition();
    void cellsNameTheirProperties_data();
    void cellsNameTheirProperties();
    void settingsAreExplained_data();
    void settingsAreExplained();
    void valuesHaveTheirForm_data();
    void valuesHaveTheirForm();
    void doublesTellTheirLimits();
};

namespace {

const QJsonObject &schema()
{
    static const QJsonObject made = WorkflowSchema::make();
    return made;
}

QJsonObject definition(const QString &name)
{
    return schema().value(u"$defs"_s).toObject().value(name).toObject();
}

QJsonObject valueOf(const QString &setting)
{
    return definition(u"setting."_s + setting)[u"properties"][u"value"].toObject();
}

void collectReferences(const QJsonValue &value, QStringList *references)
{
    for (const auto element : value.toArray())
        collectReferences(element, references);
    const QJsonObject object = value.toObject();
    for (auto it = object.begin(); it != object.end(); ++it) {
        if (it.key() == u"$ref")
            references->append(it->toString());
        else
            collectReferences(*it, references);
    }
}

} // namespace

void TestWorkflowSchema::theDialectIsNamed()
{
    QCOMPARE(schema().value(u"$schema"_s).toString(), u"https://json-schema.org/draft/2020-12/schema"_s);
}

void TestWorkflowSchema::everyTypeOfCellIsNamed()
{
    const QJsonArray types = definition(u"cell"_s)[u"properties"][u"type"][u"enum"].toArray();
    QCOMPARE(types.size(), PropertyEditor::BaseItem::typeNames().size() - 1);
    QVERIFY(types.contains(u"Karvon"_s) && !types.contains(u"Unknown"_s));
}

void TestWorkflowSchema::everyReferenceHasItsDefinition()
{
    QStringList references;
    collectReferences(schema(), &references);
    QVERIFY(!references.isEmpty());
    const QString prefix = u"#/$defs/"_s;
    for (const QString &reference : std::as_const(references)) {
        QVERIFY2(reference.startsWith(prefix) && !definition(reference.mid(prefix.size())).isEmpty(),
                 qPrintable(reference));
    }
}

void TestWorkflowSchema::cellsNameTheirProperties_data()
{
    QTest::addColumn<BaseItemType>("type");
    for (const BaseItemType type : NewWorkflow::cellTypes())
        QTest::newRow(qPrintable(baseItemTypeToString(type))) << type;
}

void TestWorkflowSchema::cellsNameTheirProperties()
{
    QFETCH(const BaseItemType, type);
    const QJsonArray names =
        definition(u"entry."_s + baseItemTypeToString(type))[u"properties"][u"name"][u"enum"].toArray();
    for (auto it = PropertiesNames::names()->begin(); it != PropertiesNames::names()->end(); ++it) {
        // The name of the single file reads as the list of databases.
        const bool allowed = allowedProperties(type).contains(
            it.key() == PropertyId::DatabaseFile ? PropertyId::SequenceDatabases : it.key());
        const bool isCustomColumns = it->internalNameV2 == u"CustomColumns" && !KeyValueItem::holds(type);
        const bool isOldSamples = it.key() == PropertyId::Samples && type == BaseItemType::Samples;
        const bool expected = allowed || isCustomColumns || isOldSamples;
        QVERIFY2(names.contains(it->internalNameV2) == expected, qPrintable(it->internalNameV2));
        QVERIFY2(names.contains(it->internalNameV1) == expected, qPrintable(it->internalNameV1));
    }
}

void TestWorkflowSchema::settingsAreExplained_data()
{
    QTest::addColumn<PropertyId>("id");
    QSet<PropertyId> ids;
    for (const BaseItemType type : NewWorkflow::cellTypes()) {
        for (const PropertyId id : NewWorkflow::settingsOf(type)) {
            if (!ids.contains(id))
                QTest::newRow(qPrintable(PropertiesNames::internalNameForType(id))) << id;
            ids.insert(id);
        }
    }
}

void TestWorkflowSchema::settingsAreExplained()
{
    QFETCH(const PropertyId, id);
    const PropertyFeatures features = PropertiesNames::names()->value(id);
    const QJsonObject value = valueOf(features.internalNameV2);
    QCOMPARE(value.value(u"title"_s).toString(), features.displayName);
    QVERIFY(value.value(u"description"_s).toString().startsWith(features.toolTip));
    QCOMPARE(value.value(u"default"_s), PropertySetCreator::storedDefault(id));
    QVERIFY(value.contains(u"type"_s) || value.contains(u"enum"_s));
}

void TestWorkflowSchema::valuesHaveTheirForm_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("expected");
    const auto row = [](const char *what, const char *name, const char *key, const QJsonValue &expected) {
        QTest::newRow(what) << QString::fromLatin1(name) << QString::fromLatin1(key) << expected;
    };
    row("integers have their lower limit", "KarvonCentroidTopk", "minimum", 0);
    row("doubles are texts alone, as engines read them", "AlignmentTolerance", "type", u"string"_s);
    row("doubles have no limits that hold for numbers alone", "AlignmentTolerance", "maximum",
        QJsonValue(QJsonValue::Undefined));
    row("switches may be anything that a switch reads", "AlignmentEnabled", "type",
        QJsonArray{u"string"_s, u"boolean"_s, u"number"_s, u"null"_s});
    row("texts are texts", "AdvancedConfiguration", "type", u"string"_s);
    row("objects may be texts", "KarvonPrecursorMassError", "type", QJsonArray{u"object"_s, u"string"_s});
    row("lists have texts and positions", "BpiPeakMethod", "enum",
        QJsonArray{u"Disable"_s, u"Enable"_s, 0, 1});
}

void TestWorkflowSchema::doublesTellTheirLimits()
{
    QVERIFY(valueOf(u"AlignmentTolerance"_s)
                .value(u"description"_s)
                .toString()
                .endsWith(u"A number in quotes, at least 0 and at most 1000."_s));
}

void TestWorkflowSchema::valuesHaveTheirForm()
{
    QFETCH(const QString, name);
    QFETCH(const QString, key);
    QFETCH(const QJsonValue, expected);
    QCOMPARE(valueOf(name).value(key), expected);
}

ORV_REGISTER_TEST(TestWorkflowSchema)
#include "TestWorkflowSchema.moc"
