#include "OrvTest.h"
#include "SampleTree.h"
#include "ValidatorRun.h"

#include <orv/core/Settings.h>
#include <orv/propertyeditor/validators/FilesValidator.h>
#include <orv/propertyeditor/validators/TalvanePathsValidator.h>
#include <orv/resources/ExternalDataSources.h>
#include <orv/resources/ResourceManager.h>
#include <orv/resources/ResourceReferenceUtils.h>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;
using ProjectFixtures::Sample;
using ProjectFixtures::samplesCell;
using ProjectFixtures::step;
using Scheme = ResourceReference::Scheme;

namespace {

/// A server that has everything but what is called lost, and what it is about to lose only once.
class Shelf : public ResourceHandler
{
public:
    using ResourceHandler::ResourceHandler;

    bool isAvailableLocally() const override { return false; }
    Result<bool> exists() override
    {
        const QString name = reference()->name();
        if (name.startsWith(u"down"_s))
            return Error(ErrorCode::CannotOpenFile, u"The server is down"_s);
        if (name.startsWith(u"vanishing"_s))
            return vanishing.exchange(false);
        return !name.startsWith(u"lost"_s);
    }
    Result<QString> grab() override { return Error(ErrorCode::CannotOpenFile, u"Not here"_s); }

    static inline std::atomic<bool> vanishing = true;
};

ValidatorRun serverRun(const QJsonArray &cells)
{
    Content content = contentOf(cells);
    content.setTalvaneContentMode();
    return runOf<FilesValidator>(content);
}

QList<QString> errorsOfFile(const QString &file)
{
    return serverRun({samplesCell({{u"a"_s, file, {}, {}}})}).errors;
}

} // namespace

class TestServerPaths : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void filesAreJudgedByTheirScheme_data();
    void filesAreJudgedByTheirScheme();
    void externalSourcesThatAreMountedAreJudgedByTheirPath_data();
    void externalSourcesThatAreMountedAreJudgedByTheirPath();
    void anEmptySampleIsTold();
    void tracesAreJudgedByTheirScheme_data();
    void tracesAreJudgedByTheirScheme();
    void companionsAreAskedFor();
    void msReferencesAreKnownByScheme();
    void documentsAreJudgedByTheirScheme_data();
    void documentsAreJudgedByTheirScheme();

private:
    SampleTree m_tree;
};

void TestServerPaths::initTestCase()
{
    m_tree.addAll({u"a.raw"_s, u"a.txt"_s, u"t.csv"_s, u"d.senthia"_s});
    for (Scheme scheme :
         {Scheme::ServerFile, Scheme::ExternalDataSource, Scheme::ManagedResource, Scheme::UNIFI}) {
        ResourceManager::setHandlerFactory(
            scheme, [](const ResourceReferenceSPtr &reference) -> Result<ResourceHandlerSPtr> {
                return ResourceHandlerSPtr(new Shelf(reference));
            });
    }
}

void TestServerPaths::cleanupTestCase()
{
    for (Scheme scheme :
         {Scheme::ServerFile, Scheme::ExternalDataSource, Scheme::ManagedResource, Scheme::UNIFI})
        ResourceManager::setHandlerFactory(scheme, {});
}

void TestServerPaths::filesAreJudgedByTheirScheme_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("error");
    const QString unifi = u"unifi:/server.lab/{2f5d7d5e-2b8e-4b0b-9a55-0d4b3e9f1a11}/folder/item"_s;
    const QString invalid = u"The sample path of the sample \"a\" is invalid"_s;
    const QString notTolq = u"The sample path of the sample \"a\" should be tolq or reference project file"_s;
    const QString notMs = u"The sample path of the sample \"a\" should be MS file or project file"_s;
    const QString gone = u"The sample path of the sample \"a\" should be an existing resource."_s;
    QTest::newRow("acquired") << u"talvane:/lab/a.tolq"_s << QString();
    QTest::newRow("project on the server") << u"talvane:/lab/a.dravik"_s << QString();
    QTest::newRow("raw on the server") << u"talvane:/lab/a.raw"_s << notTolq;
    QTest::newRow("lost on the server") << u"talvane:/lab/lost.raw"_s << invalid;
    QTest::newRow("server down") << u"talvane:/lab/down.tolq"_s << invalid;
    QTest::newRow("external source that isn't known here") << u"eds:/other/lab/a.raw"_s << notMs;
    QTest::newRow("local") << m_tree.at(u"a.raw"_s) << QString();
    QTest::newRow("local of another type") << m_tree.at(u"a.txt"_s) << notMs;
    QTest::newRow("missing") << u"/nowhere/a.raw"_s << invalid;
    QTest::newRow("managed") << u"managed:/12/anything"_s << QString();
    QTest::newRow("lost meanwhile") << u"managed:/12/vanishing"_s << gone;
    QTest::newRow("another scheme") << unifi << u"The source path of the sample \"a\" is unknown"_s;
}

void TestServerPaths::filesAreJudgedByTheirScheme()
{
    QFETCH(QString, file);
    QFETCH(QString, error);
    const LogCapture log;
    Content content = contentOf({samplesCell({{u"a"_s, file, {}, {}}})});
    content.setTalvaneContentMode();
    Shelf::vanishing = true;
    QList<QString> warnings;
    QList<QString> errors;
    QCOMPARE(FilesValidator().validate(content, {}, &warnings, &errors), error.isEmpty());
    QCOMPARE(errors, error.isEmpty() ? QList<QString>() : QList<QString>{error});
}

void TestServerPaths::externalSourcesThatAreMountedAreJudgedByTheirPath_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("isGood");
    QTest::newRow("MS file") << u"eds:/archive/lab/a.raw"_s << true;
    QTest::newRow("project") << u"eds:/archive/lab/a.intact"_s << true;
    QTest::newRow("other") << u"eds:/archive/lab/a.txt"_s << false;
}

void TestServerPaths::externalSourcesThatAreMountedAreJudgedByTheirPath()
{
    QFETCH(QString, file);
    QFETCH(bool, isGood);
    const as::ScopedOverride mounted(ExternalDataSources::settingsKey(u"archive"_s), u"/mnt/archive"_s);
    const QString notMs = u"The sample path of the sample \"a\" should be MS file or project file"_s;
    QCOMPARE(errorsOfFile(file), isGood ? QList<QString>() : QList<QString>{notMs});
    TalvanePathsValidator paths;
    QCOMPARE(paths.isMsReference(ResourceReferenceUtils::fromString(file)), file.endsWith(u".raw"_s));
}

void TestServerPaths::anEmptySampleIsTold()
{
    QCOMPARE(errorsOfFile({}),
             QList<QString>{u"The sample path and traces path of the sample \"a\" are empty"_s});
}

void TestServerPaths::tracesAreJudgedByTheirScheme_data()
{
    QTest::addColumn<QString>("trace");
    QTest::addColumn<QStringList>("errors");
    const QString wrong =
        u"The traces path of the sample \"a\" should be %1 file / text file / pI file / icIEF file"_s;
    QTest::newRow("acquired") << u"talvane:/lab/a.tolq"_s << QStringList();
    QTest::newRow("table") << u"talvane:/lab/t.csv"_s << QStringList();
    QTest::newRow("raw on the server") << u"talvane:/lab/t.raw"_s << QStringList{wrong.arg(u"tolq"_s)};
    QTest::newRow("local") << m_tree.at(u"a.raw"_s) << QStringList();
    QTest::newRow("local of another type") << m_tree.at(u"d.senthia"_s) << QStringList{wrong.arg(u"MS"_s)};
    QTest::newRow("lost table") << u"talvane:/lab/lost.csv"_s
                                << QStringList{u"The traces path of the sample \"a\" is invalid"_s};
    QTest::newRow("managed") << u"managed:/12/t.csv"_s
                             << QStringList{
                                    u"The source of the traces path of the sample \"a\" is unknown"_s};
    QTest::newRow("lost of another scheme")
        << u"managed:/12/lost.csv"_s
        << QStringList{u"The traces path of the sample \"a\" is invalid"_s,
                       u"The source of the traces path of the sample \"a\" is unknown"_s};
}

void TestServerPaths::tracesAreJudgedByTheirScheme()
{
    QFETCH(QString, trace);
    QFETCH(QStringList, errors);
    QCOMPARE(serverRun({samplesCell({{u"a"_s, u""_s, {trace}, {}}})}).errors, errors);
}

void TestServerPaths::companionsAreAskedFor()
{
    const ValidatorRun run =
        serverRun({samplesCell({{u"a"_s,
                                 u"talvane:/lab/a.tolq"_s,
                                 {},
                                 {u"talvane:/lab/r.karvrslt"_s, u"talvane:/lab/lost.karvrslt"_s}}})});
    QCOMPARE(run.errors.size(), 1);
    QVERIFY(run.errors.constFirst().endsWith(u" is not valid talvane reference"_s));
    QVERIFY(run.errors.constFirst().contains(u"lost.karvrslt"_s));
    QCOMPARE(run.findings.constFirst().place.sample, u"a"_s);
}

void TestServerPaths::msReferencesAreKnownByScheme()
{
    TalvanePathsValidator paths;
    const auto isMs = [&paths](const QString &text) {
        return paths.isMsReference(ResourceReferenceUtils::fromString(text));
    };
    QVERIFY(isMs(u"talvane:/lab/a.tolq"_s));
    QVERIFY(!isMs(u"talvane:/lab/a.raw"_s));
    QVERIFY(isMs(u"/data/a.raw"_s));
    QVERIFY(!isMs(u"/data/a.txt"_s));
    QVERIFY(!isMs(u"eds:/other/lab/a.raw"_s));
    QVERIFY(!isMs(u"managed:/12/a.raw"_s));
    QVERIFY(!isMs(QString()));
}

void TestServerPaths::documentsAreJudgedByTheirScheme_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("error");
    QTest::newRow("on the server") << u"talvane:/lab/a.senthia"_s << QString();
    QTest::newRow("local") << m_tree.at(u"d.senthia"_s) << QString();
    QTest::newRow("lost and of another type") << u"talvane:/lab/lost.raw"_s << u"valid talvane reference"_s;
    QTest::newRow("managed") << u"managed:/12/a.senthia"_s
                             << u"The source path of the document with id \"1\" is unknown"_s;
    QTest::newRow("another type") << u"talvane:/lab/a.raw"_s << u"is not a correct document type"_s;
    QTest::newRow("none") << QString() << u"The document path with id \"1\" is empty"_s;
}

void TestServerPaths::documentsAreJudgedByTheirScheme()
{
    QFETCH(QString, file);
    QFETCH(QString, error);
    const QList<QString> errors =
        serverRun({samplesCell({{u"a"_s, file, {}, {}}}), step(u"MultiDocReport"_s)}).errors;
    QCOMPARE(errors.size(), error.isEmpty() ? 0 : 1);
    QVERIFY2(error.isEmpty() || errors.constFirst().contains(error), qPrintable(errors.join(u'\n')));
}

ORV_REGISTER_TEST(TestServerPaths)
#include "TestServerPaths.moc"
