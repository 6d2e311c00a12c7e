#include "WidgetTest.h"
#include "WindowFixture.h"

#include <QDir>
#include <QLabel>

using namespace orv;
using namespace WindowFixture;
using namespace Qt::StringLiterals;

namespace {

struct Findings
{
    QStringList warnings;
    QStringList errors;
    QStringList details;
    QList<WidgetValidationType> asked;
};

/// A column that has something against the document.
class FaultyItem : public IGridItem
{
public:
    explicit FaultyItem(Findings *findings)
        : m_findings(findings)
        , m_widget(new QLabel)
    {}

    using IGridItem::content;
    [[nodiscard]] QJsonObject content() const override { return storedContent(); }
    [[nodiscard]] QWidget *widget() override { return m_widget; }
    bool validate(QStringList *warnings, QStringList *errors, QStringList *details,
                  WidgetValidationType type) const override
    {
        *warnings += m_findings->warnings;
        *errors += m_findings->errors;
        *details += m_findings->details;
        m_findings->asked.append(type);
        return m_findings->errors.isEmpty();
    }

protected:
    Error setContentInternal() override { return Error::NoError; }

private:
    Findings *m_findings;
    QPointer<QLabel> m_widget;
};

class FaultyCreator : public IGridItemCreator
{
public:
    explicit FaultyCreator(Findings *findings)
        : m_findings(findings)
    {}
    [[nodiscard]] IGridItem *createGridItem() const override { return new FaultyItem(m_findings); }

private:
    Findings *m_findings;
};

/// A window whose two columns say what a test tells them.
struct Faulty
{
    Faulty()
    {
        manager.registerCreators();
        manager.registerCreator(BaseItemType::MultiDocReport, new FaultyCreator(&findings));
        GridItemManager::setCustomManager(&manager);
        window = std::make_unique<Window>();
        const QJsonObject report = settingsCell("MultiDocReport", {});
        const QByteArray cell = Documents::toBytes(report);
        if (window->addTabWithColumns(u"Reports"_s, {u"A"_s, u"B"_s}, {cell, cell}).hasError())
            qFatal("The fixture doesn't load");
    }
    ~Faulty()
    {
        window.reset();
        GridItemManager::setCustomManager(nullptr);
    }

    Findings findings;
    GridItemManager manager;
    ScriptedAnswerer answers;
    std::unique_ptr<Window> window;
};

} // namespace

class WidgetChecksTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void allColumnsAreAsked();
    void errorsAreShownWithDetails();
    void warningsAskWithTheirPurpose_data();
    void warningsAskWithTheirPurpose();
    void savingStopsAtErrors();
    void nothingIsAskedWithoutTabs();
    void windowsMayGoInTheBox();
};

void WidgetChecksTest::allColumnsAreAsked()
{
    Faulty faulty;
    faulty.findings.errors = {u"No report"_s};
    faulty.answers.expectBox(u"Workflow content error"_s, u"OK"_s);
    QVERIFY(!faulty.window->verifyWidgetsContentAndShowDialog(WidgetValidationType::SubmitJob));
    QCOMPARE(faulty.findings.asked,
             (QList<WidgetValidationType>{WidgetValidationType::SubmitJob, WidgetValidationType::SubmitJob}));
}

void WidgetChecksTest::errorsAreShownWithDetails()
{
    Faulty faulty;
    faulty.findings.errors = {u"A < B"_s};
    faulty.findings.warnings = {u"Unheard"_s};
    faulty.findings.details = {u"Row 1"_s};
    faulty.answers.expectBox(u"Workflow content error"_s, u"OK"_s);
    QVERIFY(!faulty.window->verifyWidgetsContentAndShowDialog(WidgetValidationType::ProjectCreation));
    QCOMPARE(transcriptOf(faulty.answers),
             QStringList{u"critical | Workflow content error | Following errors have been found:\\nA < "
                         "B\\nA < B | [OK] | Row 1\\n\\nRow 1"_s});
}

void WidgetChecksTest::warningsAskWithTheirPurpose_data()
{
    QTest::addColumn<WidgetValidationType>("type");
    QTest::addColumn<QString>("purpose");
    QTest::newRow("project") << WidgetValidationType::ProjectCreation << u"to project creation"_s;
    QTest::newRow("save") << WidgetValidationType::SaveWorkflow << u"saving workflow"_s;
    QTest::newRow("job") << WidgetValidationType::SubmitJob << u"submitting a job"_s;
}

void WidgetChecksTest::warningsAskWithTheirPurpose()
{
    QFETCH(const WidgetValidationType, type);
    QFETCH(const QString, purpose);
    Faulty faulty;
    faulty.findings.warnings = {u"Old report"_s};
    faulty.answers.expectBox(u"Workflow content warnings"_s, u"Cancel"_s);
    QVERIFY(!faulty.window->verifyWidgetsContentAndShowDialog(type));
    faulty.answers.expectBox(u"Workflow content warnings"_s, u"Continue"_s);
    QVERIFY(faulty.window->verifyWidgetsContentAndShowDialog(type));
    const DialogRequest &request = faulty.answers.transcript().first();
    QCOMPARE(request.kind, DialogRequest::Kind::Warning);
    QCOMPARE(request.text, u"Following issues have been found:\nOld report\nOld report\nWould you like to "
                           "continue "_s +
                               purpose + u" or cancel ?"_s);
    QCOMPARE(QSet<QString>(request.buttons.cbegin(), request.buttons.cend()),
             (QSet<QString>{u"Continue"_s, u"Cancel"_s}));
}

void WidgetChecksTest::savingStopsAtErrors()
{
    const QTemporaryDir folder;
    Faulty faulty;
    faulty.findings.errors = {u"No report"_s};
    for (const bool isPortable : {false, true}) {
        faulty.answers.expectBox(u"Workflow content error"_s, u"OK"_s);
        if (isPortable)
            faulty.window->click("Save As Portable Workflow...");
        else
            QVERIFY(!faulty.window->saveWorkflowAs());
        QVERIFY(faulty.answers.isDone());
    }
    faulty.answers.expectBox(u"Workflow content error"_s, u"OK"_s);
    QVERIFY(!faulty.window->createProjectClicked());
    QVERIFY(faulty.answers.isDone());
    QCOMPARE(faulty.findings.asked.last(), WidgetValidationType::ProjectCreation);
}

void WidgetChecksTest::nothingIsAskedWithoutTabs()
{
    const ScriptedAnswerer answers;
    Window window;
    QVERIFY(window.verifyWidgetsContentAndShowDialog(WidgetValidationType::SaveWorkflow));
    QVERIFY(answers.transcript().isEmpty());
}

void WidgetChecksTest::windowsMayGoInTheBox()
{
    Faulty faulty;
    faulty.findings.warnings = {u"Old report"_s};
    const Destroyer destroyer(faulty.window.release(), u"Workflow content warnings"_s, u"Continue"_s);
    QVERIFY(!destroyer.window()->verifyWidgetsContentAndShowDialog(WidgetValidationType::SaveWorkflow));
    QVERIFY(!destroyer.window());
}

WIDGET_REGISTER_TEST(WidgetChecksTest)
#include "WidgetChecksTest.moc"
