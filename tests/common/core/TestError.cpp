#include "LogCapture.h"
#include "OrvTest.h"

#include <orv/core/Error.h>
#include <orv/core/Result.h>

#include <memory>

using namespace orv;

class TestError : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aDefaultErrorIsASuccess();
    void noErrorCarriesNeitherMessageNorDetail();
    void codesHaveTheirNumbers();
    void severalMessagesAreJoinedByLines();
    void detailsStandBesideTheMessages();
    void copiesAreIndependent();
    void ecatchKeepsTheErrorAndRecordsTheTrail();
    void ecatchTakesThePlaceFromTheCaller();
    void ecatchOfASuccessDoesNothing();
    void theMacroReturnsFailuresOnly();
    void aResultHoldsAValueAndWarnings();
    void aResultHoldsAMoveOnlyValue();
    void aFailedResultHoldsItsError();
    void aVoidResult();
};

void TestError::aDefaultErrorIsASuccess()
{
    const Error error;
    QVERIFY(!error.hasError());
    QVERIFY(!error);
    QCOMPARE(error.code(), ErrorCode::NoError);
    QCOMPARE(error.errorMessage(), QString());
}

void TestError::noErrorCarriesNeitherMessageNorDetail()
{
    Error error(Error::NoError, QStringLiteral("ignored"));
    error.addMessage(QStringLiteral("ignored")).addDetail(QStringLiteral("ignored"));
    QVERIFY(!error.hasError());
    QVERIFY(error.errorMessages().isEmpty());
    QVERIFY(error.details().isEmpty());
}

void TestError::codesHaveTheirNumbers()
{
    QCOMPARE(int(ErrorCode::NoError), 0);
    QCOMPARE(int(ErrorCode::MalformedStructure), 1);
    QCOMPARE(int(ErrorCode::InvalidContent), 2);
    QCOMPARE(int(ErrorCode::CannotOpenFile), 4);
}

void TestError::severalMessagesAreJoinedByLines()
{
    Error error(ErrorCode::InvalidContent, QStringLiteral("first"));
    error.addMessage(QStringLiteral("second"));
    QCOMPARE(error.errorMessages(), QStringList({QStringLiteral("first"), QStringLiteral("second")}));
    QCOMPARE(error.errorMessage(), QStringLiteral("first\nsecond"));
}

void TestError::detailsStandBesideTheMessages()
{
    Error error(ErrorCode::InvalidContent, QStringLiteral("what"));
    error.addDetail(QStringLiteral("where"));
    QCOMPARE(error.errorMessage(), QStringLiteral("what"));
    QCOMPARE(error.details(), QStringList(QStringLiteral("where")));
}

void TestError::copiesAreIndependent()
{
    const Error original(ErrorCode::InvalidContent, QStringLiteral("one"));
    Error copy = original;
    copy.addMessage(QStringLiteral("two"));
    QCOMPARE(original.errorMessages().size(), 1);
    QCOMPARE(copy.errorMessages().size(), 2);
}

void TestError::ecatchKeepsTheErrorAndRecordsTheTrail()
{
    const LogCapture log;
    Error error(ErrorCode::CannotOpenFile, QStringLiteral("gone"));
    error.ecatch("inner()", "inner.cpp", 7).ecatch("outer()", "outer.cpp", 9);
    QCOMPARE(error.code(), ErrorCode::CannotOpenFile);
    QCOMPARE(error.errorMessage(), QStringLiteral("gone"));
    QCOMPARE(error.trail().size(), 2);
    QCOMPARE(error.trail().first().function, QStringLiteral("inner()"));
    QCOMPARE(error.trail().last().file, QStringLiteral("outer.cpp"));
    QCOMPARE(error.trail().last().line, 9);
    const QStringList lines = log.texts(QtInfoMsg);
    QCOMPARE(lines.size(), 2);
    QVERIFY(lines.first().contains(QStringLiteral("inner.cpp")));
    QVERIFY(lines.first().contains(QStringLiteral("gone")));
    QCOMPARE(log.lines().first().category, QStringLiteral("orv.generic"));
}

void TestError::ecatchTakesThePlaceFromTheCaller()
{
    const LogCapture log;
    Error error(ErrorCode::InvalidContent);
    error.ecatch();
    QVERIFY(error.trail().first().file.endsWith(QStringLiteral("TestError.cpp")));
    QVERIFY(error.trail().first().function.contains(QStringLiteral("ecatchTakesThePlaceFromTheCaller")));
}

void TestError::ecatchOfASuccessDoesNothing()
{
    const LogCapture log;
    Error error;
    error.ecatch();
    QVERIFY(error.trail().isEmpty());
    QVERIFY(log.lines().isEmpty());
}

namespace {

Error passOn(const Error &error, bool *reachedTheEnd)
{
    ORV_RETURN_IF_ERROR(error);
    *reachedTheEnd = true;
    return Error::NoError;
}

} // namespace

void TestError::theMacroReturnsFailuresOnly()
{
    const LogCapture log;
    bool reached = false;
    const Error failed = passOn(Error(ErrorCode::MalformedStructure), &reached);
    QVERIFY(!reached);
    QCOMPARE(failed.trail().size(), 1);
    QVERIFY(!passOn(Error(), &reached).hasError());
    QVERIFY(reached);
}

void TestError::aResultHoldsAValueAndWarnings()
{
    Result<QString> result(QStringLiteral("value"), {QStringLiteral("careful")});
    result.addWarning(QStringLiteral("again"));
    QVERIFY(!result.hasError());
    QCOMPARE(*result, QStringLiteral("value"));
    QCOMPARE(result.warnings(), Warnings({QStringLiteral("careful"), QStringLiteral("again")}));
    QVERIFY(!result.error().hasError());
}

void TestError::aResultHoldsAMoveOnlyValue()
{
    Result<std::unique_ptr<int>> result(std::make_unique<int>(42));
    QVERIFY(!result.hasError());
    const std::unique_ptr<int> value = std::move(result).value();
    QCOMPARE(*value, 42);
}

void TestError::aFailedResultHoldsItsError()
{
    const LogCapture log;
    Result<int> result(Error(ErrorCode::InvalidContent, QStringLiteral("bad")));
    QVERIFY(result.hasError());
    QVERIFY(!result);
    QCOMPARE(result.valueOr(7), 7);
    const Error passedOn = result.ecatch();
    QCOMPARE(passedOn.errorMessage(), QStringLiteral("bad"));
    QCOMPARE(passedOn.trail().size(), 1);
}

void TestError::aVoidResult()
{
    const Result<void> done;
    QVERIFY(!done.hasError());
    const Result<void> failed(Error(ErrorCode::InvalidContent, QStringLiteral("bad")));
    QVERIFY(failed.hasError());
    QCOMPARE(failed.error().errorMessage(), QStringLiteral("bad"));
}

ORV_REGISTER_TEST(TestError)

#include "TestError.moc"
