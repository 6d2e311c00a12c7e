#include "ObjectsFixture.h"
#include "WidgetTest.h"

#include <KPropertyEditorItemEvent.h>
#include <KPropertyWidgetsPluginManager.h>
#include <orv/propertyeditor/editors/OrvGenericDelegate.h>

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPainter>

using namespace orv;
using namespace GridFixture;
using namespace ObjectsFixture;

namespace {

const char kTolerance[] = "KarvonFragmentMassError";
const char kToleranceBytes[] = "{\n    \"unit\": \"Da\",\n    \"value\": 0.43\n}\n";

QJsonObject tolerance()
{
    return object(R"({"unit":"ppm","value":10.1234})");
}

/// A row of a tolerance with the button that some settings have.
struct ToleranceRow : Row
{
    ToleranceRow()
        : Row(kTolerance, tolerance())
    {
        property().setOption("selectButton", true);
    }
};

template<class Delegate>
QImage painted(const QStyleOptionViewItem &option, const QModelIndex &cell)
{
    QImage image(300, 120, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    Delegate().paint(&painter, option, cell);
    painter.end();
    return image;
}

/// An editor that tells who made it.
class PlainDelegate : public KPropertyStringDelegate
{
public:
    QWidget *createEditor(int, QWidget *parent, const QStyleOptionViewItem &,
                          const QModelIndex &) const override
    {
        return new QDoubleSpinBox(parent);
    }
};

void useForObjects(KPropertyStringDelegate *delegate)
{
    auto *factory = new KPropertyWidgetsFactory;
    factory->addEditor(4000, delegate);
    KPropertyWidgetsPluginManager::self()->registerFactory(factory);
}

} // namespace

/// What rows and dialogs of all kinds of structured values have in common.
class EditorFrameTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { startApplication(); }
    void aSecondStartRegistersNothing();
    void theKeyOpensTheDialog_data() { addKinds(); }
    void theKeyOpensTheDialog();
    void nobodyTypesIntoTheOtherKinds_data() { addKinds({Editor::ValueUnit}); }
    void nobodyTypesIntoTheOtherKinds();
    void otherEventsAreLeftAlone();
    void theLineWritesIndentedJson();
    void theDialogWritesIndentedJson();
    void cancelOfTheDialogLeavesTheBytes();
    void escapeInTheLineLeavesTheBytes_data();
    void escapeInTheLineLeavesTheBytes();
    void theSettingMayGoWhenTheTypedTextIsTaken_data();
    void theSettingMayGoWhenTheTypedTextIsTaken();
    void cellsArePaintedWithTheirText_data();
    void cellsArePaintedWithTheirText();
    void whatIsNoObjectReadsAsAnEmptyOne_data();
    void whatIsNoObjectReadsAsAnEmptyOne();
};

void EditorFrameTest::aSecondStartRegistersNothing()
{
    // The factory that was registered last makes the editors.
    useForObjects(new PlainDelegate);
    ORVPropertyFactory::init();
    {
        ToleranceRow row;
        QVERIFY(qobject_cast<QDoubleSpinBox *>(LeavingWays::open(row.tree(), row.name)));
    }
    useForObjects(new OrvGenericDelegate);
}

void EditorFrameTest::theKeyOpensTheDialog()
{
    QFETCH(int, editor);
    Row row(kindOf(Editor(editor)));
    row.property().setOption("selectButton", true);
    const QByteArray before = row.bytes();
    AcceptingAnswerer answers;
    QVERIFY(LeavingWays::openByKey(row.tree(), row.name));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F4);
    QCOMPARE(answers.dialogs, 1);
    QCOMPARE(answers.boxes, 0);
    QCOMPARE(row.bytes(), before);
}

void EditorFrameTest::nobodyTypesIntoTheOtherKinds()
{
    QFETCH(int, editor);
    Row row(kindOf(Editor(editor)));
    const QByteArray before = row.bytes();
    QVERIFY(LeavingWays::open(row.tree(), row.name));
    QVERIFY(QApplication::focusWidget()->property("readOnly").toBool());
    LeavingWays::type(text("5 Da"));
    QVERIFY(LeavingWays::leave(row.tree(), LeavingWays::Way::Tab));
    QCOMPARE(row.bytes(), before);
    QCOMPARE(row.told(), 0);
}

void EditorFrameTest::otherEventsAreLeftAlone()
{
    ToleranceRow row;
    QVERIFY(LeavingWays::open(row.tree(), row.name));
    ScriptedAnswerer answers;
    KPropertyEditorItemEvent another(row.column.property("Samples"), text("edit"), {});
    Q_EMIT row.tree().handlePropertyEditorItemEvent(&another);
    QVERIFY(!another.hasResult());
    KPropertyEditorItemEvent wish(row.property(), text("Edit"), {});
    Q_EMIT row.tree().handlePropertyEditorItemEvent(&wish);
    QVERIFY(!wish.hasResult());
    QVERIFY(answers.transcript().isEmpty());

    KPropertyEditorItemEvent own(row.property(), text("edit"), {});
    answers.expectDialog(row.caption(), [](QDialog &dialog) {
        dialog.findChild<QDoubleSpinBox *>()->stepUp();
        return true;
    });
    Q_EMIT row.tree().handlePropertyEditorItemEvent(&own);
    QVERIFY(own.hasResult());
}

void EditorFrameTest::theLineWritesIndentedJson()
{
    ToleranceRow row;
    QVERIFY(LeavingWays::open(row.tree(), row.name));
    LeavingWays::type(text("0.43 Da"));
    QVERIFY(LeavingWays::leave(row.tree(), LeavingWays::Way::Enter));
    QCOMPARE(row.bytes(), QByteArray(kToleranceBytes));
}

void EditorFrameTest::theDialogWritesIndentedJson()
{
    ToleranceRow row;
    ScriptedAnswerer answers;
    answers.expectDialog(row.caption(), [](QDialog &dialog) {
        if (!show(dialog))
            return false;
        dialog.findChild<QDoubleSpinBox *>()->setFocus();
        LeavingWays::type(text("0.43"));
        QTest::keyClick(dialog.findChild<QWidget *>(text("UnitComboBox")), Qt::Key_Home);
        return pressOk(dialog);
    });
    QVERIFY(row.pressButton());
    QVERIFY(answers.isDone());
    QCOMPARE(row.bytes(), QByteArray(kToleranceBytes));
}

void EditorFrameTest::cancelOfTheDialogLeavesTheBytes()
{
    ToleranceRow row;
    const QByteArray before = row.bytes();
    for (const bool byEscape : {false, true}) {
        ScriptedAnswerer answers;
        answers.expectDialog(row.caption(), [&](QDialog &dialog) {
            if (!show(dialog))
                return true;
            dialog.findChild<QDoubleSpinBox *>()->setFocus();
            LeavingWays::type(text("0.43"));
            if (byEscape)
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
            else
                press(dialog, text("Cancel"));
            return dialog.isVisible() || dialog.result() == QDialog::Accepted;
        });
        QVERIFY(row.pressButton());
        QVERIFY(answers.isDone());
        QCOMPARE(row.bytes(), before);
    }
    QCOMPARE(row.told(), 0);
}

void EditorFrameTest::escapeInTheLineLeavesTheBytes_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("a value") << text("12 ppm");
    QTest::newRow("half a value") << text("12 pp");
    QTest::newRow("the shown text") << text("10.12 ppm");
    QTest::newRow("nothing") << QString();
}

void EditorFrameTest::escapeInTheLineLeavesTheBytes()
{
    QFETCH(QString, typed);
    ToleranceRow row;
    const QByteArray before = row.bytes();
    QVERIFY(LeavingWays::open(row.tree(), row.name));
    LeavingWays::type(typed);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QVERIFY(!LeavingWays::editorOf(row.tree(), row.name));
    QCOMPARE(row.bytes(), before);
    QCOMPARE(row.told(), 0);
    QCOMPARE(row.tree().remark(row.property()), QString());
}

void EditorFrameTest::theSettingMayGoWhenTheTypedTextIsTaken_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::addColumn<bool>("withColumn");
    QTest::newRow("key, the setting") << true << false;
    QTest::newRow("key, the column") << true << true;
    QTest::newRow("button, the setting") << false << false;
    QTest::newRow("button, the column") << false << true;
}

void EditorFrameTest::theSettingMayGoWhenTheTypedTextIsTaken()
{
    QFETCH(bool, byKey);
    QFETCH(bool, withColumn);
    auto row = std::make_unique<ToleranceRow>();
    QWidget *editor = LeavingWays::open(row->tree(), row->name);
    QVERIFY(editor);
    LeavingWays::type(text("12 ppm"));
    int heard = 0;
    connect(row->column.view->propertySet(), &KPropertySet::propertyChanged, this, [&] {
        ++heard;
        if (withColumn)
            row.reset();
        else
            (void)row->column.item.setContent(settingsCell("Karvon", {setting("Samples", text("x"))}));
    });
    const ScriptedAnswerer answers;
    if (byKey)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F4);
    else
        QTest::mouseClick(editor->findChild<QToolButton *>(), Qt::LeftButton);
    QCOMPARE(heard, 1);
    QVERIFY(answers.isDone());
    QVERIFY(answers.transcript().isEmpty());
    QVERIFY(!row || !row->column.set().contains(kTolerance));
}

void EditorFrameTest::cellsArePaintedWithTheirText_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QJsonObject>("value");
    QTest::addColumn<QString>("expected");
    QTest::newRow("one line") << QByteArray(kTolerance) << tolerance() << text("10.12 ppm");
    QTest::newRow("six lines") << QByteArray("KarvonPeakFilterSelected")
                               << QJsonObject{{text("peakfilter"), text("1\n2\n3\n4\n5\n6")}}
                               << text("1\n2\n3\n4...\n[1 more line(s)]");
}

void EditorFrameTest::cellsArePaintedWithTheirText()
{
    QFETCH(QByteArray, name);
    QFETCH(QJsonObject, value);
    QFETCH(QString, expected);
    Row row(name.constData(), value);
    const QModelIndex cell = LeavingWays::rowOf(row.tree(), name).siblingAtColumn(1);
    QStyleOptionViewItem option;
    option.rect = QRect(0, 0, 300, 120);
    option.palette.setColor(QPalette::Text, Qt::black);
    QStyleOptionViewItem withText(option);
    withText.text = expected;
    const QImage picture = painted<OrvGenericDelegate>(option, cell);
    QCOMPARE(picture, painted<KPropertyStringDelegate>(withText, cell));
    withText.text = expected + u'x';
    QVERIFY(picture != painted<KPropertyStringDelegate>(withText, cell));
}

void EditorFrameTest::whatIsNoObjectReadsAsAnEmptyOne_data()
{
    QTest::addColumn<int>("editor");
    QTest::addColumn<QString>("expected");
    QTest::newRow("value and unit") << int(Editor::ValueUnit) << QString();
    QTest::newRow("proteins") << int(Editor::Proteins) << QString();
    QTest::newRow("masses") << int(Editor::Masses) << QString();
    QTest::newRow("glycans") << int(Editor::DetachedGlycans) << text("0 glycans.");
    QTest::newRow("glycan options") << int(Editor::GlycanOptions) << text("None;None;None;None");
    QTest::newRow("modifications") << int(Editor::Modifications) << QString();
    QTest::newRow("peptides") << int(Editor::TheoreticalTable) << QString();
}

void EditorFrameTest::whatIsNoObjectReadsAsAnEmptyOne()
{
    QFETCH(int, editor);
    QFETCH(QString, expected);
    Row row(kindOf(Editor(editor)));
    for (const char *bytes : {"{", "[1]", "no json", "5", "null", ""}) {
        row.property().setValue(QByteArray(bytes));
        QCOMPARE(row.shown(), expected);
    }
}

WIDGET_REGISTER_TEST(EditorFrameTest)
#include "EditorFrameTest.moc"
