#include "OrvTest.h"

#include <Outcome.h>

using namespace orv;
using namespace Qt::StringLiterals;
using cli::Failure;
using cli::Outcome;

class TestOutcome : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aValueIsHandedOn();
    void aValueMayBeMovedOut();
    void aFailureIsPassedOnWithAllItTells();
    void workWithoutValueTellsWhetherItWasDone();
};

namespace {

const Failure kFailure{cli::BadOutput, 7, u"The file can't be written."_s};

Outcome<QStringList> words(const QString &text)
{
    if (text.isEmpty())
        return kFailure;
    return text.split(u' ');
}

/// Passes on what fails below it.
Outcome<qsizetype> wordCount(const QString &text)
{
    const Outcome<QStringList> found = words(text);
    if (found.hasFailed())
        return found.failure();
    return found->size();
}

} // namespace

void TestOutcome::aValueIsHandedOn()
{
    const Outcome<QStringList> found = words(u"a b"_s);
    QVERIFY(!found.hasFailed());
    QCOMPARE(*found, QStringList({u"a"_s, u"b"_s}));
    QCOMPARE(*wordCount(u"a b"_s), 2);
}

void TestOutcome::aValueMayBeMovedOut()
{
    Outcome<std::unique_ptr<int>> made(std::make_unique<int>(5));
    const std::unique_ptr<int> taken = *std::move(made);
    QCOMPARE(*taken, 5);
}

void TestOutcome::aFailureIsPassedOnWithAllItTells()
{
    const Outcome<qsizetype> counted = wordCount({});
    QVERIFY(counted.hasFailed());
    QCOMPARE(counted.failure().exitCode, kFailure.exitCode);
    QCOMPARE(counted.failure().errorCode, kFailure.errorCode);
    QCOMPARE(counted.failure().message, kFailure.message);
}

void TestOutcome::workWithoutValueTellsWhetherItWasDone()
{
    const Outcome<void> done;
    QVERIFY(!done.hasFailed());
    QVERIFY(!done.failureIfAny());
    QCOMPARE(cli::errorJson(done.failureIfAny()), QJsonValue());

    const Outcome<void> refused(kFailure);
    QVERIFY(refused.hasFailed());
    QCOMPARE(cli::errorJson(refused.failureIfAny()).toObject(), cli::toJson(kFailure));
}

ORV_REGISTER_TEST(TestOutcome)

#include "TestOutcome.moc"
