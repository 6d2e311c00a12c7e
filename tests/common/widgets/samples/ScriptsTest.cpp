#include "WidgetHands.h"
#include "WidgetTest.h"

#include <orv/table/rn.h>
#include <orv/widgets/TECWrapper.h>
#include <orv/widgets/TableSerializer.h>
#include <orv/widgets/TemplateEditor.h>

#include <QPlainTextEdit>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTemporaryDir>

using namespace orv;
using namespace Qt::StringLiterals;

class ScriptsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void framesComeOffAgain_data();
    void framesComeOffAgain();
    void scriptsAreTyped();
    void scriptsAreLoadedAndSaved();
    void whatIsNoScriptIsRefused();
    void buttonsAreAdded();
    void tablesReadBack();
    void peopleReadTables();
    void badRowsAreNumbered();
};

void ScriptsTest::framesComeOffAgain_data()
{
    QTest::addColumn<QString>("script");
    QTest::newRow("empty") << QString();
    QTest::newRow("line") << u"{mass} Da"_s;
    QTest::newRow("lines") << u"\n a\r\nb \n"_s;
    QTest::newRow("half a frame") << u"<tec>\nx"_s;
}

void ScriptsTest::framesComeOffAgain()
{
    QFETCH(const QString, script);
    const QString wrapped = TECWrapper::wrapTEC(script);
    QVERIFY(wrapped.startsWith(u"<tec>\n"_s));
    QCOMPARE(TECWrapper::unwrapTEC(wrapped), script);
    QCOMPARE(TECWrapper::wrapTEC(wrapped), wrapped);
    QCOMPARE(TECWrapper::unwrapTEC(script), script);
}

void ScriptsTest::scriptsAreTyped()
{
    TemplateEditor editor;
    editor.setSourceText(u"a\r\nb\u00a0"_s);
    Hands::show(editor);
    QCOMPARE(editor.sourceText(), u"a\r\nb\u00a0"_s);
    auto *const edit = editor.findChild<QPlainTextEdit *>(u"script"_s);
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClicks(edit, u"{x} // c"_s);
    QCOMPARE(editor.sourceText(), u"a\r\nb\u00a0{x} // c"_s);
    QCOMPARE(editor.findChild<QLabel *>(u"place"_s)->text(), u"Line 2, column 11"_s);
    while (edit->document()->isUndoAvailable())
        QTest::keyClick(edit, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(editor.sourceText(), u"a\r\nb\u00a0"_s);
    QVERIFY(editor.plainText().startsWith(u"Label Script\n"_s));
}

void ScriptsTest::scriptsAreLoadedAndSaved()
{
    const QTemporaryDir folder;
    TemplateEditor editor;
    editor.setSourceText(u"\u03b1 {mass}"_s);
    QVERIFY(!editor.saveFile(folder.filePath(u"a.txt"_s)).hasError());
    QVERIFY(editor.saveFile(folder.filePath(u"no/a.txt"_s)).hasError());
    TemplateEditor other;
    other.setSourceText(u"old"_s);
    QVERIFY(!other.loadFile(folder.filePath(u"a.txt"_s)).hasError());
    QCOMPARE(other.sourceText(), u"\u03b1 {mass}"_s);
    other.findChild<QPlainTextEdit *>(u"script"_s)->undo();
    QCOMPARE(other.sourceText(), u"old"_s);
}

void ScriptsTest::whatIsNoScriptIsRefused()
{
    const QTemporaryDir folder;
    const auto write = [&](const QString &name, const QByteArray &bytes) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("No file");
        return file.fileName();
    };
    TemplateEditor editor;
    editor.setSourceText(u"stays"_s);
    QVERIFY(editor.loadFile(folder.filePath(u"gone.txt"_s)).hasError());
    QVERIFY(editor.loadFile(write(u"bytes"_s, "\xff\xfe\xfa")).hasError());
    QVERIFY(editor.loadFile(write(u"zero"_s, QByteArray("a\0b", 3))).hasError());
    QVERIFY(
        editor.loadFile(write(u"large"_s, QByteArray(TemplateEditor::kMaximumBytes + 1, 'a'))).hasError());
    QCOMPARE(editor.sourceText(), u"stays"_s);
}

void ScriptsTest::buttonsAreAdded()
{
    TemplateEditor editor;
    QPushButton *const load = editor.addButton(u"Load..."_s);
    QPushButton *const save = editor.addButton(u"Save..."_s);
    Hands::show(editor);
    QVERIFY(load->isVisible() && save->isVisible());
    QCOMPARE(load->text(), u"Load..."_s);
}

void ScriptsTest::tablesReadBack()
{
    constexpr quint32 kSeed = 77;
    QRandomGenerator random(kSeed);
    const QStringList texts = {u"12"_s,  u"'"_s, u"a,b"_s,   u"\"q\""_s, u"two\nlines"_s,
                               u"1e5"_s, u""_s,  u"tab\t"_s, u"'1"_s,    u" blank "_s};
    for (int run = 0; run < 200; ++run) {
        RowNode table;
        const int columns = 1 + random.bounded(4);
        for (int i = 0; i < columns; ++i)
            table.data.append(u"c%1 %2"_s.arg(i).arg(texts[random.bounded(4)]));
        for (int row = random.bounded(4); row > 0; --row) {
            VariantItems cells;
            for (int i = 0; i < columns; ++i) {
                switch (random.bounded(3)) {
                case 0:
                    cells.append(random.bounded(1000));
                    break;
                case 1:
                    cells.append(random.bounded(1000) + 0.25);
                    break;
                default:
                    cells.append(texts[random.bounded(int(texts.size()))]);
                }
            }
            table.addNewChild(cells);
        }
        const auto direct = TableSerializer::toTable(TableSerializer::toString(table));
        QVERIFY(!direct.hasError());
        QCOMPARE(rn::serialize(&*direct), rn::serialize(&table));
        const QString friendly = TableSerializer::toUserFriendlyString(table);
        const auto back = TableSerializer::toTable(TableSerializer::toString(friendly));
        QVERIFY2(!back.hasError(), qPrintable(friendly));
        QCOMPARE(rn::serialize(&*back), rn::serialize(&table));
    }
}

void ScriptsTest::peopleReadTables()
{
    RowNode table;
    table.addData(QStringList{u"Sequence"_s, u"Charge"_s});
    table.addNewChild({u"PEPTIDEK"_s, 2});
    table.addNewChild({u"12"_s, 2.5});
    QCOMPARE(TableSerializer::toUserFriendlyString(table).trimmed(),
             u"Sequence\tCharge\nPEPTIDEK\t2\n'12\t2.5"_s);
    QCOMPARE(TableSerializer::toUserFriendlyString({}), QString());
    QVERIFY(TableSerializer::toTable({})->isEmpty());
}

void ScriptsTest::badRowsAreNumbered()
{
    const auto table = TableSerializer::toTable(u"a,b\r\n1,2\r\n3\r\n"_s);
    QCOMPARE(table.error().errorMessage(), u"Row 2 contains invalid data"_s);
    QCOMPARE(TableSerializer::toTable(u"a,b\r\n1,\"2\r\n"_s).error().errorMessage(),
             u"Row 1 contains invalid data"_s);
}

WIDGET_REGISTER_TEST(ScriptsTest)

#include "ScriptsTest.moc"
