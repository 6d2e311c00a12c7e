#include "OrvTest.h"

#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/CellTypes.h>
#include <orv/propertyeditor/content/KeyValueItem.h>

using namespace orv;
using namespace orv::PropertyEditor;

class TestCellTypes : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyTypeHasItsRow();
    void aNumberThatIsNoTypeHasNone_data();
    void aNumberThatIsNoTypeHasNone();
    void documentsComeInTheOrderOfEngines();
    void documentsHoldSettingsAndYieldFiles();
    void projectsAreDocumentsAndTheImportOfResults();
    void applicationsThatRunEverythingChooseNothing();
};

void TestCellTypes::everyTypeHasItsRow()
{
    const QList<BaseItemType> types = BaseItem::typeNameMap().keys();
    for (const BaseItemType type : types) {
        const CellType *row = CellTypes::find(type);
        QVERIFY(row);
        QCOMPARE(row->type, type);
        const std::unique_ptr<BaseItem> item = row->create(type);
        QVERIFY(item);
        QCOMPARE(item->type(), type);
        QCOMPARE(qobject_cast<KeyValueItem *>(item.get()) != nullptr, row->holdsSettings);
    }
}

void TestCellTypes::aNumberThatIsNoTypeHasNone_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("below") << -1;
    QTest::newRow("above") << int(BaseItem::typeNameMap().size());
}

void TestCellTypes::aNumberThatIsNoTypeHasNone()
{
    QFETCH(int, number);
    QVERIFY(!CellTypes::find(BaseItemType(number)));
    QVERIFY(!CellTypes::isDocument(BaseItemType(number)));
}

void TestCellTypes::documentsComeInTheOrderOfEngines()
{
    using enum ORV_QEnumsBaseItemType::BaseItemType;
    QCOMPARE(CellTypes::documents(), QList<BaseItemType>({Dravik, Senthia, Karvon, Preview, Intact, Oligo,
                                                          Ostrale, MultiDocReport, Trenq, TrenqPreview}));
}

void TestCellTypes::documentsHoldSettingsAndYieldFiles()
{
    QSet<int> ranks;
    for (const BaseItemType type : CellTypes::documents()) {
        const CellType *row = CellTypes::find(type);
        QVERIFY(row->holdsSettings);
        QVERIFY(row->document->result != FileTypes::Invalid);
        QVERIFY(!ranks.contains(row->document->rank));
        ranks.insert(row->document->rank);
    }
}

void TestCellTypes::projectsAreDocumentsAndTheImportOfResults()
{
    QSet<BaseItemType> others = CellTypes::projects();
    for (const BaseItemType type : CellTypes::documents())
        QVERIFY(others.remove(type));
    QCOMPARE(others, QSet<BaseItemType>{BaseItemType::CaldrinDIA});
}

void TestCellTypes::applicationsThatRunEverythingChooseNothing()
{
    QVERIFY(CellTypes::keptBy(ApplicationType::Mirel).isEmpty());
    QVERIFY(CellTypes::keptBy(ApplicationType(32)).isEmpty());
    QVERIFY(CellTypes::keptBy(ApplicationType(-1)).isEmpty());
    QCOMPARE(CellTypes::keptBy(ApplicationType::MultiDocReport),
             (QSet<BaseItemType>{BaseItemType::Samples, BaseItemType::MultiDocReport}));
}

ORV_REGISTER_TEST(TestCellTypes)

#include "TestCellTypes.moc"
