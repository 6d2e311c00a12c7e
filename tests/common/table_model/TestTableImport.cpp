#include "OrvTest.h"
#include "TableFixture.h"

#include <orv/table_model/TableImport.h>

using namespace orv;
using namespace Qt::StringLiterals;
using TableFixture::rows;
using Faulty = TableImport::Faulty;

class TestTableImport : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void fieldsGoToTheColumnsThatTheHeaderNames();
    void withoutAHeaderFieldsGoByOrder();
    void theMappingCanBeChanged();
    void problemsNameLineColumnAndReason();
    void faultyRecordsAreTakenOrLeftOut();
    void aFaultOfTheFileHasALine();
    void anotherFormatReadsAnew();
    void defaultsFillWhatIsMissing();
    void aRequiredColumnThatNothingGoesToIsTold();
    void shortRecordsAreTold();
    void decimalCommasOfTheFileAreRead();
    void manyProblemsAreCountedAndSomeListed();
    void anEmptyFileHasNothing();
};

void TestTableImport::fieldsGoToTheColumnsThatTheHeaderNames()
{
    const TableImport import("mode,note,NAME\nnegative,hi,x\npositive,ho,y\n"_ba, TableFixture::columns());
    QCOMPARE(import.fieldNames(), QStringList({u"mode"_s, u"note"_s, u"NAME"_s}));
    QCOMPARE(import.mapping(), QList<int>({3, -1, 0}));
    QCOMPARE(import.recordCount(), 2);
    QCOMPARE(import.rows(Faulty::Take), rows({"x - 2 Negative", "y - 2 Positive"}));
    QCOMPARE(import.problemCount(), 0);
}

void TestTableImport::withoutAHeaderFieldsGoByOrder()
{
    const TableImport import("x;1\ny;2\n"_ba, TableFixture::columns());
    QVERIFY(!import.format().hasHeader);
    QCOMPARE(import.fieldNames(), QStringList({u"Column 1"_s, u"Column 2"_s}));
    QCOMPARE(import.mapping(), QList<int>({0, 1}));
    QCOMPARE(import.rows(Faulty::Take), rows({"x 1 2 -", "y 2 2 -"}));
}

void TestTableImport::theMappingCanBeChanged()
{
    TableImport import("x;1\ny;2\n"_ba, TableFixture::columns());
    import.setMapping({0, 2});
    QCOMPARE(import.rows(Faulty::Take), rows({"x - 1 -", "y - 2 -"}));
    import.setMapping({0, 0});
    QCOMPARE(import.mapping(), QList<int>({-1, 0}));
    import.setMapping({});
    QCOMPARE(import.mapping(), QList<int>({-1, -1}));
}

void TestTableImport::problemsNameLineColumnAndReason()
{
    const TableImport import("Name,Mass\na,1\n\"b\nb\",heavy\n\n,3\n"_ba, TableFixture::columns());
    QCOMPARE(import.problemCount(), 2);
    QCOMPARE(import.problems().size(), 2);
    const TableImportProblem mass = import.problems()[0];
    QCOMPARE(mass.line, 3);
    QCOMPARE(mass.record, 1);
    QCOMPARE(mass.field, 1);
    QCOMPARE(mass.column, u"Mass"_s);
    QCOMPARE(mass.value, u"heavy"_s);
    QCOMPARE(mass.reason, u"Is not a number."_s);
    QCOMPARE(import.problems()[1].line, 6);
    QCOMPARE(import.problems()[1].column, u"Name"_s);
    QCOMPARE(import.problems()[1].reason, u"Must not be empty."_s);
    QCOMPARE(import.problem(1, 1), u"Is not a number."_s);
    QCOMPARE(import.problem(0, 1), QString());
}

void TestTableImport::faultyRecordsAreTakenOrLeftOut()
{
    const TableImport import("Name,Mass\na,1\nb,heavy\nc,3\n"_ba, TableFixture::columns());
    QCOMPARE(import.faultyRecordCount(), 1);
    QCOMPARE(import.rows(Faulty::LeaveOut), rows({"a 1 2 -", "c 3 2 -"}));
    QCOMPARE(import.rows(Faulty::Take), rows({"a 1 2 -", "b heavy 2 -", "c 3 2 -"}));
}

void TestTableImport::aFaultOfTheFileHasALine()
{
    const TableImport import("Name,Mass\na,1\n\"b,2\nc,3\n"_ba, TableFixture::columns());
    QVERIFY(import.fault().hasError());
    QCOMPARE(import.fault().errorMessage(), u"A quoted field has no end."_s);
    QCOMPARE(import.fault().details().value(0), u"line 3"_s);
    QCOMPARE(import.recordCount(), 1);
}

void TestTableImport::anotherFormatReadsAnew()
{
    TableImport import("Name,Mass\na,1\n"_ba, TableFixture::columns());
    TableTextFormat format = import.format();
    format.hasHeader = false;
    import.setFormat(format);
    QCOMPARE(import.recordCount(), 2);
    QCOMPARE(import.problemCount(), 1);
    format.separator = ';';
    import.setFormat(format);
    QCOMPARE(import.record(1).fields, QStringList(u"a,1"_s));
    format.encoding = TextEncoding::Utf16LittleEndian;
    import.setFormat(format);
    QCOMPARE(import.fault().errorMessage(), QString());
}

void TestTableImport::defaultsFillWhatIsMissing()
{
    const TableImport import("Name,Charge\na,\nb,4\n"_ba, TableFixture::columns());
    QCOMPARE(import.rows(Faulty::Take), rows({"a - 2 -", "b - 4 -"}));
}

void TestTableImport::aRequiredColumnThatNothingGoesToIsTold()
{
    const TableImport import("Mass,Charge\n1,2\n"_ba, TableFixture::columns());
    QCOMPARE(import.problemCount(), 1);
    QCOMPARE(import.problems()[0].reason, u"No field goes to \"Name\"."_s);
}

void TestTableImport::shortRecordsAreTold()
{
    const TableImport import("Name,Mass,Charge\na,1,2\nb,1\n"_ba, TableFixture::columns());
    QCOMPARE(import.problemCount(), 1);
    QCOMPARE(import.problems()[0].line, 3);
    QCOMPARE(import.problems()[0].reason, u"Has 2 of 3 fields."_s);
}

void TestTableImport::decimalCommasOfTheFileAreRead()
{
    const TableImport import("Name;Mass\na;0,435\nb;1,5\nc;1,234\n"_ba, TableFixture::columns());
    QCOMPARE(import.rows(Faulty::Take), rows({"a 0.435 2 -", "b 1.5 2 -", "c 1.234 2 -"}));
}

void TestTableImport::manyProblemsAreCountedAndSomeListed()
{
    QByteArray text = "Name,Mass\n";
    for (int i = 0; i < 3000; ++i)
        text += "a,heavy\n";
    const TableImport import(text, TableFixture::columns());
    QCOMPARE(import.problemCount(), 3000);
    QCOMPARE(import.faultyRecordCount(), 3000);
    QCOMPARE(import.problems().size(), 1000);
}

void TestTableImport::anEmptyFileHasNothing()
{
    const TableImport import({}, TableFixture::columns());
    QCOMPARE(import.recordCount(), 0);
    QVERIFY(!import.fault().hasError());
    QVERIFY(import.rows(Faulty::Take).isEmpty());
}

ORV_REGISTER_TEST(TestTableImport)

#include "TestTableImport.moc"
