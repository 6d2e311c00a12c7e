#include "ObjectsFixture.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/editors/ValueUnitDialog.h>
#include <orv/propertyeditor/editors/ValueUnitEditorObject.h>
#include <orv/propertyeditor/editors/ValueUnitValidator.h>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>

using namespace orv;
using namespace GridFixture;
using namespace ObjectsFixture;

namespace {

const char kSetting[] = "KarvonFragmentMassError";

QJsonObject valueWithUnit(double value, const char *unit)
{
    return {{text("unit"), text(unit)}, {text("value"), value}};
}

} // namespace

/// A number with its unit, typed in the row and in its dialog.
class ValueUnitTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { startApplication(); }
    void cleanup() { QLocale::setDefault(QLocale::c()); }
    void textsAreNumberAndUnit_data();
    void textsAreNumberAndUnit();
    void everyLocaleReadsWhatItWrites();
    void eitherSignIsReadInEveryLocale();
    void everyWayTakesATypedValue_data() { LeavingWays::addRows(); }
    void everyWayTakesATypedValue();
    void everyWayLeavesWhatNobodyTyped_data() { LeavingWays::addRows(); }
    void everyWayLeavesWhatNobodyTyped();
    void aNumberAloneKeepsTheUnit_data() { LeavingWays::addRows(); }
    void aNumberAloneKeepsTheUnit();
    void aHalfTypedTextGoesBackAndSaysWhy_data();
    void aHalfTypedTextGoesBackAndSaysWhy();
    void groupsOfDigitsCanBeEdited();
    void lineAndObjectReadGroupsAlike_data();
    void lineAndObjectReadGroupsAlike();
    void noTypedLetterIsSwallowed_data();
    void noTypedLetterIsSwallowed();
    void decimalsBehindGroupsCanBeDeleted();
    void theShownTextTypedAnewIsTaken();
    void theDialogStartsWithWhatWasTyped_data();
    void theDialogStartsWithWhatWasTyped();
    void theDialogStartsWithTheValueWhereTheTextIsRefused();
    void theDialogHasTheLimitsOfTheSetting();
    void theDialogWithoutLimitsTakesEveryNumber();
    void theDialogStartsAtZero();
    void anUnsetValueGetsItsUnit_data();
    void anUnsetValueGetsItsUnit();
    void theDialogTakesTypedValues_data();
    void theDialogTakesTypedValues();
    void theUnitAloneChanges();
    void anUnknownUnitStays();
    void anUntouchedDialogLeavesTheValue_data();
    void anUntouchedDialogLeavesTheValue();
    void theWheelChangesNothing();
    void enterAccepts();
};

void ValueUnitTest::textsAreNumberAndUnit_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QJsonObject>("expected");
    QTest::newRow("number and unit") << text("10 Da") << valueWithUnit(10, "Da");
    QTest::newRow("blanks around") << text("  10   Da ") << valueWithUnit(10, "Da");
    QTest::newRow("negative") << text("-0.5 mmu") << valueWithUnit(-0.5, "mmu");
    QTest::newRow("a unit that is none") << text("1 kg") << valueWithUnit(1, "kg");
    QTest::newRow("no blank") << text("10Da") << QJsonObject();
    QTest::newRow("three parts") << text("10 Da x") << QJsonObject();
    QTest::newRow("no number") << text("ten Da") << QJsonObject();
    QTest::newRow("number alone") << text("10") << QJsonObject();
    QTest::newRow("nothing") << QString() << QJsonObject();
    QTest::newRow("no group begins with zero") << text("0,435 Da") << valueWithUnit(0.435, "Da");
    QTest::newRow("nor behind a sign") << text("-0,435 Da") << valueWithUnit(-0.435, "Da");
    QTest::newRow("endless") << text("inf Da") << QJsonObject();
    QTest::newRow("no number at all") << text("nan Da") << QJsonObject();
    QTest::newRow("too large") << text("1e400 Da") << QJsonObject();
}

void ValueUnitTest::textsAreNumberAndUnit()
{
    QFETCH(QString, typed);
    QFETCH(QJsonObject, expected);
    QCOMPARE(ValueUnitEditorObject().fromString(typed), expected);
}

void ValueUnitTest::everyLocaleReadsWhatItWrites()
{
    const ValueUnitEditorObject editorObject;
    const auto locales =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
    QVERIFY(locales.size() > 300);
    for (const QLocale &locale : locales) {
        QLocale::setDefault(locale);
        const ValueUnitValidator validator(-1e6, 1e6);
        for (const double number : {0.0, 0.25, -3.5, 12.34, 9000.0, 123456.78}) {
            QString shown = editorObject.toString(valueWithUnit(number, "ppm"));
            const QString where = locale.name() + u' ' + shown;
            QVERIFY2(editorObject.fromString(shown) == valueWithUnit(number, "ppm"), qPrintable(where));
            int position = 0;
            QVERIFY2(validator.validate(shown, position) == QValidator::Acceptable, qPrintable(where));
        }
    }
}

void ValueUnitTest::eitherSignIsReadInEveryLocale()
{
    const ValueUnitEditorObject editorObject;
    const auto locales =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
    for (const QLocale &locale : locales) {
        QLocale::setDefault(locale);
        const ValueUnitValidator validator(0, 1000);
        for (const char *typed : {"0.43 Da", "0,43 Da", "12.5 Da", "12,5 Da"}) {
            QString input = text(typed);
            const double expected = QByteArray(typed).replace(',', '.').replace(" Da", "").toDouble();
            int position = 0;
            QVERIFY2(validator.validate(input, position) == QValidator::Acceptable,
                     qPrintable(locale.name()));
            QVERIFY2(editorObject.fromString(text(typed)) == valueWithUnit(expected, "Da"),
                     qPrintable(locale.name() + u' ' + text(typed)));
        }
    }
}

void ValueUnitTest::everyWayTakesATypedValue()
{
    QFETCH(LeavingWays::Way, way);
    Row row(kSetting, valueWithUnit(10.1234, "ppm"));
    QVERIFY(LeavingWays::open(row.tree(), kSetting));
    LeavingWays::type(text("0,43 Da"));
    QVERIFY(LeavingWays::leave(row.tree(), way));
    QCOMPARE(row.stored(), QJsonValue(valueWithUnit(0.43, "Da")));
    QCOMPARE(row.shown(), text("0.43 Da"));
    QCOMPARE(row.told(), 1);
    QVERIFY(row.tree().remark(row.property()).isEmpty());
}

void ValueUnitTest::everyWayLeavesWhatNobodyTyped()
{
    QFETCH(LeavingWays::Way, way);
    Row row(kSetting, valueWithUnit(10.1234, "ppm"));
    const QByteArray before = row.bytes();
    QVERIFY(LeavingWays::open(row.tree(), kSetting));
    QVERIFY(LeavingWays::leave(row.tree(), way));
    QCOMPARE(row.bytes(), before);
    QCOMPARE(row.told(), 0);
}

void ValueUnitTest::aNumberAloneKeepsTheUnit()
{
    QFETCH(LeavingWays::Way, way);
    Row row(kSetting, valueWithUnit(10.1234, "ppm"));
    QVERIFY(LeavingWays::open(row.tree(), kSetting));
    LeavingWays::type(text("25"));
    QVERIFY(LeavingWays::leave(row.tree(), way));
    QCOMPARE(row.stored(), QJsonValue(valueWithUnit(25, "ppm")));
    QCOMPARE(row.shown(), text("25.00 ppm"));
}

void ValueUnitTest::aHalfTypedTextGoesBackAndSaysWhy_data()
{
    LeavingWays::addRows();
}

void ValueUnitTest::aHalfTypedTextGoesBackAndSaysWhy()
{
    QFETCH(LeavingWays::Way, way);
    Row row(kSetting, valueWithUnit(10.1234, "ppm"));
    const QByteArray before = row.bytes();
    QVERIFY(LeavingWays::open(row.tree(), kSetting));
    LeavingWays::type(text("12 pp"));
    QVERIFY(LeavingWays::leave(row.tree(), way));
    QCOMPARE(row.bytes(), before);
    QCOMPARE(row.shown(), text("10.12 ppm"));
    QCOMPARE(row.told(), 0);
    const QString why = row.tree().remark(row.property());
    QVERIFY2(why.contains(text("12 pp")) && why.contains(text("ppm, Da")), qPrintable(why));
    // The search takes mmu for ppm.
    QVERIFY2(!why.contains(text("mmu")) && why.contains(text("from 0 to 10000.")), qPrintable(why));
    const QModelIndex cell = LeavingWays::rowOf(row.tree(), kSetting);
    QVERIFY(cell.data(Qt::ToolTipRole).toString().contains(why.toHtmlEscaped()));

    QVERIFY(LeavingWays::open(row.tree(), kSetting));
    LeavingWays::type(text("12 ppm"));
    QVERIFY(LeavingWays::leave(row.tree(), LeavingWays::Way::Tab));
    QCOMPARE(row.stored(), QJsonValue(valueWithUnit(12, "ppm")));
    QVERIFY(row.tree().remark(row.property()).isEmpty());
}

void ValueUnitTest::groupsOfDigitsCanBeEdited()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    Row row("PeptideMassMax", valueWithUnit(9000, "Da"));
    QCOMPARE(row.shown(), text("9,000.00 Da"));
    QVERIFY(LeavingWays::open(row.tree(), "PeptideMassMax"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Home);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClicks(QApplication::focusWidget(), text("8"));
    QVERIFY(LeavingWays::leave(row.tree(), LeavingWays::Way::Enter));
    QCOMPARE(row.stored(), QJsonValue(valueWithUnit(8000, "Da")));
}

void ValueUnitTest::lineAndObjectReadGroupsAlike_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("number");
    const QLocale american(QLocale::English, QLocale::UnitedStates);
    const QLocale german(QLocale::German, QLocale::Germany);
    QTest::newRow("American group") << american << text("9,500 Da") << 9500.0;
    QTest::newRow("American groups") << american << text("-1,234,567.5 Da") << -1234567.5;
    QTest::newRow("American comma") << american << text("9,50 Da") << 9.5;
    QTest::newRow("American point") << american << text("9.5 Da") << 9.5;
    QTest::newRow("German group") << german << text("9.500 Da") << 9500.0;
    QTest::newRow("German groups") << german << text("1.234.567,5 Da") << 1234567.5;
    QTest::newRow("German point") << german << text("9.50 Da") << 9.5;
    QTest::newRow("German number in America") << american << text("9.500,25 Da") << 9500.25;
    QTest::newRow("American number in Germany") << german << text("9,500.25 Da") << 9500.25;
    QTest::newRow("no locale") << QLocale::c() << text("9,500 Da") << 9500.0;
}

void ValueUnitTest::lineAndObjectReadGroupsAlike()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, typed);
    QFETCH(double, number);
    QLocale::setDefault(locale);
    QCOMPARE(ValueUnitEditorObject().fromString(typed), valueWithUnit(number, "Da"));
    Row row("PeptideMassMax", valueWithUnit(1, "ppm"));
    row.property().setOption("min", -1e7);
    row.property().setOption("max", 1e7);
    QVERIFY(LeavingWays::open(row.tree(), "PeptideMassMax"));
    LeavingWays::type(typed);
    QVERIFY(LeavingWays::leave(row.tree(), LeavingWays::Way::Enter));
    QCOMPARE(row.stored(), QJsonValue(valueWithUnit(number, "Da")));
    QCOMPARE(row.tree().remark(row.property()), QString());
}

void ValueUnitTest::noTypedLetterIsSwallowed_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<LeavingWays::Way>("way");
    const QLocale american(QLocale::English, QLocale::UnitedStates);
    const QLocale german(QLocale::German, QLocale::Germany);
    QTest::newRow("three decimals") << american << text("9.501 Da") << LeavingWays::Way::Tab;
    QTest::newRow("three decimals in Germany") << german << text("9,501 Da") << LeavingWays::Way::Tab;
    QTest::newRow("no group begins with zero") << american << text("0,435 Da") << LeavingWays::Way::Tab;
    QTest::newRow("left by Enter") << american << text("12.345 Da") << LeavingWays::Way::Enter;
    QTest::newRow("four digits in a group") << american << text("9,5000 Da") << LeavingWays::Way::Tab;
    QTest::newRow("a blank between groups") << american << text("1 000 Da") << LeavingWays::Way::Tab;
    QTest::newRow("another unit") << american << text("9.5 kDa") << LeavingWays::Way::Tab;
    QTest::newRow("a letter in the number") << american << text("1x0 Da") << LeavingWays::Way::Tab;
    QTest::newRow("below the limit") << american << text("-5 Da") << LeavingWays::Way::Tab;
}

void ValueUnitTest::noTypedLetterIsSwallowed()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, typed);
    QFETCH(LeavingWays::Way, way);
    QLocale::setDefault(locale);
    Row row(kSetting, valueWithUnit(10.1234, "ppm"));
    const QByteArray before = row.bytes();
    auto *line = qobject_cast<QLineEdit *>(LeavingWays::open(row.tree(), kSetting));
    QVERIFY(line);
    LeavingWays::type(typed);
    QCOMPARE(line->text(), typed);
    const QAction *const sign = line->actions().value(0);
    QVERIFY(sign && sign->isVisible());
    QVERIFY2(
        sign->toolTip().contains(text("This is no value that can be taken: type a number with at most two")),
        qPrintable(sign->toolTip()));
    QCOMPARE(line->accessibleDescription().isEmpty(), false);
    LeavingWays::type(text("12"));
    QVERIFY(!sign->isVisible());
    QCOMPARE(line->accessibleDescription(), QString());
    LeavingWays::type(typed);
    QVERIFY(LeavingWays::leave(row.tree(), way));
    QCOMPARE(row.bytes(), before);
    const QString remark = row.tree().remark(row.property());
    QVERIFY2(
        remark.startsWith(text("\"%1\" was not taken: type a number with at most two decimals").arg(typed)),
        qPrintable(remark));
}

void ValueUnitTest::decimalsBehindGroupsCanBeDeleted()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    Row row("PeptideMassMax", valueWithUnit(9000.25, "Da"));
    QVERIFY(LeavingWays::open(row.tree(), "PeptideMassMax"));
    QWidget *line = QApplication::focusWidget();
    QTest::keyClick(line, Qt::Key_Home);
    for (int i = 0; i < 8; ++i)
        QTest::keyClick(line, Qt::Key_Right);
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(line, Qt::Key_Backspace);
    QVERIFY(LeavingWays::leave(row.tree(), LeavingWays::Way::Enter));
    QCOMPARE(row.stored(), QJsonValue(valueWithUnit(9000, "Da")));
}

void ValueUnitTest::theShownTextTypedAnewIsTaken()
{
    Row row(kSetting, valueWithUnit(10.1234, "ppm"));
    QVERIFY(LeavingWays::open(row.tree(), kSetting));
    LeavingWays::type(text("10.12 ppm"));
    QVERIFY(LeavingWays::leave(row.tree(), LeavingWays::Way::Enter));
    QCOMPARE(row.stored(), QJsonValue(valueWithUnit(10.12, "ppm")));
    QCOMPARE(row.told(), 1);
    const QByteArray before = row.bytes();
    QVERIFY(LeavingWays::open(row.tree(), kSetting));
    LeavingWays::type(text("10.12 ppm"));
    QVERIFY(LeavingWays::leave(row.tree(), LeavingWays::Way::Tab));
    QCOMPARE(row.bytes(), before);
    QCOMPARE(row.told(), 1);
}

void ValueUnitTest::theDialogStartsWithWhatWasTyped_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::addColumn<double>("chosen");
    QTest::addColumn<double>("stored");
    QTest::newRow("button and Cancel") << false << 0.0 << 12.0;
    QTest::newRow("key and Cancel") << true << 0.0 << 12.0;
    QTest::newRow("button and a choice") << false << 13.0 << 13.0;
    QTest::newRow("key and a choice") << true << 13.0 << 13.0;
    QTest::newRow("button and Ok alone") << false << 12.0 << 12.0;
}

void ValueUnitTest::theDialogStartsWithWhatWasTyped()
{
    QFETCH(bool, byKey);
    QFETCH(double, chosen);
    QFETCH(double, stored);
    Row row(kSetting, valueWithUnit(10.1234, "Da"));
    row.property().setOption("selectButton", true);
    QWidget *editor = LeavingWays::open(row.tree(), kSetting);
    QVERIFY(editor);
    LeavingWays::type(text("12 ppm"));
    ScriptedAnswerer answers;
    double shownValue = 0;
    QString shownUnit;
    answers.expectDialog(row.caption(), [&](QDialog &dialog) {
        auto *value = dialog.findChild<QDoubleSpinBox *>();
        shownValue = value->value();
        shownUnit = dialog.findChild<QComboBox *>()->currentText();
        if (!show(dialog) || chosen == 0)
            return press(dialog, text("Cancel"));
        value->setFocus();
        LeavingWays::type(QString::number(chosen));
        return pressOk(dialog);
    });
    if (byKey)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F4);
    else
        QTest::mouseClick(editor->findChild<QToolButton *>(), Qt::LeftButton);
    QVERIFY(answers.isDone());
    QCOMPARE(shownValue, 12.0);
    QCOMPARE(shownUnit, text("ppm"));
    QCOMPARE(row.stored(), QJsonValue(valueWithUnit(stored, "ppm")));
}

void ValueUnitTest::theDialogStartsWithTheValueWhereTheTextIsRefused()
{
    Row row(kSetting, valueWithUnit(10.1234, "ppm"));
    row.property().setOption("selectButton", true);
    QWidget *editor = LeavingWays::open(row.tree(), kSetting);
    QVERIFY(editor);
    LeavingWays::type(text("12 pp"));
    const QByteArray before = row.bytes();
    ScriptedAnswerer answers;
    expectUntouched(&answers, row.caption());
    QTest::mouseClick(editor->findChild<QToolButton *>(), Qt::LeftButton);
    QVERIFY(answers.isDone());
    QCOMPARE(row.bytes(), before);
    QVERIFY(row.tree().remark(row.property()).startsWith(text("\"12 pp\" was not taken")));
}

void ValueUnitTest::theDialogHasTheLimitsOfTheSetting()
{
    Row row(kSetting, valueWithUnit(10.1234, "ppm"));
    ScriptedAnswerer answers;
    double least = -1;
    double most = -1;
    answers.expectDialog(row.caption(), [&](QDialog &dialog) {
        least = dialog.findChild<QDoubleSpinBox *>(text("ValueSpinBox"))->minimum();
        most = dialog.findChild<QDoubleSpinBox *>(text("ValueSpinBox"))->maximum();
        return false;
    });
    row.property().setOption("selectButton", true);
    QVERIFY(row.pressButton());
    QCOMPARE(least, 0.0);
    QCOMPARE(most, 10000.0);
}

void ValueUnitTest::theDialogWithoutLimitsTakesEveryNumber()
{
    ValueUnitDialog dialog(KProperty("any"), nullptr);
    for (const double number : {1e300, -1e300, 0.125}) {
        dialog.setData(valueWithUnit(number, "mmu"));
        QCOMPARE(dialog.findChild<QDoubleSpinBox *>(text("ValueSpinBox"))->value(), number);
        QCOMPARE(dialog.findChild<QComboBox *>(text("UnitComboBox"))->currentText(), text("mmu"));
        QCOMPARE(dialog.data(), valueWithUnit(number, "mmu"));
    }
    QVERIFY(dialog.sizeHint().width() < 600);
}

void ValueUnitTest::theDialogStartsAtZero()
{
    ValueUnitDialog dialog(KProperty("any"), nullptr);
    dialog.setData({{text("unit"), text("Da")}});
    QCOMPARE(dialog.findChild<QDoubleSpinBox *>(text("ValueSpinBox"))->value(), 0.0);
}

void ValueUnitTest::anUnsetValueGetsItsUnit_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("nothing") << QByteArray("{}");
    QTest::newRow("unset") << QByteArray(R"({"data":""})");
    QTest::newRow("no unit") << QByteArray(R"({"value":1})");
    QTest::newRow("an empty unit") << QByteArray(R"({"unit":"","value":1})");
    QTest::newRow("a unit that is no text") << QByteArray(R"({"unit":5,"value":1})");
}

void ValueUnitTest::anUnsetValueGetsItsUnit()
{
    QFETCH(QByteArray, value);
    ValueUnitDialog dialog(KProperty("any"), nullptr);
    dialog.setData(object(value));
    QCOMPARE(dialog.findChild<QComboBox *>()->currentText(), text("Da"));
    QCOMPARE(dialog.data(), object(value));
    QVERIFY(ObjectsFixture::show(dialog));
    dialog.findChild<QDoubleSpinBox *>()->setFocus();
    LeavingWays::type(text("7"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(dialog.data(), valueWithUnit(7, "Da"));
}

void ValueUnitTest::theDialogTakesTypedValues_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("typed");
    const QLocale german(QLocale::German, QLocale::Germany);
    QTest::newRow("point") << QLocale::c() << text("0.435");
    QTest::newRow("comma") << QLocale::c() << text("0,435");
    QTest::newRow("German point") << german << text("0.435");
    QTest::newRow("German comma") << german << text("0,435");
}

void ValueUnitTest::theDialogTakesTypedValues()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, typed);
    QLocale::setDefault(locale);
    Row row(kSetting, valueWithUnit(10.1234, "ppm"));
    row.property().setOption("selectButton", true);
    ScriptedAnswerer answers;
    answers.expectDialog(row.caption(), [&](QDialog &dialog) {
        if (!show(dialog))
            return false;
        dialog.findChild<QDoubleSpinBox *>()->setFocus();
        LeavingWays::type(typed);
        return pressOk(dialog);
    });
    QVERIFY(row.pressButton());
    QVERIFY(answers.isDone());
    QCOMPARE(row.stored(), QJsonValue(valueWithUnit(0.435, "ppm")));
    QCOMPARE(row.told(), 1);
}

void ValueUnitTest::theUnitAloneChanges()
{
    Row row(kSetting, valueWithUnit(10.1234, "ppm"));
    row.property().setOption("selectButton", true);
    ScriptedAnswerer answers;
    QStringList units;
    answers.expectDialog(row.caption(), [&](QDialog &dialog) {
        auto *unit = dialog.findChild<QComboBox *>(text("UnitComboBox"));
        for (int i = 0; i < unit->count(); ++i)
            units.append(unit->itemText(i));
        if (!show(dialog))
            return false;
        unit->setFocus();
        QTest::keyClick(unit, Qt::Key_Home);
        return pressOk(dialog);
    });
    QVERIFY(row.pressButton());
    QCOMPARE(units, QStringList({text("Da"), text("ppm"), text("mmu")}));
    QCOMPARE(row.stored(), QJsonValue(valueWithUnit(10.1234, "Da")));
}

void ValueUnitTest::anUnknownUnitStays()
{
    ValueUnitDialog dialog(KProperty("any"), nullptr);
    dialog.setData(valueWithUnit(5, "kg"));
    QCOMPARE(dialog.data(), valueWithUnit(5, "kg"));
    dialog.findChild<QDoubleSpinBox *>()->stepUp();
    QCOMPARE(dialog.data(), valueWithUnit(5.01, "kg"));
    dialog.setData(valueWithUnit(5, "da"));
    QCOMPARE(dialog.findChild<QComboBox *>()->currentText(), text("Da"));
    QCOMPARE(dialog.data(), valueWithUnit(5, "da"));
}

void ValueUnitTest::anUntouchedDialogLeavesTheValue_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("many digits") << QByteArray(R"({"unit":"ppm","value":10.123456789012345})");
    QTest::newRow("beyond the limit") << QByteArray(R"({"unit":"ppm","value":123456})");
    QTest::newRow("as text") << QByteArray(R"({"unit":"ppm","value":"7"})");
    QTest::newRow("another unit") << QByteArray(R"({"unit":"kg","value":7})");
    QTest::newRow("more members") << QByteArray(R"({"from":1,"unit":"Da","value":7})");
    QTest::newRow("nothing") << QByteArray("{}");
}

void ValueUnitTest::anUntouchedDialogLeavesTheValue()
{
    QFETCH(QByteArray, value);
    Row row(kSetting, object(value));
    row.property().setOption("selectButton", true);
    const QByteArray before = row.bytes();
    ScriptedAnswerer answers;
    expectUntouched(&answers, row.caption());
    QVERIFY(row.pressButton());
    QVERIFY(answers.isDone());
    QCOMPARE(row.bytes(), before);
    QCOMPARE(row.told(), 0);
}

void ValueUnitTest::theWheelChangesNothing()
{
    ValueUnitDialog dialog(KProperty("any"), nullptr);
    dialog.setData(valueWithUnit(5, "ppm"));
    QVERIFY(ObjectsFixture::show(dialog));
    for (QWidget *field : {static_cast<QWidget *>(dialog.findChild<QDoubleSpinBox *>()),
                           static_cast<QWidget *>(dialog.findChild<QComboBox *>())}) {
        QWheelEvent turn(field->rect().center(), field->mapToGlobal(field->rect().center()), {}, {0, 120},
                         Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(field, &turn);
    }
    QCOMPARE(dialog.data(), valueWithUnit(5, "ppm"));
}

void ValueUnitTest::enterAccepts()
{
    ValueUnitDialog dialog(KProperty("any"), nullptr);
    dialog.setData(valueWithUnit(5, "ppm"));
    QVERIFY(ObjectsFixture::show(dialog));
    LeavingWays::type(text("6"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.data(), valueWithUnit(6, "ppm"));
}

WIDGET_REGISTER_TEST(ValueUnitTest)
#include "ValueUnitTest.moc"
