#include "ComparisonFixture.h"
#include "WidgetTest.h"

#include <QAction>
#include <QDropEvent>
#include <QMimeData>
#include <QProcess>

#include <memory>
#include <utility>

using namespace orv;
using namespace ComparisonFixture;

namespace {

/// Its samples lie in a folder.
QJsonObject manySamples(const QString &folder)
{
    constexpr int kSamples = 30'000;
    QJsonArray samples;
    for (int i = 0; i < kSamples; ++i) {
        samples.append(QJsonObject{{u"SampleName"_s, u"S%1"_s.arg(i)},
                                   {u"SamplePath"_s, u"%1/%2.mzML"_s.arg(folder).arg(i)}});
    }
    const QJsonObject table{{u"Samples"_s, samples}};
    return documentOf({QJsonObject{
        {u"type"_s, u"Samples"_s},
        {u"properties"_s, QJsonArray{QJsonObject{{u"name"_s, u"SamplesTable"_s}, {u"value"_s, table}}}}}});
}

} // namespace

/// Documents and moments that are odd.
class ComparisonLimitsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void olderDocumentsAreUpgradedForTheComparison();
    void portableFoldersAndDroppedFilesAreCompared();
    void errorsStandInThePanel_data();
    void errorsStandInThePanel();
    void newerDocumentsAreShownOnly();
    void theOwnFileIsNamedAsSuch();
    void filesOfAnotherFolderAreNamedWhole();
    void theOwnFileIsReadAnewWhenItIsSaved();
    void theOtherFileIsReadAnewWhenThisOneMoves();
    void readOnlyWindowsTakeNothingOver();
    void anotherDocumentIsComparedAnewWithoutChecks();
    void theWindowMayGo_data();
    void theWindowMayGo();
    void manyDifferencesAreShown();
    void longValuesAreCutOnce();
    void programsEndWhileLargeDocumentsAreCompared_data();
    void programsEndWhileLargeDocumentsAreCompared();
    void closingThePanelEndsTheComparison();
};

void ComparisonLimitsTest::olderDocumentsAreUpgradedForTheComparison()
{
    const QDir folder(TestData::examplePath(u"workflows/outdated"_s));
    const QStringList files = folder.entryList({u"*.wflw"_s});
    QVERIFY(!files.isEmpty());
    Compared c;
    const QByteArray before = TestData::read(folder.filePath(files.first()));
    QVERIFY(c.compareWith(folder.filePath(files.first())));
    const QRegularExpression note(
        u"^%1 was upgraded from [0-9.]+ for this comparison; its file stays as it is\\.$"_s.arg(
            QRegularExpression::escape(files.first())));
    const QString told = c.note().section(u'\n', 0, 0);
    QVERIFY2(note.match(told).hasMatch(), qPrintable(c.note() + c.summary()));
    QVERIFY(!c.lines().isEmpty());
    QCOMPARE(TestData::read(folder.filePath(files.first())), before);
}

void ComparisonLimitsTest::portableFoldersAndDroppedFilesAreCompared()
{
    Compared c;
    QVERIFY(QDir(c.folder.path()).mkdir(u"P.wflwp"_s));
    write(c.folder, "P.wflwp/workflow.wflw", otherDocument());
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(c.folder.filePath(u"P.wflwp"_s))});
    QWidget *panel = c.panel("comparisonPanel")->widget();
    c.panel("comparisonPanel")->show();
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QVERIFY(QApplication::sendEvent(panel, &enter) && enter.isAccepted());
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(panel, &drop);
    QTRY_COMPARE(c.summary(), u"4 differences to P.wflwp"_s);
    QMimeData text;
    text.setUrls({QUrl::fromLocalFile(u"/tmp/x.txt"_s)});
    QDragEnterEvent refused({5, 5}, Qt::CopyAction, &text, Qt::LeftButton, {});
    refused.setAccepted(true);
    QApplication::sendEvent(panel, &refused);
    QVERIFY(!refused.isAccepted());
}

void ComparisonLimitsTest::errorsStandInThePanel_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("part");
    QTest::newRow("broken") << QByteArray("{\"tabs\": [") << u"BAD.wflw"_s;
    QTest::newRow("no tabs") << Documents::toBytes(Documents::document(QJsonArray(), metadata()))
                             << u"BAD.wflw"_s;
    QTest::newRow("no workflow") << QByteArray("[]") << u"BAD.wflw"_s;
    QTest::newRow("missing") << QByteArray() << u"BAD.wflw"_s;
    QTest::newRow("60 MB of brackets") << QByteArray(60'000'000, '[') << u"BAD.wflw"_s;
}

void ComparisonLimitsTest::errorsStandInThePanel()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QString, part);
    Compared c;
    const QString path = c.folder.filePath(u"BAD.wflw"_s);
    if (!text.isEmpty())
        write(c.folder, "BAD.wflw", text);
    QVERIFY(c.compareWith(path));
    QVERIFY(c.answers.isDone());
    QCOMPARE(c.summary(), u"BAD.wflw can't be compared."_s);
    const QString told = c.child<QLabel>("comparisonEmpty")->text();
    QVERIFY2(told.contains(part), qPrintable(told));
    QVERIFY(!c.takeOver().isEnabled());
    // The next one is read as if nothing had been.
    QVERIFY(c.compareWith(otherDocument()));
    QCOMPARE(c.summary(), u"4 differences to OTHER.wflw"_s);
}

void ComparisonLimitsTest::newerDocumentsAreShownOnly()
{
    Compared c;
    QVERIFY(c.compareWith(documentOf({searchColumn(500, u"RK"_s)}, metadata("99.1.0"))));
    QCOMPARE(c.note(), u"OTHER.wflw comes from a newer version of the software (99.1.0)."_s);
    QVERIFY(c.rowOf(kPeaks).isValid());
    c.check(kPeaks);
    QVERIFY(!c.takeOver().isEnabled());
    QVERIFY(c.takeOver().toolTip().contains(u"newer version"_s));
}

void ComparisonLimitsTest::filesOfAnotherFolderAreNamedWhole()
{
    const auto document = [](const char *file) {
        return documentOf({settingsCell("Senthia", {setting("InSilicoPeptidesFile", text(file), "Extras")})});
    };
    Compared c;
    const QTemporaryDir elsewhere;
    const QString own = write(c.folder, "OWN.wflw", document("data/a.csv"));
    QCOMPARE(int(c.window->openWorkflow(own)), int(kOpened));
    QVERIFY(c.compareWith(document("data/a.csv")));
    QCOMPARE(c.lines().join(u'\n'), QString());
    QVERIFY(c.compareWith(write(elsewhere, "OTHER.wflw", document("data/a.csv"))));
    QCOMPARE(c.note(), u"Files that it names from its own folder are shown with their whole paths."_s);
    c.check(u"In-silico peptides file"_s);
    QTest::mouseClick(&c.takeOver(), Qt::LeftButton);
    QVERIFY(c.isQuiet());
    QVERIFY2(c.shownDocument().contains(elsewhere.filePath(u"data/a.csv"_s).toUtf8()),
             c.shownDocument().constData());
}

void ComparisonLimitsTest::theOwnFileIsNamedAsSuch()
{
    Compared c;
    const QString path = write(c.folder, "OWN.wflw", thisDocument());
    QCOMPARE(int(c.window->openWorkflow(path)), int(kOpened));
    QVERIFY(c.compareWith(path));
    QCOMPARE(c.note(), u"This is the file of this workflow: what differs isn't saved yet."_s);
    QCOMPARE(c.lines().join(u'\n'), QString());
}

void ComparisonLimitsTest::theOwnFileIsReadAnewWhenItIsSaved()
{
    Compared c;
    const QString path = write(c.folder, "OWN.wflw", thisDocument());
    QCOMPARE(int(c.window->openWorkflow(path)), int(kOpened));
    QVERIFY(c.compareWith(path));
    c.view(0, 0)->propertySet()->property("KarvonCentroidTopk").setValue(7);
    QTRY_VERIFY(c.rowOf(kPeaks).isValid());
    QVERIFY(c.isQuiet());
    QVERIFY(c.window->saveWorkflowToJSON(path));
    QTRY_COMPARE(c.lines().join(u'\n'), QString());
    QVERIFY(c.isQuiet());
    QCOMPARE(c.note(), u"This is the file of this workflow: what differs isn't saved yet."_s);
    QCOMPARE(c.summary(), u"No differences to OWN.wflw."_s);
}

void ComparisonLimitsTest::theOtherFileIsReadAnewWhenThisOneMoves()
{
    const auto document = [](const char *file) {
        return documentOf({settingsCell("Senthia", {setting("InSilicoPeptidesFile", text(file), "Extras")})});
    };
    const QString whole = u"Files that it names from its own folder are shown with their whole paths."_s;
    Compared c;
    const QTemporaryDir elsewhere;
    const QString own = write(c.folder, "OWN.wflw", document("data/a.csv"));
    QCOMPARE(int(c.window->openWorkflow(own)), int(kOpened));
    QVERIFY(c.compareWith(document("data/b.csv")));
    QCOMPARE(c.note(), QString());
    QVERIFY(c.window->saveWorkflowToJSON(elsewhere.filePath(u"OWN.wflw"_s)));
    QTRY_COMPARE(c.note(), whole);
    QVERIFY(c.isQuiet());
    const QModelIndex row = c.rowOf(u"In-silico peptides file"_s);
    QCOMPARE(row.siblingAtColumn(2).data().toString(), c.folder.filePath(u"data/b.csv"_s));
}

void ComparisonLimitsTest::readOnlyWindowsTakeNothingOver()
{
    Compared c;
    c.window->setReadOnly();
    QVERIFY(c.compareWith(otherDocument()));
    c.check(kPeaks);
    QVERIFY(!c.takeOver().isEnabled());
    QCOMPARE(c.takeOver().toolTip(), u"This window is read only: nothing can be taken over."_s);
}

void ComparisonLimitsTest::anotherDocumentIsComparedAnewWithoutChecks()
{
    Compared c;
    QVERIFY(c.compareWith(otherDocument()));
    c.check(kPeaks);
    QCOMPARE(int(c.window->openWorkflow(documentOf({searchColumn(7, u"R"_s, 20)}))), int(kOpened));
    QVERIFY(c.isQuiet());
    QCOMPARE(c.summary(), u"2 differences to OTHER.wflw"_s);
    QCOMPARE(c.stateOf(kPeaks), Qt::Unchecked);
}

void ComparisonLimitsTest::theWindowMayGo_data()
{
    QTest::addColumn<QString>("when");
    for (const char *when :
         {"dialog", "reading", "first change", "every change", "taking over", "step", "jump"})
        QTest::newRow(when) << QString::fromLatin1(when);
}

void ComparisonLimitsTest::theWindowMayGo()
{
    QFETCH(const QString, when);
    Compared c;
    const QString path = write(c.folder, "OTHER.wflw", otherDocument());
    // Deleting a window moves the focus, too.
    const auto destroy = [window = c.window.data(), isGone = std::make_shared<bool>(false)] {
        if (!std::exchange(*isGone, true))
            delete window;
    };
    if (when == u"dialog"_s) {
        const Destroyer destroyer(c.window, u"Compare With Workflow"_s, {});
        c.comparison().action()->trigger();
        QVERIFY(!c.window);
        return;
    }
    if (when == u"first change"_s)
        connect(&c.comparison(), &Comparison::changed, c.window, destroy);
    c.comparison().compareWith(path);
    if (when == u"reading"_s)
        destroy();
    if (when == u"first change"_s || when == u"reading"_s) {
        QVERIFY(!c.window);
        return;
    }
    if (when == u"every change"_s) {
        connect(&c.comparison(), &Comparison::changed, c.window, destroy);
        QTRY_VERIFY(!c.window);
        return;
    }
    QVERIFY(c.isQuiet());
    c.check(kPeaks);
    if (when == u"jump"_s) {
        connect(&c.window->tabs(), &QTabWidget::currentChanged, c.window, &QObject::deleteLater);
        connect(qApp, &QApplication::focusChanged, c.window, &QObject::deleteLater);
        QTest::keyClick(&c.tree(), Qt::Key_Return);
        QTRY_VERIFY(!c.window);
        return;
    }
    if (when == u"step"_s)
        connect(c.bench->history(), &DocumentHistory::stateChanged, c.window, destroy);
    c.takeOver().click();
    if (when == u"taking over"_s)
        destroy();
    QTRY_VERIFY(!c.window);
}

void ComparisonLimitsTest::manyDifferencesAreShown()
{
    Compared c;
    const QString path = write(c.folder, "OTHER.wflw", manySamples(u"/other"_s));
    QCOMPARE(int(c.window->openWorkflow(manySamples(u"/this"_s))), int(kOpened));
    c.comparison().compareWith(path);
    QVERIFY(QTest::qWaitFor([&c] { return !c.comparison().isBusy(); }, 120'000));
    QVERIFY2(c.summary().contains(u"differences to OTHER.wflw"_s), qPrintable(c.summary()));
    QVERIFY2(c.note().startsWith(u"Only the first "_s), qPrintable(c.note()));
}

void ComparisonLimitsTest::longValuesAreCutOnce()
{
    const QString own(5'000'000, u'a');
    const QString other(5'000'000, u'b');
    const auto document = [](const QString &value) {
        return documentOf({settingsCell("Karvon", {setting("Samples", value)})});
    };
    Compared c(document(own));
    QVERIFY(c.compareWith(document(other)));
    const QModelIndex row = c.rowOf(u"Samples"_s);
    QVERIFY2(row.isValid(), qPrintable(c.lines().join(u'\n').left(1000)));
    const QModelIndex cell = row.siblingAtColumn(1);
    const QString shown = cell.data().toString();
    QCOMPARE(shown, own.left(199) + u'…');
    QCOMPARE(row.siblingAtColumn(2).data().toString(), other.left(199) + u'…');
    // The same text as the one before, not another like it.
    QCOMPARE(static_cast<const void *>(cell.data().toString().constData()),
             static_cast<const void *>(shown.constData()));
    const QString hint = cell.data(Qt::ToolTipRole).toString();
    QVERIFY2(hint.startsWith(u"<p>aaa"_s) && hint.size() < 5000, qPrintable(hint.left(5000)));
}

void ComparisonLimitsTest::programsEndWhileLargeDocumentsAreCompared_data()
{
    QTest::addColumn<QString>("how");
    QTest::newRow("its window is closed") << u"close"_s;
    QTest::newRow("its window is open") << u"quit"_s;
}

void ComparisonLimitsTest::programsEndWhileLargeDocumentsAreCompared()
{
    QFETCH(const QString, how);
    const QTemporaryDir folder;
    const QString own = write(folder, "OWN.wflw", manySamples(u"/this"_s));
    const QString other = write(folder, "OTHER.wflw", manySamples(u"/other"_s));
    for (const int milliseconds : {0, 400, 1500}) {
        QProcess child;
        child.start(text(ORV_COMPARISON_CHILD), {how, own, other, QString::number(milliseconds)});
        QVERIFY(child.waitForFinished(60000));
        const QByteArray told = child.readAllStandardError();
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QVERIFY2(child.exitCode() == 0, told.constData());
        QVERIFY2(!told.contains("left to itself"), told.constData());
    }
}

void ComparisonLimitsTest::closingThePanelEndsTheComparison()
{
    Compared c;
    QVERIFY(c.compareWith(otherDocument()));
    c.check(kPeaks);
    QVERIFY(!c.comparison().otherPath().isEmpty());
    c.panel("comparisonPanel")->close();
    QCOMPARE(c.comparison().otherPath(), QString());
    QCOMPARE(c.lines().join(u'\n'), QString());
    QVERIFY(!c.takeOver().isEnabled());
    c.view(0, 0)->propertySet()->property("KarvonCentroidTopk").setValue(1);
    QVERIFY(c.isQuiet());
    QCOMPARE(c.lines().join(u'\n'), QString());
}

WIDGET_REGISTER_TEST(ComparisonLimitsTest)
#include "ComparisonLimitsTest.moc"
