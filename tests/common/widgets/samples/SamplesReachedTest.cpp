#include "WidgetHands.h"
#include "WidgetTest.h"

#include <orv/widgets/DialogAnswerer.h>
#include <orv/widgets/SamplesAndTracesInputWidget.h>

#include <QDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QVBoxLayout>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

QJsonObject twoSamples()
{
    return Hands::parsed(R"({
        "Samples": [
            {"SamplesId": 4, "SampleName": "lot 1", "SamplePath": "a/lot1.raw", "Traces": ["t/uv.csv"]},
            {"SamplesId": 7, "SampleName": "lot 2", "SamplePath": "a/lot2.raw"}],
        "CustomColumns": [{"name": "Condition", "type": "text"}],
        "TraceImportAndProcessingOptions": {"TracesImportList": [
            {"type": 1, "channelName": "TIC", "channelId": "t", "imported": true}],
            "ElutionPeaksOptions": []}})");
}

struct Samples : SamplesAndTracesInputWidget
{
    explicit Samples(const QJsonObject &json = twoSamples())
    {
        if (setFromJsonContent(json).hasError())
            qFatal("The samples don't load");
        Hands::show(*this);
    }
    TableView *table() { return Hands::table(*this, "Samples"); }
    QToolButton *button(const char *name) { return findChild<QToolButton *>(QLatin1String(name)); }
    QString message() { return table()->parentWidget()->findChild<QLabel *>(u"message"_s)->text(); }
};

QString newFile(const QTemporaryDir &folder, const QString &name)
{
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("No file");
    return file.fileName();
}

QString nameOfFocus()
{
    const QWidget *const focus = QApplication::focusWidget();
    if (const auto *const view = qobject_cast<const TableView *>(focus))
        return view->accessibleName();
    return focus ? focus->objectName() : QString();
}

/// Leaves what has the focus; a table only by Ctrl.
void tab(bool forward)
{
    const bool isTable = qobject_cast<TableView *>(QApplication::focusWidget());
    const Qt::KeyboardModifiers control = isTable ? Qt::ControlModifier : Qt::NoModifier;
    Hands::key(forward ? Qt::Key_Tab : Qt::Key_Backtab,
               control | (forward ? Qt::NoModifier : Qt::ShiftModifier));
}

QStringList reached(bool forward, int count)
{
    QStringList names = {nameOfFocus()};
    while (names.size() < count) {
        tab(forward);
        names.append(nameOfFocus());
    }
    return names;
}

} // namespace

/// Whether a person finds and hears what the widget does, by mouse and by keyboard.
class SamplesReachedTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void tabFollowsTheScreenBothWays();
    void tabFollowsTheScreenAfterAColumnHasCome();
    void lettersPressTheCommands();
    void theFocusOfAToolButtonIsFramed();
    void addedSamplesAreSelectedSeenAndTold();
    void whatIsNoSampleIsNamedAboveTheTable();
    void samplesThatAreThereAreTold();
    void theDialogOffersSamplesFirst();
    void namedSamplesAreNotNamedAnew();
    void missingTraceFilesAreMarked();
    void pathsShareTheFreeRoom();
    void findingsOfRowsAreProblems();
};

void SamplesReachedTest::tabFollowsTheScreenBothWays()
{
    Samples widget;
    const QStringList order = {u"addFiles"_s,     u"addFolder"_s, u"nameByFiles"_s,
                               u"checkFiles"_s,   u"columns"_s,   u"showTraces"_s,
                               u"filter"_s,       u"Samples"_s,   u"qt_tabwidget_tabbar"_s,
                               u"onlySelected"_s, u"filter"_s,    u"Traces"_s};
    widget.button("addFiles")->setFocus(Qt::TabFocusReason);
    QCOMPARE(reached(true, int(order.size())), order);
    QStringList back = order;
    std::reverse(back.begin(), back.end());
    QCOMPARE(reached(false, int(order.size())), back);
}

void SamplesReachedTest::tabFollowsTheScreenAfterAColumnHasCome()
{
    Samples widget;
    ScriptedAnswerer answers;
    answers.expectDialog(u"Add Column"_s, [](QDialog &dialog) {
        QTest::keyClicks(dialog.findChild<QLineEdit *>(u"columnName"_s), u"Buffer"_s);
        return true;
    });
    widget.button("columns")->menu()->actions().constFirst()->trigger();
    QVERIFY(answers.isDone());
    widget.button("showTraces")->setFocus(Qt::TabFocusReason);
    QCOMPARE(reached(true, 4),
             (QStringList{u"showTraces"_s, u"filter"_s, u"Samples"_s, u"qt_tabwidget_tabbar"_s}));
}

void SamplesReachedTest::lettersPressTheCommands()
{
    const QTemporaryDir folder;
    Samples widget;
    ScriptedAnswerer answers;
    answers.expectPath(u"Add Files"_s, newFile(folder, u"x.mzML"_s));
    answers.expectPath(u"Add Folder"_s, {});
    Hands::click(widget.table(), 0, 0);
    Hands::key(Qt::Key_A, Qt::AltModifier);
    QTRY_COMPARE(widget.samplesInput().size(), 3);
    Hands::key(Qt::Key_D, Qt::AltModifier);
    QTRY_VERIFY(answers.isDone());
}

void SamplesReachedTest::theFocusOfAToolButtonIsFramed()
{
    Samples widget;
    QToolButton *const button = widget.button("addFiles");
    const QRgb frame = widget.palette().color(QPalette::Highlight).rgb();
    const auto edge = [button] { return button->grab().toImage().pixel(0, button->height() / 2); };
    widget.table()->setFocus();
    QVERIFY(edge() != frame);
    button->setFocus(Qt::TabFocusReason);
    QCOMPARE(edge(), frame);
}

void SamplesReachedTest::addedSamplesAreSelectedSeenAndTold()
{
    const QTemporaryDir folder;
    QScrollArea area;
    auto *const widget = new Samples;
    area.setWidget(widget);
    area.setWidgetResizable(true);
    area.resize(800, 200);
    area.show();
    QVERIFY(QTest::qWaitForWindowActive(&area));
    ScriptedAnswerer answers;
    answers.expectPath(u"Add Files"_s, newFile(folder, u"x.mzML"_s) + u'\n' + newFile(folder, u"y.mzML"_s));
    area.verticalScrollBar()->setValue(0);
    Hands::press(*widget, "addFiles");
    QTRY_COMPARE(widget->samplesInput().size(), 4);
    QCOMPARE(widget->message(), u"Samples added: 2."_s);
    const QList<QModelIndex> rows = widget->table()->selectionModel()->selectedRows();
    QCOMPARE(rows.size(), 2);
    QCOMPARE(rows[0].row() + rows[1].row(), 2 + 3);
    QCOMPARE(widget->table()->currentIndex().row(), 2);
    const auto isSeen = [&area](const QWidget &part, const QRect &rect) {
        return area.viewport()->rect().contains(
            QRect(part.mapTo(area.viewport(), rect.topLeft()), rect.size()));
    };
    const QRect row = widget->table()->visualRect(widget->table()->currentIndex());
    QVERIFY(widget->table()->viewport()->rect().contains(row));
    QVERIFY(isSeen(*widget->table()->viewport(), row));
    auto *const message = widget->table()->parentWidget()->findChild<QLabel *>(u"message"_s);
    QVERIFY(isSeen(*message, message->rect()));
}

void SamplesReachedTest::whatIsNoSampleIsNamedAboveTheTable()
{
    const QTemporaryDir folder;
    Samples widget;
    ScriptedAnswerer answers;
    const QString path = newFile(folder, u"antibody.fasta"_s);
    answers.expectPath(u"Add Files"_s, path);
    answers.expectPath(u"Add Files"_s, newFile(folder, u"x.mzML"_s));
    Hands::press(widget, "addFiles");
    QTRY_COMPARE(Hands::notice(widget),
                 u"Not added, because there is no sample in it: antibody.fasta. Samples are "
                 "files of mass spectra, folders of vendors and projects."_s);
    auto *const notice = widget.findChild<QLabel *>(u"notice"_s);
    const auto topOf = [&widget](const QWidget &part) { return part.mapTo(&widget, QPoint()).y(); };
    QVERIFY(topOf(*notice) > topOf(*widget.button("addFiles")));
    QVERIFY(topOf(*notice) < topOf(*widget.table()));
    QCOMPARE(widget.samplesInput().size(), 2);
    Hands::press(widget, "addFiles");
    QTRY_COMPARE(widget.samplesInput().size(), 3);
    QCOMPARE(Hands::notice(widget), QString());
}

void SamplesReachedTest::samplesThatAreThereAreTold()
{
    Samples widget;
    widget.addNewSampleFiles({{u"a/lot1.raw"_s, u"lot 1"_s}, {u"/d/new.raw"_s, u"new"_s}});
    QCOMPARE(widget.message(), u"Samples added: 1. Not added, because the table has them already: 1."_s);
}

void SamplesReachedTest::theDialogOffersSamplesFirst()
{
    Samples widget;
    ScriptedAnswerer answers;
    answers.expectPath(u"Add Files"_s, {});
    Hands::press(widget, "addFiles");
    const QStringList filters = answers.transcript().constFirst().text.split(u'\n');
    QVERIFY2(filters[0].startsWith(u"Samples ("_s) && filters[0].contains(u"*.mzml"_s),
             qPrintable(filters[0]));
    QVERIFY2(filters[1].startsWith(u"Mass spectra ("_s), qPrintable(filters[1]));
    QVERIFY(!filters[0].contains(u"fasta"_s));
}

void SamplesReachedTest::namedSamplesAreNotNamedAnew()
{
    Samples widget;
    Hands::press(widget, "nameByFiles");
    QCOMPARE(widget.message(), u"All samples with a file have names already."_s);
    QCOMPARE(widget.jsonContent(), twoSamples());
}

void SamplesReachedTest::missingTraceFilesAreMarked()
{
    const QTemporaryDir folder;
    Samples widget;
    widget.setBaseUrl(QUrl::fromLocalFile(folder.path() + u'/'));
    const int column = widget.table()->sheet()->columnOf(u"Traces"_s);
    const auto note = [&] {
        return widget.table()->tableModel()->index(0, column).data(TableModel::NoteRole).toString();
    };
    QTRY_COMPARE(note(), u"not found"_s);
    QDir(folder.path()).mkdir(u"t"_s);
    (void)newFile(folder, u"t/uv.csv"_s);
    Hands::press(widget, "checkFiles");
    QTRY_COMPARE(note(), QString());
}

void SamplesReachedTest::pathsShareTheFreeRoom()
{
    QJsonObject json = twoSamples();
    json["Samples"_L1] = QJsonArray{QJsonObject{
        {u"SamplesId"_s, 1},
        {u"SampleName"_s, u"A name that is a good deal longer than most names of samples are"_s},
        {u"SamplePath"_s,
         u"/a/folder/below/folders/that/has/a/long/way/to/the/top/of/the/disk/mab_reference.mzML"_s}}};
    Samples widget(json);
    const auto room = [&] {
        return widget.table()->horizontalHeader()->length() - widget.table()->viewport()->width();
    };
    widget.resize(1400, 700);
    QVERIFY(QTest::qWaitFor([&] { return widget.table()->viewport()->width() > 1200; }));
    const int wide = widget.table()->columnWidth(1);
    QVERIFY2(room() <= 0, qPrintable(QString::number(room())));
    widget.resize(900, 700);
    QVERIFY(QTest::qWaitFor([&] { return widget.table()->viewport()->width() < 900; }));
    QVERIFY(widget.table()->columnWidth(1) < wide);
}

void SamplesReachedTest::findingsOfRowsAreProblems()
{
    Samples widget;
    TableModel *const model = widget.table()->tableModel();
    QToolButton *const problems = widget.button("onlyProblems");
    QCOMPARE(problems->text(), u"No problems"_s);
    model->setRowRemarks({{model->rowId(1), {u"The file does not exist"_s}}});
    QCOMPARE(problems->text(), u"Problems: 1"_s);
    Hands::press(widget, "onlyProblems");
    QCOMPARE(model->rowCount(), 1);
    QCOMPARE(model->index(0, 0).data().toString(), u"lot 2"_s);
    Hands::press(widget, "onlyProblems");
    model->setRowRemarks({});
    QCOMPARE(problems->text(), u"No problems"_s);
}

WIDGET_REGISTER_TEST(SamplesReachedTest)

#include "SamplesReachedTest.moc"
