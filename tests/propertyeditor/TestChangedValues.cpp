// Values that read as others than are stored are told, old and new.
#include "LogCapture.h"
#include "OrvTest.h"

#include <KPropertySet>
#include <orv/core/LossObserver.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertySetCreator.h>

#include <QJsonArray>
#include <QJsonObject>

#include <memory>

using namespace orv;
using namespace Qt::StringLiterals;

class TestChangedValues : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void changedValuesAreTold_data();
    void changedValuesAreTold();
    void keptValuesAreNot_data();
    void keptValuesAreNot();
    void oddMembersAreTold_data();
    void oddMembersAreTold();
};

namespace {

/// A setting whose list is one of numbers with texts.
constexpr int kNumbered = 37;
/// One with a list of texts to check.
constexpr int kCheckable = 70;

QList<Loss> lossesOf(const QJsonObject &entry)
{
    const LogCapture log;
    LossCollector losses;
    const QJsonObject cell{{u"type"_s, u"Karvon"_s}, {u"properties"_s, QJsonArray{entry}}};
    const auto set =
        PropertySetCreator::objectToPropertySet(cell, {}, PropertyEditor::LoadContext(&losses, u"/cell"_s));
    const std::unique_ptr<KPropertySet> owned(set.hasError() ? nullptr : *set);
    return losses.losses();
}

QJsonObject changedEntry(int number, const QJsonValue &value)
{
    return {{u"name"_s, PropertiesNames::internalNameForType(PropertyId(number))}, {u"value"_s, value}};
}

} // namespace

void TestChangedValues::changedValuesAreTold_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QJsonValue>("stored");
    QTest::addColumn<QJsonValue>("read");

    const auto row = [](const char *name, int number, const QJsonValue &stored, const QJsonValue &read) {
        QTest::newRow(name) << number << stored << read;
    };
    row("int beyond its range", 29, 3e10, 2147483647);
    row("int with a fraction", 29, 5.7, 5);
    row("int as text", 29, u"5"_s, 0);
    row("switch of no word", 1, u"1,5"_s, u"false"_s);
    row("switch with a blank", 1, u"true "_s, u"false"_s);
    row("switch of a list", 1, QJsonArray{1}, u"false"_s);
    row("text that is a number", 0, 5, QString());
    row("checked texts that are numbers", kCheckable, QJsonArray{1}, QJsonArray{QString()});
    row("number of a list as words", kNumbered, u"Version 2"_s, 0);
    row("number of a list with a fraction", kNumbered, 1.5, 2);
    row("object as text that loses an escape", 67, uR"({"modifications":"D:\Data"})"_s,
        QJsonObject{{u"modifications"_s, u"D:Data"_s}});
    row("object that is a number", 67, 5, QJsonObject());
}

void TestChangedValues::changedValuesAreTold()
{
    QFETCH(int, number);
    QFETCH(QJsonValue, stored);
    QFETCH(QJsonValue, read);
    const QList<Loss> losses = lossesOf(changedEntry(number, stored));
    QCOMPARE(losses.size(), 1);
    const Loss &loss = losses.constFirst();
    QCOMPARE(loss.path, u"/cell/properties/0/value"_s);
    QVERIFY(loss.isChange());
    QCOMPARE(loss.stored, stored);
    QCOMPARE(loss.read, read);
    QVERIFY(!loss.why.isEmpty());
}

void TestChangedValues::keptValuesAreNot_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QJsonValue>("stored");

    const auto row = [](const char *name, int number, const QJsonValue &stored) {
        QTest::newRow(name) << number << stored;
    };
    row("int", 29, 5);
    row("int null", 29, QJsonValue());
    row("double as text", 2, u"0.5"_s);
    row("double as number", 2, 0.5);
    row("switch as text", 1, u"TRUE"_s);
    row("switch as number", 1, 1);
    row("switch as number in text", 1, u"0"_s);
    row("switch", 1, false);
    row("text", 0, u"a"_s);
    row("position of a list", 44, 1);
    row("number of a list", kNumbered, 1);
    row("number of a list in text", kNumbered, u"1"_s);
    row("object", 67, QJsonObject{{u"modifications"_s, u"m"_s}});
    row("object as text", 67, uR"({"modifications":"D:\\Data"})"_s);
    row("reference", 60, u"relative/layout.ini"_s);
    row("empty reference", 60, QString());
}

void TestChangedValues::keptValuesAreNot()
{
    QFETCH(int, number);
    QFETCH(QJsonValue, stored);
    const QList<Loss> losses = lossesOf(changedEntry(number, stored));
    QVERIFY2(losses.isEmpty(), losses.isEmpty() ? "" : qPrintable(losses.constFirst().why));
}

void TestChangedValues::oddMembersAreTold_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("stored");
    QTest::addColumn<QJsonValue>("read");
    QTest::newRow("group") << u"group"_s << QJsonValue(5) << QJsonValue(QString());
    QTest::newRow("priority in words") << u"priority"_s << QJsonValue(u"1"_s) << QJsonValue(1);
    QTest::newRow("priority with a fraction") << u"priority"_s << QJsonValue(1.5) << QJsonValue(1);
}

void TestChangedValues::oddMembersAreTold()
{
    QFETCH(QString, key);
    QFETCH(QJsonValue, stored);
    QFETCH(QJsonValue, read);
    QJsonObject object = changedEntry(29, 5);
    object.insert(key, stored);
    const QList<Loss> losses = lossesOf(object);
    QCOMPARE(losses.size(), 1);
    QCOMPARE(losses.constFirst().path, u"/cell/properties/0/"_s + key);
    QCOMPARE(losses.constFirst().stored, stored);
    QCOMPARE(losses.constFirst().read, read);
}

ORV_REGISTER_TEST(TestChangedValues)

#include "TestChangedValues.moc"
