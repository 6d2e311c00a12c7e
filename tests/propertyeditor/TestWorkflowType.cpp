#include "OrvTest.h"

#include <orv/propertyeditor/workflow/WorkflowType.h>

#include <QRegularExpression>
#include <QSet>

using namespace orv;

class TestWorkflowType : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyNumberInUseHasAType();
    void textsAndTypesAreABijection();
    void iconsAndTypesAreABijection();
    void anythingElseIsUnknown();
    void numbersThatStepsTellApartKeepTheirMeaning();
};

void TestWorkflowType::everyNumberInUseHasAType()
{
    QSet<int> numbers;
    for (WorkflowType type : availableWorkflowTypes())
        numbers.insert(int(type));
    for (int number = 0; number <= 34; ++number)
        QCOMPARE(numbers.contains(number), number != 33);
    QCOMPARE(numbers.size(), 34);
    QCOMPARE(availableWorkflowTypes().size(), 34);
    QCOMPARE(availableWorkflowTypes().first(), WorkflowType::Unknown);
}

void TestWorkflowType::textsAndTypesAreABijection()
{
    QSet<QString> texts;
    for (WorkflowType type : availableWorkflowTypes()) {
        const QString text = workflowTypeToString(type);
        QVERIFY(QRegularExpression(QStringLiteral("^[A-Z][A-Za-z]+$")).match(text).hasMatch());
        QCOMPARE(workflowTypeFromString(text), type);
        texts.insert(text);
    }
    QCOMPARE(texts.size(), availableWorkflowTypes().size());
}

void TestWorkflowType::iconsAndTypesAreABijection()
{
    for (WorkflowType type : availableWorkflowTypes())
        QCOMPARE(workflowTypeFromIconName(workflowTypeIconName(type)), type);
}

void TestWorkflowType::anythingElseIsUnknown()
{
    QCOMPARE(workflowTypeFromString({}), WorkflowType::Unknown);
    QCOMPARE(workflowTypeFromString(QStringLiteral("peptidemap")), WorkflowType::Unknown);
    QCOMPARE(workflowTypeFromIconName({}), WorkflowType::Unknown);
    QCOMPARE(workflowTypeFromIconName(QStringLiteral("no-such-icon")), WorkflowType::Unknown);
    QCOMPARE(workflowTypeToString(WorkflowType(33)), QStringLiteral("Unknown"));
    QCOMPARE(workflowTypeToString(WorkflowType(-1)), QStringLiteral("Unknown"));
}

void TestWorkflowType::numbersThatStepsTellApartKeepTheirMeaning()
{
    QCOMPARE(int(WorkflowType::HrimCompoundMap), 8);
    QCOMPARE(int(WorkflowType::HrimIntactMass), 9);
    QCOMPARE(int(WorkflowType::HrimReleasedGlycans), 10);
    QCOMPARE(int(WorkflowType::IcIefMs), 11);
    QCOMPARE(int(WorkflowType::ReleasedGlycans), 20);
    QCOMPARE(int(WorkflowType::DeNovoSequencing), 24);
    QCOMPARE(int(WorkflowType::IntactOligo), 27);
    QCOMPARE(int(WorkflowType::DigestedOligo), 28);
    QCOMPARE(int(WorkflowType::DataIndependentAcquisition), 30);
}

ORV_REGISTER_TEST(TestWorkflowType)

#include "TestWorkflowType.moc"
