#include "WidgetTest.h"
#include "WindowFixture.h"

#include <orv/propertyeditor/content/Content.h>

using namespace orv;
using namespace WindowFixture;
using namespace Qt::StringLiterals;

namespace {

QJsonObject emptyTable()
{
    return {{u"data"_s, QJsonArray()}, {u"children"_s, QJsonArray()}};
}

QJsonObject sampleProteinsCell()
{
    return settingsCell(
        "SamplesProteins",
        {setting("SamplesProteins", QJsonObject{{u"header"_s, emptyTable()}, {u"table"_s, emptyTable()}})});
}

QJsonObject proteinsCell()
{
    return settingsCell("Proteins", {setting("Proteins", emptyTable())});
}

QByteArray csv()
{
    return "Sample,File,Protein,Sequence\none,/data/one.mzML,mAb,EVQLVESGGGLVQPGGSLR\n";
}

} // namespace

class SampleProteinsImportTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void missingFilesAreTold();
    void missingTablesAreTold();
    void importsReachTheDocument();
    void valueFormsAreImportedInto();
    void unreadableFilesChangeNothing();
};

void SampleProteinsImportTest::missingFilesAreTold()
{
    PropertyEditor::Content content;
    for (const QString &path : {QString(), u"/no/such.csv"_s}) {
        const Error error = PropertyEditorWindow::importSampleProteins(path, &content);
        QCOMPARE(error.code(), ErrorCode::InvalidContent);
        QCOMPARE(error.errorMessage(), u"Sample protein csv file does not exist."_s);
    }
}

void SampleProteinsImportTest::missingTablesAreTold()
{
    const QTemporaryDir folder;
    PropertyEditor::Content content;
    QVERIFY(!content.assignFromJson(documentOf({karvonCell()})).hasError());
    const Error error = PropertyEditorWindow::importSampleProteins(write(folder, "a.csv", csv()), &content);
    QCOMPARE(error.code(), ErrorCode::InvalidContent);
    QCOMPARE(error.errorMessage(), u"Provided workflow doesn't contain Sample Proteins tab"_s);
}

void SampleProteinsImportTest::importsReachTheDocument()
{
    const QTemporaryDir folder;
    PropertyEditor::Content content;
    QVERIFY(!content
                 .assignFromJson(
                     documentOf({Documents::cell(u"Samples"_s), proteinsCell(), sampleProteinsCell()}))
                 .hasError());
    const Error error = PropertyEditorWindow::importSampleProteins(write(folder, "a.csv", csv()), &content);
    QVERIFY2(!error.hasError(), qPrintable(error.errorMessage() + error.details().join(u' ')));
    const QByteArray json = content.toJson(PropertyEditor::PropertyConversionFlag::KeepPaths);
    QVERIFY(json.contains("EVQLVESGGGLVQPGGSLR"));
    QCOMPARE(content.sampleNames().size(), 1);
}

void SampleProteinsImportTest::valueFormsAreImportedInto()
{
    const QTemporaryDir folder;
    PropertyEditorContent content(documentOf({Documents::cell(u"Samples"_s), sampleProteinsCell()}));
    const Error error = PropertyEditorWindow::importSampleProteins(write(folder, "a.csv", csv()), &content);
    QVERIFY2(!error.hasError(), qPrintable(error.errorMessage()));
    QVERIFY(content.toJson().contains("/data/one.mzML"));
    const PropertyEditorContent before = content;
    QVERIFY(PropertyEditorWindow::importSampleProteins(u"/no/such.csv"_s, &content).hasError());
    QCOMPARE(content.document(), before.document());
}

void SampleProteinsImportTest::unreadableFilesChangeNothing()
{
    const QTemporaryDir folder;
    PropertyEditorContent content(documentOf({Documents::cell(u"Samples"_s), sampleProteinsCell()}));
    const QJsonObject before = content.document();
    const QString path = write(folder, "a.csv", QByteArray("A,A\n1,2\n"));
    QVERIFY(PropertyEditorWindow::importSampleProteins(path, &content).hasError());
    QCOMPARE(content.document(), before);
}

WIDGET_REGISTER_TEST(SampleProteinsImportTest)
#include "SampleProteinsImportTest.moc"
