#include "Documents.h"
#include "LogCapture.h"
#include "OrvTest.h"
#include "TableCells.h"

#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/validators/AbstractValidator.h>
#include <orv/propertyeditor/validators/BuiltinValidator.h>
#include <orv/propertyeditor/validators/CheckRun.h>
#include <orv/propertyeditor/validators/ContentValidator.h>
#include <orv/propertyeditor/validators/FindingsValidator.h>
#include <orv/propertyeditor/validators/Validators.h>
#include <orv/propertyeditor/validators/WorkflowCheck.h>
#include <orv/propertyeditor/validators/WorkflowValidator.h>

#include <functional>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;
using TableCells::cell;
using TableCells::entry;

namespace {

/// A document of one tab, a column for each cell.
Content contentOfColumns(const QJsonArray &cells)
{
    QStringList columns;
    for (qsizetype i = 0; i < cells.size(); ++i)
        columns.append(QString::number(i));
    Content content;
    if (content.assignFromJson(Documents::document({Documents::tab(u"Tab"_s, columns, cells)})).hasError())
        qFatal("The test's document is broken");
    return content;
}

/// Says what it is told to.
class Speaker : public AbstractValidator
{
public:
    Speaker(bool verdict, const QStringList &warnings, const QStringList &errors, int *calls = nullptr)
        : m_verdict(verdict)
        , m_warnings(warnings)
        , m_errors(errors)
        , m_calls(calls)
    {}
    ~Speaker() override
    {
        if (m_deleted)
            *m_deleted = true;
    }

    bool validate(const Content & /*content*/, const QUrl & /*workflowBaseUrl*/, QList<QString> *warnings,
                  QList<QString> *errors) const override
    {
        if (m_calls)
            ++*m_calls;
        *warnings += m_warnings;
        *errors += m_errors;
        return m_verdict;
    }

    void setDeletionFlag(bool *deleted) { m_deleted = deleted; }

private:
    bool m_verdict;
    QStringList m_warnings;
    QStringList m_errors;
    int *m_calls;
    bool *m_deleted = nullptr;
};

/// Tells what it is given.
class Teller : public FindingsValidator
{
public:
    explicit Teller(std::function<void(CheckRun &)> tell)
        : m_tell(std::move(tell))
    {}

    void check(CheckRun &run) const override { m_tell(run); }

private:
    std::function<void(CheckRun &)> m_tell;
};

FindingPlace atSample(const QString &name)
{
    return {nullptr, PropertyId::NoProperty, name};
}

struct Verdict
{
    bool isValid = false;
    QList<QString> warnings{u"stale warning"_s};
    QList<QString> errors{u"stale error"_s};
    QList<Finding> findings;
};

Verdict verdictOf(const ContentValidator &validator, const Content &content = {})
{
    Verdict verdict;
    const QUrl base(u"file:///lab/"_s);
    verdict.isValid =
        validator.validate(content, base, &verdict.warnings, &verdict.errors, &verdict.findings);
    return verdict;
}

Verdict verdictOf(const AbstractValidator &validator, const Content &content)
{
    Verdict verdict;
    verdict.warnings.clear();
    verdict.errors.clear();
    verdict.isValid = validator.validate(content, {}, &verdict.warnings, &verdict.errors);
    return verdict;
}

} // namespace

class TestContentValidator : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void withoutValidatorsEverythingIsValid();
    void theSameValidatorIsInstalledOnce();
    void clearingDeletesTheValidators();
    void everyValidatorRunsInOrder();
    void warningsDoNotFail();
    void textsOfTwoValidatorsAppearOnce();
    void aFailureWithoutWordsIsAnUnknownError();
    void textsGoToTheLog();
    void aCheckThatIsRepeatedKeepsTheLogEmpty();
    void filesThatAreMissingAreNotLoggedThenEither();
    void findingsTellRulePlaceAndHint();
    void oneTextAtTwoPlacesIsTwoFindings();
    void oneTextMayTellOfSeveralPlaces();
    void findingsStandInTheOrderOfTheTexts();
    void theTextsOfTellersAreThoseThatTheyTell();
    void manyFindingsTakeNoLongerThanTheirNumber();
    void namesFindValidators_data();
    void namesFindValidators();
    void theDefaultSetRunsInItsOrder();
    void aWorkflowNeedsADocument_data();
    void aWorkflowNeedsADocument();
    void settingsAreHeldAgainstTheirRules();
    void everyItemIsLookedAt();
    void aDigestionRuleFailsNothingHere();
    void theOtherValidatorsRunWithoutADocument();
};

void TestContentValidator::withoutValidatorsEverythingIsValid()
{
    LogCapture log;
    const Verdict verdict = verdictOf(ContentValidator());
    QVERIFY(verdict.isValid);
    QCOMPARE(verdict.errors, QList<QString>{u"stale error"_s});
    QCOMPARE(verdict.warnings, QList<QString>{u"stale warning"_s});
    QCOMPARE(log.warnings(), QStringList{u"No validators installed. The content considered to be valid"_s});
}

void TestContentValidator::theSameValidatorIsInstalledOnce()
{
    int calls = 0;
    ContentValidator validator;
    auto *speaker = new Speaker(true, {}, {}, &calls);
    QVERIFY(validator.installValidator(speaker));
    QVERIFY(!validator.installValidator(speaker));
    QVERIFY(!validator.installValidator(nullptr));
    QCOMPARE(validator.count(), 1);
    QVERIFY(verdictOf(validator).isValid);
    QCOMPARE(calls, 1);
}

void TestContentValidator::clearingDeletesTheValidators()
{
    bool isDeleted = false;
    ContentValidator validator;
    auto *speaker = new Speaker(true, {}, {});
    speaker->setDeletionFlag(&isDeleted);
    QVERIFY(validator.installValidator(speaker));
    validator.clear();
    QVERIFY(isDeleted);
    QCOMPARE(validator.count(), 0);

    isDeleted = false;
    {
        ContentValidator shortLived;
        auto *other = new Speaker(true, {}, {});
        other->setDeletionFlag(&isDeleted);
        QVERIFY(shortLived.installValidator(other));
    }
    QVERIFY(isDeleted);
}

void TestContentValidator::everyValidatorRunsInOrder()
{
    LogCapture log;
    ContentValidator validator;
    QVERIFY(validator.installValidator(new Speaker(false, {u"w1"_s}, {u"e1"_s})));
    QVERIFY(validator.installValidator(new Speaker(true, {u"w2"_s}, {})));
    QVERIFY(validator.installValidator(new Speaker(false, {}, {u"e2"_s})));
    const Verdict verdict = verdictOf(validator);
    QVERIFY(!verdict.isValid);
    QCOMPARE(verdict.warnings, (QList<QString>{u"w1"_s, u"w2"_s}));
    QCOMPARE(verdict.errors, (QList<QString>{u"e1"_s, u"e2"_s}));
}

void TestContentValidator::warningsDoNotFail()
{
    LogCapture log;
    ContentValidator validator;
    QVERIFY(validator.installValidator(new Speaker(true, {u"careful"_s}, {})));
    QVERIFY(verdictOf(validator).isValid);
}

void TestContentValidator::textsOfTwoValidatorsAppearOnce()
{
    LogCapture log;
    ContentValidator validator;
    QVERIFY(validator.installValidator(new Speaker(false, {u"w"_s}, {u"same"_s, u"first"_s})));
    QVERIFY(validator.installValidator(new Speaker(false, {u"w"_s}, {u"second"_s, u"same"_s})));
    const Verdict verdict = verdictOf(validator);
    QCOMPARE(verdict.errors, (QList<QString>{u"same"_s, u"first"_s, u"second"_s}));
    QCOMPARE(verdict.warnings, QList<QString>{u"w"_s});
    QCOMPARE(verdict.findings.size(), 4);
}

void TestContentValidator::aFailureWithoutWordsIsAnUnknownError()
{
    LogCapture log;
    ContentValidator validator;
    QVERIFY(validator.installValidator(new Speaker(false, {}, {})));
    const Verdict verdict = verdictOf(validator);
    QVERIFY(!verdict.isValid);
    QCOMPARE(verdict.errors, QList<QString>{u"Unknown error"_s});
    QCOMPARE(verdict.findings.size(), 1);
}

void TestContentValidator::aCheckThatIsRepeatedKeepsTheLogEmpty()
{
    LogCapture log;
    ContentValidator validator;
    validator.setRepeatsInLog(false);
    QVERIFY(validator.installValidator(new Speaker(false, {u"careful"_s}, {u"wrong"_s})));
    const Verdict verdict = verdictOf(validator);
    QCOMPARE(verdict.errors, QList<QString>{u"wrong"_s});
    QCOMPARE(log.warnings(), QStringList());
    QCOMPARE(log.texts(QtCriticalMsg), QStringList());
}

void TestContentValidator::filesThatAreMissingAreNotLoggedThenEither()
{
    LogCapture log;
    WorkflowCheck check({u"Files"_s});
    check.setRepeatsInLog(false);
    const QJsonObject sample{{u"SampleName"_s, u"S1"_s}, {u"SamplePath"_s, u"/no/such/S1.mzML"_s}};
    QJsonObject cell = Documents::cell(u"Samples"_s);
    cell[u"properties"_s] = QJsonArray{QJsonObject{
        {u"name"_s, u"SamplesTable"_s}, {u"value"_s, QJsonObject{{u"Samples"_s, QJsonArray{sample}}}}}};
    const QJsonObject document = Documents::document({Documents::tab(u"Input"_s, {u"Samples"_s}, {cell})},
                                                     {{u"version"_s, u"5.47.0"_s}});
    const auto report = check.run({document, {}}, {});
    QVERIFY(!report.hasError());
    QCOMPARE(report->findings.size(), 1);
    QCOMPARE(log.warnings(), QStringList());
}

void TestContentValidator::textsGoToTheLog()
{
    LogCapture log;
    ContentValidator validator;
    QVERIFY(validator.installValidator(new Speaker(false, {u"careful"_s}, {u"wrong"_s})));
    QVERIFY(!verdictOf(validator).isValid);
    QCOMPARE(log.warnings(), QStringList{u"Workflow validation: careful"_s});
    QCOMPARE(log.texts(QtCriticalMsg), QStringList{u"Workflow validation: wrong"_s});
    QVERIFY(log.texts(QtDebugMsg).contains(u"Validating workflow content"_s));
}

void TestContentValidator::findingsTellRulePlaceAndHint()
{
    LogCapture log;
    const FindingPlace place{nullptr, PropertyId::Samples, u"lot 1"_s};
    ContentValidator validator;
    QVERIFY(validator.installValidator(new Teller([place](CheckRun &run) {
        run.warning(u"careful"_s);
        run.error(u"wrong"_s, place, u"base "_s + run.workflowBaseUrl().path());
        run.add({Finding::Level::Error, u"rule"_s, u"too much"_s, {}, {}});
    })));
    QVERIFY(validator.installValidator(new Speaker(false, {}, {u"plain"_s})));
    const QList<Finding> expected{
        {Finding::Level::Error, u"Additional"_s, u"wrong"_s, place, u"base /lab/"_s},
        {Finding::Level::Error, u"Additional/rule"_s, u"too much"_s, {}, {}},
        {Finding::Level::Warning, u"Additional"_s, u"careful"_s, {}, {}},
        {Finding::Level::Error, u"Additional"_s, u"plain"_s, {}, {}}};
    QCOMPARE(verdictOf(validator).findings, expected);
}

void TestContentValidator::oneTextAtTwoPlacesIsTwoFindings()
{
    LogCapture log;
    ContentValidator validator;
    for (const QString &sample : {u"a"_s, u"b"_s, u"a"_s}) {
        QVERIFY(validator.installValidator(
            new Teller([sample](CheckRun &run) { run.error(u"wrong"_s, atSample(sample)); })));
    }
    const Verdict verdict = verdictOf(validator);
    QCOMPARE(verdict.errors, QList<QString>{u"wrong"_s});
    QCOMPARE(verdict.findings.size(), 2);
    QCOMPARE(verdict.findings.at(1).place.sample, u"b"_s);
}

void TestContentValidator::oneTextMayTellOfSeveralPlaces()
{
    LogCapture log;
    const Teller teller([](CheckRun &run) {
        run.add({Finding::Level::Error, {}, u"wrong"_s, {}, {}}, {atSample(u"a"_s), atSample(u"b"_s)});
        run.add({Finding::Level::Error, {}, u"nowhere"_s, {}, {}}, {});
    });
    const Content content;
    QCOMPARE(verdictOf(teller, content).errors, (QList<QString>{u"wrong"_s, u"nowhere"_s}));
    CheckRun run(content);
    teller.check(run);
    QCOMPARE(run.findings().size(), 3);
    QCOMPARE(run.findings().at(1).place.sample, u"b"_s);
}

void TestContentValidator::findingsStandInTheOrderOfTheTexts()
{
    const Content content;
    CheckRun run(content);
    run.beginValidator(u"First"_s);
    run.warning(u"w"_s, atSample(u"a"_s));
    run.error(u"x"_s, atSample(u"a"_s));
    run.error(u"y"_s, atSample(u"a"_s));
    run.error(u"x"_s, atSample(u"b"_s));
    run.beginValidator(u"Second"_s);
    run.error(u"x"_s, atSample(u"c"_s));
    QStringList order;
    for (const Finding &finding : run.findings())
        order.append(finding.rule + u' ' + finding.message + u' ' + finding.place.sample);
    QCOMPARE(order,
             (QStringList{u"First x a"_s, u"First x b"_s, u"First y a"_s, u"First w a"_s, u"Second x c"_s}));
}

void TestContentValidator::theTextsOfTellersAreThoseThatTheyTell()
{
    const Teller teller([](CheckRun &run) {
        run.error(u"x"_s, atSample(u"a"_s));
        run.warning(u"w"_s);
        run.error(u"x"_s, atSample(u"b"_s));
    });
    const Verdict verdict = verdictOf(teller, Content());
    QVERIFY(!verdict.isValid);
    QCOMPARE(verdict.errors, (QList<QString>{u"x"_s, u"x"_s}));
    QCOMPARE(verdict.warnings, QList<QString>{u"w"_s});
    QVERIFY(verdictOf(Teller([](CheckRun &run) { run.warning(u"w"_s); }), Content()).isValid);
}

// With a walk over all for each of them, this takes longer than the test may.
void TestContentValidator::manyFindingsTakeNoLongerThanTheirNumber()
{
    constexpr int kMany = 100000;
    const Content content;
    CheckRun run(content);
    for (int i = 0; i < kMany; ++i)
        run.error(u"wrong"_s, atSample(QString::number(i)));
    QCOMPARE(run.findings().size(), kMany);
}

void TestContentValidator::namesFindValidators_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shortName");
    for (const QString &name : Validators::names())
        QTest::newRow(qPrintable(name)) << name << name;
    QTest::newRow("class") << u"BuiltinValidator"_s << u"Builtin"_s;
    QTest::newRow("small letters") << u"workflowvalidator"_s << u"Workflow"_s;
    QTest::newRow("capitals") << u"BUILTIN"_s << u"Builtin"_s;
}

void TestContentValidator::namesFindValidators()
{
    QFETCH(QString, name);
    const auto validator = Validators::create(name);
    QVERIFY(validator);
    QTEST(Validators::nameOf(*validator), "shortName");
    QVERIFY(!Validators::create(name + u"x"_s));
}

void TestContentValidator::theDefaultSetRunsInItsOrder()
{
    ContentValidator validator;
    validator.installDefaultValidators();
    QStringList names;
    for (AbstractValidator *each : Validators::createDefaultSet()) {
        names.append(Validators::nameOf(*each));
        delete each;
    }
    QCOMPARE(validator.count(), names.size());
    QCOMPARE(names, Validators::names().first(names.size()));
    QCOMPARE(names, (QStringList{u"Workflow"_s, u"Builtin"_s, u"Ulvar2"_s, u"Files"_s, u"SamplesPattern"_s,
                                 u"MGF"_s, u"MsTraces"_s, u"ObsoleteSettings"_s, u"DeltaMasses"_s,
                                 u"Insilico"_s, u"PeptideReplicateCount"_s}));
    QVERIFY(Validators::names().contains(u"MzIdent"_s));
    QVERIFY(Validators::names().contains(u"SampleTypes"_s));
}

void TestContentValidator::aWorkflowNeedsADocument_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool>("isDocument");
    for (const char *type : {"Dravik", "Senthia", "Karvon", "Preview", "Intact", "Oligo", "Ostrale",
                             "MultiDocReport", "Trenq", "TrenqPreview"})
        QTest::newRow(type) << QString::fromLatin1(type) << true;
    for (const char *type : {"CaldrinDIA", "Database", "Samples", "Masses", "IntactOptions"})
        QTest::newRow(type) << QString::fromLatin1(type) << false;
}

void TestContentValidator::aWorkflowNeedsADocument()
{
    QFETCH(QString, type);
    QFETCH(bool, isDocument);
    const Verdict verdict = verdictOf(WorkflowValidator(), contentOfColumns({Documents::cell(type)}));
    QCOMPARE(verdict.isValid, isDocument);
    QCOMPARE(verdict.errors,
             isDocument ? QList<QString>() : QList<QString>{u"The workflow doesn't have any documents"_s});
}

void TestContentValidator::settingsAreHeldAgainstTheirRules()
{
    LogCapture log;
    const Content content = contentOfColumns(
        {cell(u"Karvon"_s, {entry(u"KarvonCentroidTopk"_s, -5), entry(u"KarvonMaxPrecursors"_s, 1)})});
    ContentValidator validator;
    QVERIFY(validator.installValidator(new BuiltinValidator));
    const Verdict verdict = verdictOf(validator, content);
    QVERIFY(!verdict.isValid);
    QCOMPARE(verdict.errors.size(), 1);
    const Finding &finding = verdict.findings.constFirst();
    QCOMPARE(finding.rule, u"Builtin/range"_s);
    QCOMPARE(finding.message, verdict.errors.constFirst());
    QCOMPARE(finding.place.property, PropertyId::KarvonCentroidTopk);
    QCOMPARE(finding.place.item, content.findAllItems(BaseItemType::Karvon).constFirst());
    QVERIFY2(finding.hint.startsWith(u"Enter a whole number from "_s), qPrintable(finding.hint));
    QVERIFY(log.texts(QtDebugMsg).contains(u"Calling builtin validator for 29 QVariant(int, -5)"_s));
}

void TestContentValidator::everyItemIsLookedAt()
{
    const QJsonObject bad = cell(u"Karvon"_s, {entry(u"KarvonCentroidTopk"_s, -5)});
    const QJsonObject good = cell(u"Karvon"_s, {entry(u"KarvonCentroidTopk"_s, 5)});
    const Verdict verdict = verdictOf(BuiltinValidator(), contentOfColumns({bad, good, bad}));
    QVERIFY(!verdict.isValid);
    QCOMPARE(verdict.errors.size(), 2);
    QVERIFY(verdictOf(BuiltinValidator(), contentOfColumns({good, good})).isValid);
}

void TestContentValidator::aDigestionRuleFailsNothingHere()
{
    const Content content =
        contentOfColumns({cell(u"Senthia"_s, {entry(u"Digestion"_s, u"no digestion at all"_s)})});
    QVERIFY(content.findProjects().constFirst()->contains(u"Digestion"_s));
    const Verdict verdict = verdictOf(BuiltinValidator(), content);
    QVERIFY(verdict.isValid);
    QVERIFY(verdict.errors.isEmpty());
}

void TestContentValidator::theOtherValidatorsRunWithoutADocument()
{
    LogCapture log;
    ContentValidator validator;
    QVERIFY(validator.installValidator(new WorkflowValidator));
    QVERIFY(validator.installValidator(new Speaker(false, {}, {u"another"_s})));
    const Verdict verdict = verdictOf(validator, contentOfColumns({Documents::cell(u"Database"_s)}));
    QCOMPARE(verdict.errors, (QList<QString>{u"The workflow doesn't have any documents"_s, u"another"_s}));
}

ORV_REGISTER_TEST(TestContentValidator)
#include "TestContentValidator.moc"
