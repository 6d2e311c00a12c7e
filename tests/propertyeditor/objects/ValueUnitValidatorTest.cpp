#include "ObjectsFixture.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/editors/ValueUnitValidator.h>

using namespace orv;
using namespace GridFixture;

class ValueUnitValidatorTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::c()); }
    void bothSignsAreKnown_data();
    void bothSignsAreKnown();
    void limitsAreKept();
};

void ValueUnitValidatorTest::bothSignsAreKnown_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("state");
    const QLocale german(QLocale::German, QLocale::Germany);
    QTest::newRow("point") << QLocale::c() << text("1.25 Da") << int(QValidator::Acceptable);
    QTest::newRow("comma") << QLocale::c() << text("1,25 Da") << int(QValidator::Acceptable);
    QTest::newRow("German point") << german << text("1.25 mmu") << int(QValidator::Acceptable);
    QTest::newRow("German comma") << german << text("1,25 mmu") << int(QValidator::Acceptable);
    QTest::newRow("three decimals") << german << text("1,255 Da") << int(QValidator::Invalid);
    QTest::newRow("the number is weaker") << german << text("- Da") << int(QValidator::Intermediate);
    QTest::newRow("the unit is weaker") << german << text("1 p") << int(QValidator::Intermediate);
    QTest::newRow("one invalid") << german << text("x Da") << int(QValidator::Invalid);
    QTest::newRow("the other invalid") << german << text("1 DA") << int(QValidator::Invalid);
    QTest::newRow("three parts") << german << text("1 Da x") << int(QValidator::Invalid);
}

void ValueUnitValidatorTest::bothSignsAreKnown()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, typed);
    QFETCH(int, state);
    QLocale::setDefault(locale);
    int position = 0;
    const QString before = typed;
    QCOMPARE(int(ValueUnitValidator(-10, 10).validate(typed, position)), state);
    QCOMPARE(typed, before);
}

void ValueUnitValidatorTest::limitsAreKept()
{
    const ValueUnitValidator validator(0, 100);
    int position = 0;
    QString within = text("100 ppm");
    QString above = text("100.01 ppm");
    QString below = text("-1 ppm");
    QCOMPARE(validator.validate(within, position), QValidator::Acceptable);
    QVERIFY(validator.validate(above, position) != QValidator::Acceptable);
    QCOMPARE(validator.validate(below, position), QValidator::Invalid);
}

WIDGET_REGISTER_TEST(ValueUnitValidatorTest)
#include "ValueUnitValidatorTest.moc"
