#include "OrvTest.h"
#include "TableFixture.h"

#include <orv/table_model/TableClipboard.h>
#include <orv/table_model/TableImport.h>

#include <QHash>
#include <QRandomGenerator>
#include <QSignalSpy>

using namespace orv;
using namespace Qt::StringLiterals;
using TableFixture::rows;

namespace {

TableColumn ruleColumn(const QString &name, TableColumnKind kind = TableColumnKind::Text)
{
    return {.name = name, .title = name, .kind = kind};
}

/// A name that is unique, a number that is unique, and a range.
QList<TableColumn> ruleColumns()
{
    TableColumn name = ruleColumn(u"name"_s);
    name.isUnique = true;
    TableColumn number = ruleColumn(u"number"_s, TableColumnKind::Number);
    number.isUnique = true;
    return {name, number, ruleColumn(u"from"_s, TableColumnKind::Number),
            ruleColumn(u"to"_s, TableColumnKind::Number)};
}

struct RuleSheet : TableSheet
{
    explicit RuleSheet(const QList<QStringList> &rows)
        : TableSheet(ruleColumns())
    {
        setRowRules({TableRules::inOrder(columns(), u"from"_s, u"to"_s)});
        if (load(rows).hasError())
            qFatal("The rows don't load");
    }

    QStringList problems(int column)
    {
        QStringList result;
        for (int row = 0; row < rowCount(); ++row)
            result.append(problem(row, column));
        return result;
    }

    int counted()
    {
        while (!areProblemsCounted())
            countProblems(7);
        return problemCount();
    }
};

/// How many cells should have a problem, counted without an index.
int expectedProblems(const TableSheet &sheet)
{
    QHash<QString, int> names;
    QHash<double, int> numbers;
    for (int row = 0; row < sheet.rowCount(); ++row) {
        ++names[sheet.text(row, 0).toString()];
        if (!sheet.text(row, 1).isEmpty())
            ++numbers[sheet.text(row, 1).toDouble()];
    }
    int problems = 0;
    for (int row = 0; row < sheet.rowCount(); ++row) {
        const bool hasName = !sheet.text(row, 0).isEmpty();
        problems += hasName && names[sheet.text(row, 0).toString()] > 1 ? 1 : 0;
        problems += !sheet.text(row, 1).isEmpty() && numbers[sheet.text(row, 1).toDouble()] > 1 ? 1 : 0;
        const bool hasRange = !sheet.text(row, 2).isEmpty() && !sheet.text(row, 3).isEmpty();
        problems += hasRange && sheet.text(row, 2).toInt() > sheet.text(row, 3).toInt() ? 2 : 0;
    }
    return problems;
}

void editRulesAtRandom(TableSheet &sheet, QRandomGenerator &random)
{
    const auto someRow = [&] { return int(random.bounded(std::max(1, sheet.rowCount()))); };
    const auto someRows = [&] { return QList<int>{someRow(), someRow(), someRow()}; };
    const QString text = random.bounded(4) == 0 ? QString() : QString::number(random.bounded(6));
    switch (random.bounded(8)) {
    case 0:
        sheet.duplicateRows(someRows());
        break;
    case 1:
        sheet.removeRows(someRows());
        break;
    case 2:
        sheet.moveRows(someRows(), someRow());
        break;
    case 3:
        sheet.history()->undo();
        break;
    case 4:
        sheet.history()->redo();
        break;
    case 5: {
        const int row = someRow();
        if (sheet.setCells({{row, 0, text}, {row + 1, 0, text}, {row, 0, u"9"}, {row, 1, text}}, u"s"_s)
                .hasError())
            qFatal("An edit failed");
        break;
    }
    default:
        if (sheet.setText(someRow(), int(random.bounded(4)), text).hasError())
            qFatal("An edit failed");
    }
}

} // namespace

class TestTableRules : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aRuleMarksTheCellsThatItNames();
    void boundsMayBeEqualOrMustDiffer();
    void oneOfSeveralMustBeGiven();
    void theRuleOfAColumnComesFirst();
    void rowsOfARuleAreToldOfWhenACellChanges();
    void aRuleMayLookElsewhere();
    void repeatedValuesNameTheOtherRow();
    void emptyCellsDontRepeat();
    void numbersRepeatByValue();
    void theOtherRowIsToldOf();
    void aTextThatIsTypedIsCheckedBeforehand();
    void rowsThatGoAndComeAreCounted();
    void theFilterKnowsRulesAndRepetitions();
    void problemsAreFoundFromAnywhere();
    void pastedRowsAreChecked();
    void filesAreCheckedAgainstTheTable();
    void manyEqualRowsAreNoSquare();
    void randomEditsCountTheSame_data();
    void randomEditsCountTheSame();
};

void TestTableRules::aRuleMarksTheCellsThatItNames()
{
    RuleSheet sheet(rows({"a 1 5 9", "b 2 9 5", "c 3 - 5", "d 4 5 5"}));
    QCOMPARE(sheet.problems(2), QStringList({{}, u"Must not lie above \"to\"."_s, {}, {}}));
    QCOMPARE(sheet.problems(3), QStringList({{}, u"Must not lie below \"from\"."_s, {}, {}}));
    QCOMPARE(sheet.problems(0), QStringList({{}, {}, {}, {}}));
    QCOMPARE(sheet.counted(), 2);
}

void TestTableRules::boundsMayBeEqualOrMustDiffer()
{
    const TableRowRule rule =
        TableRules::inOrder(ruleColumns(), u"from"_s, u"to"_s, TableRules::Bounds::MustDiffer);
    QCOMPARE(rule({u"", u"", u"5", u"6"}).size(), 0);
    const QList<TableRowProblem> problems = rule({u"", u"", u"5", u"5.0"});
    QCOMPARE(problems.size(), 2);
    QCOMPARE(problems[0].column, 2);
    QCOMPARE(problems[0].reason, u"Must lie below \"to\"."_s);
    QCOMPARE(problems[1].column, 3);
    QCOMPARE(problems[1].reason, u"Must lie above \"from\"."_s);
}

void TestTableRules::oneOfSeveralMustBeGiven()
{
    const TableRowRule rule = TableRules::anyGiven(ruleColumns(), {u"from"_s, u"to"_s});
    QCOMPARE(rule({u"a", u"", u"", u"1"}).size(), 0);
    QCOMPARE(rule({u"a", u"", u"", u""}).size(), 1);
    QCOMPARE(rule({u"a", u"", u"", u""})[0].column, 2);
    QCOMPARE(rule({u"a", u"", u"", u""})[0].reason, u"One of these must be given: from, to."_s);
}

void TestTableRules::theRuleOfAColumnComesFirst()
{
    RuleSheet sheet(rows({"a 1 9 5"}));
    sheet.setRowRules({[](const QList<QStringView> &texts) -> QList<TableRowProblem> {
        return {{2, u"first of %1"_s.arg(texts[0])}, {2, u"second"_s}, {3, {}}, {99, u"nowhere"_s}};
    }});
    QCOMPARE(sheet.problem(0, 2), u"first of a"_s);
    QCOMPARE(sheet.problem(0, 3), QString());
    ORV_VERIFY_OK(sheet.setText(0, 2, u"nine"));
    QCOMPARE(sheet.problem(0, 2), u"Is not a number."_s);
    QCOMPARE(sheet.counted(), 1);
}

void TestTableRules::rowsOfARuleAreToldOfWhenACellChanges()
{
    RuleSheet sheet(rows({"a 1 1 5", "b 2 1 5"}));
    TableModel model(&sheet);
    const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    ORV_VERIFY_OK(sheet.setText(1, 2, u"7"));
    QCOMPARE(changes.size(), 2);
    QCOMPARE(changes[0][0].toModelIndex(), model.index(1, 2));
    QCOMPARE(changes[0][1].toModelIndex(), model.index(1, 2));
    QCOMPARE(changes[1][0].toModelIndex(), model.index(1, 0));
    QCOMPARE(changes[1][1].toModelIndex(), model.index(1, 3));
    QVERIFY(changes[1][2].value<QList<int>>().contains(TableModel::ProblemRole));
    QVERIFY(!changes[1][2].value<QList<int>>().contains(Qt::DisplayRole));
}

void TestTableRules::aRuleMayLookElsewhere()
{
    RuleSheet sheet(rows({"a 1 1 5", "b 2 1 5"}));
    bool isAllowed = true;
    sheet.setRowRules({[&isAllowed](const QList<QStringView> &) {
        return isAllowed ? QList<TableRowProblem>() : QList<TableRowProblem>{{0, u"no"_s}};
    }});
    QCOMPARE(sheet.counted(), 0);
    sheet.removeRows({1});
    isAllowed = false;
    const QSignalSpy told(&sheet, &TableSheet::problemsChanged);
    sheet.checkAnew();
    QCOMPARE(told.size(), 1);
    sheet.history()->undo();
    QCOMPARE(sheet.counted(), 2);
}

void TestTableRules::repeatedValuesNameTheOtherRow()
{
    RuleSheet sheet(rows({"a 1 - -", "b 2 - -", "a 3 - -", "A 4 - -"}));
    QCOMPARE(sheet.problems(0), QStringList({u"Must not repeat; row 3 holds the same."_s,
                                             {},
                                             u"Must not repeat; row 1 holds the same."_s,
                                             {}}));
    sheet.moveRows({2}, 0);
    QCOMPARE(sheet.problem(0, 0), u"Must not repeat; row 2 holds the same."_s);
}

void TestTableRules::emptyCellsDontRepeat()
{
    RuleSheet sheet(rows({"- - - -", "- - - -"}));
    QCOMPARE(sheet.counted(), 0);
}

void TestTableRules::numbersRepeatByValue()
{
    RuleSheet sheet(
        rows({"a 1 - -", "b 1.00 - -", "c 10e-1 - -", "d 0 - -", "e -0.0 - -", "f x - -", "g x - -"}));
    QCOMPARE(
        sheet.problems(1),
        QStringList({u"Must not repeat; row 3 holds the same."_s, u"Must not repeat; row 3 holds the same."_s,
                     u"Must not repeat; row 2 holds the same."_s, u"Must not repeat; row 5 holds the same."_s,
                     u"Must not repeat; row 4 holds the same."_s, u"Is not a number."_s,
                     u"Is not a number."_s}));
}

void TestTableRules::theOtherRowIsToldOf()
{
    RuleSheet sheet(rows({"a 1 - -", "b 2 - -", "c 3 - -"}));
    TableModel model(&sheet);
    QCOMPARE(sheet.counted(), 0);
    const QSignalSpy told(&sheet, &TableSheet::problemsChanged);
    const auto wasTold = [&](int row) {
        return told.constLast()[0].value<QList<quint32>>().contains(sheet.rowId(row));
    };
    ORV_VERIFY_OK(sheet.setText(2, 0, u"a"));
    QVERIFY(wasTold(0));
    QCOMPARE(sheet.counted(), 2);
    ORV_VERIFY_OK(sheet.setText(0, 0, u"z"));
    QVERIFY(wasTold(2));
    QCOMPARE(sheet.counted(), 0);
    sheet.history()->undo();
    QCOMPARE(sheet.counted(), 2);
    sheet.removeRows({0});
    QCOMPARE(sheet.problem(1, 0), QString());
    QCOMPARE(sheet.counted(), 0);
    sheet.history()->undo();
    QCOMPARE(sheet.counted(), 2);
}

void TestTableRules::aTextThatIsTypedIsCheckedBeforehand()
{
    RuleSheet sheet(rows({"a 1 1 5", "b 2 1 5"}));
    QCOMPARE(sheet.problemOf(sheet.rowId(1), 0, u"a"), u"Must not repeat; row 1 holds the same."_s);
    QCOMPARE(sheet.problemOf(sheet.rowId(1), 0, u"b"), QString());
    QCOMPARE(sheet.problemOf(sheet.rowId(1), 2, u"6"), u"Must not lie above \"to\"."_s);
    QCOMPARE(sheet.text(1, 2), u"1");
}

void TestTableRules::rowsThatGoAndComeAreCounted()
{
    RuleSheet sheet(rows({"a 1 - -", "a 2 - -", "b 3 9 1"}));
    QCOMPARE(sheet.counted(), 4);
    sheet.removeRows({0});
    sheet.removeRows({0});
    QCOMPARE(sheet.counted(), 2);
    sheet.history()->undo();
    QCOMPARE(sheet.counted(), 2);
    sheet.history()->undo();
    QCOMPARE(sheet.counted(), 4);
    ORV_VERIFY_OK(sheet.load(rows({"a 1 - -"})));
    QCOMPARE(sheet.counted(), 0);
}

void TestTableRules::theFilterKnowsRulesAndRepetitions()
{
    RuleSheet sheet(rows({"a 1 1 5", "b 2 6 5", "c 3 1 5", "a 4 1 5"}));
    TableModel model(&sheet);
    model.setFilter({{}, true});
    QCOMPARE(TableFixture::names(model), QStringList({u"a"_s, u"b"_s, u"a"_s}));
    model.setHiddenColumns({0});
    model.setFilter({{}, true});
    QCOMPARE(TableFixture::names(model), QStringList({u"b"_s}));
}

void TestTableRules::problemsAreFoundFromAnywhere()
{
    RuleSheet sheet(rows({"a 1 1 5", "b 2 6 5", "c 3 1 5", "a 4 1 5"}));
    TableModel model(&sheet);
    const QList<int> columns = {3, 2, 1, 0};
    const QList<QPoint> problems = {{0, 0}, {3, 1}, {2, 1}, {0, 3}};
    QModelIndex at;
    for (int step = 0; step < 8; ++step) {
        at = model.nextProblem(at, columns, 1);
        QCOMPARE(QPoint(at.column(), at.row()), problems[step % 4]);
    }
    for (int step = 8; step-- > 1;) {
        at = model.nextProblem(at, columns, -1);
        QCOMPARE(QPoint(at.column(), at.row()), problems[(step - 1) % 4]);
    }
    QCOMPARE(model.nextProblem(model.index(2, 1), columns, 1), model.index(3, 0));
    QCOMPARE(model.nextProblem(model.index(2, 1), columns, -1), model.index(1, 2));
    QVERIFY(!model.nextProblem({}, {1}, 1).isValid());
    QVERIFY(!model.nextProblem(model.index(2, 1), {1}, -1).isValid());
}

void TestTableRules::pastedRowsAreChecked()
{
    RuleSheet sheet(rows({"a 1 1 5"}));
    TableModel model(&sheet);
    ORV_VERIFY_OK(TableClipboard::paste(model, {1, {0, 1, 2, 3}, {}}, u"a\t2\t9\t1\nb\t3\t1\t2"_s));
    QCOMPARE(sheet.counted(), 4);
    QCOMPARE(sheet.problem(0, 0), u"Must not repeat; row 2 holds the same."_s);
    sheet.history()->undo();
    QCOMPARE(sheet.counted(), 0);
}

void TestTableRules::filesAreCheckedAgainstTheTable()
{
    RuleSheet sheet(rows({"a 1 1 5", "b 2 1 5"}));
    const QByteArray file = "name,number,from,to\nc,3,1,5\nb,4,1,5\nc,1.0,7,5\nd,5,1,5\n";
    const TableImport import(file, TableImportTarget::of(sheet));
    QStringList told;
    for (const TableImportProblem &problem : import.problems())
        told.append(u"%1 %2 %3: %4"_s.arg(problem.line).arg(problem.column, problem.value, problem.reason));
    QCOMPARE(told, QStringList({u"3 name b: Must not repeat; row 2 of the table holds the same."_s,
                                u"4 from 7: Must not lie above \"to\"."_s,
                                u"4 to 5: Must not lie below \"from\"."_s,
                                u"4 name c: Must not repeat; line 2 holds the same."_s,
                                u"4 number 1.0: Must not repeat; row 1 of the table holds the same."_s}));
    QCOMPARE(import.problem(2, 0), u"Must not repeat; line 2 holds the same."_s);
    QCOMPARE(import.problem(0, 0), QString());
    QCOMPARE(import.rows(TableImport::Faulty::LeaveOut), rows({"c 3 1 5", "d 5 1 5"}));
}

void TestTableRules::manyEqualRowsAreNoSquare()
{
    constexpr int kRows = 100000;
    RuleSheet sheet(QList<QStringList>(kRows, {u"same"_s}));
    QVERIFY(!sheet.problem(7, 0).isEmpty());
    QList<int> odd;
    for (int row = 1; row < kRows; row += 2)
        odd.append(row);
    // A square of these rows would take longer than a test may.
    sheet.removeRows(odd);
    sheet.history()->undo();
    QString pasted = u"same\n"_s.repeated(kRows);
    const TableModel model(&sheet);
    ORV_VERIFY_OK(TableClipboard::paste(model, {kRows, {0}, {}}, pasted));
    while (!sheet.areProblemsCounted())
        sheet.countProblems(10000);
    QCOMPARE(sheet.problemCount(), 2 * kRows);
    sheet.history()->undo();
    while (!sheet.areProblemsCounted())
        sheet.countProblems(10000);
    QCOMPARE(sheet.problemCount(), kRows);
}

void TestTableRules::randomEditsCountTheSame_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 20; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void TestTableRules::randomEditsCountTheSame()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    RuleSheet sheet(rows({"a 1 - -", "b 2 - -", "a 3 9 1", "5 4 1 3"}));
    for (int edit = 0; edit < 150; ++edit) {
        editRulesAtRandom(sheet, random);
        const int expected = expectedProblems(sheet);
        if (random.bounded(3) == 0)
            QCOMPARE(sheet.counted(), expected);
        int found = 0;
        for (int column = 0; column < 4; ++column)
            found += int(sheet.problems(column).filter(u"Must"_s).size());
        QCOMPARE(found, expected);
    }
}

ORV_REGISTER_TEST(TestTableRules)

#include "TestTableRules.moc"
