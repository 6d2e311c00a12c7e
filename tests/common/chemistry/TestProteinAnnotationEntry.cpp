#include "OrvTest.h"

#include <orv/chemistry/ProteinAnnotationEntry.h>

#include <random>

using namespace orv;
using namespace Qt::StringLiterals;

class TestProteinAnnotationEntry : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void inventedEntriesReadBackEqual();
    void unknownMembersSurvive();
    void absentMembersHaveTheirDefaults();
    void badMembersAreRefused_data();
    void badMembersAreRefused();
    void aListNamesItsBadElement();
};

void TestProteinAnnotationEntry::inventedEntriesReadBackEqual()
{
    constexpr unsigned kSeed = 20240304;
    std::mt19937 random(kSeed);
    for (int round = 0; round < 50; ++round) {
        QList<ProteinAnnotationEntry> entries;
        for (int i = int(random() % 4); i > 0; --i) {
            const int begin = int(random() % 500) + 1;
            entries.append({QString::number(random(), 36),
                            u"CDR-H%1"_s.arg(i),
                            begin,
                            begin + int(random() % 50),
                            random() % 2 ? u"#ff8000"_s : QString(),
                            {{u"source"_s, int(random() % 9)}}});
        }
        const Result<QList<ProteinAnnotationEntry>> read =
            ProteinAnnotationEntry::listFromJson(ProteinAnnotationEntry::listToJson(entries));
        ORV_VERIFY_OK(read);
        QVERIFY2(*read == entries, qPrintable(u"seed %1, round %2"_s.arg(kSeed).arg(round)));
    }
}

void TestProteinAnnotationEntry::unknownMembersSurvive()
{
    const QByteArray text =
        R"({"begin":31,"colour":"#00ff00","end":35,"name":"CDR-H1","protein":"HC","scheme":[1]})";
    const Result<ProteinAnnotationEntry> entry =
        ProteinAnnotationEntry::fromJson(QJsonDocument::fromJson(text).object());
    ORV_VERIFY_OK(entry);
    QCOMPARE(entry->begin, 31);
    QCOMPARE(QJsonDocument(entry->toJson()).toJson(QJsonDocument::Compact), text);
}

void TestProteinAnnotationEntry::absentMembersHaveTheirDefaults()
{
    const Result<ProteinAnnotationEntry> entry = ProteinAnnotationEntry::fromJson({});
    ORV_VERIFY_OK(entry);
    QCOMPARE(*entry, ProteinAnnotationEntry());
    // One residue, when no end is told.
    QCOMPARE(ProteinAnnotationEntry::fromJson({{u"begin"_s, 7}})->end, 7);
}

void TestProteinAnnotationEntry::badMembersAreRefused_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("begin 0") << QByteArray(R"({"begin":0})");
    QTest::newRow("end before begin") << QByteArray(R"({"begin":5,"end":4})");
    QTest::newRow("half residue") << QByteArray(R"({"begin":1.5})");
    QTest::newRow("number as name") << QByteArray(R"({"name":5})");
}

void TestProteinAnnotationEntry::badMembersAreRefused()
{
    QFETCH(QByteArray, text);
    const Result<ProteinAnnotationEntry> entry =
        ProteinAnnotationEntry::fromJson(QJsonDocument::fromJson(text).object());
    QVERIFY(entry.hasError());
    QCOMPARE(entry.error().code(), ErrorCode::InvalidContent);
}

void TestProteinAnnotationEntry::aListNamesItsBadElement()
{
    const QJsonArray noObject{QJsonObject(), 5};
    const Result<QList<ProteinAnnotationEntry>> first = ProteinAnnotationEntry::listFromJson(noObject);
    QVERIFY(first.hasError());
    QVERIFY(first.error().details().join(u' ').contains(u"annotation 1"_s));
    const QJsonArray badMember{QJsonObject{{u"begin"_s, 0}}};
    const Result<QList<ProteinAnnotationEntry>> second = ProteinAnnotationEntry::listFromJson(badMember);
    QVERIFY(second.hasError());
    QVERIFY(second.error().details().join(u' ').contains(u"annotation 0"_s));
}

ORV_REGISTER_TEST(TestProteinAnnotationEntry)
#include "TestProteinAnnotationEntry.moc"
