// Documents of every age, see tools/make_upgrade_fixtures.py. With ORV_UPDATE_GOLDEN set, what the steps make
// of them is written beside them instead of compared.
#include "OrvTest.h"
#include "TestData.h"
#include "TestFiles.h"
#include "UpgradeRuns.h"

#include <orv/core/LossObserver.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/KeyValueItem.h>

#include <QDir>
#include <QFileInfo>

using namespace orv;
using namespace UpgradeRuns;
using namespace Qt::StringLiterals;
using PropertyEditor::Content;
using PropertyEditor::KeyValueItem;
using PropertyEditor::ValidationOption;

namespace {

PropertyEditorContent fixture(const QString &name)
{
    return PropertyEditorContent(TestData::read(TestData::path(u"upgrade/%1.wflw"_s.arg(name))));
}

QString stepOf(const QString &fixtureName)
{
    return fixtureName.section(u'_', 0, 0);
}

/// Steps that open the samples' files have tests of their own.
bool runsAlone(const QString &fixtureName)
{
    static const QSet<QString> others{u"5.10.1"_s, u"5.39.0"_s};
    return !others.contains(stepOf(fixtureName));
}

void addFixtures(bool (*isWanted)(const QString &fixtureName) = nullptr)
{
    QTest::addColumn<QString>("name");
    const QDir folder(TestData::path(u"upgrade"_s));
    for (const QFileInfo &file : folder.entryInfoList({u"*.wflw"_s}, QDir::Files, QDir::Name)) {
        const QString name = file.completeBaseName();
        if (!isWanted || isWanted(name))
            QTest::newRow(qPrintable(name)) << name;
    }
}

bool isUpdating()
{
    return qEnvironmentVariableIsSet("ORV_UPDATE_GOLDEN");
}

/// The settings of all cells, as "type of the cell/name".
QSet<QString> settingsIn(const PropertyEditorContent &document)
{
    Content content;
    if (content.assignFromJson(QJsonDocument::fromJson(document.toJson()).object(),
                               ValidationOption::SkipTypeValidation))
        qFatal("The document can't be loaded");
    QSet<QString> settings;
    for (const auto *item : content.findAllItems(content.allItems())) {
        if (const auto *cell = qobject_cast<const KeyValueItem *>(item)) {
            for (const QString &key : cell->keys())
                settings.insert(u"%1/%2"_s.arg(item->typeString(), key));
        }
    }
    return settings;
}

/// What steps take away, by the cells in which they do.
bool isTakenAway(const QString &setting, const QString &fixtureName)
{
    static const QSet<QString> always{
        u"Senthia/CreateXicCache"_s, u"Trenq/CreateXicCache"_s,
        u"Dravik/CreateXicCache"_s,  u"CaldrinDIA/CaldrinUseFdrCutoff"_s,
        u"Senthia/EnableInSilico"_s, u"Karvon/KarvonEnablePromoteScoreNglycan"_s};
    static const QSet<QString> inOligoSearches{
        u"Karvon/DatabaseAddContaminants"_s, u"Karvon/DatabaseAddDecoys"_s,
        u"Karvon/KarvonGlycanText"_s,        u"Karvon/KarvonMachineType"_s,
        u"Karvon/KarvonRalmixMinScore"_s,    u"Senthia/PeptideMissedCleavages"_s};
    static const QSet<QString> inTargetedMaps{u"Senthia/PeptideMissedCleavages"_s};
    if (always.contains(setting))
        return true;
    const PropertyEditorContent document = fixture(fixtureName);
    const WorkflowType type = WflwMetaData::workflowType(document.metadata());
    return (type == WorkflowType::DigestedOligo && inOligoSearches.contains(setting)) ||
           (type == WorkflowType::TargetedPeptideMap && inTargetedMaps.contains(setting));
}

} // namespace

class TestUpgradeFixtures : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyStepHasFixtures();
    void resultsAreAsBefore_data() { addFixtures(); }
    void resultsAreAsBefore();
    void gatesHold_data() { addFixtures(&runsAlone); }
    void gatesHold();
    void sharedTreesChangeNothing_data() { addFixtures(); }
    void sharedTreesChangeNothing();
    void nothingIsLost_data() { addFixtures(); }
    void nothingIsLost();
    void resultsAreValidAndFinal_data() { addFixtures(); }
    void resultsAreValidAndFinal();
};

void TestUpgradeFixtures::everyStepHasFixtures()
{
    const QStringList files = QDir(TestData::path(u"upgrade"_s)).entryList({u"*.wflw"_s});
    const QList<WflwUpgradeStep> steps = WflwUpgrader::steps();
    QCOMPARE(steps.constLast().version, WflwMetaData::currentWorkflowVersion());
    for (const WflwUpgradeStep &step : steps) {
        const QString prefix = step.version.toString() + u'_';
        QVERIFY2(std::ranges::any_of(files, [&](const QString &file) { return file.startsWith(prefix); }),
                 qPrintable(prefix));
    }
}

void TestUpgradeFixtures::resultsAreAsBefore()
{
    QFETCH(QString, name);
    const PropertyEditorContent document = fixture(name);
    PropertyEditorContent afterStep(document);
    if (runsAlone(name))
        ORV_VERIFY_OK(runStep(stepOf(name), &afterStep));
    PropertyEditorContent afterChain(document);
    ORV_VERIFY_OK(runChain(&afterChain));
    const QJsonObject result{{u"step"_s, withoutMoment(afterStep)}, {u"chain"_s, withoutMoment(afterChain)}};
    const QByteArray text = QJsonDocument(result).toJson();
    const QString golden = TestData::path(u"upgrade/%1.golden.json"_s.arg(name));
    if (isUpdating())
        TestFiles::makeFile(golden, text);
    const QByteArray expected = TestData::read(golden);
    if (text != expected) {
        const QList<QByteArray> is = text.split('\n');
        const QList<QByteArray> was = expected.split('\n');
        for (qsizetype i = 0; i < qMin(is.size(), was.size()); ++i)
            QCOMPARE(is.at(i), was.at(i));
    }
    QCOMPARE(text.size(), expected.size());
}

void TestUpgradeFixtures::gatesHold()
{
    QFETCH(QString, name);
    const PropertyEditorContent document = fixture(name);
    PropertyEditorContent after(document);
    ORV_VERIFY_OK(runStep(stepOf(name), &after));
    const bool isUntouched = after.tabsAndContent().constData() == document.tabsAndContent().constData() &&
                             after.metadata() == document.metadata();
    QCOMPARE(isUntouched, !name.contains(u"_applies"_s));
}

void TestUpgradeFixtures::sharedTreesChangeNothing()
{
    QFETCH(QString, name);
    PropertyEditorContent together = fixture(name);
    PropertyEditorContent apart = fixture(name);
    ORV_VERIFY_OK(runChain(&together));
    ORV_VERIFY_OK(runApart(&apart));
    QCOMPARE(QJsonDocument(withoutMoment(together)).toJson(), QJsonDocument(withoutMoment(apart)).toJson());
}

void TestUpgradeFixtures::nothingIsLost()
{
    QFETCH(QString, name);
    PropertyEditorContent document = fixture(name);
    const QSet<QString> before = settingsIn(document);
    ORV_VERIFY_OK(runChain(&document));
    for (const QString &setting : before - settingsIn(document))
        QVERIFY2(isTakenAway(setting, name), qPrintable(setting));
}

void TestUpgradeFixtures::resultsAreValidAndFinal()
{
    QFETCH(QString, name);
    PropertyEditorContent document = fixture(name);
    ORV_VERIFY_OK(runChain(&document));
    QCOMPARE(versionOf(document), WflwMetaData::currentWorkflowVersion());

    Content content;
    LossCollector losses;
    content.setLossObserver(&losses);
    ORV_VERIFY_OK(content.assignFromJson(QJsonDocument::fromJson(document.toJson()).object()));
    QVERIFY2(losses.losses().isEmpty(),
             qPrintable(losses.losses().value(0).path + losses.losses().value(0).why));

    const QJsonObject once = withoutMoment(document);
    ORV_VERIFY_OK(runChain(&document));
    QCOMPARE(withoutMoment(document), once);
}

ORV_REGISTER_TEST(TestUpgradeFixtures)
#include "TestUpgradeFixtures.moc"
