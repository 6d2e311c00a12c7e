#include "Documents.h"
#include "LogCapture.h"
#include "OrvTest.h"
#include "SampleTree.h"
#include "TableCells.h"

#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/workflow/PortableSamples.h>
#include <orv/propertyeditor/workflow/WflwUtils.h>

#include <QProcess>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;

class TestPortableSamples : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void filesComeWithTheirCompanions();
    void foldersComeWhole();
    void filesOfOneNameStayApart();
    void whatIsNamedTwiceIsCopiedOnce();
    void missingFilesAndServersStay();
    void aCopyThatFailsLeavesTheDocument();

private:
    /// Saves a workflow with these samples and carries their files.
    PortableSamples::Report carry(const QStringList &paths)
    {
        QJsonArray samples;
        for (const QString &path : paths)
            samples.append(QJsonObject{{u"SamplePath"_s, path}});
        const QJsonArray table{TableCells::entry(u"SamplesTable"_s, QJsonObject{{u"Samples"_s, samples}})};
        Content content;
        if (content.assignFromJson(Documents::document(
                {Documents::tab(u"Tab"_s, {u"Samples"_s}, {TableCells::cell(u"Samples"_s, table)})})))
            qFatal("The test's document is broken");
        const QUrl base = QUrl::fromLocalFile(m_tree.at({}) + u'/');
        QString error;
        if (!WflwUtils::saveAsPortableWorkflow(content, folder(), base, &error))
            qFatal("The test's folder can't be written");
        return PortableSamples::carry(folder(), base, nullptr);
    }

    [[nodiscard]] QString folder() const { return m_tree.at(u"out/a.wflwp"_s); }

    [[nodiscard]] QStringList namedPaths() const
    {
        QFile file(m_tree.at(u"out/a.wflwp/a.wflw"_s));
        if (!file.open(QIODevice::ReadOnly))
            return {};
        const QJsonValue tab = QJsonDocument::fromJson(file.readAll()).object()["tabs"_L1].toArray().first();
        const QJsonValue cell = tab["cells"_L1].toArray().first();
        const QJsonValue table = cell["properties"_L1].toArray().first()["value"_L1];
        QStringList paths;
        for (const QJsonValue &sample : table["Samples"_L1].toArray())
            paths.append(sample["SamplePath"_L1].toString());
        return paths;
    }

    [[nodiscard]] QByteArray carried(const QString &name) const
    {
        QFile file(folder() + u'/' + name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : "none";
    }

    SampleTree m_tree;
};

void TestPortableSamples::filesComeWithTheirCompanions()
{
    m_tree.add(u"runs/a.wiff"_s, "wiff");
    m_tree.add(u"runs/a.wiff.scan"_s, "scan");
    m_tree.add(u"runs/a.wiff2"_s, "another");
    const PortableSamples::Report report = carry({u"runs/a.wiff"_s});
    ORV_VERIFY_OK(report.error);
    QCOMPARE(report.carried, QStringList{u"runs/a.wiff"_s});
    QCOMPARE(namedPaths(), QStringList{u"samples/a.wiff"_s});
    QCOMPARE(carried(u"samples/a.wiff"_s), "wiff");
    QCOMPARE(carried(u"samples/a.wiff.scan"_s), "scan");
    QCOMPARE(carried(u"samples/a.wiff2"_s), "none");
}

void TestPortableSamples::foldersComeWhole()
{
    m_tree.add(u"runs/b.d/AcqData/MSScan.bin"_s, "scan");
    m_tree.add(u"runs/b.d/.hidden"_s, "hidden");
    QVERIFY(QFile::link(m_tree.at(u"runs"_s), m_tree.at(u"runs/b.d/loop"_s)));
    ORV_VERIFY_OK(carry({m_tree.at(u"runs/b.d"_s)}).error);
    QCOMPARE(namedPaths(), QStringList{u"samples/b.d"_s});
    QCOMPARE(carried(u"samples/b.d/AcqData/MSScan.bin"_s), "scan");
    QCOMPARE(carried(u"samples/b.d/.hidden"_s), "hidden");
    QVERIFY(!QFileInfo::exists(folder() + u"/samples/b.d/loop"_s));
}

void TestPortableSamples::filesOfOneNameStayApart()
{
    m_tree.add(u"monday/a.raw"_s, "monday");
    m_tree.add(u"tuesday/a.raw"_s, "tuesday");
    ORV_VERIFY_OK(carry({u"monday/a.raw"_s, u"tuesday/a.raw"_s}).error);
    QCOMPARE(namedPaths(), (QStringList{u"samples/a.raw"_s, u"samples (2)/a.raw"_s}));
    QCOMPARE(carried(u"samples/a.raw"_s), "monday");
    QCOMPARE(carried(u"samples (2)/a.raw"_s), "tuesday");
}

void TestPortableSamples::whatIsNamedTwiceIsCopiedOnce()
{
    m_tree.add(u"runs/a.raw"_s, "a");
    ORV_VERIFY_OK(carry({u"runs/a.raw"_s, m_tree.at(u"runs/a.raw"_s)}).error);
    QCOMPARE(namedPaths(), (QStringList{u"samples/a.raw"_s, u"samples/a.raw"_s}));
}

void TestPortableSamples::missingFilesAndServersStay()
{
    const LogCapture log;
    const PortableSamples::Report report = carry({u"runs/none.raw"_s, u"talvane:/lab/c.tolq"_s});
    ORV_VERIFY_OK(report.error);
    QCOMPARE(report.carried, QStringList{});
    QCOMPARE(report.missing, QStringList{u"runs/none.raw"_s});
    QCOMPARE(namedPaths(), (QStringList{u"runs/none.raw"_s, u"talvane:/lab/c.tolq"_s}));
}

void TestPortableSamples::aCopyThatFailsLeavesTheDocument()
{
    m_tree.add(u"runs/a.d/a.bin"_s, "a");
    // No regular file, which a copy would wait for without end.
    QCOMPARE(QProcess::execute(u"mkfifo"_s, {m_tree.at(u"runs/z.raw"_s)}), 0);
    const PortableSamples::Report report = carry({u"runs/a.d"_s, u"runs/z.raw"_s});
    QVERIFY(report.error.hasError());
    QVERIFY(report.error.errorMessage().contains(u"z.raw"_s));
    QCOMPARE(namedPaths(), (QStringList{u"runs/a.d"_s, u"runs/z.raw"_s}));
}

ORV_REGISTER_TEST(TestPortableSamples)

#include "TestPortableSamples.moc"
