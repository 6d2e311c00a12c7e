// Upgrades that begin while a step of another one waits for a server.
#include "LogCapture.h"
#include "OrvTest.h"
#include "SampleDocuments.h"
#include "ServerFixture.h"
#include "UpgradeDocuments.h"
#include "UpgradeRuns.h"

#include <orv/remote/RemoteHandlers.h>
#include <orv/resources/ResourceManager.h>

#include <QCoreApplication>
#include <QTimer>

using namespace orv;
using namespace Qt::StringLiterals;
using namespace SampleDocuments;
using UpgradeDocuments::cell;
using UpgradeDocuments::treeOf;
using UpgradeRuns::versionOf;
using UpgradeRuns::withoutMoment;

namespace {

const QString kSampleOnServer = u"unifi:/lab/{0b61}/Runs/inj 1"_s;

/// What is done to the other document while a step of \a helper waits.
using Work = std::function<void(WflwUpgradeHelper &helper, PropertyEditorContent *other)>;

/// A document whose upgrade asks the server, and goes on for many steps after that.
PropertyEditorContent waitingDocument()
{
    return ofSamples({sample(1, u"lot 1"_s, kSampleOnServer)}, {{u"version"_s, u"5.16.1"_s}});
}

/// One that asks nobody, and has more cells than the other.
PropertyEditorContent otherDocument()
{
    return UpgradeDocuments::document(WorkflowType::PeptideMap,
                                      {cell(u"Trenq"_s, {}), cell(u"Karvon"_s, {}), cell(u"Senthia"_s, {})},
                                      u"5.16.1"_s);
}

void upgrade(WflwUpgradeHelper &helper, PropertyEditorContent *document)
{
    ORV_VERIFY_OK(WflwUpgrader::upgradeWorkflow(versionOf(*document), document, nullptr,
                                                {.accessSampleData = false}, &helper));
}

void takeSteps(WflwUpgradeHelper &helper, PropertyEditorContent *document)
{
    ORV_VERIFY_OK(helper.upgradeV_5_17_0(document));
    ORV_VERIFY_OK(helper.upgradeV_5_20_0(document));
    ORV_VERIFY_OK(helper.upgradeV_5_38_0(document));
}

Work withAnotherHelper(void (*work)(WflwUpgradeHelper &, PropertyEditorContent *))
{
    return [work](WflwUpgradeHelper &, PropertyEditorContent *document) {
        WflwUpgradeHelper another;
        work(another, document);
    };
}

/// What \a work makes of the other document when nothing else goes on.
QJsonObject alone(const Work &work)
{
    PropertyEditorContent document = otherDocument();
    WflwUpgradeHelper helper;
    work(helper, &document);
    return withoutMoment(document);
}

/// What an upgrade makes of the document that waits, with \a meanwhile in between.
QJsonObject
waitingUpgrade(const std::function<void(WflwUpgradeHelper &helper, PropertyEditorContent *)> &meanwhile)
{
    PropertyEditorContent document = waitingDocument();
    WflwUpgradeHelper helper;
    bool isDone = false;
    QTimer::singleShot(0, QCoreApplication::instance(), [&] {
        meanwhile(helper, &document);
        isDone = true;
    });
    upgrade(helper, &document);
    if (!isDone)
        qFatal("No step has waited");
    return withoutMoment(document);
}

} // namespace

class TestUpgradesAtOnce : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void documentsDontMixWhileAStepWaits_data();
    void documentsDontMixWhileAStepWaits();
    void stepsOfTheSameDocumentGoByTheirOwnTree();

private:
    LogCapture m_log; // samples of other files aren't there
    ServerFixture m_fixture;
};

void TestUpgradesAtOnce::initTestCase()
{
    RemoteHandlers::install();
    m_fixture.server.setAnswer("/lab/api/1/items",
                               {.body = R"({"id": "0b61", "name": "inj 1", "path": "Runs"})"});
    m_fixture.server.setAnswer("/lab/api/1/items/folder",
                               {.body = R"({"name": "Runs", "path": "Company/Year/Runs"})"});
}

void TestUpgradesAtOnce::cleanupTestCase()
{
    for (int scheme = 1; scheme <= 5; ++scheme)
        ResourceManager::setHandlerFactory(ResourceReference::Scheme(scheme), {});
}

void TestUpgradesAtOnce::documentsDontMixWhileAStepWaits_data()
{
    QTest::addColumn<Work>("work");
    QTest::newRow("an upgrade") << withAnotherHelper(upgrade);
    QTest::newRow("steps") << withAnotherHelper(takeSteps);
    QTest::newRow("an upgrade by the same helper") << Work(upgrade);
    QTest::newRow("steps of the same helper") << Work(takeSteps);
}

void TestUpgradesAtOnce::documentsDontMixWhileAStepWaits()
{
    QFETCH(Work, work);
    PropertyEditorContent other = otherDocument();
    const QJsonObject waited =
        waitingUpgrade([&](WflwUpgradeHelper &helper, auto *) { work(helper, &other); });
    QCOMPARE(withoutMoment(other), alone(work));
    QCOMPARE(waited, waitingUpgrade([](auto &, auto *) {}));
}

// The step that waits goes on with the document as it was when it began.
void TestUpgradesAtOnce::stepsOfTheSameDocumentGoByTheirOwnTree()
{
    const QJsonObject waited = waitingUpgrade([](WflwUpgradeHelper &helper, PropertyEditorContent *document) {
        ORV_VERIFY_OK(helper.upgradeV_5_12_0(document));
        QCOMPARE(treeOf(*document).workflowType(), WorkflowType::Unknown);
    });
    QCOMPARE(waited, waitingUpgrade([](auto &, auto *) {}));
}

ORV_REGISTER_TEST(TestUpgradesAtOnce)
#include "TestUpgradesAtOnce.moc"
