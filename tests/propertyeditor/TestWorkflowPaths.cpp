#include "LogCapture.h"
#include "OrvTest.h"
#include "ProjectFixtures.h"

#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/propertyeditor/workflow/WorkflowPaths.h>
#include <orv/resources/ResourceReferenceUtils.h>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;
using ProjectFixtures::samplesCell;
using ProjectFixtures::step;

namespace {

const QUrl kLabFolder(u"file:///lab/"_s);

QStringList sampleFiles(const Content &content)
{
    QStringList files;
    for (const SamplesInput::Entry &sample : content.samplesAndTraces().samples.entries())
        files += ResourceReferenceUtils::toStringList({sample.msFile}) +
                 ResourceReferenceUtils::toStringList(sample.traces);
    return files;
}

void loadSamples(Content *content)
{
    ProjectFixtures::load(
        content, ProjectFixtures::document({samplesCell({{u"a"_s, u"runs/a.raw"_s, {u"uv.csv"_s}, {}},
                                                         {u"b"_s, u"/elsewhere/b.raw"_s, {}, {}}}),
                                            step(u"Karvon"_s)}));
}

} // namespace

class TestWorkflowPaths : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void theCopyHasAbsolutePaths();
    void theOriginalStaysAsItIs();
    void cellsOfUnknownTypesAreCopied();
    void unevenTabsHaveNoCopy();
    void onlyFilesOfSamplesAreResolved();
};

void TestWorkflowPaths::theCopyHasAbsolutePaths()
{
    Content content;
    loadSamples(&content);
    const Result<Content> copy = WorkflowPaths::absoluteCopy(content, kLabFolder);
    ORV_VERIFY_OK(copy);
    QCOMPARE(sampleFiles(*copy),
             (QStringList{u"/lab/runs/a.raw"_s, u"/lab/uv.csv"_s, u"/elsewhere/b.raw"_s}));
    QCOMPARE(copy->baseUrl(), kLabFolder);
    QVERIFY(copy->samplesTable() != content.samplesTable());
}

void TestWorkflowPaths::theOriginalStaysAsItIs()
{
    Content content;
    loadSamples(&content);
    content.setBaseUrl(QUrl(u"file:///other/"_s));
    const QByteArray before = content.toJson(PropertyConversionFlag::KeepPaths);
    const QByteArray absoluteBefore = content.toJson(PropertyConversionFlag::AbsolutePaths);
    ORV_VERIFY_OK(WorkflowPaths::absoluteCopy(content, kLabFolder));
    QCOMPARE(content.baseUrl(), QUrl(u"file:///other/"_s));
    QCOMPARE(content.toJson(PropertyConversionFlag::KeepPaths), before);
    QCOMPARE(content.toJson(PropertyConversionFlag::AbsolutePaths), absoluteBefore);
}

void TestWorkflowPaths::cellsOfUnknownTypesAreCopied()
{
    const LogCapture log;
    Content content;
    ORV_VERIFY_OK(content.assignFromJson(
        ProjectFixtures::document({QJsonObject{{u"type"_s, u"Retired"_s}, {u"properties"_s, QJsonArray()}}}),
        ValidationOption::SkipTypeValidation));
    const Result<Content> copy = WorkflowPaths::absoluteCopy(content, kLabFolder);
    ORV_VERIFY_OK(copy);
    QCOMPARE(copy->findAllItems(copy->allItems()).size(), 1);
}

void TestWorkflowPaths::unevenTabsHaveNoCopy()
{
    const QJsonObject tab = Documents::tab(u"Search"_s, {u"A"_s, u"B"_s}, {step(u"Karvon"_s)});
    Content content;
    ORV_VERIFY_OK(content.assignFromJson(Documents::document({tab}), {}));
    const Result<Content> copy = WorkflowPaths::absoluteCopy(content, kLabFolder);
    QVERIFY(copy.hasError());
    QCOMPARE(copy.error().code(), ErrorCode::MalformedStructure);
    QVERIFY(copy.error().errorMessage().contains(u"\"Search\""_s));
}

void TestWorkflowPaths::onlyFilesOfSamplesAreResolved()
{
    Content content;
    loadSamples(&content);
    WorkflowPaths::resolveSamples(&content, kLabFolder);
    QCOMPARE(sampleFiles(content), (QStringList{u"/lab/runs/a.raw"_s, u"uv.csv"_s, u"/elsewhere/b.raw"_s}));
}

ORV_REGISTER_TEST(TestWorkflowPaths)
#include "TestWorkflowPaths.moc"
