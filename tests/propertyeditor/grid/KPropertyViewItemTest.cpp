#include "GridFixture.h"
#include "LogCapture.h"
#include "WidgetTest.h"

#include <orv/samples/SamplesInput.h>

using namespace orv;
using namespace GridFixture;

namespace {

QVariant samples(const QStringList &namesAndFiles)
{
    QList<SamplesInput::Entry> entries;
    for (const QString &sample : namesAndFiles) {
        SamplesInput::Entry entry;
        entry.name = sample.section(u'=', 0, 0);
        entry.msFile = *ResourceReference::fromString(text("/data/") + sample.section(u'=', 1));
        entries.append(entry);
    }
    return QVariant::fromValue(entries);
}

QStringList words(const char *utf8)
{
    return text(utf8).split(u' ', Qt::SkipEmptyParts);
}

} // namespace

class KPropertyViewItemTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void aCellComesBackAsItWas();
    void withoutAViewThereIsNothing();
    void renamedAndRemovedSamplesAreFollowed_data();
    void renamedAndRemovedSamplesAreFollowed();
    void valuesThatAreNoSamplesAreNone();
    void aStormOfSamplesIsLinear();
    void tablesReachTheTheoreticalPeptides();
    void editsAreTold();
    void loadsAndBaseUrlsAreNoEdits();
    void aViewThatIsShownBelongsToItsParent();
    void aViewOfOnesOwnIsAsked();
    void baseUrlsAreLogged();
};

void KPropertyViewItemTest::aCellComesBackAsItWas()
{
    Column column;
    QJsonObject content = column.item.content();
    QCOMPARE(content.value(text("name")).toString(), QString());
    QCOMPARE(content.value(text("type")).toString(), text("Karvon"));
    QJsonObject expected = karvonCell();
    for (const char *key : {"name", "metadata"}) {
        content.remove(text(key));
        expected.remove(text(key));
    }
    QCOMPARE(content, expected);
}

void KPropertyViewItemTest::withoutAViewThereIsNothing()
{
    GridCommunicationManager bus;
    KPropertyViewItem item(&bus);
    delete item.widget();
    QVERIFY(!item.widget());
    const Error error = item.setContent(karvonCell());
    QCOMPARE(error.code(), ErrorCode::MalformedStructure);
    QCOMPARE(error.errorMessage(), text("The object is not initialized."));
    QVERIFY(item.content().isEmpty());
    item.messageReceived({nullptr, PropertyId(265), samples({}), samples({})});
    item.messageReceived({nullptr, PropertyId(131), QJsonObject(), {}});
}

void KPropertyViewItemTest::renamedAndRemovedSamplesAreFollowed_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("tokens");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *before, const char *after, const char *tokens,
                        const char *expected) {
        QTest::newRow(name) << text(before) << text(after) << text(tokens) << text(expected);
    };
    row("renamed", "one=1 two=2", "first=1 two=2", "one; two", "first; two");
    row("removed", "one=1 two=2", "two=2", "one; two", "two");
    row("every occurrence of a removed one goes", "one=1 two=2", "two=2", "one; two; one", "two");
    row("every occurrence of a renamed one", "one=1", "first=1", "one; one", "first; first");
    row("to a name that stands there", "one=1 two=2", "two=1 three=2", "one; two", "two; two");
    row("exchanged names stay", "one=1 two=2", "two=1 one=2", "one; two", "one; two");
    row("another file of the same name", "one=1", "one=9", "one", "one");
    row("never a sample", "one=1", "first=1", "*; one", "*; first");
    row("no longer known", "one=1 two=2", "", "one; two; other", "other");
    row("the last of equal names counts", "one=1 one=2", "first=1 second=2", "one", "second");
    row("samples without a name", "=1 two=2", "=1 zwei=2", "two", "zwei");
    row("texts that nobody touches stay", "one=1 two=2", "one=1 two=2", "one;two", "one;two");
    row("the first list", "", "one=1", "one; two", "one; two");
}

void KPropertyViewItemTest::renamedAndRemovedSamplesAreFollowed()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(QString, tokens);
    QFETCH(QString, expected);
    Column column(settingsCell("Karvon", {setting("Samples", tokens)}));
    const QVariant now = samples(words(qPrintable(after)));
    column.item.messageReceived({nullptr, PropertyId(265), now, samples(words(qPrintable(before)))});
    QCOMPARE(column.property("Samples").value().toString(), expected);
}

void KPropertyViewItemTest::valuesThatAreNoSamplesAreNone()
{
    Column column;
    column.item.messageReceived({nullptr, PropertyId(265), text("samples"), 7});
    QCOMPARE(column.property("Samples").value().toString(), text("one; two"));
    column.set().removeProperty("Samples");
    column.item.messageReceived({nullptr, PropertyId(265), samples({}), samples(words("one=1"))});
}

void KPropertyViewItemTest::aStormOfSamplesIsLinear()
{
    constexpr int kSamples = 20'000;
    QStringList before;
    QStringList after;
    QStringList tokens;
    QStringList expected;
    for (int i = 0; i < kSamples; ++i) {
        before.append(text("s%1=%1").arg(i));
        after.append(text("t%1=%1").arg(i));
        tokens.append(text("s%1").arg(i));
        expected.append(text("t%1").arg(i));
    }
    Column column(settingsCell("Karvon", {setting("Samples", tokens.join(text("; ")))}));
    column.item.messageReceived({nullptr, PropertyId(265), samples(after), samples(before)});
    QCOMPARE(column.property("Samples").value().toString(), expected.join(text("; ")));
    column.item.messageReceived({nullptr, PropertyId(265), samples({}), samples(after)});
    QCOMPARE(column.property("Samples").value().toString(), QString());
}

void KPropertyViewItemTest::tablesReachTheTheoreticalPeptides()
{
    GridCommunicationManager bus;
    KPropertyViewItem item(&bus);
    auto *view = static_cast<GridPropertyEditorView *>(item.widget());
    view->setDocumentType(BaseItemType::Senthia);
    QVERIFY(!item.setContent(settingsCell("Senthia", {setting("TheoreticalPeptides", QJsonObject())}))
                 .hasError());
    const QJsonObject proteins{{text("data"), QJsonArray{text("ProteinSequence")}}};
    item.messageReceived({nullptr, PropertyId(253), proteins, {}});
    item.messageReceived({nullptr, PropertyId(131), QJsonObject{{text("data"), 1}}, {}});
    item.messageReceived({nullptr, PropertyId(207), QJsonObject{{text("data"), 2}}, {}});
    const KProperty &property = view->propertySet()->property("TheoreticalPeptides");
    QCOMPARE(property.option("Proteins").toJsonObject(), proteins);
    QCOMPARE(property.option("Disulfide").toJsonObject(), (QJsonObject{{text("data"), 1}}));
    QVERIFY(!property.option("MassTable").isValid());
}

void KPropertyViewItemTest::editsAreTold()
{
    Column column;
    int edits = 0;
    connect(column.item.edits(), &GridItemEdits::edited, this, [&] { ++edits; });
    column.view->setPropertiesViewMode(GridPropertyEditorView::PropertiesViewMode::Advanced);
    const QModelIndex row = indexOf(*column.view->editorView(), "KarvonDebugMode");
    QVERIFY(row.isValid());
    QCOMPARE(edits, 0);
    column.property("KarvonDebugMode").setValue(true);
    QCOMPARE(edits, 1);
    column.item.messageReceived(
        {nullptr, PropertyId(265), samples(words("first=1 two=2")), samples(words("one=1 two=2"))});
    QCOMPARE(edits, 2);
    column.item.messageReceived(
        {nullptr, PropertyId(265), samples(words("first=1 two=2")), samples(words("one=1 two=2"))});
    QCOMPARE(edits, 2);
}

void KPropertyViewItemTest::loadsAndBaseUrlsAreNoEdits()
{
    Column column;
    int edits = 0;
    connect(column.item.edits(), &GridItemEdits::edited, this, [&] { ++edits; });
    QVERIFY(!column.item.setContent(karvonCell()).hasError());
    column.view->setBaseUrlForRelativeUrls(QUrl(text("file:///data/")));
    column.view->setEditorMode(GridPropertyEditorView::EditorMode::Designer);
    column.view->setPropertiesViewMode(GridPropertyEditorView::PropertiesViewMode::Advanced);
    QCOMPARE(edits, 0);
    QCOMPARE(column.property("KarvonLayout").option("baseUrl").toUrl(), QUrl(text("file:///data/")));
}

void KPropertyViewItemTest::aViewThatIsShownBelongsToItsParent()
{
    QWidget parent;
    QPointer<QWidget> shown;
    QPointer<QWidget> loose;
    {
        GridCommunicationManager bus;
        KPropertyViewItem first(&bus);
        KPropertyViewItem second(&bus);
        shown = first.widget();
        shown->setParent(&parent);
        loose = second.widget();
    }
    QVERIFY(shown);
    QVERIFY(!loose);
}

namespace {

/// Finds fault with whatever it shows.
class DoubtfulView : public GridPropertyEditorView
{
public:
    DoubtfulView()
        : GridPropertyEditorView(nullptr)
    {}
    bool validate(QStringList *warnings) const override
    {
        warnings->append(text("doubtful"));
        return false;
    }
};

class OwnViewItem : public KPropertyViewItem
{
public:
    OwnViewItem(GridCommunicationManager *bus, GridPropertyEditorView *view)
        : KPropertyViewItem(bus, view)
    {}
};

} // namespace

void KPropertyViewItemTest::aViewOfOnesOwnIsAsked()
{
    GridCommunicationManager bus;
    DoubtfulView view;
    QStringList warnings;
    QStringList others;
    {
        OwnViewItem item(&bus, &view);
        QCOMPARE(item.widget(), &view);
        for (int type : {0, 1, 2}) {
            QVERIFY(!item.validate(&warnings, &others, &others, WidgetValidationType(type)));
            QCOMPARE(std::exchange(warnings, {}), QStringList(text("doubtful")));
        }
    }
    // It isn't the item's; without one the item makes its own, which finds no fault.
    view.setDocumentType(BaseItemType::Karvon);
    OwnViewItem item(&bus, nullptr);
    QVERIFY(item.widget() && item.widget() != &view);
    QVERIFY(item.validate(&warnings, &others, &others, WidgetValidationType::ProjectCreation));
    QVERIFY(warnings.isEmpty() && others.isEmpty());
}

void KPropertyViewItemTest::baseUrlsAreLogged()
{
    const QUrl url(text("file:///data/"));
    const auto isLogged = [&](GridPropertyEditorView &view) {
        const LogCapture log;
        view.setBaseUrlForRelativeUrls(url);
        const QStringList lines = log.texts(QtDebugMsg);
        return lines.size() == 1 && lines[0].contains(text("Setting base URL")) &&
               lines[0].contains(url.toString());
    };
    Column column;
    QVERIFY(isLogged(*column.view));
    GridPropertyEditorView empty;
    QVERIFY(!isLogged(empty));
}

WIDGET_REGISTER_TEST(KPropertyViewItemTest)
#include "KPropertyViewItemTest.moc"
