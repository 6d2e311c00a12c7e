#include "OrvTest.h"
#include "TableFixture.h"

#include <orv/table_model/TableClipboard.h>

#include <QRandomGenerator>

using namespace orv;
using namespace Qt::StringLiterals;
using TableFixture::rows;

namespace {

struct PasteTable
{
    explicit PasteTable(const QList<TableColumn> &columns = TableFixture::columns())
        : sheet(columns)
    {
        if (sheet.load(TableFixture::peptides()).hasError())
            qFatal("The fixture doesn't load");
        model.setLocale(QLocale::c());
    }

    /// Into columns from \a column on.
    TableClipboard::Outcome paste(int row, int column, const QString &text, QSize selected = {1, 1})
    {
        QList<int> columns;
        for (int i = column; i < sheet.columnCount(); ++i)
            columns.append(i);
        return TableClipboard::paste(model, {row, columns, selected}, text).value();
    }

    TableSheet sheet;
    TableModel model{&sheet};
};

} // namespace

class TestTableClipboard : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void textsAreParsedAsSpreadsheetsDo_data();
    void textsAreParsedAsSpreadsheetsDo();
    void whatIsWrittenIsReadBack_data();
    void whatIsWrittenIsReadBack();
    void randomRowsAreReadBack();
    void aBlockIsOneStep();
    void rowsBelowTheEndAreAdded();
    void raggedRowsLeaveTheirCellsAlone();
    void aHeaderSendsFieldsToItsColumns();
    void oneRowThatReadsLikeAHeaderIsData();
    void oneCellFillsASelection();
    void aBlockIsRepeatedOverASelectionThatItFits();
    void whatHasNoRoomIsTold();
    void readOnlyCellsStay();
    void numbersArePastedInTheLocale();
    void wrongTextsArePastedAndMarked();
    void filteredRowsAreSkipped();
};

void TestTableClipboard::textsAreParsedAsSpreadsheetsDo_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<QStringList>>("parsed");
    const QString e;
    QTest::newRow("nothing") << e << QList<QStringList>{};
    QTest::newRow("one") << u"a"_s << QList<QStringList>{{u"a"_s}};
    QTest::newRow("block") << u"a\tb\nc\td\n"_s << QList<QStringList>{{u"a"_s, u"b"_s}, {u"c"_s, u"d"_s}};
    QTest::newRow("line ends") << u"a\r\nb\rc\n"_s << QList<QStringList>{{u"a"_s}, {u"b"_s}, {u"c"_s}};
    QTest::newRow("ragged") << u"a\n\tb\t\n"_s << QList<QStringList>{{u"a"_s}, {e, u"b"_s, e}};
    QTest::newRow("empty line") << u"a\n\nb"_s << QList<QStringList>{{u"a"_s}, {e}, {u"b"_s}};
    QTest::newRow("quoted") << u"\"a\tb\"\t\"c\nd\""_s << QList<QStringList>{{u"a\tb"_s, u"c\nd"_s}};
    QTest::newRow("quotes inside") << u"\"say \"\"hi\"\"\""_s << QList<QStringList>{{u"say \"hi\""_s}};
    QTest::newRow("inches") << u"5\" column\t\"x"_s << QList<QStringList>{{u"5\" column"_s, u"\"x"_s}};
    QTest::newRow("quote and more") << u"\"a\" b\tc"_s << QList<QStringList>{{u"\"a\" b"_s, u"c"_s}};
}

void TestTableClipboard::textsAreParsedAsSpreadsheetsDo()
{
    QFETCH(QString, text);
    QTEST(TableClipboard::parse(text).toRows(), "parsed");
}

void TestTableClipboard::whatIsWrittenIsReadBack_data()
{
    QTest::addColumn<QList<QStringList>>("rows");
    QTest::addColumn<QString>("text");
    QTest::newRow("block") << QList<QStringList>{{u"a"_s, u"b"_s}, {u"c"_s, u"d"_s}} << u"a\tb\nc\td"_s;
    QTest::newRow("odd fields") << QList<QStringList>{{u"a\tb"_s, u"c\nd"_s, u"\"q"_s, u"5\""_s}}
                                << u"\"a\tb\"\t\"c\nd\"\t\"\"\"q\"\t5\""_s;
    QTest::newRow("one empty") << QList<QStringList>{{QString()}} << u"\n"_s;
}

void TestTableClipboard::whatIsWrittenIsReadBack()
{
    QFETCH(QList<QStringList>, rows);
    QFETCH(QString, text);
    QCOMPARE(TableClipboard::format(rows), text);
    QCOMPARE(TableClipboard::parse(text).toRows(), rows);
}

void TestTableClipboard::randomRowsAreReadBack()
{
    QRandomGenerator random(20240607);
    const QString letters = u"a\"\t\n\r ,"_s;
    for (int round = 0; round < 500; ++round) {
        QList<QStringList> all;
        for (quint32 row = 0; row <= random.bounded(4u); ++row) {
            QStringList fields;
            for (quint32 field = 0; field <= random.bounded(3u); ++field) {
                QString text;
                for (quint32 i = random.bounded(5u); i > 0; --i)
                    text += letters[random.bounded(int(letters.size()))];
                fields.append(text);
            }
            all.append(fields);
        }
        const QString text = TableClipboard::format(all);
        QVERIFY2(TableClipboard::parse(text).toRows() == all, qPrintable(text));
    }
}

void TestTableClipboard::aBlockIsOneStep()
{
    PasteTable t;
    const TableClipboard::Outcome outcome = t.paste(1, 0, u"x\t1\ny\t2\n"_s);
    QCOMPARE(outcome.rows, 2);
    QCOMPARE(t.sheet.texts(1), TableFixture::row("x 1 3 Negative"));
    QCOMPARE(t.sheet.texts(2), TableFixture::row("y 2 1 Positive"));
    QCOMPARE(t.sheet.history()->undoText(), u"paste"_s);
    t.sheet.history()->undo();
    QCOMPARE(t.sheet.allTexts(), TableFixture::peptides());
}

void TestTableClipboard::rowsBelowTheEndAreAdded()
{
    PasteTable t;
    const TableClipboard::Outcome outcome = t.paste(4, 0, u"x\ny\nz"_s);
    QCOMPARE(outcome.newRows, 2);
    QCOMPARE(TableFixture::names(t.sheet), TableFixture::row("alpha beta gamma S10 x y z"));
    QCOMPARE(t.sheet.text(6, 2), u"2");
    t.sheet.history()->undo();
    QCOMPARE(t.sheet.allTexts(), TableFixture::peptides());
}

void TestTableClipboard::raggedRowsLeaveTheirCellsAlone()
{
    PasteTable t;
    t.paste(0, 0, u"x\ny\t7\t3\n"_s);
    QCOMPARE(t.sheet.texts(0), TableFixture::row("x 500.25 2 Positive"));
    QCOMPARE(t.sheet.texts(1), TableFixture::row("y 7 3 Negative"));
}

void TestTableClipboard::aHeaderSendsFieldsToItsColumns()
{
    PasteTable t;
    const TableClipboard::Outcome outcome = t.paste(0, 2, u"Mass (Da)\tname\n1\tx\n2\ty\n"_s);
    QVERIFY(outcome.hadHeader);
    QCOMPARE(t.sheet.texts(0), TableFixture::row("x 1 2 Positive"));
    QCOMPARE(t.sheet.texts(1), TableFixture::row("y 2 3 Negative"));
}

void TestTableClipboard::oneRowThatReadsLikeAHeaderIsData()
{
    PasteTable t;
    QVERIFY(!t.paste(0, 0, u"Mass\n"_s).hadHeader);
    QCOMPARE(t.sheet.text(0, 0), u"Mass");
    QVERIFY(!t.paste(0, 0, u"Mass\tMass\n1\t2\n"_s).hadHeader);
}

void TestTableClipboard::oneCellFillsASelection()
{
    PasteTable t;
    t.paste(1, 1, u"42"_s, {2, 3});
    QCOMPARE(t.sheet.texts(0)[1], u"500.25"_s);
    for (int row = 1; row < 4; ++row)
        QCOMPARE(t.sheet.texts(row).mid(1, 2), QStringList({u"42"_s, u"42"_s}));
    QCOMPARE(t.sheet.text(4, 1), u"");
}

void TestTableClipboard::aBlockIsRepeatedOverASelectionThatItFits()
{
    PasteTable t;
    t.paste(0, 1, u"1\n2"_s, {1, 4});
    QCOMPARE(
        QStringList({t.sheet.texts(0)[1], t.sheet.texts(1)[1], t.sheet.texts(2)[1], t.sheet.texts(3)[1]}),
        TableFixture::row("1 2 1 2"));
    t.paste(0, 1, u"8\n9"_s, {1, 3});
    QCOMPARE(QStringList({t.sheet.texts(0)[1], t.sheet.texts(1)[1], t.sheet.texts(2)[1]}),
             TableFixture::row("8 9 1"));
}

void TestTableClipboard::whatHasNoRoomIsTold()
{
    PasteTable t;
    QCOMPARE(t.paste(0, 3, u"Negative\tx\ty"_s).columnsLeftOut, 2);
    QCOMPARE(t.sheet.text(0, 3), u"Negative");
    QCOMPARE(t.sheet.text(0, 0), u"alpha");
}

void TestTableClipboard::readOnlyCellsStay()
{
    QList<TableColumn> columns = TableFixture::columns();
    columns[1].isReadOnly = true;
    PasteTable t(columns);
    QCOMPARE(t.paste(0, 0, u"x\t1\t5\ny\t2\t6"_s).readOnlyCells, 2);
    QCOMPARE(t.sheet.texts(0), TableFixture::row("x 500.25 5 Positive"));
}

void TestTableClipboard::numbersArePastedInTheLocale()
{
    PasteTable t;
    t.model.setLocale(QLocale(u"de_DE"_s));
    t.paste(0, 1, u"0,435\n1.234,5\n1,234\n12.5"_s);
    QCOMPARE(t.sheet.text(0, 1), u"0.435");
    QCOMPARE(t.sheet.text(1, 1), u"1234.5");
    QCOMPARE(t.sheet.text(2, 1), u"1.234");
    QCOMPARE(t.sheet.text(3, 1), u"12.5");
}

void TestTableClipboard::wrongTextsArePastedAndMarked()
{
    PasteTable t;
    t.paste(0, 1, u"n/a\n1,234"_s);
    QCOMPARE(t.sheet.text(0, 1), u"n/a");
    QCOMPARE(t.sheet.problem(0, 1), u"Is not a number."_s);
    QCOMPARE(t.sheet.text(1, 1), u"1,234");
    QVERIFY(t.sheet.problem(1, 1).startsWith(u"May be 1234 or 1.234"));
}

void TestTableClipboard::filteredRowsAreSkipped()
{
    PasteTable t;
    t.model.setFilter({u"positive"_s});
    t.paste(0, 0, u"x\ny\nz\nnew"_s);
    QCOMPARE(TableFixture::names(t.sheet), TableFixture::row("x beta y S10 z new"));
}

ORV_REGISTER_TEST(TestTableClipboard)

#include "TestTableClipboard.moc"
