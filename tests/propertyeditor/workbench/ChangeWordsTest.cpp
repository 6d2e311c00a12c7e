#include "WidgetTest.h"
#include "WindowFixture.h"

#include <orv/propertyeditor/workbench/RecoveryJournal.h>
#include <orv/propertyeditor/workbench/RecoveryStore.h>
#include <orv/table_model/TableSheet.h>
#include <orv/widgets/TableView.h>

#include <QJsonArray>
#include <QSet>

using namespace orv;
using namespace WindowFixture;
using namespace Qt::StringLiterals;

namespace {

QJsonArray rowOf(const QJsonArray &values)
{
    return values;
}

QJsonObject table(const QJsonArray &header, const QList<QJsonArray> &rows)
{
    QJsonArray children;
    for (const QJsonArray &row : rows)
        children.append(QJsonObject{{u"data"_s, row}, {u"children"_s, QJsonArray()}});
    return {{u"data"_s, header}, {u"children"_s, children}};
}

QJsonObject documentOfTable(const char *type, const char *setting, const QJsonObject &value)
{
    return documentOf({QJsonObject{
        {u"type"_s, text(type)},
        {u"properties"_s, QJsonArray{QJsonObject{{u"name"_s, text(setting)}, {u"value"_s, value}}}}}});
}

QJsonObject massesDocument(const QList<QJsonArray> &rows)
{
    return documentOfTable("Masses", "MassTable",
                           table({u"Name"_s, u"Mass"_s, u"Protein"_s, u"SamplesIds"_s}, rows));
}

QList<RecoveryChange> told(const QJsonObject &before, const QJsonObject &after)
{
    const QTemporaryDir folder;
    {
        RecoveryStore store(folder.path());
        const std::unique_ptr<RecoveryJournal> journal = store.newJournal();
        journal->begin({}, before);
        journal->write(PropertyEditorContent(after));
    }
    return RecoveryStore(folder.path()).entries().value(0).changes.told;
}

/// Old examples are upgraded on their way.
class UpgradeApplier : public DialogAnswerer
{
public:
    UpgradeApplier()
        : m_before(DialogService::install(this))
    {}
    ~UpgradeApplier() override { DialogService::install(m_before); }
    Q_DISABLE_COPY_MOVE(UpgradeApplier)

    std::optional<DialogAnswer> answer(const DialogRequest &request) override
    {
        return DialogAnswer{request.title == u"Workflow upgrade"_s ? u"Apply"_s : u"Yes"_s, {}};
    }

private:
    DialogAnswerer *const m_before;
};

const QJsonArray kIntact = rowOf({u"G0F"_s, 148055.9, u""_s, QJsonArray()});
const QJsonArray kOther = rowOf({u"G1F"_s, 148218.1, u"mAb"_s, QJsonArray{1, 2}});

} // namespace

/// What lists of changes say of tables: the words and the numbers that the tables themselves show.
class ChangeWordsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void cellsAreToldByRowAndTitle();
    void rowsAreToldByTheirTitles();
    void wholeTablesAreToldByTheirSize();
    void samplesAreToldByTheirTitles();
    void columnsAreCalledAsTablesCallThem_data();
    void columnsAreCalledAsTablesCallThem();
};

void ChangeWordsTest::cellsAreToldByRowAndTitle()
{
    const Window loadsTexts;
    QJsonArray edited = kOther;
    edited[1] = 148219.5;
    edited[3] = QJsonArray{1, 3};
    const QList<RecoveryChange> changes =
        told(massesDocument({kIntact, kOther}), massesDocument({kIntact, edited}));
    QCOMPARE(changes.size(), 2);
    QVERIFY2(changes.at(0).place.endsWith(u" › row 2 › Mass"_s), qPrintable(changes.at(0).place));
    QCOMPARE(changes.at(0).before, u"148218.1"_s);
    QCOMPARE(changes.at(0).after, u"148219.5"_s);
    QVERIFY2(changes.at(1).place.endsWith(u" › row 2 › Sample ids"_s), qPrintable(changes.at(1).place));
    QCOMPARE(changes.at(1).before, u"1, 2"_s);
    QCOMPARE(changes.at(1).after, u"1, 3"_s);
}

void ChangeWordsTest::rowsAreToldByTheirTitles()
{
    const Window loadsTexts;
    const QList<RecoveryChange> changes = told(massesDocument({kIntact}), massesDocument({kIntact, kOther}));
    QCOMPARE(changes.size(), 1);
    QVERIFY2(changes.first().place.endsWith(u" › row 2"_s), qPrintable(changes.first().place));
    QCOMPARE(changes.first().before, QString());
    QCOMPARE(changes.first().after, u"Name: G1F; Mass: 148218.1; Protein: mAb; Sample ids: 1, 2"_s);
}

void ChangeWordsTest::wholeTablesAreToldByTheirSize()
{
    const Window loadsTexts;
    QJsonObject without = massesDocument({});
    QJsonObject tab = without[u"tabs"_s].toArray().first().toObject();
    QJsonObject cell = tab[u"cells"_s].toArray().first().toObject();
    cell[u"properties"_s] = QJsonArray();
    tab[u"cells"_s] = QJsonArray{cell};
    without[u"tabs"_s] = QJsonArray{tab};
    const QList<RecoveryChange> changes = told(without, massesDocument({kIntact, kOther}));
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.first().after, u"Rows: 2"_s);
}

void ChangeWordsTest::samplesAreToldByTheirTitles()
{
    const Window loadsTexts;
    const auto document = [](const QJsonArray &samples) {
        return documentOfTable("Samples", "SamplesTable", QJsonObject{{u"Samples"_s, samples}});
    };
    const auto sample = [](const QString &name, const QString &file) {
        return QJsonObject{{u"SamplesId"_s, 1}, {u"SampleName"_s, name}, {u"SamplePath"_s, file}};
    };
    const QList<RecoveryChange> changes =
        told(document({sample(u"A"_s, u"a.raw"_s)}),
             document({sample(u"A"_s, u"b.raw"_s), sample(u"B"_s, u"c.raw"_s)}));
    QCOMPARE(changes.size(), 2);
    QVERIFY2(changes.at(0).place.endsWith(u" › A › File"_s), qPrintable(changes.at(0).place));
    QVERIFY2(changes.at(1).place.endsWith(u" › B"_s), qPrintable(changes.at(1).place));
    QCOMPARE(changes.at(1).after, u"Name: B; File: c.raw; Id: 1"_s);
}

void ChangeWordsTest::columnsAreCalledAsTablesCallThem_data()
{
    QTest::addColumn<QString>("example");
    for (const char *name :
         {"antibody_peptide_map", "intact_mass_check", "released_glycans", "dia_glycopeptides"})
        QTest::newRow(name) << u"workflows/%1.wflw"_s.arg(text(name));
}

void ChangeWordsTest::columnsAreCalledAsTablesCallThem()
{
    QFETCH(const QString, example);
    Window window;
    UpgradeApplier answers;
    QCOMPARE(window.openWorkflow(TestData::examplePath(example)), kOpened);
    const QByteArray file = QJsonDocument(window.content().toJsonObject()).toJson(QJsonDocument::Compact);
    QSet<QString> seen;
    QStringList wrong;
    for (const TableView *view : window.findChildren<TableView *>()) {
        const QList<TableColumn> columns = view->sheet()->columns();
        for (const TableColumn &column : columns) {
            // What is derived, or named for this table alone, stands in no file.
            if (column.derive || seen.contains(column.name) ||
                !file.contains('"' + column.name.toUtf8() + '"'))
                continue;
            seen.insert(column.name);
            const auto document = [&column](int value) {
                return documentOfTable("Masses", "MassTable", table({column.name}, {QJsonArray{value}}));
            };
            const QString place = told(document(1), document(2)).value(0).place;
            if (!place.endsWith(u" › row 1 › "_s + column.title))
                wrong.append(u"%1 (%2): %3"_s.arg(column.name, column.title, place));
        }
    }
    QVERIFY(seen.size() > 2);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(u'\n')));
}

WIDGET_REGISTER_TEST(ChangeWordsTest)
#include "ChangeWordsTest.moc"
