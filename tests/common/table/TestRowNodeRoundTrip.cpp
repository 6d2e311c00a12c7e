#include "CellComparison.h"
#include "OrvTest.h"

#include <orv/table/rn.h>

#include <QJsonDocument>

#include <bit>
#include <cmath>
#include <random>

using namespace orv;
using namespace Qt::StringLiterals;

/// Invented tables survive both roads, whatever they hold.
class TestRowNodeRoundTrip : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void nodesReadBackEqual_data();
    void nodesReadBackEqual();
    void textsReadBackEqual_data() { nodesReadBackEqual_data(); }
    void textsReadBackEqual();
    void numbersReadAsTheParserHasThem_data() { nodesReadBackEqual_data(); }
    void numbersReadAsTheParserHasThem();
};

namespace {

constexpr int kSeeds = 40;

class Inventor
{
public:
    explicit Inventor(unsigned seed)
        : m_random(seed)
    {}

    int below(int bound) { return int(m_random() % unsigned(bound)); }

    QString text()
    {
        static const QList<char16_t> units{u'a', u'Z', u'$',      u'"',   u'\\',  u'/',   u'\n', u'\0',
                                           u' ', u'µ', u'\u20AC', 0xFEFF, 0xD83E, 0xDDEA, 0x7F,  0xFFFF};
        QString text;
        for (int i = below(12); i > 0; --i)
            text.append(QChar(units.at(below(int(units.size())))));
        return below(3) ? text : u"$map"_s.left(below(5)) + u"double"_s.left(below(7));
    }

    double number()
    {
        switch (below(5)) {
        case 0:
            return below(2000) - 1000;
        case 1:
            return std::bit_cast<double>(m_random()); // any bits: NaN and infinities too
        case 2:
            return double(qint64(m_random()));
        case 3:
            return below(100000) / 1000.0;
        default:
            return std::ldexp(1.0, below(2100) - 1070) * (below(2) ? 1 : -1);
        }
    }

    QVariant cell(int depth) // the depth counts down
    {
        switch (below(depth > 0 ? 16 : 12)) {
        case 0:
            return {};
        case 1:
            return below(2) == 0;
        case 2:
            return int(m_random());
        case 3:
            return qlonglong(m_random()) >> below(64);
        case 4:
            return qulonglong(m_random()) >> below(64);
        case 5:
        case 6:
            return number();
        case 7:
            return float(number());
        case 8:
            return QByteArray::number(below(100000)).first(below(2));
        case 9:
            return QDateTime::fromMSecsSinceEpoch(qint64(m_random()) >> (10 + below(50)), Qt::UTC);
        case 10:
            return QStringList{text(), text()}.mid(below(3));
        case 11:
            return text();
        case 12:
            return list(depth - 1);
        case 13:
            return QVariantHash{{text(), cell(depth - 1)}, {text(), cell(depth - 1)}};
        case 14:
            return QVariantMap{{text(), cell(depth - 1)}};
        default:
            return QVariantMap{{text(), cell(depth - 1)}, {text(), cell(depth - 1)}};
        }
    }

    QVariantList list(int depth) // the depth counts down
    {
        QVariantList cells;
        for (int i = below(5); i > 0; --i)
            cells.append(cell(depth));
        return cells;
    }

    RowNode node(int depth) // the depth counts down
    {
        RowNode made(VariantItems(list(3)));
        for (int i = depth > 0 ? below(5) : 0; i > 0; --i)
            *made.addNewChildMatchRootDataSize() = node(depth - 1);
        return made;
    }

private:
    std::mt19937_64 m_random;
};

} // namespace

void TestRowNodeRoundTrip::nodesReadBackEqual_data()
{
    QTest::addColumn<unsigned>("seed");
    for (unsigned seed = 1; seed <= kSeeds; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void TestRowNodeRoundTrip::nodesReadBackEqual()
{
    QFETCH(unsigned, seed);
    Inventor inventor(seed);
    for (int i = 0; i < 20; ++i) {
        const RowNode node = inventor.node(3);
        bool ok = false;
        const QByteArray text = rn::serialize(&node, &ok);
        QVERIFY(ok);
        RowNode readBack;
        QVERIFY2(rn::parse(text, &readBack), text.constData());
        QVERIFY2(CellComparison::isSame(readBack, node), text.constData());

        const QJsonObject object = rn::toObject(&node, &ok);
        QVERIFY(ok);
        QVERIFY2(rn::fromObject(object, &readBack), text.constData());
        QVERIFY2(CellComparison::isSame(readBack, node), text.constData());

        // A document around the table is written and read by others.
        QCOMPARE(QJsonDocument::fromJson(text).object(), object);
        QVERIFY2(rn::parse(QJsonDocument(object).toJson(), &readBack), text.constData());
        QVERIFY2(CellComparison::isSame(readBack, node), text.constData());
    }
}

void TestRowNodeRoundTrip::textsReadBackEqual()
{
    QFETCH(unsigned, seed);
    Inventor inventor(seed);
    for (int i = 0; i < 20; ++i) {
        const RowNode invented = inventor.node(2);
        const QByteArray spaced = QJsonDocument(rn::toObject(&invented)).toJson(QJsonDocument::Indented);
        RowNode node;
        QVERIFY2(rn::parse(spaced, &node), spaced.constData());
        const QByteArray text = rn::serialize(&node);
        RowNode again;
        QVERIFY2(rn::parse(text, &again), text.constData());
        QVERIFY2(CellComparison::isSame(again, node), text.constData());
        QCOMPARE(rn::serialize(&again), text);
    }
}

void TestRowNodeRoundTrip::numbersReadAsTheParserHasThem()
{
    QFETCH(unsigned, seed);
    Inventor inventor(seed);
    for (int i = 0; i < 200; ++i) {
        QByteArray number = inventor.below(2) ? "-" : "";
        number += QByteArray::number(inventor.below(10));
        for (int digits = number.endsWith('0') ? 0 : inventor.below(25); digits > 0; --digits)
            number += char('0' + inventor.below(10));
        if (inventor.below(2)) {
            number += '.';
            for (int digits = 1 + inventor.below(25); digits > 0; --digits)
                number += char('0' + inventor.below(10));
        }
        if (inventor.below(3) == 0)
            number += "e" + QByteArray::number(inventor.below(300) - 150);
        const QByteArray text = "{\"data\":[" + number + "]}";
        RowNode fromText;
        QVERIFY2(rn::parse(text, &fromText), text.constData());
        RowNode fromObject;
        QVERIFY2(rn::fromObject(QJsonDocument::fromJson(text).object(), &fromObject), text.constData());
        QVERIFY2(CellComparison::isSame(fromText, fromObject), text.constData());
    }
}

ORV_REGISTER_TEST(TestRowNodeRoundTrip)

#include "TestRowNodeRoundTrip.moc"
