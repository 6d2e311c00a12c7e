#include "LogCapture.h"
#include "OrvTest.h"

#include <orv/chemistry/InsilicoMode.h>
#include <orv/chemistry/WorkflowNodeXicMethodOptions.h>

#include <QMetaEnum>

using namespace orv;
using namespace Qt::StringLiterals;

class TestModes : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void xicModesHaveTheNumbersAndKeysOfFiles();
    void xicModesReadBack();
    void otherTextsAreNoXicMode_data();
    void otherTextsAreNoXicMode();
    void theFastMethodStartsWithHighCapacity();
    void inSilicoModesAreNumbersOrTheWordsOfTheOldSwitch_data();
    void inSilicoModesAreNumbersOrTheWordsOfTheOldSwitch();
    void anUnknownInSilicoModeIsOffWithAWarning();
};

using XicMode = WorkflowNodeXicMethodOptions::XicMode;

void TestModes::xicModesHaveTheNumbersAndKeysOfFiles()
{
    const QMetaEnum modes = QMetaEnum::fromType<XicMode>();
    QCOMPARE(modes.keyCount(), 2);
    QCOMPARE(modes.valueToKey(0), "Standard");
    QCOMPARE(modes.valueToKey(1), "Fast");
}

void TestModes::xicModesReadBack()
{
    for (XicMode mode : {XicMode::Standard, XicMode::Fast}) {
        QCOMPARE(
            WorkflowNodeXicMethodOptions::modeFromString(WorkflowNodeXicMethodOptions::modeToString(mode)),
            mode);
    }
}

void TestModes::otherTextsAreNoXicMode_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("lower case") << u"fast"_s;
    QTest::newRow("number") << u"1"_s;
    QTest::newRow("qualified") << u"XicMode::Fast"_s;
    QTest::newRow("two") << u"Standard|Fast"_s;
}

void TestModes::otherTextsAreNoXicMode()
{
    QFETCH(QString, text);
    QVERIFY(!WorkflowNodeXicMethodOptions::modeFromString(text));
}

void TestModes::theFastMethodStartsWithHighCapacity()
{
    const TurboXicSettings expected{128, 1024, 64};
    QCOMPARE(TurboXicSettingsCreator::createHighCapacity(), expected);
    QCOMPARE(WorkflowNodeXicMethodOptions().fastXicOptions, expected);
    QCOMPARE(WorkflowNodeXicMethodOptions().mode, XicMode::Standard);
}

void TestModes::inSilicoModesAreNumbersOrTheWordsOfTheOldSwitch_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("mode");
    QTest::newRow("off") << u"0"_s << 0;
    QTest::newRow("digest") << u"1"_s << 1;
    QTest::newRow("switch off") << u"false"_s << 0;
    QTest::newRow("switch on") << u"true"_s << 1;
    QTest::newRow("nothing") << QString() << 0;
}

void TestModes::inSilicoModesAreNumbersOrTheWordsOfTheOldSwitch()
{
    QFETCH(QString, text);
    QFETCH(int, mode);
    QCOMPARE(static_cast<int>(modeFromString(text)), mode);
}

void TestModes::anUnknownInSilicoModeIsOffWithAWarning()
{
    const LogCapture log;
    QVERIFY(modeFromString(u"2"_s) == InsilicoMode::Off);
    QCOMPARE(log.warnings().size(), 1);
}

ORV_REGISTER_TEST(TestModes)
#include "TestModes.moc"
