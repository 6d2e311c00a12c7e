#include "OrvTest.h"

#include <orv/chemistry/WorkflowNodeUpgradeUtils.h>
#include <orv/table/CustomSettings.h>

using namespace orv;
using namespace Qt::StringLiterals;

namespace Utils = orv::WorkflowNodeUpgradeUtils;

using XicMode = WorkflowNodeXicMethodOptions::XicMode;
using Determination = WorkflowNodeInsilicoAlign::ToleranceDetermination;

namespace {

Utils::FastXicUpgrade fastXic(const QString &text)
{
    CustomSettings settings;
    const Warnings ignored = settings.setupValues(text, CustomSettings::Format::Sections);
    return Utils::fastXicBackwardsCompatibility(text, settings.values());
}

} // namespace

class TestWorkflowNodeUpgradeUtils : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aTextWithoutTheSettingsGivesDefaults();
    void xicSettingsAreRead();
    void xicModesAreReadInAnyCase_data();
    void xicModesAreReadInAnyCase();
    void whatIsNotTheirsStays_data();
    void whatIsNotTheirsStays();
    void unreadableXicSettingsStayInTheText_data();
    void unreadableXicSettingsStayInTheText();
    void alignmentSettingsAreRead_data();
    void alignmentSettingsAreRead();
    void theOtherSettingsOfASectionStay();
    void unreadableAlignmentSettingsStayInTheText_data();
    void unreadableAlignmentSettingsStayInTheText();
    void determinationsKeepTheirNumbers();
};

void TestWorkflowNodeUpgradeUtils::aTextWithoutTheSettingsGivesDefaults()
{
    const QString text = u"[Intact]\nMode=Denatured"_s;
    const Utils::FastXicUpgrade xic = fastXic(text);
    QCOMPARE(xic.advancedText, text);
    QVERIFY(xic.options == WorkflowNodeXicMethodOptions());
    QVERIFY(xic.warnings.isEmpty());
    const Utils::InsilicoAlignUpgrade align = Utils::inSilicoAlignSettingsBackwardsCompatibility(text);
    QCOMPARE(align.advancedText, text);
    QVERIFY(align.options == WorkflowNodeInsilicoAlign());
    QVERIFY(align.options.isInsilicoAlignmentEnabled);
    QCOMPARE(align.options.toleranceDetermination, Determination::Automatic);
    QCOMPARE(align.options.alignmentTolerance, 0.0);
    QVERIFY(align.warnings.isEmpty());
}

void TestWorkflowNodeUpgradeUtils::xicSettingsAreRead()
{
    const Utils::FastXicUpgrade xic =
        fastXic(u"[XIC]\nMode=Fast\nBlockScans=32\nCacheSize = 2048\nMzBins=\"16\"\n"_s);
    QCOMPARE(xic.options.mode, XicMode::Fast);
    QCOMPARE(xic.options.fastXicOptions.scansPerBlock, 32);
    QCOMPARE(xic.options.fastXicOptions.cacheMegabytes, 2048);
    QCOMPARE(xic.options.fastXicOptions.mzBins, 16);
    QCOMPARE(xic.advancedText, QString());
    QVERIFY(xic.warnings.isEmpty());
}

void TestWorkflowNodeUpgradeUtils::xicModesAreReadInAnyCase_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<XicMode>("mode");

    QTest::newRow("standard") << u"Standard"_s << XicMode::Standard;
    QTest::newRow("fast") << u"Fast"_s << XicMode::Fast;
    QTest::newRow("small letters") << u"fast"_s << XicMode::Fast;
}

void TestWorkflowNodeUpgradeUtils::xicModesAreReadInAnyCase()
{
    QFETCH(QString, text);
    QFETCH(XicMode, mode);
    const Utils::FastXicUpgrade xic = fastXic(u"[XIC]\nMode="_s + text);
    QCOMPARE(xic.options.mode, mode);
    QCOMPARE(xic.advancedText, QString());
}

void TestWorkflowNodeUpgradeUtils::whatIsNotTheirsStays_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("rest");

    QTest::newRow("sections around") << u"[A]\nx=1\n[XIC]\nMode=Fast\n[B]\ny=2\n"_s
                                     << u"[A]\nx=1\n[B]\ny=2\n"_s;
    QTest::newRow("blanks and lines of Windows")
        << u" [ A ] \r\n\tx = 1 \r\n[XIC]\r\nMode=Fast\r\n"_s << u" [ A ] \r\n\tx = 1 \r\n"_s;
    QTest::newRow("a comment keeps its section") << u"[XIC]\n; ours\nMode=Fast\n"_s << u"[XIC]\n; ours\n"_s;
    QTest::newRow("another setting of the section") << u"[XIC]\nMode=Fast\nDepth=3"_s << u"[XIC]\nDepth=3"_s;
    QTest::newRow("a line that is none") << u"[XIC]\nhello\nMode=Fast\n"_s << u"[XIC]\nhello\n"_s;
    QTest::newRow("the same name elsewhere") << u"[Intact]\nMode=Fast\n"_s << u"[Intact]\nMode=Fast\n"_s;
    QTest::newRow("another case of letters") << u"[xic]\nmode=Fast\n"_s << u"[xic]\nmode=Fast\n"_s;
    QTest::newRow("an empty section that was there") << u"[XIC]\n\n[A]\nx=1"_s << u"[XIC]\n\n[A]\nx=1"_s;
    QTest::newRow("blank lines") << u"[XIC]\nMode=Fast\n\n[A]\nx=1"_s << u"\n[A]\nx=1"_s;
    QTest::newRow("no section") << u"XIC/Mode=Fast\nx=1"_s << u"x=1"_s;
    QTest::newRow("twice") << u"[XIC]\nMode=Standard\n[A]\nx=1\n[XIC]\nMode=Fast"_s << u"[A]\nx=1\n"_s;
}

void TestWorkflowNodeUpgradeUtils::whatIsNotTheirsStays()
{
    QFETCH(QString, text);
    QFETCH(QString, rest);
    QCOMPARE(fastXic(text).advancedText, rest);
}

void TestWorkflowNodeUpgradeUtils::unreadableXicSettingsStayInTheText_data()
{
    QTest::addColumn<QString>("line");

    QTest::newRow("no mode") << u"Mode=Quick"_s;
    QTest::newRow("a mode's number") << u"Mode=1"_s;
    QTest::newRow("no number") << u"BlockScans=many"_s;
    QTest::newRow("nothing") << u"CacheSize="_s;
    QTest::newRow("zero") << u"MzBins=0"_s;
    QTest::newRow("below zero") << u"MzBins=-5"_s;
    QTest::newRow("too big") << u"CacheSize=99999999999"_s;
}

void TestWorkflowNodeUpgradeUtils::unreadableXicSettingsStayInTheText()
{
    QFETCH(QString, line);
    const Utils::FastXicUpgrade xic = fastXic(u"[XIC]\n"_s + line);
    QCOMPARE(xic.advancedText, u"[XIC]\n"_s + line);
    QVERIFY(xic.options == WorkflowNodeXicMethodOptions());
    QCOMPARE(xic.warnings.size(), 1);
    QVERIFY2(xic.warnings.first().contains(u"\"XIC/"_s + line.section(u'=', 0, 0) + u'"'),
             qPrintable(xic.warnings.first()));
}

void TestWorkflowNodeUpgradeUtils::alignmentSettingsAreRead_data()
{
    QTest::addColumn<QString>("lines");
    QTest::addColumn<bool>("isEnabled");
    QTest::addColumn<Determination>("determination");
    QTest::addColumn<double>("tolerance");

    QTest::newRow("off") << u"Enabled=false"_s << false << Determination::Automatic << 0.0;
    QTest::newRow("on") << u"Enabled=TRUE"_s << true << Determination::Automatic << 0.0;
    QTest::newRow("number off") << u"Enabled=0"_s << false << Determination::Automatic << 0.0;
    QTest::newRow("number on") << u"Enabled=1"_s << true << Determination::Automatic << 0.0;
    QTest::newRow("tolerance") << u"Tolerance=0.75"_s << true << Determination::Automatic << 0.75;
    QTest::newRow("by number") << u"ToleranceDetermination=1"_s << true << Determination::ByHand << 0.0;
    QTest::newRow("by word") << u"ToleranceDetermination=ByHand"_s << true << Determination::ByHand << 0.0;
    QTest::newRow("automatic") << u"ToleranceDetermination=automatic"_s << true << Determination::Automatic
                               << 0.0;
    QTest::newRow("all") << u"Enabled=false\nTolerance=2\nToleranceDetermination=1"_s << false
                         << Determination::ByHand << 2.0;
}

void TestWorkflowNodeUpgradeUtils::alignmentSettingsAreRead()
{
    QFETCH(QString, lines);
    QFETCH(bool, isEnabled);
    QFETCH(Determination, determination);
    QFETCH(double, tolerance);
    const Utils::InsilicoAlignUpgrade align = Utils::inSilicoAlignSettingsBackwardsCompatibility(
        u"# experts\n[InSilicoAlign]\n"_s + lines + u"\n[B]\ny=2"_s);
    QCOMPARE(align.options.isInsilicoAlignmentEnabled, isEnabled);
    QCOMPARE(align.options.toleranceDetermination, determination);
    QCOMPARE(align.options.alignmentTolerance, tolerance);
    QCOMPARE(align.advancedText, u"# experts\n[B]\ny=2"_s);
    QVERIFY(align.warnings.isEmpty());
}

void TestWorkflowNodeUpgradeUtils::theOtherSettingsOfASectionStay()
{
    const Utils::InsilicoAlignUpgrade align = Utils::inSilicoAlignSettingsBackwardsCompatibility(
        u"[InSilicoAlign]\nKnots=4\nEnabled=false\n;end\nnonsense"_s);
    QCOMPARE(align.advancedText, u"[InSilicoAlign]\nKnots=4\n;end\nnonsense"_s);
}

void TestWorkflowNodeUpgradeUtils::unreadableAlignmentSettingsStayInTheText_data()
{
    QTest::addColumn<QString>("line");

    QTest::newRow("no switch") << u"Enabled=maybe"_s;
    QTest::newRow("an empty switch") << u"Enabled="_s;
    QTest::newRow("no number") << u"Tolerance=1 min"_s;
    QTest::newRow("below zero") << u"Tolerance=-1"_s;
    QTest::newRow("not finite") << u"Tolerance=inf"_s;
    QTest::newRow("no determination") << u"ToleranceDetermination=2"_s;
}

void TestWorkflowNodeUpgradeUtils::unreadableAlignmentSettingsStayInTheText()
{
    QFETCH(QString, line);
    const QString text = u"[InSilicoAlign]\n"_s + line;
    const Utils::InsilicoAlignUpgrade align = Utils::inSilicoAlignSettingsBackwardsCompatibility(text);
    QCOMPARE(align.advancedText, text);
    QVERIFY(align.options == WorkflowNodeInsilicoAlign());
    QCOMPARE(align.warnings.size(), 1);
}

void TestWorkflowNodeUpgradeUtils::determinationsKeepTheirNumbers()
{
    QCOMPARE(int(Determination::Automatic), 0);
    QCOMPARE(int(Determination::ByHand), 1);
}

ORV_REGISTER_TEST(TestWorkflowNodeUpgradeUtils)

#include "TestWorkflowNodeUpgradeUtils.moc"
