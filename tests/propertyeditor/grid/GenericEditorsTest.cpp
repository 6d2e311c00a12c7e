#include "GridFixture.h"
#include "LeavingWays.h"
#include "WidgetTest.h"

#include <KPropertyWidgetsPluginManager.h>
#include <orv/propertyeditor/editors/IGenericEditorDialog.h>
#include <orv/propertyeditor/editors/ORVPropertyFactory.h>
#include <orv/propertyeditor/editors/OrvGenericEditor.h>
#include <orv/propertyeditor/editors/OrvGenericEditorObjectManager.h>
#include <orv/propertyeditor/editors/ValueUnitValidator.h>
#include <orv/widgets/DialogAnswerer.h>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QToolButton>

using namespace orv;
using namespace GridFixture;

using Editor = PropertySetCreator::Editor;

namespace {

/// Reads the number of lines that a value tells, and puts the object that a test prepared in place of it.
class LinesObject : public IGenericEditorObject
{
public:
    QString toString(const QJsonObject &value) const override
    {
        QStringList lines;
        for (int i = 1; i <= value.value(text("lines")).toInt(); ++i)
            lines.append(text("line %1").arg(i));
        return lines.join(u'\n') + text("\n ");
    }
    QJsonObject fromString(const QString &) const override { return {}; }
    bool handleEditObject(QJsonObject *value, const KProperty &, QWidget *) const override
    {
        if (onEdit)
            return onEdit(value);
        return false;
    }

    static inline std::function<bool(QJsonObject *)> onEdit;
};

QString shown(Column &column, const char *name)
{
    const QModelIndex index = indexOf(*column.view->editorView(), name);
    return index.siblingAtColumn(1).data().toString();
}

QWidget *openEditor(Column &column, const char *name)
{
    KPropertyCustomEditorView *tree = column.view->editorView();
    const QModelIndex index = indexOf(*tree, name).siblingAtColumn(1);
    tree->scrollTo(index);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(index).center());
    if (!tree->indexWidget(index))
        static_cast<QAbstractItemView *>(tree)->edit(index);
    return tree->indexWidget(index);
}

QJsonObject valueWithUnit(double value, const char *unit)
{
    return {{text("value"), value}, {text("unit"), text(unit)}};
}

} // namespace

class GenericEditorsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void aFactoryIsRegisteredOnce();
    void cellsShowFourLines_data();
    void cellsShowFourLines();
    void unknownKindsSaySo();
    void aSecondObjectReplacesTheFirst();
    void valuesShowTwoDecimals();
    void aLookAtAValueLeavesItsDigits();
    void typedValuesAreTaken_data();
    void typedValuesAreTaken();
    void invalidTextsGoBack_data();
    void invalidTextsGoBack();
    void anEmptyValueIsLeftByEveryKey_data();
    void anEmptyValueIsLeftByEveryKey();
    void theValidatorSaysTheWeaker_data();
    void theValidatorSaysTheWeaker();
    void theDialogEditsAValue();
    void cancelKeepsTheValue();
    void aColumnMayGoWhileADialogIsOpen();
    void withoutMultiLineThereIsNoEditor();
};

void GenericEditorsTest::initTestCase()
{
    ORVPropertyFactory::init();
    OrvGenericEditorObjectManager::instance()->registerEditor(Editor::Masses, new LinesObject);
}

void GenericEditorsTest::cleanup()
{
    LinesObject::onEdit = {};
    QLocale::setDefault(QLocale::c());
}

void GenericEditorsTest::aFactoryIsRegisteredOnce()
{
    QVERIFY(KPropertyWidgetsPluginManager::self()->isEditorForTypeAvailable(4000));
    Column column;
    QWidget *before = openEditor(column, "KarvonFragmentMassError");
    QVERIFY(qobject_cast<OrvGenericEditor *>(before));
    ORVPropertyFactory::init();
    QVERIFY(KPropertyWidgetsPluginManager::self()->isEditorForTypeAvailable(4000));
}

void GenericEditorsTest::cellsShowFourLines_data()
{
    QTest::addColumn<int>("lines");
    QTest::addColumn<QString>("expected");
    const QString four = text("line 1\nline 2\nline 3\nline 4");
    QTest::newRow("none") << 0 << QString();
    QTest::newRow("four") << 4 << four;
    QTest::newRow("five show whole") << 5 << four + text("\nline 5");
    QTest::newRow("six") << 6 << four + text("...\n[1 more line(s)]");
    QTest::newRow("twenty") << 20 << four + text("...\n[15 more line(s)]");
}

void GenericEditorsTest::cellsShowFourLines()
{
    QFETCH(int, lines);
    QFETCH(QString, expected);
    Column column;
    KProperty &property = column.property("KarvonFragmentMassError");
    property.setOption("editor", int(Editor::Masses));
    property.setValue(QJsonDocument(QJsonObject{{text("lines"), lines}}).toJson());
    QCOMPARE(shown(column, "KarvonFragmentMassError"), expected);
}

void GenericEditorsTest::unknownKindsSaySo()
{
    Column column;
    column.property("KarvonFragmentMassError").setOption("editor", 99);
    column.property("KarvonFragmentMassError").setOption("selectButton", true);
    QCOMPARE(shown(column, "KarvonFragmentMassError"), text("Unknown editor"));
    QWidget *editor = openEditor(column, "KarvonFragmentMassError");
    QVERIFY(editor);
    ScriptedAnswerer answers;
    answers.expectBox({}, text("OK"));
    QTest::mouseClick(editor->findChild<QToolButton *>(), Qt::LeftButton);
    QVERIFY(answers.isDone());
    QCOMPARE(answers.transcript().constFirst().text, text("Unknown editor type: #99"));
}

void GenericEditorsTest::aSecondObjectReplacesTheFirst()
{
    auto *manager = OrvGenericEditorObjectManager::instance();
    QVERIFY(manager->getGenericEditorObject(Editor::ValueUnit));
    QVERIFY(!manager->getGenericEditorObject(Editor::Unset));
    const auto first = manager->getGenericEditorObject(Editor::Masses);
    auto *second = new LinesObject;
    manager->registerEditor(Editor::Masses, second);
    QCOMPARE(manager->getGenericEditorObject(Editor::Masses).get(), second);
    QCOMPARE(first->toString({{text("lines"), 1}}), text("line 1\n "));
}

void GenericEditorsTest::valuesShowTwoDecimals()
{
    Column column;
    QCOMPARE(shown(column, "KarvonFragmentMassError"), text("10.12 ppm"));
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    QCOMPARE(shown(column, "KarvonFragmentMassError"), text("10,12 ppm"));
}

void GenericEditorsTest::aLookAtAValueLeavesItsDigits()
{
    Column column;
    auto *editor = qobject_cast<QLineEdit *>(openEditor(column, "KarvonFragmentMassError"));
    QVERIFY(editor);
    QCOMPARE(editor->text(), text("10.12 ppm"));
    QTest::keyClick(editor, Qt::Key_Return);
    QCOMPARE(valueIn(column.item.content(), "KarvonFragmentMassError"),
             QJsonValue(valueWithUnit(10.1234, "ppm")));
    openEditor(column, "KarvonFragmentMassError");
    column.select("Samples");
    QCOMPARE(valueIn(column.item.content(), "KarvonFragmentMassError"),
             QJsonValue(valueWithUnit(10.1234, "ppm")));
}

void GenericEditorsTest::typedValuesAreTaken_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("unit");
    const QLocale german(QLocale::German, QLocale::Germany);
    QTest::newRow("whole") << QLocale::c() << text("5 Da") << 5.0 << text("Da");
    QTest::newRow("point") << QLocale::c() << text("0.25 ppm") << 0.25 << text("ppm");
    QTest::newRow("German comma") << german << text("0,43 ppm") << 0.43 << text("ppm");
    QTest::newRow("point in Germany") << german << text("0.43 mmu") << 0.43 << text("mmu");
}

void GenericEditorsTest::typedValuesAreTaken()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, typed);
    QFETCH(double, value);
    QFETCH(QString, unit);
    QLocale::setDefault(locale);
    Column column;
    QWidget *editor = openEditor(column, "KarvonFragmentMassError");
    QVERIFY(editor);
    static_cast<QLineEdit *>(editor)->selectAll();
    QTest::keyClicks(editor, typed);
    QTest::keyClick(editor, Qt::Key_Return);
    QCOMPARE(valueIn(column.item.content(), "KarvonFragmentMassError"),
             QJsonValue(QJsonObject{{text("value"), value}, {text("unit"), unit}}));
}

void GenericEditorsTest::invalidTextsGoBack_data()
{
    LeavingWays::addRows();
}

void GenericEditorsTest::invalidTextsGoBack()
{
    QFETCH(LeavingWays::Way, way);
    Column column;
    KPropertyCustomEditorView &tree = *column.view->editorView();
    column.property("KarvonFragmentMassError").setOption("min", 0.0);
    column.property("KarvonFragmentMassError").setOption("max", 0.5);
    QVERIFY(LeavingWays::open(tree, "KarvonFragmentMassError"));
    LeavingWays::type(text("12 pp"));
    QVERIFY(LeavingWays::leave(tree, way));
    QCOMPARE(
        tree.remark(column.property("KarvonFragmentMassError")),
        text(
            "\"12 pp\" was not taken: type a number with at most two decimals, alone or with a blank and its "
            "unit (ppm, Da), as in \"10 ppm\"; the number is from 0 to 0.5."));
    QCOMPARE(valueIn(column.item.content(), "KarvonFragmentMassError"),
             QJsonValue(valueWithUnit(10.1234, "ppm")));
    QCOMPARE(shown(column, "KarvonFragmentMassError"), text("10.12 ppm"));
}

void GenericEditorsTest::anEmptyValueIsLeftByEveryKey_data()
{
    LeavingWays::addRows();
}

void GenericEditorsTest::anEmptyValueIsLeftByEveryKey()
{
    QFETCH(LeavingWays::Way, way);
    Column column(settingsCell(
        "Karvon", {setting("KarvonFragmentMassError", QJsonObject()), setting("Samples", text("one"))}));
    KPropertyCustomEditorView &tree = *column.view->editorView();
    QVERIFY(LeavingWays::open(tree, "KarvonFragmentMassError"));
    QVERIFY(LeavingWays::leave(tree, way));
    QCOMPARE(valueIn(column.item.content(), "KarvonFragmentMassError"), QJsonValue(QJsonObject()));
    QCOMPARE(tree.remark(column.property("KarvonFragmentMassError")), QString());
}

void GenericEditorsTest::theValidatorSaysTheWeaker_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("state");
    QTest::newRow("good") << text("10 Da") << int(QValidator::Acceptable);
    QTest::newRow("lower case") << text("10 da") << int(QValidator::Acceptable);
    QTest::newRow("no unit yet") << text("10 ") << int(QValidator::Intermediate);
    QTest::newRow("half a unit") << text("10 pp") << int(QValidator::Intermediate);
    QTest::newRow("empty") << QString() << int(QValidator::Intermediate);
    QTest::newRow("another unit") << text("10 kg") << int(QValidator::Invalid);
    QTest::newRow("no blank") << text("10Da") << int(QValidator::Invalid);
    QTest::newRow("three decimals") << text("1.234 Da") << int(QValidator::Invalid);
    QTest::newRow("three parts") << text("10 Da x") << int(QValidator::Invalid);
    QTest::newRow("comma") << text("1,5 Da") << int(QValidator::Acceptable);
    QTest::newRow("above the limit") << text("100.5 Da") << int(QValidator::Intermediate);
}

void GenericEditorsTest::theValidatorSaysTheWeaker()
{
    QFETCH(QString, typed);
    QFETCH(int, state);
    const ValueUnitValidator validator(0, 100);
    int position = 0;
    QCOMPARE(int(validator.validate(typed, position)), state);
}

void GenericEditorsTest::theDialogEditsAValue()
{
    Column column;
    column.property("KarvonFragmentMassError").setOption("selectButton", true);
    QWidget *editor = openEditor(column, "KarvonFragmentMassError");
    ScriptedAnswerer answers;
    const QString title = column.property("KarvonFragmentMassError").caption();
    answers.expectDialog(title, [](QDialog &dialog) {
        auto *value = dialog.findChild<QDoubleSpinBox *>(text("ValueSpinBox"));
        auto *unit = dialog.findChild<QComboBox *>(text("UnitComboBox"));
        const bool isFilled =
            value->value() == 10.1234 && unit->currentText() == text("ppm") && unit->count() == 3;
        value->setValue(0.5);
        unit->setCurrentText(text("Da"));
        return isFilled;
    });
    QTest::mouseClick(editor->findChild<QToolButton *>(), Qt::LeftButton);
    QVERIFY(answers.isDone());
    QCOMPARE(valueIn(column.item.content(), "KarvonFragmentMassError"), QJsonValue(valueWithUnit(0.5, "Da")));
}

void GenericEditorsTest::cancelKeepsTheValue()
{
    Column column;
    column.property("KarvonFragmentMassError").setOption("selectButton", true);
    int edits = 0;
    connect(column.item.edits(), &GridItemEdits::edited, this, [&] { ++edits; });
    QWidget *editor = openEditor(column, "KarvonFragmentMassError");
    ScriptedAnswerer answers;
    const QString title = column.property("KarvonFragmentMassError").caption();
    answers.expectDialog(title, [](QDialog &dialog) {
        dialog.findChild<QDoubleSpinBox *>()->setValue(3);
        return false;
    });
    answers.expectDialog(title, [](QDialog &) { return true; });
    QTest::mouseClick(editor->findChild<QToolButton *>(), Qt::LeftButton);
    QTest::mouseClick(editor->findChild<QToolButton *>(), Qt::LeftButton);
    QVERIFY(answers.isDone());
    QCOMPARE(valueIn(column.item.content(), "KarvonFragmentMassError"),
             QJsonValue(valueWithUnit(10.1234, "ppm")));
    QCOMPARE(edits, 0);
}

void GenericEditorsTest::aColumnMayGoWhileADialogIsOpen()
{
    Column column;
    KProperty &property = column.property("KarvonFragmentMassError");
    property.setOption("editor", int(Editor::Masses));
    property.setOption("selectButton", true);
    QWidget *editor = openEditor(column, "KarvonFragmentMassError");
    QVERIFY(editor);
    LinesObject::onEdit = [&](QJsonObject *value) {
        (void)column.item.setContent(settingsCell("Karvon", {setting("Samples", text("x"))}));
        *value = {{text("lines"), 3}};
        return true;
    };
    QTest::mouseClick(editor->findChild<QToolButton *>(), Qt::LeftButton);
    QVERIFY(!column.set().contains("KarvonFragmentMassError"));
}

void GenericEditorsTest::withoutMultiLineThereIsNoEditor()
{
    Column column;
    column.property("KarvonFragmentMassError").setOption("multiLine", QVariant());
    QVERIFY(!openEditor(column, "KarvonFragmentMassError"));
    column.property("KarvonFragmentMassError").setOption("multiLine", true);
    QVERIFY(qobject_cast<OrvGenericMultiLineEditor *>(openEditor(column, "KarvonFragmentMassError")));
}

WIDGET_REGISTER_TEST(GenericEditorsTest)
#include "GenericEditorsTest.moc"
