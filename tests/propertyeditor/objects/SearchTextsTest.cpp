#include "ObjectsFixture.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/widgets/TECWrapper.h>

#include <QDir>
#include <QFile>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QUrl>

using namespace orv;
using namespace GridFixture;
using namespace ObjectsFixture;

namespace {

QPlainTextEdit *textOf(QDialog &dialog)
{
    return dialog.findChild<QPlainTextEdit *>(text("text"));
}

QString scriptOf(QDialog &dialog)
{
    return dialog.findChild<QPlainTextEdit *>(text("script"))->toPlainText();
}

/// Types at the end of the text of a shown dialog.
bool typeAtEnd(QDialog &dialog, QPlainTextEdit *edit, const QString &typed)
{
    if (!show(dialog) || !edit)
        return false;
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClicks(edit, typed);
    return true;
}

QString scriptsFolder()
{
    return QCoreApplication::applicationDirPath() + text("/labelscripts");
}

/// The folder of scripts beside this program, gone afterwards.
struct ScriptsFolder
{
    ScriptsFolder() { remove(); }
    ~ScriptsFolder() { remove(); }
    static void remove()
    {
        QDir(scriptsFolder()).removeRecursively();
        QFile::remove(scriptsFolder());
    }
    static void write(const QString &name, const QByteArray &bytes)
    {
        QDir().mkpath(scriptsFolder());
        QFile file(scriptsFolder() + u'/' + name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

} // namespace

/// Texts that a search or a plot gets, in dialogs of their own.
class SearchTextsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { startApplication(); }
    void dialogsShowTheTextAndTakeTheEdited_data();
    void dialogsShowTheTextAndTakeTheEdited();
    void peaksAreTaken();
    void cancelLeavesThePeaks();
    void cancelLeavesTheValue_data();
    void cancelLeavesTheValue();
    void untouchedTextsComeBack_data();
    void untouchedTextsComeBack();
    void glycansShowAbsolutePaths();
    void untouchedGlycansStayRelative();
    void backslashesOfGlycansSurvive_data();
    void backslashesOfGlycansSurvive();
    void scriptsShowInTheirFrame_data();
    void scriptsShowInTheirFrame();
    void scriptsAreLoaded();
    void scriptsAreSavedBesideTheProgram();
    void unusualNamesOfScriptsAreTaken_data();
    void unusualNamesOfScriptsAreTaken();
    void whatIsNoScriptIsTold_data();
    void whatIsNoScriptIsTold();
    void aFolderThatCannotBeMadeIsTold();
    void whoChoosesNoFileChangesNothing();
};

void SearchTextsTest::dialogsShowTheTextAndTakeTheEdited_data()
{
    QTest::addColumn<int>("editor");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("key");
    QTest::newRow("modifications") << int(Editor::Modifications) << text("Modifications")
                                   << text("modifications");
    QTest::newRow("glycans") << int(Editor::Glycans) << text("Glycans") << text("glycans");
}

void SearchTextsTest::dialogsShowTheTextAndTakeTheEdited()
{
    QFETCH(int, editor);
    QFETCH(QString, title);
    QFETCH(QString, key);
    QJsonObject value = object(kindOf(Editor(editor)).value);
    const QString before = value.value(key).toString();
    value.insert(text("more"), 1);
    Row row(kindOf(Editor(editor)).property, value);
    ScriptedAnswerer answers;
    QString shown;
    answers.expectDialog(title, [&](QDialog &dialog) {
        shown = textOf(dialog)->toPlainText();
        return typeAtEnd(dialog, textOf(dialog), text("% a remark")) && pressOk(dialog);
    });
    QVERIFY(row.pressButton());
    QVERIFY(answers.isDone());
    QCOMPARE(shown, before);
    QCOMPARE(row.stored(), QJsonValue(QJsonObject{{key, before + text("% a remark")}}));
    QCOMPARE(row.told(), 1);
}

void SearchTextsTest::peaksAreTaken()
{
    Row row(kindOf(Editor::PeakFilter));
    ScriptedAnswerer answers;
    answers.expectDialog(text("Diagnostic Peaks"), [](QDialog &dialog) {
        auto *add = dialog.findChild<QAbstractButton *>(text("addOxoniumIons"));
        if (!show(dialog) || !add)
            return false;
        QTest::mouseClick(add, Qt::LeftButton);
        return pressOk(dialog);
    });
    QVERIFY(row.pressButton());
    QVERIFY(answers.isDone());
    const QString peaks = row.stored()[text("peakfilter")].toString();
    QVERIFY2(peaks.startsWith(text("204.0867 HexNAc\n366.14\n")) && peaks.count(u'\n') > 2,
             qPrintable(peaks));
    QCOMPARE(row.told(), 1);
}

void SearchTextsTest::cancelLeavesThePeaks()
{
    Row row(kindOf(Editor::PeakFilter));
    const QByteArray before = row.bytes();
    ScriptedAnswerer answers;
    answers.expectDialog(text("Diagnostic Peaks"), [](QDialog &dialog) {
        auto *add = dialog.findChild<QAbstractButton *>(text("addOxoniumIons"));
        if (!show(dialog) || !add)
            return true;
        QTest::mouseClick(add, Qt::LeftButton);
        return press(dialog, text("Cancel"));
    });
    QVERIFY(row.pressButton());
    QVERIFY(answers.isDone());
    QCOMPARE(row.bytes(), before);
    QCOMPARE(row.told(), 0);
}

void SearchTextsTest::cancelLeavesTheValue_data()
{
    QTest::addColumn<int>("editor");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("field");
    QTest::newRow("modifications") << int(Editor::Modifications) << text("Modifications") << text("text");
    QTest::newRow("glycans") << int(Editor::Glycans) << text("Glycans") << text("text");
    QTest::newRow("trace script") << int(Editor::TracePlot) << text("Label Script of Traces")
                                  << text("script");
    QTest::newRow("mass script") << int(Editor::DeconvolvedMassPlot)
                                 << text("Label Script of Deconvolved Masses") << text("script");
}

void SearchTextsTest::cancelLeavesTheValue()
{
    QFETCH(int, editor);
    QFETCH(QString, title);
    QFETCH(QString, field);
    Row row(kindOf(Editor(editor)));
    const QByteArray before = row.bytes();
    for (const bool byEscape : {false, true}) {
        ScriptedAnswerer answers;
        answers.expectDialog(title, [&](QDialog &dialog) {
            auto *edit = dialog.findChild<QPlainTextEdit *>(field);
            const bool isTyped = typeAtEnd(dialog, edit, text("more"));
            if (byEscape)
                QTest::keyClick(edit, Qt::Key_Escape);
            else
                press(dialog, text("Cancel"));
            return !isTyped || dialog.isVisible() || dialog.result() == QDialog::Accepted;
        });
        QVERIFY(row.pressButton());
        QVERIFY(answers.isDone());
        QCOMPARE(row.bytes(), before);
    }
    QCOMPARE(row.told(), 0);
}

void SearchTextsTest::untouchedTextsComeBack_data()
{
    QTest::addColumn<int>("editor");
    QTest::addColumn<QByteArray>("value");
    for (Editor editor : {Editor::Modifications, Editor::Glycans, Editor::PeakFilter, Editor::TracePlot,
                          Editor::DeconvolvedMassPlot, Editor::InclusionList, Editor::TheoreticalTable}) {
        const Kind &kind = kindOf(editor);
        QTest::addRow("%s", kind.property) << int(editor) << QByteArray(kind.value);
        QTest::addRow("%s empty", kind.property) << int(editor) << QByteArray("{}");
        QTest::addRow("%s unset", kind.property) << int(editor) << QByteArray(R"({"data":""})");
        QTest::addRow("%s unknown", kind.property) << int(editor) << QByteArray(R"({"another":{"a":[1]}})");
    }
    QTest::newRow("a text that is none")
        << int(Editor::Modifications) << QByteArray(R"({"modifications":5})");
    QTest::newRow("a script in its frame")
        << int(Editor::TracePlot) << QByteArray(R"({"tracePlot":"<tec>\nx\n</tec>"})");
    QTest::newRow("a list as text") << int(Editor::InclusionList) << QByteArray(R"({"inclusion":"500,2\n"})");
    QTest::newRow("an empty list as text") << int(Editor::InclusionList) << QByteArray(R"({"inclusion":""})");
}

void SearchTextsTest::untouchedTextsComeBack()
{
    QFETCH(int, editor);
    QFETCH(QByteArray, value);
    Row row(kindOf(Editor(editor)).property, object(value));
    const QByteArray before = row.bytes();
    AcceptingAnswerer answers;
    QVERIFY(row.pressButton());
    QCOMPARE(answers.dialogs, 1);
    QCOMPARE(answers.boxes, 0);
    QCOMPARE(row.bytes(), before);
    QCOMPARE(row.told(), 0);
}

void SearchTextsTest::glycansShowAbsolutePaths()
{
    Row row(kindOf(Editor::Glycans));
    PropertyEditorUtils::updateGlycanPropertyWithAbsolutePath(&row.property(),
                                                              QUrl(text("file:///lab/study")));
    ScriptedAnswerer answers;
    QString shown;
    answers.expectDialog(text("Glycans"), [&](QDialog &dialog) {
        shown = textOf(dialog)->toPlainText();
        return typeAtEnd(dialog, textOf(dialog), text("% end")) && pressOk(dialog);
    });
    QVERIFY(row.pressButton());
    const QString absolute = text("[file:///lab/study/data/n_glycans.txt]\n% Custom glycan text below\n"
                                  "HexNAc(2)Hex(5) @ NGlycan | rare1\n");
    QCOMPARE(shown, absolute);
    QCOMPARE(row.stored()[text("glycans")].toString(), absolute + text("% end"));
}

void SearchTextsTest::untouchedGlycansStayRelative()
{
    Row row(kindOf(Editor::Glycans));
    PropertyEditorUtils::updateGlycanPropertyWithAbsolutePath(&row.property(),
                                                              QUrl(text("file:///lab/study")));
    AcceptingAnswerer answers;
    QVERIFY(row.pressButton());
    QCOMPARE(answers.dialogs, 1);
    QCOMPARE(row.stored(), QJsonValue(object(kindOf(Editor::Glycans).value)));
}

void SearchTextsTest::backslashesOfGlycansSurvive_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("path");
    QTest::newRow("a drive") << text("[C:\\\\glycans\\\\n.txt]") << text("[C:\\glycans\\n.txt]");
    QTest::newRow("a server") << text("[\\\\\\\\server\\\\n.txt]") << text("[\\\\server\\n.txt]");
}

void SearchTextsTest::backslashesOfGlycansSurvive()
{
    QFETCH(QString, stored);
    QFETCH(QString, path);
    Row row("KarvonGlycanText", QJsonObject{{text("glycans"), stored + u'\n'}});
    // Twice, as each time what was stored is read.
    for (int i = 0; i < 2; ++i) {
        ScriptedAnswerer answers;
        QString shown;
        answers.expectDialog(text("Glycans"), [&](QDialog &dialog) {
            shown = textOf(dialog)->toPlainText();
            return typeAtEnd(dialog, textOf(dialog), text("%")) && pressOk(dialog);
        });
        QVERIFY(row.pressButton());
        QCOMPARE(shown, path + u'\n' + QString(i, u'%'));
    }
}

void SearchTextsTest::scriptsShowInTheirFrame_data()
{
    QTest::addColumn<int>("editor");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("key");
    QTest::newRow("traces") << int(Editor::TracePlot) << text("Label Script of Traces") << text("tracePlot");
    QTest::newRow("masses") << int(Editor::DeconvolvedMassPlot) << text("Label Script of Deconvolved Masses")
                            << text("dmsPlot");
}

void SearchTextsTest::scriptsShowInTheirFrame()
{
    QFETCH(int, editor);
    QFETCH(QString, title);
    QFETCH(QString, key);
    Row row(kindOf(Editor(editor)).property, QJsonObject{{key, text("a;")}, {text("more"), 1}});
    ScriptedAnswerer answers;
    QString shown;
    answers.expectDialog(title, [&](QDialog &dialog) {
        shown = scriptOf(dialog);
        auto *edit = dialog.findChild<QPlainTextEdit *>(text("script"));
        if (!show(dialog))
            return false;
        edit->setFocus();
        QTest::keyClick(edit, Qt::Key_Home, Qt::ControlModifier);
        QTest::keyClick(edit, Qt::Key_Down);
        QTest::keyClicks(edit, text("b;"));
        return pressOk(dialog);
    });
    QVERIFY(row.pressButton());
    QVERIFY(answers.isDone());
    QCOMPARE(shown, TECWrapper::wrapTEC(text("a;")));
    QCOMPARE(row.stored(), QJsonValue(QJsonObject{{key, text("b;a;")}}));
    QCOMPARE(row.told(), 1);
}

void SearchTextsTest::scriptsAreLoaded()
{
    const ScriptsFolder folder;
    ScriptsFolder::write(text("areas.txt"), "area {a}");
    Row row(kindOf(Editor::TracePlot));
    ScriptedAnswerer answers;
    answers.expectDialog(text("Label Script of Traces"), [](QDialog &dialog) {
        return show(dialog) && !press(dialog, text("Load...")) && pressOk(dialog);
    });
    answers.expectPath(text("Load Label Script"), scriptsFolder() + text("/areas.txt"));
    QVERIFY(row.pressButton());
    QVERIFY(answers.isDone());
    QCOMPARE(answers.transcript().constLast().startPath, scriptsFolder());
    QCOMPARE(row.stored(), QJsonValue(QJsonObject{{text("tracePlot"), text("area {a}")}}));
}

void SearchTextsTest::scriptsAreSavedBesideTheProgram()
{
    const ScriptsFolder folder;
    Row row(kindOf(Editor::DeconvolvedMassPlot));
    ScriptedAnswerer answers;
    answers.expectDialog(text("Label Script of Deconvolved Masses"), [](QDialog &dialog) {
        return show(dialog) && !press(dialog, text("Save...")) && pressOk(dialog);
    });
    answers.expectPath(text("Save Label Script"), scriptsFolder() + text("/mine.txt"));
    QVERIFY(row.pressButton());
    QVERIFY(answers.isDone());
    QCOMPARE(answers.transcript().constLast().startPath, scriptsFolder() + text("/dmsPlot.txt"));
    QCOMPARE(ScriptsFolder::read(scriptsFolder() + text("/mine.txt")),
             TECWrapper::wrapTEC(text("return {mass};")).toUtf8());
    QCOMPARE(row.told(), 0);
}

void SearchTextsTest::unusualNamesOfScriptsAreTaken_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("signs of addresses") << text("50% #1?.txt");
    QTest::newRow("place holders") << text("%1%2.txt");
    QTest::newRow("no Latin letters") << QString::fromUtf8("\u03bb \u6e2c\u5b9a.txt");
    QTest::newRow("no suffix") << text("script");
    QTest::newRow("dots") << text("..x..");
}

void SearchTextsTest::unusualNamesOfScriptsAreTaken()
{
    QFETCH(QString, name);
    const ScriptsFolder folder;
    Row row(kindOf(Editor::TracePlot));
    ScriptedAnswerer answers;
    answers.expectDialog(text("Label Script of Traces"), [](QDialog &dialog) {
        return show(dialog) && !press(dialog, text("Save...")) && !press(dialog, text("Load...")) &&
               pressOk(dialog);
    });
    answers.expectPath(text("Save Label Script"), scriptsFolder() + u'/' + name);
    answers.expectPath(text("Load Label Script"), scriptsFolder() + u'/' + name);
    QVERIFY(row.pressButton());
    QVERIFY(answers.isDone());
    QCOMPARE(QDir(scriptsFolder()).entryList(QDir::Files | QDir::Hidden), QStringList(name));
}

void SearchTextsTest::whatIsNoScriptIsTold_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    QTest::newRow("another encoding") << QByteArray("\xff\xfe") << text("is no text in UTF-8");
    QTest::newRow("bytes") << QByteArray("a\0b", 3) << text("is no text in UTF-8");
    QTest::newRow("large") << QByteArray(2 << 20, 'x') << text("large");
}

void SearchTextsTest::whatIsNoScriptIsTold()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, reason);
    const ScriptsFolder folder;
    ScriptsFolder::write(text("bad.txt"), bytes);
    Row row(kindOf(Editor::TracePlot));
    const QByteArray before = row.bytes();
    ScriptedAnswerer answers;
    answers.expectDialog(text("Label Script of Traces"), [](QDialog &dialog) {
        return show(dialog) && !press(dialog, text("Load...")) && pressOk(dialog);
    });
    answers.expectPath(text("Load Label Script"), scriptsFolder() + text("/bad.txt"));
    answers.expectBox(text("Load Label Script"), text("OK"));
    QVERIFY(row.pressButton());
    QVERIFY(answers.isDone());
    QVERIFY2(answers.transcript().constLast().text.contains(reason),
             qPrintable(answers.transcript().constLast().text));
    QCOMPARE(row.bytes(), before);
}

void SearchTextsTest::aFolderThatCannotBeMadeIsTold()
{
    const ScriptsFolder folder;
    QFile inTheWay(scriptsFolder());
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    inTheWay.close();
    Row row(kindOf(Editor::TracePlot));
    const QString path = scriptsFolder() + text("/mine.txt");
    ScriptedAnswerer answers;
    answers.expectDialog(text("Label Script of Traces"), [](QDialog &dialog) {
        return show(dialog) && !press(dialog, text("Save...")) && pressOk(dialog);
    });
    answers.expectPath(text("Save Label Script"), path);
    answers.expectBox(text("Save Label Script"), text("OK"));
    QVERIFY(row.pressButton());
    QVERIFY(answers.isDone());
    QVERIFY(answers.transcript().constLast().text.contains(path));
    // Begins where files were chosen last.
    QVERIFY(!answers.transcript().at(1).startPath.startsWith(scriptsFolder()));
}

void SearchTextsTest::whoChoosesNoFileChangesNothing()
{
    const ScriptsFolder folder;
    Row row(kindOf(Editor::TracePlot));
    const QByteArray before = row.bytes();
    ScriptedAnswerer answers;
    answers.expectDialog(text("Label Script of Traces"), [](QDialog &dialog) {
        return show(dialog) && !press(dialog, text("Load...")) && !press(dialog, text("Save...")) &&
               pressOk(dialog);
    });
    answers.expectPath(text("Load Label Script"), {});
    answers.expectPath(text("Save Label Script"), {});
    QVERIFY(row.pressButton());
    QVERIFY(answers.isDone());
    QCOMPARE(row.bytes(), before);
}

WIDGET_REGISTER_TEST(SearchTextsTest)
#include "SearchTextsTest.moc"
