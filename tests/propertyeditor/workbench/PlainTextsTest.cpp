#include "FindFixture.h"
#include "WidgetTest.h"
#include "grid/WholeWorkflow.h"

#include <orv/propertyeditor/grid/EditableTabBar.h>
#include <orv/propertyeditor/workbench/Comparison.h>
#include <orv/propertyeditor/workbench/DocumentHistory.h>

#include <QAction>
#include <QMenu>
#include <QStyleOptionTab>
#include <QTabBar>
#include <QTextDocument>

using namespace orv;
using namespace FindFixture;
using namespace Qt::StringLiterals;

namespace {

/// Whoever showed it as markup would show a bold letter and a picture.
const QString kName = u"<b>x</b><img src=\"file:///no.png\">&amp;"_s;

/// A text as its file has it, where a widget takes texts that look so for markup.
bool isRead(const QString &text)
{
    return text.contains(u"<b>x</b>"_s) && Qt::mightBeRichText(text);
}

QJsonObject namedDocument(int peaks)
{
    const QJsonObject search =
        karvonCell({setting("KarvonDigestLetters", kName), setting("KarvonCentroidTopk", peaks)});
    const QJsonObject proteins = settingsCell(
        "Proteins", {setting("Proteins", WholeWorkflow::table(
                                             {u"ProteinAccessionName"_s, u"ProteinSequence"_s},
                                             {{kName, u"ACDC"_s}, {u"P2"_s, kName}, {kName, u"AC"_s}}))});
    QJsonObject own = metadata();
    own.insert(u"name"_s, kName);
    own.insert(u"user"_s, kName);
    return Documents::document(
        {Documents::tab(kName, {kName, u"Other"_s, u"Proteins"_s}, {search, search, proteins})}, own);
}

void addTips(const QAbstractItemModel &model, const QModelIndex &above, QStringList *tips)
{
    for (int row = 0; row < model.rowCount(above); ++row) {
        for (int column = 0; column < model.columnCount(above); ++column) {
            const QModelIndex index = model.index(row, column, above);
            *tips += {index.data(Qt::ToolTipRole).toString(), index.data(Qt::WhatsThisRole).toString()};
        }
        addTips(model, model.index(row, 0, above), tips);
    }
    for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
        const int count = orientation == Qt::Horizontal ? model.columnCount() : model.rowCount();
        for (int section = 0; section < count; ++section)
            tips->append(model.headerData(section, orientation, Qt::ToolTipRole).toString());
    }
}

bool showsTips(const QAction &action)
{
    const QObjectList places = action.associatedObjects();
    return std::ranges::any_of(places, [](const QObject *place) {
        const auto *menu = qobject_cast<const QMenu *>(place);
        return !menu || menu->toolTipsVisible();
    });
}

/// Where a widget shows a text as markup.
QStringList markupIn(QWidget &widget)
{
    QStringList found;
    const QString who =
        u"%1 %2: "_s.arg(QString::fromUtf8(widget.metaObject()->className()), widget.objectName());
    QStringList tips{widget.toolTip(), widget.whatsThis()};
    if (const auto *bar = qobject_cast<QTabBar *>(&widget)) {
        for (int tab = 0; tab < bar->count(); ++tab)
            tips += {bar->tabToolTip(tab), bar->tabWhatsThis(tab)};
    }
    if (const auto *view = qobject_cast<QAbstractItemView *>(&widget); view && view->model())
        addTips(*view->model(), {}, &tips);
    for (const QAction *action : widget.actions()) {
        if (showsTips(*action))
            tips.append(action->toolTip());
    }
    for (const QString &tip : std::as_const(tips)) {
        if (isRead(tip))
            found.append(who + tip);
    }
    if (const auto *label = qobject_cast<QLabel *>(&widget)) {
        if (label->textFormat() != Qt::PlainText && isRead(label->text()))
            found.append(who + label->text());
    }
    found.removeDuplicates();
    return found;
}

QString markupEverywhere()
{
    QStringList found;
    for (QWidget *widget : QApplication::allWidgets())
        found += markupIn(*widget);
    return found.join(u'\n');
}

} // namespace

class PlainTextsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void namesAndValuesAreNoMarkup();
    void panelsShowNamesAsTheyAre();
    void anAmpersandInATabsNameIsSeen();
};

void PlainTextsTest::namesAndValuesAreNoMarkup()
{
    const QTemporaryDir folder;
    const Bench b;
    const QString path = write(folder, "<b>x<", namedDocument(500));
    QCOMPARE(b.window->openWorkflow(path), kOpened);
    b.window->show();
    QCoreApplication::processEvents();
    QCOMPARE(markupEverywhere(), QString());
    QVERIFY(b.window->findChild<QLabel *>(u"statusChanges"_s)->toolTip().contains(u"&lt;b&gt;x"_s));
    b.view(0, 0)->propertySet()->property("KarvonDigestLetters").setValue(kName + u'R');
    b.bench->history()->takeIn();
    QVERIFY(b.bench->history()->undoText().contains(u"<b>x</b>"_s));
    QCOMPARE(markupEverywhere(), QString());
}

void PlainTextsTest::panelsShowNamesAsTheyAre()
{
    const QTemporaryDir folder;
    const QString path = write(folder, "<b>x<", namedDocument(500));
    const Bench b;
    QVERIFY(b.open(namedDocument(1000)));
    b.bench->comparison()->compareWith(path);
    QTRY_VERIFY(!b.bench->comparison()->isBusy());
    QTest::keyClick(b.window, Qt::Key_F7);
    b.view(0, 0)->editorView()->expandAll();
    b.view(0, 0)->editorView()->setFocus();
    QVERIFY(b.view(0, 0)->goTo("KarvonDigestLetters"));
    QTest::keyClick(b.window, Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), u"<b>x"_s);
    QTest::qWait(50);
    QTRY_VERIFY(b.child<QAbstractItemView>("sameSettingColumns")->model()->rowCount() == 2);
    // Names of files hold no slash, so that no markup in them ends; its beginning is enough.
    const auto *differences = b.child<QAbstractItemView>("differences")->model();
    const auto help = [differences](int role) {
        return differences->headerData(2, Qt::Horizontal, role).toString();
    };
    QVERIFY(help(Qt::ToolTipRole).contains(u"&lt;b&gt;x"_s));
    QVERIFY(help(Qt::WhatsThisRole).contains(u"&lt;b&gt;x"_s));
    QCOMPARE(markupEverywhere(), QString());
}

void PlainTextsTest::anAmpersandInATabsNameIsSeen()
{
    /// What the style is given to draw.
    struct Bar : EditableTabBar
    {
        using EditableTabBar::initStyleOption;
    };
    Bar bar;
    bar.addTab(u"A&B"_s);
    bar.addTab(u"AB"_s);
    bar.show();
    QStyleOptionTab option;
    bar.initStyleOption(&option, 0);
    // Styles take a single one for a mnemonic.
    QCOMPARE(option.text, u"A&&B"_s);
    QCOMPARE(bar.tabText(0), u"A&B"_s);
    QVERIFY(bar.tabRect(0).width() > bar.tabRect(1).width());
}

WIDGET_REGISTER_TEST(PlainTextsTest)
#include "PlainTextsTest.moc"
