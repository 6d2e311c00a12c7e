#include "FindFixture.h"
#include "WidgetTest.h"
#include "editors/LeavingWays.h"

#include <orv/widgets/TableView.h>

#include <QScrollBar>

using namespace orv;
using namespace FindFixture;
using namespace Qt::StringLiterals;

namespace {

constexpr auto kChosen = "KarvonFragmentMassError";

/// More rows than a low window shows.
QJsonObject longColumn()
{
    QJsonArray settings;
    for (const char *name :
         {"KarvonCentroidTopk", "KarvonDigestLetters", "KarvonFragmentMassError", "KarvonPrecursorMassError"})
        settings.append(text(name) == text("KarvonCentroidTopk") ? setting(name, 500, "Peaks")
                        : text(name) == text("KarvonDigestLetters")
                            ? setting(name, u"RK"_s, "Digestion")
                            : setting(name, QJsonObject{{u"unit"_s, u"ppm"_s}, {u"value"_s, 10}}, "Masses"));
    return karvonCell(settings);
}

QJsonObject sampleTable(int rows)
{
    QJsonArray samples;
    for (int row = 0; row < rows; ++row) {
        samples.append(QJsonObject{{u"SamplesId"_s, row + 1},
                                   {u"SampleName"_s, u"S%1"_s.arg(row)},
                                   {u"SamplePath"_s, u"/data/%1.mzML"_s.arg(row)}});
    }
    const QJsonObject entry{{u"name"_s, u"SamplesTable"_s},
                            {u"value"_s, QJsonObject{{u"Samples"_s, samples}}}};
    return settingsCell("Samples", {entry});
}

QJsonObject twoTabs()
{
    return Documents::document(
        {Documents::tab(u"Analysis"_s, {u"One"_s, u"Two"_s}, {longColumn(), longColumn()}),
         Documents::tab(u"Samples"_s, {u"Samples"_s}, {sampleTable(200)})},
        metadata());
}

struct Saved : Bench
{
    Saved()
    {
        if (!open(twoTabs()))
            qFatal("The test's document can't be opened");
        window->resize(900, 330);
        QCoreApplication::processEvents();
    }

    [[nodiscard]] KPropertyCustomEditorView &tree(int column) const { return *view(0, column)->editorView(); }
    [[nodiscard]] TableView &table() const
    {
        for (TableView *each : window->grid(1)->findChildren<TableView *>()) {
            if (each->sheet()->rowCount() == 200)
                return *each;
        }
        qFatal("There is no table of the samples");
    }
    [[nodiscard]] QModelIndex group(int column, const QString &caption) const
    {
        const QAbstractItemModel &model = *tree(column).model();
        for (int row = 0; row < model.rowCount(); ++row) {
            if (model.index(row, 0).data().toString() == caption)
                return model.index(row, 0);
        }
        qFatal("There is no group %s", qPrintable(caption));
    }
    /// By a click on the triangle's row, as people do it with the keyboard: Right and Left fold.
    void fold(int column, const QString &caption, bool isUnfolded) const
    {
        tree(column).setFocus();
        tree(column).setCurrentIndex(group(column, caption));
        QTest::keyClick(&tree(column), isUnfolded ? Qt::Key_Right : Qt::Key_Left);
    }
    [[nodiscard]] bool isUnfolded(int column, const QString &caption) const
    {
        return tree(column).isExpanded(group(column, caption));
    }
    void clickAtSetting(int column, const char *name) const
    {
        const QModelIndex row = LeavingWays::rowOf(tree(column), name);
        tree(column).scrollTo(row);
        QTest::mouseClick(tree(column).viewport(), Qt::LeftButton, {}, tree(column).visualRect(row).center());
    }
    void showTab(int tab) const
    {
        QTabBar *bar = window->tabs().tabBar();
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(tab).center());
    }
    [[nodiscard]] bool save()
    {
        answers.expectPath(u"Save Workflow"_s, folder.filePath(u"saved.wflw"_s));
        const QPointer<PropertyGridWidget> before = window->grid(0);
        window->click("Save Workflow...");
        // The tabs are other ones then.
        return answers.isDone() && window->grid(0) != before && !window->isWindowModified();
    }

    QTemporaryDir folder;
    ScriptedAnswerer answers;
};

} // namespace

class SavedPlacesTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void foldsAndTheSelectedSettingStay();
    void theFocusStaysInItsColumn();
    void aTreeStaysScrolled();
    void aTableKeepsItsCellAndScroll();
    void tabsThatArentShownStayScrolled();
    void theFocusOfAPanelStaysThere();
    void theListOfOtherColumnsGoesOnWithItsSetting();
    void anotherDocumentBeginsAtItsBeginning();
};

void SavedPlacesTest::foldsAndTheSelectedSettingStay()
{
    Saved s;
    s.fold(0, u"Masses"_s, true);
    s.fold(1, u"Digestion"_s, true);
    s.clickAtSetting(0, kChosen);
    QCOMPARE(s.currentSetting(0, 0), kChosen);
    QVERIFY(s.save());
    QVERIFY(s.isUnfolded(0, u"Masses"_s));
    QVERIFY(!s.isUnfolded(0, u"Peaks"_s));
    QVERIFY(!s.isUnfolded(1, u"Masses"_s));
    QVERIFY(s.isUnfolded(1, u"Digestion"_s));
    QCOMPARE(s.currentSetting(0, 0), kChosen);
    QVERIFY(s.save());
    QCOMPARE(s.currentSetting(0, 0), kChosen);
}

void SavedPlacesTest::theFocusStaysInItsColumn()
{
    Saved s;
    s.fold(1, u"Masses"_s, true);
    s.clickAtSetting(1, kChosen);
    QVERIFY(s.tree(1).hasFocus());
    QVERIFY(s.save());
    QVERIFY(s.tree(1).hasFocus());
    QCOMPARE(s.currentSetting(0, 1), kChosen);
    // An arrow goes on from where somebody stood.
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QCOMPARE(s.currentSetting(0, 1), "KarvonPrecursorMassError");
}

void SavedPlacesTest::aTreeStaysScrolled()
{
    Saved s;
    s.tree(0).expandAll();
    QScrollBar *bar = s.tree(0).verticalScrollBar();
    QVERIFY(bar->maximum() > 0);
    bar->setValue(bar->maximum());
    const int before = bar->value();
    QVERIFY(s.save());
    QCOMPARE(s.tree(0).verticalScrollBar()->value(), before);
    QCoreApplication::processEvents();
    QCOMPARE(s.tree(0).verticalScrollBar()->value(), before);
    QCOMPARE(s.tree(1).verticalScrollBar()->value(), 0);
}

void SavedPlacesTest::aTableKeepsItsCellAndScroll()
{
    Saved s;
    s.showTab(1);
    s.table().setFocus();
    s.table().goTo(s.table().model()->index(150, 0));
    const int before = s.table().verticalScrollBar()->value();
    QVERIFY(before > 0);
    QVERIFY(s.save());
    QCOMPARE(s.window->tabs().currentIndex(), 1);
    QCOMPARE(s.table().currentIndex().row(), 150);
    QCOMPARE(s.table().verticalScrollBar()->value(), before);
    QVERIFY(s.table().hasFocus());
    s.table().sortByColumn(0, Qt::DescendingOrder);
    s.table().goTo(s.table().model()->index(10, 0));
    const QString name = s.table().currentIndex().data().toString();
    QVERIFY(s.save());
    QCOMPARE(s.table().currentIndex().data().toString(), name);
}

void SavedPlacesTest::tabsThatArentShownStayScrolled()
{
    Saved s;
    s.showTab(1);
    s.table().goTo(s.table().model()->index(150, 0));
    // Somebody has scrolled on since.
    s.table().verticalScrollBar()->setValue(40);
    s.showTab(0);
    QVERIFY(s.save());
    QVERIFY(s.save());
    QCOMPARE(s.window->tabs().currentIndex(), 0);
    s.showTab(1);
    QCoreApplication::processEvents();
    QCOMPARE(s.table().verticalScrollBar()->value(), 40);
    QCOMPARE(s.table().currentIndex().row(), 150);
    // Once there, people go where they like.
    s.table().verticalScrollBar()->setValue(60);
    s.showTab(0);
    s.showTab(1);
    QCOMPARE(s.table().verticalScrollBar()->value(), 60);
}

void SavedPlacesTest::theFocusOfAPanelStaysThere()
{
    Saved s;
    s.clickAtSetting(0, kChosen);
    QTest::keyClick(s.window, Qt::Key_F, Qt::ControlModifier);
    const QPointer<QWidget> field = QApplication::focusWidget();
    QVERIFY(qobject_cast<QLineEdit *>(field.data()));
    QVERIFY(s.save());
    QCOMPARE(QApplication::focusWidget(), field.data());
}

void SavedPlacesTest::theListOfOtherColumnsGoesOnWithItsSetting()
{
    Saved s;
    s.fold(1, u"Masses"_s, true);
    s.clickAtSetting(1, kChosen);
    QTest::keyClick(s.window, Qt::Key_F7);
    auto *list = s.child<QAbstractItemView>("sameSettingColumns");
    QTRY_COMPARE(list->model()->rowCount(), 2);
    list->setFocus();
    QVERIFY(s.save());
    QCoreApplication::processEvents();
    QCOMPARE(shown(*list, 2).constLast(), u"This value is applied"_s);
}

void SavedPlacesTest::anotherDocumentBeginsAtItsBeginning()
{
    Saved s;
    s.fold(0, u"Masses"_s, true);
    QVERIFY(s.save());
    QVERIFY(s.open(twoTabs()));
    QVERIFY(!s.isUnfolded(0, u"Masses"_s));
    QCOMPARE(s.currentSetting(0, 0), QByteArray());
}

WIDGET_REGISTER_TEST(SavedPlacesTest)
#include "SavedPlacesTest.moc"
