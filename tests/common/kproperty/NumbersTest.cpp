#include "ViewFixture.h"

#include <QAbstractSpinBox>
#include <QLineEdit>
#include <QRegularExpression>

namespace {

/// One number in a view, in the words of a language, with its editor open.
struct NumberFixture
{
    KPropertySet set;
    KPropertyEditorView view;

    NumberFixture(const QLocale &locale, KProperty *property)
    {
        QLocale::setDefault(locale);
        view.setLocale(locale);
        set.addProperty(property);
        view.resize(400, 200);
        view.changeSet(&set, property->name());
        view.show();
        (void)QTest::qWaitForWindowActive(&view);
        QTest::keyClick(&view, Qt::Key_F2);
    }
    ~NumberFixture() { QLocale::setDefault(QLocale::c()); }
    Q_DISABLE_COPY_MOVE(NumberFixture)

    [[nodiscard]] QVariant value() const { return set.propertyValue("n"); }
    [[nodiscard]] QString cell() const { return view.model()->index(0, 1).data().toString(); }
    [[nodiscard]] QLineEdit *line() const
    {
        return view.indexWidget(view.model()->index(0, 1))->findChild<QLineEdit *>();
    }

    void type(const char *keys)
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), text(keys));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCoreApplication::processEvents();
    }
};

KProperty *number(const QVariant &value, const QVariant &precision = QVariant(), const char *suffix = "")
{
    auto *const property = new KProperty("n", value);
    property->setOption("precision", precision);
    property->setOption("suffix", text(suffix));
    return property;
}

} // namespace

class NumbersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void pointAndCommaBothStandBeforeDecimals_data();
    void pointAndCommaBothStandBeforeDecimals();
    void groupsOfDigitsAreNotTyped_data();
    void groupsOfDigitsAreNotTyped();
    void integersTakeNoPointOrComma_data();
    void integersTakeNoPointOrComma();
    void moreDecimalsThanShownAreStored_data();
    void moreDecimalsThanShownAreStored();
    void anEditorShowsTheWholeNumber();
    void signsInPrefixAndSuffixStay();
    void openingAndLeavingKeepsEveryDigit();
};

void NumbersTest::init()
{
    QTest::failOnWarning(QRegularExpression(text(".?")));
}

void NumbersTest::pointAndCommaBothStandBeforeDecimals_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("stored");
    const std::pair<const char *, QLocale> languages[] = {
        {"English", QLocale(QLocale::English, QLocale::UnitedStates)},
        {"German", QLocale(QLocale::German, QLocale::Germany)},
        {"French", QLocale(QLocale::French, QLocale::France)},
        {"Swiss", QLocale(QLocale::German, QLocale::Switzerland)},
        {"C", QLocale::c()},
    };
    for (const auto &[name, locale] : languages) {
        QTest::addRow("%s, point", name) << locale << text("12.5") << 12.5;
        QTest::addRow("%s, comma", name) << locale << text("12,5") << 12.5;
        QTest::addRow("%s, three digits behind a point", name) << locale << text("1.234") << 1.234;
        QTest::addRow("%s, three digits behind a comma", name) << locale << text("1,234") << 1.234;
        QTest::addRow("%s, below zero", name) << locale << text("-0,25") << -0.25;
    }
}

void NumbersTest::pointAndCommaBothStandBeforeDecimals()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, typed);
    NumberFixture fixture(locale, number(1.0));
    fixture.type(typed.toUtf8().constData());
    QTEST(fixture.value().toDouble(), "stored");
}

void NumbersTest::groupsOfDigitsAreNotTyped_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("pasted");
    QTest::newRow("English") << QLocale(QLocale::English) << text("1,250.5");
    QTest::newRow("German") << QLocale(QLocale::German) << text("1.250,5");
    QTest::newRow("English, in German") << QLocale(QLocale::German) << text("1,250.5");
    QTest::newRow("Swiss") << QLocale(QLocale::German, QLocale::Switzerland) << text("1’250.5");
    QTest::newRow("French") << QLocale(QLocale::French) << text("1\u202f250,5");
    QTest::newRow("millions") << QLocale(QLocale::English) << text("1,250,000");
}

void NumbersTest::groupsOfDigitsAreNotTyped()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, pasted);
    NumberFixture fixture(locale, number(2.5));
    fixture.line()->selectAll();
    fixture.line()->insert(pasted);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCoreApplication::processEvents();
    QCOMPARE(fixture.value(), QVariant(2.5));
}

void NumbersTest::integersTakeNoPointOrComma_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QVariant>("old");
    QTest::addColumn<QString>("pasted");
    QTest::newRow("German point") << QLocale(QLocale::German) << QVariant(7) << text("12.5");
    QTest::newRow("German comma") << QLocale(QLocale::German) << QVariant(7) << text("12,5");
    QTest::newRow("English comma") << QLocale(QLocale::English) << QVariant(7) << text("12,5");
    QTest::newRow("64 bits") << QLocale(QLocale::German) << QVariant(7LL) << text("12.5");
}

void NumbersTest::integersTakeNoPointOrComma()
{
    QFETCH(QLocale, locale);
    QFETCH(QVariant, old);
    QFETCH(QString, pasted);
    NumberFixture fixture(locale, number(old));
    fixture.line()->selectAll();
    fixture.line()->insert(pasted);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCoreApplication::processEvents();
    QCOMPARE(fixture.value(), old);
}

void NumbersTest::moreDecimalsThanShownAreStored_data()
{
    QTest::addColumn<int>("precision");
    QTest::addColumn<double>("old");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("stored");
    QTest::addColumn<QString>("shown");
    QTest::newRow("next step") << 2 << 0.28 << text("0.29") << 0.29 << text("0.29");
    QTest::newRow("one more") << 1 << 2.5 << text("2.51") << 2.51 << text("2.5");
    QTest::newRow("three more") << 2 << 0.01 << text("0.01004") << 0.01004 << text("0.01");
    QTest::newRow("none shown") << 0 << 400.0 << text("400.6") << 400.6 << text("401");
}

void NumbersTest::moreDecimalsThanShownAreStored()
{
    QFETCH(int, precision);
    QFETCH(double, old);
    QFETCH(QString, typed);
    NumberFixture fixture(QLocale(QLocale::English), number(old, precision));
    fixture.type(typed.toUtf8().constData());
    QTEST(fixture.value().toDouble(), "stored");
    QTEST(fixture.cell(), "shown");
}

void NumbersTest::anEditorShowsTheWholeNumber()
{
    const NumberFixture more(QLocale(QLocale::English), number(0.01004, 2));
    QCOMPARE(more.cell(), text("0.01"));
    QCOMPARE(more.line()->text(), text("0.01004"));
    const NumberFixture less(QLocale(QLocale::English), number(0.5, 3));
    QCOMPARE(less.line()->text(), text("0.500"));
}

void NumbersTest::signsInPrefixAndSuffixStay()
{
    KProperty *const property = number(1.0, QVariant(), "min. (v1,2)");
    property->setOption("prefix", text("ca."));
    NumberFixture fixture(QLocale(QLocale::German), property);
    QCOMPARE(fixture.line()->text(), text("ca. 1,00 min. (v1,2)"));
    fixture.line()->setSelection(4, 4);
    QTest::keyClicks(QApplication::focusWidget(), text("2.75"));
    QCOMPARE(fixture.line()->text(), text("ca. 2,75 min. (v1,2)"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCoreApplication::processEvents();
    QCOMPARE(fixture.value(), QVariant(2.75));
}

void NumbersTest::openingAndLeavingKeepsEveryDigit()
{
    const NumberFixture fixture(QLocale(QLocale::English), number(0.12345678901234567, 2));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCoreApplication::processEvents();
    QCOMPARE(fixture.value().toDouble(), 0.12345678901234567);
    QVERIFY(!fixture.set.isModified());
}

QTEST_MAIN(NumbersTest)
#include "NumbersTest.moc"
