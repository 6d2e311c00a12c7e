#include "GridHands.h"
#include "LogCapture.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/grid/PropertySelectionDialog.h>
#include <orv/widgets/DialogAnswerer.h>
#include <orv/widgets/ORVStyle.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QFile>
#include <QMimeData>
#include <QPushButton>
#include <QTemporaryDir>
#include <QToolBar>

using namespace orv;
using namespace GridFixture;
using namespace GridHands;

using EditorMode = GridPropertyEditorView::EditorMode;
using ViewMode = GridPropertyEditorView::PropertiesViewMode;

namespace {

/// Whether a file that is dragged there may be dropped on the row of a property.
bool takes(Column &column, const char *name, const QString &path)
{
    KPropertyCustomEditorView *tree = column.view->editorView();
    const QPoint place = tree->visualRect(indexOf(*tree, name)).center();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path)});
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(tree->viewport(), &enter);
    if (!enter.isAccepted())
        return false;
    QDragMoveEvent move(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(tree->viewport(), &move);
    if (!move.isAccepted())
        return false;
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(tree->viewport(), &drop);
    return drop.isAccepted();
}

} // namespace

class GridPropertyEditorViewTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { ORVStyle::setEnabled({}); }
    void bothLayouts_data();
    void bothLayouts();
    void aNewViewIsForUsersWithoutASet();
    void modesAreNumberedAsFilesHaveThem();
    void buttonsAreForDesigners_data();
    void buttonsAreForDesigners();
    void advancedSettingsShowInAdvancedModeAlone();
    void placesAreKeptWhenTheModeChanges();
    void whatCantBeLoadedLeavesTheSet();
    void setsAreTold();
    void whoHearsOfASetMayCloseTheColumn();
    void openingAPreset();
    void presetsThatCantBeOpened();
    void savingAPreset();
    void savingWhereNothingCanBe();
    void addingAProperty();
    void addingAnAdvancedPropertyInBasicMode();
    void cancelChangesNothing();
    void modifyingAProperty();
    void modifyingToAnotherTypeTakesItsDefault();
    void removingAProperty();
    void withoutASetNothingIsAdded();
    void xenosetsGiveValuesAlone();
    void filesThatAreNoXenoset();
    void previewPresets();
    void previewPresetsNeedASet();
    void filesThatAreNoPreviewPreset();
    void filesAreDroppedOnReferencesAlone();
};

void GridPropertyEditorViewTest::bothLayouts_data()
{
    QTest::addColumn<bool>("isEnabled");
    QTest::newRow("tool bar on top") << true;
    QTest::newRow("row of buttons below") << false;
}

void GridPropertyEditorViewTest::bothLayouts()
{
    QFETCH(bool, isEnabled);
    ORVStyle::setEnabled(isEnabled);
    Column column;
    column.view->setEditorMode(EditorMode::Designer);
    QCOMPARE(column.view->findChild<QToolBar *>() != nullptr, isEnabled);
    const QPushButton *open = button(*column.view, "Open a preset file");
    QCOMPARE(open->mapTo(column.view, QPoint()).y() < column.view->editorView()->y(), isEnabled);
    QVERIFY(open->isFlat());
    QCOMPARE(column.view->layout()->contentsMargins(), QMargins());
    QCOMPARE(column.view->layout()->spacing(), 0);
    QStringList toolTips;
    for (const QPushButton *each : column.view->findChildren<QPushButton *>()) {
        toolTips.append(each->toolTip());
        QVERIFY(!each->icon().isNull());
        QCOMPARE(each->accessibleName(), each->toolTip());
    }
    QCOMPARE(toolTips,
             QStringList({text("Open a preset file"), text("Save preset to file"), text("Add new property"),
                          text("Remove property"), text("Modify property")}));
    QVERIFY(column.view->editorView()->isHeaderHidden());
    QVERIFY(!column.view->editorView()->gridLineColor().isValid());
    QVERIFY(column.view->editorView()->acceptDrops());
}

void GridPropertyEditorViewTest::aNewViewIsForUsersWithoutASet()
{
    const GridPropertyEditorView view;
    QVERIFY(!view.propertySet());
    QCOMPARE(view.editorMode(), EditorMode::User);
    QCOMPARE(view.propertiesViewMode(), ViewMode::Basic);
    QCOMPARE(view.documentType(), BaseItemType::Unknown);
    QStringList warnings;
    QVERIFY(view.validate(&warnings));
    QVERIFY(warnings.isEmpty());
}

void GridPropertyEditorViewTest::modesAreNumberedAsFilesHaveThem()
{
    QCOMPARE(int(ViewMode::Basic), 0);
    QCOMPARE(int(ViewMode::Advanced), 1);
    QCOMPARE(int(EditorMode::Designer), 0);
    QCOMPARE(int(EditorMode::User), 1);
}

void GridPropertyEditorViewTest::buttonsAreForDesigners_data()
{
    bothLayouts_data();
}

void GridPropertyEditorViewTest::buttonsAreForDesigners()
{
    QFETCH(bool, isEnabled);
    ORVStyle::setEnabled(isEnabled);
    Column column;
    const auto areShown = [&] {
        const auto buttons = column.view->findChildren<QPushButton *>();
        return std::ranges::count_if(buttons, [](const QPushButton *each) { return each->isVisible(); });
    };
    QCOMPARE(areShown(), 0);
    column.view->setEditorMode(EditorMode::Designer);
    QCOMPARE(areShown(), 5);
    column.view->setEditorMode(EditorMode::User);
    QCOMPARE(areShown(), 0);
}

void GridPropertyEditorViewTest::advancedSettingsShowInAdvancedModeAlone()
{
    Column column;
    column.property("Samples").setVisible(false);
    const KPropertyCustomEditorView &tree = *column.view->editorView();
    QVERIFY(!indexOf(tree, "KarvonDebugMode").isValid());
    QVERIFY(indexOf(tree, "KarvonLayout").isValid());
    column.view->setPropertiesViewMode(ViewMode::Advanced);
    QVERIFY(indexOf(tree, "KarvonDebugMode").isValid());
    QVERIFY(!indexOf(tree, "Samples").isValid());
    column.view->setPropertiesViewMode(ViewMode::Basic);
    QVERIFY(!indexOf(tree, "KarvonDebugMode").isValid());
    QCOMPARE(valueIn(column.item.content(), "KarvonDebugMode"), QJsonValue(text("false")));
}

void GridPropertyEditorViewTest::placesAreKeptWhenTheModeChanges()
{
    Column column;
    KPropertyCustomEditorView *tree = column.view->editorView();
    column.select("KarvonLayout");
    const QModelIndex files = indexOf(*tree, "KarvonLayout").parent();
    const QModelIndex search = indexOf(*tree, "Samples").parent();
    QVERIFY(files.isValid() && search.isValid());
    tree->collapse(search);
    column.view->setPropertiesViewMode(ViewMode::Advanced);
    QVERIFY(!tree->isExpanded(indexOf(*tree, "Samples").parent()));
    QVERIFY(tree->isExpanded(indexOf(*tree, "KarvonLayout").parent()));
    QCOMPARE(KPropertyUtils::propertyForIndex(tree->currentIndex())->name(), QByteArray("KarvonLayout"));
    QVERIFY(column.view->isExpanded());
    column.view->collapseAll();
    QVERIFY(!column.view->isExpanded());
    column.view->expandAll();
    QVERIFY(tree->isExpanded(indexOf(*tree, "Samples").parent()));
}

void GridPropertyEditorViewTest::whatCantBeLoadedLeavesTheSet()
{
    Column column;
    const KPropertySet *set = &column.set();
    LogCapture log;
    QVERIFY(column.view->setPropertiesFromSerializedJson("{").hasError());
    QVERIFY(column.view
                ->setPropertiesFromSerializedJson(
                    bytes(settingsCell("Karvon", {setting("AlignmentEnabled", true)})))
                .hasError());
    QCOMPARE(column.view->propertySet(), set);
    QVERIFY(indexOf(*column.view->editorView(), "KarvonLayout").isValid());
}

void GridPropertyEditorViewTest::setsAreTold()
{
    Column column;
    QPointer<KPropertySet> old = &column.set();
    const KPropertySet *told = nullptr;
    QByteArray changed;
    connect(column.view, &GridPropertyEditorView::propertySetChanged, this,
            [&](KPropertySet &set) { told = &set; });
    connect(column.view, &GridPropertyEditorView::propertyChanged, this,
            [&](KPropertySet &, KProperty &property) { changed = property.name(); });
    QVERIFY(!column.view->setPropertiesFromSerializedJson(bytes(karvonCell())).hasError());
    QVERIFY(!old);
    QCOMPARE(told, &column.set());
    column.property("Samples").setValue(text("three"));
    QCOMPARE(changed, QByteArray("Samples"));
}

void GridPropertyEditorViewTest::whoHearsOfASetMayCloseTheColumn()
{
    QPointer<GridPropertyEditorView> view = new GridPropertyEditorView;
    view->setDocumentType(BaseItemType::Karvon);
    connect(view, &GridPropertyEditorView::propertySetChanged, this, [&] { delete view; });
    const Error error = view->setPropertiesFromSerializedJson(bytes(karvonCell()));
    QVERIFY(!error.hasError());
    QVERIFY(!view);
}

void GridPropertyEditorViewTest::openingAPreset()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(text("search.ptcell"));
    write(path, bytes(settingsCell("Karvon", {setting("KarvonLayout", text("other.ini"))})));
    Column column;
    column.view->setBaseUrlForRelativeUrls(QUrl(text("file:///data/")));
    column.view->setEditorMode(EditorMode::Designer);
    int edits = 0;
    connect(column.item.edits(), &GridItemEdits::edited, this, [&] { ++edits; });
    ScriptedAnswerer answers;
    answers.expectPath(text("Open a preset file"), path);
    click(*column.view, "Open a preset file");
    QVERIFY(answers.isDone());
    QVERIFY(answers.transcript().constFirst().text.contains(text("*.ptcell")));
    QVERIFY(!column.set().contains("KarvonDebugMode"));
    QCOMPARE(column.property("KarvonLayout").option("baseUrl").toUrl(), QUrl(text("file:///data/")));
    QCOMPARE(edits, 1);
}

void GridPropertyEditorViewTest::presetsThatCantBeOpened()
{
    const QTemporaryDir folder;
    const QString empty = folder.filePath(text("empty.ptcell"));
    const QString broken = folder.filePath(text("broken.ptcell"));
    const QString missing = folder.filePath(text("missing.ptcell"));
    write(empty, {});
    write(broken, "{\"properties\": [");
    Column column;
    column.view->setEditorMode(EditorMode::Designer);
    const QByteArray before = bytes(column.item.content());
    ScriptedAnswerer answers;
    answers.expectPath(text("Open a preset file"), empty);
    answers.expectBox(text("Loading file"), text("OK"));
    answers.expectPath(text("Open a preset file"), missing);
    answers.expectBox(text("Loading file"), text("OK"));
    answers.expectPath(text("Open a preset file"), broken);
    answers.expectPath(text("Open a preset file"), {});
    LogCapture log;
    for (int i = 0; i < 4; ++i)
        click(*column.view, "Open a preset file");
    QVERIFY(answers.isDone());
    QCOMPARE(answers.transcript().at(1).text, text("The file \"%1\" is empty.").arg(empty));
    QCOMPARE(answers.transcript().at(1).kind, DialogRequest::Kind::Warning);
    QCOMPARE(answers.transcript().at(3).text, text("Could not open preset file \"%1\".").arg(missing));
    QCOMPARE(bytes(column.item.content()), before);
}

void GridPropertyEditorViewTest::savingAPreset()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(text("search.ptcell"));
    Column column;
    column.view->setEditorMode(EditorMode::Designer);
    ScriptedAnswerer answers;
    answers.expectPath(text("Save preset to file"), path);
    answers.expectPath(text("Save preset to file"), {});
    click(*column.view, "Save preset to file");
    click(*column.view, "Save preset to file");
    QVERIFY(answers.isDone());
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QJsonObject saved = Documents::parse(file.readAll());
    QCOMPARE(saved.value(text("properties")), karvonCell().value(text("properties")));
    QVERIFY(saved.value(text("metadata")).toString().contains(text("\"version\"")));
}

void GridPropertyEditorViewTest::savingWhereNothingCanBe()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(text("no/such/folder/search.ptcell"));
    Column column;
    column.view->setEditorMode(EditorMode::Designer);
    ScriptedAnswerer answers;
    answers.expectPath(text("Save preset to file"), path);
    answers.expectBox(text("Saving file"), text("OK"));
    LogCapture log;
    click(*column.view, "Save preset to file");
    QVERIFY(answers.isDone());
    QVERIFY(answers.transcript().constLast().text.startsWith(text("Cannot save to file \"%1\": ").arg(path)));
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(log.warnings().constFirst().startsWith(text("Can't write property set to file")));
}

void GridPropertyEditorViewTest::addingAProperty()
{
    Column column;
    column.view->setEditorMode(EditorMode::Designer);
    int edits = 0;
    connect(column.item.edits(), &GridItemEdits::edited, this, [&] { ++edits; });
    ScriptedAnswerer answers;
    answers.expectDialog(text("Add a property"), [](QDialog &dialog) {
        const QComboBox *groups = combo(dialog, "comboGroup");
        if (groups->findText(text("Expert")) < 0 || groups->findText(text("Search")) < 0)
            return false;
        choose(dialog, "comboProperty", int(PropertyId::KarvonCentroidTopk));
        choose(dialog, "comboPriority", 2);
        combo(dialog, "comboGroup")->setCurrentText(text("Files"));
        return true;
    });
    click(*column.view, "Add new property");
    QVERIFY(answers.isDone());
    QCOMPARE(edits, 1);
    const QByteArray name = "KarvonCentroidTopk";
    QVERIFY(column.set().contains(name));
    QCOMPARE(column.set().groupCaption(column.set().groupNameForProperty(name)), text("Files"));
    QCOMPARE(KPropertyUtils::propertyForIndex(column.view->editorView()->currentIndex())->name(), name);
    QCOMPARE(valueIn(column.item.content(), name.constData()),
             PropertySetCreator::storedDefault(PropertyId::KarvonCentroidTopk));
}

void GridPropertyEditorViewTest::addingAnAdvancedPropertyInBasicMode()
{
    Column column;
    column.view->setEditorMode(EditorMode::Designer);
    ScriptedAnswerer answers;
    answers.expectDialog(text("Add a property"), [](QDialog &dialog) {
        choose(dialog, "comboProperty", int(PropertyId::KarvonCentroidTopk));
        choose(dialog, "comboPriority", 3);
        return true;
    });
    click(*column.view, "Add new property");
    QVERIFY(!indexOf(*column.view->editorView(), "KarvonCentroidTopk").isValid());
    QVERIFY(!valueIn(column.item.content(), "KarvonCentroidTopk").isUndefined());
    column.view->setPropertiesViewMode(ViewMode::Advanced);
    QVERIFY(indexOf(*column.view->editorView(), "KarvonCentroidTopk").isValid());
}

void GridPropertyEditorViewTest::cancelChangesNothing()
{
    Column column;
    column.view->setEditorMode(EditorMode::Designer);
    column.select("KarvonLayout");
    const QByteArray before = bytes(column.item.content());
    ScriptedAnswerer answers;
    const auto cancel = [](QDialog &dialog) {
        choose(dialog, "comboPriority", 2);
        return false;
    };
    answers.expectDialog(text("Add a property"), cancel);
    answers.expectDialog(text("Modify property"), cancel);
    click(*column.view, "Add new property");
    click(*column.view, "Modify property");
    QVERIFY(answers.isDone());
    QCOMPARE(bytes(column.item.content()), before);
}

void GridPropertyEditorViewTest::modifyingAProperty()
{
    Column column;
    column.view->setEditorMode(EditorMode::Designer);
    column.select("KarvonLayout");
    ScriptedAnswerer answers;
    answers.expectDialog(text("Modify property"), [](QDialog &dialog) {
        const bool isFilled = combo(dialog, "comboProperty")->currentData().toInt() == 60 &&
                              combo(dialog, "comboGroup")->currentText() == text("Files") &&
                              combo(dialog, "comboPriority")->currentData().toInt() == 2;
        choose(dialog, "comboPriority", 1);
        combo(dialog, "comboGroup")->setCurrentText(text("Search"));
        return isFilled;
    });
    click(*column.view, "Modify property");
    QVERIFY(answers.isDone());
    const QJsonObject expected = setting("KarvonLayout", text("layout.ini"), 1, "Search");
    QVERIFY(column.item.content().value(text("properties")).toArray().contains(expected));
}

void GridPropertyEditorViewTest::modifyingToAnotherTypeTakesItsDefault()
{
    Column column;
    column.view->setEditorMode(EditorMode::Designer);
    column.select("Samples");
    ScriptedAnswerer answers;
    answers.expectDialog(text("Modify property"), [](QDialog &dialog) {
        choose(dialog, "comboProperty", int(PropertyId::KarvonCentroidTopk));
        return true;
    });
    click(*column.view, "Modify property");
    QVERIFY(!column.set().contains("Samples"));
    QCOMPARE(valueIn(column.item.content(), "KarvonCentroidTopk"), QJsonValue(0));
}

void GridPropertyEditorViewTest::removingAProperty()
{
    Column column;
    column.view->setEditorMode(EditorMode::Designer);
    column.view->editorView()->setCurrentIndex({});
    click(*column.view, "Remove property");
    QCOMPARE(column.item.content().value(text("properties")).toArray().size(), 4);
    int edits = 0;
    connect(column.item.edits(), &GridItemEdits::edited, this, [&] { ++edits; });
    column.select("KarvonLayout");
    click(*column.view, "Remove property");
    QVERIFY(!column.set().contains("KarvonLayout"));
    QVERIFY(!indexOf(*column.view->editorView(), "KarvonLayout").isValid());
    QCOMPARE(edits, 1);
}

void GridPropertyEditorViewTest::withoutASetNothingIsAdded()
{
    GridPropertyEditorView view;
    view.setEditorMode(EditorMode::Designer);
    view.show();
    LogCapture log;
    click(view, "Add new property");
    click(view, "Modify property");
    click(view, "Remove property");
    QCOMPARE(log.warnings(), QStringList({text("Set is empty"), text("Set is empty")}));
}

void GridPropertyEditorViewTest::xenosetsGiveValuesAlone()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(text("search.xenoset"));
    write(path, "[centroid]\ncentroid_topk=250\n");
    Column column(
        settingsCell("Karvon", {setting("Samples", text("*")), setting("KarvonCentroidTopk", 1000)}));
    ScriptedAnswerer answers;
    answers.expectPath(text("Open xenoset"), path);
    const LogCapture log; // of all that the file leaves open
    column.view->loadKarvonParameters(column.view);
    QVERIFY(answers.isDone());
    const QJsonArray expected{setting("Samples", text("*")), setting("KarvonCentroidTopk", 250)};
    QCOMPARE(column.item.content().value(text("properties")).toArray(), expected);
    column.set().removeProperty("KarvonCentroidTopk");
    answers.expectPath(text("Open xenoset"), path);
    column.view->loadKarvonParameters(column.view);
    QVERIFY(answers.isDone());
    QCOMPARE(column.item.content().value(text("properties")).toArray(), QJsonArray{expected.at(0)});
}

void GridPropertyEditorViewTest::filesThatAreNoXenoset()
{
    const QTemporaryDir folder;
    const QString missing = folder.filePath(text("missing.xenoset"));
    Column column;
    ScriptedAnswerer answers;
    answers.expectPath(text("Open xenoset"), missing);
    answers.expectBox(text("Loading xenoset"), text("OK"));
    answers.expectPath(text("Open xenoset"), {});
    LogCapture log;
    column.view->loadKarvonParameters(column.view);
    column.view->loadKarvonParameters(column.view);
    QVERIFY(answers.isDone());
    QCOMPARE(answers.transcript().at(1).text,
             text("Can't create KPropertySet from xenoset: %1").arg(missing));
}

void GridPropertyEditorViewTest::previewPresets()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(text("preview.prv"));
    write(path, "DigestLetters=RK\nWildcard=1\nFragType=2\nCysMod=Carbamidomethyl / 57.021464\n");
    GridPropertyEditorView view;
    view.setDocumentType(BaseItemType::Preview);
    const QJsonArray before{setting("PreviewDigestLetters", text("K")),
                            setting("PreviewWildcard", text("false")), setting("PreviewFragType", 0),
                            setting("Samples", text("*"))};
    QVERIFY(!view.setPropertiesFromSerializedJson(bytes(settingsCell("Preview", before))).hasError());
    ScriptedAnswerer answers;
    answers.expectPath(text("Open preview"), path);
    view.loadPreviewParameters(nullptr);
    QVERIFY(answers.isDone());
    QByteArray written;
    QVERIFY(PropertySetCreator::propertySetToJson(*view.propertySet(), &written,
                                                  PropertyEditor::PropertyConversionFlag::KeepPaths));
    const QJsonArray expected{setting("PreviewDigestLetters", text("RK")),
                              setting("PreviewWildcard", text("true")), setting("PreviewFragType", 2),
                              setting("Samples", text("*"))};
    QCOMPARE(Documents::parse(written).value(text("properties")).toArray(), expected);
}

void GridPropertyEditorViewTest::previewPresetsNeedASet()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(text("preview.prv"));
    Column column(settingsCell("Karvon", {setting("Samples", text("*"))}));
    GridPropertyEditorView view;
    write(path, "DigestLetters=RK\n");
    ScriptedAnswerer answers;
    answers.expectPath(text("Open preview"), path);
    answers.expectBox(text("Loading xenoset"), text("OK"));
    LogCapture log;
    view.loadPreviewParameters(nullptr);
    QVERIFY(answers.isDone());
    QCOMPARE(answers.transcript().constLast().text, text("View does not contain property set"));
}

void GridPropertyEditorViewTest::filesThatAreNoPreviewPreset()
{
    const QTemporaryDir folder;
    Column column;
    ScriptedAnswerer answers;
    answers.expectPath(text("Open preview"), folder.filePath(text("missing.prv")));
    answers.expectBox(text("Loading preview preset"), text("OK"));
    LogCapture log;
    column.view->loadPreviewParameters(column.view);
    QVERIFY(answers.isDone());
    QCOMPARE(answers.transcript().constLast().text, text("Unable to load file"));
}

void GridPropertyEditorViewTest::filesAreDroppedOnReferencesAlone()
{
    const QTemporaryDir folder;
    const QString layout = folder.filePath(text("Wide.INI"));
    const QString other = folder.filePath(text("notes.txt"));
    write(layout, "x");
    write(other, "x");
    Column column;
    QVERIFY(!takes(column, "Samples", layout));
    QVERIFY(!takes(column, "KarvonLayout", other));
    QVERIFY(!takes(column, "KarvonLayout", folder.path()));
    QVERIFY(!takes(column, "KarvonLayout", folder.filePath(text("missing.ini"))));
    QVERIFY(takes(column, "KarvonLayout", layout));
    QCOMPARE(valueIn(column.item.content(), "KarvonLayout").toString(), layout);

    column.property("KarvonLayout").setOption("fileMode", text("dirsOnly"));
    QVERIFY(!takes(column, "KarvonLayout", layout));
    QVERIFY(takes(column, "KarvonLayout", folder.path()));
    column.property("KarvonLayout").setOption("fileMode", text("anything"));
    QVERIFY(!takes(column, "KarvonLayout", layout));
    column.property("KarvonLayout").setOption("ext", QString());
    QVERIFY(takes(column, "KarvonLayout", other));
    QCOMPARE(valueIn(column.item.content(), "KarvonLayout").toString(), other);
}

WIDGET_REGISTER_TEST(GridPropertyEditorViewTest)
#include "GridPropertyEditorViewTest.moc"
