#include "LogCapture.h"
#include "WidgetHands.h"
#include "WidgetTest.h"

#include <orv/core_ms/SampleFileChecker.h>
#include <orv/widgets/DialogAnswerer.h>
#include <orv/widgets/SamplesAndTracesInputWidget.h>

#include <QAccessible>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QRandomGenerator>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QToolButton>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

QJsonObject sampleContent()
{
    return Hands::parsed(R"({
        "Samples": [
            {"SamplesId": 4, "SampleName": "lot 1", "SamplePath": "a/lot1.raw", "Condition": "treated"},
            {"SamplesId": 7, "SampleName": "lot 2", "SamplePath": "a/lot2.raw", "Condition": "control"}],
        "CustomColumns": [{"name": "Condition", "type": "text"}],
        "TraceImportAndProcessingOptions": {"TracesImportList": [
            {"type": 1, "channelName": "TIC", "channelId": "t", "imported": true},
            {"type": 3, "channelName": "UV 214", "channelId": "u", "imported": true, "samplesIds": [7]}],
            "ElutionPeaksOptions": []}})");
}

struct Widget : SamplesAndTracesInputWidget
{
    explicit Widget(const QJsonObject &json = sampleContent())
    {
        if (setFromJsonContent(json).hasError())
            qFatal("The samples don't load");
        Hands::show(*this);
    }
    TableView *samples() { return Hands::table(*this, "Samples"); }
    TableView *traces() { return Hands::table(*this, "Traces"); }
    QJsonObject sample(int row) const { return jsonContent()["Samples"_L1][row].toObject(); }
    QString message()
    {
        for (QWidget *parent = samples(); parent; parent = parent->parentWidget()) {
            if (auto *const label = parent->findChild<QLabel *>(u"message"_s))
                return label->text();
        }
        return {};
    }
};

void makeFiles(const QTemporaryDir &folder, const QStringList &names)
{
    for (const QString &name : names) {
        QDir().mkpath(QFileInfo(folder.filePath(name)).path());
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly))
            qFatal("No file");
    }
}

QJsonValue anyJson(QRandomGenerator &random, int depth)
{
    switch (random.bounded(depth > 3 ? 5 : 7)) {
    case 0:
        return {};
    case 1:
        return random.bounded(2) == 0;
    case 2:
        return random.bounded(20) - 10;
    case 3:
        return random.generateDouble() * 1e12;
    case 4:
        return QString(random.bounded(5), QChar(0x20 + random.bounded(0x300)));
    case 5: {
        QJsonArray array;
        for (int i = random.bounded(4); i > 0; --i)
            array.append(anyJson(random, depth + 1));
        return array;
    }
    default: {
        const QStringList keys = {
            u"Samples"_s,         u"CustomColumns"_s, u"SamplePath"_s,
            u"SampleName"_s,      u"SamplesId"_s,     u"data"_s,
            u"children"_s,        u"name"_s,          u"TraceImportAndProcessingOptions"_s,
            u"TracesImportList"_s};
        QJsonObject object;
        for (int i = random.bounded(5); i > 0; --i)
            object.insert(keys[random.bounded(int(keys.size()))], anyJson(random, depth + 1));
        return object;
    }
    }
}

} // namespace

class SamplesWidgetTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void examplesComeBack();
    void jsonOfAnyShapeComesBack();
    void whatIsNoSamplesIsTold();
    void cellsAreTypedIn();
    void changesAreToldOnceAndUndone();
    void aListenerMayDestroyTheWidget();
    void filesAndFoldersAreDropped();
    void tenThousandFilesAreDropped_data();
    void tenThousandFilesAreDropped();
    void filesAreChosen();
    void commandsAreReachedByTab();
    void filesArePasted();
    void newFilesOfOthersAreTakenAtOnce();
    void rowsArePastedFromASpreadsheet();
    void customColumnsAreAddedAndRemoved();
    void modesHideEmptyColumns();
    void tracesFollowTheSelection();
    void filesAreMarkedInTheBackground();
    void aHangingFileKeepsNobodyWaiting();
    void everythingIsReachedAndNamed();
    void theWidgetReadsAsText();
    void problemsAreFound();
};

void SamplesWidgetTest::examplesComeBack()
{
    int count = 0;
    for (const auto &[name, value] : Hands::exampleValues(u"Samples"_s)) {
        Widget widget(value);
        QCOMPARE(widget.jsonContent(), value);
        ++count;
    }
    QVERIFY(count >= 8);
}

void SamplesWidgetTest::jsonOfAnyShapeComesBack()
{
    constexpr quint32 kSeed = 20240611;
    QRandomGenerator random(kSeed);
    // Texts that are no references are told in the log.
    const LogCapture log;
    for (int i = 0; i < 60; ++i) {
        const QJsonObject json = QJsonObject{{u"Samples"_s, anyJson(random, 0)},
                                             {u"CustomColumns"_s, anyJson(random, 2)},
                                             {u"x"_s, anyJson(random, 0)}};
        SamplesAndTracesInputWidget widget;
        (void)widget.setFromJsonContent(json).hasError();
        QCOMPARE(widget.jsonContent(), json);
        QVERIFY(!widget.plainText().isEmpty());
    }
}

void SamplesWidgetTest::whatIsNoSamplesIsTold()
{
    Widget widget;
    const QJsonObject odd{{u"Samples"_s, u"text"_s}};
    QVERIFY(widget.setFromJsonContent(odd).hasError());
    QVERIFY(Hands::notice(widget).startsWith(u"The samples can't be shown, and stay as they are:"_s));
    QCOMPARE(widget.jsonContent(), odd);
    QVERIFY(widget.samplesInput().isEmpty());
    QVERIFY(!widget.validate(nullptr, nullptr, nullptr));
    QVERIFY(!widget.setFromJsonContent(sampleContent()).hasError());
    QCOMPARE(Hands::notice(widget), QString());
}

void SamplesWidgetTest::cellsAreTypedIn()
{
    Widget widget;
    Hands::enter(widget.samples(), 0, 0, "new name");
    QCOMPARE(widget.sample(0)["SampleName"_L1].toString(), u"new name"_s);
    QCOMPARE(widget.samplesInput()[0].name, u"new name"_s);
    QCOMPARE(widget.sample(1), sampleContent()["Samples"_L1][1].toObject());
}

void SamplesWidgetTest::changesAreToldOnceAndUndone()
{
    Widget widget;
    QSignalSpy changes(&widget, &SamplesAndTracesInputWidget::samplesChanged);
    Hands::enter(widget.samples(), 0, 0, "a");
    Hands::enter(widget.samples(), 1, 0, "b");
    QCOMPARE(changes.size(), 0);
    QTRY_COMPARE(changes.size(), 1);
    const auto told = changes[0][0].value<QList<SamplesInput::Entry>>();
    QCOMPARE(told[1].name, u"b"_s);
    QCOMPARE(told[1].id, 7);
    widget.samples()->action(TableView::Command::Undo)->trigger();
    widget.samples()->action(TableView::Command::Undo)->trigger();
    QCOMPARE(widget.jsonContent(), sampleContent());
    QTRY_COMPARE(changes.size(), 2);
}

void SamplesWidgetTest::aListenerMayDestroyTheWidget()
{
    auto *const widget = new Widget;
    const QPointer<Widget> guard = widget;
    connect(widget, &SamplesAndTracesInputWidget::samplesChanged, this, [widget] { delete widget; });
    Hands::enter(widget->samples(), 0, 0, "a");
    QTRY_VERIFY(!guard);

    auto *const other = new Widget;
    const QPointer<Widget> otherGuard = other;
    connect(other, &SamplesAndTracesInputWidget::samplesChanged, this, [other] { delete other; });
    (void)other->setFromJsonContent({}).hasError();
    QVERIFY(!otherGuard);
}

void SamplesWidgetTest::filesAndFoldersAreDropped()
{
    const QTemporaryDir folder;
    makeFiles(folder,
              {u"x.mzML"_s, u"vendor.d/in/side.mzML"_s, u"more/y2.mgf"_s, u"more/y10.mgf"_s, u"z.doc"_s});
    Widget widget;
    QVERIFY(Hands::drop(widget.samples(), {folder.filePath(u"x.mzML"_s), folder.filePath(u"vendor.d"_s),
                                           folder.filePath(u"more"_s), folder.filePath(u"z.doc"_s)}));
    QTRY_COMPARE(widget.samplesInput().size(), 6);
    QStringList names;
    for (const SamplesInput::Entry &entry : widget.samplesInput())
        names.append(entry.name);
    QCOMPARE(names.sliced(2), (QStringList{u"x"_s, u"vendor"_s, u"y2"_s, u"y10"_s}));
    QCOMPARE(widget.message(), u"Samples added: 4."_s);
    QVERIFY(Hands::notice(widget).contains(u": z.doc."_s));
    widget.samples()->action(TableView::Command::Undo)->trigger();
    QCOMPARE(widget.jsonContent(), sampleContent());
}

void SamplesWidgetTest::tenThousandFilesAreDropped_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<bool>("asFolder");
    for (const bool asFolder : {true, false}) {
        QTest::addRow("samples, %s", asFolder ? "folder" : "files") << u"mzML"_s << asFolder;
        QTest::addRow("others, %s", asFolder ? "folder" : "files") << u"doc"_s << asFolder;
    }
}

void SamplesWidgetTest::tenThousandFilesAreDropped()
{
    QFETCH(QString, suffix);
    QFETCH(bool, asFolder);
    constexpr int kFiles = 10'000;
    const QTemporaryDir folder;
    QStringList names;
    for (int i = 0; i < kFiles; ++i)
        names.append(u"%1.%2"_s.arg(i).arg(suffix));
    if (asFolder)
        makeFiles(folder, names);
    QStringList paths;
    for (const QString &name : std::as_const(names))
        paths.append(folder.filePath(name));
    Widget widget;
    const QSignalSpy changed(&widget, &SamplesAndTracesInputWidget::samplesChanged);
    const QSignalSpy edited(&widget, &SamplesAndTracesInputWidget::edited);
    QVERIFY(Hands::drop(widget.samples(), asFolder ? QStringList{folder.path()} : paths));
    // The drop has only begun a search.
    QCOMPARE(widget.message(), u"Looking for samples..."_s);
    QCOMPARE(widget.samplesInput().size(), 2);
    QTRY_VERIFY_WITH_TIMEOUT(widget.message() != u"Looking for samples..."_s, 60'000);
    const bool areSamples = suffix == u"mzML"_s;
    QCOMPARE(widget.samplesInput().size(), areSamples ? kFiles + 2 : 2);
    QCoreApplication::processEvents();
    QCOMPARE(changed.size(), areSamples ? 1 : 0);
    QCOMPARE(edited.size(), areSamples ? 1 : 0);
    QVERIFY2(widget.message().size() < 400, qPrintable(widget.message().left(1000)));
    QVERIFY(areSamples || !Hands::notice(widget).isEmpty());
    QVERIFY(areSamples || asFolder || Hands::notice(widget).contains(u"2.doc and 9997 more"_s));
    QVERIFY(!widget.grab().isNull());
}

void SamplesWidgetTest::filesAreChosen()
{
    const QTemporaryDir folder;
    makeFiles(folder, {u"x.mzML"_s, u"y.mzML"_s, u"sub/z.mgf"_s});
    Widget widget;
    ScriptedAnswerer answers;
    answers.expectPath(u"Add Files"_s, folder.filePath(u"x.mzML"_s) + u'\n' + folder.filePath(u"y.mzML"_s));
    answers.expectPath(u"Add Folder"_s, folder.filePath(u"sub"_s));
    Hands::press(widget, "addFiles");
    QTRY_COMPARE(widget.samplesInput().size(), 4);
    Hands::press(widget, "addFolder");
    QTRY_COMPARE(widget.samplesInput().size(), 5);
    QCOMPARE(widget.samplesInput()[4].name, u"z"_s);
    QVERIFY(answers.isDone());
}

void SamplesWidgetTest::commandsAreReachedByTab()
{
    const QTemporaryDir folder;
    makeFiles(folder, {u"x.mzML"_s});
    Widget widget;
    const QStringList commands = {u"addFiles"_s,   u"addFolder"_s, u"nameByFiles"_s,
                                  u"checkFiles"_s, u"columns"_s,   u"showTraces"_s};
    auto *const first = widget.findChild<QToolButton *>(commands.first());
    first->setFocus(Qt::TabFocusReason);
    for (const QString &command : commands) {
        QCOMPARE(QApplication::focusWidget()->objectName(), command);
        Hands::key(Qt::Key_Tab);
    }
    for (int i = 0; i < commands.size(); ++i)
        Hands::key(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), first);
    ScriptedAnswerer answers;
    answers.expectPath(u"Add Files"_s, folder.filePath(u"x.mzML"_s));
    Hands::key(Qt::Key_Space);
    QTRY_COMPARE(widget.samplesInput().size(), 3);
    QVERIFY(answers.isDone());
}

void SamplesWidgetTest::filesArePasted()
{
    const QTemporaryDir folder;
    makeFiles(folder, {u"x.mzML"_s});
    Widget widget;
    auto *const data = new QMimeData;
    data->setUrls({QUrl::fromLocalFile(folder.filePath(u"x.mzML"_s))});
    QGuiApplication::clipboard()->setMimeData(data);
    Hands::click(widget.samples(), 0, 0);
    Hands::key(Qt::Key_V, Qt::ControlModifier);
    QTRY_COMPARE(widget.samplesInput().size(), 3);
    QCOMPARE(widget.samplesInput()[2].name, u"x"_s);
    QCOMPARE(widget.samplesInput()[0].name, u"lot 1"_s);
}

void SamplesWidgetTest::newFilesOfOthersAreTakenAtOnce()
{
    Widget widget;
    QSignalSpy changes(&widget, &SamplesAndTracesInputWidget::samplesChanged);
    widget.addNewSampleFiles({{u"/d/new.raw"_s, u"Lot 3"_s}, {u"a/lot1.raw"_s, u"lot 1"_s}});
    QCOMPARE(changes.size(), 1);
    QCOMPARE(widget.samplesInput().size(), 3);
    QCOMPARE(widget.samplesInput()[2].name, u"Lot 3"_s);
    widget.addNewSampleFiles({{u"/d/new.raw"_s, u"Lot 3"_s}});
    QCOMPARE(changes.size(), 1);
}

void SamplesWidgetTest::rowsArePastedFromASpreadsheet()
{
    Widget widget(QJsonObject{});
    QGuiApplication::clipboard()->setText(u"Name\tFile\nA\t/d/a.raw\nB\t/d/b.raw\n"_s);
    widget.samples()->setFocus();
    Hands::key(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(widget.samplesInput().size(), 2);
    QCOMPARE(widget.samplesInput()[1].msFile->text(), u"/d/b.raw"_s);
    QCOMPARE(widget.samplesInput()[1].id, 2);
}

void SamplesWidgetTest::customColumnsAreAddedAndRemoved()
{
    Widget widget;
    QSignalSpy removed(&widget, &SamplesAndTracesInputWidget::removeCustomColumn);
    auto *const menu = widget.findChild<QToolButton *>(u"columns"_s)->menu();
    ScriptedAnswerer answers;
    answers.expectDialog(u"Add Column"_s, [](QDialog &dialog) {
        auto *const name = dialog.findChild<QLineEdit *>(u"columnName"_s);
        QTest::keyClicks(name, u"Condition"_s);
        auto *const problem = dialog.findChild<QLabel *>(u"columnProblem"_s);
        const bool isTold = problem->text() == u"There is a column \"Condition\" already."_s;
        QTest::keyClicks(name, u" 2"_s);
        return isTold && problem->text().isEmpty();
    });
    menu->actions().constFirst()->trigger();
    Hands::enter(widget.samples(), 1, widget.samples()->sheet()->columnOf(u"Condition 2"_s), "x");
    QCOMPARE(widget.sample(1)["Condition 2"_L1].toString(), u"x"_s);
    answers.expectBox(u"Remove Column"_s, u"Cancel"_s);
    answers.expectBox(u"Remove Column"_s, u"Remove"_s);
    menu->actions()[1]->trigger();
    QVERIFY(removed.isEmpty());
    menu->actions()[1]->trigger();
    QCOMPARE(removed.size(), 1);
    QCOMPARE(removed[0][0].toString(), u"Condition"_s);
    QVERIFY(!widget.sample(0).contains("Condition"_L1));
    QVERIFY(answers.isDone());
}

void SamplesWidgetTest::modesHideEmptyColumns()
{
    QJsonObject json = sampleContent();
    json.remove("TraceImportAndProcessingOptions"_L1);
    QJsonArray samples = json["Samples"_L1].toArray();
    QJsonObject first = samples[0].toObject();
    first["Digestion"_L1] = u"Trypsin"_s;
    samples[0] = first;
    json["Samples"_L1] = samples;
    Widget widget(json);
    const auto isHidden = [&](const char *name) {
        return widget.samples()->isColumnHidden(widget.samples()->sheet()->columnOf(QLatin1String(name)));
    };
    QVERIFY(!isHidden("ExtraReferences"));
    widget.setModes({SamplesInput::Mode::Intact});
    QVERIFY(isHidden("ExtraReferences"));
    QVERIFY(!isHidden("Traces"));
    // Intact has no use for it, but a sample has a value in it.
    QVERIFY(!isHidden("Digestion"));
    auto *const pane = widget.findChild<QTabWidget *>(u"tracesPane"_s);
    QVERIFY(!pane->isVisible());
    Hands::press(widget, "showTraces");
    QVERIFY(pane->isVisible());
    widget.setModes({SamplesInput::Mode::Karvon});
    QVERIFY(!isHidden("ExtraReferences"));
    QVERIFY(!pane->isVisible());
    widget.setModes({SamplesInput::Mode::Karvon, SamplesInput::Mode::Intact});
    QVERIFY(!isHidden("Traces"));
}

void SamplesWidgetTest::tracesFollowTheSelection()
{
    Widget widget;
    Hands::press(widget, "onlySelected");
    Hands::click(widget.samples(), 0, 0);
    QVERIFY(!widget.traces()->isRowHidden(0));
    QVERIFY(widget.traces()->isRowHidden(1));
    Hands::click(widget.samples(), 1, 0);
    QVERIFY(!widget.traces()->isRowHidden(1));
    const int column = widget.traces()->sheet()->columnOf(u"samplesIds"_s);
    const QModelIndex cell = widget.traces()->tableModel()->index(1, column);
    QCOMPARE(cell.data(TableModel::NoteRole).toString(), u"lot 2"_s);
    Hands::enter(widget.samples(), 1, 0, "renamed");
    QCOMPARE(cell.data(TableModel::NoteRole).toString(), u"renamed"_s);
    Hands::enter(widget.traces(), 1, column, "4");
    const QJsonObject options = widget.jsonContent()["TraceImportAndProcessingOptions"_L1].toObject();
    QCOMPARE(options["TracesImportList"_L1][1]["samplesIds"_L1].toArray(), QJsonArray{4});
}

void SamplesWidgetTest::filesAreMarkedInTheBackground()
{
    const QTemporaryDir folder;
    makeFiles(folder, {u"a/lot1.raw"_s});
    Widget widget;
    widget.setBaseUrl(QUrl::fromLocalFile(folder.path() + u'/'));
    const auto note = [&](int row) {
        return widget.samples()->tableModel()->index(row, 1).data(TableModel::NoteRole).toString();
    };
    QTRY_COMPARE(note(1), u"not found"_s);
    QTRY_VERIFY(!note(0).isEmpty());
    QVERIFY(note(0) != u"not found"_s);
    makeFiles(folder, {u"a/lot2.raw"_s});
    Hands::press(widget, "checkFiles");
    QTRY_VERIFY(!note(1).isEmpty());
    QVERIFY(note(1) != u"not found"_s);
}

void SamplesWidgetTest::aHangingFileKeepsNobodyWaiting()
{
    const auto asked = std::make_shared<QSemaphore>();
    const auto released = std::make_shared<QSemaphore>();
    const auto ended = std::make_shared<QSemaphore>();
    {
        SamplesAndTracesInputWidget widget(
            new SampleFileChecker([=](const ResourceReferenceSPtr &) -> SampleFileChecker::Answer {
                asked->release();
                released->acquire();
                ended->release();
                return {};
            }));
        widget.addNewSampleFiles({{u"/hangs/x.raw"_s, {}}});
        Hands::show(widget);
        QTRY_VERIFY(asked->available() > 0);
        Hands::enter(Hands::table(widget, "Samples"), 0, 0, "still alive");
        QCOMPARE(widget.samplesInput()[0].name, u"still alive"_s);
    }
    released->release();
    ended->acquire();
}

void SamplesWidgetTest::everythingIsReachedAndNamed()
{
    Widget widget;
    QSet<const QWidget *> reached;
    for (QWidget *at = widget.nextInFocusChain(); at != &widget && !reached.contains(at);
         at = at->nextInFocusChain())
        reached.insert(at);
    for (QAbstractButton *const button : widget.findChildren<QAbstractButton *>()) {
        if (!button->isVisibleTo(&widget) || button->objectName().startsWith(u"qt_"_s) ||
            button->inherits("QLineEditIconButton") || button->inherits("QTableCornerButton"))
            continue;
        QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(button);
        QVERIFY2(!accessible->text(QAccessible::Name).isEmpty(),
                 qPrintable(QLatin1String(button->metaObject()->className()) + button->toolTip()));
        QVERIFY2(reached.contains(button) || button->focusPolicy() == Qt::NoFocus,
                 qPrintable(button->objectName()));
        QVERIFY2(!button->toolTip().isEmpty(), qPrintable(button->text()));
    }
    for (const TableColumn &column : widget.samples()->sheet()->columns())
        QVERIFY2(!column.explanation.isEmpty(), qPrintable(column.name));
    for (const TableColumn &column : widget.traces()->sheet()->columns())
        QVERIFY2(!column.explanation.isEmpty(), qPrintable(column.name));
}

void SamplesWidgetTest::theWidgetReadsAsText()
{
    Widget widget;
    const QString text = widget.plainText();
    QVERIFY2(text.startsWith(u"Samples\nName\tFile\tReference"_s), qPrintable(text));
    QVERIFY(text.contains(u"lot 1\ta/lot1.raw\tNo"_s));
    QVERIFY(text.contains(u"Traces\nUse\tType\tChannel"_s));
    QVERIFY(text.contains(u"Yes\tUV\tUV 214\tu\t7"_s));
}

void SamplesWidgetTest::problemsAreFound()
{
    Widget widget;
    QStringList warnings;
    QStringList errors;
    QStringList details;
    QVERIFY(widget.validate(&warnings, &errors, &details));
    QVERIFY(warnings.isEmpty() && errors.isEmpty() && details.isEmpty());
    Hands::enter(widget.samples(), 0, 0, "lot 2");
    QVERIFY(widget.validate(&warnings, &errors, &details));
    QCOMPARE(
        warnings,
        QStringList(u"Several samples have one name, and settings that name it mean all of them: lot 2."_s));
    Hands::click(widget.samples(), 1, 1);
    Hands::key(Qt::Key_Delete);
    QVERIFY(!widget.validate(&warnings, &errors, &details));
    QCOMPARE(errors, QStringList(u"Every sample needs a file."_s));
}

WIDGET_REGISTER_TEST(SamplesWidgetTest)

#include "SamplesWidgetTest.moc"
