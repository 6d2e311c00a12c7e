#include "OrvTest.h"
#include "TestData.h"

#include <orv/propertyeditor/AllowedProperties.h>
#include <orv/propertyeditor/PropertiesCsvReader.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMetaEnum>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

QSet<PropertyId> idsOf(const QList<int> &numbers)
{
    QSet<PropertyId> ids;
    for (int number : numbers)
        ids.insert(PropertyId(number));
    return ids;
}

} // namespace

class TestAllowedProperties : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyTypeOfCellHasProperties_data();
    void everyTypeOfCellHasProperties();
    void anUnknownTypeHasNone();
    void tablesHoldWhatBelongsToThem_data();
    void tablesHoldWhatBelongsToThem();
    void bothPreviewsShareOneSet();
    void whatUpgradesInsertIsAllowed_data();
    void whatUpgradesInsertIsAllowed();
    void examplesHoldAllowedPropertiesOnly_data();
    void examplesHoldAllowedPropertiesOnly();
};

void TestAllowedProperties::everyTypeOfCellHasProperties_data()
{
    QTest::addColumn<int>("type");
    const auto types = QMetaEnum::fromType<BaseItemType>();
    for (int i = 0; i < types.keyCount(); ++i) {
        if (types.value(i) != BaseItemType::Unknown)
            QTest::newRow(types.key(i)) << types.value(i);
    }
}

void TestAllowedProperties::everyTypeOfCellHasProperties()
{
    QFETCH(int, type);
    const QSet<PropertyId> &ids = allowedProperties(BaseItemType(type));
    QVERIFY(!ids.isEmpty());
    for (PropertyId id : ids)
        QVERIFY(!PropertiesCsvReader::instance().internalNameV2(id).isEmpty());
}

void TestAllowedProperties::anUnknownTypeHasNone()
{
    QVERIFY(allowedProperties(BaseItemType::Unknown).isEmpty());
    QVERIFY(allowedProperties(BaseItemType(1000)).isEmpty());
    QVERIFY(allowedProperties(BaseItemType(-1)).isEmpty());
}

void TestAllowedProperties::tablesHoldWhatBelongsToThem_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QList<int>>("numbers");
    const auto row = [](const char *name, int type, const QList<int> &numbers) {
        QTest::newRow(name) << type << numbers;
    };
    row("Database", 4, {268});
    row("DetachedGlycans", 5, {129});
    row("Disulfide", 6, {131});
    row("GlycanOptions", 7, {164});
    row("IntactOptions", 9, {170});
    row("OligoOptions", 11, {225});
    row("OligoMasses", 12, {207, 210, 224, 286});
    row("Isotope", 13, {202});
    row("Masses", 14, {207, 210});
    row("MultiDocReport", 15, {264});
    row("Proteins", 16, {253});
    row("IntactProteins", 18, {171});
    row("OligoMolecules", 19, {226});
    row("Samples", 21, {265});
    row("SamplesProteins", 22, {267});
}

void TestAllowedProperties::tablesHoldWhatBelongsToThem()
{
    QFETCH(int, type);
    QFETCH(QList<int>, numbers);
    QCOMPARE(allowedProperties(BaseItemType(type)), idsOf(numbers));
}

void TestAllowedProperties::bothPreviewsShareOneSet()
{
    QCOMPARE(allowedProperties(BaseItemType::Preview), allowedProperties(BaseItemType::TrenqPreview));
}

void TestAllowedProperties::whatUpgradesInsertIsAllowed_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QList<int>>("numbers");
    QTest::newRow("Karvon") << int(BaseItemType::Karvon) << QList<int>{33, 59, 67, 68, 70, 83, 136, 264};
    QTest::newRow("Senthia") << int(BaseItemType::Senthia)
                             << QList<int>{0,   1,   2,   137, 138, 139, 167, 169,
                                           201, 227, 271, 285, 290, 291, 306};
    QTest::newRow("Trenq") << int(BaseItemType::Trenq) << QList<int>{0, 1, 2, 209, 227, 257, 258, 261, 285};
    QTest::newRow("Dravik") << int(BaseItemType::Dravik) << QList<int>{168, 169, 201};
    QTest::newRow("Intact") << int(BaseItemType::Intact) << QList<int>{0, 4, 264};
    QTest::newRow("Oligo") << int(BaseItemType::Oligo) << QList<int>{0};
    QTest::newRow("CaldrinDIA") << int(BaseItemType::CaldrinDIA) << QList<int>{58, 181, 182, 196};
}

void TestAllowedProperties::whatUpgradesInsertIsAllowed()
{
    QFETCH(int, type);
    QFETCH(QList<int>, numbers);
    const QSet<PropertyId> &ids = allowedProperties(BaseItemType(type));
    for (int number : numbers)
        QVERIFY2(ids.contains(PropertyId(number)), qPrintable(QString::number(number)));
}

void TestAllowedProperties::examplesHoldAllowedPropertiesOnly_data()
{
    QTest::addColumn<QString>("path");
    const QDir folder(TestData::examplePath(u"workflows"_s));
    const QStringList names = folder.entryList({u"*.wflw"_s});
    QVERIFY(!names.isEmpty());
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << folder.filePath(name);
}

void TestAllowedProperties::examplesHoldAllowedPropertiesOnly()
{
    QFETCH(QString, path);
    const QJsonObject document = QJsonDocument::fromJson(TestData::read(path)).object();
    const auto types = QMetaEnum::fromType<BaseItemType>();
    int properties = 0;
    for (const QJsonValue tab : document["tabs"_L1].toArray()) {
        for (const QJsonValue cell : tab["cells"_L1].toArray()) {
            const int type = types.keyToValue(cell["type"_L1].toString().toLatin1().constData());
            for (const QJsonValue property : cell["properties"_L1].toArray()) {
                const QString name = property["name"_L1].toString();
                const PropertyId id = PropertiesCsvReader::instance().findPropertyForName(name);
                QVERIFY2(allowedProperties(BaseItemType(type)).contains(id), qPrintable(name));
                ++properties;
            }
        }
    }
    QVERIFY(properties > 0);
}

ORV_REGISTER_TEST(TestAllowedProperties)
#include "TestAllowedProperties.moc"
