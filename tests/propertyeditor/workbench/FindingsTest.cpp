#include "FindingsFixture.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/workbench/FindSettings.h>

#include <QCheckBox>
#include <QClipboard>
#include <QMenu>
#include <QSignalSpy>
#include <QToolButton>

using namespace orv;
using namespace FindingsFixture;
using namespace Qt::StringLiterals;

class FindingsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsMarkedBeforeACheck();
    void aCheckOpensThePanelWithWhatWasFound();
    void aCheckWithoutFindingsOpensNothing();
    void placesAreMarked();
    void aClickGoesToTheSetting();
    void keysGoFromFindingToFinding();
    void keysGoToRowsOfTables();
    void theMarkMovesWithItsRow();
    void anEditTakesTheMarkAwayAndTheNextCheckTheFinding();
    void advancedRowsGetTheirMarkWhenTheyAreShown();
    void foldedGroupsTellOfTheirRows();
    void tabsKeepTheirTexts();
    void anotherDocumentHasNoFindings();
    void aDocumentMayGoWhileItIsChecked();
    void savedDocumentsAreCheckedAnew();
    void validatorsOfTheApplicationAreAsked();
    void validatorsOfTheApplicationMayCloseTheWindow();
    void movedTabsAreFound();
    void findingsAreCopied();
    void whatIsBeingTypedIsChecked();
    void whatIsBeingTypedIntoATableIsChecked();
    void bothPanelsShareTheirPlace();
    void settingsWithFindingsAreAFilter();
    void uncheckableDocumentsSayWhy();
    void theWindowMayGo_data();
    void theWindowMayGo();
    void manyFindingsAreShown();
};

void FindingsTest::nothingIsMarkedBeforeACheck()
{
    Checked c;
    QCOMPARE(int(c.findings().state()), int(Findings::State::NotChecked));
    QVERIFY(!c.panel("findingsPanel")->isVisible());
    QVERIFY(c.window->tabs().tabIcon(0).isNull());
    QVERIFY(c.table().tableModel()->rowRemarks().isEmpty());
    QCOMPARE(c.remark(), QString());
    QVERIFY(!c.findings().nextAction()->isEnabled());
    c.view(1, 1)->propertySet()->property("InSilicoPeptidesFile").setValue(QVariant());
    QCOMPARE(int(c.findings().state()), int(Findings::State::NotChecked));
}

void FindingsTest::aCheckOpensThePanelWithWhatWasFound()
{
    Checked c;
    QSignalSpy changed(&c.findings(), &Findings::changed);
    QTest::keyClick(c.window, Qt::Key_F9);
    QCOMPARE(int(c.findings().state()), int(Findings::State::Checking));
    QCOMPARE(changed.size(), 1);
    QVERIFY(!c.panel("findingsPanel")->isVisible());
    QVERIFY(c.waitFor(Findings::State::Checked));
    QVERIFY(c.panel("findingsPanel")->isVisible());
    QCOMPARE(c.findings().errorCount(), 3);
    QCOMPARE(c.findings().warningCount(), 0);
    QCOMPARE(c.child<QLabel>("findingsSummary")->text(), u"Errors: 3, warnings: 0"_s);
    const int row = c.rowOf(u"In-silico peptides file"_s);
    QVERIFY(row >= 0);
    QCOMPARE(shown(c.list(), kSeverity).at(row), u"Error"_s);
    QCOMPARE(shown(c.list(), kPlace).at(row), u"Search › Two › In-silico peptides file"_s);
    QCOMPARE(shown(c.list(), kRule).at(row), u"Builtin/local-or-talvane-url"_s);
    QVERIFY(!shown(c.list(), kHint).at(row).isEmpty());
    QVERIFY(shown(c.list(), kPlace).contains(u"Input › Samples › S2 › Samples and traces"_s));
    QCOMPARE(c.bench->viewMenu()->actions().contains(c.findings().checkAction()), true);
}

void FindingsTest::aCheckWithoutFindingsOpensNothing()
{
    const QTemporaryDir folder;
    Checked c(faultless(folder));
    QVERIFY(c.check());
    QCOMPARE(shown(c.list(), kMessage), QStringList());
    QVERIFY(!c.panel("findingsPanel")->isVisible());
    QCOMPARE(c.child<QLabel>("findingsSummary")->text(), u"The check found nothing."_s);
    QVERIFY(!c.findings().nextAction()->isEnabled());
    const auto *filter = c.child<QCheckBox>("hasFinding");
    QVERIFY(!filter->isEnabled());
    QCOMPARE(filter->toolTip(), u"The last check found nothing."_s);
    QCOMPARE(filter->accessibleDescription(), filter->toolTip());
}

void FindingsTest::placesAreMarked()
{
    Checked c;
    QVERIFY(c.check());
    QVERIFY(c.remark().startsWith(u"Error: \"In-silico peptides file\" specifies a non-existent file"_s));
    const TableModel *model = c.table().tableModel();
    QVERIFY(model->headerData(1, Qt::Vertical, TableModel::RemarkRole).toString().contains(u"\"S2\""_s));
    QVERIFY(!c.window->tabs().tabIcon(0).isNull());
    QVERIFY(!c.window->tabs().tabIcon(1).isNull());
    QCOMPARE(c.window->tabs().tabToolTip(0), u"Errors: 2, warnings: 0"_s);
}

void FindingsTest::aClickGoesToTheSetting()
{
    Checked c;
    QVERIFY(c.check());
    c.window->tabs().setCurrentIndex(0);
    QVERIFY(!c.view(1, 1)->isExpanded());
    clickAt(c.list(), c.rowOf(u"In-silico peptides file"_s), kMessage);
    QCOMPARE(c.window->tabs().currentIndex(), 1);
    QCOMPARE(c.currentSetting(1, 1), "InSilicoPeptidesFile");
    QVERIFY(c.view(1, 1)->editorView()->hasFocus());
    QVERIFY(c.view(1, 1)->isExpanded());
}

void FindingsTest::keysGoFromFindingToFinding()
{
    Checked c;
    QVERIFY(c.check());
    QList<int> rows;
    for (int i = 0; i < 4; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F8);
        rows.append(c.list().currentIndex().row());
    }
    QCOMPARE(rows, QList<int>({0, 1, 2, 0}));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F8, Qt::ShiftModifier);
    QCOMPARE(c.list().currentIndex().row(), 2);
    c.list().setFocus();
    QTest::keyClick(&c.list(), Qt::Key_Return);
    QVERIFY(!c.list().hasFocus());
    c.list().setFocus();
    QTest::keyClick(&c.list(), Qt::Key_Escape);
    QVERIFY(!c.panel("findingsPanel")->isVisible());
}

void FindingsTest::keysGoToRowsOfTables()
{
    Checked c;
    QVERIFY(c.check());
    clickAt(c.list(), c.rowOf(u"\"S2\""_s), kMessage);
    QVERIFY(c.table().hasFocus());
    QCOMPARE(c.table().currentIndex().row(), 1);
    const int before = c.list().currentIndex().row();
    QTest::keyClick(&c.table(), Qt::Key_F8);
    QCOMPARE(c.list().currentIndex().row(), (before + 1) % 3);
}

void FindingsTest::theMarkMovesWithItsRow()
{
    Checked c(faulty(3));
    QVERIFY(c.check());
    TableSheet *sheet = c.table().sheet();
    sheet->moveRows({1}, 0);
    const TableModel *model = c.table().tableModel();
    QVERIFY(model->headerData(0, Qt::Vertical, TableModel::RemarkRole).toString().contains(u"\"S2\""_s));
    clickAt(c.list(), c.rowOf(u"\"S2\""_s), kMessage);
    QCOMPARE(c.table().currentIndex().row(), 0);
}

void FindingsTest::anEditTakesTheMarkAwayAndTheNextCheckTheFinding()
{
    Checked c;
    QVERIFY(c.check());
    c.view(1, 1)->propertySet()->property("InSilicoPeptidesFile").setValue(QVariant());
    QCOMPARE(c.remark(), QString());
    QCOMPARE(c.findings().errorCount(), 3);
    QTRY_COMPARE(c.findings().errorCount(), 2);
    QCOMPARE(c.rowOf(u"In-silico peptides file"_s), -1);
    QTRY_VERIFY(c.window->tabs().tabIcon(1).isNull());
    QCOMPARE(c.window->tabs().tabToolTip(1), QString());
}

void FindingsTest::advancedRowsGetTheirMarkWhenTheyAreShown()
{
    Checked c(faulty(2, 3));
    QVERIFY(c.check());
    QCOMPARE(c.remark(), QString());
    clickAt(c.list(), c.rowOf(u"In-silico peptides file"_s), kMessage);
    QCOMPARE(c.currentSetting(1, 1), "InSilicoPeptidesFile");
    QVERIFY(!c.remark().isEmpty());
    QTest::keyClick(&c.list(), Qt::Key_Escape);
    QVERIFY(c.view(1, 1)->propertiesViewMode() == GridPropertyEditorView::PropertiesViewMode::Basic);
    QVERIFY(c.view(1, 1)->editorView()->hasFocus());
}

void FindingsTest::foldedGroupsTellOfTheirRows()
{
    Checked c;
    QVERIFY(c.check());
    const QAbstractItemModel *rows = c.view(1, 1)->editorView()->model();
    QStringList told;
    for (int row = 0; row < rows->rowCount(); ++row)
        told.append(rows->index(row, 0).data(Qt::AccessibleDescriptionRole).toString());
    QCOMPARE(told.size(), 2);
    QCOMPARE(told.constFirst(), u"Group of properties"_s);
    QVERIFY(told.constLast().startsWith(u"Group of properties\nIn-silico peptides file: "_s));
}

void FindingsTest::tabsKeepTheirTexts()
{
    Checked c;
    QVERIFY(c.check());
    QCOMPARE(c.window->tabs().tabText(0), u"Input"_s);
    QCOMPARE(c.window->tabs().tabText(1), u"Search"_s);
}

void FindingsTest::anotherDocumentHasNoFindings()
{
    Checked c;
    QVERIFY(c.check());
    QVERIFY(c.open(documentOf({karvonCell()})));
    QCOMPARE(int(c.findings().state()), int(Findings::State::NotChecked));
    QCOMPARE(c.findings().errorCount(), 0);
    QCOMPARE(shown(c.list(), kMessage), QStringList());
    QVERIFY(c.window->tabs().tabIcon(0).isNull());
    QVERIFY(!c.panel("findingsPanel")->isVisible());
}

void FindingsTest::aDocumentMayGoWhileItIsChecked()
{
    const QTemporaryDir folder;
    Checked c(withoutSamples());
    QTest::keyClick(c.window, Qt::Key_F9);
    QVERIFY(c.open(faultless(folder)));
    QCOMPARE(int(c.findings().state()), int(Findings::State::NotChecked));
    QVERIFY(c.check());
    QCOMPARE(c.findings().errorCount(), 0);
}

void FindingsTest::validatorsOfTheApplicationAreAsked()
{
    const QTemporaryDir folder;
    Checked c(faultless(folder));
    QThread *thread = nullptr;
    c.window->setAdditionalValidatorsCreatorFunction(
        [&thread] { return QList<PropertyEditor::AbstractValidator *>{new Suspicious(&thread)}; });
    QVERIFY(c.check());
    QCOMPARE(thread, QThread::currentThread());
    QCOMPARE(shown(c.list(), kMessage), QStringList({u"Preview isn't licensed"_s, u"The queue is long"_s}));
    QCOMPARE(c.findings().errorCount(), 1);
    QCOMPARE(c.findings().warningCount(), 1);
    c.window->setAdditionalValidatorsCreatorFunction({});
    QVERIFY(c.check());
    QCOMPARE(c.findings().errorCount(), 0);
}

void FindingsTest::validatorsOfTheApplicationMayCloseTheWindow()
{
    const Checked c;
    const QPointer<QWidget> window(c.window);
    c.window->setAdditionalValidatorsCreatorFunction([window] {
        delete window.data();
        return QList<PropertyEditor::AbstractValidator *>{new Suspicious};
    });
    QTest::keyClick(c.window, Qt::Key_F9);
    QTRY_VERIFY(!window);
}

void FindingsTest::savedDocumentsAreCheckedAnew()
{
    const QTemporaryDir folder;
    Checked c;
    QVERIFY(c.check());
    QVERIFY(c.window->saveWorkflowToJSON(folder.filePath(u"saved.wflw"_s)));
    QVERIFY(c.waitFor(Findings::State::Checked));
    QCOMPARE(c.findings().errorCount(), 3);
    QVERIFY(!c.remark().isEmpty());
}

void FindingsTest::movedTabsAreFound()
{
    Checked c;
    QVERIFY(c.check());
    c.window->tabs().tabBar()->moveTab(1, 0);
    c.window->tabs().setCurrentIndex(1);
    clickAt(c.list(), c.rowOf(u"In-silico peptides file"_s), kMessage);
    QCOMPARE(c.window->tabs().currentIndex(), 0);
    QCOMPARE(c.currentSetting(0, 1), "InSilicoPeptidesFile");
}

void FindingsTest::findingsAreCopied()
{
    Checked c;
    QVERIFY(c.check());
    c.list().setFocus();
    QTest::keyClick(&c.list(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&c.list(), Qt::Key_C, Qt::ControlModifier);
    const QStringList lines = QApplication::clipboard()->text().split(u'\n');
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines.constFirst().split(u'\t').size(), 5);
    QVERIFY(lines.constFirst().startsWith(u"Error\t"_s));
}

void FindingsTest::whatIsBeingTypedIsChecked()
{
    Checked c(documentOf({samplesCell(1), settingsCell("Senthia", {setting("Samples", u"*"_s, "Extras")})}));
    GridPropertyEditorView *column = c.view(0, 1);
    QVERIFY(column->goTo("Samples"));
    column->editorView()->setFocus();
    QTest::keyClick(column->editorView(), Qt::Key_F2);
    QWidget *editor = QApplication::focusWidget();
    QVERIFY(column->editorView()->viewport()->isAncestorOf(editor));
    QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(editor, u"nobody"_s);
    QTest::keyClick(editor, Qt::Key_F9);
    QVERIFY(c.waitFor(Findings::State::Checked));
    QCOMPARE(column->propertySet()->property("Samples").value().toString(), u"nobody"_s);
}

void FindingsTest::whatIsBeingTypedIntoATableIsChecked()
{
    Checked c;
    c.table().goTo(c.table().model()->index(0, 0));
    c.table().setFocus();
    QTest::keyClick(&c.table(), Qt::Key_F2);
    QWidget *editor = QApplication::focusWidget();
    QVERIFY(c.table().isAncestorOf(editor));
    QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(editor, u"Renamed"_s);
    QTest::keyClick(editor, Qt::Key_F9);
    QVERIFY(c.waitFor(Findings::State::Checked));
    QVERIFY(c.rowOf(u"Renamed"_s) >= 0);
}

void FindingsTest::bothPanelsShareTheirPlace()
{
    Checked c;
    QVERIFY(c.check());
    const int width = c.panel("findingsPanel")->width();
    QTest::keyClick(c.window, Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(c.child<QLineEdit>("findField")->hasFocus());
    QCOMPARE(c.panel("findSettings")->width(), width);
    QTest::keyClick(c.window, Qt::Key_F9);
    QVERIFY(c.waitFor(Findings::State::Checked));
    QVERIFY(!c.panel("findingsPanel")->visibleRegion().isEmpty());
}

void FindingsTest::settingsWithFindingsAreAFilter()
{
    Checked c;
    auto *filter = c.child<QCheckBox>("hasFinding");
    QVERIFY(!filter->isEnabled());
    QVERIFY(c.check());
    QVERIFY(filter->isEnabled());
    QTest::keyClick(c.window, Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::mouseClick(filter, Qt::LeftButton);
    QCOMPARE(shown(*c.child<QAbstractItemView>("findHits"), 0), QStringList({u"In-silico peptides file"_s}));
    QVERIFY(c.open(documentOf({karvonCell()})));
    QVERIFY(!filter->isEnabled());
}

void FindingsTest::uncheckableDocumentsSayWhy()
{
    Checked c(documentOf({karvonCell()}, metadata("5.47.0")));
    c.window->grid(0)->appendColumn(BaseItemType::Unknown, u"Odd"_s, true);
    QVERIFY(c.check());
    QCOMPARE(c.findings().errorCount(), 1);
    QVERIFY(
        shown(c.list(), kMessage).constFirst().startsWith(u"The workflow can't be checked: The columns"_s));
}

void FindingsTest::theWindowMayGo_data()
{
    QTest::addColumn<QString>("when");
    QTest::newRow("while it is checked") << u"check"_s;
    QTest::newRow("when a check begins") << u"begin"_s;
    QTest::newRow("when a check ends") << u"end"_s;
    QTest::newRow("when a check ends, at once") << u"end at once"_s;
    QTest::newRow("in a jump") << u"jump"_s;
}

void FindingsTest::theWindowMayGo()
{
    QFETCH(QString, when);
    // The check goes on without its window.
    const bool isLeft = when == u"check"_s || when == u"begin"_s;
    Checked c(isLeft ? withoutSamples() : faulty());
    if (when == u"begin"_s)
        connect(&c.findings(), &Findings::changed, c.window, &QObject::deleteLater);
    if (when != u"end"_s)
        QTest::keyClick(c.window, Qt::Key_F9);
    if (when == u"check"_s) {
        delete c.window;
        return;
    }
    if (when == u"end at once"_s)
        connect(&c.findings(), &Findings::changed, c.window, [window = c.window.data()] { delete window; });
    if (when == u"end"_s) {
        QTest::keyClick(c.window, Qt::Key_F9);
        connect(&c.findings(), &Findings::changed, c.window, &QObject::deleteLater);
    }
    if (when == u"jump"_s) {
        QVERIFY(c.waitFor(Findings::State::Checked));
        connect(&c.window->tabs(), &QTabWidget::currentChanged, c.window, &QObject::deleteLater);
        clickAt(c.list(), c.rowOf(u"In-silico peptides file"_s), kMessage);
    }
    QTRY_VERIFY(!c.window);
}

void FindingsTest::manyFindingsAreShown()
{
    Checked c(faulty(10000));
    QVERIFY(c.check());
    QCOMPARE(c.findings().errorCount(), 10001);
    QCOMPARE(c.table().tableModel()->rowRemarks().size(), 10000);
    clickAt(c.list(), c.rowOf(u"\"S9000\""_s), kMessage);
    QCOMPARE(c.table().currentIndex().row(), 8999);
}

WIDGET_REGISTER_TEST(FindingsTest)
#include "FindingsTest.moc"
