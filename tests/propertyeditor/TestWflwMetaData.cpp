#include "CurrentVersion.h"
#include "LogCapture.h"
#include "OrvTest.h"

#include <KProperty>
#include <KPropertySet>
#include <orv/core/AppUtils.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>

#include <limits>

using namespace orv;
using namespace Qt::StringLiterals;
using WflwState = WflwMetaData::WflwState;
using ContentMode = PropertyEditorContent::ContentMode;

class TestWflwMetaData : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aDocumentIsNewerByAnySegment_data();
    void aDocumentIsNewerByAnySegment();
    void versionsAreExact_data();
    void versionsAreExact();
    void whatIsNoVersionIsAFault_data();
    void whatIsNoVersionIsAFault();
    void theCurrentVersion();
    void theVersionLists();
    void versionsAreJudged_data();
    void versionsAreJudged();
    void theSpecialVersionLooksAtNothingElse();
    void aDeprecatedVersionIsExplained();
    void aNewerMajorVersionIsExplained();
    void aServerTakesVersionsFromAFloorOn_data();
    void aServerTakesVersionsFromAFloorOn();
    void theStampHoldsUserTimeAndVersion();
    void anEmptyUserIsTheSystemsUser();
    void stampingKeepsOtherKeys();
    void aNullPropertyGivesAFreshStamp();
    void theStampOfAPropertyKeepsOtherKeys();
    void aPropertyThatIsNoObjectGivesAFreshStamp();
    void aSetWithoutMetadataGetsThem();
    void metadataInASetAreRestamped();
    void versionsReadAsText_data();
    void versionsReadAsText();
    void textsAreReadAndWritten();
    void absentTextsReadAsEmpty();
    void theContentModeIsAnInteger();
    void theWorkflowTypeIsAText();
    void applicationTypesHaveNames();
};

void TestWflwMetaData::theCurrentVersion()
{
    QCOMPARE(WflwMetaData::currentWorkflowVersion(), QVersionNumber(5, 47, 0));
    QCOMPARE(WflwMetaData::currentWorkflowVersion().segmentCount(), 3);
}

void TestWflwMetaData::theVersionLists()
{
    QCOMPARE(WflwMetaData::specialVersions(), QList<QVersionNumber>({QVersionNumber(3)}));
    QVERIFY(WflwMetaData::unsupportedVersions().isEmpty());
    QCOMPARE(int(WflwState::UpToDate), 0);
    QCOMPARE(int(WflwState::NeedsUpgrade), 1);
    QCOMPARE(int(WflwState::NotSupported), 2);
}

namespace {

WflwState judge(const QString &version, ContentMode mode, QStringList *messages)
{
    QJsonObject metadata;
    WflwMetaData::setContentMode(&metadata, mode);
    const PropertyEditorContent content({}, metadata, {});
    return WflwMetaData::checkWorkflowVersion(QVersionNumber::fromString(version), &content, messages);
}

} // namespace

void TestWflwMetaData::versionsAreJudged_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<int>("desktop");
    QTest::addColumn<int>("server");
    const int upToDate = int(WflwState::UpToDate);
    const int needsUpgrade = int(WflwState::NeedsUpgrade);
    const int notSupported = int(WflwState::NotSupported);
    QTest::newRow("current") << currentVersionText() << upToDate << upToDate;
    QTest::newRow("two segments compare below three")
        << currentVersionCutShort() << needsUpgrade << needsUpgrade;
    QTest::newRow("newer patch") << nextPatch().toString() << upToDate << upToDate;
    QTest::newRow("newer minor") << QStringLiteral("5.99.0") << upToDate << upToDate;
    QTest::newRow("newer major") << QStringLiteral("6.0.0") << notSupported << notSupported;
    QTest::newRow("one before") << QStringLiteral("5.46.0") << needsUpgrade << needsUpgrade;
    QTest::newRow("special") << QStringLiteral("3") << needsUpgrade << needsUpgrade;
    QTest::newRow("3.0 isn't special") << QStringLiteral("3.0") << needsUpgrade << notSupported;
    QTest::newRow("3.0.0 isn't special") << QStringLiteral("3.0.0") << needsUpgrade << notSupported;
    QTest::newRow("below the server's floor") << QStringLiteral("5.9.0") << needsUpgrade << notSupported;
    QTest::newRow("the server's floor") << QStringLiteral("5.9.1") << needsUpgrade << needsUpgrade;
    QTest::newRow("absent") << QStringLiteral("0") << needsUpgrade << notSupported;
    QTest::newRow("no number") << QStringLiteral("abc") << needsUpgrade << notSupported;
}

void TestWflwMetaData::versionsAreJudged()
{
    QFETCH(QString, version);
    QFETCH(int, desktop);
    QFETCH(int, server);
    QStringList messages;
    QCOMPARE(int(judge(version, ContentMode::DesktopMode, &messages)), desktop);
    QCOMPARE(messages.size(), desktop == int(WflwState::NotSupported) ? 1 : 0);
    messages.clear();
    QCOMPARE(int(judge(version, ContentMode::TalvaneMode, &messages)), server);
    QCOMPARE(messages.size(), server == int(WflwState::NotSupported) ? 1 : 0);
}

void TestWflwMetaData::theSpecialVersionLooksAtNothingElse()
{
    QStringList messages;
    QCOMPARE(WflwMetaData::checkWorkflowVersion(QVersionNumber(3), nullptr, &messages),
             WflwState::NeedsUpgrade);
    QVERIFY(messages.isEmpty());
}

void TestWflwMetaData::aDeprecatedVersionIsExplained()
{
    QStringList messages;
    judge(QStringLiteral("5.9.0"), ContentMode::TalvaneMode, &messages);
    QCOMPARE(messages, QStringList(QStringLiteral(
                           "The version of the specified workflow (5.9.0) is deprecated and not supported")));
}

void TestWflwMetaData::aNewerMajorVersionIsExplained()
{
    QStringList messages;
    judge(QStringLiteral("6.0.0"), ContentMode::DesktopMode, &messages);
    QCOMPARE(messages, QStringList(QStringLiteral(
                           "The workflow's version is 6.0.0, but the current software supports only "
                           "workflow versions up to 5.x.x")));
}

void TestWflwMetaData::aServerTakesVersionsFromAFloorOn_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<bool>("supported");
    QTest::newRow("5.9") << QStringLiteral("5.9") << false;
    QTest::newRow("5.9.0") << QStringLiteral("5.9.0") << false;
    QTest::newRow("5.9.1") << QStringLiteral("5.9.1") << true;
    QTest::newRow("5.10") << QStringLiteral("5.10") << true;
    QTest::newRow("7.0.0") << QStringLiteral("7.0.0") << true;
}

void TestWflwMetaData::aServerTakesVersionsFromAFloorOn()
{
    QFETCH(QString, version);
    QFETCH(bool, supported);
    const QVersionNumber number = QVersionNumber::fromString(version);
    QCOMPARE(WflwMetaData::isSupportedVersion(number, ContentMode::TalvaneMode), supported);
    QVERIFY(WflwMetaData::isSupportedVersion(number, ContentMode::DesktopMode));
}

void TestWflwMetaData::theStampHoldsUserTimeAndVersion()
{
    const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
    const QJsonObject stamp = WflwMetaData::metaDataObject(QStringLiteral("ada"));
    QCOMPARE(stamp.keys(),
             QStringList({QStringLiteral("created"), QStringLiteral("user"), QStringLiteral("version")}));
    QCOMPARE(stamp.value(QStringLiteral("user")).toString(), QStringLiteral("ada"));
    QCOMPARE(stamp.value(QStringLiteral("version")).toString(), currentVersionText());
    const QDateTime created =
        QDateTime::fromString(stamp.value(QStringLiteral("created")).toString(), Qt::ISODate);
    QVERIFY(created.isValid());
    QVERIFY(created >= before && created <= QDateTime::currentDateTime());
}

void TestWflwMetaData::anEmptyUserIsTheSystemsUser()
{
    const QString user = WflwMetaData::metaDataObject({}).value(QStringLiteral("user")).toString();
    QVERIFY(!user.isEmpty());
    QCOMPARE(user, AppUtils::currentUserName());
}

void TestWflwMetaData::stampingKeepsOtherKeys()
{
    const QJsonObject stamped = WflwMetaData::stamped(
        {{QStringLiteral("version"), 1}, {QStringLiteral("colour"), QStringLiteral("red")}},
        QStringLiteral("ada"));
    QCOMPARE(stamped.value(QStringLiteral("version")).toString(), currentVersionText());
    QCOMPARE(stamped.value(QStringLiteral("user")).toString(), QStringLiteral("ada"));
    QCOMPARE(stamped.value(QStringLiteral("colour")).toString(), QStringLiteral("red"));
}

void TestWflwMetaData::aNullPropertyGivesAFreshStamp()
{
    const QByteArray text = WflwMetaData::metaDataString(KProperty());
    QVERIFY(!text.contains('\n'));
    const QJsonObject stamp = QJsonDocument::fromJson(text).object();
    QCOMPARE(stamp.keys(),
             QStringList({QStringLiteral("created"), QStringLiteral("user"), QStringLiteral("version")}));
    QCOMPARE(stamp.value(QStringLiteral("user")).toString(), AppUtils::currentUserName());
}

void TestWflwMetaData::theStampOfAPropertyKeepsOtherKeys()
{
    const KProperty property("x", QByteArray(R"({"version":"1.0.0","colour":"red"})"));
    const QJsonObject stamp = QJsonDocument::fromJson(WflwMetaData::metaDataString(property)).object();
    QCOMPARE(stamp.value(QStringLiteral("version")).toString(), currentVersionText());
    QCOMPARE(stamp.value(QStringLiteral("colour")).toString(), QStringLiteral("red"));
}

void TestWflwMetaData::aPropertyThatIsNoObjectGivesAFreshStamp()
{
    for (const QByteArray &value : {QByteArray("[1]"), QByteArray("no json"), QByteArray()}) {
        const QJsonObject stamp =
            QJsonDocument::fromJson(WflwMetaData::metaDataString(KProperty("x", value))).object();
        QCOMPARE(stamp.size(), 3);
    }
}

void TestWflwMetaData::aSetWithoutMetadataGetsThem()
{
    KPropertySet set;
    WflwMetaData::setPresetMetaData(&set);
    QVERIFY(set.contains(":metadata"));
    const KProperty &property = set.property(":metadata");
    QCOMPARE(property.type(), int(KProperty::ByteArray));
    QVERIFY(!property.isVisible());
    QCOMPARE(property.caption(), QString());
    QCOMPARE(property.description(), QString());
    QCOMPARE(set.groupNameForProperty(property), QByteArray("common"));
    QCOMPARE(
        QJsonDocument::fromJson(property.value().toByteArray()).object().value(QStringLiteral("version")),
        QJsonValue(currentVersionText()));
}

void TestWflwMetaData::metadataInASetAreRestamped()
{
    KPropertySet set;
    set.addProperty(new KProperty(":metadata", QByteArray(R"({"version":"1.0.0","colour":"red"})")), "other");
    WflwMetaData::setPresetMetaData(&set);
    QCOMPARE(set.count(), 1);
    const QJsonObject stamp =
        QJsonDocument::fromJson(set.property(":metadata").value().toByteArray()).object();
    QCOMPARE(stamp.value(QStringLiteral("version")).toString(), currentVersionText());
    QCOMPARE(stamp.value(QStringLiteral("colour")).toString(), QStringLiteral("red"));
}

void TestWflwMetaData::versionsReadAsText_data()
{
    QTest::addColumn<QJsonValue>("stored");
    QTest::addColumn<QString>("text");
    QTest::newRow("text") << QJsonValue(QStringLiteral("5.9.1")) << QStringLiteral("5.9.1");
    QTest::newRow("empty text") << QJsonValue(QString()) << QString();
    QTest::newRow("number") << QJsonValue(5) << QStringLiteral("5");
    QTest::newRow("fraction") << QJsonValue(5.5) << QStringLiteral("0");
    QTest::newRow("bool") << QJsonValue(true) << QStringLiteral("0");
    QTest::newRow("missing") << QJsonValue(QJsonValue::Undefined) << QStringLiteral("0");
}

void TestWflwMetaData::versionsReadAsText()
{
    QFETCH(QJsonValue, stored);
    QFETCH(QString, text);
    QJsonObject metadata;
    if (!stored.isUndefined())
        metadata.insert(QStringLiteral("version"), stored);
    QCOMPARE(WflwMetaData::versionFromMetaDataObject(metadata), text);
    QCOMPARE(WflwMetaData::versionNumberFromMetaDataObject(metadata), QVersionNumber::fromString(text));
}

void TestWflwMetaData::textsAreReadAndWritten()
{
    QJsonObject metadata;
    WflwMetaData::setNameInMetaDataObject(&metadata, QStringLiteral("n"));
    WflwMetaData::setDescriptionInMetaDataObject(&metadata, QStringLiteral("d"));
    WflwMetaData::setIconNameInMetaDataObject(&metadata, QStringLiteral("i"));
    QCOMPARE(metadata, QJsonObject({{QStringLiteral("name"), QStringLiteral("n")},
                                    {QStringLiteral("description"), QStringLiteral("d")},
                                    {QStringLiteral("icon"), QStringLiteral("i")}}));
    QCOMPARE(WflwMetaData::nameFromMetaDataObject(metadata), QStringLiteral("n"));
    QCOMPARE(WflwMetaData::descriptionFromMetaDataObject(metadata), QStringLiteral("d"));
    QCOMPARE(WflwMetaData::iconNameFromMetaDataObject(metadata), QStringLiteral("i"));
}

void TestWflwMetaData::absentTextsReadAsEmpty()
{
    const QJsonObject metadata{{QStringLiteral("name"), 5}};
    QCOMPARE(WflwMetaData::nameFromMetaDataObject(metadata), QString());
    QCOMPARE(WflwMetaData::descriptionFromMetaDataObject(metadata), QString());
    QCOMPARE(WflwMetaData::iconNameFromMetaDataObject(metadata), QString());
}

void TestWflwMetaData::theContentModeIsAnInteger()
{
    QJsonObject metadata;
    QCOMPARE(WflwMetaData::contentMode(metadata), ContentMode::DesktopMode);
    WflwMetaData::setContentMode(&metadata, ContentMode::TalvaneMode);
    QCOMPARE(metadata.value(QStringLiteral("contentMode")), QJsonValue(1));
    QCOMPARE(WflwMetaData::contentMode(metadata), ContentMode::TalvaneMode);
    // Numbers that this version doesn't know pass unchecked.
    metadata.insert(QStringLiteral("contentMode"), 7);
    QCOMPARE(int(WflwMetaData::contentMode(metadata)), 7);
}

void TestWflwMetaData::theWorkflowTypeIsAText()
{
    QJsonObject metadata;
    QCOMPARE(WflwMetaData::workflowType(metadata), WorkflowType::Unknown);
    WflwMetaData::setWorkflowType(WorkflowType::DigestedOligo, &metadata);
    QCOMPARE(metadata.value(QStringLiteral("workflowType")).toString(), QStringLiteral("DigestedOligo"));
    QCOMPARE(WflwMetaData::workflowType(metadata), WorkflowType::DigestedOligo);
    metadata.insert(QStringLiteral("workflowType"), 28);
    QCOMPARE(WflwMetaData::workflowType(metadata), WorkflowType::Unknown);
}

void TestWflwMetaData::applicationTypesHaveNames()
{
    QCOMPARE(workflowAppTypeToString(WorkflowAppType::Mirel), QStringLiteral("Mirel"));
    QCOMPARE(workflowAppTypeToString(WorkflowAppType::Talvane), QStringLiteral("Mirel for Talvane"));
    QCOMPARE(int(WorkflowAppType::Mirel), 0);
    QCOMPARE(int(WorkflowAppType::Talvane), 1);
}

void TestWflwMetaData::aDocumentIsNewerByAnySegment_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<bool>("isNewer");
    const QString current = WflwMetaData::currentWorkflowVersion().toString();
    QTest::newRow("current") << current << false;
    QTest::newRow("old") << u"5.0.999"_s << false;
    QTest::newRow("none") << u"0"_s << false;
    QTest::newRow("patch") << nextPatch().toString() << true;
    QTest::newRow("a fourth segment") << current + u".1"_s << true;
    QTest::newRow("minor") << u"5.99.0"_s << true;
    QTest::newRow("major") << u"6"_s << true;
}

void TestWflwMetaData::aDocumentIsNewerByAnySegment()
{
    QFETCH(QString, version);
    QFETCH(bool, isNewer);
    QCOMPARE(WflwMetaData::isNewerThanCurrent(QVersionNumber::fromString(version)), isNewer);
}

void TestWflwMetaData::versionsAreExact_data()
{
    QTest::addColumn<QJsonValue>("stored");
    QTest::addColumn<QVersionNumber>("version");
    constexpr int kLargest = std::numeric_limits<int>::max();
    QTest::newRow("text") << QJsonValue(u"5.9.1"_s) << QVersionNumber(5, 9, 1);
    QTest::newRow("two segments") << QJsonValue(u"5.47"_s) << QVersionNumber(5, 47);
    QTest::newRow("number") << QJsonValue(5) << QVersionNumber(5);
    QTest::newRow("missing") << QJsonValue(QJsonValue::Undefined) << QVersionNumber(0);
    QTest::newRow("null") << QJsonValue(QJsonValue::Null) << QVersionNumber(0);
    QTest::newRow("large major") << QJsonValue(u"99999999999.1"_s) << QVersionNumber(kLargest, 1);
    QTest::newRow("large minor") << QJsonValue(u"5.9999999999.0"_s) << QVersionNumber(5, kLargest, 0);
    QTest::newRow("large number") << QJsonValue(99999999999.0) << QVersionNumber(kLargest);
}

void TestWflwMetaData::versionsAreExact()
{
    QFETCH(QJsonValue, stored);
    QFETCH(QVersionNumber, version);
    QJsonObject metadata;
    if (!stored.isUndefined())
        metadata.insert(u"version"_s, stored);
    const Result<QVersionNumber> exact = WflwMetaData::exactVersion(metadata);
    ORV_VERIFY_OK(exact.error());
    QCOMPARE(*exact, version);
    QCOMPARE(exact->segmentCount(), version.segmentCount());
}

void TestWflwMetaData::whatIsNoVersionIsAFault_data()
{
    QTest::addColumn<QJsonValue>("stored");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const QJsonValue &stored, const QString &text) {
        QTest::newRow(name) << stored << text;
    };
    row("a letter in front", u"v5.48.0"_s, u"v5.48.0"_s);
    row("a letter behind", u"5.47.0b"_s, u"5.47.0b"_s);
    row("commas", u"5,48,0"_s, u"5,48,0"_s);
    row("blank", u"5.47.0 "_s, u"5.47.0 "_s);
    row("empty", QString(), QString());
    row("dot at the end", u"5.47."_s, u"5.47."_s);
    row("other digits", u"\u0665.1"_s, u"\u0665.1"_s);
    row("fraction", 5.48, u"5.48"_s);
    row("negative", -5, u"-5"_s);
    row("bool", true, u"true"_s);
    row("list", QJsonArray{5, 47}, u"[5,47]"_s);
}

void TestWflwMetaData::whatIsNoVersionIsAFault()
{
    QFETCH(QJsonValue, stored);
    QFETCH(QString, text);
    const Result<QVersionNumber> exact = WflwMetaData::exactVersion({{u"version"_s, stored}});
    QVERIFY(exact.hasError());
    QCOMPARE(exact.error().code(), ErrorCode::InvalidContent);
    QCOMPARE(exact.error().errorMessage(), u"The document's version \"%1\" is no version."_s.arg(text));
    QCOMPARE(exact.error().details().value(0), u"It stands as \"version\" in the text \"metadata\"."_s);
}

ORV_REGISTER_TEST(TestWflwMetaData)

#include "TestWflwMetaData.moc"
