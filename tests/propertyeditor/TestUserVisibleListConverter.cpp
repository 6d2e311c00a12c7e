#include "LogCapture.h"
#include "OrvTest.h"

#include <orv/propertyeditor/PropertiesCsvReader.h>
#include <orv/propertyeditor/PropertyLists.h>
#include <orv/propertyeditor/UserVisibleListConverter.h>

using namespace orv;
using namespace Qt::StringLiterals;

using Lists = UserVisibleListConverter;

namespace {

QByteArray listText(const QByteArray &members)
{
    return R"({"lists": [{)" + members + "}]}";
}

QByteArray plainList(const QByteArray &ids, const QByteArray &entries)
{
    return listText(R"("ids": [)" + ids +
                    R"(], "kind": "plain", "editable": false, "stringSerialized": false, "entries": [)" +
                    entries + "]");
}

const QByteArray kOneEntry = R"({"text": "A", "value": 0})";

} // namespace

class TestUserVisibleListConverter : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void eachListPropertyHasItsTexts_data();
    void eachListPropertyHasItsTexts();
    void noPropertyHasTwoKindsOfLists();
    void keysAndTextsAreThoseOfTheKind_data();
    void keysAndTextsAreThoseOfTheKind();
    void checkableListsAreNoComboBoxes();
    void flagsAreThoseOfTheList();
    void formerSwitchesBecomeNumbers_data();
    void formerSwitchesBecomeNumbers();
    void enginesGetWhatFilesHold_data();
    void enginesGetWhatFilesHold();
    void malformedListsAreRefused_data();
    void malformedListsAreRefused();
    void listsOfAnotherTextAreRead();
};

void TestUserVisibleListConverter::eachListPropertyHasItsTexts_data()
{
    QTest::addColumn<int>("number");
    for (int number = 0; number < kPropertyCount; ++number)
        QTest::addRow("%d", number) << number;
}

void TestUserVisibleListConverter::eachListPropertyHasItsTexts()
{
    QFETCH(int, number);
    const auto id = PropertyId(number);
    const QString typeName = PropertiesCsvReader::instance().typeName(id);
    QStringList keys{u"rest"_s};
    QStringList texts{u"rest"_s};
    const bool hasList = Lists::keysAndValuesForList(id, &keys, &texts);
    QCOMPARE(keys.size(), texts.size());
    QCOMPARE(hasList, !keys.isEmpty());
    QCOMPARE(QSet<QString>(keys.begin(), keys.end()).size(), keys.size());
    if (typeName == u"list"_s)
        QVERIFY(hasList);
    else if (typeName != u"int"_s)
        QVERIFY(!hasList);
    QCOMPARE(!Lists::valuesForCheckableList(id).isEmpty(), typeName == u"CheckableList"_s);
    if (Lists::isEditableList(id) || Lists::isStringSerializableList(id))
        QVERIFY(hasList);
}

void TestUserVisibleListConverter::noPropertyHasTwoKindsOfLists()
{
    for (int number = 0; number < kPropertyCount; ++number) {
        const auto id = PropertyId(number);
        const int kinds = Lists::listItemsMap().contains(id) + Lists::associativeListItemsMap().contains(id) +
                          Lists::associativeStringListItemsMap().contains(id) +
                          !Lists::valuesForCheckableList(id).isEmpty();
        QVERIFY2(kinds <= 1, qPrintable(QString::number(number)));
    }
}

void TestUserVisibleListConverter::keysAndTextsAreThoseOfTheKind_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("texts by position")
        << 30 << QStringList{u"Da"_s, u"ppm"_s} << QStringList{u"Da"_s, u"ppm"_s};
    QTest::newRow("numbers that begin at 1")
        << 90 << QStringList{u"1"_s, u"2"_s} << QStringList{u"Version 1"_s, u"Version 2"_s};
    QTest::newRow("keys") << 306 << QStringList{u"Standard"_s, u"Fast"_s}
                          << QStringList{u"Standard"_s, u"Fast"_s};
    QTest::newRow("no list") << 0 << QStringList() << QStringList();
    QTest::newRow("no property") << -1 << QStringList() << QStringList();
}

void TestUserVisibleListConverter::keysAndTextsAreThoseOfTheKind()
{
    QFETCH(int, number);
    QFETCH(QStringList, keys);
    QFETCH(QStringList, texts);
    QStringList foundKeys{u"rest"_s};
    QStringList foundTexts{u"rest"_s};
    QCOMPARE(Lists::keysAndValuesForList(PropertyId(number), &foundKeys, &foundTexts), !keys.isEmpty());
    QCOMPARE(foundKeys, keys);
    QCOMPARE(foundTexts, texts);
}

void TestUserVisibleListConverter::checkableListsAreNoComboBoxes()
{
    constexpr auto id = PropertyId::KarvonNglycanMotifLetters;
    QCOMPARE(Lists::valuesForCheckableList(id), QStringList({u"S"_s, u"T"_s, u"C"_s}));
    QVERIFY(Lists::valuesForCheckableList(PropertyId::NoProperty).isEmpty());
    QVERIFY(!Lists::listItemsMap().contains(id));
}

void TestUserVisibleListConverter::flagsAreThoseOfTheList()
{
    QVERIFY(Lists::isEditableList(PropertyId(130)));
    QVERIFY(!Lists::isEditableList(PropertyId(181)));
    QVERIFY(!Lists::isEditableList(PropertyId::NoProperty));
    for (int number : {61, 130, 181, 182, 196, 306})
        QVERIFY(Lists::isStringSerializableList(PropertyId(number)));
    for (int number : {-1, 0, 30, 167, 220})
        QVERIFY(!Lists::isStringSerializableList(PropertyId(number)));
}

void TestUserVisibleListConverter::formerSwitchesBecomeNumbers_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariant>("number");
    QTest::newRow("true") << QVariant(true) << QVariant(1);
    QTest::newRow("false") << QVariant(false) << QVariant(0);
    QTest::newRow("true as text") << QVariant(u"true"_s) << QVariant(1);
    QTest::newRow("false as text") << QVariant(u"False"_s) << QVariant(0);
    QTest::newRow("a number") << QVariant(7) << QVariant(7);
    QTest::newRow("a number as text") << QVariant(u"1"_s) << QVariant(u"1"_s);
    QTest::newRow("nothing") << QVariant() << QVariant();
}

void TestUserVisibleListConverter::formerSwitchesBecomeNumbers()
{
    QFETCH(QVariant, value);
    QFETCH(QVariant, number);
    const auto &converters = Lists::associativeListWithBoolBackwardsCompatibility();
    const QList<PropertyId> formerSwitches = {PropertyId::KarvonRalmixSqliteEnable, PropertyId(167)};
    QCOMPARE(converters.keys(), formerSwitches);
    for (const auto &convert : converters)
        QCOMPARE(convert(value), number);
}

void TestUserVisibleListConverter::enginesGetWhatFilesHold_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariant>("real");
    const auto row = [](const char *name, int number, const QVariant &value, const QVariant &real) {
        QTest::newRow(name) << number << value << real;
    };
    row("position of a text", 30, u"ppm"_s, 1);
    row("position of a position", 30, 1, 1);
    row("position of an unknown text", 30, u"PPM"_s, u"PPM"_s);
    row("number of a text", 90, u"Version 2"_s, 2);
    row("number of a number as text", 90, u"2"_s, 2);
    row("number of a number", 90, 2, 2);
    row("number of an unknown text", 90, u"Version 3"_s, u"Version 3"_s);
    row("number of a former switch", 37, true, 1);
    row("key of a text", 236, u"Total area"_s, u"TotalArea"_s);
    row("key of a key", 236, u"TotalArea"_s, u"TotalArea"_s);
    row("text of a text", 196, u"2% FDR"_s, u"2% FDR"_s);
    row("text of a position", 196, 2, u"2% FDR"_s);
    row("text of a position past the end", 196, 5, 5);
    row("text of a negative position", 196, -1, -1);
    row("text that the list doesn't know", 61, u"433.5"_s, u"433.5"_s);
    row("checked texts", 70, QStringList{u"S"_s}, QStringList{u"S"_s});
    row("no list", 0, u"ppm"_s, u"ppm"_s);
    row("no property", -1, 4.5, 4.5);
    row("nothing", 30, QVariant(), QVariant());
}

void TestUserVisibleListConverter::enginesGetWhatFilesHold()
{
    QFETCH(int, number);
    QFETCH(QVariant, value);
    QFETCH(QVariant, real);
    const QVariant found = Lists::realListValue(PropertyId(number), value);
    QCOMPARE(found, real);
    QCOMPARE(found.typeId(), real.typeId());
}

void TestUserVisibleListConverter::malformedListsAreRefused_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("fault");
    const auto row = [](const char *name, const QByteArray &text, const QString &fault) {
        QTest::newRow(name) << text << fault;
    };
    const QByteArray flags = R"("editable": false, "stringSerialized": false, "entries": [)";
    const QByteArray head = R"("ids": [1], "kind": )";
    row("nothing", "", u"JSON"_s);
    row("no lists", "{}", u"\"lists\""_s);
    row("a list that is a number", R"({"lists": [1]})", u"\"kind\""_s);
    row("an unknown kind", listText(head + R"("tree", )" + flags + kOneEntry + "]"), u"\"tree\""_s);
    row("no ids", listText(R"("kind": "plain", )" + flags + kOneEntry + "]"), u"\"ids\""_s);
    row("an id that is no property", plainList(QByteArray::number(kPropertyCount), kOneEntry),
        u"number of a property"_s);
    row("an id that is a text", plainList(R"("1")", kOneEntry), u"number of a property"_s);
    row("an id twice", plainList("1, 1", kOneEntry), u"property 1 has two lists"_s);
    row("no entries", plainList("1", ""), u"empty"_s);
    row("an entry without a text", plainList("1", R"({"value": 0})"), u"\"text\""_s);
    row("a text twice", plainList("1", kOneEntry + ", " + kOneEntry), u"\"A\" is given twice"_s);
    row("an entry without a value", plainList("1", R"({"text": "A"})"), u"\"value\""_s);
    row("a value that is no integer", plainList("1", R"({"text": "A", "value": 0.5})"), u"\"value\""_s);
    row("a value that is not the position", plainList("1", R"({"text": "A", "value": 1})"), u"position 0"_s);
    row("a number twice",
        listText(head + R"("associativeInteger", )" + flags + kOneEntry + R"(, {"text": "B", "value": 0}])"),
        u"value 0 is given twice"_s);
    row("an entry without a key", listText(head + R"("associativeKey", )" + flags + kOneEntry + "]"),
        u"\"key\""_s);
    row("a key twice",
        listText(head + R"("associativeKey", )" + flags +
                 R"({"text": "A", "key": "k"}, {"text": "B", "key": "k"}])"),
        u"key \"k\" is given twice"_s);
    row("a flag that is a number",
        listText(head + R"("plain", "editable": 1, "stringSerialized": false, "entries": [)" + kOneEntry +
                 "]"),
        u"\"editable\""_s);
    row("a former switch without a number",
        listText(head + R"("plain", "booleans": {"true": 1}, )" + flags + kOneEntry + "]"), u"\"false\""_s);
}

void TestUserVisibleListConverter::malformedListsAreRefused()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, fault);
    const LogCapture log;
    const Result<PropertyLists> lists = PropertyLists::fromJson(text);
    QVERIFY(lists.hasError());
    QCOMPARE(lists.error().code(), ErrorCode::InvalidContent);
    if (text.contains('['))
        QCOMPARE(lists.error().details().value(0), u"list 1 of the file"_s);
    if (!text.isEmpty())
        QVERIFY2(lists.error().errorMessage().contains(fault), OrvTests::describe(lists).constData());
}

void TestUserVisibleListConverter::listsOfAnotherTextAreRead()
{
    const Result<PropertyLists> lists = PropertyLists::fromJson(plainList("1, 3", kOneEntry));
    ORV_VERIFY_OK(lists);
    QVERIFY(lists->contains(PropertyId(3)));
    QVERIFY(!lists->contains(PropertyId(2)));
    QCOMPARE(lists->plain.value(PropertyId(1)), QStringList(u"A"_s));
    QVERIFY(lists->editable.isEmpty());
    QVERIFY(lists->numberOfFormerSwitch.isEmpty());
}

ORV_REGISTER_TEST(TestUserVisibleListConverter)
#include "TestUserVisibleListConverter.moc"
