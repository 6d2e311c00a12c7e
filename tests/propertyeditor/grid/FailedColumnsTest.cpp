#include "GridHands.h"
#include "LogCapture.h"
#include "WholeWorkflow.h"
#include "WidgetTest.h"

#include <orv/core/Settings.h>

using namespace orv;
using namespace GridFixture;
using namespace GridHands;

namespace {

/// A grid of A and B that has a name without a column behind it: a column was appended, or B copied, in vain.
std::unique_ptr<PropertyGridWidget> gridWithFailure(bool byCopy)
{
    std::unique_ptr<PropertyGridWidget> grid;
    {
        const as::ScopedOverride off(as::kWorkflowVerificationEnabled, false);
        const auto cell = [](const char *type, const char *name) {
            return cellOf(settingsCell(type, {setting("Samples", text(name))}, name));
        };
        auto made = PropertyGridWidget::create(names("A,B"), {cell("Karvon", "A"), cell("Spectra", "B")});
        if (made.hasError())
            qFatal("The fixture doesn't load");
        grid = std::move(made).value();
    }
    if (byCopy)
        grid->copyColumn(1);
    else
        grid->appendColumn(BaseItemType::Unknown, text("B - copy"), true);
    return grid;
}

} // namespace

/// A failed column leaves its name behind; what follows goes by the places from the front.
class FailedColumnsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void laterActsKeepTheListsTogether_data();
    void laterActsKeepTheListsTogether();
    void tablesKeepTheMenuOfTheColumnBefore();
    void aTableFirstHasTheMenuAsItWasMade();
};

void FailedColumnsTest::laterActsKeepTheListsTogether_data()
{
    QTest::addColumn<bool>("byCopy");
    QTest::newRow("append") << false;
    QTest::newRow("copy") << true;
}

void FailedColumnsTest::laterActsKeepTheListsTogether()
{
    QFETCH(bool, byCopy);
    const LogCapture log;
    const auto grid = gridWithFailure(byCopy);
    grid->show();
    const auto is = [&](const char *expectedNames, const char *headers) {
        QStringList items;
        for (const IGridItem *item : grid->items())
            items.append(item->name());
        return grid->columnNames() == names(expectedNames) && headerTexts(*grid) == names(headers) &&
               items == names(headers) && grid->cells().size() == grid->splitter()->count();
    };
    QVERIFY(is("A,B,B - copy", "A,B"));
    grid->appendColumn(BaseItemType::Karvon, text("C"), true);
    QVERIFY(is("A,B,B - copy,C", "A,B,C"));
    chooseCommand(*grid, 2, "Move left");
    QVERIFY(is("A,B - copy,B,C", "A,C,B"));
    // Behind the last column stands no other, whatever names there are.
    openMenu(*grid, 2);
    QVERIFY(!action(*grid, "Move right")->isVisible());
    grid->columnMenu()->close();
    action(*grid, "Move right")->trigger();
    QVERIFY(is("A,B - copy,B,C", "A,C,B"));
    chooseCommand(*grid, 1, "Remove");
    QVERIFY(is("A,B,C", "A,B"));
    grid->renameColumn(1, text("D"));
    QVERIFY(is("A,D,C", "A,D"));
    grid->removeAllColumns();
    QVERIFY(grid->columnNames().isEmpty() && grid->items().isEmpty() && grid->splitter()->count() == 0);
}

void FailedColumnsTest::tablesKeepTheMenuOfTheColumnBefore()
{
    const LogCapture log;
    const WholeWorkflow::HostManager manager;
    const auto cell = [](const char *type) {
        const QString own = text(type) == text("Karvon")    ? text("KarvonLayout")
                            : text(type) == text("Preview") ? text("PreviewDigestLetters")
                                                            : text("Samples");
        QJsonArray settings = {setting("Samples", text("a"), 1, "First")};
        if (own != text("Samples"))
            settings.append(setting(qPrintable(own), text("b"), 1, "Second"));
        return cellOf(settingsCell(type, settings));
    };
    const auto made = PropertyGridWidget::create(
        names("K,P,M,D"), {cell("Karvon"), cell("Preview"),
                           cellOf(WholeWorkflow::defaultCell(BaseItemType::Masses)), cell("Dravik")});
    QVERIFY2(!made.hasError(), qPrintable(made.hasError() ? made.error().errorMessage() : QString()));
    PropertyGridWidget &grid = **made;
    grid.show();
    const auto shown = [&](int index) {
        openMenu(grid, index);
        QStringList texts;
        for (const QAction *each : grid.columnMenu()->actions()) {
            if (each->isVisible() && !each->isSeparator() && !each->text().startsWith(text("Move")))
                texts.append(each->text());
        }
        grid.columnMenu()->close();
        return texts;
    };
    const QStringList always = names("Remove,Rename,Create copy");
    const int table = 2;
    viewAt(grid, 1)->collapseAll();
    for (const int before : {0, 1, 3}) {
        const QStringList ofSettings = shown(before);
        const QStringList fold = names(before == 1 ? "Expand all" : "Collapse all");
        const QStringList expected = fold + always +
                                     (before == 0   ? names("Load xenoset ...")
                                      : before == 1 ? names("Load prv...")
                                                    : QStringList());
        QCOMPARE(ofSettings, expected);
        QCOMPARE(shown(table), expected);
    }
    // What they offer does nothing there.
    openMenu(grid, table);
    const VariantItems cells = grid.cells();
    grid.columnMenu()->actions().constFirst()->trigger();
    action(grid, "Load xenoset ...")->trigger();
    action(grid, "Load prv...")->trigger();
    grid.columnMenu()->close();
    QCOMPARE(grid.cells(), cells);
}

void FailedColumnsTest::aTableFirstHasTheMenuAsItWasMade()
{
    const LogCapture log;
    const WholeWorkflow::HostManager manager;
    const auto made =
        PropertyGridWidget::create(names("M"), {cellOf(WholeWorkflow::defaultCell(BaseItemType::Masses))});
    QVERIFY(!made.hasError());
    (*made)->show();
    openMenu(**made, 0);
    QVERIFY(!action(**made, "Expand all")->isVisible());
    QVERIFY(action(**made, "Load xenoset ...")->isVisible());
    QVERIFY(action(**made, "Load prv...")->isVisible());
}

WIDGET_REGISTER_TEST(FailedColumnsTest)
#include "FailedColumnsTest.moc"
