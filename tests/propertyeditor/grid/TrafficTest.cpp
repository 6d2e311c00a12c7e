#include "TestData.h"
#include "TestFiles.h"
#include "WholeWorkflow.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/editors/ORVPropertyFactory.h>
#include <orv/samples/SamplesInput.h>
#include <orv/table_model/TableModel.h>
#include <orv/widgets/ProteinTableWidget.h>
#include <orv/widgets/SamplesAndTracesInputWidget.h>
#include <orv/widgets/TableView.h>

#include <QTemporaryDir>

using namespace orv;
using namespace GridFixture;

namespace {

QString listed(const QVariant &value)
{
    QStringList texts;
    if (value.canConvert<QList<SamplesInput::Entry>>()) {
        for (const SamplesInput::Entry &entry : value.value<QList<SamplesInput::Entry>>())
            texts.append(entry.name);
        return u'[' + texts.join(text(", ")) + u']';
    }
    if (value.canConvert<SamplesProteinsTableItem::InternalMessage>()) {
        const auto message = value.value<SamplesProteinsTableItem::InternalMessage>();
        for (const SamplePathAndName &file : message.newSampleFiles.value_or(QList<SamplePathAndName>()))
            texts.append(file.name);
        return message.proteins ? text("a table of proteins")
                                : text("files [") + texts.join(text(", ")) + u']';
    }
    const QJsonObject table = value.toJsonObject();
    return table.isEmpty() ? text("nothing")
                           : text("a table of %1 row(s)").arg(table.value(text("children")).toArray().size());
}

/// Writes down who says what.
class Scribe : public GridCommunicative
{
public:
    Scribe(GridCommunicationManager *bus, QStringList *lines)
        : GridCommunicative(bus)
        , m_lines(lines)
    {}

    void messageReceived(const GridMessage &message) override
    {
        const QString sender = text(message.sender->metaObject()->className()).remove(text("orv::"));
        QString line = text("  %1 %2: %3").arg(sender).arg(int(message.type)).arg(listed(message.value));
        if (message.previousValue.isValid())
            line += text(", before ") + listed(message.previousValue);
        m_lines->append(line);
    }

private:
    QStringList *m_lines;
};

/// A workflow with every kind of column, and what its columns say while somebody works in it.
struct Session
{
    Session()
        : columns([this](GridCommunicationManager *bus) {
            lines.append(text("columns are made and filled"));
            scribe = std::make_unique<Scribe>(bus, &lines);
        })
    {}

    void step(const char *what, const std::function<void()> &work)
    {
        lines.append(text(what));
        work();
        QCoreApplication::processEvents();
        lines.append(text("  samples of the search: ") +
                     valueIn(columns.item(BaseItemType::Karvon).content(), "Samples").toString());
    }

    /// The table of samples or of proteins.
    TableView *tableOf(BaseItemType kind)
    {
        QWidget *widget = columns.item(kind).widget();
        if (auto *proteins = widget->findChild<ProteinTableWidget *>())
            widget = proteins;
        return widget->findChild<TableView *>();
    }

    /// Types into the first cell of a row that can be edited.
    void type(BaseItemType kind, int row, const char *typed)
    {
        TableView *table = tableOf(kind);
        int column = 0;
        while (!table->model()->index(row, column).flags().testFlag(Qt::ItemIsEditable))
            ++column;
        columns.item(kind).widget()->show();
        (void)QTest::qWaitForWindowActive(columns.item(kind).widget());
        table->setFocus();
        table->setCurrentIndex(table->model()->index(row, column));
        QTest::keyClick(table, Qt::Key_F2);
        QWidget *editor = QApplication::focusWidget();
        QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(editor, text(typed));
        QTest::keyClick(editor, Qt::Key_Return);
    }

    void key(BaseItemType kind, Qt::Key key, Qt::KeyboardModifiers modifiers)
    {
        QTest::keyClick(tableOf(kind), key, modifiers);
    }

    QStringList lines;
    std::unique_ptr<Scribe> scribe;
    WholeWorkflow::Columns columns;
};

} // namespace

class TrafficTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theTrafficOfASession();
};

void TrafficTest::initTestCase()
{
    ORVPropertyFactory::init();
}

void TrafficTest::theTrafficOfASession()
{
    const QTemporaryDir folder;
    const QString csv = folder.filePath(text("table.csv"));
    TestFiles::makeFile(csv, "Sample Name,Sample Path,Protein Name,Protein Sequence\n"
                             "four,four.raw,P1,PEPTIDEK\n");
    Session session;
    using Kind = BaseItemType;
    auto *samples = static_cast<SamplesAndTracesInputWidget *>(session.columns.item(Kind::Samples).widget());
    session.step("two files are added", [&] {
        samples->addNewSampleFiles(
            {{text("/data/one.raw"), text("one")}, {text("/data/two.raw"), text("two")}});
    });
    session.step("a sample is renamed", [&] { session.type(Kind::Samples, 0, "first"); });
    session.step("that is undone", [&] { session.key(Kind::Samples, Qt::Key_Z, Qt::ControlModifier); });
    session.step("a sample is named as another", [&] { session.type(Kind::Samples, 0, "two"); });
    session.step("a protein is named", [&] { session.type(Kind::Proteins, 0, "P2"); });
    session.step("a setting is changed", [&] {
        auto *view = static_cast<GridPropertyEditorView *>(session.columns.item(Kind::Karvon).widget());
        view->propertySet()->property("KarvonDebugMode").setValue(true);
    });
    session.step("a column of masses is added", [&] {
        session.columns.items[Kind::Unknown].reset(session.columns.manager.createItem(Kind::Masses));
    });
    session.step("a table is imported", [&] {
        static_cast<SamplesProteinsTableItem &>(session.columns.item(Kind::SamplesProteins)).importCSV(csv);
    });
    session.step("the column of masses goes, and a file is added", [&] {
        session.columns.items.erase(Kind::Unknown);
        samples->addNewSampleFiles({{text("/data/five.raw"), text("five")}});
    });
    session.step("the column of samples goes, and a protein is named", [&] {
        session.columns.items[Kind::Samples].reset();
        session.type(Kind::Proteins, 0, "P3");
    });

    const QByteArray traffic = session.lines.join(u'\n').toUtf8() + '\n';
    const QString golden = TestData::path(text("../propertyeditor/grid/data/traffic.txt"));
    if (qEnvironmentVariableIsSet("ORV_UPDATE_GOLDEN"))
        TestFiles::makeFile(golden, traffic);
    QCOMPARE(QString::fromUtf8(traffic), QString::fromUtf8(TestData::read(golden)));
}

WIDGET_REGISTER_TEST(TrafficTest)
#include "TrafficTest.moc"
