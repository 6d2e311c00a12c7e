#include "WidgetTest.h"
#include "WindowFixture.h"

#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/widgets/CoreMainWindow.h>

#include <QBoxLayout>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMetaMethod>
#include <QSignalSpy>
#include <QWidgetAction>

using namespace orv;
using namespace WindowFixture;
using namespace Qt::StringLiterals;

namespace {

QComboBox *comboWith(Window &window, const char *entry)
{
    for (QComboBox *combo : window.findChildren<QComboBox *>()) {
        if (combo->findText(text(entry)) >= 0)
            return combo;
    }
    return nullptr;
}

QToolBar &toolBarOf(Window &window)
{
    return *window.findChild<QToolBar *>(u"toolBar"_s);
}

/// What stands in the tool bar, in order: captions of buttons, "|" for separators, entries of combos.
QStringList toolBarOrder(Window &window)
{
    QStringList order;
    for (QAction *action : toolBarOf(window).actions()) {
        const auto *shown = qobject_cast<QWidgetAction *>(action);
        QWidget *widget = shown ? shown->defaultWidget() : nullptr;
        if (action->isSeparator())
            order.append(u"|"_s);
        else if (auto *button = qobject_cast<QToolButton *>(widget))
            order.append(button->text());
        else if (auto *combo = qobject_cast<QComboBox *>(widget))
            order.append(combo->itemText(0) + u'/' + combo->itemText(1));
        else
            order.append(u"<>"_s);
    }
    return order;
}

/// Methods of the class itself whose names are among \a names, in the order of the class.
QStringList methodsOf(QMetaMethod::MethodType type, const QSet<QByteArray> &names)
{
    const QMetaObject &meta = PropertyEditorWindow::staticMetaObject;
    QStringList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        if (method.methodType() == type && names.contains(method.name()))
            signatures.append(QString::fromLatin1(method.methodSignature()).remove(u"orv::"_s));
    }
    return signatures;
}

} // namespace

class WindowFormTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void partsHaveTheirNamesAndPlaces();
    void toolBarHasItsOrder();
    void toolTipsExplain();
    void usersSeeNoDesignerTools();
    void designersSeeTheirTools();
    void modesReachTheTabs();
    void startsInUserMode();
    void processButtonNeedsNodes();
    void fileOperationsCanBeSwitchedOff();
    void readOnlyWindowsOnlyClose();
    void theLastWindowIsCurrent();
    void captionsFollowTheCurrentWindow();
    void propertiesAreEdited();
    void tabsOfTheToolBarAreReachedByKeyboard();
    void signalsAndSlotsHaveTheirOrder();
    void toolsDoWhatTheySay_data();
    void toolsDoWhatTheySay();
    void buttonsBelowTheTabsHandOver();
    void modesHaveIcons();
    void designersSeeAllProperties();
};

void WindowFormTest::partsHaveTheirNamesAndPlaces()
{
    Window window;
    QCOMPARE(window.objectName(), u"PropertyEditorWindow"_s);
    QCOMPARE(window.windowTitle(), u"Project Creation"_s);
    QCOMPARE(window.size(), QSize(1100, 700));
    QCOMPARE(window.centralWidget()->objectName(), u"centralWidget"_s);
    const auto *vertical = qobject_cast<QVBoxLayout *>(window.centralWidget()->layout());
    QCOMPARE(vertical->objectName(), u"verticalLayout"_s);
    QCOMPARE(vertical->itemAt(0)->widget(), &window.tabs());
    QCOMPARE(window.tabs().currentIndex(), -1);
    QLayout *horizontal = vertical->itemAt(1)->layout();
    QCOMPARE(horizontal->objectName(), u"horizontalLayout"_s);
    const QSpacerItem *spacer = horizontal->itemAt(0)->spacerItem();
    QCOMPARE(spacer->sizeHint(), QSize(0, 20));
    QCOMPARE(spacer->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum));
    QCOMPARE(horizontal->itemAt(1)->widget(), &window.button("pushCreateProject"));
    QCOMPARE(horizontal->itemAt(2)->widget(), &window.button("pushButton_process"));
    QCOMPARE(window.button("pushCreateProject").text(), u"Create Project..."_s);
    QCOMPARE(window.button("pushButton_process").text(), u"Process workflow..."_s);
    QCOMPARE(window.toolBarArea(&toolBarOf(window)), Qt::TopToolBarArea);
}

void WindowFormTest::toolBarHasItsOrder()
{
    Window window;
    const QStringList expected{u"Launch Workflow..."_s,
                               u"Save Workflow..."_s,
                               u"Save As Portable Workflow..."_s,
                               u"Workflow Properties..."_s,
                               u"Update workflows from dir..."_s,
                               u"|"_s,
                               u"Add tab"_s,
                               u"Remove current tab"_s,
                               u"Update workflows from dir..."_s,
                               u"<>"_s,
                               u"Basic Options/Advanced Options"_s,
                               u"Designer mode/User mode"_s};
    QCOMPARE(toolBarOrder(window), expected);
    const QList<QAction *> actions = toolBarOf(window).actions();
    const auto widgetOf = [&actions](int index) {
        return qobject_cast<QWidgetAction *>(actions.at(index))->defaultWidget();
    };
    QCOMPARE(widgetOf(4), widgetOf(8));
    QCOMPARE(widgetOf(9)->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));
    QCOMPARE(comboWith(window, "Basic Options")->itemData(0).toInt(), 0);
    QCOMPARE(comboWith(window, "Basic Options")->itemData(1).toInt(), 1);
    QCOMPARE(comboWith(window, "Designer mode")->itemData(0).toInt(), 0);
    QCOMPARE(comboWith(window, "Designer mode")->itemData(1).toInt(), 1);
}

void WindowFormTest::toolTipsExplain()
{
    Window window;
    QCOMPARE(window.toolButton("Launch Workflow...")->toolTip(), u"Launch Workflow from a file"_s);
    QCOMPARE(window.toolButton("Save Workflow...")->toolTip(), u"Save workflow to a file"_s);
    QCOMPARE(window.toolButton("Save As Portable Workflow...")->toolTip(), u"Save as a portable workflow"_s);
    QCOMPARE(window.toolButton("Workflow Properties...")->toolTip(), u"Open workflow properties"_s);
    QCOMPARE(window.toolButton("Update workflows from dir...")->toolTip(),
             u"Updates all system worklows into newest version"_s);
    QCOMPARE(window.toolButton("Add tab")->toolTip(), u"Add tab"_s);
    QCOMPARE(window.toolButton("Remove current tab")->toolTip(), u"Remove current tab"_s);
}

void WindowFormTest::usersSeeNoDesignerTools()
{
    Window window;
    window.show();
    QVERIFY(!PropertyEditorWindow::designerModeEnabled());
    QVERIFY(!window.toolButton("Add tab")->isVisible());
    QVERIFY(!window.toolButton("Remove current tab")->isVisible());
    QVERIFY(!comboWith(window, "Designer mode")->isVisible());
    QVERIFY(comboWith(window, "Basic Options")->isVisible());
    const QList<QAction *> actions = toolBarOf(window).actions();
    for (int i = 5; i <= 8; ++i)
        QVERIFY(!actions.at(i)->isVisible());
    for (int i = 0; i <= 4; ++i)
        QVERIFY(actions.at(i)->isVisible());
    // One button stands for both actions, so that it goes with the one of the designers.
    QVERIFY(!window.toolButton("Update workflows from dir...")->isVisible());
}

void WindowFormTest::designersSeeTheirTools()
{
    const as::ScopedOverride designer(as::kEnableDesignerMode, true);
    Window window;
    window.resize(2000, 700);
    window.show();
    QVERIFY(PropertyEditorWindow::designerModeEnabled());
    QComboBox *modes = comboWith(window, "Designer mode");
    QVERIFY(modes->isVisible());
    QCOMPARE(modes->currentText(), u"User mode"_s);
    QVERIFY(!window.toolButton("Add tab")->isVisible());
    modes->setFocus();
    QTest::keyClick(modes, Qt::Key_Up);
    QTRY_VERIFY(window.toolButton("Add tab")->isVisible());
    QVERIFY(window.toolButton("Remove current tab")->isVisible());
    QVERIFY(window.toolButton("Update workflows from dir...")->isVisible());
    QTest::keyClick(modes, Qt::Key_Down);
    QTRY_VERIFY(!window.toolButton("Add tab")->isVisible());
}

void WindowFormTest::modesReachTheTabs()
{
    const as::ScopedOverride designer(as::kEnableDesignerMode, true);
    Window window;
    window.resize(2000, 700);
    window.show();
    QCOMPARE(window.openWorkflow(documentOf({karvonCell()})), PropertyEditorWindow::OpenStatus::Opened);
    auto *view = qobject_cast<GridPropertyEditorView *>(window.grid(0)->items().first()->widget());
    QCOMPARE(view->editorMode(), GridPropertyEditorView::EditorMode::User);
    QCOMPARE(view->propertiesViewMode(), GridPropertyEditorView::PropertiesViewMode::Basic);
    QTest::keyClick(comboWith(window, "Designer mode"), Qt::Key_Up);
    QCOMPARE(view->editorMode(), GridPropertyEditorView::EditorMode::Designer);
    QTest::keyClick(comboWith(window, "Basic Options"), Qt::Key_Down);
    QCOMPARE(view->propertiesViewMode(), GridPropertyEditorView::PropertiesViewMode::Advanced);
    QVERIFY(!window.addTabWithColumns(u"Later"_s, {u"A"_s}, {Documents::toBytes(karvonCell())}).hasError());
    view = qobject_cast<GridPropertyEditorView *>(window.grid(1)->items().first()->widget());
    QCOMPARE(view->editorMode(), GridPropertyEditorView::EditorMode::Designer);
    QCOMPARE(view->propertiesViewMode(), GridPropertyEditorView::PropertiesViewMode::Advanced);
}

void WindowFormTest::startsInUserMode()
{
    const as::ScopedOverride designer(as::kEnableDesignerMode, true);
    Window window;
    QCOMPARE(comboWith(window, "Designer mode")->currentText(), u"User mode"_s);
    QCOMPARE(comboWith(window, "Basic Options")->currentText(), u"Basic Options"_s);
}

void WindowFormTest::processButtonNeedsNodes()
{
    {
        Window window;
        window.show();
        QVERIFY(!window.button("pushButton_process").isVisible());
    }
    const as::ScopedOverride nodes(u"MIREL/ProcessingNodesEnabled"_s, true);
    Window window;
    window.show();
    QVERIFY(window.button("pushButton_process").isVisible());
}

void WindowFormTest::fileOperationsCanBeSwitchedOff()
{
    Window window;
    for (const bool isEnabled : {false, true}) {
        window.enableWorkflowFileOperations(isEnabled);
        QCOMPARE(window.button("pushCreateProject").isEnabled(), isEnabled);
        QCOMPARE(window.toolButton("Launch Workflow...")->isEnabled(), isEnabled);
        QCOMPARE(window.toolButton("Save Workflow...")->isEnabled(), isEnabled);
        QCOMPARE(window.toolButton("Save As Portable Workflow...")->isEnabled(), isEnabled);
        QVERIFY(window.toolButton("Workflow Properties...")->isEnabled());
    }
}

void WindowFormTest::readOnlyWindowsOnlyClose()
{
    const ScriptedAnswerer answers;
    Window window;
    window.show();
    const QSignalSpy sent(&window, &PropertyEditorWindow::sendToProcessing);
    QCOMPARE(window.openWorkflow(documentOf({karvonCell()})), kOpened);
    const QSignalSpy pressed(&window.button("pushCreateProject"), &QPushButton::pressed);
    int clicks = 0;
    connect(&window.button("pushCreateProject"), &QPushButton::clicked, &window, [&clicks] { ++clicks; });
    window.setReadOnly();
    QCOMPARE(window.windowTitle(), u"Mixture - Project Creation (read only)"_s);
    QCOMPARE(window.button("pushCreateProject").text(), u"Close"_s);
    QTest::mouseClick(&window.button("pushCreateProject"), Qt::LeftButton);
    QVERIFY(!window.isVisible());
    QCOMPARE(clicks, 0);
    QVERIFY(pressed.isEmpty());
    QVERIFY(sent.isEmpty());
    QVERIFY(answers.isDone());
}

void WindowFormTest::theLastWindowIsCurrent()
{
    QCOMPARE(PropertyEditorWindow::currentInstance(), nullptr);
    const Window first;
    QCOMPARE(PropertyEditorWindow::currentInstance(), &first);
    {
        const Window second;
        QCOMPARE(PropertyEditorWindow::currentInstance(), &second);
    }
    QCOMPARE(PropertyEditorWindow::currentInstance(), nullptr);
}

void WindowFormTest::captionsFollowTheCurrentWindow()
{
    QJsonObject oligo = metadata();
    oligo[u"workflowType"_s] = u"DigestedOligo"_s;
    const QString usual = PropertiesNames::displayNameForType(PropertyId(83));
    QVERIFY(usual != u"FDR"_s);
    {
        Window window;
        QCOMPARE(window.openWorkflow(documentOf({karvonCell()}, oligo)),
                 PropertyEditorWindow::OpenStatus::Opened);
        QCOMPARE(PropertiesNames::displayNameForType(PropertyId(83)), u"FDR"_s);
        QCOMPARE(PropertiesNames::displayNameForType(PropertyId(263)), u"Relevant Molecules"_s);
    }
    QCOMPARE(PropertiesNames::displayNameForType(PropertyId(83)), usual);
}

void WindowFormTest::propertiesAreEdited()
{
    Window window;
    window.show();
    QCOMPARE(window.openWorkflow(documentOf({karvonCell()})), PropertyEditorWindow::OpenStatus::Opened);
    ScriptedAnswerer answers;
    answers.expectDialog(u"Workflow Properties"_s, [](QDialog &dialog) {
        dialog.findChild<QLineEdit *>(u"lineName"_s)->setText(u"Refused"_s);
        return false;
    });
    window.click("Workflow Properties...");
    QCOMPARE(WflwMetaData::nameFromMetaDataObject(window.content().metadata()), u"Mixture"_s);
    answers.expectDialog(u"Workflow Properties"_s, [](QDialog &dialog) {
        dialog.findChild<QLineEdit *>(u"lineName"_s)->setText(u"Antibody"_s);
        dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->click();
        return dialog.result() == QDialog::Accepted;
    });
    window.click("Workflow Properties...");
    QCOMPARE(WflwMetaData::nameFromMetaDataObject(window.content().metadata()), u"Antibody"_s);
    QVERIFY(answers.isDone());
}

void WindowFormTest::tabsOfTheToolBarAreReachedByKeyboard()
{
    Window window;
    window.show();
    window.toolButton("Launch Workflow...")->setFocus();
    QTest::keyClick(&window, Qt::Key_Tab);
    QVERIFY(window.toolButton("Save Workflow...")->hasFocus());
    QTest::keyClick(&window, Qt::Key_Tab);
    QVERIFY(window.toolButton("Save As Portable Workflow...")->hasFocus());
    QTest::keyClick(&window, Qt::Key_Tab);
    QVERIFY(window.toolButton("Workflow Properties...")->hasFocus());
}

void WindowFormTest::signalsAndSlotsHaveTheirOrder()
{
    QCOMPARE(methodsOf(QMetaMethod::Signal, {"openProject", "sendToProcessing", "projectCreationFinished"}),
             (QStringList{u"openProject(QString)"_s,
                          u"sendToProcessing(PropertyEditor::Content,Path,DuplicateFilePolicy)"_s,
                          u"sendToProcessing(PropertyEditor::Content,Path)"_s,
                          u"projectCreationFinished(Error,QStringList,qlonglong)"_s}));
    const QStringList slotsInOrder{u"addTab()"_s,
                                   u"removeCurrentTab()"_s,
                                   u"appendRow()"_s,
                                   u"appendColumn()"_s,
                                   u"openTabPreset()"_s,
                                   u"saveTabPreset()"_s,
                                   u"selectAndOpenWorkflow()"_s,
                                   u"openWorkflow(QString,ResourceReferenceSPtr)"_s,
                                   u"openWorkflow(QString)"_s,
                                   u"openWorkflow(PropertyEditor::Content)"_s,
                                   u"openWorkflow(QJsonObject)"_s,
                                   u"createEmptyWorkflow()"_s,
                                   u"saveWorkflowAs()"_s,
                                   u"openWorkflowProperties()"_s,
                                   u"clear()"_s,
                                   u"content()"_s,
                                   u"setContent(PropertyEditorContent)"_s,
                                   u"currentTabContent()"_s,
                                   u"setCurrentTabContent(PropertyEditorContent)"_s,
                                   u"enableWorkflowFileOperations(bool)"_s,
                                   u"createProjectClicked()"_s,
                                   u"processWorkflowClicked()"_s,
                                   u"updateSystemWorkflowsButton()"_s};
    QSet<QByteArray> names;
    for (const QString &signature : slotsInOrder)
        names.insert(signature.section(u'(', 0, 0).toLatin1());
    QCOMPARE(methodsOf(QMetaMethod::Slot, names), slotsInOrder);
}

void WindowFormTest::toolsDoWhatTheySay_data()
{
    QTest::addColumn<QByteArray>("tool");
    QTest::addColumn<QString>("title");
    QTest::newRow("launch") << QByteArray("Launch Workflow...") << u"Launch Workflow"_s;
    QTest::newRow("save") << QByteArray("Save Workflow...") << u"Save Workflow"_s;
    QTest::newRow("update") << QByteArray("Update workflows from dir...") << u"Select workflows directory"_s;
    QTest::newRow("preset to open") << QByteArray("Open Tab Preset...") << u"Open Tab"_s;
    QTest::newRow("preset to save") << QByteArray("Save Tab Preset...") << u"Save tab to file"_s;
}

void WindowFormTest::toolsDoWhatTheySay()
{
    QFETCH(const QByteArray, tool);
    QFETCH(const QString, title);
    const as::ScopedOverride designer(as::kEnableDesignerMode, true);
    Window window;
    window.resize(2000, 700);
    window.show();
    QCOMPARE(window.openWorkflow(documentOf({karvonCell()})), kOpened);
    QTest::keyClick(comboWith(window, "Designer mode"), Qt::Key_Up);
    QTRY_VERIFY(window.toolButton(tool.constData())->isVisible());
    ScriptedAnswerer answers;
    answers.expectPath(title, {});
    window.click(tool.constData());
    QVERIFY2(answers.isDone(), qPrintable(transcriptOf(answers).join(u'\n')));
}

void WindowFormTest::buttonsBelowTheTabsHandOver()
{
    const LogCapture log;
    const as::ScopedOverride nodes(u"MIREL/ProcessingNodesEnabled"_s, true);
    Window window;
    window.show();
    QCOMPARE(window.openWorkflow(documentOf({previewCell()})), kOpened);
    for (const char *name : {"pushCreateProject", "pushButton_process"}) {
        ScriptedAnswerer answers;
        answers.expectBox(u"Project creation"_s, u"OK"_s);
        QTest::mouseClick(&window.button(name), Qt::LeftButton);
        QVERIFY2(answers.isDone(), name);
        QVERIFY(answers.transcript().first().text.startsWith(u"The workflow is not valid."_s));
    }
}

void WindowFormTest::modesHaveIcons()
{
    Window window;
    for (const char *entry : {"Basic Options", "Designer mode"}) {
        const QComboBox *modes = comboWith(window, entry);
        QVERIFY(!modes->itemIcon(0).isNull() && !modes->itemIcon(1).isNull());
    }
}

void WindowFormTest::designersSeeAllProperties()
{
    const as::ScopedOverride designer(as::kEnableDesignerMode, true);
    Window window;
    window.resize(2000, 700);
    window.show();
    QCOMPARE(window.openWorkflow(documentOf({karvonCell()})), kOpened);
    for (const bool isDesigner : {false, true}) {
        if (isDesigner)
            QTest::keyClick(comboWith(window, "Designer mode"), Qt::Key_Up);
        const LogCapture log;
        ScriptedAnswerer answers;
        answers.expectDialog(u"Workflow Properties"_s, [isDesigner](QDialog &dialog) {
            const auto *types = dialog.findChild<QComboBox *>(u"comboTypes"_s);
            return types->isVisibleTo(&dialog) == isDesigner;
        });
        const QSignalSpy edited(&window, &PropertyEditorWindow::metadataEdited);
        window.click("Workflow Properties...");
        QVERIFY(answers.isDone());
        QCOMPARE(edited.size(), 1);
        QVERIFY(log.texts(QtDebugMsg).contains(u"Designer mode: "_s + (isDesigner ? u"true"_s : u"false"_s)));
    }
}

WIDGET_REGISTER_TEST(WindowFormTest)
#include "WindowFormTest.moc"
