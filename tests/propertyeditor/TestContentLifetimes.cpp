#include "Documents.h"
#include "OrvTest.h"

#include <orv/core/LossObserver.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>

#include <functional>
#include <memory>

using namespace orv;
using namespace orv::PropertyEditor;

/// Who may go while others still look: observers of loads, items, columns, tabs and documents.
class TestContentLifetimes : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void itemsOutliveTheObserverOfTheirLoad_data();
    void itemsOutliveTheObserverOfTheirLoad();
    void whoHearsOfAnEndFindsTheRestAsItIs_data();
    void whoHearsOfAnEndFindsTheRestAsItIs();
};

namespace {

QJsonObject threeItems()
{
    const auto cell = [](const char *type) { return Documents::cell(QString::fromLatin1(type)); };
    return Documents::document(
        {Documents::tab(QStringLiteral("First"), {QStringLiteral("A")}, {cell("Samples"), cell("Karvon")}),
         Documents::tab(QStringLiteral("Second"), {QStringLiteral("B")}, {cell("Masses")})});
}

} // namespace

void TestContentLifetimes::itemsOutliveTheObserverOfTheirLoad_data()
{
    QTest::addColumn<QString>("type");
    for (const char *type : {"Karvon", "Masses", "Samples", "Database", "Isotope"})
        QTest::newRow(type) << QString::fromLatin1(type);
}

void TestContentLifetimes::itemsOutliveTheObserverOfTheirLoad()
{
    QFETCH(QString, type);
    QJsonObject cell = Documents::cell(type);
    cell.insert(QStringLiteral("zoom"), QJsonArray{2});
    auto lost = std::make_unique<LossCollector>();
    Content content;
    content.setLossObserver(lost.get());
    ORV_VERIFY_OK(content.assignFromJson(
        Documents::document({Documents::tab(QStringLiteral("T"), {QStringLiteral("C")}, {cell})})));
    QCOMPARE(lost->losses().size(), 1);
    content.setLossObserver(nullptr);
    lost.reset();
    BaseItem *item = content.group(0)->subGroup(0)->item(0);
    ORV_VERIFY_OK(item->assignFromJson(cell, {}));
    QCOMPARE(item->typeString(), type);
}

void TestContentLifetimes::whoHearsOfAnEndFindsTheRestAsItIs_data()
{
    using End = std::function<void(std::unique_ptr<Content> &)>;
    QTest::addColumn<End>("end");

    const auto row = [](const char *name, const End &end) { QTest::newRow(name) << end; };
    row("the document is cleared", [](std::unique_ptr<Content> &content) { content->clear(); });
    row("the document is loaded anew",
        [](std::unique_ptr<Content> &content) { ORV_VERIFY_OK(content->assignFromJson(threeItems())); });
    row("the document goes", [](std::unique_ptr<Content> &content) { content.reset(); });
    row("a tab is cleared", [](std::unique_ptr<Content> &content) { content->group(0)->clear(); });
    row("a column is cleared",
        [](std::unique_ptr<Content> &content) { content->group(0)->subGroup(0)->clear(); });
}

void TestContentLifetimes::whoHearsOfAnEndFindsTheRestAsItIs()
{
    QFETCH(std::function<void(std::unique_ptr<Content> &)>, end);
    auto content = std::make_unique<Content>();
    ORV_VERIFY_OK(content->assignFromJson(threeItems()));
    // A copy shares the tree and is there until the last child has gone.
    auto copy = std::make_unique<Content>(*content);
    qsizetype heard = 0;
    for (BaseItem *item : content->findAllItems(content->allItems())) {
        connect(item, &QObject::destroyed, this, [&] {
            ++heard;
            for (const Content *tree : {content.get(), copy.get()}) {
                for (const BaseItem *left : tree ? tree->findAllItems(tree->allItems()) : QList<BaseItem *>())
                    QVERIFY(!left->typeString().isEmpty());
            }
        });
    }
    end(content);
    content.reset();
    copy.reset();
    QCOMPARE(heard, 3);
}

ORV_REGISTER_TEST(TestContentLifetimes)

#include "TestContentLifetimes.moc"
