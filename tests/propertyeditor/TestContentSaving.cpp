// Saving writes all that a document holds, or tells why it doesn't.
#include "Documents.h"
#include "LogCapture.h"
#include "OrvTest.h"

#include <orv/core/FileUtils.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/IntactOptionsTableItem.h>
#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>

#include <QTemporaryDir>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;

class TestContentSaving : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aSaveThatSucceedsHasNoError();
    void aTableThatCannotBeWrittenFailsTheSave();
    void aFileThatCannotBeWrittenIsTold();
    void whatCouldNotBeLoadedIsNotSaved();
};

namespace {

QJsonObject savedDocument()
{
    return Documents::document(
        {Documents::tab(u"Options"_s, {u"Oligo"_s, u"Search"_s},
                        {Documents::cell(u"IntactOptions"_s), Documents::cell(u"Karvon"_s)})});
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

void TestContentSaving::aSaveThatSucceedsHasNoError()
{
    const QTemporaryDir folder;
    Content content;
    ORV_VERIFY_OK(content.assignFromJson(savedDocument()));
    Error error(ErrorCode::InvalidContent);
    QVERIFY(content.save(folder.filePath(u"a.wflw"_s), &error));
    QVERIFY(!error.hasError());
    QCOMPARE(bytesOf(folder.filePath(u"a.wflw"_s)), content.toJson(PropertyConversionFlag::KeepPaths));
}

void TestContentSaving::aTableThatCannotBeWrittenFailsTheSave()
{
    const LogCapture log;
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.wflw"_s);
    Content content;
    ORV_VERIFY_OK(content.assignFromJson(savedDocument()));
    QVERIFY(content.save(path));
    const QByteArray before = bytesOf(path);
    auto *table = qobject_cast<IntactOptionsTableItem *>(content.group(0)->subGroup(0)->item(0));
    RowNode root;
    root.addData(QStringList{u"Name"_s});
    root.addNewChild(VariantItems(QVariantList{QVariant::fromValue(QList<int>{1, 2})}));
    table->setRoot(root);
    Error error;
    QVERIFY(!content.save(path, &error));
    QCOMPARE(error.code(), ErrorCode::InvalidContent);
    QVERIFY(error.errorMessage().contains(u"\"IntactOptions\""_s));
    QCOMPARE(error.details().last(), u"Tab \"Options\", column \"Oligo\", row 1."_s);
    QCOMPARE(bytesOf(path), before);
    QVERIFY(!content.save(path));
    QCOMPARE(log.warnings().size(), 2);
    QVERIFY(log.warnings().first().startsWith(u"Cannot save content to the file"_s));
}

void TestContentSaving::aFileThatCannotBeWrittenIsTold()
{
    const LogCapture log;
    const QTemporaryDir folder;
    Content content;
    ORV_VERIFY_OK(content.assignFromJson(savedDocument()));
    Error error;
    QVERIFY(!content.save(folder.filePath(u"none/a.wflw"_s), &error));
    QCOMPARE(error.code(), ErrorCode::CannotOpenFile);
    QVERIFY(error.errorMessage().contains(u"none/a.wflw"_s));
    QVERIFY(error.details().size() >= 2);
}

void TestContentSaving::whatCouldNotBeLoadedIsNotSaved()
{
    const LogCapture log;
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.wflw"_s);
    Content content;
    ORV_VERIFY_OK(content.assignFromJson(savedDocument()));
    QVERIFY(content.save(path));
    const QByteArray before = bytesOf(path);
    content.setWorkflowName(QString(FileUtils::kMaxFileSize, u'a'));
    Error error;
    QVERIFY(!content.save(path, &error));
    QCOMPARE(error.code(), ErrorCode::InvalidContent);
    QVERIFY(error.errorMessage().contains(u"at most 128.00 MiB"_s));
    QCOMPARE(bytesOf(path), before);
}

ORV_REGISTER_TEST(TestContentSaving)

#include "TestContentSaving.moc"
