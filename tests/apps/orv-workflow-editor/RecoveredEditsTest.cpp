#include "EditorRecoveryFixture.h"
#include "EditorWindow.h"
#include "EditorWindows.h"
#include "TestData.h"
#include "WidgetTest.h"

#include <KPropertySet.h>
#include <orv/propertyeditor/grid/GridItemManager.h>
#include <orv/propertyeditor/grid/GridPropertyEditorView.h>
#include <orv/propertyeditor/workbench/DocumentHistory.h>
#include <orv/propertyeditor/workbench/RecoveryStore.h>
#include <orv/widgets/CoreMainWindow.h>
#include <orv/widgets/DialogAnswerer.h>

#include <QTemporaryDir>

using namespace orv;
using namespace EditorRecoveryFixture;
using namespace EditorWindows;
using namespace Qt::StringLiterals;

namespace {

constexpr char kEditedSetting[] = "KarvonDigestLetters";

KPropertySet &settingsOf(const EditorWindow &window)
{
    return *window.findChildren<GridPropertyEditorView *>().constFirst()->propertySet();
}

} // namespace

/// What became of edits that were recovered: they differ from the file as others do.
class RecoveredEditsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theyAreOneStep();
    void theyAreNoStepWhereSomebodyWasFaster();

private:
    EditorWindow *openWindow();
    /// Edits a setting and the name of a tab, and closes without saving; the window that offers it.
    EditorWindow *offered();

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<CoreMainWindow> m_main;
    std::shared_ptr<RecoveryStore> m_store;
    QString m_file;
    QVariant m_saved;
};

void RecoveredEditsTest::init()
{
    GridItemManager::instance()->registerCreators();
    m_folder = std::make_unique<QTemporaryDir>();
    m_main = std::make_unique<CoreMainWindow>();
    m_file = m_folder->filePath(u"a.wflw"_s);
    QVERIFY(QFile::copy(TestData::examplePath(u"workflows/de_novo_antibody.wflw"_s), m_file));
}

void RecoveredEditsTest::cleanup()
{
    for (EditorWindow *window : openWindows())
        delete window;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_store.reset();
    m_main.reset();
}

EditorWindow *RecoveredEditsTest::openWindow()
{
    m_store = std::make_shared<RecoveryStore>(m_folder->filePath(u"journals"_s));
    auto *window = new EditorWindow(m_main.get(), m_store);
    window->show();
    (void)QTest::qWaitForWindowActive(window);
    return window;
}

EditorWindow *RecoveredEditsTest::offered()
{
    EditorWindow *edited = openWindow();
    edited->openFiles({m_file});
    KProperty &setting = settingsOf(*edited).property(kEditedSetting);
    m_saved = setting.value();
    setting.setValue(u"KDE"_s);
    renameFirstTab(*edited, u"Renamed"_s);
    closeUnsaved(edited);
    EditorWindow *window = openWindow();
    window->offerRecovery();
    return window;
}

void RecoveredEditsTest::theyAreOneStep()
{
    EditorWindow *window = offered();
    recover(window);
    auto *history = window->findChild<DocumentHistory *>();
    QTRY_COMPARE(history->undoText(), u"recovered edits"_s);
    QCOMPARE(history->count(), 1);
    QVERIFY(history->isModified());
    const QJsonObject recovered = history->state().content({}).toJsonObject();
    const KProperty &shown = settingsOf(*window).property(kEditedSetting);
    QCOMPARE(shown.value().toString(), u"KDE"_s);
    QVERIFY2(shown.isModified(), "The row isn't bold");
    QCOMPARE(shown.oldValue(), m_saved);
    history->undo();
    QCOMPARE(settingsOf(*window).property(kEditedSetting).value(), m_saved);
    QVERIFY(firstTab(*window) != u"Renamed"_s);
    history->redo();
    QCOMPARE(settingsOf(*window).property(kEditedSetting).value().toString(), u"KDE"_s);
    QCOMPARE(history->state().content({}).toJsonObject(), recovered);
    closeUnsaved(window);
}

void RecoveredEditsTest::theyAreNoStepWhereSomebodyWasFaster()
{
    EditorWindow *window = offered();
    recover(window);
    settingsOf(*window).property(kEditedSetting).setValue(u"KDEC"_s);
    auto *history = window->findChild<DocumentHistory *>();
    history->takeIn();
    const QString edit = history->undoText();
    QVERIFY(!edit.isEmpty());
    QVERIFY(!history->beginAt(history->state(), u"recovered edits"_s));
    QCOMPARE(history->undoText(), edit);
    QCOMPARE(history->count(), 1);
    QCOMPARE(settingsOf(*window).property(kEditedSetting).value().toString(), u"KDEC"_s);
    closeUnsaved(window);
}

WIDGET_REGISTER_TEST(RecoveredEditsTest)
#include "RecoveredEditsTest.moc"
