#include "WidgetTest.h"

#include <orv/propertyeditor/workbench/SettingIndex.h>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

SettingTexts setting(const char *name, const QString &caption, const QString &toolTip, const QString &value)
{
    SettingTexts texts;
    texts.name = name;
    texts.caption = caption;
    texts.toolTip = toolTip;
    texts.value = value;
    return texts;
}

SettingIndex::Column column(int number, const QList<SettingTexts> &settings)
{
    return {0, number, u"Analysis"_s, number == 0 ? u"Karvon"_s : u"Ostrale"_s, settings};
}

QStringList namesOf(const QList<SettingHit> &hits)
{
    QStringList names;
    for (const SettingHit &hit : hits)
        names.append(QString::number(hit.place.column) + u':' + QString::fromUtf8(hit.place.name));
    return names;
}

SettingIndex lifelikeIndex()
{
    SettingIndex index;
    index.append(column(0, {setting("UsePeak", u"Threshold"_s, u"Beyond noise."_s, u"5 ppm"_s),
                            setting("Width", u"Peak width"_s, u"In minutes."_s, u"0.2 min"_s),
                            setting("Noise", u"Noise"_s, u"Of a peak."_s, u"10"_s)}));
    index.append(column(1, {setting("Width", u"Peak width"_s, u"In minutes."_s, u"0.4 min"_s),
                            setting("Shape", u"Shape"_s, u"Of what is fitted."_s, u"Peak top"_s)}));
    return index;
}

} // namespace

class SettingIndexTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void captionsComeFirstThenNamesToolTipsAndValues();
    void wordsMayStandInSeveralFields();
    void queriesWithoutWordsOrFiltersFindNothing();
    void typingOnAndBackFindsTheSameAsTypingAtOnce();
    void anEditedColumnIsReadAnew();
    void filtersPassWhatWasChanged();
    void filtersOfOthersAreAsked();
    void oddTextsFindNothingAndHurtNobody_data();
    void oddTextsFindNothingAndHurtNobody();
};

void SettingIndexTest::captionsComeFirstThenNamesToolTipsAndValues()
{
    SettingIndex index = lifelikeIndex();
    const QList<SettingHit> hits = index.hits({u"peak"_s});
    QCOMPARE(namesOf(hits),
             QStringList({u"0:Width"_s, u"1:Width"_s, u"0:UsePeak"_s, u"0:Noise"_s, u"1:Shape"_s}));
    QList<int> fields;
    for (const SettingHit &hit : hits)
        fields.append(int(hit.field));
    QCOMPARE(fields, QList<int>({0, 0, 1, 2, 3}));
    QCOMPARE(index.placeText(hits.at(1).place), u"Analysis › Ostrale"_s);
}

void SettingIndexTest::wordsMayStandInSeveralFields()
{
    SettingIndex index = lifelikeIndex();
    QCOMPARE(namesOf(index.hits({u"0.4 WIDTH"_s})), QStringList({u"1:Width"_s}));
    QCOMPARE(namesOf(index.hits({u"width noise"_s})), QStringList());
}

void SettingIndexTest::queriesWithoutWordsOrFiltersFindNothing()
{
    SettingIndex index = lifelikeIndex();
    QCOMPARE(namesOf(index.hits({})), QStringList());
    QCOMPARE(namesOf(index.hits({u" \t\n"_s})), QStringList());
}

void SettingIndexTest::typingOnAndBackFindsTheSameAsTypingAtOnce()
{
    SettingIndex typed = lifelikeIndex();
    for (const QString &text : {u"p"_s, u"pe"_s, u"peak w"_s, u"peak"_s, u"ea"_s, u"in min"_s, u"0.4"_s}) {
        SettingIndex atOnce = lifelikeIndex();
        QCOMPARE(namesOf(typed.hits({text})), namesOf(atOnce.hits({text})));
    }
}

void SettingIndexTest::anEditedColumnIsReadAnew()
{
    SettingIndex index = lifelikeIndex();
    QCOMPARE(namesOf(index.hits({u"0.4"_s})), QStringList({u"1:Width"_s}));
    index.replace(column(1, {setting("Width", u"Peak width"_s, {}, u"0.8 min"_s)}));
    QCOMPARE(namesOf(index.hits({u"0.4"_s})), QStringList());
    QCOMPARE(namesOf(index.hits({u"0.8"_s})), QStringList({u"1:Width"_s}));
    QCOMPARE(index.count(), 4);
    QVERIFY(!index.find({0, 1, "Shape"}));
    index.clear();
    QCOMPARE(namesOf(index.hits({u"0"_s})), QStringList());
}

void SettingIndexTest::filtersPassWhatWasChanged()
{
    SettingTexts changed = setting("A", u"First"_s, {}, u"1"_s);
    changed.defaultValue = u"0"_s;
    SettingTexts unsaved = setting("B", u"Second"_s, {}, u"2"_s);
    unsaved.savedValue = QString();
    SettingIndex index;
    index.append(column(0, {changed, unsaved, setting("C", u"Third"_s, {}, u"3"_s)}));
    SettingQuery query;
    query.isChangedFromDefault = true;
    QCOMPARE(namesOf(index.hits(query)), QStringList({u"0:A"_s}));
    QCOMPARE(int(index.hits(query).constFirst().field), int(SettingField::None));
    query.isChangedSinceSaving = true;
    QCOMPARE(namesOf(index.hits(query)), QStringList());
    query.isChangedFromDefault = false;
    QCOMPARE(namesOf(index.hits(query)), QStringList({u"0:B"_s}));
    query.text = u"first"_s;
    QCOMPARE(namesOf(index.hits(query)), QStringList());
}

void SettingIndexTest::filtersOfOthersAreAsked()
{
    SettingIndex index = lifelikeIndex();
    SettingQuery query;
    query.further[1] = [](const SettingPlace &place) { return place == SettingPlace{0, 1, "Width"}; };
    QCOMPARE(namesOf(index.hits(query)), QStringList({u"1:Width"_s}));
    query.further[0] = [](const SettingPlace &) { return false; };
    QCOMPARE(namesOf(index.hits(query)), QStringList());
}

void SettingIndexTest::oddTextsFindNothingAndHurtNobody_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("pattern") << u"(.*)+$[^]"_s;
    QTest::newRow("a megabyte") << QString(1 << 20, u'x');
    QTest::newRow("a megabyte of words") << u"qz "_s.repeated(1 << 18) + u"w"_s;
    QTest::newRow("emoji") << u"👩‍🔬🧪"_s;
    QTest::newRow("marks without a letter") << QString(u"\u0301\u0323\u0301"_s);
    QTest::newRow("half of a letter") << QString(QChar(0xd83d));
    QTest::newRow("from right to left") << QString(u"\u202eabc\u0000"_s);
    QTest::newRow("markup") << u"<b>&amp;</b>"_s;
}

void SettingIndexTest::oddTextsFindNothingAndHurtNobody()
{
    QFETCH(QString, typed);
    SettingIndex index = lifelikeIndex();
    QCOMPARE(namesOf(index.hits({typed})), QStringList());
}

WIDGET_REGISTER_TEST(SettingIndexTest)
#include "SettingIndexTest.moc"
