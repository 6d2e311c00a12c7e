#include "GridFixture.h"
#include "LeavingWays.h"
#include "WidgetTest.h"

#include <KPropertyWidgetsPluginManager.h>
#include <orv/propertyeditor/editors/MirelResourceReferenceDelegate.h>
#include <orv/propertyeditor/editors/MirelResourceReferenceEditor.h>
#include <orv/propertyeditor/editors/ORVPropertyFactory.h>
#include <orv/propertyeditor/editors/SlowQuestion.h>

#include <QSemaphore>

using namespace orv;
using namespace GridFixture;

namespace {

constexpr std::chrono::milliseconds kNoPatience{1};

/// A disk that answers when the test lets it. Outlives the thread that asks.
struct SleepingDisk
{
    QSemaphore awake;
    bool hasFile = false;
};

std::shared_ptr<SleepingDisk> &disk()
{
    static auto shared = std::make_shared<SleepingDisk>();
    return shared;
}

class SleepyEditor : public MirelResourceReferenceEditor
{
public:
    using MirelResourceReferenceEditor::MirelResourceReferenceEditor;

protected:
    [[nodiscard]] Question questionFor(const QString &, bool) const override
    {
        return [disk = disk()] {
            disk->awake.acquire();
            return disk->hasFile;
        };
    }
};

class SleepyDelegate : public ResourceReferenceDelegateBase
{
public:
    QWidget *createEditor(int, QWidget *parent, const QStyleOptionViewItem &,
                          const QModelIndex &index) const override
    {
        return new SleepyEditor(*KPropertyUtils::propertyForIndex(index), parent);
    }
};

void useDelegate(ResourceReferenceDelegateBase *delegate)
{
    auto *factory = new KPropertyWidgetsFactory;
    factory->addEditor(4001, delegate);
    KPropertyWidgetsPluginManager::self()->registerFactory(factory);
}

constexpr char kFile[] = "KarvonLayout";

struct SleepyColumn : Column
{
    SleepyColumn()
        : Column(settingsCell("Karvon", {setting(kFile, text("/a.ini")), setting("Samples", text("one"))}))
    {}

    KPropertyCustomEditorView &tree() { return *view->editorView(); }
    bool type(const char *typed)
    {
        if (!LeavingWays::open(tree(), kFile))
            return false;
        LeavingWays::type(text(typed));
        return LeavingWays::leave(tree(), LeavingWays::Way::Enter);
    }
    QString remark() { return tree().remark(property(kFile)); }
    [[nodiscard]] QString stored() const { return valueIn(item.content(), kFile).toString(); }
};

} // namespace

class SlowQuestionTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void cleanup();
    void aQuickAnswerComesAtOnce();
    void aLateAnswerIsHeardLater();
    void nobodyMayBeThereToHear();
    void aPathOnASleepingDiskIsTaken_data();
    void aPathOnASleepingDiskIsTaken();
    void aLateNoDoesNotBelongToAnotherValue();
    void theColumnMayGoBeforeTheDiskAnswers();
};

void SlowQuestionTest::initTestCase()
{
    ORVPropertyFactory::init();
    useDelegate(new SleepyDelegate);
}

void SlowQuestionTest::cleanupTestCase()
{
    useDelegate(new MirelResourceReferenceDelegate);
}

void SlowQuestionTest::cleanup()
{
    // Nobody stays waiting, and the next test has a disk of its own.
    disk()->awake.release(10);
    disk() = std::make_shared<SleepingDisk>();
}

void SlowQuestionTest::aQuickAnswerComesAtOnce()
{
    const auto never = [](bool) { qFatal("The answer came twice"); };
    using namespace std::chrono_literals;
    QCOMPARE(SlowQuestion::ask([] { return true; }, this, never, 60s), std::optional(true));
    QCOMPARE(SlowQuestion::ask([] { return false; }, this, never, 60s), std::optional(false));
}

void SlowQuestionTest::aLateAnswerIsHeardLater()
{
    QList<bool> heard;
    const auto asked = SlowQuestion::ask(
        [disk = disk()] {
            disk->awake.acquire();
            return true;
        },
        this, [&](bool answer) { heard.append(answer); }, kNoPatience);
    QVERIFY(!asked);
    QVERIFY(heard.isEmpty());
    disk()->awake.release();
    QTRY_COMPARE(heard, QList<bool>{true});
}

void SlowQuestionTest::nobodyMayBeThereToHear()
{
    auto context = std::make_unique<QObject>();
    const auto end = std::make_shared<QSemaphore>();
    const auto asked = SlowQuestion::ask(
        [disk = disk(), end] {
            disk->awake.acquire();
            end->release();
            return true;
        },
        context.get(), [](bool) { qFatal("Nobody is there"); }, kNoPatience);
    QVERIFY(!asked);
    context.reset();
    disk()->awake.release();
    end->acquire();
    QCoreApplication::sendPostedEvents();
}

void SlowQuestionTest::aPathOnASleepingDiskIsTaken_data()
{
    QTest::addColumn<bool>("hasFile");
    QTest::addColumn<QString>("remark");
    QTest::newRow("it is there") << true << QString();
    QTest::newRow("it is not there") << false
                                     << text(
                                            "\"/b.ini\" was taken before the disk answered: there is no such "
                                            "file here. Choose one with the \"…\" button.");
}

void SlowQuestionTest::aPathOnASleepingDiskIsTaken()
{
    QFETCH(bool, hasFile);
    QFETCH(QString, remark);
    SleepyColumn c;
    disk()->hasFile = hasFile;
    QVERIFY(c.type("/b.ini"));
    QCOMPARE(c.stored(), text("/b.ini"));
    QCOMPARE(c.remark(), QString());
    disk()->awake.release();
    if (hasFile)
        QCoreApplication::processEvents();
    QTRY_COMPARE(c.remark(), remark);
    QCOMPARE(c.stored(), text("/b.ini"));
}

void SlowQuestionTest::aLateNoDoesNotBelongToAnotherValue()
{
    SleepyColumn c;
    QVERIFY(c.type("/b.ini"));
    c.property(kFile).setValue(QVariant::fromValue(*ResourceReference::fromString(text("/c.ini"))));
    QVERIFY(c.type("/d.ini"));
    disk()->awake.release(2);
    QTRY_VERIFY(c.remark().startsWith(text("\"/d.ini\"")));
    QCOMPARE(c.stored(), text("/d.ini"));
}

void SlowQuestionTest::theColumnMayGoBeforeTheDiskAnswers()
{
    {
        SleepyColumn c;
        QVERIFY(c.type("/b.ini"));
        (void)c.item.setContent(settingsCell("Karvon", {setting("Samples", text("x"))}));
        QVERIFY(c.view->propertySet());
    }
    disk()->awake.release();
    QCoreApplication::sendPostedEvents();
}

WIDGET_REGISTER_TEST(SlowQuestionTest)
#include "SlowQuestionTest.moc"
