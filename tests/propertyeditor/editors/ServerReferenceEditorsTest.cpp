#include "GridFixture.h"
#include "LeavingWays.h"
#include "TestFiles.h"
#include "WidgetTest.h"

#include <KPropertyWidgetsPluginManager.h>
#include <orv/propertyeditor/editors/MirelResourceReferenceDelegate.h>
#include <orv/propertyeditor/editors/ORVPropertyFactory.h>
#include <orv/propertyeditor/editors/TalvaneResourceReferenceDelegate.h>
#include <orv/propertyeditor/editors/TalvaneResourceReferenceEditor.h>
#include <orv/resources/ResourceManager.h>
#include <orv/widgets/CoreMainWindow.h>
#include <orv/widgets/FileChooserDialogManager.h>

#include <QPushButton>
#include <QTemporaryDir>

using namespace orv;
using namespace GridFixture;

namespace {

constexpr char kSetting[] = "KarvonLayout";

/// Knows one file, fails for one, and may do something before it answers.
class OneFileHandler : public ResourceHandler
{
public:
    using ResourceHandler::ResourceHandler;

    [[nodiscard]] bool isAvailableLocally() const override { return false; }
    [[nodiscard]] Result<bool> exists() override
    {
        if (onAsk)
            onAsk();
        if (reference()->name() == text("silent.ini"))
            return Error(ErrorCode::CannotOpenFile, text("The server doesn't answer."));
        return reference()->text() == text("talvane:/lab/known.ini");
    }
    [[nodiscard]] Result<QString> grab() override { return Error(ErrorCode::CannotOpenFile, text("No")); }

    static inline std::function<void()> onAsk;
};

/// A column whose references are those of the server's application.
struct ServerColumn : Column
{
    ServerColumn()
        : Column(settingsCell("Karvon", {setting(kSetting, text("talvane:/lab/before.ini")),
                                         setting("Samples", text("one"))}))
    {}

    KPropertyCustomEditorView &tree() { return *view->editorView(); }
    [[nodiscard]] QString stored() const { return valueIn(item.content(), kSetting).toString(); }
    QString remark() { return tree().remark(property(kSetting)); }
    auto *open()
    {
        return qobject_cast<TalvaneResourceReferenceEditor *>(LeavingWays::open(tree(), kSetting));
    }
    bool type(const QString &typed, LeavingWays::Way way = LeavingWays::Way::Enter)
    {
        if (!open())
            return false;
        LeavingWays::type(typed);
        return LeavingWays::leave(tree(), way);
    }
};

} // namespace

class ServerReferenceEditorsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void cleanup();
    void theMainWindowChoosesTheForm();
    void knownFilesAreTaken_data();
    void knownFilesAreTaken();
    void unknownFilesGoBack_data() { LeavingWays::addRows(); }
    void unknownFilesGoBack();
    void aClearedLineIsTakenWithoutAQuestion();
    void theDelegateIsChosenOnce();
    void theServersOwnWordsAreTheReason();
    void filesOfThisComputerAreFound();
    void theChooserGivesAReference();
    void theChooserBeginsWithWhatWasTyped();
    void theChooserMayGiveNothing();
    void theColumnMayGoWhileTheServerIsAsked();
};

void ServerReferenceEditorsTest::initTestCase()
{
    ORVPropertyFactory::init();
    auto *factory = new KPropertyWidgetsFactory;
    factory->addEditor(4001, new TalvaneResourceReferenceDelegate);
    KPropertyWidgetsPluginManager::self()->registerFactory(factory);
    ResourceManager::setHandlerFactory(
        ResourceReference::Scheme::ServerFile,
        [](const ResourceReferenceSPtr &reference) -> Result<ResourceHandlerSPtr> {
            return ResourceHandlerSPtr(new OneFileHandler(reference));
        });
}

void ServerReferenceEditorsTest::cleanupTestCase()
{
    ResourceManager::setHandlerFactory(ResourceReference::Scheme::ServerFile, {});
    auto *factory = new KPropertyWidgetsFactory;
    factory->addEditor(4001, new MirelResourceReferenceDelegate);
    KPropertyWidgetsPluginManager::self()->registerFactory(factory);
}

void ServerReferenceEditorsTest::cleanup()
{
    OneFileHandler::onAsk = {};
    FileChooserDialogManager::setChooser({});
}

void ServerReferenceEditorsTest::theMainWindowChoosesTheForm()
{
    const auto creator = [] {
        const ORVPropertyFactory factory;
        const auto *editors = factory.editorCreators().value(4001);
        return dynamic_cast<const TalvaneResourceReferenceDelegate *>(editors) ? text("server")
               : dynamic_cast<const MirelResourceReferenceDelegate *>(editors) ? text("local")
                                                                               : QString();
    };
    QCOMPARE(creator(), text("local"));
    const CoreMainWindow desktop;
    QCOMPARE(creator(), text("local"));
    const CoreMainWindow server(ApplicationInfo(ApplicationType::Talvane));
    QCOMPARE(creator(), text("server"));
}

void ServerReferenceEditorsTest::knownFilesAreTaken_data()
{
    LeavingWays::addRows();
}

void ServerReferenceEditorsTest::knownFilesAreTaken()
{
    QFETCH(LeavingWays::Way, way);
    ServerColumn c;
    QVERIFY(c.type(text("talvane:/lab/known.ini"), way));
    QCOMPARE(c.stored(), text("talvane:/lab/known.ini"));
    QCOMPARE(c.remark(), QString());
}

void ServerReferenceEditorsTest::unknownFilesGoBack()
{
    QFETCH(LeavingWays::Way, way);
    ServerColumn c;
    QVERIFY(c.type(text("talvane:/lab/unknown.ini"), way));
    QCOMPARE(c.stored(), text("talvane:/lab/before.ini"));
    QCOMPARE(c.remark(),
             text("\"talvane:/lab/unknown.ini\" was not taken: there is no such file. Choose one with "
                  "the \"…\" button."));
}

void ServerReferenceEditorsTest::aClearedLineIsTakenWithoutAQuestion()
{
    ServerColumn c;
    OneFileHandler::onAsk = [] { qFatal("Nothing is to be asked"); };
    QVERIFY(c.type(QString(), LeavingWays::Way::Tab));
    QCOMPARE(valueIn(c.item.content(), kSetting), QJsonValue(QString()));
    QCOMPARE(c.remark(), QString());
}

void ServerReferenceEditorsTest::theDelegateIsChosenOnce()
{
    // This process began with the local form, and a test put the form of the server in its place.
    const CoreMainWindow desktop;
    ORVPropertyFactory::init();
    ServerColumn c;
    QVERIFY(c.open());
}

void ServerReferenceEditorsTest::theServersOwnWordsAreTheReason()
{
    ServerColumn c;
    QVERIFY(c.type(text("talvane:/lab/silent.ini")));
    QCOMPARE(c.stored(), text("talvane:/lab/before.ini"));
    QCOMPARE(c.remark(), text("\"talvane:/lab/silent.ini\" was not taken: The server doesn't answer."));
    QVERIFY(c.type(text("unifi:/server/{1}/a/b")));
    QCOMPARE(c.stored(), text("talvane:/lab/before.ini"));
    QVERIFY(!c.remark().isEmpty());
}

void ServerReferenceEditorsTest::filesOfThisComputerAreFound()
{
    const QTemporaryDir folder;
    TestFiles::makeFile(folder.filePath(text("a b.ini")), "x");
    ServerColumn c;
    c.view->setBaseUrlForRelativeUrls(QUrl::fromLocalFile(folder.path() + u'/'));
    QVERIFY(c.type(text("a b.ini")));
    QCOMPARE(c.stored(), text("a b.ini"));
    QVERIFY(c.type(text("c.ini")));
    QCOMPARE(c.stored(), text("a b.ini"));
}

void ServerReferenceEditorsTest::theChooserGivesAReference()
{
    ServerColumn c;
    c.property(kSetting).setOption("ext", text("FASTA;CSV"));
    FileChooserDialogOptions asked;
    int page = -1;
    FileChooserDialogManager::setChooser(
        [&](const FileChooserDialogOptions &options, QWidget *, int number, const auto &) {
            asked = options;
            page = number;
            return *ResourceReference::fromString(text("managed:/7/chosen.fasta"));
        });
    QTest::mouseClick(c.open()->findChild<QPushButton *>(), Qt::LeftButton);
    QCOMPARE(c.stored(), text("managed:/7/chosen.fasta"));
    QCOMPARE(asked.filter.types.types(),
             (QList<FileType>{FileTypes::fromName(text("FASTA")), FileTypes::CSV}));
    QVERIFY(asked.start);
    QCOMPARE(asked.start->text(), text("talvane:/lab/before.ini"));
    QCOMPARE(page, 0);
}

void ServerReferenceEditorsTest::theChooserBeginsWithWhatWasTyped()
{
    ServerColumn c;
    QString start;
    FileChooserDialogManager::setChooser(
        [&](const FileChooserDialogOptions &options, QWidget *, int, const auto &) {
            start = options.start ? options.start->text() : QString();
            return ResourceReferenceSPtr();
        });
    QVERIFY(c.open());
    LeavingWays::type(text("talvane:/lab/known.ini"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F4);
    QCOMPARE(start, text("talvane:/lab/known.ini"));
    QCOMPARE(c.stored(), text("talvane:/lab/known.ini"));
}

void ServerReferenceEditorsTest::theChooserMayGiveNothing()
{
    ServerColumn c;
    FileChooserDialogManager::setChooser(
        [](const auto &, QWidget *, int, const auto &) { return ResourceReferenceSPtr(); });
    const QByteArray before = bytes(c.item.content());
    QTest::mouseClick(c.open()->findChild<QPushButton *>(), Qt::LeftButton);
    QVERIFY(LeavingWays::leave(c.tree(), LeavingWays::Way::Enter));
    QCOMPARE(bytes(c.item.content()), before);
}

void ServerReferenceEditorsTest::theColumnMayGoWhileTheServerIsAsked()
{
    for (const LeavingWays::Way way : {LeavingWays::Way::Tab, LeavingWays::Way::ClickOutside}) {
        ServerColumn c;
        OneFileHandler::onAsk = [&] {
            OneFileHandler::onAsk = {};
            (void)c.item.setContent(settingsCell("Karvon", {setting("Samples", text("x"))}));
        };
        (void)c.type(text("talvane:/lab/known.ini"), way);
        QVERIFY(!c.set().contains(kSetting));
    }
}

WIDGET_REGISTER_TEST(ServerReferenceEditorsTest)
#include "ServerReferenceEditorsTest.moc"
