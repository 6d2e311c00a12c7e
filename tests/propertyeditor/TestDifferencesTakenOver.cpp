#include "Documents.h"
#include "OrvTest.h"
#include "TestData.h"

#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/workflow/WorkflowDifferences.h>

#include <QDir>
#include <QRandomGenerator>

#include <algorithm>

using namespace orv;
using namespace Qt::StringLiterals;

/// What becomes of a document that gets some of the differences to another one.
class TestDifferencesTakenOver : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void oneDifferenceIsTakenOver_data();
    void oneDifferenceIsTakenOver();
    void noneIsTheDocumentItself();
    void allOfThemMakeTheOtherDocument_data();
    void allOfThemMakeTheOtherDocument();
    void randomDocumentsBecomeEachOther_data();
    void randomDocumentsBecomeEachOther();
    void oneLeavesTheOthers_data();
    void oneLeavesTheOthers();
    void whatBelongsTogetherIsTakenTogether_data();
    void whatBelongsTogetherIsTakenTogether();
    void stampsOfTheLeftDocumentStay();
    void whatIsBelowASettingIsTold();
    void longTablesAreTakenOver();
    void namesAreMadeDifferent();
};

namespace {

QJsonObject parsed(const char *json)
{
    return Documents::parse(QByteArray(json).replace('\'', '"'));
}

QJsonObject oneCell(const QByteArray &cell)
{
    return Documents::document({Documents::tab(u"T"_s, {u"C"_s}, {parsed(cell.constData())})});
}

QStringList pathsBetween(const QJsonObject &left, const QJsonObject &right, bool strict = false)
{
    QStringList paths;
    for (const WorkflowDifference &difference : WorkflowDifferences::between(left, right, strict))
        paths.append(u"%1 %2"_s.arg(QString::number(int(difference.kind)), difference.path));
    return paths;
}

QSet<qsizetype> all(const QJsonObject &left, const QJsonObject &right, bool strict)
{
    QSet<qsizetype> numbers;
    const qsizetype count = WorkflowDifferences::between(left, right, strict).size();
    for (qsizetype i = 0; i < count; ++i)
        numbers.insert(i);
    return numbers;
}

QByteArray textOf(const QJsonObject &document)
{
    return QJsonDocument(document).toJson(QJsonDocument::Compact);
}

/// Documents that differ in a bit of everything, the same for the same seed.
class RandomDocument
{
public:
    explicit RandomDocument(quint32 seed)
        : m_random(seed)
    {}

    QJsonObject make()
    {
        QJsonArray tabs;
        for (const QString &name : names(4))
            tabs.append(tab(name));
        QJsonObject document = Documents::document(tabs);
        if (chance())
            document.insert(u"more"_s, value(2));
        document.insert(u"metadata"_s, u"{\"name\": \"%1\", \"x\": %2}"_s.arg(word()).arg(number()));
        return document;
    }

private:
    int number(int bound = 3) { return m_random.bounded(bound); }
    bool chance() { return number(2) == 0; }
    QString word() { return QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s, u""_s}.at(number(5)); }

    /// Some of them twice, in any order.
    QStringList names(int most)
    {
        QStringList list;
        for (int i = 0, count = number(most + 1); i < count; ++i)
            list.append(word());
        return list;
    }

    QJsonObject tab(const QString &name)
    {
        const QStringList columns = names(4);
        const int rows = number(8) == 0 ? 2 : 1;
        QJsonArray cells;
        for (qsizetype i = 0; i < columns.size() * rows; ++i)
            cells.append(cell());
        if (number(12) == 0)
            cells.append(cell());
        QJsonObject tab = Documents::tab(name, columns, cells);
        if (chance())
            tab.insert(u"own"_s, value(1));
        return tab;
    }

    QJsonValue cell()
    {
        if (number(12) == 0)
            return number();
        QJsonArray settings;
        const QStringList ids{u"KarvonCentroidTopk"_s, u"Samples"_s, u"DatabaseFile"_s,
                              u"SequenceDatabases"_s,  u"Own"_s,     u"MassTable"_s};
        for (int i = 0, count = number(6); i < count; ++i) {
            QJsonObject setting{{u"name"_s, ids.at(number(int(ids.size())))}, {u"value"_s, value(3)}};
            if (chance())
                setting.insert(u"priority"_s, number());
            settings.append(number(15) == 0 ? QJsonValue(number()) : QJsonValue(setting));
        }
        return QJsonObject{{u"type"_s, chance() ? u"Karvon"_s : u"Masses"_s},
                           {u"properties"_s, settings},
                           {u"metadata"_s, u"{\"user\": \"%1\"}"_s.arg(word())}};
    }

    QJsonValue value(int depth)
    {
        switch (number(depth > 0 ? 7 : 3)) {
        case 0:
            return number();
        case 1:
            return word();
        case 2:
            return chance() ? QJsonValue(0.1 * number()) : QJsonValue(chance());
        case 3:
            return QJsonObject{{word(), value(depth - 1)}, {u"k"_s, value(depth - 1)}};
        case 4:
            return namedList(depth - 1);
        case 5:
            return numberedList(depth - 1);
        default:
            return table(depth - 1);
        }
    }

    QJsonArray namedList(int depth)
    {
        QJsonArray list;
        for (const QString &name : names(4))
            list.append(QJsonObject{{u"SampleName"_s, name}, {u"Id"_s, number()}, {u"v"_s, value(depth)}});
        return list;
    }

    QJsonArray numberedList(int depth)
    {
        QJsonArray list;
        for (int i = 0, count = number(4); i < count; ++i)
            list.append(QJsonObject{{chance() ? u"name"_s : u"x"_s, value(depth)}});
        return list;
    }

    QJsonObject table(int depth)
    {
        QJsonArray header;
        for (const QString &name : number(3) == 0 ? names(3) : QStringList{u"Name"_s, u"Mass"_s})
            header.append(name);
        QJsonArray rows;
        for (int i = 0, count = number(4); i < count; ++i) {
            QJsonArray data;
            for (int j = 0, width = int(header.size()) + (number(5) == 0 ? 1 : 0); j < width; ++j)
                data.append(number());
            QJsonArray children;
            if (depth > 0 && number(4) == 0)
                children.append(table(depth - 1));
            rows.append(QJsonObject{{u"data"_s, data}, {u"children"_s, children}});
        }
        return {{u"data"_s, header}, {u"children"_s, rows}};
    }

    QRandomGenerator m_random;
};

QList<std::pair<QString, QJsonObject>> examples()
{
    QList<std::pair<QString, QJsonObject>> list;
    const QDir folder(TestData::examplePath(u"workflows"_s));
    for (const QString &file : folder.entryList({u"*.wflw"_s}))
        list.append({file, Documents::parse(TestData::read(folder.filePath(file)))});
    return list;
}

void addPairs()
{
    QTest::addColumn<QJsonObject>("left");
    QTest::addColumn<QJsonObject>("right");
}

const char kMasses[] =
    "{'type': 'Masses', 'x': 1, 'properties': [{'name': 'MassTable', 'value': {'data': ['Name', 'Mass'],"
    " 'children': [{'data': ['water', 18.0], 'children': []}, {'data': ['salt', 58], 'children': []}]}}]}";
const char kKarvon[] =
    "{'type': 'Karvon', 'properties': [{'name': 'KarvonCentroidTopk', 'value': 4, 'own': 1},"
    " {'name': 'Samples', 'value': 'a'}]}";

QByteArray changed(QByteArray text, const char *from, const char *to)
{
    if (!text.contains(from))
        qFatal("The test replaces nothing: %s", from);
    return text.replace(from, to);
}

} // namespace

void TestDifferencesTakenOver::oneDifferenceIsTakenOver_data()
{
    QTest::addColumn<QByteArray>("left");
    QTest::addColumn<QByteArray>("right");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("merged");
    const QByteArray karvon(kKarvon);
    const QByteArray masses(kMasses);
    QTest::newRow("the value of a setting, beside members unknown to us")
        << karvon << changed(changed(karvon, "'value': 4", "'value': 5"), "'a'", "'b'")
        << u"T / C / row 0 / KarvonCentroidTopk"_s << changed(karvon, "'value': 4", "'value': 5");
    QTest::newRow("a setting that is added")
        << QByteArray("{'type': 'Karvon', 'properties': [{'name': 'Samples', 'value': 'b'}]}") << karvon
        << u"T / C / row 0 / KarvonCentroidTopk"_s << changed(karvon, "'a'", "'b'");
    QTest::newRow("a setting that goes")
        << karvon << QByteArray("{'type': 'Karvon', 'properties': [{'name': 'Samples', 'value': 'b'}]}")
        << u"T / C / row 0 / KarvonCentroidTopk"_s
        << QByteArray("{'type': 'Karvon', 'properties': [{'name': 'Samples', 'value': 'a'}]}");
    QTest::newRow("an entry of a table")
        << masses << changed(changed(masses, "58", "59"), "'water'", "'Water'")
        << u"T / C / row 0 / MassTable / row 1 / Mass"_s << changed(masses, "58", "59");
    QTest::newRow("a row of a table")
        << masses
        << changed(changed(masses, ", {'data': ['salt', 58], 'children': []}", ""), "'x': 1", "'x': 2")
        << u"T / C / row 0 / MassTable / row 1"_s
        << changed(masses, ", {'data': ['salt', 58], 'children': []}", "");
    QTest::newRow("another order")
        << karvon
        << QByteArray("{'type': 'Karvon', 'properties': [{'name': 'Samples', 'value': 'b'}, {'name':"
                      " 'KarvonCentroidTopk', 'value': 4, 'own': 1}]}")
        << u"T / C / row 0 / order of settings"_s
        << QByteArray("{'type': 'Karvon', 'properties': [{'name': 'Samples', 'value': 'a'}, {'name':"
                      " 'KarvonCentroidTopk', 'value': 4, 'own': 1}]}");
}

void TestDifferencesTakenOver::oneDifferenceIsTakenOver()
{
    QFETCH(const QByteArray, left);
    QFETCH(const QByteArray, right);
    QFETCH(const QString, path);
    QFETCH(const QByteArray, merged);
    const auto differences = WorkflowDifferences::between(oneCell(left), oneCell(right), false);
    QVERIFY(differences.size() > 1);
    const auto found = std::ranges::find(differences, path, &WorkflowDifference::path);
    QVERIFY(found != differences.cend());
    QCOMPARE(textOf(WorkflowDifferences::takenOver(oneCell(left), oneCell(right),
                                                   {found - differences.cbegin()}, false)),
             textOf(oneCell(merged)));
}

void TestDifferencesTakenOver::noneIsTheDocumentItself()
{
    const auto documents = examples();
    QVERIFY(documents.size() > 5);
    for (const auto &[name, document] : documents) {
        for (const bool strict : {false, true}) {
            const QJsonObject merged =
                WorkflowDifferences::takenOver(document, documents.first().second, {-1}, strict);
            QVERIFY2(textOf(merged) == textOf(document), qPrintable(name));
        }
    }
}

void TestDifferencesTakenOver::allOfThemMakeTheOtherDocument_data()
{
    addPairs();
    for (const auto &[leftName, left] : examples()) {
        for (const auto &[rightName, right] : examples())
            QTest::addRow("%s, %s", qPrintable(leftName), qPrintable(rightName)) << left << right;
    }
}

void TestDifferencesTakenOver::allOfThemMakeTheOtherDocument()
{
    QFETCH(const QJsonObject, left);
    QFETCH(const QJsonObject, right);
    for (const bool strict : {false, true}) {
        const QJsonObject merged =
            WorkflowDifferences::takenOver(left, right, all(left, right, strict), strict);
        QCOMPARE(pathsBetween(merged, right, strict), QStringList());
        QVERIFY(PropertyEditorJsonUtils::compareWorkflows(merged, right, strict));
    }
}

void TestDifferencesTakenOver::randomDocumentsBecomeEachOther_data()
{
    addPairs();
    for (quint32 seed = 1; seed <= 200; ++seed)
        QTest::addRow("seed %u", seed) << RandomDocument(seed).make() << RandomDocument(seed + 7919).make();
}

void TestDifferencesTakenOver::randomDocumentsBecomeEachOther()
{
    allOfThemMakeTheOtherDocument();
    QFETCH(const QJsonObject, left);
    QFETCH(const QJsonObject, right);
    QCOMPARE(textOf(WorkflowDifferences::takenOver(left, right, {-1}, false)), textOf(left));
    QCOMPARE(textOf(WorkflowDifferences::takenOver(left, right, {-1}, true)), textOf(left));
}

void TestDifferencesTakenOver::oneLeavesTheOthers_data()
{
    addPairs();
    for (quint32 seed = 1; seed <= 120; ++seed)
        QTest::addRow("seed %u", seed) << RandomDocument(seed).make() << RandomDocument(seed + 104729).make();
    const auto documents = examples();
    for (qsizetype i = 1; i < documents.size(); ++i)
        QTest::newRow(qPrintable(documents.at(i).first))
            << documents.at(i).second << documents.at(i - 1).second;
}

void TestDifferencesTakenOver::oneLeavesTheOthers()
{
    QFETCH(const QJsonObject, left);
    QFETCH(const QJsonObject, right);
    for (const bool strict : {false, true}) {
        const auto differences = WorkflowDifferences::between(left, right, strict);
        for (qsizetype i = 0; i < differences.size(); ++i) {
            QStringList others;
            for (qsizetype j = 0; j < differences.size(); ++j) {
                const bool isTaken = i == j || (differences.at(i).together != WorkflowDifference::kAlone &&
                                                differences.at(i).together == differences.at(j).together);
                if (!isTaken)
                    others.append(
                        u"%1 %2"_s.arg(QString::number(int(differences.at(j).kind)), differences.at(j).path));
            }
            QStringList found =
                pathsBetween(WorkflowDifferences::takenOver(left, right, {i}, strict), right, strict);
            // What is taken over stands elsewhere in the order.
            found.sort();
            others.sort();
            QVERIFY2(found == others, qPrintable(differences.at(i).path + u'\n' + found.join(u'\n') +
                                                 u"\n--\n"_s + others.join(u'\n')));
        }
    }
}

void TestDifferencesTakenOver::whatBelongsTogetherIsTakenTogether_data()
{
    QTest::addColumn<QByteArray>("left");
    QTest::addColumn<QByteArray>("right");
    QTest::addColumn<int>("units");
    const QByteArray masses(kMasses);
    const QByteArray short1 = changed(masses, ", {'data': ['salt', 58], 'children': []}", "");
    const QByteArray none = changed(short1, "{'data': ['water', 18.0], 'children': []}", "");
    QTest::newRow("rows at the end of a table") << none << masses << 1;
    QTest::newRow("a table with other columns")
        << masses << changed(changed(masses, "'Mass'", "'Weight'"), "58", "59") << 1;
    QTest::newRow("a cell of another type") << masses << QByteArray(kKarvon) << 1;
    const QByteArray quantity("{'type': 'Karvon', 'properties': [{'name': 'KarvonFragmentMassError',"
                              " 'value': {'value': 1, 'unit': 'ppm'}}]}");
    QTest::newRow("a number and its unit")
        << quantity << changed(changed(quantity, "'value': 1", "'value': 2"), "ppm", "Da") << 1;
    QTest::newRow("entries of one table are apart")
        << masses << changed(changed(masses, "58", "59"), "'water'", "'Water'") << 2;
}

void TestDifferencesTakenOver::whatBelongsTogetherIsTakenTogether()
{
    QFETCH(const QByteArray, left);
    QFETCH(const QByteArray, right);
    QFETCH(const int, units);
    const auto differences = WorkflowDifferences::between(oneCell(left), oneCell(right), false);
    QSet<qsizetype> groups;
    for (qsizetype i = 0; i < differences.size(); ++i)
        groups.insert(differences.at(i).together == WorkflowDifference::kAlone ? i
                                                                               : differences.at(i).together);
    QVERIFY(differences.size() > 1);
    QCOMPARE(groups.size(), units);
    const QJsonObject merged =
        WorkflowDifferences::takenOver(oneCell(left), oneCell(right), {differences.size() - 1}, false);
    QCOMPARE(merged == oneCell(right), units == 1);
}

void TestDifferencesTakenOver::stampsOfTheLeftDocumentStay()
{
    const auto document = [](const char *user, const char *value) {
        QJsonObject cell = parsed(kKarvon);
        cell.insert(u"metadata"_s, QString::fromLatin1(user));
        cell.insert(u"x"_s, QString::fromLatin1(value));
        QJsonObject made = Documents::document({Documents::tab(u"T"_s, {u"C"_s, u"D"_s}, {cell, cell})});
        made.insert(u"metadata"_s, QString::fromLatin1(user));
        return made;
    };
    const QJsonObject left = document("me", "1");
    const QJsonObject right = document("you", "2");
    QCOMPARE(textOf(WorkflowDifferences::takenOver(left, right, all(left, right, false), false)),
             textOf(document("me", "2")));
    QCOMPARE(textOf(WorkflowDifferences::takenOver(left, right, all(left, right, true), true)),
             textOf(right));
}

void TestDifferencesTakenOver::whatIsBelowASettingIsTold()
{
    const QByteArray masses(kMasses);
    const auto below = [](const QByteArray &left, const QByteArray &right) {
        return WorkflowDifferences::between(oneCell(left), oneCell(right), false).first().below;
    };
    QCOMPARE(below(masses, changed(masses, "58", "59")), u"row 1 / Mass"_s);
    QCOMPARE(below(kKarvon, changed(kKarvon, "'a'", "'b'")), QString());
    QCOMPARE(below(masses, changed(masses, "'x': 1", "'x': 2")), u"x"_s);
    QCOMPARE(
        WorkflowDifferences::between(parsed("{'tabs': [], 'a': 1}"), parsed("{'tabs': [], 'a': 2}"), true)
            .first()
            .below,
        u"a"_s);
}

void TestDifferencesTakenOver::longTablesAreTakenOver()
{
    constexpr int kRows = 20000;
    const auto make = [](int mass) {
        QJsonArray samples;
        for (int i = 0; i < kRows; ++i)
            samples.append(QJsonObject{{u"SampleName"_s, QString::number(i)}, {u"Id"_s, i * mass}});
        const QJsonObject value{{u"Samples"_s, samples}};
        const QJsonArray entries{QJsonObject{{u"name"_s, u"Samples"_s}, {u"value"_s, value}}};
        const QJsonObject cell{{u"type"_s, u"Samples"_s}, {u"properties"_s, entries}};
        return Documents::document({Documents::tab(u"T"_s, {u"C"_s}, {cell})});
    };
    const QJsonObject left = make(1);
    const QJsonObject right = make(2);
    QSet<qsizetype> chosen = all(left, right, false);
    QCOMPARE(chosen.size(), kRows - 1);
    chosen.remove(7);
    const QJsonObject merged = WorkflowDifferences::takenOver(left, right, chosen, false);
    QCOMPARE(pathsBetween(merged, right).size(), 1);
    QCOMPARE(pathsBetween(left, merged).size(), kRows - 2);
}

void TestDifferencesTakenOver::namesAreMadeDifferent()
{
    QCOMPARE(WorkflowDifferences::labels({u"A"_s, u"B"_s, u"A"_s, u""_s}),
             QStringList({u"A"_s, u"B"_s, u"A (2)"_s, u"(no name)"_s}));
}

ORV_REGISTER_TEST(TestDifferencesTakenOver)
#include "TestDifferencesTakenOver.moc"
