#include "LogCapture.h"
#include "PersonActs.h"
#include "WholeWorkflow.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/editors/ORVPropertyFactory.h>
#include <orv/propertyeditor/grid/PropertyGridWidget.h>

#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>

using namespace orv;
using namespace GridFixture;

namespace {

QString typeName(BaseItemType type)
{
    return PropertyEditor::BaseItem::typeToString(type);
}

QStringList entryNames(const QJsonObject &cell)
{
    QStringList names;
    for (const auto entry : cell.value(text("properties")).toArray())
        names.append(entry[text("name")].toString());
    return names;
}

/// Does whatever a person can do until something was edited.
bool editSomething(const IGridItem &item, QWidget *widget)
{
    bool isEdited = false;
    QObject context;
    QObject::connect(item.edits(), &GridItemEdits::edited, &context, [&] { isEdited = true; });
    const PersonActs::Blunt answers(true);
    // What an earlier test has copied must not decide what this one pastes.
    QGuiApplication::clipboard()->setText(text("Monosaccharide\tHexose\tC6H10O5"));
    const QJsonObject before = item.content();
    for (int round = 0; round < 2; ++round) {
        for (const PersonActs::Act &act : PersonActs::actsOf(widget)) {
            PersonActs::perform(act);
            if (isEdited && item.content() != before)
                return true;
        }
    }
    return false;
}

bool editSomething(const IGridItem &item, QWidget *widget, const QSize &size)
{
    widget->resize(size);
    widget->show();
    return QTest::qWaitForWindowActive(widget) && editSomething(item, widget);
}

Result<std::unique_ptr<PropertyGridWidget>> emptyGrid()
{
    return PropertyGridWidget::create({}, {});
}

} // namespace

/// Columns that begin with little or nothing.
class AddedColumnsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ORVPropertyFactory::init(); }
    void everyTypeCanBeAppended_data();
    void everyTypeCanBeAppended();
    void aFailedAppendIsLogged();
    void editsOfAppendedColumnsAreKept_data();
    void editsOfAppendedColumnsAreKept();
    void cellsWithoutTheirEntry_data() { addLackingTables(); }
    void cellsWithoutTheirEntry();
    void impuritiesAloneAreAdded();
    void columnsThatComeLaterKnowTheFolder();
    void moreCellsThanNames();

private:
    static void addLackingTables();
};

void AddedColumnsTest::everyTypeCanBeAppended_data()
{
    QTest::addColumn<QString>("type");
    for (const QString &name : PropertyEditor::BaseItem::typeNames()) {
        if (name != text("Unknown"))
            QTest::newRow(qPrintable(name)) << name;
    }
}

void AddedColumnsTest::everyTypeCanBeAppended()
{
    QFETCH(QString, type);
    const WholeWorkflow::HostManager manager;
    auto grid = emptyGrid();
    QVERIFY(!grid.hasError());
    const LogCapture log;
    (*grid)->appendColumn(PropertyEditor::BaseItem::typeFromString(type), text("New"), true);
    QCOMPARE((*grid)->items().size(), 1);
    QCOMPARE((*grid)->columnNames(), QStringList(text("New")));
    for (const QString &warning : log.warnings())
        QVERIFY2(!warning.contains(text("Cannot build a default")), qPrintable(warning));
    const QByteArray cell = (*grid)->cells().at(0).toByteArray();
    QCOMPARE(Documents::parse(cell).value(text("type")).toString(), type);
    QVERIFY(!PropertyGridWidget::create({text("New")}, {cell}).hasError());
}

void AddedColumnsTest::aFailedAppendIsLogged()
{
    auto grid = emptyGrid();
    QVERIFY(!grid.hasError());
    int edits = 0;
    connect(grid->get(), &PropertyGridWidget::contentEdited, this, [&] { ++edits; });
    const LogCapture log;
    (*grid)->appendColumn(BaseItemType::Unknown, text("New"), true);
    QCOMPARE(log.texts(QtCriticalMsg),
             QStringList(text("Can't append the column New : Type \"Unknown\" is not supported.")));
    QCOMPARE((*grid)->columnNames(), QStringList(text("New")));
    QVERIFY((*grid)->items().isEmpty());
    QCOMPARE(edits, 0);
}

void AddedColumnsTest::editsOfAppendedColumnsAreKept_data()
{
    QTest::addColumn<BaseItemType>("kind");
    for (const BaseItemType kind : WholeWorkflow::kinds()) {
        if (kind != BaseItemType::Karvon)
            QTest::newRow(qPrintable(WholeWorkflow::nameOf(kind))) << kind;
    }
}

void AddedColumnsTest::editsOfAppendedColumnsAreKept()
{
    QFETCH(BaseItemType, kind);
    const LogCapture log;
    const WholeWorkflow::HostManager manager;
    auto grid = emptyGrid();
    QVERIFY(!grid.hasError());
    (*grid)->appendColumn(kind, text("New"), true);
    // Bonds are drawn between proteins that another column tells of.
    if (kind == BaseItemType::Disulfide) {
        const QJsonObject proteins =
            valueIn(WholeWorkflow::defaultCell(BaseItemType::Proteins), "Proteins").toObject();
        static_cast<DisulfideItem *>((*grid)->items().constFirst())->setProteinsContent(proteins);
    }
    QCoreApplication::processEvents();
    const VariantItems untouched = (*grid)->cells();
    (*grid)->resize(900, 600);
    (*grid)->show();
    QVERIFY(QTest::qWaitForWindowActive(grid->get()));
    QVERIFY2(editSomething(*(*grid)->items().constFirst(), grid->get()), "Nothing was edited");
    const VariantItems edited = (*grid)->cells();
    QVERIFY(edited != untouched);
    QVERIFY(!entryNames(Documents::parse(edited.at(0).toByteArray())).isEmpty());
    const auto again = PropertyGridWidget::create({text("New")}, edited);
    QVERIFY2(!again.hasError(), qPrintable(again.error().errorMessage()));
    QCOMPARE((*again)->cells(), edited);
}

void AddedColumnsTest::addLackingTables()
{
    QTest::addColumn<BaseItemType>("kind");
    QTest::addColumn<QString>("entry");
    const auto row = [](BaseItemType kind, const char *entry) {
        QTest::newRow(entry) << kind << text(entry);
    };
    row(BaseItemType::Samples, "SamplesTable");
    row(BaseItemType::Proteins, "Proteins");
    row(BaseItemType::IntactProteins, "IntactProteins");
    row(BaseItemType::OligoMolecules, "OligoMolecules");
    row(BaseItemType::SamplesProteins, "SamplesProteins");
    row(BaseItemType::DetachedGlycans, "DetachedGlycans");
    row(BaseItemType::GlycanOptions, "GlycanOptions");
    row(BaseItemType::Isotope, "Isotope");
    row(BaseItemType::IntactOptions, "IntactOptions");
    row(BaseItemType::OligoOptions, "OligoOptions");
}

void AddedColumnsTest::cellsWithoutTheirEntry()
{
    QFETCH(BaseItemType, kind);
    QFETCH(QString, entry);
    const LogCapture log;
    const WholeWorkflow::HostManager manager;
    const QJsonObject other{{text("name"), text("Unheard")}, {text("value"), 7}};
    const QJsonObject cell{{text("type"), typeName(kind)},
                           {text("name"), text("Column")},
                           {text("note"), text("kept")},
                           {text("properties"), QJsonArray{other}}};
    const std::unique_ptr<IGridItem> item(manager.createItem(kind));
    const Error error = item->setContent(cell);
    QVERIFY2(!error.hasError(), qPrintable(error.errorMessage()));
    item->setName(text("Column"));
    QCoreApplication::processEvents();
    QCOMPARE(item->content(), cell);
    QVERIFY2(editSomething(*item, item->widget(), {700, 600}), "Nothing was edited");
    const QJsonObject edited = item->content();
    QCOMPARE(entryNames(edited), QStringList({text("Unheard"), entry}));
    QVERIFY(!valueIn(edited, qPrintable(entry)).toObject().isEmpty());
    QCOMPARE(edited.value(text("note")).toString(), text("kept"));
    const std::unique_ptr<IGridItem> again(manager.createItem(kind));
    QVERIFY(!again->setContent(edited).hasError());
    again->setName(text("Column"));
    QCOMPARE(again->content(), edited);
}

void AddedColumnsTest::impuritiesAloneAreAdded()
{
    const LogCapture log;
    OligoMassTableItem item;
    item.setType(BaseItemType::OligoMasses);
    QVERIFY(
        !item.setContent(PropertyEditorJsonUtils::defaultJsonContents(BaseItemType::OligoMasses)).hasError());
    const QStringList before = entryNames(item.content());
    QCOMPARE(before.size(), 3);
    item.widget()->show();
    auto *loss = item.widget()->findChild<QCheckBox *>(text("sulfurLoss"));
    const bool isLost = loss->isChecked();
    QTest::keyClick(loss, Qt::Key_Space);
    const QJsonObject edited = item.content();
    QCOMPARE(entryNames(edited), before + QStringList(text("OligoImpurities")));
    OligoMassTableItem again;
    again.setType(BaseItemType::OligoMasses);
    QVERIFY(!again.setContent(edited).hasError());
    QCOMPARE(again.widget()->findChild<QCheckBox *>(text("sulfurLoss"))->isChecked(), !isLost);
}

void AddedColumnsTest::columnsThatComeLaterKnowTheFolder()
{
    const LogCapture log;
    auto grid = PropertyGridWidget::create({text("A")}, {cellOf(karvonCell())});
    QVERIFY(!grid.hasError());
    const QUrl folder(text("file:///data/project/"));
    (*grid)->updateBaseUrlForRelativeUrls(folder);
    (*grid)->copyColumn(0);
    QCOMPARE((*grid)->items().size(), 2);
    int files = 0;
    for (IGridItem *item : (*grid)->items()) {
        const auto *view = qobject_cast<GridPropertyEditorView *>(item->widget());
        for (KPropertySetIterator property(*view->propertySet()); *property; ++property) {
            const QVariant url = (*property)->option("baseUrl");
            if ((*property)->name() == "KarvonLayout") {
                ++files;
                QCOMPARE(url.toUrl(), folder);
            }
        }
    }
    QCOMPARE(files, 2);
}

void AddedColumnsTest::moreCellsThanNames()
{
    const auto grid =
        PropertyGridWidget::create({text("A")}, {cellOf(karvonCell()), cellOf(karvonCell("B"))});
    QVERIFY(!grid.hasError());
    QCOMPARE((*grid)->items().size(), 2);
    QCOMPARE((*grid)->columnNames(), QStringList(text("A")));
}

WIDGET_REGISTER_TEST(AddedColumnsTest)
#include "AddedColumnsTest.moc"
