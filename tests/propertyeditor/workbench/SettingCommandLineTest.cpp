#include "ClipboardFixture.h"

#include <QDir>
#include <QProcess>

using namespace ClipboardFixture;

namespace {

QJsonArray storedSettings(const QJsonObject &document, int column)
{
    const QJsonObject tab = document.value(u"tabs"_s).toArray().at(0).toObject();
    return tab.value(u"cells"_s).toArray().at(column).toObject().value(u"properties"_s).toArray();
}

/// Names and values of all cells of a file.
QList<QPair<QString, QJsonValue>> settingsIn(const QString &path)
{
    QList<QPair<QString, QJsonValue>> settings;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return settings;
    const QJsonObject document = QJsonDocument::fromJson(file.readAll()).object();
    for (const auto tab : document.value(u"tabs"_s).toArray()) {
        for (const auto cell : tab.toObject().value(u"cells"_s).toArray()) {
            for (const auto entry : cell.toObject().value(u"properties"_s).toArray())
                settings.append(
                    {entry.toObject().value(u"name"_s).toString(), entry.toObject().value(u"value"_s)});
        }
    }
    return settings;
}

/// Runs a line as a person pastes it into a terminal.
int runInShell(const QString &line, QString *said)
{
    QProcess shell;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"PATH"_s, QFileInfo(text(ORV_WORKFLOW_PROGRAM)).absolutePath() + u':' +
                                      environment.value(u"PATH"_s));
    shell.setProcessEnvironment(environment);
    shell.start(u"/bin/sh"_s, {u"-c"_s, line});
    if (!shell.waitForFinished(60'000))
        return -1;
    *said = QString::fromUtf8(shell.readAllStandardError());
    return shell.exitCode();
}

} // namespace

class SettingCommandLineTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void commandLinesDoTheSame_data();
    void commandLinesDoTheSame();
    void commandLinesOfExamplesAreTaken_data();
    void commandLinesOfExamplesAreTaken();
    void commandLinesFindColumnsWithoutNamesOfTheirOwn();
    void commandLinesLeaveOutWhatNoProgramCanBeGiven();
};

void SettingCommandLineTest::commandLinesDoTheSame_data()
{
    QTest::addColumn<QString>("letters");
    QTest::addColumn<QString>("name");
    QTest::addRow("plain") << u"RK"_s << u"plain"_s;
    QTest::addRow("quotes") << u"'R' \"K\" '\\'' it's"_s << u"it's a \"test\""_s;
    QTest::addRow("variables and patterns") << u"$HOME `ls` $(ls) * ? [a] !x ~ {a,b}"_s << u"$(a) *"_s;
    QTest::addRow("blanks and lines") << u"  a\tb \n c "_s << u" two  blanks "_s;
    QTest::addRow("signs of shells") << u"a;b|c&d>e<f#g\\h\\"_s << u"a;b&c#d"_s;
    QTest::addRow("dashes and equal signs") << u"--output=x=y"_s << u"--tab=x"_s;
    QTest::addRow("other letters") << u"ä 蛋白 👩‍🔬"_s << u"ä 蛋白"_s;
    QTest::addRow("nothing") << QString() << u"0"_s;
}

void SettingCommandLineTest::commandLinesDoTheSame()
{
    QFETCH(QString, letters);
    QFETCH(QString, name);
    const QTemporaryDir folder;
    const QString file = folder.filePath(name.simplified().remove(u'/') + u".wflw"_s);
    const QJsonObject document =
        Documents::document({Documents::tab(u"Other"_s, {u"One"_s}, {karvonCell()}),
                             Documents::tab(name, {u"First"_s, name}, {karvonCell(), fullCell()})},
                            metadata());
    QFile written(file);
    QVERIFY(written.open(QIODevice::WriteOnly));
    written.write(QJsonDocument(document).toJson());
    written.close();
    Bench b;
    QCOMPARE(b.window->openWorkflow(file), kOpened);
    b.window->show();
    b.window->tabs().setCurrentIndex(1);
    const auto *view = b.view(1, 1);
    view->editorView()->expandAll();
    KPropertySet *set = view->propertySet();
    set->property(kLetters).setValue(letters);
    set->property(kPeaks).setValue(77);
    set->property(kPrecursor).setValue(QJsonDocument(massOf(0.1, "Da")).toJson());
    view->editorView()->setFocus();
    view->editorView()->setCurrentIndex(LeavingWays::rowOf(*view->editorView(), kPeaks));
    view->editorView()->selectAll();
    b.child<QAction>("copySettingsAsCommandLine")->trigger();
    const QString line = QGuiApplication::clipboard()->text();
    QVERIFY2(line.startsWith(u"orv-workflow set "_s), qPrintable(line));
    QString said;
    QVERIFY2(runInShell(line, &said) == 0, qPrintable(line + said));
    QVERIFY(written.open(QIODevice::ReadOnly));
    const QJsonObject now = QJsonDocument::fromJson(written.readAll()).object();
    const QJsonObject held = b.window->content().document();
    const auto settings = [](const QJsonObject &whole) {
        const QJsonObject tab = whole.value(u"tabs"_s).toArray().at(1).toObject();
        return tab.value(u"cells"_s).toArray().at(1).toObject().value(u"properties"_s).toArray();
    };
    QCOMPARE(settings(now), settings(held));
    QCOMPARE(storedSettings(now, 0), storedSettings(document, 0));
}

void SettingCommandLineTest::commandLinesOfExamplesAreTaken_data()
{
    QTest::addColumn<QString>("path");
    const QDir examples(text(ORV_EXAMPLE_WORKFLOWS));
    for (const QString &name : examples.entryList({u"*.wflw"_s}, QDir::Files)) {
        // Its files lie on a server.
        if (name != u"server_preview.wflw"_s)
            QTest::addRow("%s", qPrintable(name)) << examples.filePath(name);
    }
}

/// All settings of every column, given to the file anew, leave it as it was.
void SettingCommandLineTest::commandLinesOfExamplesAreTaken()
{
    QFETCH(QString, path);
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"copy.wflw"_s);
    QVERIFY(QFile::copy(path, file));
    QString said;
    QVERIFY2(runInShell(u"orv-workflow upgrade --in-place '%1'"_s.arg(file), &said) == 0, qPrintable(said));
    const QList<QPair<QString, QJsonValue>> before = settingsIn(file);
    ScriptedAnswerer answers;
    Bench b;
    QCOMPARE(b.window->openWorkflow(file), kOpened);
    b.window->show();
    b.window->workflowTabs()->setPropertiesViewMode(GridPropertyEditorView::PropertiesViewMode::Advanced);
    for (GridPropertyEditorView *view : b.window->findChildren<GridPropertyEditorView *>()) {
        for (int tab = 0; tab < b.window->tabs().count(); ++tab) {
            if (b.window->tabs().widget(tab)->isAncestorOf(view))
                b.window->tabs().setCurrentIndex(tab);
        }
        view->editorView()->expandAll();
        view->editorView()->setFocus();
        view->editorView()->selectAll();
        b.child<QAction>("copySettingsAsCommandLine")->trigger();
        const QString line = QGuiApplication::clipboard()->text();
        QVERIFY2(line.startsWith(u"orv-workflow"_s) && runInShell(line, &said) == 0, qPrintable(line + said));
        QVERIFY2(!b.window->statusBar()->currentMessage().contains(u"No command line"_s),
                 qPrintable(b.window->statusBar()->currentMessage()));
    }
    QVERIFY(!before.isEmpty());
    QCOMPARE(settingsIn(file), before);
}

void SettingCommandLineTest::commandLinesFindColumnsWithoutNamesOfTheirOwn()
{
    const QTemporaryDir folder;
    const QString file = write(folder, "twins.wflw",
                               Documents::document({Documents::tab(u"T"_s, {u"Twin"_s, u"Twin"_s, QString()},
                                                                   {fullCell(), fullCell(), fullCell()})},
                                                   metadata()));
    Bench b;
    QCOMPARE(b.window->openWorkflow(file), kOpened);
    b.window->show();
    for (const int column : {0, 1, 2}) {
        const auto *view = b.view(0, column);
        view->editorView()->expandAll();
        view->propertySet()->property(kPeaks).setValue(10 + column);
        view->editorView()->setFocus();
        view->editorView()->setCurrentIndex(LeavingWays::rowOf(*view->editorView(), kPeaks));
        b.child<QAction>("copySettingsAsCommandLine")->trigger();
        QString said;
        QCOMPARE(runInShell(QGuiApplication::clipboard()->text(), &said), 0);
        QFile now(file);
        QVERIFY(now.open(QIODevice::ReadOnly));
        const QJsonObject document = QJsonDocument::fromJson(now.readAll()).object();
        const QJsonArray settings = storedSettings(document, column);
        QCOMPARE(settings.at(1).toObject().value(u"value"_s).toInt(), 10 + column);
    }
}

void SettingCommandLineTest::commandLinesLeaveOutWhatNoProgramCanBeGiven()
{
    const Desk d;
    d.property(0, kLetters).setValue(QString(200'000, u'R'));
    d.key(Qt::Key_A);
    const QString line = d.copiedBy("copySettingsAsCommandLine");
    QVERIFY(line.contains(u"KarvonCentroidTopk=500"_s));
    QVERIFY(!line.contains(u"RRR"_s));
    QCOMPARE(d.message(),
             u"3 settings copied. No command line holds: "_s + d.property(0, kLetters).caption());
    d.property(0, kLetters).setValue(QString(QChar(0)) + u"R"_s);
    QVERIFY(!d.copiedBy("copySettingsAsCommandLine").contains(text(kLetters)));
}

WIDGET_REGISTER_TEST(SettingCommandLineTest)
#include "SettingCommandLineTest.moc"
