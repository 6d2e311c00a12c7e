#include "OrvTest.h"

#include <orv/propertyeditor/PropertySearch.h>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

QList<int> numbers(const QList<PropertyId> &ids)
{
    QList<int> list;
    for (const PropertyId id : ids)
        list.append(int(id));
    return list;
}

} // namespace

class TestPropertySearch : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void numbersAndNamesMeanOneProperty_data();
    void numbersAndNamesMeanOneProperty();
    void captionsAreFoundInAnyCase();
    void allWordsMustStandSomewhere_data();
    void allWordsMustStandSomewhere();
    void namesAndCaptionsAreThoseOfTheGivenProperties();
};

void TestPropertySearch::numbersAndNamesMeanOneProperty_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");
    QTest::newRow("number") << u"80"_s << 80;
    QTest::newRow("name") << u"KarvonPrecursorMassError"_s << 80;
    QTest::newRow("former name") << u"precursor_mass_error"_s << 80;
    QTest::newRow("caption") << u"Precursor mass tolerance"_s << int(PropertyId::NoProperty);
    QTest::newRow("number beyond") << u"307"_s << int(PropertyId::NoProperty);
    QTest::newRow("negative number") << u"-1"_s << int(PropertyId::NoProperty);
    QTest::newRow("nothing") << QString() << int(PropertyId::NoProperty);
}

void TestPropertySearch::numbersAndNamesMeanOneProperty()
{
    QFETCH(QString, text);
    QFETCH(int, number);
    QCOMPARE(int(PropertySearch::named(text)), number);
}

void TestPropertySearch::captionsAreFoundInAnyCase()
{
    QCOMPARE(numbers(PropertySearch::captioned(u" precursor MASS tolerance"_s)), QList<int>{80});
    QCOMPARE(numbers(PropertySearch::captioned(u"Precursor"_s)), QList<int>{});
}

void TestPropertySearch::allWordsMustStandSomewhere_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<int>>("found");
    QTest::newRow("words of name and caption") << u"karvonprecursor tolerance"_s << QList<int>{80, 82};
    QTest::newRow("a former name") << u"centroid_width_val"_s << QList<int>{31};
    QTest::newRow("one word too many") << u"karvonprecursor tolerance frobnicate"_s << QList<int>{};
    QTest::newRow("blanks") << u"  "_s << QList<int>{};
}

void TestPropertySearch::allWordsMustStandSomewhere()
{
    QFETCH(QString, text);
    QFETCH(QList<int>, found);
    QCOMPARE(numbers(PropertySearch::matching(text)), found);
}

void TestPropertySearch::namesAndCaptionsAreThoseOfTheGivenProperties()
{
    QCOMPARE(PropertySearch::namesAndCaptions({PropertyId(80)}),
             (QStringList{u"KarvonPrecursorMassError"_s, u"Precursor mass tolerance"_s}));
    QCOMPARE(PropertySearch::namesAndCaptions().size(), 2 * 307);
}

ORV_REGISTER_TEST(TestPropertySearch)

#include "TestPropertySearch.moc"
