#include "OrvTest.h"

#include <orv/core/TextUtils.h>

using namespace orv;
using namespace Qt::StringLiterals;

class TestTextUtils : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void listsBecomeHtml_data();
    void listsBecomeHtml();
    void headingsTellErrorsFromWarnings();
    void emptyListsHaveNoHeading();
};

void TestTextUtils::listsBecomeHtml_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QString>("html");

    QTest::newRow("empty list") << QStringList() << QString();
    QTest::newRow("one") << QStringList{u"a"_s} << u"<ul><li>a</li></ul>"_s;
    QTest::newRow("two in order") << QStringList{u"b"_s, u"a"_s} << u"<ul><li>b</li><li>a</li></ul>"_s;
    QTest::newRow("empty text") << QStringList{QString()} << u"<ul><li></li></ul>"_s;
    QTest::newRow("markup is escaped")
        << QStringList{u"<b>&\"x\"</b>"_s} << u"<ul><li>&lt;b&gt;&amp;&quot;x&quot;&lt;/b&gt;</li></ul>"_s;
    QTest::newRow("lines stay apart") << QStringList{u"a\nb"_s} << u"<ul><li>a<br>b</li></ul>"_s;
    QTest::newRow("place markers are text") << QStringList{u"%1 %n"_s} << u"<ul><li>%1 %n</li></ul>"_s;
}

void TestTextUtils::listsBecomeHtml()
{
    QFETCH(QStringList, texts);
    QTEST(TextUtils::stringListToHtmlList(texts), "html");
}

void TestTextUtils::headingsTellErrorsFromWarnings()
{
    const QStringList texts = {u"a"_s, u"b"_s};
    const QString errors = TextUtils::errorsListToHtmlList(texts);
    const QString warnings = TextUtils::warningsListToHtmlList(texts);
    const QString list = TextUtils::stringListToHtmlList(texts);
    QVERIFY(errors.endsWith(list));
    QVERIFY(warnings.endsWith(list));
    QVERIFY(errors.startsWith(u"<b>Errors: 2"_s));
    QVERIFY(warnings.startsWith(u"<b>Warnings: 2"_s));
}

void TestTextUtils::emptyListsHaveNoHeading()
{
    QCOMPARE(TextUtils::errorsListToHtmlList({}), QString());
    QCOMPARE(TextUtils::warningsListToHtmlList({}), QString());
}

ORV_REGISTER_TEST(TestTextUtils)

#include "TestTextUtils.moc"
