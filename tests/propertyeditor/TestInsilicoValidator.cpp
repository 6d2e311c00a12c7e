#include "OrvTest.h"
#include "TestFiles.h"
#include "ValidatorRun.h"

#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/validators/InsilicoValidator.h>

#include <QTemporaryDir>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;

namespace {

using P = PropertyId;
using Values = QList<std::pair<PropertyId, QJsonValue>>;

const QString kNoModifications = u"No modifications found, including fixed modifications."_s;
const QString kTrypsin = u"Trypsin @ R,K | C-term"_s;
const QJsonObject kSomething{{u"modifications"_s, u"Oxidation / 15.994915 @ M | variable"_s}};

QJsonObject mass(double value)
{
    return {{u"unit"_s, u"ppm"_s}, {u"value"_s, value}};
}

/// An item in which the digestion is on and all is well, but for \a changes.
Values enabled(const Values &changes = {})
{
    Values values{{P::EnableInSilico, u"true"_s},
                  {P::Digestion, kTrypsin},
                  {P::InSilicoFixedModification, 1},
                  {P::PeptideMassMin, mass(300)},
                  {P::PeptideMassMax, mass(9000)}};
    for (const auto &change : changes) {
        values.removeIf([&change](const auto &value) { return value.first == change.first; });
        if (!change.second.isUndefined())
            values.append(change);
    }
    return values;
}

ValidatorRun check(const Values &values, const QString &type = u"Senthia"_s, const QUrl &base = {})
{
    return runOf<InsilicoValidator>(contentOf({settings(type, values)}), base);
}

QString outOfOrder(const QString &range)
{
    return u"Peptide mass range out of order (%1), please change the values.\n"_s.arg(range);
}

} // namespace

class TestInsilicoValidator : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aCompleteDigestionIsGood();
    void fourTypesOfStepsAreChecked_data();
    void fourTypesOfStepsAreChecked();
    void theSwitchOrElseTheModeEnables_data();
    void theSwitchOrElseTheModeEnables();
    void withoutModificationsThereIsAWarning_data();
    void withoutModificationsThereIsAWarning();
    void theDigestionMustBeARule_data();
    void theDigestionMustBeARule();
    void massesMustBeInOrder_data();
    void massesMustBeInOrder();
    void whatIsOffGetsOnlyTheCheckOfMasses();
    void everyItemIsChecked();
    void thePeptidesFileIsRead_data();
    void thePeptidesFileIsRead();
    void aMissingPeptidesFileIsAnError();
    void relativeFilesCountFromTheWorkflow();
    void findingsNameTheSetting();
};

void TestInsilicoValidator::aCompleteDigestionIsGood()
{
    const ValidatorRun run = check(enabled());
    QVERIFY(run.isGood);
    QCOMPARE(run.errors, QList<QString>());
    QCOMPARE(run.warnings, QList<QString>());
}

void TestInsilicoValidator::fourTypesOfStepsAreChecked_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool>("isChecked");
    for (const char *type : {"Senthia", "Trenq", "Dravik", "Intact"})
        QTest::newRow(type) << QString::fromLatin1(type) << true;
    for (const char *type : {"Karvon", "Oligo", "TrenqPreview"})
        QTest::newRow(type) << QString::fromLatin1(type) << false;
}

void TestInsilicoValidator::fourTypesOfStepsAreChecked()
{
    QFETCH(QString, type);
    QFETCH(bool, isChecked);
    QCOMPARE(check(enabled({{P::Digestion, u"x"_s}}), type).isGood, !isChecked);
}

void TestInsilicoValidator::theSwitchOrElseTheModeEnables_data()
{
    QTest::addColumn<Values>("changes");
    QTest::addColumn<bool>("isEnabled");
    const auto none = QJsonValue(QJsonValue::Undefined);
    QTest::newRow("on") << Values{{P::EnableInSilico, u"true"_s}} << true;
    QTest::newRow("off") << Values{{P::EnableInSilico, u"false"_s}} << false;
    QTest::newRow("off, with a mode")
        << Values{{P::EnableInSilico, u"false"_s}, {P::InSilicoMode, 1}} << false;
    QTest::newRow("on, with the mode off") << Values{{P::InSilicoMode, 0}} << true;
    QTest::newRow("neither") << Values{{P::EnableInSilico, none}} << false;
    QTest::newRow("a mode") << Values{{P::EnableInSilico, none}, {P::InSilicoMode, 1}} << true;
    QTest::newRow("the mode off") << Values{{P::EnableInSilico, none}, {P::InSilicoMode, 0}} << false;
}

void TestInsilicoValidator::theSwitchOrElseTheModeEnables()
{
    QFETCH(Values, changes);
    QFETCH(bool, isEnabled);
    const ValidatorRun run = check(enabled(Values{{P::Digestion, u"none at all"_s}} + changes));
    QCOMPARE(run.isGood, !isEnabled);
    QCOMPARE(run.errors,
             isEnabled ? QList<QString>{u"Invalid digestion format: none at all."_s} : QList<QString>());
}

void TestInsilicoValidator::withoutModificationsThereIsAWarning_data()
{
    QTest::addColumn<Values>("changes");
    QTest::addColumn<bool>("hasWarning");
    const auto none = QJsonValue(QJsonValue::Undefined);
    QTest::newRow("a fixed one") << Values{{P::InSilicoFixedModification, 2}} << false;
    QTest::newRow("no fixed one") << Values{{P::InSilicoFixedModification, 0}} << true;
    QTest::newRow("the fixed one missing") << Values{{P::InSilicoFixedModification, none}} << true;
    QTest::newRow("empty objects") << Values{{P::InSilicoFixedModification, 0},
                                             {P::InSilicoModifications, QJsonObject()},
                                             {P::InSilicoGlycans, QJsonObject()}}
                                   << true;
    QTest::newRow("variable ones") << Values{{P::InSilicoFixedModification, 0},
                                             {P::InSilicoModifications, kSomething}}
                                   << false;
    QTest::newRow("glycans") << Values{{P::InSilicoFixedModification, 0},
                                       {P::InSilicoGlycans, QJsonObject{{u"glycans"_s, u"Hex(1) @ N"_s}}}}
                             << false;
}

void TestInsilicoValidator::withoutModificationsThereIsAWarning()
{
    QFETCH(Values, changes);
    QFETCH(bool, hasWarning);
    const ValidatorRun run = check(enabled(changes));
    QVERIFY(run.isGood);
    QCOMPARE(run.warnings, hasWarning ? QList<QString>{kNoModifications} : QList<QString>());
    QVERIFY(check(enabled(changes + Values{{P::EnableInSilico, u"false"_s}})).warnings.isEmpty());
}

void TestInsilicoValidator::theDigestionMustBeARule_data()
{
    QTest::addColumn<QJsonValue>("digestion");
    QTest::addColumn<QList<QString>>("errors");
    const QString syntax = u"Invalid digestion syntax."_s;
    QTest::newRow("another rule") << QJsonValue(u"Lys-N @ K | N-term"_s) << QList<QString>();
    QTest::newRow("missing") << QJsonValue(QJsonValue::Undefined)
                             << QList<QString>{syntax, u"Invalid digestion format: ."_s};
    QTest::newRow("empty") << QJsonValue(u""_s) << QList<QString>{syntax, u"Invalid digestion format: ."_s};
    QTest::newRow("no side") << QJsonValue(u"Trypsin @ R,K"_s)
                             << QList<QString>{u"Invalid digestion format: Trypsin @ R,K."_s};
}

void TestInsilicoValidator::theDigestionMustBeARule()
{
    QFETCH(QJsonValue, digestion);
    QFETCH(QList<QString>, errors);
    const ValidatorRun run = check(enabled({{P::Digestion, digestion}}));
    QCOMPARE(run.errors, errors);
    QCOMPARE(run.isGood, errors.isEmpty());
}

void TestInsilicoValidator::massesMustBeInOrder_data()
{
    QTest::addColumn<QJsonValue>("lower");
    QTest::addColumn<QJsonValue>("upper");
    QTest::addColumn<QString>("range");
    QTest::newRow("in order") << QJsonValue(mass(1)) << QJsonValue(mass(1.5)) << QString();
    QTest::newRow("equal") << QJsonValue(mass(300)) << QJsonValue(mass(300)) << u"300 to 300"_s;
    QTest::newRow("turned round") << QJsonValue(mass(9000.5)) << QJsonValue(mass(0.25))
                                  << u"9000.5 to 0.25"_s;
    QTest::newRow("large") << QJsonValue(mass(2e6)) << QJsonValue(mass(1e6)) << u"2e+06 to 1e+06"_s;
    QTest::newRow("no lower end") << QJsonValue(QJsonValue::Undefined) << QJsonValue(mass(1)) << QString();
    QTest::newRow("no upper end") << QJsonValue(mass(1)) << QJsonValue(QJsonValue::Undefined) << QString();
}

void TestInsilicoValidator::massesMustBeInOrder()
{
    QFETCH(QJsonValue, lower);
    QFETCH(QJsonValue, upper);
    QFETCH(QString, range);
    for (const QString &enable : {u"true"_s, u"false"_s}) {
        const ValidatorRun run = check(
            enabled({{P::EnableInSilico, enable}, {P::PeptideMassMin, lower}, {P::PeptideMassMax, upper}}));
        QCOMPARE(run.isGood, range.isEmpty());
        QCOMPARE(run.errors, range.isEmpty() ? QList<QString>() : QList<QString>{outOfOrder(range)});
    }
}

void TestInsilicoValidator::whatIsOffGetsOnlyTheCheckOfMasses()
{
    const ValidatorRun run = check({{P::EnableInSilico, u"false"_s},
                                    {P::Digestion, u""_s},
                                    {P::InSilicoFixedModification, 0},
                                    {P::InSilicoPeptidesFile, u"/no/such/file.csv"_s},
                                    {P::PeptideMassMin, mass(2)},
                                    {P::PeptideMassMax, mass(1)}});
    QCOMPARE(run.errors, QList<QString>{outOfOrder(u"2 to 1"_s)});
    QVERIFY(run.warnings.isEmpty());
}

void TestInsilicoValidator::everyItemIsChecked()
{
    const ValidatorRun run = runOf<InsilicoValidator>(
        contentOf({settings(u"Trenq"_s, enabled({{P::Digestion, u"a"_s}})), settings(u"Senthia"_s, enabled()),
                   settings(u"Intact"_s, enabled({{P::Digestion, u"b"_s}}))}));
    QVERIFY(!run.isGood);
    QCOMPARE(run.errors,
             (QList<QString>{u"Invalid digestion format: a."_s, u"Invalid digestion format: b."_s}));
}

void TestInsilicoValidator::thePeptidesFileIsRead_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("warning");
    QTest::newRow("good") << QByteArray("Sequence\nPEPTIDER\n") << QString() << QString();
    QTest::newRow("no peptides") << QByteArray("Sequence\n") << QString()
                                 << u"The file of in-silico peptides has no peptides."_s;
    QTest::newRow("no sequences") << QByteArray("Mass\n5\n")
                                  << u"The file of in-silico peptides can't be read.\nLine 1: "
                                     "There is no column \"Sequence\".\nThe file is %1."_s
                                  << QString();
}

void TestInsilicoValidator::thePeptidesFileIsRead()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, error);
    QFETCH(QString, warning);
    const QTemporaryDir dir;
    const QString path = dir.filePath(u"peptides.csv"_s);
    TestFiles::makeFile(path, bytes);
    const ValidatorRun run = check(enabled({{P::InSilicoPeptidesFile, path}}));
    QCOMPARE(run.isGood, error.isEmpty());
    QCOMPARE(run.errors, error.isEmpty() ? QList<QString>() : QList<QString>{error.arg(path)});
    QCOMPARE(run.warnings, warning.isEmpty() ? QList<QString>() : QList<QString>{warning});

    LogCapture log;
    QList<QString> ignored;
    (void)InsilicoValidator().validate(
        contentOf({settings(u"Senthia"_s, enabled({{P::InSilicoPeptidesFile, path}}))}), {}, &ignored,
        &ignored);
    QCOMPARE(log.warnings(), error.isEmpty()
                                 ? QStringList()
                                 : QStringList{u"Cannot read the in-silico peptides: The file of in-silico "
                                               "peptides can't be read."_s});
}

void TestInsilicoValidator::aMissingPeptidesFileIsAnError()
{
    const ValidatorRun run = check(enabled({{P::InSilicoPeptidesFile, u"/no/such/file.csv"_s}}));
    QVERIFY(!run.isGood);
    QCOMPARE(run.errors.size(), 1);
    QVERIFY2(run.errors.constFirst().contains(u"/no/such/file.csv"_s), qPrintable(run.errors.constFirst()));
    QCOMPARE(run.findings.constFirst().place.property, P::InSilicoPeptidesFile);
    QVERIFY(!run.findings.constFirst().hint.isEmpty());
    // An empty reference names no file.
    QVERIFY(check(enabled({{P::InSilicoPeptidesFile, u""_s}})).isGood);
}

void TestInsilicoValidator::relativeFilesCountFromTheWorkflow()
{
    const QTemporaryDir dir;
    TestFiles::makeFile(dir.filePath(u"a b.csv"_s), "Sequence\nPEPTIDER\n");
    const Values values = enabled({{P::InSilicoPeptidesFile, u"a b.csv"_s}});
    QVERIFY(check(values, u"Senthia"_s, QUrl::fromLocalFile(dir.path() + u'/')).isGood);
    QVERIFY(!check(values).isGood);
}

void TestInsilicoValidator::findingsNameTheSetting()
{
    const Content content = contentOf(
        {settings(u"Senthia"_s, enabled({{P::Digestion, u"x"_s}, {P::PeptideMassMin, mass(9000)}}))});
    const ValidatorRun run = runOf<InsilicoValidator>(content);
    QCOMPARE(run.findings.size(), 2);
    QCOMPARE(run.findings.at(0).place.property, P::Digestion);
    QCOMPARE(run.findings.at(1).place.property, P::PeptideMassMin);
    for (const Finding &finding : run.findings) {
        QCOMPARE(finding.rule, u"Insilico"_s);
        QCOMPARE(finding.place.item, content.findProjects().constFirst());
        QVERIFY(!finding.hint.isEmpty());
    }
}

ORV_REGISTER_TEST(TestInsilicoValidator)
#include "TestInsilicoValidator.moc"
