#include "LogCapture.h"
#include "OrvTest.h"
#include "SampleTree.h"
#include "ServerFixture.h"
#include "ValidatorRun.h"

#include <orv/propertyeditor/validators/FilesValidator.h>
#include <orv/propertyeditor/validators/MirelPathsValidator.h>
#include <orv/propertyeditor/validators/SampleTypesValidator.h>
#include <orv/propertyeditor/validators/TalvanePathsValidator.h>
#include <orv/remote/RemoteHandlers.h>
#include <orv/resources/ResourceManager.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QMutex>
#include <QThread>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;
using ProjectFixtures::Sample;
using ProjectFixtures::samplesCell;
using Scheme = ResourceReference::Scheme;

namespace {

/// The files of a host, which it looks for where nobody else may.
class HostsFile : public ResourceHandler
{
public:
    using ResourceHandler::ResourceHandler;

    bool isAvailableLocally() const override { return true; }
    Result<bool> exists() override
    {
        const QMutexLocker locker(&mutex);
        threads.insert(QThread::currentThread());
        return !reference()->name().startsWith(u"lost"_s);
    }
    Result<QString> grab() override { return reference()->text(); }

    static inline QMutex mutex;
    static inline QSet<QThread *> threads;
};

SamplesInput::Entry sampleWithoutResources()
{
    SamplesInput::Entry sample;
    sample.name = u"a"_s;
    sample.traces = {ResourceReferenceSPtr()};
    sample.extraReferences = {ResourceReferenceSPtr()};
    return sample;
}

} // namespace

class TestResourcesOfHosts : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void filesOfAHostAreAskedForOnTheThreadOfTheCheck();
    void anEmptyTraceOnAServerIsInvalid();
    void anEmptyTraceOnADesktopDoesNotExist();
    void anEmptyResourceHolds();
    void anEmptyDocumentIsTold();
    void sampleTypesAreCheckedWithoutWarnings();
    void aSilentServerIsWaitedForOnceInACheck();
};

void TestResourcesOfHosts::cleanup()
{
    ResourceManager::setHandlerFactory(Scheme::LocalFile, {});
}

void TestResourcesOfHosts::filesOfAHostAreAskedForOnTheThreadOfTheCheck()
{
    QVERIFY(ResourceManager::isBuiltIn(Scheme::LocalFile));
    ResourceManager::setHandlerFactory(
        Scheme::LocalFile, [](const ResourceReferenceSPtr &reference) -> Result<ResourceHandlerSPtr> {
            return ResourceHandlerSPtr(new HostsFile(reference));
        });
    QVERIFY(!ResourceManager::isBuiltIn(Scheme::LocalFile));
    QVERIFY(!ResourceManager::isBuiltIn(Scheme::ServerFile));
    QList<Sample> samples;
    for (int i = 0; i < 200; ++i)
        samples.append({u"s%1"_s.arg(i), u"/nowhere/%1.raw"_s.arg(i), {}, {}});
    samples.append({u"lost"_s, u"/nowhere/lost.raw"_s, {}, {}});
    HostsFile::threads.clear();
    const ValidatorRun run = runOf<FilesValidator>(contentOf({samplesCell(samples)}));
    QCOMPARE(run.errors, QList<QString>{u"The sample path of the sample \"lost\" does not exist"_s});
    QCOMPARE(HostsFile::threads, QSet<QThread *>{QThread::currentThread()});
}

void TestResourcesOfHosts::anEmptyTraceOnAServerIsInvalid()
{
    const LogCapture log;
    QList<QString> errors;
    TalvanePathsValidator().validateSamplesPaths({sampleWithoutResources()}, {}, &errors);
    QCOMPARE(errors, QList<QString>{u"The traces path of the sample \"a\" is invalid"_s});
}

void TestResourcesOfHosts::anEmptyTraceOnADesktopDoesNotExist()
{
    const LogCapture log;
    QList<QString> errors;
    MirelPathsValidator().validateSamplesPaths({sampleWithoutResources()}, {}, &errors);
    QCOMPARE(
        errors,
        (QList<QString>{
            u"The traces path of the sample \"\" does not exist"_s,
            u"The traces path of the sample \"a\" should be MS file / text file / pI file / icIEF file"_s}));
}

void TestResourcesOfHosts::anEmptyResourceHolds()
{
    QList<QString> errors;
    QVERIFY(TalvanePathsValidator().validateReference({}, &errors));
    QVERIFY(MirelPathsValidator().validateReference({}, &errors));
    QCOMPARE(errors, QList<QString>());
    QVERIFY(!TalvanePathsValidator().isMsReference({}));
    QVERIFY(!MirelPathsValidator().isMsReference({}));
}

void TestResourcesOfHosts::anEmptyDocumentIsTold()
{
    const QString empty = u"The document path with id \"%1\" is empty"_s.arg(sampleWithoutResources().id);
    QList<QString> errors;
    TalvanePathsValidator().validateDocuments({sampleWithoutResources()}, &errors);
    MirelPathsValidator().validateDocuments({sampleWithoutResources()}, &errors);
    QCOMPARE(errors, (QList<QString>{empty, empty}));
}

void TestResourcesOfHosts::sampleTypesAreCheckedWithoutWarnings()
{
    QList<QString> errors;
    QVERIFY(SampleTypesValidator().validateSamples({sampleWithoutResources()}, nullptr, &errors));
    QVERIFY(SampleTypesValidator().validateSamples({}, nullptr, &errors));
    QCOMPARE(errors, QList<QString>());
}

void TestResourcesOfHosts::aSilentServerIsWaitedForOnceInACheck()
{
    const LogCapture log;
    ServerFixture fixture;
    RemoteHandlers::install();
    QList<Sample> samples;
    for (int i = 0; i < 5; ++i)
        samples.append({u"s%1"_s.arg(i), u"talvane:/lab/%1.tolq"_s.arg(i), {}, {}});
    fixture.server.setAnswer("/api/1/files/metadata", {.manner = HttpTestServer::Manner::Silent});
    Content content = contentOf({samplesCell(samples)});
    content.setTalvaneContentMode();
    QList<QString> warnings;
    QList<QString> errors;
    QVERIFY(!FilesValidator().validate(content, {}, &warnings, &errors));
    for (const Scheme scheme :
         {Scheme::ServerFile, Scheme::ExternalDataSource, Scheme::ManagedResource, Scheme::UNIFI})
        ResourceManager::setHandlerFactory(scheme, {});
    QCOMPARE(errors.size(), 5);
    QCOMPARE(fixture.server.requests().size(), 1);
}

ORV_REGISTER_TEST(TestResourcesOfHosts)
#include "TestResourcesOfHosts.moc"
