// Paths that portable folders can't carry, or carry under a name that looks like something else.
#include "Documents.h"
#include "LogCapture.h"
#include "OrvTest.h"
#include "SampleTree.h"
#include "TableCells.h"

#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/workflow/WflwUtils.h>
#include <orv/resources/ResourceHandlerUtils.h>
#include <orv/resources/ResourceReferenceUtils.h>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;
using TableCells::cell;
using TableCells::entry;

namespace {

class DanglingRecorder : public PortableSaveObserver
{
public:
    void dangling(const QString &text) override { texts.append(text); }
    void failed(FileUtils::CopyFailure::Side side) override { sides.append(side); }

    QStringList texts;
    QList<FileUtils::CopyFailure::Side> sides;
};

QJsonObject portableDocument(const QJsonArray &settings, const QJsonArray &samples = {})
{
    const QJsonArray table{entry(u"SamplesTable"_s, QJsonObject{{u"Samples"_s, samples}})};
    return Documents::document({Documents::tab(u"Tab"_s, {u"Search"_s, u"Samples"_s},
                                               {cell(u"Karvon"_s, settings), cell(u"Samples"_s, table)})});
}

QJsonObject brackets(const QString &text)
{
    QString stored = text;
    return entry(u"KarvonGlycanText"_s,
                 QJsonObject{{u"glycans"_s, u"["_s + stored.replace(u"\\"_s, u"\\\\"_s) + u"]"_s}});
}

} // namespace

class TestPortablePaths : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void sharesAreToldInTheirOwnForm_data();
    void sharesAreToldInTheirOwnForm();
    void aPathThatIsNoUrlIsNotLeftOut();
    void namesThatLookLikeOtherFormsAreFoundAgain_data();
    void namesThatLookLikeOtherFormsAreFoundAgain();
    void relativeFilesThatAreNotCarriedAreTold();

private:
    bool savePortable(const QJsonObject &document)
    {
        Content content;
        if (content.assignFromJson(document).hasError())
            qFatal("The test's document is broken");
        return WflwUtils::saveAsPortableWorkflow(content, m_tree.at(u"out/a.wflwp"_s),
                                                 QUrl::fromLocalFile(m_tree.at({}) + u'/'), &m_error,
                                                 &m_observer);
    }

    SampleTree m_tree;
    QString m_error;
    DanglingRecorder m_observer;
};

void TestPortablePaths::sharesAreToldInTheirOwnForm_data()
{
    QTest::addColumn<QJsonObject>("setting");
    const QString share = u"\\\\srv\\share\\x.xml"_s;
    QTest::newRow("reference") << entry(u"ReportConfiguration"_s, share);
    QTest::newRow("reference with slashes") << entry(u"ReportConfiguration"_s, u"//srv/share/x.xml"_s);
    QTest::newRow("reference with a prefix")
        << entry(u"ReportConfiguration"_s, u"\\\\?\\UNC\\srv\\share\\x.xml"_s);
    QTest::newRow("glycans") << brackets(share);
}

void TestPortablePaths::sharesAreToldInTheirOwnForm()
{
    QFETCH(QJsonObject, setting);
    const LogCapture log;
    QVERIFY(!savePortable(portableDocument({setting})));
    QVERIFY2(m_error.startsWith(u"Cannot copy //srv/share/x.xml into "_s), qPrintable(m_error));
}

void TestPortablePaths::aPathThatIsNoUrlIsNotLeftOut()
{
    const LogCapture log;
    m_observer.sides.clear();
    for (const QString &text : {u"\\\\"_s, u"\\\\.\\pipe"_s}) {
        m_error.clear();
        QVERIFY2(!savePortable(portableDocument({entry(u"ReportConfiguration"_s, text)})), qPrintable(text));
        QVERIFY2(m_error.startsWith(u"URL \""_s) || m_error.startsWith(u"Cannot copy "_s),
                 qPrintable(m_error));
        QVERIFY2(m_error.contains(text), qPrintable(m_error));
    }
    QCOMPARE(m_observer.sides, QList<FileUtils::CopyFailure::Side>(2, FileUtils::CopyFailure::Side::Source));
}

void TestPortablePaths::namesThatLookLikeOtherFormsAreFoundAgain_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("file URL") << u"file:y.xml"_s;
    QTest::newRow("server") << u"talvane:y.xml"_s;
    QTest::newRow("plain") << u"y.xml"_s;
}

void TestPortablePaths::namesThatLookLikeOtherFormsAreFoundAgain()
{
    QFETCH(QString, name);
    m_tree.add(u"in/"_s + name, "text");
    QVERIFY2(savePortable(portableDocument({entry(u"ReportConfiguration"_s, u"in/"_s + name)})),
             qPrintable(m_error));
    Content reopened;
    ORV_VERIFY_OK(reopened.assignFromFile(m_tree.at(u"out/a.wflwp/a.wflw"_s)));
    const auto *const search =
        qobject_cast<KeyValueItem *>(reopened.findAllItems(BaseItemType::Karvon).constFirst());
    const ResourceReferenceSPtr reference = ResourceReferenceUtils::resolved(
        ResourceReferenceUtils::fromVariant(search->value(PropertyId::ReportConfiguration)),
        QUrl::fromLocalFile(m_tree.at(u"out/a.wflwp/"_s)));
    QVERIFY(reference);
    QCOMPARE(reference->text(), m_tree.at(u"out/a.wflwp/"_s + name));
    const Result<bool> exists = ResourceHandlerUtils::exists(reference);
    ORV_VERIFY_OK(exists);
    QVERIFY(*exists);
}

void TestPortablePaths::relativeFilesThatAreNotCarriedAreTold()
{
    m_tree.add(u"in/carried.xml"_s);
    m_observer.texts.clear();
    const QJsonArray samples{
        QJsonObject{{u"SamplePath"_s, u"runs\\a.raw"_s}, {u"Traces"_s, QJsonArray{u"runs/t.csv"_s}}},
        QJsonObject{{u"SamplePath"_s, u"/data/b.raw"_s}}, QJsonObject{{u"SamplePath"_s, u"carried.xml"_s}},
        QJsonObject{{u"SamplePath"_s, u"talvane:/lab/c.tolq"_s}}};
    QVERIFY2(savePortable(portableDocument({entry(u"ReportConfiguration"_s, u"in/carried.xml"_s)}, samples)),
             qPrintable(m_error));
    QCOMPARE(m_observer.texts, (QStringList{u"runs\\a.raw"_s, u"runs/t.csv"_s}));
}

ORV_REGISTER_TEST(TestPortablePaths)
#include "TestPortablePaths.moc"
