#include "FindFixture.h"
#include "WidgetTest.h"
#include "editors/LeavingWays.h"

#include <orv/propertyeditor/workbench/DocumentHistory.h>

#include <QCheckBox>
#include <QSignalSpy>

using namespace orv;
using namespace FindFixture;
using namespace Qt::StringLiterals;

namespace {

enum SameColumn
{
    kPlaceColumn,
    kValueColumn,
    kRemarkColumn,
};

constexpr auto kTopk = "KarvonCentroidTopk";

QJsonObject peaksCell(int peaks)
{
    return karvonCell({setting(kTopk, peaks), setting("KarvonDigestLetters", u"RK"_s)});
}

/// Three columns in two tabs have the setting, one doesn't.
QJsonObject spread(int first = 500, int second = 1000, int third = 1000)
{
    return Documents::document(
        {Documents::tab(u"First"_s, {u"One"_s, u"Plain"_s}, {peaksCell(first), karvonCell()}),
         Documents::tab(u"Second"_s, {u"Two"_s, u"Three"_s}, {peaksCell(second), peaksCell(third)})},
        metadata());
}

struct Same : Bench
{
    explicit Same(const QJsonObject &document = spread())
    {
        if (!open(document))
            qFatal("The test's document can't be opened");
        standAt(0, 0, kTopk);
        QTest::keyClick(window, Qt::Key_F7);
    }

    void standAt(int tab, int column, const char *name) const
    {
        KPropertyCustomEditorView *tree = view(tab, column)->editorView();
        window->tabs().setCurrentIndex(tab);
        tree->expandAll();
        tree->setFocus();
        tree->setCurrentIndex(LeavingWays::rowOf(*tree, name));
        QCoreApplication::processEvents();
    }
    [[nodiscard]] QAbstractItemView &list() const { return *child<QAbstractItemView>("sameSettingColumns"); }
    [[nodiscard]] QPushButton &apply() const { return *child<QPushButton>("sameSettingApply"); }
    [[nodiscard]] QString label(const char *name) const { return child<QLabel>(name)->text(); }
    [[nodiscard]] QString heading() const { return label("sameSettingHeading"); }
    [[nodiscard]] QStringList places() const { return shown(list(), kPlaceColumn); }
    [[nodiscard]] QStringList values() const { return shown(list(), kValueColumn); }
    [[nodiscard]] int peaks(int tab, int column) const
    {
        return view(tab, column)->propertySet()->property(kTopk).value().toInt();
    }
    /// By the keyboard.
    void toggle(int row) const
    {
        list().setFocus();
        list().setCurrentIndex(list().model()->index(row, kPlaceColumn));
        QTest::keyClick(&list(), Qt::Key_Space);
    }
};

} // namespace

class SameSettingTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void allColumnsWithTheSettingAreListed();
    void valuesThatDifferAreADashAndAWord();
    void theListFollowsTheCurrentSetting();
    void columnsWithTheValueHaveNoBox();
    void aSettingOfOneColumnSaysSo();
    void chosenColumnsGetTheValueInOneStep();
    void oneColumnIsNamedInTheStep();
    void aStructuredValueArrivesAsFilesHoldIt();
    void theBoxOfAllChecksThoseThatCanBeEdited();
    void whatCantBeEditedSaysWhy();
    void editsUndoAndColumnsShowInTheList();
    void theKeyOpensTheListForKeysAndEscapeGivesThemBack();
    void enterGoesToTheColumnAndEscapeBack();
    void everythingIsNamedForScreenReaders();
    void manyColumnsAreReadOnceForAnEdit();
    void whatIsBeingTypedIsApplied();
    void readOnlyWindowsApplyNothing();
    void theWindowMayGoWhileTheValueIsApplied_data();
    void theWindowMayGoWhileTheValueIsApplied();
    void aColumnMayGoWhileTheValueIsApplied();
};

void SameSettingTest::allColumnsWithTheSettingAreListed()
{
    const Same s;
    QVERIFY(s.panel("sameSettingPanel")->isVisible());
    QCOMPARE(s.places(), QStringList({u"First › One"_s, u"Second › Two"_s, u"Second › Three"_s}));
    QCOMPARE(s.values(), QStringList({u"500"_s, u"1000"_s, u"1000"_s}));
    QCOMPARE(shown(s.list(), kRemarkColumn), QStringList({u"This value is applied"_s, QString(), QString()}));
    QVERIFY(!s.list().model()->index(0, 0).flags().testFlag(Qt::ItemIsUserCheckable));
    QVERIFY(!s.apply().isEnabled());
}

void SameSettingTest::valuesThatDifferAreADashAndAWord()
{
    const Same differing;
    const QString caption = differing.view(0, 0)->propertySet()->property(kTopk).caption();
    QCOMPARE(differing.heading(), caption + u": –"_s);
    QCOMPARE(differing.child<QLabel>("sameSettingHeading")->accessibleName(),
             caption + u": the columns differ"_s);
    const Same alike(spread(7, 7, 7));
    QCOMPARE(alike.heading(), caption + u": 7"_s);
    QVERIFY(shown(alike.list(), kRemarkColumn).contains(u"Has this value"_s));
}

void SameSettingTest::theListFollowsTheCurrentSetting()
{
    const Same s;
    s.standAt(1, 1, "Samples");
    QTRY_COMPARE(s.places().size(), 4);
    QCOMPARE(s.values(), QStringList({u"*"_s, u"*"_s, u"*"_s, u"*"_s}));
    QCOMPARE(shown(s.list(), kRemarkColumn).constLast(), u"This value is applied"_s);
    s.view(1, 1)->editorView()->setCurrentIndex(s.view(1, 1)->editorView()->model()->index(0, 0));
    QTRY_COMPARE(s.places().size(), 0);
    QVERIFY(s.heading().startsWith(u"Choose a setting"_s));
}

void SameSettingTest::columnsWithTheValueHaveNoBox()
{
    const Same s(spread(500, 500, 1000));
    const auto box = [&s](int row) { return s.list().model()->index(row, kPlaceColumn); };
    QCOMPARE(box(1).data(Qt::CheckStateRole), QVariant());
    QVERIFY(!box(1).flags().testFlag(Qt::ItemIsUserCheckable));
    QCOMPARE(box(2).data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
    s.toggle(1);
    QVERIFY(!s.apply().isEnabled());
    QCOMPARE(s.apply().toolTip(), u"Check columns that have another value first."_s);
    QTest::mouseClick(s.child<QCheckBox>("sameSettingAll"), Qt::LeftButton);
    QCOMPARE(s.apply().text(), u"Ap&ply to 1 Column"_s);
    QTest::mouseClick(&s.apply(), Qt::LeftButton);
    QCOMPARE(s.label("sameSettingOutcome"), u"Applied to 1 column."_s);
    QCOMPARE(box(2).data(Qt::CheckStateRole), QVariant());
    QVERIFY(!s.child<QCheckBox>("sameSettingAll")->isEnabled());
    QCOMPARE(s.apply().toolTip(), u"All columns with this setting have this value."_s);
}

void SameSettingTest::aSettingOfOneColumnSaysSo()
{
    const Same s(Documents::document(
        {Documents::tab(u"First"_s, {u"One"_s, u"Plain"_s}, {peaksCell(7), karvonCell()})}, metadata()));
    const QString caption = s.view(0, 0)->propertySet()->property(kTopk).caption();
    const auto *alone = s.child<QLabel>("sameSettingAlone");
    QCOMPARE(s.heading(), caption + u": 7"_s);
    QVERIFY(alone->isVisible());
    QCOMPARE(alone->text(), u"No other column has this setting."_s);
    QCOMPARE(s.apply().toolTip(), u"No other column has this setting."_s);
    s.standAt(0, 0, "Samples");
    QTRY_COMPARE(s.places().size(), 2);
    QVERIFY(!alone->isVisible());
}

void SameSettingTest::chosenColumnsGetTheValueInOneStep()
{
    const Same s;
    QSignalSpy edited(s.window->workflowTabs(), &WorkflowTabs::edited);
    s.toggle(1);
    s.toggle(2);
    QCOMPARE(s.apply().text(), u"Ap&ply to 2 Columns"_s);
    QTest::mouseClick(&s.apply(), Qt::LeftButton);
    QCOMPARE(s.peaks(1, 0), 500);
    QCOMPARE(s.peaks(1, 1), 500);
    QCOMPARE(edited.size(), 2);
    QCOMPARE(s.values(), QStringList({u"500"_s, u"500"_s, u"500"_s}));
    QCOMPARE(s.label("sameSettingOutcome"), u"Applied to 2 columns."_s);
    DocumentHistory *history = s.bench->history();
    const QString caption = s.view(0, 0)->propertySet()->property(kTopk).caption();
    QCOMPARE(history->count(), 1);
    QCOMPARE(history->undoText(), caption + u" 1000 to 500 in 2 columns"_s);
    history->undo();
    QCOMPARE(s.peaks(1, 0), 1000);
    QCOMPARE(s.peaks(1, 1), 1000);
    QCOMPARE(history->index(), 0);
}

void SameSettingTest::oneColumnIsNamedInTheStep()
{
    const Same s(spread(500, 600, 700));
    const QString caption = s.view(0, 0)->propertySet()->property(kTopk).caption();
    s.toggle(1);
    QTest::mouseClick(&s.apply(), Qt::LeftButton);
    QCOMPARE(s.bench->history()->undoText(), caption + u" 600 to 500 in Second › Two"_s);
    s.standAt(1, 1, kTopk);
    s.toggle(0);
    QTest::mouseClick(&s.apply(), Qt::LeftButton);
    QCOMPARE(s.bench->history()->undoText(), caption + u" 500 to 700 in 2 columns"_s);
    QCOMPARE(s.peaks(0, 0), 700);
}

void SameSettingTest::aStructuredValueArrivesAsFilesHoldIt()
{
    const auto cell = [](double value, const char *unit) {
        return karvonCell({setting("KarvonPrecursorMassError",
                                   QJsonObject{{u"value"_s, value}, {u"unit"_s, QString::fromUtf8(unit)}})});
    };
    const Same s(Documents::document(
        {Documents::tab(u"T"_s, {u"A"_s, u"B"_s}, {cell(10.123456789, "ppm"), cell(0.5, "Da")})},
        metadata()));
    s.standAt(0, 0, "KarvonPrecursorMassError");
    QTRY_COMPARE(s.values(), QStringList({u"10.12 ppm"_s, u"0.50 Da"_s}));
    s.toggle(1);
    QTest::mouseClick(&s.apply(), Qt::LeftButton);
    const QJsonArray entries = s.window->grid(0)->items().at(1)->content().value(u"properties"_s).toArray();
    QCOMPARE(entries.at(1).toObject().value(u"value"_s),
             QJsonValue(QJsonObject{{u"unit"_s, u"ppm"_s}, {u"value"_s, 10.123456789}}));
}

void SameSettingTest::theBoxOfAllChecksThoseThatCanBeEdited()
{
    const Same s;
    s.view(1, 1)->propertySet()->property(kTopk).setReadOnly(true);
    s.standAt(0, 0, "Samples");
    s.standAt(0, 0, kTopk);
    auto *all = s.child<QCheckBox>("sameSettingAll");
    QTest::mouseClick(all, Qt::LeftButton);
    QVERIFY(all->isChecked());
    QCOMPARE(s.apply().text(), u"Ap&ply to 1 Column"_s);
    QTest::mouseClick(&s.apply(), Qt::LeftButton);
    QCOMPARE(s.peaks(1, 0), 500);
    QCOMPARE(s.peaks(1, 1), 1000);
    QTest::mouseClick(all, Qt::LeftButton);
    QVERIFY(!all->isChecked());
}

void SameSettingTest::whatCantBeEditedSaysWhy()
{
    const Same s;
    s.toggle(2);
    s.view(1, 1)->propertySet()->property(kTopk).setReadOnly(true);
    s.view(1, 0)->propertySet()->setReadOnly(true);
    s.standAt(0, 0, "Samples");
    s.standAt(0, 0, kTopk);
    QCOMPARE(shown(s.list(), kRemarkColumn),
             QStringList({u"This value is applied"_s, u"The settings of this column can only be read."_s,
                          u"This setting can only be read."_s}));
    s.toggle(1);
    QVERIFY(!s.apply().isEnabled());
    QCOMPARE(s.list().model()->index(2, 0).data(Qt::CheckStateRole), QVariant());
}

void SameSettingTest::editsUndoAndColumnsShowInTheList()
{
    const Same s;
    s.view(1, 0)->propertySet()->property(kTopk).setValue(42);
    QTRY_COMPARE(s.values(), QStringList({u"500"_s, u"42"_s, u"1000"_s}));
    s.bench->history()->undo();
    QTRY_COMPARE(s.values(), QStringList({u"500"_s, u"1000"_s, u"1000"_s}));
    // Undo went to the column that it changed.
    s.standAt(0, 0, kTopk);
    s.toggle(2);
    s.window->grid(1)->removeColumn(0);
    QTRY_COMPARE(s.places(), QStringList({u"First › One"_s, u"Second › Three"_s}));
    QCOMPARE(s.list().model()->index(1, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
    s.window->grid(1)->copyColumn(0);
    QTRY_COMPARE(s.places().size(), 3);
    s.window->clear();
    QTRY_COMPARE(s.places().size(), 0);
}

void SameSettingTest::theKeyOpensTheListForKeysAndEscapeGivesThemBack()
{
    const Same s;
    const QWidget *column = s.view(0, 0)->editorView();
    QVERIFY(s.list().hasFocus());
    QCOMPARE(s.list().currentIndex().row(), 0);
    QTest::keyClick(&s.list(), Qt::Key_Escape);
    QVERIFY(!s.panel("sameSettingPanel")->isVisible());
    QVERIFY(column->hasFocus());
    // The list's own key closes it, too.
    for (const bool isOpen : {true, false}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F7);
        QTRY_COMPARE(s.list().hasFocus(), isOpen);
        QTRY_COMPARE(column->hasFocus(), !isOpen);
    }
    QCOMPARE(s.currentSetting(0, 0), QByteArray(kTopk));
}

void SameSettingTest::enterGoesToTheColumnAndEscapeBack()
{
    const Same s;
    s.list().setFocus();
    s.list().setCurrentIndex(s.list().model()->index(2, 0));
    QTest::keyClick(&s.list(), Qt::Key_Return);
    QCOMPARE(s.window->tabs().currentIndex(), 1);
    QCOMPARE(s.currentSetting(1, 1), QByteArray(kTopk));
    QVERIFY(s.view(1, 1)->editorView()->hasFocus());
    QTRY_COMPARE(shown(s.list(), kRemarkColumn).constLast(), u"This value is applied"_s);
    s.list().setFocus();
    QTest::keyClick(&s.list(), Qt::Key_Escape);
    QVERIFY(!s.panel("sameSettingPanel")->isVisible());
    QVERIFY(s.view(1, 1)->editorView()->hasFocus());
}

void SameSettingTest::everythingIsNamedForScreenReaders()
{
    const Same s;
    QCOMPARE(s.panel("sameSettingPanel")->accessibleName(), u"Setting in Other Columns"_s);
    QCOMPARE(s.list().accessibleName(), u"Columns with this setting"_s);
    QCOMPARE(s.list().model()->index(0, 0).data(Qt::AccessibleTextRole).toString(),
             u"First › One, 500, This value is applied"_s);
    QCOMPARE(s.list().model()->headerData(1, Qt::Horizontal).toString(), u"Value"_s);
}

void SameSettingTest::manyColumnsAreReadOnceForAnEdit()
{
    QStringList names;
    QJsonArray cells;
    for (int i = 0; i < 20; ++i) {
        names.append(QString::number(i));
        cells.append(peaksCell(i));
    }
    const Same s(Documents::document({Documents::tab(u"T"_s, names, cells)}, metadata()));
    QCOMPARE(s.places().size(), 20);
    const QSignalSpy read(s.list().model(), &QAbstractItemModel::dataChanged);
    for (int i = 0; i < 20; ++i)
        s.view(0, i)->propertySet()->property(kTopk).setValue(1000 + i);
    QCOMPARE(read.size(), 0);
    QTRY_COMPARE(s.values().constLast(), u"1019"_s);
    QVERIFY2(read.size() <= 3, qPrintable(QString::number(read.size())));
}

void SameSettingTest::whatIsBeingTypedIsApplied()
{
    const Same s;
    s.toggle(1);
    KPropertyEditorView &settings = *s.view(0, 0)->editorView();
    QVERIFY(LeavingWays::open(settings, kTopk));
    LeavingWays::type(u"77"_s);
    // By its mnemonic, which leaves the focus where it is.
    s.apply().click();
    QCOMPARE(s.peaks(0, 0), 77);
    QCOMPARE(s.peaks(1, 0), 77);
    QCOMPARE(s.peaks(1, 1), 1000);
    QCOMPARE(s.bench->history()->count(), 2);
}

void SameSettingTest::readOnlyWindowsApplyNothing()
{
    const QString reason = u"This window is read only: nothing can be applied."_s;
    const Same s;
    s.toggle(1);
    QVERIFY(s.apply().isEnabled());
    s.window->setReadOnly();
    QTRY_VERIFY(!s.apply().isEnabled());
    QCOMPARE(s.apply().toolTip(), reason);
    QCOMPARE(shown(s.list(), kRemarkColumn).at(1), reason);
    s.apply().click();
    QCOMPARE(s.peaks(1, 0), 1000);
}

void SameSettingTest::theWindowMayGoWhileTheValueIsApplied_data()
{
    QTest::addColumn<bool>("isAtOnce");
    QTest::addRow("behind the event") << false;
    QTest::addRow("at once") << true;
}

void SameSettingTest::theWindowMayGoWhileTheValueIsApplied()
{
    QFETCH(bool, isAtOnce);
    const Same s;
    s.toggle(1);
    s.toggle(2);
    connect(s.window->workflowTabs(), &WorkflowTabs::edited, s.window, [&s, isAtOnce] {
        if (isAtOnce)
            delete s.window;
        else
            s.window->deleteLater();
    });
    QTest::keyClick(&s.apply(), Qt::Key_Space);
    QTRY_VERIFY(!s.window);
}

void SameSettingTest::aColumnMayGoWhileTheValueIsApplied()
{
    const Same s;
    s.toggle(1);
    s.toggle(2);
    connect(s.view(1, 0)->propertySet(), &KPropertySet::propertyChanged, s.window, [&s] {
        PropertyGridWidget *grid = s.window->grid(1);
        QMetaObject::invokeMethod(
            grid, [grid] { grid->removeColumn(0); }, Qt::QueuedConnection);
        grid->removeColumn(1);
    });
    QTest::mouseClick(&s.apply(), Qt::LeftButton);
    QCOMPARE(s.label("sameSettingOutcome").section(u'\n', 0, 0), u"Applied to 1 column."_s);
    QVERIFY(s.label("sameSettingOutcome").contains(u"Second › Three"_s));
    QTRY_COMPARE(s.places(), QStringList({u"First › One"_s}));
}

WIDGET_REGISTER_TEST(SameSettingTest)
#include "SameSettingTest.moc"
