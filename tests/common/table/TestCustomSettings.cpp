#include "OrvTest.h"

#include <orv/table/CustomSettings.h>

using namespace orv;
using namespace Qt::StringLiterals;

using Format = CustomSettings::Format;

class TestCustomSettings : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aDefaultOneIsEmpty();
    void theFormatsKeepTheirNumbers();
    void textsBecomeValues_data();
    void textsBecomeValues();
    void otherLinesAreTold_data();
    void otherLinesAreTold();
    void aSetUpReplacesWhatWasThere();
    void anAbsentKeyHasTheDefaultValue();
    void settingsAreTakenOutOfATextThatStaysOtherwise_data();
    void settingsAreTakenOutOfATextThatStaysOtherwise();
    void switchesAreTold_data();
    void switchesAreTold();
};

void TestCustomSettings::aDefaultOneIsEmpty()
{
    const CustomSettings settings;
    QVERIFY(settings.isEmpty());
    QVERIFY(settings.values().isEmpty());
    QVERIFY(!settings.value(u"a"_s).isValid());
}

void TestCustomSettings::theFormatsKeepTheirNumbers()
{
    QCOMPARE(int(Format::Flat), 0);
    QCOMPARE(int(Format::Sections), 1);
}

void TestCustomSettings::textsBecomeValues_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Format>("format");
    QTest::addColumn<QVariantMap>("values");

    const auto sections = Format::Sections;
    QTest::newRow("nothing") << QString() << sections << QVariantMap();
    QTest::newRow("a section") << u"[Intact]\nMode=Denatured"_s << sections
                               << QVariantMap{{u"Intact/Mode"_s, u"Denatured"_s}};
    QTest::newRow("no section") << u"Mode=Denatured"_s << sections
                                << QVariantMap{{u"Mode"_s, u"Denatured"_s}};
    QTest::newRow("two sections") << u"[A]\nx=1\n[B]\nx=2"_s << sections
                                  << QVariantMap{{u"A/x"_s, u"1"_s}, {u"B/x"_s, u"2"_s}};
    QTest::newRow("a section without a name ends the one before")
        << u"[A]\nx=1\n[ ]\nx=2"_s << sections << QVariantMap{{u"A/x"_s, u"1"_s}, {u"x"_s, u"2"_s}};
    QTest::newRow("a list stays one text") << u"[Intact]\nWeights=0.05,0.9,0.05"_s << sections
                                           << QVariantMap{{u"Intact/Weights"_s, u"0.05,0.9,0.05"_s}};
    QTest::newRow("blanks and line breaks of Windows")
        << u" [ A ] \r\n\tx = 1 \r\n"_s << sections << QVariantMap{{u"A/x"_s, u"1"_s}};
    QTest::newRow("blanks in quotes") << u"x=\" 1 \""_s << sections << QVariantMap{{u"x"_s, u" 1 "_s}};
    QTest::newRow("one quote is a character") << u"x=\""_s << sections << QVariantMap{{u"x"_s, u"\""_s}};
    QTest::newRow("a path") << u"[Library]\nProjectPath=\\\\host\\new%20lib"_s << sections
                            << QVariantMap{{u"Library/ProjectPath"_s, u"\\\\host\\new%20lib"_s}};
    QTest::newRow("an empty value") << u"x="_s << sections << QVariantMap{{u"x"_s, QString()}};
    QTest::newRow("the first equals sign divides")
        << u"x=a=b"_s << sections << QVariantMap{{u"x"_s, u"a=b"_s}};
    QTest::newRow("comments") << u"; a=1\n# b=2\n\nx=1"_s << sections << QVariantMap{{u"x"_s, u"1"_s}};
    QTest::newRow("the last of two") << u"x=1\nx=2"_s << sections << QVariantMap{{u"x"_s, u"2"_s}};
    QTest::newRow("case counts") << u"x=1\nX=2"_s << sections
                                 << QVariantMap{{u"x"_s, u"1"_s}, {u"X"_s, u"2"_s}};
    QTest::newRow("flat") << u"Intact/Mode=Denatured"_s << Format::Flat
                          << QVariantMap{{u"Intact/Mode"_s, u"Denatured"_s}};
}

void TestCustomSettings::textsBecomeValues()
{
    QFETCH(const QString, text);
    QFETCH(const Format, format);
    QFETCH(const QVariantMap, values);
    CustomSettings settings;
    QCOMPARE(settings.setupValues(text, format), Warnings());
    QCOMPARE(settings.values(), values);
    QCOMPARE(settings.isEmpty(), values.isEmpty());
}

void TestCustomSettings::otherLinesAreTold_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<Format>("format");
    QTest::newRow("no equals sign") << u"Mode"_s << Format::Sections;
    QTest::newRow("no key") << u"=1"_s << Format::Sections;
    QTest::newRow("an open section") << u"[Intact"_s << Format::Sections;
    QTest::newRow("a section where none is expected") << u"[Intact]"_s << Format::Flat;
}

void TestCustomSettings::otherLinesAreTold()
{
    QFETCH(const QString, line);
    QFETCH(const Format, format);
    CustomSettings settings;
    const Warnings told = settings.setupValues(u"a=1\n"_s + line + u"\nb=2"_s, format);
    QCOMPARE(told,
             QStringList{u"Line 2 of the settings is neither a key with a value nor a section: "_s + line});
    QCOMPARE(settings.values(), (QVariantMap{{u"a"_s, u"1"_s}, {u"b"_s, u"2"_s}}));
}

void TestCustomSettings::aSetUpReplacesWhatWasThere()
{
    CustomSettings settings;
    QVERIFY(settings.setupValues(u"a=1"_s, Format::Sections).isEmpty());
    QVERIFY(settings.setupValues(u"b=2"_s, Format::Sections).isEmpty());
    QVERIFY(!settings.contains(u"a"_s));
    QVERIFY(settings.contains(u"b"_s));
}

void TestCustomSettings::anAbsentKeyHasTheDefaultValue()
{
    CustomSettings settings;
    QVERIFY(settings.setupValues(u"a=1"_s, Format::Sections).isEmpty());
    QCOMPARE(settings.value(u"a"_s, 5).toInt(), 1);
    QCOMPARE(settings.value(u"b"_s, 5), QVariant(5));
}

void TestCustomSettings::settingsAreTakenOutOfATextThatStaysOtherwise_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Format>("format");
    QTest::addColumn<QString>("rest");

    const QString flat = u" x = 1 \r\n# x=2\n\nA/x=3\nA/y=4"_s;
    QTest::newRow("keys alone") << flat << Format::Flat << u" x = 1 \r\n# x=2\n\nA/y=4"_s;
    QTest::newRow("a header is no header there") << u"[A]\nA/x=3\nx=1"_s << Format::Flat << u"[A]\nx=1"_s;
    QTest::newRow("below a header") << u"[A]\nx=3\ny=4"_s << Format::Sections << u"[A]\ny=4"_s;
    QTest::newRow("the last of a section")
        << u"[B]\nx=1\n[A]\nx=3\n\n"_s << Format::Sections << u"[B]\nx=1\n\n"_s;
    QTest::newRow("none") << u"[A]\ny=4\n[C]\n"_s << Format::Sections << u"[A]\ny=4\n[C]\n"_s;
    QTest::newRow("nothing") << QString() << Format::Sections << QString();
}

void TestCustomSettings::settingsAreTakenOutOfATextThatStaysOtherwise()
{
    QFETCH(QString, text);
    QFETCH(Format, format);
    QFETCH(QString, rest);
    QCOMPARE(CustomSettings::withoutSettings(text, format, {u"A/x"_s}), rest);
}

void TestCustomSettings::switchesAreTold_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<std::optional<bool>>("isOn");

    const auto row = [](const char *value, std::optional<bool> isOn) {
        QTest::newRow(value) << QString::fromLatin1(value) << isOn;
    };
    row("true", true);
    row("TRUE", true);
    row("1", true);
    row("False", false);
    row("0", false);
    row("", {});
    row("yes", {});
    row("2", {});
}

void TestCustomSettings::switchesAreTold()
{
    QFETCH(QString, value);
    QFETCH(std::optional<bool>, isOn);
    QCOMPARE(CustomSettings::toSwitch(value), isOn);
}

ORV_REGISTER_TEST(TestCustomSettings)
#include "TestCustomSettings.moc"
