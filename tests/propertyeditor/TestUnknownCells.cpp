// Cells of types that this version doesn't know are kept, and cost little until somebody looks into them.
#include "Documents.h"
#include "LogCapture.h"
#include "OrvTest.h"

#include <KProperty>
#include <KPropertySet>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>
#include <orv/propertyeditor/content/KeyValueItem.h>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;

class TestUnknownCells : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void lookingIntoThemChangesNothing();
    void theyCanBeEdited();
    void whatIsNotThereIsNotFound();
    void theBaseUrlReachesThem();
    void manyAreLoadedAndWritten();
};

namespace {

QJsonObject novelty(int number)
{
    return {{u"type"_s, u"Novelty"_s},
            {u"name"_s, u"cell %1"_s.arg(number)},
            {u"zoom"_s, u"2"_s},
            {u"properties"_s,
             QJsonArray{
                 QJsonObject{
                     {u"name"_s, u"KarvonCentroidWidthVal"_s}, {u"value"_s, u"0.01"_s}, {u"priority"_s, 1}},
                 QJsonObject{{u"name"_s, u"KarvonLayout"_s}, {u"value"_s, u"a.ini"_s}, {u"priority"_s, 1}}}}};
}

QJsonObject documentOf(int cells)
{
    QJsonArray array;
    for (int i = 0; i < cells; ++i)
        array.append(novelty(i));
    return Documents::document({Documents::tab(u"Tab"_s, {u"A"_s}, array)});
}

KeyValueItem *itemOf(const Content &content, int row)
{
    return qobject_cast<KeyValueItem *>(content.group(0)->subGroup(0)->item(row));
}

void load(Content *content, int cells)
{
    const LogCapture log;
    if (content->assignFromJson(documentOf(cells), ValidationOption::SkipTypeValidation))
        qFatal("The test's document is broken");
}

} // namespace

void TestUnknownCells::lookingIntoThemChangesNothing()
{
    Content content;
    load(&content, 2);
    const QJsonObject before = content.toJsonObject(PropertyConversionFlag::KeepPaths);
    QVERIFY(itemOf(content, 0)->propertySet());
    QCOMPARE(itemOf(content, 0)->keys().size(), 6);
    QCOMPARE(itemOf(content, 0)->value(u"KarvonCentroidWidthVal"_s), QVariant(0.01));
    QCOMPARE(itemOf(content, 0)->value(u":zoom"_s), QVariant(u"2"_s));
    QCOMPARE(content.toJsonObject(PropertyConversionFlag::KeepPaths), before);
    QCOMPARE(Documents::withoutStamps(before)["tabs"_L1], Documents::withoutStamps(documentOf(2))["tabs"_L1]);
}

void TestUnknownCells::theyCanBeEdited()
{
    Content content;
    load(&content, 1);
    QVERIFY(itemOf(content, 0)->setValue(u"KarvonCentroidWidthVal"_s, 0.02));
    QVERIFY(itemOf(content, 0)->insert(u"KarvonCentroidTopk"_s, 5, KProperty::Int));
    QVERIFY(itemOf(content, 0)->remove(u"KarvonLayout"_s));
    const QJsonValue cell =
        content.toJsonObject(PropertyConversionFlag::KeepPaths)["tabs"_L1][0]["cells"_L1][0];
    QCOMPARE(cell["properties"_L1].toArray().size(), 2);
    QCOMPARE(cell["properties"_L1][0]["value"_L1], QJsonValue(u"0.02"_s));
}

void TestUnknownCells::whatIsNotThereIsNotFound()
{
    Content content;
    load(&content, 1);
    QVERIFY(!itemOf(content, 0)->contains(PropertyId::AdvancedConfiguration));
    QVERIFY(!itemOf(content, 0)->value(PropertyId::AdvancedConfiguration).isValid());
    QVERIFY(itemOf(content, 0)->contains(PropertyId::KarvonLayout));
    QVERIFY(itemOf(content, 0)->contains(u":name"_s));
    QVERIFY(!itemOf(content, 0)->contains(u":title"_s));
    QCOMPARE(content.allReferences().size(), 1);
}

void TestUnknownCells::theBaseUrlReachesThem()
{
    Content content;
    load(&content, 1);
    content.setBaseUrl(QUrl(u"file:///data/"_s));
    const QJsonValue cell =
        content.toJsonObject(PropertyConversionFlag::AbsolutePaths)["tabs"_L1][0]["cells"_L1][0];
    QCOMPARE(cell["properties"_L1][1]["value"_L1], QJsonValue(u"/data/a.ini"_s));
}

void TestUnknownCells::manyAreLoadedAndWritten()
{
    constexpr int kMany = 2000;
    Content content;
    load(&content, kMany);
    const LogCapture log;
    const QJsonArray cells =
        content.toJsonObject(PropertyConversionFlag::KeepPaths)["tabs"_L1][0]["cells"_L1].toArray();
    QCOMPARE(cells.size(), kMany);
    QCOMPARE(cells.last()["name"_L1], QJsonValue(u"cell 1999"_s));
    QCOMPARE(log.lines().size(), 0);
}

ORV_REGISTER_TEST(TestUnknownCells)

#include "TestUnknownCells.moc"
