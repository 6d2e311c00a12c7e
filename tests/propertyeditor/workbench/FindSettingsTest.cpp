#include "FindFixture.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/workbench/DocumentHistory.h>
#include <orv/propertyeditor/workbench/FindSettings.h>
#include <orv/widgets/TableView.h>

#include <QCheckBox>
#include <QSignalSpy>
#include <QStatusBar>

using namespace orv;
using namespace FindFixture;
using namespace Qt::StringLiterals;

namespace {

enum HitColumn
{
    kCaption,
    kValue,
    kDefault,
    kSaved,
    kWhere,
    kReason,
};

QJsonObject ppm(double value)
{
    return {{u"unit"_s, u"ppm"_s}, {u"value"_s, value}};
}

QJsonObject inGroup(const char *group, const char *name, const QJsonValue &value, int priority = 1)
{
    QJsonObject entry = setting(name, value, group);
    entry.insert(u"priority"_s, priority);
    return entry;
}

/// Two tabs; the settings of the second are folded, one is advanced.
QJsonObject lifelike()
{
    const QJsonObject search = karvonCell({inGroup("Masses", "KarvonPrecursorMassError", ppm(20)),
                                           inGroup("Masses", "KarvonFragmentMassError", ppm(20)),
                                           inGroup("Hidden", "KarvonCentroidTopk", 4, 3)});
    return Documents::document(
        {Documents::tab(u"First"_s, {u"One"_s}, {search}), Documents::tab(u"Second"_s, {u"Two"_s}, {search})},
        metadata());
}

struct Search : Bench
{
    explicit Search(const QJsonObject &document = lifelike())
    {
        if (!open(document))
            qFatal("The test's document can't be opened");
        QTest::keyClick(window, Qt::Key_F, Qt::ControlModifier);
    }

    [[nodiscard]] QLineEdit &field() const { return *child<QLineEdit>("findField"); }
    [[nodiscard]] QAbstractItemView &list() const { return *child<QAbstractItemView>("findHits"); }
    [[nodiscard]] QCheckBox &filter(const char *name) const { return *child<QCheckBox>(name); }
    [[nodiscard]] QStringList captions() const { return shown(list(), kCaption); }
    void type(const char *typed) const { QTest::keyClicks(&field(), text(typed)); }
};

} // namespace

class FindSettingsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void theShortcutOpensTheFieldAndEscapeLeaves();
    void hitsTellValuePlaceAndReason();
    void enterGoesToTheSettingInItsFoldedGroup();
    void aClickGoesToAnAdvancedSettingUntilTheSearchIsLeft();
    void foldsComeBackWhereNobodyWorks();
    void arrowsWalkThroughHitsFromTheField();
    void changedSettingsGoBackToTheirDefaultByOneClick();
    void whatWasChangedSinceSavingGoesBackByItsShortcut();
    void aFileMayTellWhatWasSaved();
    void readOnlyWindowsSetNothingBack();
    void aSettingAtItsDefaultIsNotChanged();
    void anEmptyDefaultIsToldInAWord();
    void editsShowInTheHits();
    void anotherDocumentIsSearchedAnew();
    void tablesKeepTheirOwnSearch();
    void filtersOfOthersSayWhyTheyCantBeUsed();
    void rowsKeepOneHeightAndCaptionsStandInLine();
    void theSelectionTellsWhereTheKeysGo();
    void filtersOfOthersFilter();
    void nothingFoundSaysWhatToDo();
    void theNumberIsToldAfterTyping();
    void oddTextsHurtNobody();
    void theWindowMayGoInAnEdit();
    void theWindowMayGoInAJump();
};

void FindSettingsTest::theShortcutOpensTheFieldAndEscapeLeaves()
{
    Bench b;
    QVERIFY(b.open(lifelike()));
    QVERIFY(!b.panel("findSettings")->isVisible());
    QWidget *before = b.view(0, 0)->editorView();
    before->setFocus();
    QTest::keyClick(b.window, Qt::Key_F, Qt::ControlModifier);
    QVERIFY(b.panel("findSettings")->isVisible());
    auto *field = b.child<QLineEdit>("findField");
    QVERIFY(field->hasFocus());
    QTest::keyClick(field, Qt::Key_Escape);
    QVERIFY(!b.panel("findSettings")->isVisible());
    QVERIFY(before->hasFocus());
    QCOMPARE(b.bench->find()->action()->text(), u"&Find Settings..."_s);
    QVERIFY(b.bench->editMenu()->actions().contains(b.bench->find()->action()));
}

void FindSettingsTest::hitsTellValuePlaceAndReason()
{
    Search s;
    s.type("mass TOL");
    QCOMPARE(s.captions(), QStringList({u"Precursor mass tolerance"_s, u"Fragment mass tolerance"_s,
                                        u"Precursor mass tolerance"_s, u"Fragment mass tolerance"_s}));
    QCOMPARE(shown(s.list(), kValue).constFirst(), u"20.00 ppm"_s);
    QCOMPARE(shown(s.list(), kWhere),
             QStringList({u"First › One"_s, u"First › One"_s, u"Second › Two"_s, u"Second › Two"_s}));
    QCOMPARE(shown(s.list(), kReason).constFirst(), u"Caption"_s);
    s.field().clear();
    s.type("karvonprecursormass");
    QCOMPARE(shown(s.list(), kReason).constFirst(), u"Name: KarvonPrecursorMassError"_s);
    s.field().clear();
    s.type("20.00");
    QCOMPARE(shown(s.list(), kReason).constFirst(), u"Value"_s);
    QCOMPARE(s.child<QLabel>("findCount")->text(), u"4 settings"_s);
}

void FindSettingsTest::enterGoesToTheSettingInItsFoldedGroup()
{
    Search s;
    s.window->tabs().setCurrentIndex(0);
    QVERIFY(!s.view(1, 0)->isExpanded());
    s.type("fragment mass");
    QTest::keyClick(&s.field(), Qt::Key_Down);
    QTest::keyClick(&s.field(), Qt::Key_Return);
    QCOMPARE(s.window->tabs().currentIndex(), 1);
    QCOMPARE(s.currentSetting(1, 0), "KarvonFragmentMassError");
    KPropertyCustomEditorView *tree = s.view(1, 0)->editorView();
    QVERIFY(tree->hasFocus());
    QVERIFY(!tree->visualRect(tree->currentIndex()).isEmpty());
    QVERIFY(tree->viewport()->rect().contains(tree->visualRect(tree->currentIndex()).center()));
}

void FindSettingsTest::aClickGoesToAnAdvancedSettingUntilTheSearchIsLeft()
{
    using Mode = GridPropertyEditorView::PropertiesViewMode;
    Search s;
    s.type("KarvonCentroidTopk");
    QCOMPARE(s.captions().size(), 2);
    clickAt(s.list(), 0, kCaption);
    QCOMPARE(s.currentSetting(0, 0), "KarvonCentroidTopk");
    QVERIFY(s.view(0, 0)->propertiesViewMode() == Mode::Advanced);
    QVERIFY(s.view(1, 0)->propertiesViewMode() == Mode::Basic);
    QTest::keyClick(s.window, Qt::Key_F, Qt::ControlModifier);
    QTest::keyClick(&s.field(), Qt::Key_Escape);
    QVERIFY(s.view(0, 0)->propertiesViewMode() == Mode::Basic);
}

void FindSettingsTest::foldsComeBackWhereNobodyWorks()
{
    Search s;
    const GridPropertyEditorView::Folds before = s.view(0, 0)->folds();
    QVERIFY(!before.isEmpty());
    s.type("fragment mass");
    clickAt(s.list(), 0, kCaption);
    QVERIFY(s.view(0, 0)->folds() != before);
    clickAt(s.list(), 1, kCaption);
    QTest::keyClick(s.window, Qt::Key_F, Qt::ControlModifier);
    QTest::keyClick(&s.field(), Qt::Key_Escape);
    QCOMPARE(s.view(0, 0)->folds(), before);
    QVERIFY(s.view(1, 0)->editorView()->hasFocus());
    QCOMPARE(s.view(1, 0)->folds().value(u"Masses"_s), true);
}

void FindSettingsTest::arrowsWalkThroughHitsFromTheField()
{
    Search s;
    s.type("mass tol");
    QCOMPARE(s.list().currentIndex().row(), 0);
    QTest::keyClick(&s.field(), Qt::Key_Down);
    QTest::keyClick(&s.field(), Qt::Key_Down);
    QTest::keyClick(&s.field(), Qt::Key_Up);
    QCOMPARE(s.list().currentIndex().row(), 1);
    QVERIFY(s.field().hasFocus());
}

void FindSettingsTest::changedSettingsGoBackToTheirDefaultByOneClick()
{
    Search s;
    QTest::mouseClick(&s.filter("changedFromDefault"), Qt::LeftButton);
    const qsizetype row = s.captions().indexOf(u"Precursor mass tolerance"_s);
    QVERIFY(row >= 0);
    QCOMPARE(shown(s.list(), kDefault).at(row), u"10.00 ppm"_s);
    QCOMPARE(shown(s.list(), kReason).at(row), u"Changed from the default"_s);
    const QStringList before = s.captions();
    QSignalSpy edited(s.window->workflowTabs(), &WorkflowTabs::edited);
    clickAt(s.list(), int(row), kDefault);
    QTRY_COMPARE(shown(s.list(), kValue).at(row), u"10.00 ppm"_s);
    QCOMPARE(edited.size(), 1);
    QCOMPARE(shown(s.list(), kDefault).at(row), QString());
    QCOMPARE(s.captions(), before);
    QTest::mouseClick(&s.filter("changedFromDefault"), Qt::LeftButton);
    QTest::mouseClick(&s.filter("changedFromDefault"), Qt::LeftButton);
    QCOMPARE(s.captions().size(), before.size() - 1);
}

void FindSettingsTest::whatWasChangedSinceSavingGoesBackByItsShortcut()
{
    Search s;
    KPropertySet *set = s.view(1, 0)->propertySet();
    QTest::mouseClick(&s.filter("changedSinceSaving"), Qt::LeftButton);
    QCOMPARE(s.captions(), QStringList());
    set->property("Samples").setValue(u"S1"_s);
    QCOMPARE(s.captions(), QStringList());
    QTest::mouseClick(&s.filter("changedSinceSaving"), Qt::LeftButton);
    QTest::mouseClick(&s.filter("changedSinceSaving"), Qt::LeftButton);
    QCOMPARE(shown(s.list(), kWhere), QStringList({u"Second › Two"_s}));
    QCOMPARE(shown(s.list(), kSaved), QStringList({u"*"_s}));
    s.list().setFocus();
    QTest::keyClick(&s.list(), Qt::Key_Backspace, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(set->property("Samples").value().toString(), u"*"_s);
    QTRY_COMPARE(shown(s.list(), kSaved), QStringList({QString()}));
}

void FindSettingsTest::aFileMayTellWhatWasSaved()
{
    const auto document = [](const QString &samples, int peaks) {
        return documentOf(
            {settingsCell("Karvon", {setting("Samples", samples), setting("KarvonCentroidTopk", peaks),
                                     setting("KarvonPrecursorMassError", ppm(10))})});
    };
    const QTemporaryDir folder;
    const QString file = write(folder, "a.wflw", document(u"first"_s, 500));
    Search s(document(u"second"_s, 500));
    QTest::mouseClick(&s.filter("changedSinceSaving"), Qt::LeftButton);
    QCOMPARE(s.captions(), QStringList());
    s.bench->find()->compareWithFile(file);
    QTRY_COMPARE(s.captions(), QStringList({u"Samples"_s}));
    QCOMPARE(shown(s.list(), kSaved), QStringList({u"first"_s}));
    clickAt(s.list(), 0, kSaved);
    QTRY_COMPARE(s.view(0, 0)->propertySet()->property("Samples").value().toString(), u"first"_s);
    // Another document is what it was when it was shown.
    s.bench->find()->compareWithFile(file);
    QCOMPARE(int(s.window->openWorkflow(document(u"third"_s, 300))), int(kOpened));
    QTRY_COMPARE(s.captions(), QStringList());
    // What can't be read is told.
    s.bench->find()->compareWithFile(folder.filePath(u"missing.wflw"_s));
    QTRY_VERIFY(s.window->statusBar()->currentMessage().startsWith(
        u"What changed since the last save isn't known: "_s));
}

void FindSettingsTest::readOnlyWindowsSetNothingBack()
{
    Search s(documentOf({settingsCell("Karvon", {setting("KarvonPrecursorMassError", ppm(20))})}));
    QTest::mouseClick(&s.filter("changedFromDefault"), Qt::LeftButton);
    QCOMPARE(shown(s.list(), kDefault), QStringList({u"10.00 ppm"_s}));
    const QModelIndex cell = s.list().model()->index(0, kDefault);
    QVERIFY(!cell.data(Qt::DecorationRole).isNull());
    const auto *action = s.child<QAction>("setBackToDefault");
    QVERIFY(action->isEnabled());
    s.window->setReadOnly();
    QTRY_VERIFY(!action->isEnabled());
    QCOMPARE(action->toolTip(), u"This window is read only: nothing can be set back."_s);
    QTRY_VERIFY(s.list().model()->index(0, kDefault).data(Qt::DecorationRole).isNull());
    clickAt(s.list(), 0, kDefault);
    QTest::keyClick(&s.list(), Qt::Key_Backspace, Qt::ControlModifier);
    QCOMPARE(shown(s.list(), kValue), QStringList({u"20.00 ppm"_s}));
    QVERIFY(!s.bench->history()->canUndo());
}

void FindSettingsTest::aSettingAtItsDefaultIsNotChanged()
{
    Search s(documentOf({settingsCell(
        "Karvon", {setting("KarvonPrecursorMassError", ppm(10)), setting("ReportConfiguration", QString()),
                   setting("KarvonGlycanText", QJsonObject{{u"glycans"_s, QString()}})})}));
    QTest::mouseClick(&s.filter("changedFromDefault"), Qt::LeftButton);
    QCOMPARE(s.captions(), QStringList());
    QCOMPARE(s.child<QLabel>("findEmpty")->text(), u"No setting passes this filter."_s);
}

void FindSettingsTest::anEmptyDefaultIsToldInAWord()
{
    Search s(documentOf({settingsCell("Karvon", {setting("ReportConfiguration", u"/no/such.rptc"_s)})}));
    s.type("report configuration");
    QCOMPARE(shown(s.list(), kDefault), QStringList({u"(empty)"_s}));
    clickAt(s.list(), 0, kDefault);
    QTRY_COMPARE(shown(s.list(), kValue), QStringList({QString()}));
    QCOMPARE(shown(s.list(), kSaved), QStringList({u"/no/such.rptc"_s}));
    const QJsonObject column = s.window->grid(0)->items().constFirst()->content();
    QCOMPARE(column[u"properties"_s].toArray().at(0).toObject()[u"value"_s], QJsonValue(QString()));
}

void FindSettingsTest::editsShowInTheHits()
{
    Search s;
    s.type("precursor mass");
    KProperty &edited = s.view(0, 0)->propertySet()->property("KarvonPrecursorMassError");
    edited.setValue(s.view(0, 0)->propertySet()->property("KarvonFragmentMassError").value());
    const QString before = shown(s.list(), kValue).constFirst();
    QTRY_COMPARE(shown(s.list(), kSaved).constFirst(), QString());
    QCOMPARE(before, u"20.00 ppm"_s);
    s.window->grid(0)->renameColumn(0, u"Renamed"_s);
    QTRY_COMPARE(shown(s.list(), kWhere).constFirst(), u"First › Renamed"_s);
}

void FindSettingsTest::anotherDocumentIsSearchedAnew()
{
    Search s;
    s.type("mass tol");
    QCOMPARE(s.captions().size(), 4);
    QVERIFY(s.open(documentOf({karvonCell({setting("KarvonPrecursorMassError", ppm(20))})})));
    QTRY_COMPARE(s.captions().size(), 1);
    clickAt(s.list(), 0, kCaption);
    QCOMPARE(s.currentSetting(0, 0), "KarvonPrecursorMassError");
    s.window->clear();
    QTRY_COMPARE(s.captions().size(), 0);
    QVERIFY(s.child<QLabel>("findEmpty")->text().startsWith(u"There are no settings here."_s));
}

void FindSettingsTest::tablesKeepTheirOwnSearch()
{
    Bench b;
    QVERIFY(b.open(documentOf({Documents::cell(u"Samples"_s), karvonCell()})));
    auto *table = b.window->grid(0)->items().constFirst()->widget()->findChild<TableView *>();
    QVERIFY(table);
    table->setFocus();
    QTest::keyClick(table, Qt::Key_F, Qt::ControlModifier);
    QVERIFY(!b.panel("findSettings")->isVisible());
    table->setFocus();
    QTest::keyClick(table, Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(b.panel("findSettings")->isVisible());
}

void FindSettingsTest::filtersOfOthersSayWhyTheyCantBeUsed()
{
    Search s;
    QVERIFY(!s.filter("hasFinding").isEnabled());
    QVERIFY(s.filter("hasFinding").toolTip().startsWith(u"Check the workflow first"_s));
    QVERIFY(!s.filter("differs").isEnabled());
    QVERIFY(s.filter("differs").accessibleDescription().startsWith(u"Open a second document"_s));
}

void FindSettingsTest::rowsKeepOneHeightAndCaptionsStandInLine()
{
    Search s(documentOf({karvonCell({inGroup("Masses", "KarvonPrecursorMassError", ppm(10)),
                                     inGroup("Masses", "KarvonFragmentMassError", ppm(25))})}));
    const auto first = [&s] { return s.list().model()->index(0, kCaption); };
    s.type("KarvonPrecursorMassError");
    QCOMPARE(s.captions().size(), 1);
    const QColor indent = first().data(Qt::DecorationRole).value<QColor>();
    QCOMPARE(indent, QColor(Qt::transparent));
    const int height = s.list().visualRect(first()).height();
    QVERIFY(height > 0);
    s.field().clear();
    s.type("KarvonFragmentMassError");
    QCOMPARE(s.captions().size(), 1);
    QVERIFY(!first().data(Qt::DecorationRole).value<QIcon>().isNull());
    QCOMPARE(s.list().visualRect(first()).height(), height);
}

void FindSettingsTest::theSelectionTellsWhereTheKeysGo()
{
    Search s;
    QPalette colors = s.list().palette();
    const QColor withoutFocus(0x20, 0x60, 0x20);
    colors.setColor(QPalette::Inactive, QPalette::Highlight, withoutFocus);
    s.list().setPalette(colors);
    s.type("tolerance");
    const auto background = [&s] {
        const QRect row = s.list().visualRect(s.list().model()->index(0, kReason));
        return s.list().viewport()->grab(row).toImage().pixelColor(row.width() - 3, row.height() / 2);
    };
    QVERIFY(s.field().hasFocus());
    QCOMPARE(s.list().currentIndex().row(), 0);
    QCOMPARE(background().green() > background().blue(), true);
    // White on this blue can't be read.
    colors.setColor(QPalette::Inactive, QPalette::Highlight, QColor(48, 140, 198));
    colors.setColor(QPalette::Inactive, QPalette::HighlightedText, Qt::white);
    s.list().setPalette(colors);
    const QImage row =
        s.list().viewport()->grab(s.list().visualRect(s.list().model()->index(0, kReason))).toImage();
    int dark = 0;
    int light = 0;
    for (int y = 1; y < row.height() - 1; ++y) {
        for (int x = 1; x < row.width() - 1; ++x) {
            dark += row.pixelColor(x, y).lightness() < 30 ? 1 : 0;
            light += row.pixelColor(x, y).lightness() > 225 ? 1 : 0;
        }
    }
    QVERIFY2(dark > light, qPrintable(u"%1 dark, %2 light"_s.arg(dark).arg(light)));
    colors.setColor(QPalette::Inactive, QPalette::Highlight, withoutFocus);
    s.list().setPalette(colors);
    s.list().setFocus();
    QCOMPARE(background().green() > background().blue(), false);
}

void FindSettingsTest::filtersOfOthersFilter()
{
    Search s;
    s.bench->find()->setDiffersFromSecond([](const SettingPlace &place) {
        return place == SettingPlace{1, 0, "Samples"};
    });
    QVERIFY(s.filter("differs").isEnabled());
    QTest::mouseClick(&s.filter("differs"), Qt::LeftButton);
    QCOMPARE(shown(s.list(), kWhere), QStringList({u"Second › Two"_s}));
    QCOMPARE(shown(s.list(), kReason), QStringList({u"Differs from the second document"_s}));
    s.bench->find()->setDiffersFromSecond({});
    QVERIFY(!s.filter("differs").isChecked());
    QCOMPARE(s.captions(), QStringList());
}

void FindSettingsTest::nothingFoundSaysWhatToDo()
{
    Search s;
    auto *empty = s.child<QLabel>("findEmpty");
    QVERIFY(empty->isVisible());
    QVERIFY(empty->text().startsWith(u"Type a word"_s));
    s.type("no such word");
    QVERIFY(empty->text().contains(u"Type fewer letters"_s));
    QCOMPARE(s.child<QLabel>("findCount")->text(), u"0 settings"_s);
}

void FindSettingsTest::theNumberIsToldAfterTyping()
{
    Search s;
    const auto *count = s.child<QLabel>("findCount");
    s.type("mass tol");
    QCOMPARE(count->accessibleName(), QString());
    QTRY_COMPARE(count->accessibleName(), u"4 settings found"_s);
}

void FindSettingsTest::oddTextsHurtNobody()
{
    Search s;
    for (const QString &odd : {u"(.*)+$[^]"_s, QString(1 << 20, u'x'), u"👩‍🔬🧪"_s,
                               QString(QChar(0xd83d)), QString(1 << 16, QChar(0x301)), u"<b>&amp;"_s}) {
        s.field().setText(odd);
        QCOMPARE(s.captions(), QStringList());
        QTest::keyClick(&s.field(), Qt::Key_Return);
        QTest::keyClick(&s.field(), Qt::Key_Down);
    }
}

void FindSettingsTest::theWindowMayGoInAnEdit()
{
    Search s;
    QTest::mouseClick(&s.filter("changedFromDefault"), Qt::LeftButton);
    const qsizetype row = s.captions().indexOf(u"Precursor mass tolerance"_s);
    connect(s.window->workflowTabs(), &WorkflowTabs::edited, s.window, &QObject::deleteLater);
    clickAt(s.list(), int(row), kDefault);
    QTRY_VERIFY(!s.window);
}

void FindSettingsTest::theWindowMayGoInAJump()
{
    Search s;
    s.type("mass tol");
    clickAt(s.list(), 0, kCaption);
    connect(&s.window->tabs(), &QTabWidget::currentChanged, s.window, &QObject::deleteLater);
    clickAt(s.list(), 3, kCaption);
    QTRY_VERIFY(!s.window);
}

WIDGET_REGISTER_TEST(FindSettingsTest)
#include "FindSettingsTest.moc"
