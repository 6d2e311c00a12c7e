// Whoever hears of a change may do the worst with the tree, and the change that told of it ends in peace.
#include "Documents.h"
#include "LogCapture.h"
#include "OrvTest.h"

#include <KProperty>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/MassesTableItem.h>

#include <QMetaMethod>

#include <functional>
#include <memory>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;

namespace {

QJsonObject settingsCell()
{
    return Documents::parse(R"({"type": "Karvon", "name": "search", "properties": [
        {"name": "KarvonCentroidWidthVal", "value": "0.01", "group": "One"},
        {"name": "KarvonModText", "value": {"data": {"modifications": ""}}, "group": "Two"}]})");
}

QJsonObject massesCell()
{
    return Documents::parse(R"({"type": "Masses", "properties": [
        {"name": "MassTable", "value": {"data": ["Name", "Mass"], "children": [{"data": ["a", 1]}, {"data": ["b", 2]}]}},
        {"name": "MatchTolerance", "value": {"data": [], "children": []}}]})");
}

QJsonObject lively()
{
    return Documents::document({Documents::tab(u"First"_s, {u"A"_s, u"B"_s},
                                               {settingsCell(), massesCell(), settingsCell(), massesCell()}),
                                Documents::tab(u"Second"_s, {u"C"_s}, {Documents::cell(u"Samples"_s)})});
}

/// A signal of one of the objects of a tree.
struct Heard
{
    qsizetype sender = 0;
    int signal = 0;

    bool operator==(const Heard &) const = default;
};

/// A document, and what edits and listeners find in it.
class Tree : public QObject
{
    Q_OBJECT

public:
    using Action = std::function<void(Tree &)>;

    explicit Tree(Action worst)
        : content(std::make_unique<Content>())
        , m_worst(std::move(worst))
    {
        if (content->assignFromJson(lively()))
            qFatal("The test's document is broken");
        m_senders = {content.get(),
                     tab(),
                     column(0),
                     column(1),
                     settings(),
                     masses(),
                     content->group(1)->subGroup(0)->item(0)};
    }

    ~Tree() override
    {
        m_worst = {};
        content.reset();
    }
    Q_DISABLE_COPY_MOVE(Tree)

    [[nodiscard]] ItemGroup *tab() const { return content->group(0); }
    [[nodiscard]] ItemSubGroup *column(int index) const { return tab()->subGroup(index); }
    [[nodiscard]] KeyValueItem *settings() const { return qobject_cast<KeyValueItem *>(column(0)->item(0)); }
    [[nodiscard]] MassesTableItem *masses() const
    {
        return qobject_cast<MassesTableItem *>(column(1)->item(0));
    }

    /// Hears one signal.
    void listen(const Heard &heard)
    {
        QObject *const sender = m_senders.at(heard.sender);
        const QMetaMethod slot = metaObject()->method(metaObject()->indexOfSlot("act()"));
        connect(sender, sender->metaObject()->method(heard.signal), this, slot);
    }

    void listenToAll()
    {
        for (qsizetype sender = 0; sender < m_senders.size(); ++sender) {
            const QMetaObject *const meta = m_senders.at(sender)->metaObject();
            for (int method = 0; method < meta->methodCount(); ++method) {
                if (meta->method(method).methodType() == QMetaMethod::Signal)
                    listen({sender, method});
            }
        }
    }

    /// Every signal that came, once each.
    [[nodiscard]] QList<Heard> heard() const { return m_heard; }

    std::unique_ptr<Content> content;

public Q_SLOTS:
    void act()
    {
        const Heard heard{m_senders.indexOf(sender()), senderSignalIndex()};
        if (!m_heard.contains(heard))
            m_heard.append(heard);
        if (const Action worst = std::exchange(m_worst, {}))
            worst(*this);
    }

private:
    Action m_worst;
    QList<QObject *> m_senders;
    QList<Heard> m_heard;
};

struct Named
{
    const char *name;
    Tree::Action act;
};

QList<Named> editsOfContainers()
{
    return {
        {"add a tab", [](Tree &tree) { tree.content->addGroup(u"New"_s); }},
        {"remove a tab", [](Tree &tree) { tree.content->removeGroup(0); }},
        {"clear the document", [](Tree &tree) { tree.content->clear(); }},
        {"load the document", [](Tree &tree) { Q_UNUSED(tree.content->assignFromJson(lively())) }},
        {"show metadata", [](Tree &tree) { tree.content->updateMetadataContent(); }},
        {"move references", [](Tree &tree) { tree.content->updateReferences({}); }},
        {"add a column", [](Tree &tree) { tree.tab()->addSubGroup(u"New"_s, BaseItemType::Karvon); }},
        {"remove a column", [](Tree &tree) { tree.tab()->removeSubGroup(0); }},
        {"clear a tab", [](Tree &tree) { tree.tab()->clear(); }},
        {"load a tab",
         [](Tree &tree) { Q_UNUSED(tree.tab()->assignFromJson(lively()["tabs"_L1][0].toObject(), {})) }},
        {"add a cell", [](Tree &tree) { tree.column(0)->addItem(BaseItemType::Karvon); }},
        {"remove a cell", [](Tree &tree) { tree.column(0)->removeItem(0); }},
        {"clear a column", [](Tree &tree) { tree.column(0)->clear(); }},
        {"load a column",
         [](Tree &tree) {
             Q_UNUSED(tree.column(0)->assignFromJson({settingsCell(), massesCell()}, u"A"_s, {}))
         }},
    };
}

QList<Named> editsOfSettings()
{
    const QString key = u"KarvonCentroidWidthVal"_s;
    return {
        {"insert", [](Tree &tree) { tree.settings()->insert(u"New"_s, 5, KProperty::Int); }},
        {"remove", [key](Tree &tree) { tree.settings()->remove(key); }},
        {"remove two",
         [key](Tree &tree) {
             tree.settings()->remove({key, u"KarvonModText"_s});
         }},
        {"set", [key](Tree &tree) { tree.settings()->setValue(key, 0.02); }},
        {"set what it has",
         [key](Tree &tree) { tree.settings()->setValue(key, tree.settings()->value(key)); }},
        {"replace", [key](Tree &tree) { tree.settings()->replace(key, key, 1, KProperty::Int); }},
        {"set an option", [key](Tree &tree) { tree.settings()->setOption(key, "min", 0); }},
        {"set a group", [key](Tree &tree) { tree.settings()->setGroup(key, u"Three"_s); }},
        {"set a caption", [](Tree &tree) { tree.settings()->setGroupCaption(u"one"_s, u"Uno"_s); }},
        {"remove a group", [](Tree &tree) { tree.settings()->removeGroup(u"one"_s); }},
        {"move a group", [](Tree &tree) { tree.settings()->moveGroup(u"Two"_s, {}); }},
        {"clear settings", [](Tree &tree) { tree.settings()->clear(); }},
        {"load settings", [](Tree &tree) { Q_UNUSED(tree.settings()->assignFromJson(settingsCell(), {})) }},
    };
}

QList<Named> editsOfTables()
{
    return {
        {"add a row",
         [](Tree &tree) {
             tree.masses()->addRow({u"c"_s, 3});
         }},
        {"add a blank row", [](Tree &tree) { tree.masses()->addRow({}); }},
        {"remove a row", [](Tree &tree) { tree.masses()->removeRow(0); }},
        {"set a row",
         [](Tree &tree) {
             tree.masses()->setRowValues(0, {u"c"_s, 3});
         }},
        {"set a value", [](Tree &tree) { tree.masses()->setValue(0, 0, u"c"_s); }},
        {"add a table column", [](Tree &tree) { tree.masses()->addColumn(u"New"_s); }},
        {"remove a table column", [](Tree &tree) { tree.masses()->removeColumn(u"Mass"_s); }},
        {"rename a table column", [](Tree &tree) { tree.masses()->setColumnName(0, u"New"_s); }},
        {"set masses", [](Tree &tree) { tree.masses()->setDeltaMasses({}); }},
        {"set a tolerance", [](Tree &tree) { tree.masses()->setMassTolerance(5); }},
        {"set a unit", [](Tree &tree) { tree.masses()->setMassToleranceUnit(u"ppm"_s); }},
        {"clear a table", [](Tree &tree) { tree.masses()->clear(); }},
        {"load a table", [](Tree &tree) { Q_UNUSED(tree.masses()->assignFromJson(massesCell(), {})) }},
    };
}

QList<Named> worstActions()
{
    const auto withTab = [](Tree &tree) { return tree.content && tree.content->count() > 0; };
    const auto withColumn = [withTab](Tree &tree) { return withTab(tree) && tree.tab()->count() > 1; };
    return {
        {"the document goes", [](Tree &tree) { tree.content.reset(); }},
        {"the document is cleared",
         [](Tree &tree) {
             if (tree.content)
                 tree.content->clear();
         }},
        {"the document is loaded",
         [](Tree &tree) {
             if (tree.content)
                 Q_UNUSED(tree.content->assignFromJson(lively()))
         }},
        {"the tab goes",
         [withTab](Tree &tree) {
             if (withTab(tree))
                 tree.content->removeGroup(0);
         }},
        {"the columns go",
         [withTab](Tree &tree) {
             if (withTab(tree))
                 tree.tab()->clear();
         }},
        {"the cells go",
         [withColumn](Tree &tree) {
             if (withColumn(tree)) {
                 tree.column(1)->clear();
                 tree.column(0)->clear();
             }
         }},
    };
}

} // namespace

class TestTreeListeners : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyEditSurvivesItsListeners_data();
    void everyEditSurvivesItsListeners();
    void theDocumentGoesBetweenTwoSignals_data();
    void theDocumentGoesBetweenTwoSignals();
};

void TestTreeListeners::everyEditSurvivesItsListeners_data()
{
    QTest::addColumn<Tree::Action>("edit");
    QTest::addColumn<Tree::Action>("worst");
    for (const Named &edit : editsOfContainers() + editsOfSettings() + editsOfTables()) {
        for (const Named &worst : worstActions())
            QTest::addRow("%s, %s", edit.name, worst.name) << edit.act << worst.act;
    }
}

void TestTreeListeners::everyEditSurvivesItsListeners()
{
    const LogCapture log;
    QFETCH(Tree::Action, edit);
    QFETCH(Tree::Action, worst);
    Tree harmless({});
    harmless.listenToAll();
    edit(harmless);
    QVERIFY(!harmless.heard().isEmpty());
    for (const Heard &heard : harmless.heard()) {
        Tree tree(worst);
        tree.listen(heard);
        edit(tree);
        QCOMPARE(tree.heard().size(), 1);
    }
}

void TestTreeListeners::theDocumentGoesBetweenTwoSignals_data()
{
    QTest::addColumn<Tree::Action>("edit");
    for (const Named &edit : editsOfContainers() + editsOfSettings() + editsOfTables())
        QTest::newRow(edit.name) << edit.act;
}

void TestTreeListeners::theDocumentGoesBetweenTwoSignals()
{
    const LogCapture log;
    QFETCH(Tree::Action, edit);
    // Every signal of every object at once: whichever is first ends the document, and none follows.
    Tree tree([](Tree &heard) { heard.content.reset(); });
    tree.listenToAll();
    edit(tree);
    QVERIFY(!tree.content);
}

ORV_REGISTER_TEST(TestTreeListeners)

#include "TestTreeListeners.moc"
