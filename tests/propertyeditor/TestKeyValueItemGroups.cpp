#include "LogCapture.h"
#include "OrvTest.h"

#include <orv/propertyeditor/content/KeyValueItem.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QSignalSpy>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;

namespace {

/// An item with the properties a to f, in the groups of these captions.
std::unique_ptr<KeyValueItem> grouped(const QStringList &captions)
{
    auto item = std::make_unique<KeyValueItem>(BaseItemType::Karvon);
    const Error error = item->assignFromJson({{u"type"_s, u"Karvon"_s}, {u"properties"_s, QJsonArray()}}, {});
    if (error.hasError())
        qFatal("an empty cell doesn't load");
    item->remove(QStringList({u":type"_s, u":metadata"_s}));
    for (int i = 0; i < captions.size(); ++i)
        item->insert(QString(QChar(u'a' + i)), captions.at(i), i, item->intType());
    return item;
}

QString order(const KeyValueItem &item)
{
    QStringList entries;
    for (const QString &key : item.keys())
        entries.append(key + u'@' + item.group(key));
    return entries.join(u' ');
}

} // namespace

class TestKeyValueItemGroups : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void groupsHaveNameAndCaption();
    void captionsChange();
    void aPropertyMovesToTheEndOfAnotherGroup();
    void noKeyStandsTwice();
    void whatIsSetIsStoredExactly();
    void aListenerThatPutsTheKeyBackWins();
    void aListenerThatLoadsAnotherCellWins();
    void movesThatMakeNoSenseAreRefused_data();
    void movesThatMakeNoSenseAreRefused();
    void noPropertyTakesTheNameOfAnother();
    void aGroupGoesWithItsProperties();
    void groupsMove_data();
    void groupsMove();
};

void TestKeyValueItemGroups::groupsHaveNameAndCaption()
{
    const auto item = grouped({u"Instrument Parameters"_s, u"Other"_s, u"instrument parameters"_s});
    QCOMPARE(item->group(u"a"_s), u"instrument parameters"_s);
    QCOMPARE(item->groupCaption(u"c"_s), u"Instrument Parameters"_s);
    QCOMPARE(item->groupNames(),
             (QList<QByteArray>{QByteArray("instrument parameters"), QByteArray("other")}));
    QVERIFY(item->hasGroup(u"other"_s));
    QVERIFY(!item->hasGroup(u"Other"_s));
    QCOMPARE(item->properties("instrument parameters"),
             (QList<QByteArray>{QByteArray("a"), QByteArray("c")}));
    QCOMPARE(item->properties("missing"), QList<QByteArray>());
}

void TestKeyValueItemGroups::captionsChange()
{
    const auto item = grouped({u"One"_s});
    QVERIFY(item->setGroupCaption(u"one"_s, u"Uno"_s));
    QCOMPARE(item->groupCaption(u"a"_s), u"Uno"_s);
    KeyValueItem empty(BaseItemType::Karvon);
    QVERIFY(!empty.setGroupCaption(u"one"_s, u"Uno"_s));
}

void TestKeyValueItemGroups::aPropertyMovesToTheEndOfAnotherGroup()
{
    const auto item = grouped({u"One"_s, u"One"_s, u"Two"_s});
    QVERIFY(item->setOption(u"a"_s, "priority", 2));
    QSignalSpy removed(item.get(), &KeyValueItem::removed);
    QSignalSpy counts(item.get(), &KeyValueItem::countChanged);
    QSignalSpy moved(item.get(), &KeyValueItem::groupChanged);
    QVERIFY(item->setGroup(u"a"_s, u"Two"_s));
    QCOMPARE(order(*item), u"b@one c@two a@two"_s);
    QCOMPARE(item->option(u"a"_s, "priority"), QVariant(2));
    QCOMPARE(removed.count(), 1);
    QCOMPARE(counts.count(), 1);
    QCOMPARE(moved.count(), 1);
    QCOMPARE(moved.constFirst(), (QVariantList{u"a"_s, u"Two"_s, u"one"_s}));
}

void TestKeyValueItemGroups::noKeyStandsTwice()
{
    const auto item = grouped({u"One"_s, u"Two"_s});
    const LogCapture log;
    for (const QString &taken : {u"b"_s, u"B"_s, QString()}) {
        QVERIFY(!item->replace(u"a"_s, taken, 5, item->intType()));
        QCOMPARE(order(*item), u"a@one b@two"_s);
    }
    QCOMPARE(log.warnings().size(), 3);
    QVERIFY(log.warnings().first().contains(u"Cannot give \"a\" the name of \"b\" which is there"_s));

    // Also where the set doesn't find the name, since the property has it from another replacement.
    QVERIFY(item->replace(u"a"_s, u"fresh"_s, 5, item->intType()));
    QVERIFY(!item->replace(u"b"_s, u"FRESH"_s, 6, item->intType()));
    QVERIFY(!item->insert(u"fresh"_s, 7, item->intType()));
    QCOMPARE(item->keys(), (QStringList{u"fresh"_s, u"b"_s}));
    QVERIFY(item->replace(u"a"_s, u"fresh"_s, 8, item->intType()));
    QVERIFY(item->replace(u"b"_s, u"b"_s, 9, item->intType()));
    QCOMPARE(item->value(u"a"_s), QVariant(8));
    QCOMPARE(item->value(u"b"_s), QVariant(9));
}

void TestKeyValueItemGroups::whatIsSetIsStoredExactly()
{
    const auto item = grouped({u"One"_s});
    QVERIFY(item->insert(u"width"_s, 0.01, item->doubleType()));
    QVERIFY(item->setOption(u"width"_s, "precision", 2));
    QVERIFY(item->setValue(u"width"_s, 0.01004));
    QCOMPARE(item->value(u"width"_s), QVariant(0.01004));
    QVERIFY(item->insert(u"text"_s, u"300"_s, item->stringType()));
    QVERIFY(item->setValue(u"text"_s, 300));
    QCOMPARE(item->value(u"text"_s).typeId(), int(QMetaType::Int));
    QCOMPARE(item->KeyValueItem::type(u"text"_s), 2);
}

void TestKeyValueItemGroups::aListenerThatPutsTheKeyBackWins()
{
    const auto item = grouped({u"One"_s, u"Two"_s});
    const QSignalSpy moved(item.get(), &KeyValueItem::groupChanged);
    connect(item.get(), &KeyValueItem::removed, this,
            [&item](const QString &key) { item->insert(key, u"One"_s, 99, item->intType(), {}); });
    const LogCapture log;
    QVERIFY(!item->setGroup(u"a"_s, u"Two"_s));
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(log.warnings().first().contains(u"Cannot move the property"_s));
    QVERIFY(moved.isEmpty());
    QCOMPARE(order(*item), u"b@two a@one"_s);
    QCOMPARE(item->value(u"a"_s), QVariant(99));
}

void TestKeyValueItemGroups::aListenerThatLoadsAnotherCellWins()
{
    const auto item = grouped({u"One"_s, u"Two"_s});
    connect(item.get(), &KeyValueItem::removed, this, [&item] {
        const QJsonObject other{{u"type"_s, u"Karvon"_s}, {u"properties"_s, QJsonArray()}};
        QVERIFY(!item->assignFromJson(other, {}));
    });
    const LogCapture log;
    QVERIFY(!item->setGroup(u"a"_s, u"Two"_s));
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(!item->contains(u"a"_s));
    QVERIFY(!item->contains(u"b"_s));
}

void TestKeyValueItemGroups::movesThatMakeNoSenseAreRefused_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("warning");
    QTest::newRow("missing key") << u"x"_s << u"Two"_s << u"Cannot update the non-existing key \"x\""_s;
    QTest::newRow("empty group") << u"a"_s << u""_s << u"Cannot move the property \"a\" to an empty group"_s;
    QTest::newRow("same group") << u"a"_s << u"one"_s
                                << u"Cannot move the property \"a\" to the same group"_s;
    QTest::newRow("same group by caption")
        << u"a"_s << u"One"_s << u"Cannot move the property \"a\" to the same group"_s;
}

void TestKeyValueItemGroups::movesThatMakeNoSenseAreRefused()
{
    QFETCH(QString, key);
    QFETCH(QString, group);
    QFETCH(QString, warning);
    const auto item = grouped({u"One"_s, u"Two"_s});
    QSignalSpy removed(item.get(), &KeyValueItem::removed);
    const LogCapture log;
    QVERIFY(!item->setGroup(key, group));
    QCOMPARE(log.warnings(), QStringList(warning));
    QCOMPARE(removed.count(), 0);
    QCOMPARE(order(*item), u"a@one b@two"_s);
}

void TestKeyValueItemGroups::noPropertyTakesTheNameOfAnother()
{
    const LogCapture log;
    const auto item = grouped({u"One"_s, u"One"_s});
    QVERIFY(!item->replace(u"a"_s, u"b"_s, 5, item->intType()));
    QCOMPARE(order(*item), u"a@one b@one"_s);
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(item->replace(u"a"_s, u"A"_s, 5, item->intType()));
    QVERIFY(item->replace(u"a"_s, u"c"_s, 5, item->intType()));
}

void TestKeyValueItemGroups::aGroupGoesWithItsProperties()
{
    const auto item = grouped({u"One"_s, u"Two"_s, u"One"_s});
    QSignalSpy removed(item.get(), &KeyValueItem::removed);
    QVERIFY(item->removeGroup(u"one"_s));
    QCOMPARE(removed.count(), 2);
    QCOMPARE(order(*item), u"b@two"_s);
    QVERIFY(item->removeGroup(u"missing"_s));
    QCOMPARE(removed.count(), 2);
}

void TestKeyValueItemGroups::groupsMove_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("expected");
    QTest::newRow("last behind first") << u"Three"_s << u"one"_s << u"a@one c@three b@two"_s;
    QTest::newRow("unknown place means the front") << u"Three"_s << u"missing"_s << u"c@three a@one b@two"_s;
    QTest::newRow("already there") << u"Two"_s << u"one"_s << u"a@one b@two c@three"_s;
    QTest::newRow("unknown group") << u"Four"_s << u"one"_s << u"a@one b@two c@three"_s;
    QTest::newRow("behind the last, which stands before")
        << u"One"_s << u"three"_s << u"a@one b@two c@three"_s;
}

void TestKeyValueItemGroups::groupsMove()
{
    QFETCH(QString, group);
    QFETCH(QString, after);
    QFETCH(QString, expected);
    const auto item = grouped({u"One"_s, u"Two"_s, u"Three"_s});
    QSignalSpy removed(item.get(), &KeyValueItem::removed);
    QSignalSpy counts(item.get(), &KeyValueItem::countChanged);
    item->moveGroup(group, after);
    QCOMPARE(order(*item), expected);
    QCOMPARE(removed.count() + counts.count(), 0);
    QCOMPARE(item->groupCaption(u"b"_s), u"Two"_s);
}

ORV_REGISTER_TEST(TestKeyValueItemGroups)
#include "TestKeyValueItemGroups.moc"
