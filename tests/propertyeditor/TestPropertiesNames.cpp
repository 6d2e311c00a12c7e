#include "CatalogueRows.h"
#include "OrvTest.h"

#include <orv/chemistry/MassTolerances.h>
#include <orv/chemistry/MassUtils.h>
#include <orv/chemistry/OligoImpurities.h>
#include <orv/chemistry/SettableFeatureFinderParameters.h>
#include <orv/chemistry/TurboXicSettings.h>
#include <orv/propertyeditor/PropertiesCsvReader.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertiesTraits.h>
#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/UserVisibleListConverter.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/resources/ResourceReference.h>

#include <QJsonDocument>

#include <optional>
#include <thread>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

constexpr auto kUnknown = PropertyId(kPropertyCount);

QJsonObject parse(const QVariant &bytes)
{
    return QJsonDocument::fromJson(bytes.toByteArray()).object();
}

bool isReference(PropertyId id)
{
    return int(PropertiesNames::valueTypeOfPropertyType(id)) == PropertiesTraits::ResourceReferenceType;
}

/// The default as a property set holds it, to which rules apply.
QVariant heldDefault(PropertyId id)
{
    const QVariant value = PropertiesNames::defaultValueForType(id);
    if (value.typeId() == QMetaType::QJsonObject)
        return QJsonDocument(value.toJsonObject()).toJson();
    return value;
}

QByteArray partsPerMillion(const QString &number)
{
    // A whole number has no point in JSON text.
    const QByteArray json = QByteArray::number(number.toDouble());
    return "{\n    \"unit\": \"ppm\",\n    \"value\": " + json + "\n}\n";
}

/// Nothing where code alone knows the default.
std::optional<QVariant> writtenDefault(const CatalogueRows::Row &row)
{
    if (row.kind == u"none"_s)
        return QVariant();
    if (row.kind == u"text"_s)
        return row.text;
    if (row.kind == u"bool"_s)
        return row.text == u"true"_s;
    if (row.kind == u"int"_s)
        return row.text.toInt();
    if (row.kind == u"double"_s)
        return row.text.toDouble();
    if (row.kind == u"list"_s)
        return row.text.split(u';');
    if (row.kind == u"ppm"_s)
        return partsPerMillion(row.text);
    return {};
}

} // namespace

class TestPropertiesNames : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void theTableHoldsEveryProperty();
    void theTableIsBuiltOnceOnAnyThread();
    void aDefaultRecordIsEmpty();
    void textsAreThoseOfTheCatalogue_data();
    void textsAreThoseOfTheCatalogue();
    void anUnknownIdHasEmptyAnswers_data();
    void anUnknownIdHasEmptyAnswers();
    void namesOfBothGenerationsAreFound();
    void namesOfAListKeepItsOrder();
    void anEntryIsKnownByItsName_data();
    void anEntryIsKnownByItsName();
    void captionsFollowTheWorkflowInFront();
    void readersAndDefaultsAreTheseOfEachProperty_data();
    void readersAndDefaultsAreTheseOfEachProperty();
    void defaultsHaveTheirTypes_data();
    void defaultsHaveTheirTypes();
    void toleranceDefaultsNameTheirUnit_data();
    void toleranceDefaultsNameTheirUnit();
    void featureFinderDefaultsAreItsOwn();
    void tableDefaultsReadBack_data();
    void tableDefaultsReadBack();
    void defaultsPassTheirOwnRule_data();
    void defaultsPassTheirOwnRule();
    void defaultsLieInTheirList_data();
    void defaultsLieInTheirList();
    void aResolutionIsANumberOfDots_data();
    void aResolutionIsANumberOfDots();
    void toleranceTipsOfTheSearchNameTheUnitsThatItKnows();
};

namespace {

void addAllProperties()
{
    QTest::addColumn<int>("number");
    for (int number = 0; number < kPropertyCount; ++number)
        QTest::addRow("%d %s", number, qPrintable(PropertiesNames::internalNameForType(PropertyId(number))))
            << number;
}

} // namespace

void TestPropertiesNames::theTableHoldsEveryProperty()
{
    const auto *names = PropertiesNames::names();
    QCOMPARE(names->size(), kPropertyCount);
    QCOMPARE(names->firstKey(), PropertyId(0));
    QCOMPARE(names->lastKey(), PropertyId(kPropertyCount - 1));
}

void TestPropertiesNames::theTableIsBuiltOnceOnAnyThread()
{
    const QMap<PropertyId, PropertyFeatures> *first = nullptr;
    const QMap<PropertyId, PropertyFeatures> *second = nullptr;
    std::thread one([&] { first = PropertiesNames::names(); });
    std::thread two([&] { second = PropertiesNames::names(); });
    one.join();
    two.join();
    QVERIFY(first);
    QCOMPARE(first, second);
}

void TestPropertiesNames::aDefaultRecordIsEmpty()
{
    const PropertyFeatures features;
    QVERIFY(features.internalNameV1.isEmpty());
    QVERIFY(features.internalNameV2.isEmpty());
    QVERIFY(features.displayName.isEmpty());
    QVERIFY(features.toolTip.isEmpty());
    QVERIFY(features.typeName.isEmpty());
    QVERIFY(features.typeOptions.isEmpty());
    QVERIFY(!features.defaultValue.isValid());
    QVERIFY(!features.valueFromJson);
    QVERIFY(!features.verification);
}

void TestPropertiesNames::textsAreThoseOfTheCatalogue_data()
{
    addAllProperties();
}

void TestPropertiesNames::textsAreThoseOfTheCatalogue()
{
    QFETCH(int, number);
    const auto id = PropertyId(number);
    const PropertiesCsvReader &texts = PropertiesCsvReader::instance();
    QVERIFY(PropertiesNames::names()->contains(id));
    const PropertyFeatures features = PropertiesNames::names()->value(id);
    QCOMPARE(features.internalNameV1, texts.internalNameV1(id));
    QCOMPARE(PropertiesNames::internalNameForType(id), texts.internalNameV2(id));
    QCOMPARE(PropertiesNames::displayNameForType(id), texts.displayName(id));
    QCOMPARE(PropertiesNames::tooltipForType(id), texts.toolTip(id));
    QCOMPARE(PropertiesNames::valueTypeNameOfPropertyType(id), texts.typeName(id));
    QCOMPARE(PropertiesNames::typeOptionsOfPropertyType(id), texts.typeOptions(id));
    QCOMPARE(int(PropertiesNames::valueTypeOfPropertyType(id)),
             PropertiesTraits::typeFeatures(texts.typeName(id)).type);
    QVERIFY(bool(features.valueFromJson));
    QCOMPARE(bool(features.verification), !texts.verificationFunction(id).isEmpty());
}

void TestPropertiesNames::anUnknownIdHasEmptyAnswers_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("none") << -1;
    QTest::newRow("behind the last") << kPropertyCount;
}

void TestPropertiesNames::anUnknownIdHasEmptyAnswers()
{
    QFETCH(int, number);
    const auto id = PropertyId(number);
    QCOMPARE(PropertiesNames::internalNameForType(id), QString());
    QCOMPARE(PropertiesNames::displayNameForType(id), QString());
    QCOMPARE(PropertiesNames::tooltipForType(id), QString());
    QVERIFY(!PropertiesNames::defaultValueForType(id).isValid());
    QVERIFY(PropertiesNames::typeOptionsOfPropertyType(id).isEmpty());
    QCOMPARE(PropertiesNames::valueTypeNameOfPropertyType(id), QString());
    QCOMPARE(int(PropertiesNames::valueTypeOfPropertyType(id)), 0);
    QVERIFY(PropertiesNames::readerCode(id).isNull());
}

void TestPropertiesNames::namesOfBothGenerationsAreFound()
{
    for (const PropertyFeatures &features : *PropertiesNames::names()) {
        const PropertyId id = PropertiesNames::findPropertyForName(features.internalNameV2);
        QCOMPARE(PropertiesNames::internalNameForType(id), features.internalNameV2);
        QCOMPARE(PropertiesNames::findPropertyForName(features.internalNameV1), id);
    }
    QCOMPARE(PropertiesNames::findPropertyForName(u"NoSuchName"_s), PropertyId::NoProperty);
    QCOMPARE(PropertiesNames::findPropertyForName({}), PropertyId::NoProperty);
}

void TestPropertiesNames::namesOfAListKeepItsOrder()
{
    const QList<PropertyId> ids = {PropertyId::SamplesTable, kUnknown, PropertyId::AdvancedConfiguration};
    QCOMPARE(PropertiesNames::internalNamesForTypes(ids),
             QStringList({u"SamplesTable"_s, QString(), u"AdvancedConfiguration"_s}));
}

void TestPropertiesNames::anEntryIsKnownByItsName_data()
{
    QTest::addColumn<QJsonObject>("entry");
    QTest::addColumn<bool>("known");
    QTest::newRow("current name") << QJsonObject{{u"name"_s, u"AdvancedConfiguration"_s}} << true;
    QTest::newRow("name of the first generation") << QJsonObject{{u"name"_s, u"Database"_s}} << true;
    QTest::newRow("other name") << QJsonObject{{u"name"_s, u"advancedconfiguration"_s}} << false;
    QTest::newRow("no name") << QJsonObject{{u"value"_s, u"AdvancedConfiguration"_s}} << false;
    QTest::newRow("name that is no text") << QJsonObject{{u"name"_s, 0}} << false;
}

void TestPropertiesNames::anEntryIsKnownByItsName()
{
    QFETCH(QJsonObject, entry);
    QFETCH(bool, known);
    QCOMPARE(PropertiesNames::hasPropertyForObject(entry), known);
}

void TestPropertiesNames::captionsFollowTheWorkflowInFront()
{
    const auto fdr = PropertyId(83);
    const auto relevant = PropertyId(263);
    const QString plainFdr = PropertiesCsvReader::instance().displayName(fdr);
    QVERIFY(plainFdr != u"FDR"_s);
    QCOMPARE(PropertiesNames::displayNameForType(fdr), plainFdr);

    const auto before = PropertiesNames::setWorkflowTypeProvider([] { return WorkflowType(28); });
    QVERIFY(!before);
    QCOMPARE(PropertiesNames::displayNameForType(fdr), u"FDR"_s);
    QCOMPARE(PropertiesNames::displayNameForType(relevant), u"Relevant Molecules"_s);
    QCOMPARE(PropertiesNames::displayNameForType(PropertyId(84)),
             PropertiesCsvReader::instance().displayName(PropertyId(84)));

    PropertiesNames::setWorkflowTypeProvider([] { return WorkflowType(27); });
    QCOMPARE(PropertiesNames::displayNameForType(fdr), plainFdr);

    QVERIFY(PropertiesNames::setWorkflowTypeProvider(nullptr));
    QCOMPARE(PropertiesNames::displayNameForType(relevant),
             PropertiesCsvReader::instance().displayName(relevant));
}

void TestPropertiesNames::readersAndDefaultsAreTheseOfEachProperty_data()
{
    addAllProperties();
}

void TestPropertiesNames::readersAndDefaultsAreTheseOfEachProperty()
{
    QFETCH(int, number);
    static const QList<CatalogueRows::Row> rows = CatalogueRows::read();
    QCOMPARE(rows.size(), kPropertyCount);
    const CatalogueRows::Row &row = rows.at(number);
    QCOMPARE(PropertiesNames::internalNameForType(PropertyId(number)), row.name);
    QCOMPARE(PropertiesNames::readerCode(PropertyId(number)), row.reader);
    if (const std::optional<QVariant> expected = writtenDefault(row)) {
        const QVariant value = PropertiesNames::defaultValueForType(PropertyId(number));
        QCOMPARE(value.typeId(), expected->typeId());
        QCOMPARE(value, *expected);
    }
}

void TestPropertiesNames::defaultsHaveTheirTypes_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QVariant>("expected");
    const auto row = [](int number, const char *label, const QVariant &value) {
        QTest::addRow("%d %s", number, label) << number << value;
    };
    row(0, "empty text", QString());
    row(1, "bool", true);
    row(2, "double", 0.0);
    row(3, "int for a double", 2);
    row(5, "text for a double", u"15"_s);
    row(12, "fraction", 0.005);
    row(49, "two lines",
        u"DSS / 138.0680796 @ K | xlink\nXlink\\:DSS / 156.078644 @ K | common2 % Dead end"_s);
    row(58, "none", QVariant());
    row(60, "no reference", QVariant::fromValue(ResourceReferenceSPtr()));
    row(70, "list", QStringList({u"S"_s, u"T"_s}));
    row(97, "negative", -40);
    row(130, "enzyme", u"Trypsin @ R,K | C-term"_s);
    row(168, "empty text for a reference", QString());
    row(213, "whole number for a double", 9000);
    row(220, "enumerator", QVariant::fromValue(PropertyEditorUtils::MulticoreMode::Normal));
    row(302, "small fraction", 0.00005);
    row(306, "key of an enumerator", u"Fast"_s);
}

void TestPropertiesNames::defaultsHaveTheirTypes()
{
    QFETCH(int, number);
    QFETCH(QVariant, expected);
    const QVariant value = PropertiesNames::defaultValueForType(PropertyId(number));
    QCOMPARE(value.typeId(), expected.typeId());
    QCOMPARE(value, expected);
}

void TestPropertiesNames::toleranceDefaultsNameTheirUnit_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QByteArray>("json");
    const auto row = [](int number, const char *value) {
        QTest::addRow("%d", number) << number
                                    << QByteArray("{\n    \"unit\": \"ppm\",\n    \"value\": ") + value +
                                           "\n}\n";
    };
    row(55, "20");
    row(56, "20");
    row(80, "10");
    row(228, "9000");
    row(229, "300");
}

void TestPropertiesNames::toleranceDefaultsNameTheirUnit()
{
    QFETCH(int, number);
    QFETCH(QByteArray, json);
    const QVariant value = PropertiesNames::defaultValueForType(PropertyId(number));
    QCOMPARE(value.typeId(), int(QMetaType::QByteArray));
    QCOMPARE(value.toByteArray(), json);
}

void TestPropertiesNames::featureFinderDefaultsAreItsOwn()
{
    const SettableFeatureFinderParameters parameters;
    QCOMPARE(PropertiesNames::defaultValueForType(PropertyId(142)), QVariant(parameters.maximumCharge));
    QCOMPARE(PropertiesNames::defaultValueForType(PropertyId(144)),
             QVariant(parameters.minimumIsotopeCorrelation));
    QCOMPARE(PropertiesNames::defaultValueForType(PropertyId(148)), QVariant(parameters.mergeChargeStates));
    QCOMPARE(PropertiesNames::defaultValueForType(PropertyId(162)),
             QVariant(parameters.minimumElutionMinutes));
    const TurboXicSettings fast = TurboXicSettingsCreator::createHighCapacity();
    QCOMPARE(PropertiesNames::defaultValueForType(PropertyId(137)), QVariant(fast.scansPerBlock));
    QCOMPARE(PropertiesNames::defaultValueForType(PropertyId(138)), QVariant(fast.cacheMegabytes));
    QCOMPARE(PropertiesNames::defaultValueForType(PropertyId(139)), QVariant(fast.mzBins));
}

void TestPropertiesNames::tableDefaultsReadBack_data()
{
    QTest::addColumn<int>("number");
    for (const int number : {129, 131, 164, 202, 207, 210})
        QTest::addRow("%d", number) << number;
}

void TestPropertiesNames::tableDefaultsReadBack()
{
    QFETCH(int, number);
    const QVariant value = PropertiesNames::defaultValueForType(PropertyId(number));
    QCOMPARE(value.typeId(), int(QMetaType::QByteArray));
    const RowNode node = PropertyEditorJsonUtils::objectToRowNode(parse(value));
    QVERIFY(node.data.size() > 0);
    QCOMPARE(PropertyEditorJsonUtils::rowNodeToJson(node), value.toByteArray());
}

void TestPropertiesNames::defaultsPassTheirOwnRule_data()
{
    addAllProperties();
}

void TestPropertiesNames::defaultsPassTheirOwnRule()
{
    QFETCH(int, number);
    const auto id = PropertyId(number);
    const VerificationFunction rule = PropertiesNames::names()->value(id).verification;
    if (!rule)
        return;
    QStringList errors;
    QStringList warnings;
    const bool passed =
        rule(id, heldDefault(id), PropertyEditorContent::ContentMode::DesktopMode, &errors, &warnings);
    QVERIFY2(passed, qPrintable(errors.join(u' ')));
    QCOMPARE(errors, QStringList());
    QCOMPARE(warnings, QStringList());
    QVERIFY(!isReference(id) || !PropertiesNames::defaultValueForType(id).value<ResourceReferenceSPtr>());
}

void TestPropertiesNames::defaultsLieInTheirList_data()
{
    addAllProperties();
}

void TestPropertiesNames::defaultsLieInTheirList()
{
    QFETCH(int, number);
    const auto id = PropertyId(number);
    if (PropertiesNames::valueTypeOfPropertyType(id) != KProperty::ValueFromList)
        return;
    QStringList keys;
    QStringList texts;
    QVERIFY(UserVisibleListConverter::keysAndValuesForList(id, &keys, &texts));
    const std::unique_ptr<KProperty> property(
        PropertySetCreator::createDefaultProperty(id, PropertySetCreator::Priority::High));
    QVERIFY(property);
    const QString held = property->value().toString();
    QVERIFY2(keys.contains(held) || (UserVisibleListConverter::isEditableList(id) && held.isEmpty()),
             qPrintable(held));
}

void TestPropertiesNames::aResolutionIsANumberOfDots_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("passes");
    QTest::newRow("print") << QVariant(300.0) << true;
    QTest::newRow("its default, a text") << QVariant(u"300"_s) << true;
    QTest::newRow("least") << QVariant(1.0) << true;
    QTest::newRow("most") << QVariant(2400.0) << true;
    QTest::newRow("none") << QVariant(0.0) << false;
    QTest::newRow("negative") << QVariant(-300.0) << false;
    QTest::newRow("beyond the most") << QVariant(2401.0) << false;
    QTest::newRow("nothing") << QVariant() << false;
}

void TestPropertiesNames::aResolutionIsANumberOfDots()
{
    QFETCH(QVariant, value);
    QFETCH(bool, passes);
    const VerificationFunction rule = PropertiesNames::names()->value(PropertyId(133)).verification;
    QStringList errors;
    QStringList warnings;
    QCOMPARE(
        rule(PropertyId(133), value, PropertyEditorContent::ContentMode::DesktopMode, &errors, &warnings),
        passes);
    const QString message = u"The value of \"Image resolution\" must be in range [1;2400]"_s;
    QCOMPARE(errors, passes ? QStringList() : QStringList{message});
}

void TestPropertiesNames::toleranceTipsOfTheSearchNameTheUnitsThatItKnows()
{
    for (const int number : {55, 56, 80}) {
        const QString tip = PropertiesNames::tooltipForType(PropertyId(number));
        QVERIFY2(tip.contains(u"in ppm or Da as chosen"_s) && tip.contains(u"in mmu for ppm"_s),
                 qPrintable(tip));
    }
}

ORV_REGISTER_TEST(TestPropertiesNames)
#include "TestPropertiesNames.moc"
