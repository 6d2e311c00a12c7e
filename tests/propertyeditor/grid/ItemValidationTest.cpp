#include "LogCapture.h"
#include "WholeWorkflow.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/grid/PropertyGridWidget.h>

using namespace orv;
using namespace GridFixture;

namespace {

struct Told
{
    bool isValid = false;
    QStringList warnings;
    QStringList errors;
    QStringList details;
};

Told ask(const IGridItem &item, WidgetValidationType type)
{
    Told told;
    told.isValid = item.validate(&told.warnings, &told.errors, &told.details, type);
    return told;
}

QJsonObject bondsBetween(const QJsonArray &ends)
{
    const QJsonArray columns = {text("FirstChain"), text("FirstPosition"), text("SecondChain"),
                                text("SecondPosition")};
    const QJsonObject bonds{{text("data"), columns},
                            {text("children"), QJsonArray{QJsonObject{{text("data"), ends}}}}};
    return settingsCell("Disulfide", {setting("Disulfide", bonds)});
}

/// One chain, of which a molecule is made that names the chain \a number.
QJsonObject molecule(BaseItemType kind, int number)
{
    const auto row = [](const QJsonArray &data, const QJsonArray &children = {}) {
        return QJsonObject{{text("data"), data}, {text("children"), children}};
    };
    const auto strings = [](const char *utf8) { return QJsonArray::fromStringList(text(utf8).split(u',')); };
    const QJsonObject chains =
        row(strings("Number,ChainId,Name,Sequence,MonoisotopicMass,AverageMass,isCustom"),
            {row({1, text("A"), text("Chain"), text("GCATTGGTATTC"), {}, {}, 1})});
    const QJsonObject molecules = row(strings("Name,ChainNumbers,Disulfides,SamplesIds"),
                                      {row({text("Lot"), QJsonArray{number}, 0, QJsonArray()})});
    const QJsonObject table = row(strings("Chains,Proteins,BuildingBlocks"),
                                  {chains, molecules, row(strings("Symbol,Name,Type,Formula"))});
    const QString name = WholeWorkflow::nameOf(kind);
    return settingsCell(qPrintable(name), {setting(qPrintable(name), table)});
}

QJsonObject options(BaseItemType kind, const QList<QJsonArray> &rows)
{
    const QString columns =
        text("Name,MinimumMz,MaximumMz,MinimumMass,MaximumMass,MinimumCharge,MaximumCharge,Adduct");
    QJsonArray children;
    for (const QJsonArray &row : rows)
        children.append(QJsonObject{{text("data"), row}, {text("children"), QJsonArray()}});
    const QJsonObject table{{text("data"), QJsonArray::fromStringList(columns.split(u','))},
                            {text("children"), children}};
    const QString name = WholeWorkflow::nameOf(kind);
    return settingsCell(qPrintable(name), {setting(qPrintable(name), table)});
}

QJsonObject cellOfSamples(const QJsonArray &rows)
{
    const QJsonObject table{{text("Samples"), rows}};
    return settingsCell("Samples", {setting("SamplesTable", table)});
}

} // namespace

/// What columns say when a project is made or a job is sent; nothing of it stops the saving of a workflow,
/// but for bonds, which are always looked at.
class ItemValidationTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void samplesAreAskedButForSaving_data() { addTypes(); }
    void samplesAreAskedButForSaving();
    void chainsAreAskedButForSaving_data() { addTypes(); }
    void chainsAreAskedButForSaving();
    void bondsAreAlwaysAsked_data() { addTypes(); }
    void bondsAreAlwaysAsked();
    void optionsAreAlwaysAsked_data() { addTypes(); }
    void optionsAreAlwaysAsked();
    void otherColumnsAreNeverAsked_data() { addTypes(); }
    void otherColumnsAreNeverAsked();
    void aGridIsAsValidAsItsColumns();

private:
    static void addTypes();
};

void ItemValidationTest::addTypes()
{
    QTest::addColumn<int>("type");
    QTest::newRow("project") << 0;
    QTest::newRow("saving") << 1;
    QTest::newRow("job") << 2;
}

void ItemValidationTest::samplesAreAskedButForSaving()
{
    QFETCH(int, type);
    const LogCapture log;
    SamplesViewItem item(nullptr);
    const QJsonArray rows = {
        QJsonObject{{text("SamplesId"), 1}, {text("SampleName"), text("one")}},
        QJsonObject{{text("SamplesId"), 1}, {text("SampleName"), text("one")}},
    };
    QVERIFY(!item.setContent(cellOfSamples(rows)).hasError());
    const Told told = ask(item, WidgetValidationType(type));
    QCOMPARE(told.isValid, type == 1);
    QCOMPARE(told.errors, type == 1 ? QStringList() : QStringList(text("Every sample needs a file.")));
    QCOMPARE(told.details.size(), type == 1 ? 0 : 1);
    QCOMPARE(told.warnings.isEmpty(), type == 1);
}

void ItemValidationTest::chainsAreAskedButForSaving()
{
    QFETCH(int, type);
    const LogCapture log;
    const WholeWorkflow::HostManager manager;
    for (const BaseItemType kind : {BaseItemType::IntactProteins, BaseItemType::OligoMolecules}) {
        const std::unique_ptr<IGridItem> item(manager.createItem(kind));
        QVERIFY(!item->setContent(molecule(kind, 1)).hasError());
        const Told valid = ask(*item, WidgetValidationType(type));
        QVERIFY2(valid.isValid, qPrintable(valid.errors.join(u'\n')));
        QVERIFY(!item->setContent(molecule(kind, 7)).hasError());
        const Told told = ask(*item, WidgetValidationType(type));
        QCOMPARE(told.isValid, type == 1);
        QCOMPARE(told.errors.size(), type == 1 ? 0 : 1);
        QVERIFY(type == 1 || told.errors.constFirst().contains(u'7'));
    }
}

void ItemValidationTest::bondsAreAlwaysAsked()
{
    QFETCH(int, type);
    const LogCapture log;
    DisulfideItem item(nullptr);
    item.setProteinsContent(
        WholeWorkflow::table({text("ProteinAccessionName"), text("ProteinSequence")},
                             {{text("HC"), text("ACAAACAAAC")}, {text("LC"), text("AACA")}}));
    QVERIFY(!item.setContent(bondsBetween({text("HC"), 6, text("LC"), 3})).hasError());
    QVERIFY(ask(item, WidgetValidationType(type)).isValid);
    QVERIFY(!item.setContent(bondsBetween({text("HC"), 5, text("LC"), 3})).hasError());
    const Told told = ask(item, WidgetValidationType(type));
    QVERIFY(!told.isValid);
    QCOMPARE(told.warnings,
             QStringList(text("Disulfide bond 1: residue 5 of the chain \"HC\" is A and no cysteine.")));
    QVERIFY(told.errors.isEmpty() && told.details.isEmpty());
}

void ItemValidationTest::optionsAreAlwaysAsked()
{
    QFETCH(int, type);
    const LogCapture log;
    const WholeWorkflow::HostManager manager;
    const auto row = [](int from, int to) {
        return QJsonArray{text("Denatured"), from, to, 20000, 200000, 10, 100, text("H")};
    };
    for (const BaseItemType kind : {BaseItemType::IntactOptions, BaseItemType::OligoOptions}) {
        const std::unique_ptr<IGridItem> item(manager.createItem(kind));
        QVERIFY(!item->setContent(options(kind, {row(600, 5000)})).hasError());
        const Told valid = ask(*item, WidgetValidationType(type));
        QVERIFY2(valid.isValid && valid.errors.isEmpty(), qPrintable(valid.errors.join(u'\n')));
        QVERIFY(valid.warnings.isEmpty());
        // Two faults, and one name for both: each a line of its own.
        QVERIFY(!item->setContent(options(kind, {row(5000, 600), row(400, 300)})).hasError());
        const Told told = ask(*item, WidgetValidationType(type));
        QVERIFY(!told.isValid);
        QCOMPARE(told.errors.size(), 2);
        QVERIFY(told.errors[0].contains(text("5000")) && told.errors[1].contains(text("400")));
        QCOMPARE(told.warnings.size(), 1);
        QVERIFY(told.warnings[0].contains(text("Denatured")));
    }
}

void ItemValidationTest::otherColumnsAreNeverAsked()
{
    QFETCH(int, type);
    const LogCapture log;
    const WholeWorkflow::HostManager manager;
    for (const BaseItemType kind :
         {BaseItemType::Proteins, BaseItemType::Masses, BaseItemType::OligoMasses,
          BaseItemType::DetachedGlycans, BaseItemType::GlycanOptions, BaseItemType::Isotope,
          BaseItemType::SamplesProteins, BaseItemType::Karvon}) {
        const std::unique_ptr<IGridItem> item(manager.createItem(kind));
        const Told told = ask(*item, WidgetValidationType(type));
        QVERIFY(told.isValid);
        QVERIFY(told.warnings.isEmpty() && told.errors.isEmpty() && told.details.isEmpty());
    }
}

void ItemValidationTest::aGridIsAsValidAsItsColumns()
{
    const LogCapture log;
    const WholeWorkflow::HostManager manager;
    const QJsonArray rows = {QJsonObject{{text("SamplesId"), 1}, {text("SampleName"), text("one")}}};
    const auto made = PropertyGridWidget::create(
        {text("A"), text("B"), text("C")},
        {cellOf(cellOfSamples(rows)), cellOf(karvonCell()), cellOf(cellOfSamples(rows))});
    QVERIFY(!made.hasError());
    QStringList errors;
    QVERIFY(!(*made)->validate(nullptr, &errors, nullptr, WidgetValidationType::SubmitJob));
    // A failure doesn't end the questions.
    QCOMPARE(errors, QStringList({text("Every sample needs a file."), text("Every sample needs a file.")}));
    QVERIFY((*made)->validate(nullptr, &errors, nullptr, WidgetValidationType::SaveWorkflow));
}

WIDGET_REGISTER_TEST(ItemValidationTest)
#include "ItemValidationTest.moc"
