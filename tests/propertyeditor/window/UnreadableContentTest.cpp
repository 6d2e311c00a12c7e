#include "WidgetTest.h"
#include "WindowFixture.h"

#include <QDir>
#include <QLabel>
#include <QSignalSpy>

using namespace orv;
using namespace WindowFixture;
using namespace Qt::StringLiterals;

namespace {

/// A column of an application that gives something else than a cell.
class ForeignItem : public IGridItem
{
public:
    using IGridItem::content;
    [[nodiscard]] QJsonObject content() const override
    {
        return {{text("type"), text("OfAnotherApplication")}, {text("properties"), QJsonArray()}};
    }
    [[nodiscard]] QWidget *widget() override { return m_widget; }

protected:
    Error setContentInternal() override { return Error::NoError; }

private:
    QPointer<QLabel> m_widget{new QLabel};
};

class ForeignCreator : public IGridItemCreator
{
public:
    [[nodiscard]] IGridItem *createGridItem() const override { return new ForeignItem; }
};

/// A window whose only column can't be made a document of.
struct Unreadable
{
    Unreadable()
    {
        registerCreators(); // of the other windows, which don't have this one's
        manager.registerCreators();
        manager.registerCreator(BaseItemType::MultiDocReport, new ForeignCreator);
        GridItemManager::setCustomManager(&manager);
        window = std::make_unique<Window>();
        window->show();
        const QByteArray cell = Documents::toBytes(settingsCell("MultiDocReport", {}));
        if (window->addTabWithColumns(u"Reports"_s, {u"A"_s}, {cell}).hasError())
            qFatal("The fixture doesn't load");
        window->state().setWorkflowMetadata(metadata());
    }
    ~Unreadable()
    {
        window.reset();
        GridItemManager::setCustomManager(nullptr);
    }

    GridItemManager manager;
    ScriptedAnswerer answers;
    std::unique_ptr<Window> window;
};

const QString kRefusal =
    u"Cannot handle the specified workflow: Type \"OfAnotherApplication\" is not supported."_s;

} // namespace

class UnreadableContentTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void processingTellsIt();
    void projectCreationTellsIt();
    void portableSavesTellItAndKeepTheMetadata();
};

void UnreadableContentTest::processingTellsIt()
{
    const LogCapture log;
    Unreadable unreadable;
    const QSignalSpy sent(unreadable.window.get(), &PropertyEditorWindow::sendToProcessing);
    unreadable.answers.expectBox(u"Project creation"_s, u"OK"_s);
    unreadable.window->processWorkflowClicked();
    QCOMPARE(transcriptOf(unreadable.answers),
             QStringList{u"critical | Project creation | %1 | [OK]"_s.arg(kRefusal)});
    QVERIFY(sent.isEmpty());
}

void UnreadableContentTest::projectCreationTellsIt()
{
    const LogCapture log;
    Unreadable unreadable;
    const QSignalSpy sent(unreadable.window.get(), &PropertyEditorWindow::sendToProcessing);
    unreadable.answers.expectBox(u"Project creation"_s, u"OK"_s);
    QVERIFY(!unreadable.window->state().createProject());
    QCOMPARE(transcriptOf(unreadable.answers),
             QStringList{u"critical | Project creation | %1 | [OK]"_s.arg(kRefusal)});
    QVERIFY(sent.isEmpty());
}

void UnreadableContentTest::portableSavesTellItAndKeepTheMetadata()
{
    const LogCapture log;
    const QTemporaryDir folder;
    Unreadable unreadable;
    const QString title = unreadable.window->windowTitle();
    const QJsonObject before = unreadable.window->state().workflowMetadata();
    unreadable.answers.expectPath(u"Save As Portable Workflow"_s, folder.filePath(u"b.wflwp"_s));
    unreadable.answers.expectBox({}, u"OK"_s);
    unreadable.window->click("Save As Portable Workflow...");
    QVERIFY(unreadable.answers.isDone());
    QCOMPARE(transcriptOf(unreadable.answers).last(), u"critical |  | %1 | [OK]"_s.arg(kRefusal));
    QCOMPARE(unreadable.window->state().workflowMetadata(), before);
    QCOMPARE(unreadable.window->windowTitle(), title);
    QCOMPARE(unreadable.window->tabs().count(), 1);
    QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList());
}

WIDGET_REGISTER_TEST(UnreadableContentTest)
#include "UnreadableContentTest.moc"
