#include "ContextTranslator.h"
#include "LogCapture.h"
#include "OrvTest.h"

#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertyVerification.h>
#include <orv/propertyeditor/PropertyVerificationFunctions.h>
#include <orv/resources/ResourceReference.h>

#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

using ContentMode = PropertyEditorContent::ContentMode;

constexpr auto kDouble = PropertyId(2);
constexpr auto kInt = PropertyId(7);
constexpr auto kBool = PropertyId(1);
constexpr auto kText = PropertyId(26);
constexpr auto kReference = PropertyId(60);
constexpr auto kModifications = PropertyId(67);
constexpr auto kGlycans = PropertyId(58);
constexpr auto kIsotope = PropertyId(202);

struct Verdict
{
    bool passed = false;
    QStringList errors;
    QStringList warnings;
};

Verdict verify(const VerificationFunction &rule, PropertyId id, const QVariant &value,
               ContentMode mode = ContentMode::DesktopMode)
{
    Verdict verdict;
    verdict.passed = rule(id, value, mode, &verdict.errors, &verdict.warnings);
    return verdict;
}

VerificationFunction ruleOf(const QString &keyword, const QString &parameter = {})
{
    return PropertyVerification::constructVerificationFunction(keyword, parameter);
}

QString caption(PropertyId id)
{
    return PropertiesNames::displayNameForType(id);
}

QVariant reference(const QString &text)
{
    return QVariant::fromValue(ResourceReference::fromString(text).value());
}

QByteArray bytes(const QJsonObject &object)
{
    return QJsonDocument(object).toJson();
}

} // namespace

class TestPropertyVerification : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void keywordsPassAndFail_data();
    void keywordsPassAndFail();
    void messagesNameCaptionAndParameter_data();
    void messagesNameCaptionAndParameter();
    void keywordsIgnoreCaseAndBlanks_data();
    void keywordsIgnoreCaseAndBlanks();
    void anEmptyKeywordIsNoRule();
    void anUnknownKeywordIsLoggedAndNoRule();
    void parametersTakeTheTypeOfTheProperty_data();
    void parametersTakeTheTypeOfTheProperty();
    void aTextAgainstANumberFailsEveryOrder_data();
    void aTextAgainstANumberFailsEveryOrder();
    void rangesKnowOpenAndClosedEnds_data();
    void rangesKnowOpenAndClosedEnds();
    void rangeMessagesShowTheBoundsAsWritten();
    void aRangeThatCannotBeReadIsLoggedAndNoRule_data();
    void aRangeThatCannotBeReadIsLoggedAndNoRule();
    void aValueThatCannotBeComparedFailsOnce();
    void captionsInMessagesFollowTheWorkflowInFront();
    void referenceRulesRefuseOtherTypes_data();
    void referenceRulesRefuseOtherTypes();
    void anEmptyReferencePasses_data();
    void anEmptyReferencePasses();
    void localFilesMustExist();
    void referencesToServersAreNotLocal();
    void theModeChoosesTheReferenceRule();
    void filesOnNetworkDrivesWarn();
    void customModificationsBeginOnce_data();
    void customModificationsBeginOnce();
    void glycanTextsWithoutFilesPass_data();
    void glycanTextsWithoutFilesPass();
    void glycanFilesThatBeginWithASlashPassUntested();
    void everyBadGlycanFileIsTold();
    void isotopesNeedARow_data();
    void isotopesNeedARow();
    void digestionFailsWithoutAWord_data();
    void digestionFailsWithoutAWord();
    void translatorsFindTheMessages_data();
    void translatorsFindTheMessages();
};

void TestPropertyVerification::keywordsPassAndFail_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<QString>("parameter");
    QTest::addColumn<int>("number");
    QTest::addColumn<QVariant>("good");
    QTest::addColumn<QVariant>("bad");
    const auto row = [](const char *keyword, const QString &parameter, PropertyId id, const QVariant &good,
                        const QVariant &bad) {
        QTest::addRow("%s %s", keyword, qPrintable(parameter))
            << QString::fromLatin1(keyword) << parameter << int(id) << good << bad;
    };
    for (const char *keyword : {"greater-than", ">"})
        row(keyword, u"2.5"_s, kDouble, 2.6, 2.5);
    for (const char *keyword : {"greater-or-equal-to", ">="})
        row(keyword, u"2.5"_s, kDouble, 2.5, 2.4);
    for (const char *keyword : {"less-than", "<"})
        row(keyword, u"2.5"_s, kDouble, 2.4, 2.5);
    for (const char *keyword : {"less-or-equal-to", "<="})
        row(keyword, u"2.5"_s, kDouble, 2.5, 2.6);
    for (const char *keyword : {"equal-to", "="})
        row(keyword, u"3"_s, kInt, 3, 4);
    for (const char *keyword : {"not-equal-to", "!="})
        row(keyword, u"3"_s, kInt, 4, 3);
    for (const char *keyword : {"contains", "~"})
        row(keyword, u"Ab"_s, kText, u"xAbx"_s, u"xabx"_s);
    for (const char *keyword : {"not-contains", "!~"})
        row(keyword, u"Ab"_s, kText, u"xabx"_s, u"xAbx"_s);
    row("starts-with", u"Ab"_s, kText, u"Abc"_s, u"abc"_s);
    row("ends-with", u"Bc"_s, kText, u"aBc"_s, u"abc"_s);
    row("empty", u"ignored"_s, kText, u""_s, u"x"_s);
    row("not-empty", u"ignored"_s, kText, u"x"_s, u""_s);
    row("not-empty", u""_s, kInt, 0, QVariant());
    row("list-not-empty", u"ignored"_s, PropertyId(70), QStringList(u"S"_s), QStringList());
    row("greater-than", u""_s, kDouble, 0.1, 0.0);
}

void TestPropertyVerification::keywordsPassAndFail()
{
    QFETCH(QString, keyword);
    QFETCH(QString, parameter);
    QFETCH(int, number);
    QFETCH(QVariant, good);
    QFETCH(QVariant, bad);
    const auto id = PropertyId(number);
    const VerificationFunction rule = ruleOf(keyword, parameter);
    QVERIFY(bool(rule));
    const Verdict passed = verify(rule, id, good);
    QVERIFY(passed.passed);
    QCOMPARE(passed.errors, QStringList());
    const Verdict failed = verify(rule, id, bad);
    QVERIFY(!failed.passed);
    QCOMPARE(failed.errors.size(), 1);
    QCOMPARE(failed.warnings, QStringList());
}

void TestPropertyVerification::messagesNameCaptionAndParameter_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("message");
    const auto row = [](const QString &keyword, const QString &value, const QString &message) {
        QTest::newRow(qPrintable(keyword)) << keyword << value << message;
    };
    row(u">"_s, u""_s, u"The value of \"%1\" must be greater than %2"_s);
    row(u">="_s, u""_s, u"The value of \"%1\" must be greater or equal to %2"_s);
    row(u"<"_s, u"x"_s, u"The value of \"%1\" must be less than %2"_s);
    row(u"<="_s, u"x"_s, u"The value of \"%1\" must be less or equal to %2"_s);
    row(u"="_s, u"5"_s, u"The value of \"%1\" must be equal to %2"_s);
    row(u"!="_s, u" 5 "_s, u"The value of \"%1\" must not be equal to %2"_s);
    row(u"~"_s, u"x"_s, u"The value of \"%1\" must contain \"%2\""_s);
    row(u"!~"_s, u"x 5 x"_s, u"The value of \"%1\" must not contain \"%2\""_s);
    row(u"starts-with"_s, u"5 "_s, u"The value of \"%1\" must start with \"%2\""_s);
    row(u"ends-with"_s, u" 5"_s, u"The value of \"%1\" must end with \"%2\""_s);
    row(u"empty"_s, u"x"_s, u"The value of \"%1\" must be empty"_s);
    row(u"not-empty"_s, u""_s, u"The value of \"%1\" must not be empty"_s);
    row(u"list-not-empty"_s, u""_s, u"The value of \"%1\" must not be empty"_s);
}

void TestPropertyVerification::messagesNameCaptionAndParameter()
{
    QFETCH(QString, keyword);
    QFETCH(QString, value);
    QFETCH(QString, message);
    // The parameter of a text keeps its blanks.
    const QString parameter = u" 5 "_s;
    const Verdict verdict = verify(ruleOf(keyword, parameter), kText, value);
    const QString expected =
        message.contains(u"%2"_s) ? message.arg(caption(kText), parameter) : message.arg(caption(kText));
    QVERIFY(!verdict.passed);
    QCOMPARE(verdict.errors, QStringList(expected));
}

void TestPropertyVerification::keywordsIgnoreCaseAndBlanks_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::newRow("capitals") << u"GREATER-THAN"_s;
    QTest::newRow("mixed, with blanks") << u"  Greater-Than\t"_s;
}

void TestPropertyVerification::keywordsIgnoreCaseAndBlanks()
{
    QFETCH(QString, keyword);
    const VerificationFunction rule = ruleOf(keyword, u"1"_s);
    QVERIFY(bool(rule));
    QVERIFY(verify(rule, kInt, 2).passed);
    QVERIFY(!verify(rule, kInt, 1).passed);
}

void TestPropertyVerification::anEmptyKeywordIsNoRule()
{
    QVERIFY(!ruleOf({}));
    QVERIFY(!ruleOf(u"  "_s, u"5"_s));
}

void TestPropertyVerification::anUnknownKeywordIsLoggedAndNoRule()
{
    const LogCapture log;
    QVERIFY(!ruleOf(u" Longer-Than "_s, u"5"_s));
    QCOMPARE(log.warnings(), QStringList(u"Unhandled verification function \" Longer-Than \""_s));
}

void TestPropertyVerification::parametersTakeTheTypeOfTheProperty_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("parameter");
    QTest::addColumn<QVariant>("equal");
    const auto row = [](const char *label, PropertyId id, const QString &parameter, const QVariant &equal) {
        QTest::newRow(label) << int(id) << parameter << equal;
    };
    row("bool 1", kBool, u" 1 "_s, true);
    row("bool true", kBool, u"true"_s, true);
    row("bool True", kBool, u"True"_s, false);
    row("bool yes", kBool, u"yes"_s, false);
    row("int", kInt, u" 12 "_s, 12);
    row("int that is none", kInt, u"0x10"_s, 0);
    row("double", kDouble, u" 1e3 "_s, 1000.0);
    row("double that is none", kDouble, u"1,5"_s, 0.0);
    row("text", kText, u" 12 "_s, u" 12 "_s);
}

void TestPropertyVerification::parametersTakeTheTypeOfTheProperty()
{
    QFETCH(int, number);
    QFETCH(QString, parameter);
    QFETCH(QVariant, equal);
    const Verdict verdict = verify(ruleOf(u"equal-to"_s, parameter), PropertyId(number), equal);
    QVERIFY2(verdict.passed, qPrintable(verdict.errors.join(u' ')));
}

void TestPropertyVerification::aTextAgainstANumberFailsEveryOrder_data()
{
    QTest::addColumn<QString>("keyword");
    for (const QString &keyword : {u">"_s, u">="_s, u"<"_s, u"<="_s, u"="_s})
        QTest::newRow(qPrintable(keyword)) << keyword;
}

void TestPropertyVerification::aTextAgainstANumberFailsEveryOrder()
{
    QFETCH(QString, keyword);
    QVERIFY(!verify(ruleOf(keyword, u"5"_s), kDouble, u"many"_s).passed);
    QVERIFY(verify(ruleOf(u"!="_s, u"5"_s), kDouble, u"many"_s).passed);
}

void TestPropertyVerification::rangesKnowOpenAndClosedEnds_data()
{
    QTest::addColumn<QString>("range");
    QTest::addColumn<QList<double>>("inside");
    QTest::addColumn<QList<double>>("outside");
    QTest::newRow("closed") << u"[0;10]"_s << QList{0.0, 5.0, 10.0} << QList{-0.1, 10.1};
    QTest::newRow("open above") << u"[0;10)"_s << QList{0.0, 9.9} << QList{-0.1, 10.0};
    QTest::newRow("open below") << u"(0;10]"_s << QList{0.1, 10.0} << QList{0.0, 10.1};
    QTest::newRow("open") << u" ( 0 ; 10 ) "_s << QList{0.1, 9.9} << QList{0.0, 10.0};
    QTest::newRow("negative and fractional") << u"[-2.5;-.5]"_s << QList{-2.5, -0.5} << QList{-2.6, 0.0};
}

void TestPropertyVerification::rangesKnowOpenAndClosedEnds()
{
    QFETCH(QString, range);
    QFETCH(QList<double>, inside);
    QFETCH(QList<double>, outside);
    const VerificationFunction rule = ruleOf(u"range"_s, range);
    QVERIFY(bool(rule));
    for (const double value : inside)
        QVERIFY2(verify(rule, kDouble, value).passed, qPrintable(QString::number(value)));
    for (const double value : outside)
        QVERIFY2(!verify(rule, kDouble, value).passed, qPrintable(QString::number(value)));
}

void TestPropertyVerification::rangeMessagesShowTheBoundsAsWritten()
{
    const LogCapture log;
    const VerificationFunction rule = ruleOf(u"range"_s, u" [0; 010) "_s);
    QCOMPARE(log.texts(QtDebugMsg), QStringList(u"QList(\"[0; 010)\", \"[\", \"0\", \"010\", \")\")"_s));
    const Verdict verdict = verify(rule, kInt, 10);
    QCOMPARE(verdict.errors,
             QStringList(u"The value of \"%1\" must be in range [0; 010)"_s.arg(caption(kInt))));
}

void TestPropertyVerification::aRangeThatCannotBeReadIsLoggedAndNoRule_data()
{
    QTest::addColumn<QString>("range");
    for (const QString &range :
         {u"0;10"_s, u"[0,10]"_s, u"[0;10"_s, u"x[0;10]"_s, u"[0;10]x"_s, u"[a;b]"_s, u""_s})
        QTest::newRow(qPrintable(range)) << range;
}

void TestPropertyVerification::aRangeThatCannotBeReadIsLoggedAndNoRule()
{
    QFETCH(QString, range);
    const LogCapture log;
    QVERIFY(!ruleOf(u"range"_s, range));
    QCOMPARE(log.warnings(), QStringList(u"Invalid range \"%1\""_s.arg(range)));
}

void TestPropertyVerification::aValueThatCannotBeComparedFailsOnce()
{
    const Verdict verdict = verify(ruleOf(u"range"_s, u"[0;10)"_s), kDouble, QVariant(QStringList(u"5"_s)));
    QVERIFY(!verdict.passed);
    QCOMPARE(verdict.errors.size(), 1);
}

void TestPropertyVerification::captionsInMessagesFollowTheWorkflowInFront()
{
    PropertiesNames::setWorkflowTypeProvider([] { return WorkflowType::DigestedOligo; });
    const Verdict verdict = verify(ruleOf(u"empty"_s), PropertyId(83), u"x"_s);
    PropertiesNames::setWorkflowTypeProvider(nullptr);
    QCOMPARE(verdict.errors, QStringList(u"The value of \"FDR\" must be empty"_s));
}

void TestPropertyVerification::referenceRulesRefuseOtherTypes_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::newRow("local") << u"local-url"_s;
    QTest::newRow("local or server") << u"local-or-talvane-url"_s;
}

void TestPropertyVerification::referenceRulesRefuseOtherTypes()
{
    QFETCH(QString, keyword);
    const Verdict verdict = verify(ruleOf(keyword), kText, u"/"_s);
    QVERIFY(!verdict.passed);
    QCOMPARE(verdict.errors, QStringList(u"\"%1\" is not a URL"_s.arg(caption(kText))));
}

void TestPropertyVerification::anEmptyReferencePasses_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<ContentMode>("mode");
    QTest::newRow("local") << u"local-url"_s << ContentMode::DesktopMode;
    QTest::newRow("local, for the server") << u"local-url"_s << ContentMode::TalvaneMode;
    QTest::newRow("either, desktop") << u"local-or-talvane-url"_s << ContentMode::DesktopMode;
    QTest::newRow("either, for the server") << u"local-or-talvane-url"_s << ContentMode::TalvaneMode;
}

void TestPropertyVerification::anEmptyReferencePasses()
{
    QFETCH(QString, keyword);
    QFETCH(ContentMode, mode);
    const LogCapture log;
    const Verdict verdict =
        verify(ruleOf(keyword), kReference, QVariant::fromValue(ResourceReferenceSPtr()), mode);
    QVERIFY(verdict.passed);
    QCOMPARE(verdict.errors + verdict.warnings, QStringList());
    QVERIFY(
        log.texts(QtDebugMsg)
            .contains(u"URL in property \"%1\" is empty thus considered valid"_s.arg(caption(kReference))));
}

void TestPropertyVerification::localFilesMustExist()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"settings 100% #1.txt"_s);
    const VerificationFunction rule = ruleOf(u"local-url"_s);
    const Verdict missing = verify(rule, kReference, reference(path), ContentMode::TalvaneMode);
    QVERIFY(!missing.passed);
    QCOMPARE(missing.errors, QStringList(u"\"%1\" specifies a non-existent file \"%2\""_s.arg(
                                 caption(kReference), QDir::toNativeSeparators(path))));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    const Verdict there = verify(rule, kReference, reference(path), ContentMode::TalvaneMode);
    QVERIFY(there.passed);
    QCOMPARE(there.errors + there.warnings, QStringList());
}

void TestPropertyVerification::referencesToServersAreNotLocal()
{
    const QString text = u"talvane:/studies/a.tolq"_s;
    const Verdict verdict = verify(ruleOf(u"local-url"_s), kReference, reference(text));
    QVERIFY(!verdict.passed);
    QCOMPARE(verdict.errors,
             QStringList(u"\"%1\" specifies a non-local file \"%2\""_s.arg(caption(kReference), text)));
}

void TestPropertyVerification::theModeChoosesTheReferenceRule()
{
    const LogCapture log;
    const QTemporaryDir folder;
    const QVariant missing = reference(folder.filePath(u"missing.txt"_s));
    const VerificationFunction rule = ruleOf(u"local-or-talvane-url"_s);
    QVERIFY(verify(rule, kReference, missing).errors.constFirst().contains(u"non-existent"_s));
    const Verdict server = verify(rule, kReference, missing, ContentMode::TalvaneMode);
    QVERIFY(!server.passed);
    QCOMPARE(server.errors,
             QStringList(u"\"%1\" specifies an invalid reference to a file on the Talvane server"_s.arg(
                 caption(kReference))));
    QVERIFY(verify(rule, kReference, reference(folder.path()), ContentMode::TalvaneMode).passed);
}

void TestPropertyVerification::filesOnNetworkDrivesWarn()
{
    const QString text = u"\\\\server\\share\\missing.fasta"_s;
    const Verdict verdict = verify(ruleOf(u"local-url"_s), kReference, reference(text));
    QVERIFY(!verdict.passed);
    const QString used = reference(text).value<ResourceReferenceSPtr>()->text();
    QCOMPARE(verdict.warnings,
             QStringList(u"\"%1\" specifies a file on a network drive: \"%2\". The project creation "
                         "process may work unstable"_s.arg(caption(kReference), used)));
    QCOMPARE(verdict.errors.size(), 1);
    QVERIFY(verdict.errors.constFirst().contains(u"non-existent"_s));
}

void TestPropertyVerification::customModificationsBeginOnce_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("passes");
    const QString marker = u"% Custom modification text below"_s;
    QTest::newRow("none") << u"Oxidation / 15.994915 @ M | common2"_s << true;
    QTest::newRow("empty") << QString() << true;
    QTest::newRow("one") << u"a\n"_s + marker + u"\nb"_s << true;
    QTest::newRow("two") << marker + u"\na\n"_s + marker << false;
    QTest::newRow("two in different case") << marker.toUpper() + u"\na\n"_s + marker.toLower() << false;
}

void TestPropertyVerification::customModificationsBeginOnce()
{
    QFETCH(QString, text);
    QFETCH(bool, passes);
    const Verdict verdict =
        verify(ruleOf(u"modifications"_s), kModifications, bytes({{u"modifications"_s, text}}));
    QCOMPARE(verdict.passed, passes);
    const QStringList expected(
        u"\"%1\" must not contain more than one \"% Custom modification text below\" substring"_s.arg(
            caption(kModifications)));
    QCOMPARE(verdict.errors, passes ? QStringList() : expected);
}

void TestPropertyVerification::glycanTextsWithoutFilesPass_data()
{
    QTest::addColumn<QJsonObject>("value");
    QTest::newRow("no value") << QJsonObject();
    QTest::newRow("empty text") << QJsonObject{{u"glycans"_s, u""_s}};
    QTest::newRow("compositions") << QJsonObject{{u"glycans"_s, u"HexNAc(2)Hex(5) @ NGlycan | common1"_s}};
}

void TestPropertyVerification::glycanTextsWithoutFilesPass()
{
    QFETCH(QJsonObject, value);
    for (const ContentMode mode : {ContentMode::DesktopMode, ContentMode::TalvaneMode}) {
        const Verdict verdict = verify(ruleOf(u"glycans"_s), kGlycans, bytes(value), mode);
        QVERIFY(verdict.passed);
        QCOMPARE(verdict.errors, QStringList());
    }
}

void TestPropertyVerification::glycanFilesThatBeginWithASlashPassUntested()
{
    const QByteArray value =
        bytes({{u"data"_s, QJsonObject{{u"glycans"_s, u"[/nowhere/a.txt] @ NGlycan"_s}}}});
    for (const ContentMode mode : {ContentMode::DesktopMode, ContentMode::TalvaneMode}) {
        const Verdict verdict = verify(ruleOf(u"glycans"_s), kGlycans, value, mode);
        QVERIFY(verdict.passed);
        QCOMPARE(verdict.errors, QStringList());
    }
}

void TestPropertyVerification::everyBadGlycanFileIsTold()
{
    const QString glycans = u"[file:C:/a.txt] @ NGlycan\n[file:D:/b.txt] @ OGlycan\n[/c.txt]"_s;
    const QByteArray value = bytes({{u"glycans"_s, glycans}});
    const auto told = [](const QString &file) {
        return u"\"%1\" specifies a non-existent file \"%2\""_s.arg(caption(kGlycans),
                                                                    QDir::toNativeSeparators(file));
    };
    const Verdict desktop = verify(ruleOf(u"glycans"_s), kGlycans, value);
    QVERIFY(!desktop.passed);
    QCOMPARE(desktop.errors, QStringList({told(u"C:/a.txt"_s), told(u"D:/b.txt"_s)}));

    // A file that isn't there is told once, wherever it would have to come from.
    const Verdict missing = verify(ruleOf(u"glycans"_s), kGlycans, value, ContentMode::TalvaneMode);
    QCOMPARE(missing.errors, desktop.errors);

    // What isn't local can't be looked for, but it doesn't come with the application either.
    const QByteArray remote = bytes({{u"glycans"_s, u"[https://example.org/a.txt]"_s}});
    QVERIFY(verify(ruleOf(u"glycans"_s), kGlycans, remote).passed);
    const Verdict server = verify(ruleOf(u"glycans"_s), kGlycans, remote, ContentMode::TalvaneMode);
    QVERIFY(!server.passed);
    QCOMPARE(server.errors,
             QStringList(u"\"%1\" specifies a file that does not come from the application bundle \"\""_s.arg(
                 caption(kGlycans))));
}

void TestPropertyVerification::isotopesNeedARow_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("passes");
    QTest::newRow("default") << PropertiesNames::defaultValueForType(kIsotope) << true;
    QTest::newRow("nothing") << QVariant() << false;
    QTest::newRow("empty object") << QVariant(QByteArray("{}")) << false;
    QTest::newRow("columns alone") << QVariant(QByteArray(R"({"data":["Name"],"children":[]})")) << false;
    QTest::newRow("no table") << QVariant(QByteArray(R"({"isotope":1})")) << false;
}

void TestPropertyVerification::isotopesNeedARow()
{
    QFETCH(QVariant, value);
    QFETCH(bool, passes);
    const LogCapture log;
    const Verdict verdict = verify(ruleOf(u"isotope"_s), kIsotope, value);
    QCOMPARE(verdict.passed, passes);
    const QStringList expected(u"\"%1\" must specify at least one isotope"_s.arg(caption(kIsotope)));
    QCOMPARE(verdict.errors, passes ? QStringList() : expected);
}

void TestPropertyVerification::digestionFailsWithoutAWord_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("passes");
    QTest::newRow("trypsin") << u"Trypsin @ R,K | C-term"_s << true;
    QTest::newRow("no side") << u"Trypsin @ R,K"_s << false;
    QTest::newRow("empty") << QString() << false;
}

void TestPropertyVerification::digestionFailsWithoutAWord()
{
    QFETCH(QString, text);
    QFETCH(bool, passes);
    const Verdict verdict = verify(ruleOf(u"digestion_valid"_s), PropertyId(130), text);
    QCOMPARE(verdict.passed, passes);
    QCOMPARE(verdict.errors + verdict.warnings, QStringList());
}

void TestPropertyVerification::translatorsFindTheMessages_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<QString>("parameter");
    QTest::addColumn<int>("number");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *keyword, const QString &parameter, PropertyId id, const QVariant &value,
                        const QString &message) {
        QTest::newRow(keyword) << QString::fromLatin1(keyword) << parameter << int(id) << value << message;
    };
    row("range", u"[0;1]"_s, kInt, 2, u"PropertyVerification|The value of \"%1\" must be in range [0;1]"_s);
    row(">", u"2"_s, kInt, 2, u"PropertyVerification|The value of \"%1\" must be greater than 2"_s);
    row("empty", {}, kText, u"x"_s, u"PropertyVerification|The value of \"%1\" must be empty"_s);
    row("local-url", {}, kText, {}, u"PropertyVerificationBuiltin|\"%1\" is not a URL"_s);
    row("isotope", {}, kIsotope, {},
        u"PropertyVerificationBuiltin|\"%1\" must specify at least one isotope"_s);
}

void TestPropertyVerification::translatorsFindTheMessages()
{
    QFETCH(QString, keyword);
    QFETCH(QString, parameter);
    QFETCH(int, number);
    QFETCH(QVariant, value);
    QFETCH(QString, message);
    const auto id = PropertyId(number);
    const ContextTranslator translator;
    const Verdict verdict = verify(ruleOf(keyword, parameter), id, value);
    QCOMPARE(verdict.errors, QStringList(message.arg(caption(id))));
}

ORV_REGISTER_TEST(TestPropertyVerification)
#include "TestPropertyVerification.moc"
