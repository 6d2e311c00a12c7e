// Text of which a part would vanish when it is read isn't taken for a document.
#include "Documents.h"
#include "LogCapture.h"
#include "OrvTest.h"

#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>

#include <QTemporaryDir>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;

class TestFaultyText : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void anUnknownEscapeInAFileIsRefusedWithItsPlace();
    void faultyMetadataAreRefused_data();
    void faultyMetadataAreRefused();
    void faultyMetadataOfSettingsAreRefused_data();
    void faultyMetadataOfSettingsAreRefused();
    void otherMetadataAreNoFault_data();
    void otherMetadataAreNoFault();
};

namespace {

void addFaults()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("message");
    QTest::newRow("a key twice") << uR"({"name":"a","name":"b"})"_s
                                 << u"the key \"name\" stands twice in one object"_s;
    QTest::newRow("an unknown escape")
        << uR"({"icon":"D:\Data"})"_s << u"the escape \\D is none that JSON knows"_s;
}

} // namespace

void TestFaultyText::anUnknownEscapeInAFileIsRefusedWithItsPlace()
{
    const LogCapture log;
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"a.wflw"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("{\n\"tabs\": [],\n\"file\": \"D:\\Data\\run1.mzML\"}");
    file.close();
    Content content;
    const Error error = content.assignFromFile(file.fileName());
    QCOMPARE(error.code(), ErrorCode::InvalidContent);
    QCOMPARE(error.errorMessage(), u"File content is not valid: %1"_s.arg(file.fileName()));
    QCOMPARE(error.details().value(0), u"the escape \\D is none that JSON knows"_s);
    QCOMPARE(error.details().value(1), u"Line 3, column 12."_s);
    QVERIFY(error.details().value(2).contains(u"write \\\\"_s));
}

void TestFaultyText::faultyMetadataAreRefused_data()
{
    addFaults();
}

void TestFaultyText::faultyMetadataAreRefused()
{
    QFETCH(QString, text);
    QFETCH(QString, message);
    Content content;
    content.addGroup(u"Old"_s);
    const Error error = content.assignFromJson({{u"tabs"_s, QJsonArray()}, {u"metadata"_s, text}});
    QCOMPARE(error.code(), ErrorCode::InvalidContent);
    QCOMPARE(error.errorMessage(), message);
    QCOMPARE(error.details().last(), u"It stands within the text \"metadata\"."_s);
    QCOMPARE(content.groupNames(), QStringList{u"Old"_s});
}

void TestFaultyText::faultyMetadataOfSettingsAreRefused_data()
{
    addFaults();
}

void TestFaultyText::faultyMetadataOfSettingsAreRefused()
{
    QFETCH(QString, text);
    QFETCH(QString, message);
    KeyValueItem item(BaseItemType::Karvon);
    const Error error = item.assignFromJson(
        {{u"type"_s, u"Karvon"_s}, {u"properties"_s, QJsonArray()}, {u"metadata"_s, text}}, {});
    QCOMPARE(error.code(), ErrorCode::InvalidContent);
    QCOMPARE(error.errorMessage(), message);
}

void TestFaultyText::otherMetadataAreNoFault_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << QString();
    QTest::newRow("an object") << uR"({"name":"a","path":"D:\\Data"})"_s;
    QTest::newRow("no JSON") << uR"({"name":"D:\Data)"_s;
    QTest::newRow("a list") << u"[1]"_s;
}

void TestFaultyText::otherMetadataAreNoFault()
{
    QFETCH(QString, text);
    ORV_VERIFY_OK(WflwMetaData::faultInText(text));
    Content content;
    ORV_VERIFY_OK(content.assignFromJson({{u"tabs"_s, QJsonArray()}, {u"metadata"_s, text}}));
}

ORV_REGISTER_TEST(TestFaultyText)

#include "TestFaultyText.moc"
