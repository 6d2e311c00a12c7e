#include "OrvTest.h"

#include <orv/core/Settings.h>
#include <orv/propertyeditor/PropertiesTraits.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/UserVisibleListConverter.h>
#include <orv/propertyeditor/WflwAdvancedSettings.h>

#include <QMetaEnum>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

using Options = QHash<QByteArray, QVariant>;
using Editor = PropertySetCreator::Editor;
using Priority = PropertySetCreator::Priority;

struct RegisteredAtRunTime
{
    int number = 0;
};

} // namespace

class TestPropertiesTraits : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void typeNamesHaveTheirFeatures_data();
    void typeNamesHaveTheirFeatures();
    void typesRegisteredAtRunTimeCountAsOne();
    void eachPropertyHasItsEditor_data();
    void eachPropertyHasItsEditor();
    void otherNumbersHaveNoEditor();
    void prioritiesAndEditorsKeepTheirNumbers();
    void prioritiesAndEditorsPassThroughVariants();
    void eachPropertyForwardsToItsList();
    void verificationIsOnUnlessSwitchedOff_data();
    void verificationIsOnUnlessSwitchedOff();
};

void TestPropertiesTraits::typeNamesHaveTheirFeatures_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("type");
    QTest::addColumn<Options>("options");
    const auto row = [](const char *label, const QString &name, int type, const Options &options = {}) {
        QTest::newRow(label) << name << type << options;
    };
    row("3state", u"3state"_s, 1, {{"3State", true}});
    row("list", u"list"_s, 1000);
    row("map", u"map"_s, 8);
    row("penstyle", u"penstyle"_s, 1003);
    row("multiLine", u"multiLine"_s, 10, {{"multiLine", true}});
    row("object", u"object"_s, 4000, {{"selectButton", true}, {"readOnlyInternalEditor", true}});
    row("ResourceReference", u"ResourceReference"_s, 4001);
    row("CheckableList", u"CheckableList"_s, 4002, {{"displaySeparator", u""_s}});
    row("empty", u""_s, 0);
    row("null", QString(), 0);
    row("bool", u"bool"_s, 1);
    row("int", u"int"_s, 2);
    row("uint", u"uint"_s, 3);
    row("qlonglong", u"qlonglong"_s, 4);
    row("qulonglong", u"qulonglong"_s, 5);
    row("double", u"double"_s, 6);
    row("QString", u"QString"_s, 10);
    row("QByteArray", u"QByteArray"_s, 12);
    row("QUrl", u"QUrl"_s, 17);
    row("QFont", u"QFont"_s, 4096);
    row("QColor", u"QColor"_s, 4099);
    row("another case of a type", u"qstring"_s, 0);
    row("another case of a name of ours", u"List"_s, 0);
    row("blanks", u" list"_s, 0);
    row("no type", u"No such type"_s, 0);
}

void TestPropertiesTraits::typeNamesHaveTheirFeatures()
{
    QFETCH(QString, name);
    QFETCH(int, type);
    QFETCH(Options, options);
    const PropertiesTraits::TypeFeatures features = PropertiesTraits::typeFeatures(name);
    QCOMPARE(features.type, type);
    QCOMPARE(features.options, options);
}

void TestPropertiesTraits::typesRegisteredAtRunTimeCountAsOne()
{
    qRegisterMetaType<RegisteredAtRunTime>("RegisteredAtRunTime");
    qRegisterMetaType<QList<RegisteredAtRunTime>>("ManyRegisteredAtRunTime");
    QCOMPARE(PropertiesTraits::typeFeatures(u"RegisteredAtRunTime"_s).type, int(QMetaType::User));
    QCOMPARE(PropertiesTraits::typeFeatures(u"ManyRegisteredAtRunTime"_s).type, int(QMetaType::User));
}

void TestPropertiesTraits::eachPropertyHasItsEditor_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("editor");
    const QMap<int, int> editors = {{55, 1},  {56, 1},   {58, 3},   {59, 15}, {67, 2},   {78, 12},
                                    {80, 1},  {119, 14}, {129, 10}, {131, 6}, {164, 11}, {165, 3},
                                    {170, 7}, {202, 5},  {204, 9},  {219, 2}, {225, 8},  {228, 1},
                                    {229, 1}, {253, 4},  {271, 16}, {289, 13}};
    for (int number = 0; number < kPropertyCount; ++number)
        QTest::addRow("%d", number) << number << editors.value(number, 0);
}

void TestPropertiesTraits::eachPropertyHasItsEditor()
{
    QFETCH(int, number);
    QFETCH(int, editor);
    QCOMPARE(int(PropertySetCreator::editorForProperty(PropertyId(number))), editor);
}

void TestPropertiesTraits::otherNumbersHaveNoEditor()
{
    QCOMPARE(PropertySetCreator::editorForProperty(PropertyId::NoProperty), Editor::Unset);
    QCOMPARE(PropertySetCreator::editorForProperty(PropertyId(kPropertyCount)), Editor::Unset);
}

void TestPropertiesTraits::prioritiesAndEditorsKeepTheirNumbers()
{
    QCOMPARE(int(Priority::Unset), -1);
    QCOMPARE(int(Priority::High), 1);
    QCOMPARE(int(Priority::Medium), 2);
    QCOMPARE(int(Priority::Low), 3);
    const QMetaEnum editors = QMetaEnum::fromType<Editor>();
    QCOMPARE(editors.keyCount(), 17);
    for (int number = 0; number < editors.keyCount(); ++number)
        QCOMPARE(editors.value(number), number);
    QCOMPARE(QByteArray(editors.valueToKey(8)), "OligoOptions");
    QCOMPARE(QByteArray(editors.valueToKey(16)), "TheoreticalTable");
}

void TestPropertiesTraits::prioritiesAndEditorsPassThroughVariants()
{
    QCOMPARE(QVariant::fromValue(Priority::Low).toInt(), 3);
    QCOMPARE(QVariant(2).value<Priority>(), Priority::Medium);
    QCOMPARE(QVariant::fromValue(Editor::PeakFilter).toInt(), 12);
    QCOMPARE(QVariant::fromValue(Editor::PeakFilter).toString(), u"PeakFilter"_s);
}

void TestPropertiesTraits::eachPropertyForwardsToItsList()
{
    for (int number = -1; number <= kPropertyCount; ++number) {
        const auto id = PropertyId(number);
        const bool byText = UserVisibleListConverter::isStringSerializableList(id);
        QCOMPARE(PropertiesTraits::isStringSerializableList(id), byText);
        QCOMPARE(PropertySetCreator::isStringSerializableList(id), byText);
        QCOMPARE(PropertiesTraits::isEditableList(id), UserVisibleListConverter::isEditableList(id));
    }
    QCOMPARE(&PropertySetCreator::listPropertiesData(), &UserVisibleListConverter::listItemsMap());
}

void TestPropertiesTraits::verificationIsOnUnlessSwitchedOff_data()
{
    QTest::addColumn<QVariant>("setting");
    QTest::addColumn<bool>("isEnabled");
    QTest::newRow("not set") << QVariant() << true;
    QTest::newRow("on") << QVariant(true) << true;
    QTest::newRow("off") << QVariant(false) << false;
    QTest::newRow("off as text") << QVariant(u"false"_s) << false;
}

void TestPropertiesTraits::verificationIsOnUnlessSwitchedOff()
{
    QFETCH(QVariant, setting);
    QFETCH(bool, isEnabled);
    const as::ScopedOverride chosen(u"MIREL/WorkflowVerificationEnabled"_s, setting);
    QCOMPARE(WflwAdvancedSettings::isWorkflowVerificationEnabled(), isEnabled);
}

ORV_REGISTER_TEST(TestPropertiesTraits)
#include "TestPropertiesTraits.moc"
