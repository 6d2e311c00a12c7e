// Copies of documents: the same when written, and apart from then on.
#include "Documents.h"
#include "LogCapture.h"
#include "OrvTest.h"

#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/workflow/WorkflowPaths.h>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;

class TestContentCopies : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void copiesAreWrittenAsTheOriginal_data();
    void copiesAreWrittenAsTheOriginal();
    void absoluteCopiesHoldAbsolutePaths_data();
    void absoluteCopiesHoldAbsolutePaths();
    void changesStayApart_data();
    void changesStayApart();
    void unevenTabsAreNotCopied();
    void typesAndNamesOfColumnsAreKept();
};

namespace {

/// As a save writes it, or as typed by hand.
QJsonObject searchWithLayout(const QString &width)
{
    const auto entry = [](const QString &name, const QString &value) {
        return QJsonObject{{u"name"_s, name}, {u"priority"_s, 1}, {u"value"_s, value}};
    };
    return {{u"type"_s, u"Karvon"_s},
            {u"name"_s, u"Search"_s},
            {u"metadata"_s, u"{\"version\":\"5.46.0\"}"_s},
            {u"properties"_s,
             QJsonArray{entry(u"KarvonCentroidWidthVal"_s, width), entry(u"KarvonLayout"_s, u"a/b.ini"_s)}}};
}

QJsonObject samplesOf(const QString &path)
{
    const QJsonArray samples{QJsonObject{{u"SampleName"_s, u"one"_s}, {u"SamplePath"_s, path}}};
    const QJsonObject table{{u"name"_s, u"SamplesTable"_s},
                            {u"value"_s, QJsonObject{{u"Samples"_s, samples}}}};
    return {{u"type"_s, u"Samples"_s}, {u"name"_s, u"Samples"_s}, {u"properties"_s, QJsonArray{table}}};
}

QJsonObject wholeDocument(const QString &width)
{
    QJsonObject document = Documents::document(
        {Documents::tab(u"Samples"_s, {u"Samples"_s}, {samplesOf(u"data/one.mzML"_s)}),
         Documents::tab(u"Steps"_s, {u"Search"_s, u"Masses"_s},
                        {searchWithLayout(width), Documents::cell(u"Masses"_s, u"Masses"_s)})});
    document.insert(u"metadata"_s, u"{\"name\":\"Study\",\"version\":\"5.47.0\"}"_s);
    return document;
}

void addForms()
{
    QTest::addColumn<QJsonObject>("document");
    QTest::newRow("as a save writes it") << wholeDocument(u"0.01"_s);
    QTest::newRow("typed by hand") << wholeDocument(u"0.010"_s);
    QJsonObject unknown = searchWithLayout(u"0.01"_s);
    unknown.insert(u"type"_s, u"Novelty"_s);
    QTest::newRow("unknown type") << Documents::document({Documents::tab(u"T"_s, {u"A"_s}, {unknown})});
}

void loadForCopies(Content *content, const QJsonObject &document)
{
    const LogCapture log; // of unknown types
    if (content->assignFromJson(document, ValidationOption::SkipTypeValidation))
        qFatal("The test's document is broken");
}

QJsonObject substance(const Content &content, PropertyConversionFlag flag)
{
    QJsonObject json = content.toJsonObject(flag);
    const QJsonValue metadata = json.value(u"metadata"_s);
    json = PropertyEditorJsonUtils::withoutStamps(json);
    json.insert(u"metadata"_s, metadata);
    return json;
}

Content copyOf(const Content &content)
{
    const LogCapture log;
    return content.detachedCopy().value();
}

} // namespace

void TestContentCopies::copiesAreWrittenAsTheOriginal_data()
{
    addForms();
}

void TestContentCopies::copiesAreWrittenAsTheOriginal()
{
    QFETCH(QJsonObject, document);
    Content content;
    loadForCopies(&content, document);
    const QJsonObject before = substance(content, PropertyConversionFlag::KeepPaths);
    QVERIFY(!before.value(u"tabs"_s).toArray().isEmpty());
    const Content copy = copyOf(content);
    QCOMPARE(substance(copy, PropertyConversionFlag::KeepPaths), before);
    QCOMPARE(substance(content, PropertyConversionFlag::KeepPaths), before);
    QCOMPARE(copy.metadata(), content.metadata());
}

void TestContentCopies::absoluteCopiesHoldAbsolutePaths_data()
{
    QTest::addColumn<QString>("width");
    QTest::newRow("as a save writes it") << u"0.01"_s;
    QTest::newRow("typed by hand") << u"0.010"_s;
}

void TestContentCopies::absoluteCopiesHoldAbsolutePaths()
{
    QFETCH(QString, width);
    Content content;
    loadForCopies(&content, wholeDocument(width));
    const QJsonObject before = substance(content, PropertyConversionFlag::KeepPaths);
    const Result<Content> copy = WorkflowPaths::absoluteCopy(content, QUrl::fromLocalFile(u"/lab/study/"_s));
    ORV_VERIFY_OK(copy);
    const QByteArray text = QJsonDocument(substance(*copy, PropertyConversionFlag::KeepPaths)).toJson();
    QVERIFY(text.contains("\"/lab/study/a/b.ini\""));
    QVERIFY(text.contains("\"/lab/study/data/one.mzML\""));
    QCOMPARE(substance(content, PropertyConversionFlag::KeepPaths), before);
    QVERIFY(content.baseUrl().isEmpty());
}

void TestContentCopies::changesStayApart_data()
{
    addForms();
}

void TestContentCopies::changesStayApart()
{
    QFETCH(QJsonObject, document);
    Content content;
    loadForCopies(&content, document);
    const QJsonObject before = substance(content, PropertyConversionFlag::KeepPaths);
    Content copy = copyOf(content);
    auto *const settings = qobject_cast<KeyValueItem *>(copy.group(copy.count() - 1)->subGroup(0)->item(0));
    QVERIFY(settings->setValue(u"KarvonCentroidWidthVal"_s, 0.5));
    settings->setBaseUrl(QUrl(u"file:///elsewhere/"_s));
    QVERIFY(substance(copy, PropertyConversionFlag::KeepPaths) != before);
    QCOMPARE(substance(content, PropertyConversionFlag::KeepPaths), before);
    const Content second = copyOf(content);
    auto *const original =
        qobject_cast<KeyValueItem *>(content.group(content.count() - 1)->subGroup(0)->item(0));
    QVERIFY(original->remove(u"KarvonLayout"_s));
    QCOMPARE(substance(second, PropertyConversionFlag::KeepPaths), before);
}

void TestContentCopies::unevenTabsAreNotCopied()
{
    Content content;
    loadForCopies(&content, Documents::document({Documents::tab(u"Uneven"_s, {u"A"_s, u"B"_s},
                                                                {searchWithLayout(u"0.01"_s)})}));
    const Result<Content> copy = content.detachedCopy();
    QVERIFY(copy.hasError());
    QCOMPARE(copy.error().code(), ErrorCode::MalformedStructure);
    QVERIFY(copy.error().details().join(u' ').contains(u"Uneven"_s));
}

void TestContentCopies::typesAndNamesOfColumnsAreKept()
{
    Content content;
    loadForCopies(&content, wholeDocument(u"0.01"_s));
    const Content copy = copyOf(content);
    QCOMPARE(copy.groupNames(), QStringList({u"Samples"_s, u"Steps"_s}));
    QCOMPARE(copy.group(1)->subGroupNames(), QStringList({u"Search"_s, u"Masses"_s}));
    QCOMPARE(copy.group(1)->subGroup(0)->type(), BaseItemType::Karvon);
    QCOMPARE(copy.group(1)->subGroup(1)->type(), BaseItemType::Masses);
    QCOMPARE(copy.group(1)->subGroup(0)->item(0)->name(), u"Search"_s);
    QVERIFY(copy.baseUrl().isEmpty());
}

ORV_REGISTER_TEST(TestContentCopies)
#include "TestContentCopies.moc"
