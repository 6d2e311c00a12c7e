#include "ContextTranslator.h"
#include "OrvTest.h"
#include "ValidatorRun.h"

#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/validators/PeptideReplicateCountValidator.h>
#include <orv/samples/DocumentIssaReplicateModel.h>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;
using ProjectFixtures::samplesCell;

namespace {

using Model = DocumentIssaReplicateModel;

QJsonObject quantification(const QJsonValue &count = QJsonValue::Undefined)
{
    if (count.isUndefined())
        return settings(u"Trenq"_s, {});
    return settings(u"Trenq"_s, {{PropertyId::PeptideReplicateCount, count}});
}

/// Samples with these texts in the column "Condition"; null is no value.
QJsonObject samplesOf(const QStringList &conditions, const QString &column = u"Condition"_s)
{
    QJsonArray rows;
    for (const QString &condition : conditions) {
        QJsonObject row{{u"SamplesId"_s, int(rows.size()) + 1},
                        {u"SampleName"_s, QString::number(rows.size())}};
        if (!condition.isNull())
            row.insert(column, condition);
        rows.append(row);
    }
    return TableCells::cell(u"Samples"_s,
                            {TableCells::entry(u"SamplesTable"_s, QJsonObject{{u"Samples"_s, rows}})});
}

QString tooGreat(int limit)
{
    return u"The value of \"Replicate count\" cannot be greater than %1."_s.arg(limit);
}

SamplesInput::SamplesArrayWithCustomColumns table(const QStringList &columns,
                                                  const QList<QVariantMap> &samples)
{
    SamplesInput::SamplesArrayWithCustomColumns result;
    for (const QString &column : columns)
        result.columns.addCustomColumn(column);
    for (const QVariantMap &values : samples) {
        SamplesInput::SampleWithCustomColumns sample;
        sample.customValues = values;
        result.samples.append(sample);
    }
    return result;
}

} // namespace

class TestPeptideReplicateCountValidator : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void onlyQuantificationIsChecked();
    void aTableOfSamplesIsNeeded();
    void theSmallestConditionIsTheLimit_data();
    void theSmallestConditionIsTheLimit();
    void theCountMustBeAWholeNumber_data();
    void theCountMustBeAWholeNumber();
    void theFirstBadItemEndsTheWalk();
    void internalErrorsAreNotTranslated();
    void conditionsAndReplicatesComeFromColumns();
    void columnsAreFoundInAnyCase();
};

void TestPeptideReplicateCountValidator::onlyQuantificationIsChecked()
{
    QVERIFY(runOf<PeptideReplicateCountValidator>(Content()).isGood);
    QVERIFY(runOf<PeptideReplicateCountValidator>(contentOf({settings(u"Senthia"_s, {})})).isGood);
}

void TestPeptideReplicateCountValidator::aTableOfSamplesIsNeeded()
{
    const ValidatorRun run = runOf<PeptideReplicateCountValidator>(contentOf({quantification(1)}));
    QVERIFY(!run.isGood);
    QCOMPARE(run.errors, QList<QString>{u"Internal error: Samples table not found."_s});
}

void TestPeptideReplicateCountValidator::theSmallestConditionIsTheLimit_data()
{
    QTest::addColumn<QStringList>("conditions");
    QTest::addColumn<int>("limit");
    QTest::newRow("no samples") << QStringList() << 1;
    QTest::newRow("no conditions") << QStringList{{}, {}, {}} << 1;
    QTest::newRow("one condition") << QStringList{u"a"_s, u"a"_s, u"a"_s} << 3;
    QTest::newRow("two conditions") << QStringList{u"a"_s, u"b"_s, u"a"_s, u"b"_s, u"b"_s} << 2;
    QTest::newRow("a condition of one sample") << QStringList{u"a"_s, u"a"_s, u"b"_s} << 1;
    QTest::newRow("samples without one don't count") << QStringList{u"a"_s, {}, u"a"_s, u" "_s} << 2;
}

void TestPeptideReplicateCountValidator::theSmallestConditionIsTheLimit()
{
    QFETCH(QStringList, conditions);
    QFETCH(int, limit);
    for (int count : {1, limit}) {
        const ValidatorRun run =
            runOf<PeptideReplicateCountValidator>(contentOf({samplesOf(conditions), quantification(count)}));
        QVERIFY(run.isGood);
        QVERIFY(run.errors.isEmpty());
    }
    const ValidatorRun run =
        runOf<PeptideReplicateCountValidator>(contentOf({samplesOf(conditions), quantification(limit + 1)}));
    QVERIFY(!run.isGood);
    QCOMPARE(run.errors, QList<QString>{tooGreat(limit)});
}

void TestPeptideReplicateCountValidator::theCountMustBeAWholeNumber_data()
{
    QTest::addColumn<QJsonObject>("item");
    QTest::newRow("missing") << quantification();
    QTest::newRow("a text") << quantification(1);
}

void TestPeptideReplicateCountValidator::theCountMustBeAWholeNumber()
{
    QFETCH(QJsonObject, item);
    Content content = contentOf({samplesOf({u"a"_s}), item});
    // A load would give such a count its default.
    auto *settings = content.findProjects().constFirst();
    if (settings->contains(PropertyId::PeptideReplicateCount))
        QVERIFY(settings->setValue(PropertyId::PeptideReplicateCount, u"many"_s));
    const ValidatorRun run = runOf<PeptideReplicateCountValidator>(content);
    QVERIFY(!run.isGood);
    QCOMPARE(run.errors, QList<QString>{u"The value of \"Replicate count\" is not valid."_s});
}

void TestPeptideReplicateCountValidator::theFirstBadItemEndsTheWalk()
{
    const Content content =
        contentOf({samplesOf({u"a"_s}), quantification(1), quantification(5), quantification()});
    const ValidatorRun run = runOf<PeptideReplicateCountValidator>(content);
    QCOMPARE(run.errors, QList<QString>{tooGreat(1)});
    QCOMPARE(run.findings.size(), 1);
    QCOMPARE(run.findings.constFirst().place.item, content.findAllItems(BaseItemType::Trenq).at(1));
    QCOMPARE(run.findings.constFirst().place.property, PropertyId::PeptideReplicateCount);
    QVERIFY(!run.findings.constFirst().hint.isEmpty());
}

void TestPeptideReplicateCountValidator::internalErrorsAreNotTranslated()
{
    const ContextTranslator translator;
    QCOMPARE(runOf<PeptideReplicateCountValidator>(contentOf({quantification(1)})).errors,
             QList<QString>{u"Internal error: Samples table not found."_s});
    const QString translated =
        runOf<PeptideReplicateCountValidator>(contentOf({samplesOf({}), quantification(2)}))
            .errors.constFirst();
    QVERIFY2(translated.startsWith(u"AbstractValidator|The value of"_s), qPrintable(translated));
}

void TestPeptideReplicateCountValidator::conditionsAndReplicatesComeFromColumns()
{
    const auto samples =
        table({u"Condition"_s, u"Replicate"_s}, {{{u"Condition"_s, u" heat "_s}, {u"Replicate"_s, 2.0}},
                                                 {{u"Condition"_s, u"heat"_s}},
                                                 {{u"Replicate"_s, u"3"_s}},
                                                 {{u"Condition"_s, u" "_s}}});
    const QList<Model::ConditionAndReplicate> expected{
        std::pair(u"heat"_s, u"2"_s), std::pair(u"heat"_s, QString(u""_s)), std::nullopt, std::nullopt};
    QCOMPARE(Model::getConditionAndReplicate(samples), expected);
    QVERIFY(Model::getConditionAndReplicate({}).isEmpty());
}

void TestPeptideReplicateCountValidator::columnsAreFoundInAnyCase()
{
    const auto samples =
        table({u" CONDITION"_s, u"condition"_s}, {{{u" CONDITION"_s, u"a"_s}, {u"condition"_s, u"b"_s}}});
    QCOMPARE(Model::getConditionAndReplicate(samples).constFirst()->first, u"a"_s);
    const auto others = table({u"Conditions"_s}, {{{u"Conditions"_s, u"a"_s}}});
    QVERIFY(!Model::getConditionAndReplicate(others).constFirst());
}

ORV_REGISTER_TEST(TestPeptideReplicateCountValidator)
#include "TestPeptideReplicateCountValidator.moc"
