#include "LogCapture.h"
#include "MzmlTexts.h"
#include "OrvTest.h"
#include "SampleTree.h"

#include <orv/core_ms/CustomSettingsUtils.h>
#include <orv/core_ms/MsUtils.h>

using namespace orv;
using namespace orv::msreader;
using namespace Qt::StringLiterals;

namespace {

void holdText(const QString &text)
{
    CustomSettings settings;
    QVERIFY(settings.setupValues(text, CustomSettings::Format::Sections).isEmpty());
    CustomSettingsUtils::setCurrentCustomSettings(settings);
}

MsReaderOptions extended()
{
    MsReaderOptions options(u"a.mzML"_s);
    CustomSettingsUtils::extendFromCurrentCustomSettings(&options);
    return options;
}

} // namespace

class TestCustomSettingsUtils : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void withoutSettingsOptionsStay();
    void theUseOfTheIndexIsSet_data();
    void theUseOfTheIndexIsSet();
    void anUnreadableValueIsAWarningAndNothingElse();
    void withoutTheIndexFilesAreReadFromTheFront();
};

void TestCustomSettingsUtils::cleanup()
{
    CustomSettingsUtils::setCurrentCustomSettings({});
}

void TestCustomSettingsUtils::withoutSettingsOptionsStay()
{
    QVERIFY(CustomSettingsUtils::currentCustomSettings().isEmpty());
    QCOMPARE(extended().path, u"a.mzML"_s);
    QVERIFY(extended().usesIndex);
    MsReaderOptions options(u"a.mzML"_s);
    options.usesIndex = false;
    CustomSettingsUtils::extendFromCurrentCustomSettings(&options);
    QVERIFY(!options.usesIndex);
}

void TestCustomSettingsUtils::theUseOfTheIndexIsSet_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("usesIndex");
    QTest::newRow("off") << u"[MsReader]\nUseIndex=false"_s << false;
    QTest::newRow("on") << u"[MsReader]\nUseIndex=1"_s << true;
    QTest::newRow("something else") << u"[MsReader]\nUseCache=false"_s << true;
}

void TestCustomSettingsUtils::theUseOfTheIndexIsSet()
{
    QFETCH(QString, text);
    QFETCH(bool, usesIndex);
    holdText(text);
    QCOMPARE(extended().usesIndex, usesIndex);
}

void TestCustomSettingsUtils::anUnreadableValueIsAWarningAndNothingElse()
{
    holdText(u"[MsReader]\nUseIndex=rarely"_s);
    const LogCapture log;
    QVERIFY(extended().usesIndex);
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(log.warnings().first().contains(u"rarely"_s));
}

void TestCustomSettingsUtils::withoutTheIndexFilesAreReadFromTheFront()
{
    // The fault between the spectra shows only to who reads them.
    const SampleTree tree;
    tree.add(u"a.mzML"_s,
             MzmlTexts::indexed(MzmlTexts::mzml("<spectrum id=\"s\">&faulty;<cvParam></spectrum>",
                                                MzmlTexts::chromatogram("a", "MS:1000235"))));
    const auto infos = [&tree] {
        const QList<MsUtils::AccessorForMsFile> files = MsUtils::accessorsForMsFiles({tree.at(u"a.mzML"_s)});
        return files.first().accessor->chromatogramInfoList();
    };
    ORV_VERIFY_OK(infos());
    holdText(u"[MsReader]\nUseIndex=false"_s);
    QVERIFY(infos().hasError());
}

ORV_REGISTER_TEST(TestCustomSettingsUtils)
#include "TestCustomSettingsUtils.moc"
