#include "OrvTest.h"

#include <orv/table/VariantItems.h>

using namespace orv;
using namespace Qt::StringLiterals;

class TestVariantItems : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aDefaultOneIsEmpty();
    void itemsKeepTheirOrderAndType();
    void resizingFillsWithNullAndCuts();
    void copiesAreIndependent();
    void namesAreFoundByTheirWholeText_data();
    void namesAreFoundByTheirWholeText();
    void otherNamesAreNotFound_data();
    void otherNamesAreNotFound();
    void theLastOfTwoItemsIsFound();
    void itemsAreInsertedAndRemoved();
    void whereThereIsNoItemReadsInvalid();
    void textsAreThoseOfTheItems();
    void equalItemsInAnotherOrderDiffer();
};

namespace {

VariantItems mixed()
{
    return {u"Name"_s, 7, u"name"_s, QVariant(), u"Name"_s, 1.5, QByteArray("bytes")};
}

} // namespace

void TestVariantItems::aDefaultOneIsEmpty()
{
    VariantItems items;
    QVERIFY(items.isEmpty());
    QCOMPARE(items.size(), 0);
    QVERIFY(items.begin() == items.end());
    QVERIFY(items.toStringList().isEmpty());
    QCOMPARE(items, VariantItems(QList<QVariant>()));
}

void TestVariantItems::itemsKeepTheirOrderAndType()
{
    VariantItems items;
    items.reserve(3);
    items.append(u"a"_s);
    items.append(2);
    items.append(QVariant());
    QCOMPARE(items.size(), 3);
    QCOMPARE(items.at(0), QVariant(u"a"_s));
    QCOMPARE(items.at(1).typeId(), int(QMetaType::Int));
    QVERIFY(items.at(2).isNull());
    items[1] = 3.5;
    QCOMPARE(std::as_const(items)[1], QVariant(3.5));
    qsizetype count = 0;
    for (const QVariant &item : items)
        QCOMPARE(item, items.at(count++));
    QCOMPARE(count, 3);
}

void TestVariantItems::resizingFillsWithNullAndCuts()
{
    VariantItems items{1, 2, 3};
    items.resize(5);
    QCOMPARE(items.size(), 5);
    QVERIFY(!items.at(3).isValid() && !items.at(4).isValid());
    items.resize(1);
    QCOMPARE(items, VariantItems({1}));
    items.clear();
    QVERIFY(items.isEmpty());
}

void TestVariantItems::copiesAreIndependent()
{
    const VariantItems original{1, 2};
    VariantItems copy = original;
    copy[0] = 9;
    copy.append(3);
    QCOMPARE(original, VariantItems({1, 2}));
    QCOMPARE(copy, VariantItems({9, 2, 3}));
}

void TestVariantItems::namesAreFoundByTheirWholeText_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<qsizetype>("index");

    QTest::newRow("the first of two") << u"Name"_s << qsizetype(0);
    QTest::newRow("a number by its text") << u"7"_s << qsizetype(1);
    QTest::newRow("case counts") << u"name"_s << qsizetype(2);
    QTest::newRow("null reads as empty") << u""_s << qsizetype(3);
    QTest::newRow("double") << u"1.5"_s << qsizetype(5);
    QTest::newRow("bytes") << u"bytes"_s << qsizetype(6);
}

void TestVariantItems::namesAreFoundByTheirWholeText()
{
    QFETCH(QString, name);
    QVERIFY(mixed().contains(name));
    QTEST(mixed().indexOf(name), "index");
}

void TestVariantItems::otherNamesAreNotFound_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("beginning") << u"Nam"_s;
    QTest::newRow("longer") << u"Name "_s;
    QTest::newRow("upper case") << u"NAME"_s;
    QTest::newRow("another form of the number") << u"7.0"_s;
}

void TestVariantItems::otherNamesAreNotFound()
{
    QFETCH(QString, name);
    QVERIFY(!mixed().contains(name));
    QCOMPARE(mixed().indexOf(name), qsizetype(-1));
    QVERIFY(!VariantItems().contains(name));
}

void TestVariantItems::theLastOfTwoItemsIsFound()
{
    QCOMPARE(mixed().lastIndexOf(u"Name"_s), qsizetype(4));
    QCOMPARE(mixed().lastIndexOf(u"7"_s), qsizetype(1));
    QCOMPARE(mixed().lastIndexOf(u"NAME"_s), qsizetype(-1));
    QCOMPARE(VariantItems().lastIndexOf(QString()), qsizetype(-1));
}

void TestVariantItems::itemsAreInsertedAndRemoved()
{
    VariantItems items{1, 3};
    items.insert(1, 2);
    items.insert(3, 4);
    QCOMPARE(items, VariantItems({1, 2, 3, 4}));
    items.removeAt(0);
    QCOMPARE(items, VariantItems({2, 3, 4}));
    items.append(items);
    QCOMPARE(items, VariantItems({2, 3, 4, 2, 3, 4}));
}

void TestVariantItems::whereThereIsNoItemReadsInvalid()
{
    QCOMPARE(mixed().value(1), QVariant(7));
    QVERIFY(!mixed().value(-1).isValid());
    QVERIFY(!mixed().value(7).isValid());
}

void TestVariantItems::textsAreThoseOfTheItems()
{
    QCOMPARE(mixed().toStringList(),
             QStringList({u"Name"_s, u"7"_s, u"name"_s, QString(), u"Name"_s, u"1.5"_s, u"bytes"_s}));
}

void TestVariantItems::equalItemsInAnotherOrderDiffer()
{
    QVERIFY(!(VariantItems{1, 2} == VariantItems{2, 1}));
    QVERIFY(!(VariantItems{1} == VariantItems{1, QVariant()}));
}

ORV_REGISTER_TEST(TestVariantItems)

#include "TestVariantItems.moc"
