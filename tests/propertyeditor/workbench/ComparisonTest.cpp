#include "ComparisonFixture.h"
#include "WidgetTest.h"
#include "editors/LeavingWays.h"

#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/workbench/FindSettings.h>
#include <orv/widgets/ControlHelp.h>

#include <QAction>
#include <QCheckBox>
#include <QMenu>
#include <QProgressBar>
#include <QScopeGuard>
#include <QScrollBar>
#include <QStatusBar>
#include <QWhatsThis>

#include <algorithm>

using namespace orv;
using namespace ComparisonFixture;

class ComparisonTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void whatDiffersStandsInATree();
    void nothingIsThereAtFirst();
    void valuesThatLookTheSameAreToldInFull();
    void equalDocumentsHaveNoDifferences();
    void everyExampleEqualsItself_data();
    void everyExampleEqualsItself();
    void whatIsCheckedIsTakenOverAsOneStep();
    void whatTakingOverRemovesIsNamed();
    void manyRemovalsAreCounted();
    void allOfItIsTakenOver();
    void examplesAreTakenOverWhole_data();
    void examplesAreTakenOverWhole();
    void groupsAreCheckedWithTheirRows();
    void editsAreFollowed();
    void checksFoldsAndTheCurrentRowStay();
    void enterAndDoubleClickGoToTheSetting();
    void theDialogLeadsIntoTheListAndEscapeBack();
    void whatIsBeingTypedIsntLost();
    void differingSettingsAreAFilter();
    void keyboardAloneIsEnough();
    void theHelpKeyExplainsTheRow();
    void namesStandInLine();
    void emptyBoxesAreSeenInTheDark();
};

void ComparisonTest::whatDiffersStandsInATree()
{
    Compared c;
    QVERIFY(c.compareWith(otherDocument()));
    QVERIFY(c.answers.isDone());
    QVERIFY(c.panel("comparisonPanel")->isVisible());
    QCOMPARE(c.lines(), QStringList({u"Workflow"_s, u"-Name of the workflow: Mixture | Other name"_s,
                                     u"Analysis"_s, u"-Karvon"_s, u"--Search cleavage residues: RK | R"_s,
                                     u"--Peaks kept per spectrum: 1000 | 500"_s,
                                     u"--Fragment mass tolerance: 10.00 ppm | 20.00 ppm"_s}));
    QCOMPARE(c.summary(), u"4 differences to OTHER.wflw"_s);
    QCOMPARE(c.note(), QString());
    QCOMPARE(c.tree().model()->headerData(2, Qt::Horizontal).toString(), u"OTHER.wflw"_s);
    QVERIFY(c.bench->viewMenu()->actions().contains(c.comparison().action()));
}

void ComparisonTest::nothingIsThereAtFirst()
{
    const Compared c;
    QVERIFY(!c.panel("comparisonPanel")->isVisible());
    c.panel("comparisonPanel")->show();
    QCOMPARE(c.child<QLabel>("comparisonEmpty")->text(),
             u"Choose another workflow to see in what it differs from this one, or drop its file here."_s);
    QVERIFY(!c.takeOver().isEnabled());
    QCOMPARE(c.takeOver().toolTip(), u"Check what is to be taken over first."_s);
    QVERIFY(c.child<QProgressBar>("comparisonProgress")->isHidden());
}

void ComparisonTest::valuesThatLookTheSameAreToldInFull()
{
    Compared c;
    QVERIFY(c.compareWith(documentOf({searchColumn(1000, u"RK"_s, 10.0001)})));
    QVERIFY2(c.lines().constLast().contains(u"10.0001"_s), qPrintable(c.lines().constLast()));
}

void ComparisonTest::equalDocumentsHaveNoDifferences()
{
    Compared c;
    QVERIFY(c.compareWith(thisDocument()));
    QCOMPARE(c.lines().join(u'\n'), QString());
    QCOMPARE(c.summary(), u"No differences to OTHER.wflw."_s);
    QCOMPARE(c.child<QLabel>("comparisonEmpty")->text(), u"No differences"_s);
}

void ComparisonTest::theHelpKeyExplainsTheRow()
{
    Compared c;
    QVERIFY(c.compareWith(otherDocument()));
    c.tree().setFocus();
    c.tree().setCurrentIndex(c.rowOf(u"Peaks kept per spectrum"_s));
    const QString told = PropertiesNames::tooltipForType(PropertyId::KarvonCentroidTopk);
    QVERIFY(!told.isEmpty());
    QVERIFY(ControlHelp::explanation(&c.tree()).contains(told.toHtmlEscaped()));
    QTest::keyClick(&c.tree(), Qt::Key_F1);
    const QWidgetList windows = QApplication::topLevelWidgets();
    QVERIFY(std::ranges::any_of(
        windows, [](const QWidget *each) { return each->isVisible() && each->inherits("QWhatsThat"); }));
    QWhatsThis::hideText();
    c.tree().setCurrentIndex(c.rowOf(u"Analysis"_s));
    QVERIFY(ControlHelp::explanation(&c.tree()).contains(u"What differs, and where."_s));
}

void ComparisonTest::namesStandInLine()
{
    Compared c;
    QVERIFY(c.compareWith(otherDocument()));
    const QModelIndex first = c.rowOf(u"Search cleavage residues"_s);
    const QModelIndex column = c.rowOf(u"Karvon"_s);
    QCOMPARE(c.tree().visualRect(first).height(), c.tree().visualRect(column).height());
    QVERIFY(!c.tree().horizontalScrollBar()->isVisible());
}

void ComparisonTest::emptyBoxesAreSeenInTheDark()
{
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(0x2D, 0x2D, 0x2D)));
    const auto restore = qScopeGuard([&before] { QApplication::setPalette(before); });
    Compared c;
    QVERIFY(c.compareWith(otherDocument()));
    c.tree().setCurrentIndex({});
    const QRect row = c.tree().visualRect(c.rowOf(kPeaks));
    const QImage image = c.tree().viewport()->grab(row).toImage();
    const int y = image.height() / 2;
    const QColor ground = image.pixelColor(0, 0);
    int x = 0;
    while (x < image.width() && image.pixelColor(x, y) == ground)
        ++x;
    // The first ink from the left is the frame of the box.
    QVERIFY2(image.pixelColor(x, y).lightness() - ground.lightness() >= 80,
             qPrintable(image.pixelColor(x, y).name()));
}

namespace {

QStringList exampleFiles()
{
    const QDir folder(TestData::examplePath(u"workflows"_s));
    QStringList files;
    for (const QString &file : folder.entryList({u"*.wflw"_s}))
        files.append(folder.filePath(file));
    return files;
}

void addExamples()
{
    QTest::addColumn<QString>("path");
    for (const QString &file : exampleFiles())
        QTest::newRow(qPrintable(QFileInfo(file).fileName())) << file;
}

} // namespace

void ComparisonTest::everyExampleEqualsItself_data()
{
    addExamples();
}

void ComparisonTest::everyExampleEqualsItself()
{
    QFETCH(const QString, path);
    Compared c;
    const GoingOn answers;
    QCOMPARE(int(c.window->openWorkflow(path)), int(kOpened));
    c.comparison().compareWith(path);
    QVERIFY(c.isQuiet());
    QCOMPARE(c.lines().join(u'\n'), QString());
    QCOMPARE(c.summary(), u"No differences to %1."_s.arg(QFileInfo(path).fileName()));
}

void ComparisonTest::whatIsCheckedIsTakenOverAsOneStep()
{
    Compared c;
    const QByteArray before = c.shownDocument();
    QVERIFY(c.compareWith(otherDocument()));
    c.check(kPeaks);
    c.check(u"Search cleavage residues"_s);
    QCOMPARE(c.child<QLabel>("comparisonChecked")->text(), u"2 differences are checked."_s);
    QTest::mouseClick(&c.takeOver(), Qt::LeftButton);
    QVERIFY(c.isQuiet());
    QCOMPARE(c.value("KarvonCentroidTopk"), u"500"_s);
    QCOMPARE(c.bench->history()->count(), 1);
    QCOMPARE(c.bench->history()->undoText(), u"Take over 2 settings from OTHER.wflw"_s);
    QVERIFY(c.isQuiet());
    QCOMPARE(c.summary(), u"2 differences to OTHER.wflw"_s);
    QVERIFY(!c.takeOver().isEnabled());
    c.bench->history()->undo();
    QVERIFY(c.isQuiet());
    QCOMPARE(c.shownDocument(), before);
    QCOMPARE(c.summary(), u"4 differences to OTHER.wflw"_s);
}

void ComparisonTest::whatTakingOverRemovesIsNamed()
{
    Compared c(documentOf({searchColumn(1000, u"RK"_s), previewCell()}));
    QVERIFY(c.compareWith(documentOf({karvonCell({setting("KarvonDigestLetters", u"R"_s, "Digestion")})})));
    const auto checked = [&c] { return c.child<QLabel>("comparisonChecked")->text(); };
    c.check(u"Search cleavage residues"_s);
    QCOMPARE(checked(), u"1 difference is checked."_s);
    c.check(kPeaks);
    QCOMPARE(checked(), u"2 differences are checked. Taking over removes from this workflow: setting "
                        "Analysis › Karvon › Peaks kept per spectrum"_s);
    c.check(u"Preview"_s);
    const QString removed =
        u"setting Analysis › Karvon › Peaks kept per spectrum, column Analysis › Preview"_s;
    QCOMPARE(checked(), u"3 differences are checked. Taking over removes from this workflow: "_s + removed);
    QCOMPARE(c.takeOver().accessibleDescription(), checked());
    QTest::mouseClick(&c.takeOver(), Qt::LeftButton);
    QVERIFY(c.isQuiet());
    QCOMPARE(c.window->statusBar()->currentMessage(),
             u"3 differences taken over from OTHER.wflw. Removed: "_s + removed);
    QCOMPARE(c.window->grid(0)->columnNames(), QStringList{u"Karvon"_s});
    QVERIFY(!c.view(0, 0)->propertySet()->contains("KarvonCentroidTopk"));
    // The line below the window may be too short for all of it.
    QCOMPARE(checked(), c.window->statusBar()->currentMessage());
    QVERIFY(c.panel("comparisonPanel")->isAncestorOf(QApplication::focusWidget()));
    c.bench->history()->undo();
    QVERIFY(c.isQuiet());
    QCOMPARE(checked(), QString());
    c.check(kPeaks);
    QVERIFY(checked().startsWith(u"1 difference is checked."_s));
}

void ComparisonTest::manyRemovalsAreCounted()
{
    QStringList names;
    QJsonArray cells;
    for (int i = 0; i < 8; ++i) {
        names.append(u"C%1"_s.arg(i));
        cells.append(previewCell());
    }
    Compared c(Documents::document({Documents::tab(u"T"_s, names, cells)}, metadata()));
    QVERIFY(c.compareWith(
        Documents::document({Documents::tab(u"T"_s, {names.constFirst()}, {cells.at(0)})}, metadata())));
    c.check(u"T"_s);
    QCOMPARE(
        c.child<QLabel>("comparisonChecked")->text(),
        u"7 differences are checked. Taking over removes from this workflow: column T › C1, column T › C2, "
        "column T › C3, column T › C4, column T › C5, 2 more"_s);
}

void ComparisonTest::allOfItIsTakenOver()
{
    QJsonObject other = Documents::document({Documents::tab(u"New"_s, {u"Preview"_s}, {previewCell()}),
                                             Documents::tab(u"Analysis"_s, {u"Preview"_s, u"Karvon"_s},
                                                            {previewCell(), searchColumn(500, u"R"_s)})},
                                            metadata("5.47.0", "Other name"));
    Compared c;
    const QByteArray before = c.shownDocument();
    QVERIFY(c.compareWith(other));
    for (const QString &name : {u"Workflow"_s, u"New"_s, u"Analysis"_s})
        c.check(name);
    QTest::mouseClick(&c.takeOver(), Qt::LeftButton);
    QVERIFY(c.isQuiet());
    QCOMPARE(c.bench->history()->count(), 1);
    QVERIFY(c.isQuiet());
    QCOMPARE(c.lines().join(u'\n'), QString());
    QCOMPARE(c.window->tabs().tabText(0), u"New"_s);
    QCOMPARE(c.window->grid(1)->columnNames(), QStringList({u"Preview"_s, u"Karvon"_s}));
    QCOMPARE(c.window->workflowMetadata().value(u"name"_s).toString(), u"Other name"_s);
    c.bench->history()->undo();
    QCOMPARE(c.shownDocument(), before);
    QCOMPARE(c.window->workflowMetadata().value(u"name"_s).toString(), u"Mixture"_s);
}

void ComparisonTest::examplesAreTakenOverWhole_data()
{
    addExamples();
}

void ComparisonTest::examplesAreTakenOverWhole()
{
    QFETCH(const QString, path);
    Compared c;
    const GoingOn answers;
    QCOMPARE(int(c.window->openWorkflow(exampleFiles().constFirst())), int(kOpened));
    c.comparison().compareWith(path);
    QVERIFY(c.isQuiet());
    QAbstractItemModel &model = *c.tree().model();
    for (int row = 0; row < model.rowCount(); ++row)
        model.setData(model.index(row, 0), Qt::Checked, Qt::CheckStateRole);
    if (path == exampleFiles().constFirst()) {
        QCOMPARE(model.rowCount(), 0);
        return;
    }
    QTest::mouseClick(&c.takeOver(), Qt::LeftButton);
    QVERIFY(c.isQuiet());
    QCOMPARE(c.bench->history()->count(), 1);
    QCOMPARE(c.lines().join(u'\n'), QString());
}

void ComparisonTest::groupsAreCheckedWithTheirRows()
{
    Compared c;
    QVERIFY(c.compareWith(otherDocument()));
    c.check(kPeaks);
    QCOMPARE(c.stateOf(u"Karvon"_s), Qt::PartiallyChecked);
    QCOMPARE(c.stateOf(u"Analysis"_s), Qt::PartiallyChecked);
    QCOMPARE(c.stateOf(u"Workflow"_s), Qt::Unchecked);
    c.check(u"Analysis"_s);
    QCOMPARE(c.stateOf(u"Karvon"_s), Qt::Checked);
    QCOMPARE(c.stateOf(u"Search cleavage residues"_s), Qt::Checked);
    c.check(u"Karvon"_s);
    QCOMPARE(c.stateOf(kPeaks), Qt::Unchecked);
    QCOMPARE(c.stateOf(u"Analysis"_s), Qt::Unchecked);
}

void ComparisonTest::editsAreFollowed()
{
    Compared c;
    QVERIFY(c.compareWith(otherDocument()));
    c.view(0, 0)->propertySet()->property("KarvonCentroidTopk").setValue(500);
    QTRY_COMPARE(c.summary(), u"3 differences to OTHER.wflw"_s);
    QVERIFY(!c.rowOf(kPeaks).isValid());
    QVERIFY(c.isQuiet());
    c.bench->history()->undo();
    QVERIFY(c.isQuiet());
    QVERIFY(c.rowOf(kPeaks).isValid());
    c.bench->history()->redo();
    QVERIFY(c.isQuiet());
    QVERIFY(!c.rowOf(kPeaks).isValid());
    // An edit writes the whole column; what nobody touched doesn't differ.
    QCOMPARE(c.lines().size(), 6);
}

void ComparisonTest::checksFoldsAndTheCurrentRowStay()
{
    Compared c;
    QVERIFY(c.compareWith(otherDocument()));
    c.check(kPeaks);
    c.tree().collapse(c.rowOf(u"Workflow"_s));
    c.view(0, 0)->propertySet()->property("KarvonDigestLetters").setValue(u"R"_s);
    QTRY_COMPARE(c.summary(), u"3 differences to OTHER.wflw"_s);
    QCOMPARE(c.stateOf(kPeaks), Qt::Checked);
    QCOMPARE(c.tree().currentIndex().data().toString(), kPeaks);
    QVERIFY(!c.tree().isExpanded(c.rowOf(u"Workflow"_s)));
    QVERIFY(c.tree().isExpanded(c.rowOf(u"Karvon"_s)));
    QVERIFY(c.takeOver().isEnabled());
}

void ComparisonTest::enterAndDoubleClickGoToTheSetting()
{
    Compared c;
    QVERIFY(c.compareWith(otherDocument()));
    c.tree().setFocus();
    c.tree().setCurrentIndex(c.rowOf(kPeaks));
    QTest::keyClick(&c.tree(), Qt::Key_Return);
    QCOMPARE(c.currentSetting(0, 0), "KarvonCentroidTopk");
    QVERIFY(c.view(0, 0)->editorView()->hasFocus());
    const QModelIndex row = c.rowOf(u"Search cleavage residues"_s);
    c.tree().scrollTo(row);
    const QPoint point = c.tree().visualRect(row.siblingAtColumn(1)).center();
    QTest::mouseClick(c.tree().viewport(), Qt::LeftButton, {}, point);
    QTest::mouseDClick(c.tree().viewport(), Qt::LeftButton, {}, point);
    QCOMPARE(c.currentSetting(0, 0), "KarvonDigestLetters");
    c.tree().setFocus();
    QTest::keyClick(&c.tree(), Qt::Key_Escape);
    QVERIFY(c.panel("comparisonPanel")->isHidden());
    QVERIFY(c.view(0, 0)->editorView()->hasFocus());
}

void ComparisonTest::theDialogLeadsIntoTheListAndEscapeBack()
{
    Compared c;
    QWidget *column = c.view(0, 0)->editorView();
    column->setFocus();
    QVERIFY(c.compareWith(otherDocument()));
    QVERIFY(c.tree().hasFocus());
    QTest::keyClick(&c.tree(), Qt::Key_Escape);
    QVERIFY(c.panel("comparisonPanel")->isHidden());
    QVERIFY(column->hasFocus());
    // Where nothing differs there is no list; the keys go to what can be pressed there.
    QVERIFY(c.compareWith(thisDocument()));
    QTRY_VERIFY(c.child<QPushButton>("otherWorkflow")->hasFocus());
    // From one panel to the other, and the same way back.
    QTest::keyClick(c.child<QPushButton>("otherWorkflow"), Qt::Key_F, Qt::ControlModifier);
    QVERIFY(c.child<QLineEdit>("findField")->hasFocus());
    QTest::keyClick(c.child<QLineEdit>("findField"), Qt::Key_Escape);
    QTRY_VERIFY(c.child<QPushButton>("otherWorkflow")->hasFocus());
    QTest::keyClick(c.child<QPushButton>("otherWorkflow"), Qt::Key_Escape);
    QVERIFY(column->hasFocus());
}

void ComparisonTest::whatIsBeingTypedIsntLost()
{
    Compared c;
    QVERIFY(c.compareWith(otherDocument()));
    c.check(kPeaks);
    KPropertyEditorView &settings = *c.view(0, 0)->editorView();
    settings.expandAll();
    QVERIFY(LeavingWays::open(settings, "KarvonDigestLetters"));
    LeavingWays::type(u"KRX"_s);
    // By its mnemonic, which leaves the focus where it is.
    c.takeOver().click();
    QVERIFY(c.isQuiet());
    QCOMPARE(c.value("KarvonDigestLetters"), u"KRX"_s);
    QCOMPARE(c.value("KarvonCentroidTopk"), u"500"_s);
    QCOMPARE(c.bench->history()->count(), 2);
}

void ComparisonTest::differingSettingsAreAFilter()
{
    Compared c;
    auto *filter = c.child<QCheckBox>("differs");
    QVERIFY(!filter->isEnabled());
    QVERIFY(c.compareWith(documentOf({searchColumn(500, u"RK"_s)})));
    QVERIFY(filter->isEnabled());
    c.bench->find()->action()->trigger();
    QTest::mouseClick(filter, Qt::LeftButton, {}, {5, filter->height() / 2});
    QVERIFY(filter->isChecked());
    QCOMPARE(shown(*c.child<QAbstractItemView>("findHits"), 0), QStringList{kPeaks});
    c.panel("comparisonPanel")->hide();
    QVERIFY(!filter->isEnabled());
    QVERIFY(!filter->isChecked());
}

void ComparisonTest::keyboardAloneIsEnough()
{
    Compared c;
    QVERIFY(c.compareWith(otherDocument()));
    QVERIFY(c.tree().hasFocus());
    while (c.tree().currentIndex().data().toString() != kPeaks)
        QTest::keyClick(&c.tree(), Qt::Key_Down);
    QTest::keyClick(&c.tree(), Qt::Key_Space);
    QTest::keyClick(&c.tree(), Qt::Key_Tab);
    QVERIFY(c.takeOver().hasFocus());
    QTest::keyClick(&c.takeOver(), Qt::Key_Space);
    QVERIFY(c.isQuiet());
    QCOMPARE(c.value("KarvonCentroidTopk"), u"500"_s);
    QCOMPARE(c.bench->history()->undoText(), u"Take over 1 setting from OTHER.wflw"_s);
}

WIDGET_REGISTER_TEST(ComparisonTest)
#include "ComparisonTest.moc"
