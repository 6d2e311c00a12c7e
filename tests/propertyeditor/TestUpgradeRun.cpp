// What the steps of one upgrade share: steps of an application of its own, in a run and each by itself.
#include "OrvTest.h"
#include "UpgradeDocuments.h"
#include "UpgradeRuns.h"

#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/propertyeditor/workflow/WorkingContent.h>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace UpgradeDocuments;
using namespace UpgradeRuns;
using namespace Qt::StringLiterals;
using Id = PropertyId;

namespace {

using Edit = std::function<void(Content &)>;

enum class Outcome
{
    Written,
    WrittenTwice,
    Forgotten,
};

/// Its step to 5.44.0 does what a test wants, between steps of the library.
class OwnSteps : public WflwUpgradeHelper
{
public:
    OwnSteps(Edit edit, Outcome outcome)
        : m_edit(std::move(edit))
        , m_outcome(outcome)
    {}

    Error upgradeV_5_44_0(PropertyEditorContent *content) override
    {
        Result<WorkingContent> working = createPecToUpgrade(content);
        if (!working)
            return working.ecatch();
        if (m_outcome == Outcome::WrittenTwice)
            ORV_RETURN_IF_ERROR(working->writeBack());
        m_edit(*working);
        return m_outcome == Outcome::Forgotten ? Error() : working->writeBack();
    }

private:
    Edit m_edit;
    Outcome m_outcome;
};

PropertyEditorContent documentToEdit()
{
    return UpgradeDocuments::document(
        WorkflowType::DataIndependentAcquisition,
        {samplesCell({u"a"_s}), cell(u"CaldrinDIA"_s, {{Id::UiLayout, u"a.ini"_s}}),
         cell(u"Trenq"_s, {{Id::CreateXicCache, true}, {Id::UiLayout, u"a.ini"_s}}),
         cell(u"Karvon"_s, {{Id::KarvonMachineType, 2}})},
        u"5.36.0"_s);
}

void demand(const Error &error)
{
    if (error)
        qFatal("%s", OrvTests::describe(error).constData());
}

QJsonObject together(const Edit &edit, Outcome outcome)
{
    PropertyEditorContent content = documentToEdit();
    OwnSteps steps(edit, outcome);
    demand(WflwUpgrader::upgradeWorkflow(versionOf(content), &content, nullptr, {.accessSampleData = false},
                                         &steps));
    return withoutMoment(content);
}

/// The same steps, none of which belongs to a run.
QJsonObject apart(const Edit &edit, Outcome outcome)
{
    PropertyEditorContent content = documentToEdit();
    const PropertyEditorContent initial = content;
    const QVersionNumber version = versionOf(initial);
    for (const WflwUpgradeStep &step : WflwUpgrader::steps()) {
        if (step.needsSampleData || version >= step.version)
            continue;
        OwnSteps own(edit, outcome);
        demand(step.take(own, &content, initial, version));
    }
    return withoutMoment(content);
}

KeyValueItem *trenq(const Content &tree)
{
    return item(tree, BaseItemType::Trenq);
}

} // namespace

class TestUpgradeRun : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void noEditIsMissed_data();
    void noEditIsMissed();
    void whatIsNotWrittenIsForgotten_data() { noEditIsMissed_data(); }
    void whatIsNotWrittenIsForgotten();
    void editsBetweenTwoWritesCount_data() { noEditIsMissed_data(); }
    void editsBetweenTwoWritesCount();
    void unevenTabsAreRefused();
};

void TestUpgradeRun::noEditIsMissed_data()
{
    QTest::addColumn<Edit>("edit");
    const auto row = [](const char *name, const Edit &edit) { QTest::newRow(name) << edit; };
    row("value", [](Content &tree) { item(tree, BaseItemType::Karvon)->setValue(Id::KarvonMachineType, 1); });
    row("new setting", [](Content &tree) { trenq(tree)->insert(u"UiFilter"_s, u"f.cft"_s, 10); });
    row("setting of another name",
        [](Content &tree) { trenq(tree)->replace(u"UiLayout"_s, u"UiFilter"_s, u"f.cft"_s, 10); });
    row("caption of a group", [](Content &tree) { trenq(tree)->setGroupCaption(u"group"_s, u"Other"_s); });
    row("option", [](Content &tree) { trenq(tree)->setOption(u"UiLayout"_s, "priority", 1); });
    row("samples", [](Content &tree) {
        SamplesAndTracesContent samples = tree.samplesAndTraces();
        samples.options.peaksOptions.clear();
        tree.setSamplesAndTraces(samples);
    });
    row("cleared cell", [](Content &tree) { trenq(tree)->clear(); });
    row("name of a column", [](Content &tree) { tree.group(1)->subGroup(0)->setName(u"Other"_s); });
    row("name of the workflow", [](Content &tree) { tree.setWorkflowName(u"Other"_s); });
    row("further cell", [](Content &tree) { tree.group(3)->subGroup(0)->addItem(BaseItemType::Isotope); });
    row("removed cell", [](Content &tree) { tree.group(3)->subGroup(0)->removeItem(0); });
    row("removed tab", [](Content &tree) { tree.removeGroup(0); });
    row("further tab", [](Content &tree) { tree.addGroup(u"New"_s); });
    row("nothing", [](Content &) {});
}

void TestUpgradeRun::noEditIsMissed()
{
    QFETCH(Edit, edit);
    QCOMPARE(together(edit, Outcome::Written), apart(edit, Outcome::Written));
}

void TestUpgradeRun::whatIsNotWrittenIsForgotten()
{
    QFETCH(Edit, edit);
    QCOMPARE(together(edit, Outcome::Forgotten), apart([](Content &) {}, Outcome::Forgotten));
}

void TestUpgradeRun::editsBetweenTwoWritesCount()
{
    QFETCH(Edit, edit);
    QCOMPARE(together(edit, Outcome::WrittenTwice), apart(edit, Outcome::WrittenTwice));
}

void TestUpgradeRun::unevenTabsAreRefused()
{
    PropertyEditorContent content = documentToEdit();
    OwnSteps steps([](Content &tree) { tree.group(3)->addSubGroup(u"Empty"_s, BaseItemType::Isotope); },
                   Outcome::Written);
    const Error error = WflwUpgrader::upgradeWorkflow(versionOf(content), &content, nullptr,
                                                      {.accessSampleData = false}, &steps);
    QCOMPARE(error.errorMessage(), u"Upgrade not possible."_s);
    QVERIFY(error.details().join(u' ').contains(u"\"Karvon\""_s));
}

ORV_REGISTER_TEST(TestUpgradeRun)
#include "TestUpgradeRun.moc"
