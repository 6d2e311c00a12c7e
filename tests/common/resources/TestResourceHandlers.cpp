#include "LogCapture.h"
#include "OrvTest.h"
#include "References.h"

#include <orv/resources/ResourceHandlerUtils.h>
#include <orv/resources/ResourceManager.h>

#include <QDateTime>

using namespace orv;
using namespace Qt::StringLiterals;

using Scheme = ResourceReference::Scheme;

namespace {

/// A small server of its own: it keeps one file, and fetches it by copying.
class ShelfHandler : public ResourceHandler
{
public:
    ShelfHandler(const ResourceReferenceSPtr &reference, QString folder)
        : ResourceHandler(reference)
        , m_folder(std::move(folder))
    {}

    bool isAvailableLocally() const override { return QFile::exists(fetched()); }
    Result<bool> exists() override { return QFile::exists(stored()); }
    Result<QString> grab() override
    {
        if (!isAvailableLocally() && !QFile::copy(stored(), fetched()))
            return Error(ErrorCode::CannotOpenFile, u"The shelf is empty."_s);
        return fetched();
    }

private:
    QString stored() const { return m_folder + u"/stored-"_s + reference()->name(); }
    QString fetched() const { return m_folder + u"/fetched-"_s + reference()->name(); }

    QString m_folder;
};

} // namespace

class TestResourceHandlers : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void localFilesAndFoldersExist_data();
    void localFilesAndFoldersExist();
    void relativePathsAreTakenFromTheCurrentFolder();
    void relativePathsOfAnotherSystemAreFound();
    void pathsOfAnotherSystemDoNotExist();
    void grabGivesThePathOfALocalFile();
    void grabbingWhatIsMissingFails();
    void aLocalFileTellsItsMetadata();
    void aFolderHasNoSize();
    void theHandlerOfAnEmptyReferenceIsAnError_data();
    void theHandlerOfAnEmptyReferenceIsAnError();
    void serversThatNobodyRegisteredGiveAClearError_data();
    void serversThatNobodyRegisteredGiveAClearError();
    void aRegisteredSchemeIsHandled();
    void aHandlerWithoutMetadataSaysSo();
    void theErrorOfAFactoryIsPassedOn();
    void localFilesFallBackToTheirOwnHandler();
    void whyAReferenceIsInvalidIsLogged();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestResourceHandlers::initTestCase()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    for (const QString &name : {u"a.raw"_s, u"\u00e4 \u4e2d#?%20.raw"_s}) {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write("spectra"), 7);
    }
    QVERIFY(QDir(m_folder->path()).mkdir(u"b.d"_s));
    QVERIFY(QFile::link(path(u"a.raw"_s), path(u"link.raw"_s)));
    QVERIFY(QFile::link(path(u"b.d"_s), path(u"link.d"_s)));
    QVERIFY(QFile::link(path(u"gone"_s), path(u"dangling.raw"_s)));
}

void TestResourceHandlers::cleanup()
{
    for (int scheme = 1; scheme <= 5; ++scheme)
        ResourceManager::setHandlerFactory(Scheme(scheme), {});
}

void TestResourceHandlers::localFilesAndFoldersExist_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("exists");

    QTest::newRow("file") << u"a.raw"_s << true;
    QTest::newRow("folder") << u"b.d"_s << true;
    QTest::newRow("folder with separator") << u"b.d/"_s << true;
    QTest::newRow("marks and letters") << u"\u00e4 \u4e2d#?%20.raw"_s << true;
    QTest::newRow("link to a file") << u"link.raw"_s << true;
    QTest::newRow("link to a folder") << u"link.d"_s << true;
    QTest::newRow("dangling link") << u"dangling.raw"_s << false;
    QTest::newRow("missing") << u"c.raw"_s << false;
    QTest::newRow("decoded mark") << u"\u00e4 \u4e2d#? .raw"_s << false;
    QTest::newRow("other case") << u"A.raw"_s << false;
    QTest::newRow("file as a folder") << u"a.raw/x"_s << false;
}

void TestResourceHandlers::localFilesAndFoldersExist()
{
    const LogCapture log;
    QFETCH(QString, name);
    QFETCH(bool, exists);
    const ResourceReferenceSPtr reference = referenceOf(path(name));
    const Result<bool> answer = ResourceHandlerUtils::exists(reference);
    ORV_VERIFY_OK(answer);
    QCOMPARE(*answer, exists);
    QCOMPARE(ResourceHandlerUtils::checkExists(reference), exists);
    QCOMPARE(ResourceHandlerUtils::validateReference(reference), exists);
}

void TestResourceHandlers::relativePathsAreTakenFromTheCurrentFolder()
{
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_folder->path()));
    const bool isThere = ResourceHandlerUtils::checkExists(referenceOf(u"a.raw"_s));
    const bool isAbove = ResourceHandlerUtils::checkExists(referenceOf(u"b.d/../a.raw"_s));
    const bool isMissing = ResourceHandlerUtils::checkExists(referenceOf(u"../a.raw"_s));
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(isThere && isAbove && !isMissing);
}

void TestResourceHandlers::relativePathsOfAnotherSystemAreFound()
{
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_folder->path()));
    const QString grabbed =
        ResourceManager::retrieve(referenceOf(u"b.d\\..\\a.raw"_s)).value()->grab().valueOr({});
    const bool isMissing = ResourceHandlerUtils::checkExists(referenceOf(u"b.d\\a.raw"_s));
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(QFileInfo(m_folder->filePath(grabbed)) == QFileInfo(path(u"a.raw"_s)));
    QVERIFY(!isMissing);
}

void TestResourceHandlers::pathsOfAnotherSystemDoNotExist()
{
#ifdef Q_OS_WIN
    QSKIP("these paths are of this system");
#endif
    for (const QString &text : {u"C:\\Windows"_s, u"\\\\store\\runs"_s}) {
        const Result<bool> answer = ResourceHandlerUtils::exists(referenceOf(text));
        ORV_VERIFY_OK(answer);
        QVERIFY(!*answer);
    }
}

void TestResourceHandlers::grabGivesThePathOfALocalFile()
{
    for (const QString &name : {u"a.raw"_s, u"link.raw"_s, u"b.d"_s}) {
        const Result<ResourceHandlerSPtr> handler = ResourceManager::retrieve(referenceOf(path(name)));
        ORV_VERIFY_OK(handler);
        QVERIFY((*handler)->isAvailableLocally());
        const Result<QString> grabbed = (*handler)->grab();
        ORV_VERIFY_OK(grabbed);
        QCOMPARE(*grabbed, path(name));
    }
}

void TestResourceHandlers::grabbingWhatIsMissingFails()
{
    const LogCapture log;
    const ResourceReferenceSPtr reference = referenceOf(path(u"c.raw"_s));
    const Result<ResourceHandlerSPtr> handler = ResourceManager::getHandler(reference);
    ORV_VERIFY_OK(handler);
    QVERIFY(!(*handler)->isAvailableLocally());
    const Result<QString> grabbed = (*handler)->grab();
    QVERIFY(grabbed.hasError());
    QCOMPARE(grabbed.error().code(), ErrorCode::CannotOpenFile);
    QVERIFY(grabbed.error().errorMessage().contains(reference->text()));
    QVERIFY(!grabbed.error().details().isEmpty());
    QVERIFY(ResourceManager::retrieve(reference).hasError());
    QVERIFY(ResourceManager::retrieveMetadata(reference).hasError());
}

void TestResourceHandlers::aLocalFileTellsItsMetadata()
{
    const Result<QJsonObject> metadata = ResourceManager::retrieveMetadata(referenceOf(path(u"a.raw"_s)));
    ORV_VERIFY_OK(metadata);
    QCOMPARE(metadata->value(u"name"_s).toString(), u"a.raw"_s);
    QCOMPARE(metadata->value(u"path"_s).toString(), path(u"a.raw"_s));
    QCOMPARE(metadata->value(u"size"_s).toInt(), 7);
    const QDateTime modified =
        QDateTime::fromString(metadata->value(u"modified"_s).toString(), Qt::ISODateWithMs);
    QCOMPARE(modified, QFileInfo(path(u"a.raw"_s)).lastModified());
}

void TestResourceHandlers::aFolderHasNoSize()
{
    const Result<QJsonObject> metadata = ResourceManager::retrieveMetadata(referenceOf(path(u"b.d"_s)));
    ORV_VERIFY_OK(metadata);
    QVERIFY(!metadata->contains(u"size"_s));
    QCOMPARE(metadata->value(u"name"_s).toString(), u"b.d"_s);
}

void TestResourceHandlers::theHandlerOfAnEmptyReferenceIsAnError_data()
{
    QTest::addColumn<ResourceReferenceSPtr>("reference");

    QTest::newRow("null") << ResourceReferenceSPtr();
    QTest::newRow("empty") << referenceOf(QString());
}

void TestResourceHandlers::theHandlerOfAnEmptyReferenceIsAnError()
{
    const LogCapture log;
    QFETCH(ResourceReferenceSPtr, reference);
    QCOMPARE(ResourceManager::getHandler(reference).error().code(), ErrorCode::InvalidContent);
    QVERIFY(ResourceManager::retrieve(reference).hasError());
    QVERIFY(ResourceManager::retrieveMetadata(reference).hasError());
    QVERIFY(ResourceHandlerUtils::exists(reference).hasError());
    QVERIFY(!ResourceHandlerUtils::checkExists(reference));
    QVERIFY(!ResourceHandlerUtils::validateReference(reference));
}

void TestResourceHandlers::serversThatNobodyRegisteredGiveAClearError_data()
{
    QTest::addColumn<QString>("text");

    for (const QString &text : {u"talvane:/a.tolq"_s, u"eds:/s/a.raw"_s, u"managed:/1"_s, u"unifi:/h/n"_s})
        QTest::newRow(qPrintable(text)) << text;
}

void TestResourceHandlers::serversThatNobodyRegisteredGiveAClearError()
{
    const LogCapture log;
    QFETCH(QString, text);
    const Result<ResourceHandlerSPtr> handler = ResourceManager::getHandler(referenceOf(text));
    QVERIFY(handler.hasError());
    QCOMPARE(handler.error().code(), ErrorCode::InvalidContent);
    QVERIFY(handler.error().errorMessage().contains(text));
    QVERIFY(handler.error().details().join(u' ').contains(u"not connected to the server"_s));
    QVERIFY(ResourceHandlerUtils::exists(referenceOf(text)).hasError());
    QVERIFY(!ResourceHandlerUtils::validateReference(referenceOf(text)));
}

void TestResourceHandlers::aRegisteredSchemeIsHandled()
{
    const LogCapture log;
    QVERIFY(QFile::copy(path(u"a.raw"_s), path(u"stored-a.tolq"_s)));
    const QString folder = m_folder->path();
    ResourceManager::setHandlerFactory(
        Scheme::ServerFile, [folder](const ResourceReferenceSPtr &reference) -> Result<ResourceHandlerSPtr> {
            return ResourceHandlerSPtr(new ShelfHandler(reference, folder));
        });
    const ResourceReferenceSPtr reference = referenceOf(u"talvane:/a.tolq"_s);
    QVERIFY(ResourceHandlerUtils::validateReference(reference));
    QVERIFY(!ResourceHandlerUtils::validateReference(referenceOf(u"talvane:/b.tolq"_s)));
    QVERIFY(ResourceManager::getHandler(referenceOf(u"eds:/s/a.tolq"_s)).hasError());

    const Result<ResourceHandlerSPtr> untouched = ResourceManager::getHandler(reference);
    ORV_VERIFY_OK(untouched);
    QVERIFY(!(*untouched)->isAvailableLocally());
    const Result<ResourceHandlerSPtr> fetched = ResourceManager::retrieve(reference);
    ORV_VERIFY_OK(fetched);
    QVERIFY((*fetched)->isAvailableLocally());
    QCOMPARE((*fetched)->grab().valueOr({}), path(u"fetched-a.tolq"_s));
    const Result<ResourceHandlerSPtr> missing = ResourceManager::retrieve(referenceOf(u"talvane:/b.tolq"_s));
    QCOMPARE(missing.error().errorMessage(), u"The shelf is empty."_s);

    ResourceManager::setHandlerFactory(Scheme::ServerFile, {});
    QVERIFY(ResourceManager::getHandler(reference).hasError());
}

void TestResourceHandlers::aHandlerWithoutMetadataSaysSo()
{
    const LogCapture log;
    const QString folder = m_folder->path();
    ResourceManager::setHandlerFactory(
        Scheme::ServerFile, [folder](const ResourceReferenceSPtr &reference) -> Result<ResourceHandlerSPtr> {
            return ResourceHandlerSPtr(new ShelfHandler(reference, folder));
        });
    const Result<QJsonObject> metadata = ResourceManager::retrieveMetadata(referenceOf(u"talvane:/a.tolq"_s));
    QVERIFY(metadata.hasError());
    QCOMPARE(metadata.error().errorMessage(), u"\"talvane:/a.tolq\" has no metadata."_s);
}

void TestResourceHandlers::theErrorOfAFactoryIsPassedOn()
{
    const LogCapture log;
    ResourceManager::setHandlerFactory(Scheme::UNIFI,
                                       [](const ResourceReferenceSPtr &) -> Result<ResourceHandlerSPtr> {
                                           return Error(ErrorCode::InvalidContent, u"switched off"_s);
                                       });
    QCOMPARE(ResourceHandlerUtils::exists(referenceOf(u"unifi:/h/n"_s)).error().errorMessage(),
             u"switched off"_s);
    QVERIFY(!ResourceHandlerUtils::checkExists(referenceOf(u"unifi:/h/n"_s)));
    QCOMPARE(log.warnings(), QStringList(u"switched off"_s));
}

void TestResourceHandlers::localFilesFallBackToTheirOwnHandler()
{
    const LogCapture log;
    ResourceManager::setHandlerFactory(Scheme::LocalFile,
                                       [](const ResourceReferenceSPtr &) -> Result<ResourceHandlerSPtr> {
                                           return Error(ErrorCode::InvalidContent, u"locked"_s);
                                       });
    QVERIFY(!ResourceHandlerUtils::checkExists(referenceOf(path(u"a.raw"_s))));
    ResourceManager::setHandlerFactory(Scheme::LocalFile, {});
    QVERIFY(ResourceHandlerUtils::checkExists(referenceOf(path(u"a.raw"_s))));
}

void TestResourceHandlers::whyAReferenceIsInvalidIsLogged()
{
    const LogCapture log;
    QVERIFY(!ResourceHandlerUtils::validateReference(referenceOf(path(u"c.raw"_s))));
    QVERIFY(!ResourceHandlerUtils::validateReference(referenceOf(u"unifi:/h/n"_s)));
    QCOMPARE(log.warnings().size(), 2);
    QVERIFY(log.warnings()[0].contains(path(u"c.raw"_s)));
    QVERIFY(log.warnings()[1].contains(u"unifi:/h/n"_s));
}

ORV_REGISTER_TEST(TestResourceHandlers)

#include "TestResourceHandlers.moc"
