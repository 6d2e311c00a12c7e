#include "LogCapture.h"
#include "OrvTest.h"

#include <orv/chemistry/ChemistryConstants.h>
#include <orv/chemistry/ProteinGenerator.h>
#include <orv/chemistry/ProteinUtils.h>
#include <orv/propertyeditor/content/IntactProteinsTableItem.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>

#include <QJsonArray>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;

namespace {

Chain chain(int number, const QString &name, bool isCustom)
{
    Chain made;
    made.number = number;
    made.id = QString(QChar(u'A' + number - 1));
    made.name = name;
    made.sequence = u"PEPTIDE"_s;
    made.isCustom = isCustom;
    return made;
}

ProteinComplex protein(const QString &name, const QList<int> &chains)
{
    ProteinComplex made;
    made.name = name;
    made.chainNumbers = chains;
    return made;
}

RowNode withoutColumn(RowNode root, const QString &column)
{
    RowNode *chains = root.getChild(root.getColumnIndexFromName(kChains));
    RowNode table;
    if (!chains || !table.deepCopy(chains) || !table.removeColumn(column))
        qFatal("the table of chains has no column to remove");
    *chains = table;
    return root;
}

QJsonObject cellOf(const RowNode &root)
{
    const QJsonObject entry{{u"name"_s, u"IntactProteins"_s},
                            {u"value"_s, PropertyEditorJsonUtils::rowNodeToObject(root)}};
    return {{u"type"_s, u"IntactProteins"_s}, {u"properties"_s, QJsonArray{entry}}};
}

ProteinGenerator::InputOptions optionsOf(const RowNode &root)
{
    const auto options = ProteinGenerator::parseInputOptions(root);
    if (options.hasError())
        qFatal("the table can't be read");
    return *options;
}

MetadataMapping mapping(const QString &attribute, const QString &sequence, MappingTarget target)
{
    MetadataMapping made;
    made.sampleIds = {3, 4};
    made.value.attribute = attribute;
    made.value.value = sequence;
    made.target = target;
    return made;
}

TalvaneMetadataMappingConnection connection(const QString &attribute, const QString &alias)
{
    TalvaneMetadataMappingConnection made;
    made.attribute = attribute;
    made.target = MappingTarget::IntactProteins;
    made.alias = alias;
    return made;
}

} // namespace

class TestIntactProteinsTableItem : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void oldChainsAreMarkedAsCustom();
    void markedChainsStay();
    void aTableWithoutChainsLoads();
    void metadataReplaceChainsFromMetadata();
    void otherTargetsArePassedOver();
    void aSequenceWithoutMassIsKeptAndTold();
    void tablesThatCannotBeReadStay();
};

void TestIntactProteinsTableItem::oldChainsAreMarkedAsCustom()
{
    ProteinGenerator::InputOptions options;
    options.chains = {chain(1, u"Light"_s, false), chain(2, u"Heavy"_s, false)};
    IntactProteinsTableItem item;
    ORV_VERIFY_OK(item.assignFromJson(cellOf(withoutColumn(options.toRowNode(), kisCustom)), {}));
    const RowNode root = item.root();
    const RowNode *chains = root.getChild(root.getColumnIndexFromName(kChains));
    QVERIFY(chains);
    const qsizetype column = chains->getRowDataToStringList().indexOf(kisCustom);
    QVERIFY(column >= 0);
    QCOMPARE(chains->getChildListSize(), 2);
    for (int row = 0; row < 2; ++row)
        QCOMPARE(chains->getChild(row)->data.at(column), QVariant(1));
    QVERIFY(optionsOf(root).chains.constFirst().isCustom);
}

void TestIntactProteinsTableItem::markedChainsStay()
{
    ProteinGenerator::InputOptions options;
    options.chains = {chain(1, u"Light"_s, false), chain(2, u"Heavy"_s, true)};
    IntactProteinsTableItem item;
    ORV_VERIFY_OK(item.assignFromJson(cellOf(options.toRowNode()), {}));
    QCOMPARE(optionsOf(item.root()), optionsOf(options.toRowNode()));
    QCOMPARE(item.toJson(PropertyConversionFlag::KeepPaths), cellOf(options.toRowNode()));
}

void TestIntactProteinsTableItem::aTableWithoutChainsLoads()
{
    IntactProteinsTableItem item;
    RowNode plain;
    plain.addData({u"Name"_s, u"Sequence"_s}, false);
    ORV_VERIFY_OK(item.assignFromJson(cellOf(plain), {}));
    QCOMPARE(item.columnNames(), QStringList({u"Name"_s, u"Sequence"_s}));
    ORV_VERIFY_OK(item.assignFromJson(cellOf(ProteinUtils::defaultInputRowNode()), {}));
}

void TestIntactProteinsTableItem::metadataReplaceChainsFromMetadata()
{
    ProteinGenerator::InputOptions options;
    options.chains = {chain(1, u"Server"_s, false), chain(2, u"Light"_s, true), chain(3, u"Heavy"_s, true)};
    options.proteins = {protein(u"Mixed"_s, {1, 2}), protein(u"Antibody"_s, {2, 3, 3})};
    IntactProteinsTableItem item;
    item.setRoot(options.toRowNode());
    QCOMPARE(int(item.target()), 2);
    item.reloadMetadata({mapping(u"seq"_s, u"ACDK"_s, MappingTarget::IntactProteins)},
                        {connection(u"seq"_s, u"Product"_s)});

    const auto made = optionsOf(item.root());
    QCOMPARE(made.chains.size(), 3);
    QCOMPARE(made.chains.at(0).name, u"Light"_s);
    QCOMPARE(made.chains.at(0).number, 1);
    QCOMPARE(made.chains.at(1).number, 2);
    QCOMPARE(made.chains.at(2).name, u"Product"_s);
    QCOMPARE(made.chains.at(2).sequence, u"ACDK"_s);
    QCOMPARE(made.chains.at(2).number, 3);
    QVERIFY(!made.chains.at(2).isCustom);
    QVERIFY(!made.chains.at(2).id.isEmpty());
    QCOMPARE(made.proteins.size(), 2);
    QCOMPARE(made.proteins.at(0).name, u"Antibody"_s);
    QCOMPARE(made.proteins.at(0).chainNumbers, QList<int>({1, 2, 2}));
    QCOMPARE(made.proteins.at(1).name, u"Product"_s);
    QCOMPARE(made.proteins.at(1).samplesIds, QList<int>({3, 4}));

    // The next metadata take the place of these.
    item.reloadMetadata({}, {});
    QCOMPARE(optionsOf(item.root()).chains.size(), 2);
    QCOMPARE(optionsOf(item.root()).proteins.size(), 1);
}

void TestIntactProteinsTableItem::otherTargetsArePassedOver()
{
    IntactProteinsTableItem item;
    item.setRoot(ProteinUtils::defaultInputRowNode());
    item.reloadMetadata({mapping(u"seq"_s, u"ACDK"_s, MappingTarget::Samples)}, {});
    QVERIFY(optionsOf(item.root()).chains.isEmpty());
}

void TestIntactProteinsTableItem::aSequenceWithoutMassIsKeptAndTold()
{
    const LogCapture log;
    IntactProteinsTableItem item;
    item.setRoot(ProteinUtils::defaultInputRowNode());
    item.reloadMetadata({mapping(u"seq"_s, u"A1"_s, MappingTarget::IntactProteins)}, {});
    const auto made = optionsOf(item.root());
    QCOMPARE(made.chains.size(), 1);
    QCOMPARE(made.chains.constFirst().name, u"seq"_s);
    QVERIFY(!made.chains.constFirst().averageMassDa);
    QCOMPARE(log.warnings().size(), 1);
}

void TestIntactProteinsTableItem::tablesThatCannotBeReadStay()
{
    const LogCapture log;
    ProteinGenerator::InputOptions options;
    options.chains = {chain(1, u"Light"_s, true), chain(1, u"Heavy"_s, true)};
    IntactProteinsTableItem item;
    item.setRoot(options.toRowNode());
    const RowNode before = item.root();
    item.reloadMetadata({mapping(u"seq"_s, u"ACDK"_s, MappingTarget::IntactProteins)}, {});
    QCOMPARE(PropertyEditorJsonUtils::rowNodeToObject(item.root()),
             PropertyEditorJsonUtils::rowNodeToObject(before));
    QVERIFY(log.warnings().constFirst().startsWith(u"The chains of proteins cannot be read:"_s));
}

ORV_REGISTER_TEST(TestIntactProteinsTableItem)
#include "TestIntactProteinsTableItem.moc"
