#include "WidgetTest.h"

#include <orv/propertyeditor/content/RawCell.h>
#include <orv/propertyeditor/workbench/DocumentState.h>

#include <QJsonArray>
#include <QRandomGenerator>

#include <thread>
#include <vector>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

const QJsonObject kCell{{u"name"_s, u"Step"_s}, {u"type"_s, u"Karvon"_s}, {u"n"_s, 1.5}};
const QByteArray kText(R"({"n":1.5,"name":"Step","type":"Karvon"})");

/// JSON of few keys and values, so that many are alike; the same for the same seed.
class AnyJson
{
public:
    explicit AnyJson(quint32 seed)
        : m_random(seed)
    {}

    QJsonObject object(int depth = 0)
    {
        QJsonObject object;
        for (int i = number(4); i > 0; --i)
            object.insert(QString(QChar(u'a' + number(4))), value(depth + 1));
        return object;
    }
    QJsonValue changed(const QJsonValue &value, int depth = 0)
    {
        if (value.isObject() && number(4) > 0) {
            QJsonObject object = value.toObject();
            const QString key(QChar(u'a' + number(4)));
            object.insert(key,
                          number(5) == 0 ? QJsonValue::Undefined : changed(object.value(key), depth + 1));
            return object;
        }
        if (value.isArray() && number(4) > 0) {
            QJsonArray array = value.toArray();
            const int at = number(int(array.size()) + 1);
            if (number(3) == 0 || at == array.size())
                array.insert(at, this->value(depth + 1));
            else if (number(3) == 0)
                array.removeAt(at);
            else
                array[at] = changed(array.at(at), depth + 1);
            return array;
        }
        return this->value(depth);
    }

private:
    int number(int limit) { return int(m_random.bounded(limit)); }
    QJsonValue value(int depth)
    {
        const int kind = number(depth < 20 ? 7 : 4);
        if (kind == 4)
            return object(depth);
        if (kind > 4) {
            QJsonArray array;
            for (int i = number(4); i > 0; --i)
                array.append(value(depth + 1));
            return array;
        }
        return QJsonArray{QJsonValue::Null, true, number(3), QString(QChar(u'x' + number(2)))}.at(kind);
    }

    QRandomGenerator m_random;
};

DocumentState stateOf(const StateCell &cell)
{
    return {{{u"Tab"_s, {u"Column"_s}, {cell}}}, {}};
}

} // namespace

class StateCellTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void objectsAndTextsAreTheSameCell();
    void cellsAreToldByTheirTexts();
    void entriesHoldWhatIsKnown();
    void noCellHasNoText();
    void severalThreadsReadOneText();
    void changesOfCellsLeadForthAndBack();
    void aChangeHoldsWhatDiffersAlone();
};

void StateCellTest::objectsAndTextsAreTheSameCell()
{
    QCOMPARE(StateCell(kCell).json(), kText);
    QCOMPARE(StateCell(kText).json(), kText);
    QCOMPARE(StateCell(kCell).object(), kCell);
    QCOMPARE(StateCell(kText).object(), kCell);
    QVERIFY(StateCell(kCell) == StateCell(kText));
}

void StateCellTest::cellsAreToldByTheirTexts()
{
    QVERIFY(!(StateCell(QByteArray("{\"n\": 1}")) == StateCell(QJsonObject{{u"n"_s, 1}})));
    QVERIFY(StateCell(QByteArray("no cell")) == StateCell(QByteArray("no cell")));
    QCOMPARE(StateCell(QByteArray("no cell")).object(), QJsonObject());
}

void StateCellTest::entriesHoldWhatIsKnown()
{
    const QVariant entry = StateCell(kCell).toVariant();
    QCOMPARE(entry.metaType(), QMetaType::fromType<RawCell>());
    QCOMPARE(entry.toByteArray(), kText);
    QCOMPARE(StateCell(kText).toVariant(), QVariant(kText));
}

void StateCellTest::noCellHasNoText()
{
    QVERIFY(StateCell().isNull());
    QVERIFY(StateCell().json().isEmpty());
    QVERIFY(StateCell() == StateCell());
    QVERIFY(!(StateCell() == StateCell(kCell)));
    QVERIFY(!StateCell(kCell).isNull());
}

void StateCellTest::severalThreadsReadOneText()
{
    QJsonArray many;
    for (int i = 0; i < 2000; ++i)
        many.append(kCell);
    const StateCell cell(QJsonObject{{u"many"_s, many}});
    std::array<const char *, 4> texts{};
    std::vector<std::thread> readers;
    for (const char *&text : texts)
        readers.emplace_back([&text, cell] { text = cell.json().constData(); });
    for (std::thread &reader : readers)
        reader.join();
    for (const char *text : texts)
        QCOMPARE(static_cast<const void *>(text), static_cast<const void *>(cell.json().constData()));
}

void StateCellTest::changesOfCellsLeadForthAndBack()
{
    using Direction = StateChange::Direction;
    for (quint32 seed = 1; seed <= 3000; ++seed) {
        AnyJson any(seed);
        const QJsonObject before = any.object();
        const QJsonObject after = any.changed(any.changed(before)).toObject();
        for (const bool isText : {false, true}) {
            const DocumentState from = stateOf(StateCell(before));
            const DocumentState to = stateOf(isText ? StateCell(RawCell(after).toJson()) : StateCell(after));
            const StateChange change = StateChange::between(from, to);
            QCOMPARE(change.isEmpty(), before == after);
            QCOMPARE(change.applied(from, Direction::Forth).tabs[0].cells[0].json(),
                     to.tabs[0].cells[0].json());
            QCOMPARE(change.applied(to, Direction::Back).tabs[0].cells[0].json(),
                     from.tabs[0].cells[0].json());
        }
    }
}

void StateCellTest::aChangeHoldsWhatDiffersAlone()
{
    QJsonArray rows;
    for (int i = 0; i < 10000; ++i)
        rows.append(kCell);
    QJsonArray edited = rows;
    edited[5000] = QJsonObject{{u"name"_s, u"Another"_s}};
    const StateChange change = StateChange::between(stateOf(StateCell(QJsonObject{{u"rows"_s, rows}})),
                                                    stateOf(StateCell(QJsonObject{{u"rows"_s, edited}})));
    QVERIFY2(change.heldBytes() < 2000, qPrintable(QString::number(change.heldBytes())));
}

WIDGET_REGISTER_TEST(StateCellTest)
#include "StateCellTest.moc"
