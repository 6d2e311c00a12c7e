#include "OrvTest.h"
#include "ValidatorRun.h"

#include <orv/propertyeditor/ObsoleteCustomSettingsChecker.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/validators/ObsoleteSettingsValidator.h>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;

namespace {

using Checker = ObsoleteCustomSettingsChecker;

const QString kOldXic = u"[XIC]\nMode=Fast\nMzBins = 32"_s;
const QString kOldXicMessage =
    u"The advanced configuration has settings that are out of use: XIC/Mode, XIC/MzBins."_s;

QJsonObject expert(const QString &type, const QString &text)
{
    return settings(type, {{PropertyId::AdvancedConfiguration, text}});
}

} // namespace

class TestObsoleteSettingsValidator : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void namesAreFoundByApplication_data();
    void namesAreFoundByApplication();
    void everyRowIsFound();
    void theTableHasEachNameOnce();
    void withoutSectionsKeysStandAsTheyAre();
    void theRemedyNamesTheSuccessors();
    void everyTypeOfStepIsChecked_data();
    void everyTypeOfStepIsChecked();
    void theFirstFindEndsTheWalk();
    void stepsWithoutExpertSettingsPass();
};

void TestObsoleteSettingsValidator::namesAreFoundByApplication_data()
{
    QTest::addColumn<ApplicationType>("application");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isObsolete");
    QTest::newRow("empty") << ApplicationType::Senthia << QString() << false;
    QTest::newRow("out of use") << ApplicationType::Senthia << kOldXic << true;
    QTest::newRow("in use elsewhere") << ApplicationType::Trenq << kOldXic << false;
    QTest::newRow("another section") << ApplicationType::Senthia << u"[Xic]\nMode=Fast"_s << false;
    QTest::newRow("no section") << ApplicationType::Senthia << u"Mode=Fast"_s << false;
    QTest::newRow("a comment") << ApplicationType::Senthia << u"[XIC]\n;Mode=Fast"_s << false;
    QTest::newRow("a value alone") << ApplicationType::Senthia << u"[A]\nB=XIC/Mode"_s << false;
    QTest::newRow("lines that are no settings") << ApplicationType::Senthia << u"[XIC]\nMode"_s << false;
    QTest::newRow("the default of deconvolution")
        << ApplicationType::Intact << u"[Intact]\nMode=Denatured"_s << false;
    QTest::newRow("peaks of traces") << ApplicationType::Intact << u"[ElutionPeaks]\nAutoCompute=1"_s << true;
}

void TestObsoleteSettingsValidator::namesAreFoundByApplication()
{
    QFETCH(ApplicationType, application);
    QFETCH(QString, text);
    QFETCH(bool, isObsolete);
    QString message;
    QCOMPARE(Checker::hasObsoleteSettings(application, text, &message, true), isObsolete);
    QCOMPARE(!message.isEmpty(), isObsolete);
    QCOMPARE(Checker::hasObsoleteSettings(application, text, nullptr, true), isObsolete);
    QCOMPARE(!Checker::remedy(application, text, true).isEmpty(), isObsolete);
}

void TestObsoleteSettingsValidator::everyRowIsFound()
{
    for (const Checker::Row &row : Checker::rows()) {
        const QString text = u"[%1]\n%2=1"_s.arg(row.key.section(u'/', 0, 0), row.key.section(u'/', 1));
        QString message;
        QVERIFY2(Checker::hasObsoleteSettings(row.application, text, &message, true), qPrintable(row.key));
        QVERIFY(message.contains(row.key));
        QVERIFY(PropertiesNames::names()->contains(row.successor));
    }
}

void TestObsoleteSettingsValidator::theTableHasEachNameOnce()
{
    QSet<std::pair<int, QString>> seen;
    for (const Checker::Row &row : Checker::rows())
        seen.insert({int(row.application), row.key});
    QCOMPARE(seen.size(), Checker::rows().size());
    QVERIFY(!seen.isEmpty());
}

void TestObsoleteSettingsValidator::withoutSectionsKeysStandAsTheyAre()
{
    QVERIFY(Checker::hasObsoleteSettings(ApplicationType::Senthia, u"XIC/Mode=Fast"_s, nullptr, false));
    QVERIFY(!Checker::hasObsoleteSettings(ApplicationType::Senthia, kOldXic, nullptr, false));
}

void TestObsoleteSettingsValidator::theRemedyNamesTheSuccessors()
{
    QCOMPARE(Checker::remedy(ApplicationType::Senthia, kOldXic, true),
             u"Remove them from the advanced configuration, and enter their values in \"XIC method\", "
             "\"Fast XIC m/z bins\"."_s);
    QCOMPARE(
        Checker::remedy(ApplicationType::Intact, u"[ElutionPeaks]\nAutoCompute=1\nPeakWidthFactor=2"_s, true)
            .count(PropertiesNames::displayNameForType(PropertyId::SamplesTable)),
        1);
}

void TestObsoleteSettingsValidator::everyTypeOfStepIsChecked_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isGood");
    const QString peaks = u"[ElutionPeaks]\nPeakWidthFactor=2"_s;
    const QString align = u"[InSilicoAlign]\nEnabled=true"_s;
    QTest::newRow("Senthia") << u"Senthia"_s << kOldXic << false;
    QTest::newRow("Dravik") << u"Dravik"_s << peaks << false;
    QTest::newRow("Intact") << u"Intact"_s << peaks << false;
    QTest::newRow("Trenq") << u"Trenq"_s << align << false;
    // Each looks at the names of its own application.
    QTest::newRow("Oligo") << u"Oligo"_s << peaks << true;
    for (const char *type : {"Karvon", "Preview", "TrenqPreview", "Ostrale", "CaldrinDIA"})
        QTest::newRow(type) << QString::fromLatin1(type) << (kOldXic + u'\n' + peaks + u'\n' + align) << true;
}

void TestObsoleteSettingsValidator::everyTypeOfStepIsChecked()
{
    QFETCH(QString, type);
    QFETCH(QString, text);
    QFETCH(bool, isGood);
    const ValidatorRun run = runOf<ObsoleteSettingsValidator>(contentOf({expert(type, text)}));
    QCOMPARE(run.isGood, isGood);
    QCOMPARE(run.errors.isEmpty(), isGood);
}

void TestObsoleteSettingsValidator::theFirstFindEndsTheWalk()
{
    const Content content = contentOf({expert(u"Senthia"_s, u"[A]\nB=1"_s), expert(u"Senthia"_s, kOldXic),
                                       expert(u"Trenq"_s, u"[InSilicoAlign]\nEnabled=true"_s)});
    const ValidatorRun run = runOf<ObsoleteSettingsValidator>(content);
    QVERIFY(!run.isGood);
    QCOMPARE(run.errors, QList<QString>{kOldXicMessage});
    QCOMPARE(run.findings.size(), 1);
    QCOMPARE(run.findings.constFirst().place.item, content.findAllItems(BaseItemType::Senthia).at(1));
    QCOMPARE(run.findings.constFirst().place.property, PropertyId::AdvancedConfiguration);
    QVERIFY(run.findings.constFirst().hint.contains(u"XIC method"_s));
}

void TestObsoleteSettingsValidator::stepsWithoutExpertSettingsPass()
{
    QVERIFY(runOf<ObsoleteSettingsValidator>(contentOf({settings(u"Senthia"_s, {})})).isGood);
    QVERIFY(runOf<ObsoleteSettingsValidator>(Content()).isGood);
}

ORV_REGISTER_TEST(TestObsoleteSettingsValidator)
#include "TestObsoleteSettingsValidator.moc"
