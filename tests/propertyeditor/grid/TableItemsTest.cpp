#include "GridFixture.h"
#include "LogCapture.h"
#include "TestData.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/grid/GridItemCreators.h>
#include <orv/widgets/DisulfideWidget.h>
#include <orv/widgets/GlycanTableWidget.h>
#include <orv/widgets/MassTableWidget.h>
#include <orv/widgets/ProteinOptionsWidget.h>
#include <orv/widgets/ProteinTableWidget.h>
#include <orv/widgets/SamplesAndTracesInputWidget.h>
#include <orv/widgets/SequenceDatabasesWidget.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace orv;
using namespace GridFixture;

namespace {

/// As an application has it: with the three columns that the library leaves to it.
class HostManager : public GridItemManager
{
public:
    HostManager()
    {
        setCustomManager(this);
        registerCreators();
    }
    ~HostManager() override { setCustomManager(nullptr); }

    void registerCreators() override
    {
        GridItemManager::registerCreators();
        registerCreator(BaseItemType::SamplesProteins, new SamplesProteinsTableItemCreator);
        registerCreator(BaseItemType::IntactOptions, new IntactOptionsItemCreator);
        registerCreator(BaseItemType::OligoOptions, new OligoOptionsItemCreator);
    }
};

/// Writes down the traffic of a bus.
class Recorder : public GridCommunicative
{
public:
    using GridCommunicative::GridCommunicative;
    void messageReceived(const GridMessage &message) override { messages.append(message); }

    QStringList kinds() const
    {
        QStringList texts;
        for (const GridMessage &message : messages)
            texts.append(QString::number(int(message.type)));
        return texts;
    }

    QList<GridMessage> messages;
};

QJsonObject defaultCell(BaseItemType type)
{
    if (type == BaseItemType::Samples || type == BaseItemType::Database)
        return Documents::cell(PropertyEditor::BaseItem::typeToString(type));
    QJsonObject cell = PropertyEditorJsonUtils::defaultJsonContents(type);
    cell.insert(text("type"), PropertyEditor::BaseItem::typeToString(type));
    return cell;
}

QJsonObject node(const QStringList &columns, const QList<QStringList> &rows)
{
    QJsonArray children;
    for (const QStringList &row : rows)
        children.append(QJsonObject{{text("data"), QJsonArray::fromStringList(row)}});
    return {{text("data"), QJsonArray::fromStringList(columns)}, {text("children"), children}};
}

/// What people did reaches listeners from the event loop.
void settle()
{
    QCoreApplication::processEvents();
}

} // namespace

class TableItemsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void eachTypeHasItsItem();
    void threeTypesAreLeftToApplications();
    void cellsOfExamplesComeBack_data();
    void cellsOfExamplesComeBack();
    void defaultCellsComeBack_data();
    void defaultCellsComeBack();
    void aCellOfMassesNeedsItsTolerance();
    void savedMassesHaveNoIds();
    void withoutAWidgetTheContentIsGone();
    void savingAsksNothing_data();
    void savingAsksNothing();
    void aMissingDatabaseStopsAProjectAlone();
    void newMassColumnsLearnTheSamples();
    void newColumnsOfOligonucleotidesDont();
    void samplesTellWhatTheyWereBefore();
    void disulfidesFollowProteins();
    void proteinsStandInTheirOwnEntry();
    void proteinsOfAnotherNameAreRead();
    void uneditedDatabasesStayAsTheyAre_data();
    void uneditedDatabasesStayAsTheyAre();
    void editedDatabasesKeepWhatIsUnknown();
    void glycansTellOfAReset();
    void presetsAreLoadedQuietly();
    void importsReachSamplesAndProteins();
    void headersOfRetiredCells_data();
    void headersOfRetiredCells();
    void reportsOfRetiredCells();
    void otherPropertiesAreNoOptions();
};

void TableItemsTest::eachTypeHasItsItem()
{
    const HostManager manager;
    const auto isOf = [&](int number, const std::type_info &expected) {
        const std::unique_ptr<IGridItem> item(manager.createItem(BaseItemType(number)));
        return int(item->type()) == number && typeid(*item) == expected && item->widget();
    };
    QVERIFY(isOf(21, typeid(SamplesViewItem)));
    QVERIFY(isOf(16, typeid(ProteinsTableItem)));
    QVERIFY(isOf(13, typeid(IsotopeTableItem)));
    QVERIFY(isOf(6, typeid(DisulfideItem)));
    QVERIFY(isOf(5, typeid(GlycanTableItem)));
    QVERIFY(isOf(7, typeid(GlycanOptionsItem)));
    QVERIFY(isOf(14, typeid(MassTableItem)));
    QVERIFY(isOf(18, typeid(IntactProteinsItem)));
    QVERIFY(isOf(19, typeid(OligoProteinsItem)));
    QVERIFY(isOf(12, typeid(OligoMassTableItem)));
    QVERIFY(isOf(4, typeid(SequenceDatabasesViewItem)));
    QVERIFY(isOf(22, typeid(SamplesProteinsTableItem)));
    QVERIFY(isOf(9, typeid(OptionsItemBase)));
    QVERIFY(isOf(11, typeid(OptionsItemBase)));
}

void TableItemsTest::threeTypesAreLeftToApplications()
{
    GridItemManager manager;
    manager.registerCreators();
    for (int number : {9, 11, 22}) {
        const std::unique_ptr<IGridItem> item(manager.createItem(BaseItemType(number)));
        QVERIFY(dynamic_cast<KPropertyViewItem *>(item.get()));
    }
}

void TableItemsTest::cellsOfExamplesComeBack_data()
{
    QTest::addColumn<QJsonObject>("cell");
    const QDir folder(TestData::examplePath(text("workflows")));
    for (const QString &file : folder.entryList({text("*.wflw")})) {
        QFile document(folder.filePath(file));
        QVERIFY(document.open(QIODevice::ReadOnly));
        int number = 0;
        const QJsonObject content = Documents::parse(document.readAll());
        // A window shows documents of the present version alone.
        if (!content.value(text("metadata")).toString().contains(text("5.47.0")))
            continue;
        for (const auto tab : content.value(text("tabs")).toArray()) {
            for (const auto cell : tab[text("cells")].toArray())
                QTest::newRow(qPrintable(text("%1 %2").arg(file).arg(number++))) << cell.toObject();
        }
    }
}

void TableItemsTest::cellsOfExamplesComeBack()
{
    QFETCH(QJsonObject, cell);
    const HostManager manager;
    const BaseItemType type = PropertyEditor::BaseItem::typeFromString(cell.value(text("type")).toString());
    const std::unique_ptr<IGridItem> item(manager.createItem(type));
    if (auto *view = qobject_cast<GridPropertyEditorView *>(item->widget()))
        view->setDocumentType(type);
    int edits = 0;
    connect(item->edits(), &GridItemEdits::edited, this, [&] { ++edits; });
    const Error error = item->setContent(cell);
    QVERIFY2(!error.hasError(), qPrintable(error.errorMessage()));
    item->setName(cell.value(text("name")).toString());
    settle();
    QJsonObject content = item->content();
    // Settings are stamped anew with each load.
    if (qobject_cast<GridPropertyEditorView *>(item->widget())) {
        content.remove(text("metadata"));
        cell.remove(text("metadata"));
    }
    QCOMPARE(content, cell);
    QCOMPARE(edits, 0);
}

void TableItemsTest::defaultCellsComeBack_data()
{
    QTest::addColumn<int>("number");
    for (int number : {4, 5, 6, 7, 9, 11, 12, 13, 14, 16, 18, 19, 21})
        QTest::addRow("%d", number) << number;
}

void TableItemsTest::defaultCellsComeBack()
{
    QFETCH(int, number);
    const HostManager manager;
    const QJsonObject cell = defaultCell(BaseItemType(number));
    const std::unique_ptr<IGridItem> item(manager.createItem(BaseItemType(number)));
    const Error error = item->setContent(cell);
    QVERIFY2(!error.hasError(), qPrintable(error.errorMessage()));
    item->setName(text("Column"));
    QJsonObject expected = cell;
    expected.insert(text("name"), text("Column"));
    QJsonObject content = item->content();
    QCOMPARE(content.value(text("type")), expected.value(text("type")));
    QCOMPARE(content.value(text("name")), expected.value(text("name")));
    QCOMPARE(content.value(text("properties")).toArray().size(),
             expected.value(text("properties")).toArray().size());
    // What was read once is written as it was read.
    const std::unique_ptr<IGridItem> again(manager.createItem(BaseItemType(number)));
    QVERIFY(!again->setContent(content).hasError());
    again->setName(text("Column"));
    QCOMPARE(again->content(), content);
}

void TableItemsTest::aCellOfMassesNeedsItsTolerance()
{
    MassTableItem item(nullptr);
    QJsonObject cell = defaultCell(BaseItemType::Masses);
    QVERIFY(!item.setContent(cell).hasError());
    QJsonArray entries = cell.value(text("properties")).toArray();
    for (qsizetype i = entries.size() - 1; i >= 0; --i) {
        if (entries.at(i)[text("name")].toString() == text("MatchTolerance"))
            entries.removeAt(i);
    }
    cell.insert(text("properties"), entries);
    const Error error = item.setContent(cell);
    QCOMPARE(error.code(), ErrorCode::MalformedStructure);
    QCOMPARE(error.errorMessage(), text("Failed to load data into the mass table widget."));
}

void TableItemsTest::savedMassesHaveNoIds()
{
    const auto columnsOf = [](const QJsonObject &content) {
        return valueIn(content, "MassTable").toObject().value(text("data")).toVariant().toStringList();
    };
    MassTableItem masses(nullptr);
    QVERIFY(!masses.setContent(defaultCell(BaseItemType::Masses)).hasError());
    QVERIFY(!columnsOf(masses.content()).contains(text("Id")));
    QVERIFY(columnsOf(masses.content()).size() > 1);
    QJsonObject withIds = defaultCell(BaseItemType::Masses);
    withIds.insert(text("properties"), [&] {
        QJsonArray entries = withIds.value(text("properties")).toArray();
        QJsonObject entry = entries.at(0).toObject();
        Q_ASSERT(entry.value(text("name")).toString() == text("MassTable"));
        entry.insert(text("value"),
                     node({text("Id"), text("Name"), text("Mass")}, {{text("4"), text("a"), text("100.5")}}));
        entries.replace(0, entry);
        return entries;
    }());
    QVERIFY(!masses.setContent(withIds).hasError());
    QVERIFY(!columnsOf(masses.content()).contains(text("Id")));
    QVERIFY(bytes(masses.content()).contains("100.5"));
    OligoMassTableItem oligos;
    QVERIFY(!oligos.setContent(defaultCell(BaseItemType::OligoMasses)).hasError());
    const QStringList columns = columnsOf(oligos.content());
    auto *widget = static_cast<MassTableWidget *>(oligos.widget());
    QList<DeltaMass> edited = widget->masses();
    edited.append(DeltaMass());
    widget->setMasses(edited);
    QVERIFY(columnsOf(oligos.content()).contains(text("Id")));
    QCOMPARE(columns, columnsOf(defaultCell(BaseItemType::OligoMasses)));
}

void TableItemsTest::withoutAWidgetTheContentIsGone()
{
    MassTableItem masses(nullptr);
    const QJsonObject cell = defaultCell(BaseItemType::Masses);
    QVERIFY(!masses.setContent(cell).hasError());
    delete masses.widget();
    QCOMPARE(masses.content(), cell);
    QCOMPARE(masses.setContent(cell).errorMessage(), text("The object is not initialized."));

    GlycanTableItem glycans(nullptr);
    QVERIFY(!glycans.setContent(defaultCell(BaseItemType::DetachedGlycans)).hasError());
    delete glycans.widget();
    QVERIFY(glycans.content().isEmpty());
    QCOMPARE(glycans.setContent(cell).code(), ErrorCode::MalformedStructure);
    SamplesViewItem samples(nullptr);
    delete samples.widget();
    samples.messageReceived({nullptr, PropertyId::MassTable, {}, {}});
    QVERIFY(samples.content().isEmpty());
}

void TableItemsTest::savingAsksNothing_data()
{
    QTest::addColumn<int>("number");
    for (int number : {21, 18, 19, 4})
        QTest::addRow("%d", number) << number;
}

void TableItemsTest::savingAsksNothing()
{
    QFETCH(int, number);
    const HostManager manager;
    const std::unique_ptr<IGridItem> item(manager.createItem(BaseItemType(number)));
    QVERIFY(!item->setContent(defaultCell(BaseItemType(number))).hasError());
    QStringList warnings;
    QStringList errors;
    QStringList details;
    QVERIFY(item->validate(&warnings, &errors, &details, WidgetValidationType::SaveWorkflow));
    QVERIFY(warnings.isEmpty() && errors.isEmpty() && details.isEmpty());
}

void TableItemsTest::aMissingDatabaseStopsAProjectAlone()
{
    SequenceDatabasesViewItem item;
    const QJsonObject cell =
        settingsCell("Database", {setting("SequenceDatabases", text("/no/such/file.fasta"))});
    QVERIFY(!item.setContent(cell).hasError());
    QStringList warnings;
    QStringList errors;
    QStringList details;
    QVERIFY(item.validate(&warnings, &errors, &details, WidgetValidationType::SaveWorkflow));
    QVERIFY(errors.isEmpty());
    QVERIFY(!item.validate(&warnings, &errors, &details, WidgetValidationType::ProjectCreation));
    QCOMPARE(errors.size(), 1);
    QVERIFY(errors.constFirst().contains(text("file.fasta")));
}

void TableItemsTest::newMassColumnsLearnTheSamples()
{
    GridCommunicationManager bus;
    SamplesViewItem samples(&bus);
    static_cast<SamplesAndTracesInputWidget *>(samples.widget())
        ->addNewSampleFiles({{text("/data/a.raw"), text("a")}});
    int edits = 0;
    connect(samples.edits(), &GridItemEdits::edited, this, [&] { ++edits; });
    Recorder recorder(&bus);
    MassTableItem masses(&bus);
    // The samples answer inside the message of the new column.
    QCOMPARE(recorder.kinds(), QStringList({text("265"), text("207")}));
    QCOMPARE(recorder.messages.constFirst().value.value<QList<SamplesInput::Entry>>().size(), 1);
    QCOMPARE(edits, 0);
}

void TableItemsTest::newColumnsOfOligonucleotidesDont()
{
    GridCommunicationManager bus;
    SamplesViewItem samples(&bus);
    Recorder recorder(&bus);
    const OligoProteinsItem oligos(&bus);
    QCOMPARE(recorder.kinds(), QStringList(text("226")));
    const IntactProteinsItem proteins(&bus);
    QCOMPARE(recorder.kinds(), QStringList({text("226"), text("265"), text("171")}));
}

void TableItemsTest::samplesTellWhatTheyWereBefore()
{
    GridCommunicationManager bus;
    SamplesViewItem samples(&bus);
    Recorder recorder(&bus);
    auto *widget = static_cast<SamplesAndTracesInputWidget *>(samples.widget());
    widget->addNewSampleFiles({{text("/data/a.raw"), text("a")}});
    widget->addNewSampleFiles({{text("/data/b.raw"), text("b")}});
    QCOMPARE(recorder.kinds(), QStringList({text("265"), text("265")}));
    const auto count = [](const QVariant &list) { return list.value<QList<SamplesInput::Entry>>().size(); };
    QCOMPARE(count(recorder.messages.at(0).previousValue), 0);
    QCOMPARE(count(recorder.messages.at(0).value), 1);
    QCOMPARE(count(recorder.messages.at(1).previousValue), 1);
    QCOMPARE(count(recorder.messages.at(1).value), 2);
}

void TableItemsTest::disulfidesFollowProteins()
{
    GridCommunicationManager bus;
    ProteinsTableItem proteins(&bus);
    DisulfideItem bonds(&bus);
    Recorder recorder(&bus);
    const QJsonObject table =
        node({text("ProteinAccessionName"), text("ProteinSequence")}, {{text("P1"), text("ACDCK")}});
    QVERIFY(!proteins.setContent(settingsCell("Proteins", {setting("Proteins", table)})).hasError());
    auto *widget = static_cast<ProteinOptionsWidget *>(proteins.widget());
    recorder.messages.clear();
    Q_EMIT widget->proteinTableWidget()->proteinsChanged();
    QCOMPARE(recorder.kinds(), QStringList(text("253")));
    const QJsonObject told = recorder.messages.constFirst().value.toJsonObject();
    QCOMPARE(told.value(text("children")).toArray().size(), 1);
    QVERIFY(static_cast<DisulfideWidget *>(bonds.widget())->toPlainText().contains(text("P1")));
}

void TableItemsTest::proteinsStandInTheirOwnEntry()
{
    const QJsonObject table =
        node({text("ProteinAccessionName"), text("ProteinSequence")}, {{text("P1"), text("ACDCK")}});
    ProteinsTableItem item(nullptr);
    item.setType(BaseItemType::Proteins);
    const QJsonObject cell =
        settingsCell("Proteins", {setting("Unheard", QJsonObject()), setting("Proteins", table)});
    QVERIFY(!item.setContent(cell).hasError());
    QVERIFY(bytes(valueIn(item.content(), "Proteins").toObject()).contains("ACDCK"));
    QCOMPARE(valueIn(item.content(), "Unheard"), QJsonValue(QJsonObject()));
}

void TableItemsTest::proteinsOfAnotherNameAreRead()
{
    const QJsonObject table =
        node({text("ProteinAccessionName"), text("ProteinSequence")}, {{text("P1"), text("ACDCK")}});
    ProteinsTableItem item(nullptr);
    item.setType(BaseItemType::Proteins);
    item.setName(text("Column"));
    const QJsonObject cell = settingsCell("Proteins", {setting("OldProteins", table)});
    QVERIFY(!item.setContent(cell).hasError());
    auto *widget = static_cast<ProteinOptionsWidget *>(item.widget());
    QVERIFY(bytes(PropertyEditorJsonUtils::rowNodeToObject(widget->proteinTableWidget()->rowNode()))
                .contains("ACDCK"));
    QCOMPARE(item.content(), cell);
}

void TableItemsTest::uneditedDatabasesStayAsTheyAre_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::newRow("a path") << QByteArray(R"({"name":"DatabaseFile","value":"/data/a.fasta"})");
    QTest::newRow("rows without members")
        << QByteArray(R"({"name":"SequenceDatabases","value":{"sequences":[{"fasta":"/data/a.fasta"}]}})");
    QTest::newRow("unknown members") << QByteArray(
        R"({"name":"SequenceDatabases","value":{"later":1,"sequences":[]}})");
}

void TableItemsTest::uneditedDatabasesStayAsTheyAre()
{
    QFETCH(QByteArray, entry);
    SequenceDatabasesViewItem item;
    item.setType(BaseItemType::Database);
    item.setName(text("Column"));
    const QJsonObject cell = settingsCell("Database", {Documents::parse(entry)});
    QVERIFY(!item.setContent(cell).hasError());
    QCOMPARE(item.content(), cell);
}

void TableItemsTest::editedDatabasesKeepWhatIsUnknown()
{
    SequenceDatabasesViewItem item;
    item.setType(BaseItemType::Database);
    const QJsonObject value =
        Documents::parse(R"({"later":1,"sequences":[{"fasta":"/data/a.fasta","id":1}]})");
    QVERIFY(!item.setContent(settingsCell("Database", {setting("SequenceDatabases", value)})).hasError());
    static_cast<SequenceDatabasesWidget *>(item.widget())->setItems({});
    QCOMPARE(valueIn(item.content(), "SequenceDatabases"),
             QJsonValue(Documents::parse(R"({"later":1,"sequences":[]})")));
}

void TableItemsTest::glycansTellOfAReset()
{
    GridCommunicationManager bus;
    GlycanTableItem glycans(&bus);
    Recorder recorder(&bus);
    QVERIFY(!glycans.setContent(defaultCell(BaseItemType::DetachedGlycans)).hasError());
    QVERIFY(recorder.kinds().contains(text("129")));
    glycans.messageReceived({nullptr, PropertyId::SamplesTable, {}, {}});
}

void TableItemsTest::presetsAreLoadedQuietly()
{
    GridCommunicationManager bus;
    DisulfideItem bonds(&bus);
    Recorder recorder(&bus);
    bonds.beginPresetLoading();
    QVERIFY(!bonds.setContent(defaultCell(BaseItemType::Disulfide)).hasError());
    settle();
    QVERIFY(recorder.messages.isEmpty());
    bonds.endPresetLoading();
}

void TableItemsTest::importsReachSamplesAndProteins()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(text("table.csv"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("Sample Name,Sample Path,Protein Name,Protein Sequence,Lot\n"
               "first,one.raw,P1,PEPTIDEK,A\nsecond,two.raw,P2,ACDEFGH,B\n");
    file.close();
    GridCommunicationManager bus;
    SamplesViewItem samples(&bus);
    IntactProteinsItem proteins(&bus);
    SamplesProteinsTableItem imported(&bus);
    QVERIFY(!proteins.setContent(defaultCell(BaseItemType::IntactProteins)).hasError());
    QMap<QString, QList<QVariant>> seen;
    int afterwards = 0;
    imported.setCsvImportExtraPreFlightCheck([&](const QMap<QString, QList<QVariant>> &columns) {
        seen = columns;
        return true;
    });
    imported.setCsvImportExtraPostFlightCheck([&] {
        ++afterwards;
        return Error();
    });
    imported.importCSV(path);
    QCOMPARE(seen.value(text("Lot")), QList<QVariant>({text("A"), text("B")}));
    QCOMPARE(afterwards, 1);
    const auto *widget = static_cast<SamplesAndTracesInputWidget *>(samples.widget());
    QCOMPARE(widget->samplesInput().size(), 2);
    QCOMPARE(widget->samplesInput().constFirst().name, text("first"));
    QVERIFY(bytes(proteins.content()).contains("PEPTIDEK"));
}

void TableItemsTest::headersOfRetiredCells_data()
{
    QTest::addColumn<QJsonObject>("header");
    QTest::addColumn<QString>("expected");
    QTest::newRow("good") << node({text("Name"), text("Type"), text("Unit")},
                                  {{text("Lot"), text("Sample"), {}},
                                   {text("Mass"), text("Protein"), text("Da")}})
                          << text("Lot");
    QTest::newRow("two heads") << node({text("Name"), text("Type")}, {})
                               << text("!The size of the header data list is incorrect.");
    QTest::newRow("no type") << node({text("Name"), text("Kind"), text("Unit")}, {})
                             << text("!Could not find the index for the name Type in the header data list");
    QTest::newRow("two cells") << node({text("Name"), text("Type"), text("Unit")},
                                       {{text("Lot"), text("Sample")}})
                               << text("!The size of the child data list is incorrect.");
}

void TableItemsTest::headersOfRetiredCells()
{
    QFETCH(QJsonObject, header);
    QFETCH(QString, expected);
    const Result<QStringList> names =
        SamplesProteinsTableItem::columnNames({{text("header"), header}}, text("Sample"));
    QCOMPARE(names.hasError() ? text("!") + names.error().errorMessage() : names->join(u','), expected);
}

void TableItemsTest::reportsOfRetiredCells()
{
    const QJsonObject header =
        node({text("Name"), text("Type"), text("Unit")}, {{text("Mass"), text("Sample"), text("Da")}});
    const auto report = SamplesProteinsTableItem::toReportModuleStructure({{text("header"), header}});
    QCOMPARE(report, QList<QList<QVariant>>{{text("Mass<br>Sample<br>Da")}});
    const auto withRows = SamplesProteinsTableItem::toReportModuleStructure(
        {{text("header"), header}, {text("table"), node({text("Mass")}, {{text("18.01")}})}});
    QCOMPARE(withRows.size(), 2);
    QCOMPARE(withRows.at(1), QList<QVariant>{text("18.01")});
}

void TableItemsTest::otherPropertiesAreNoOptions()
{
    LogCapture log;
    OptionsItemBase item(PropertyId::MassTable);
    QCOMPARE(log.warnings(), QStringList(text("Unsupported property: 207")));
    QVERIFY(!item.widget());
    QCOMPARE(item.setContent({}).errorMessage(), text("The object is not initialized."));
    QVERIFY(item.content().isEmpty());
}

WIDGET_REGISTER_TEST(TableItemsTest)
#include "TableItemsTest.moc"
