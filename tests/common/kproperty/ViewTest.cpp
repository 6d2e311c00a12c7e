#include <KPropertyEditorItemEvent>
#include <KPropertyEditorView>
#include <KPropertyListData>
#include <KPropertySet>
#include <KPropertyStringEditor>
#include <KPropertyUtils>

#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QRegularExpression>
#include <QTest>
#include <QToolButton>

#include <SpinBox>

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

/// A set and its view, shown.
struct Fixture
{
    KPropertySet set;
    KPropertyEditorView view;

    Fixture()
    {
        set.addProperty(new KProperty("number", 5, text("Number"), text("A number.")), "first");
        set.addProperty(new KProperty("text", text("abc"), text("Text")), "first");
        set.addProperty(new KProperty("flag", false, text("Flag")), "second");
        set.addProperty(new KProperty("fixed", text("fixed"), text("Fixed")), "second");
        set["fixed"].setReadOnly(true);
        set.addProperty(new KProperty("size", QSize(3, 4), text("Size")), "second");
        set.addProperty(new KProperty("last", text("z"), text("Last")), "second");
        view.resize(420, 400);
        view.changeSet(&set);
        view.show();
        (void)QTest::qWaitForWindowActive(&view);
    }

    [[nodiscard]] QModelIndex index(const QByteArray &name, const QModelIndex &parent = QModelIndex()) const
    {
        for (int row = 0; row < view.model()->rowCount(parent); ++row) {
            const QModelIndex each = view.model()->index(row, 1, parent);
            const KProperty *const property = KPropertyUtils::propertyForIndex(each);
            if (property && property->name() == name) {
                return each;
            }
            const QModelIndex below = index(name, each.siblingAtColumn(0));
            if (below.isValid()) {
                return below;
            }
        }
        return QModelIndex();
    }

    [[nodiscard]] QPoint center(const QByteArray &name) const
    {
        return view.visualRect(index(name)).center();
    }

    void select(const QByteArray &name)
    {
        view.setCurrentIndex(index(name).siblingAtColumn(0));
        view.setFocus();
    }

    /// The editor that has the focus, or null.
    [[nodiscard]] QWidget *editor() const { return view.indexWidget(index(current())); }
    [[nodiscard]] QByteArray current() const
    {
        const KProperty *const property = KPropertyUtils::propertyForIndex(view.currentIndex());
        return property ? property->name() : QByteArray();
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(focused(), key, modifiers);
        // Enter commits when the editor has seen the key itself.
        QCoreApplication::processEvents();
    }
    void type(const char *keys) const { QTest::keyClicks(focused(), text(keys)); }
    [[nodiscard]] QWidget *focused() const
    {
        QWidget *const widget = QApplication::focusWidget();
        return widget ? widget : const_cast<KPropertyEditorView *>(&view);
    }

    void open(const QByteArray &name)
    {
        select(name);
        press(Qt::Key_F2);
    }
};

bool isEditing(const Fixture &fixture)
{
    const QWidget *const focus = QApplication::focusWidget();
    return focus && focus != &fixture.view && fixture.view.isAncestorOf(focus);
}

} // namespace

class ViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void groupsAndPropertiesHaveRows();
    void hiddenPropertiesHaveNoRow();
    void onlyTheCommonGroupMeansNoGroupRows();
    void alphabeticalOrderSortsWithinGroups();
    void selectionIsPreservedByName();
    void unknownSelectionSelectsNothing();
    void f2TypeEnterCommits();
    void typingStartsEditing();
    void escapeTakesBackWhatWasTyped();
    void escapeKeepsAnEarlierChange();
    void tabCommitsAndMovesOverReadOnlyRows();
    void backTabMovesUp();
    void withoutSyncValuesChangeOnEnterOnly();
    void propertyPolicyGoesBeforeTheView();
    void clickOpensAnEditor();
    void clickOnTheBoxTogglesABool();
    void clickOnAGroupCollapsesIt();
    void readOnlyPropertyHasNoEditor();
    void readOnlySetClosesTheEditor();
    void revertButtonTakesTheValueBack();
    void undoKeyTakesTheValueBack();
    void undoOfAChildRestoresItsParent();
    void toolTipsAreDescriptionsWhenAskedFor();
    void removedPropertyLosesItsRow();
    void removalOfTheEditedPropertyClosesItsEditor();
    void viewLetsGoOfAClearedSet();
    void viewLetsGoOfADeletedSet();
    void setOutlivesTheView();
    void changeSetCommitsTheOpenEditor();
    void editorsDieWithTheirRows();
    void multiLineTakesEnterAndCommitsOnCtrlEnter();
    void rowHeightFollowsTheLineOptions_data();
    void rowHeightFollowsTheLineOptions();
    void selectButtonSendsTheEditEvent();
    void unansweredEditEventChangesNothing();
    void readOnlyInternalEditorTakesNoTyping();
    void viewForEditorFindsTheView();
    void screenReaderFindsNamesAndValues();
    void openEditorHasAnAccessibleName();
    void gridLineColorMayBeInvalid();
};

void ViewTest::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
}

void ViewTest::groupsAndPropertiesHaveRows()
{
    const Fixture fixture;
    const QAbstractItemModel *const model = fixture.view.model();
    QCOMPARE(model->rowCount(), 2);
    QCOMPARE(model->index(0, 0).data().toString(), text("first"));
    QVERIFY(!KPropertyUtils::propertyForIndex(model->index(0, 0)));
    QCOMPARE(model->rowCount(model->index(1, 0)), 4);
    QCOMPARE(fixture.index("width").data().toString(), text("3"));
    QVERIFY(fixture.view.isExpanded(model->index(0, 0)));
    QVERIFY(!KPropertyUtils::propertyForIndex(QModelIndex()));
}

void ViewTest::hiddenPropertiesHaveNoRow()
{
    Fixture fixture;
    fixture.set["number"].setVisible(false);
    fixture.set["text"].setVisible(false);
    fixture.view.changeSet(&fixture.set);
    QVERIFY(!fixture.index("number").isValid());
    QCOMPARE(fixture.view.model()->rowCount(), 1);
}

void ViewTest::onlyTheCommonGroupMeansNoGroupRows()
{
    KPropertySet set;
    set.addProperty(new KProperty("a", 1));
    KPropertyEditorView view;
    view.changeSet(&set);
    QCOMPARE(KPropertyUtils::propertyForIndex(view.model()->index(0, 0)), &set["a"]);
    Fixture fixture;
    fixture.view.setGroupsVisible(false);
    fixture.view.changeSet(&fixture.set);
    QCOMPARE(fixture.view.model()->rowCount(), 6);
}

void ViewTest::alphabeticalOrderSortsWithinGroups()
{
    Fixture fixture;
    fixture.view.changeSet(&fixture.set, KPropertyEditorView::SetOption::AlphabeticalOrder);
    const QModelIndex second = fixture.view.model()->index(1, 0);
    QStringList names;
    for (int row = 0; row < fixture.view.model()->rowCount(second); ++row) {
        names << fixture.view.model()->index(row, 0, second).data().toString();
    }
    QCOMPARE(names, QStringList({text("Fixed"), text("Flag"), text("Last"), text("Size")}));
}

void ViewTest::selectionIsPreservedByName()
{
    Fixture fixture;
    fixture.view.changeSet(&fixture.set, "size");
    QCOMPARE(fixture.current(), QByteArray("size"));
    fixture.view.changeSet(nullptr);
    fixture.view.changeSet(&fixture.set);
    QCOMPARE(fixture.current(), QByteArray());
    fixture.view.changeSet(&fixture.set, KPropertyEditorView::SetOption::PreservePreviousSelection);
    QCOMPARE(fixture.current(), QByteArray("size"));
}

void ViewTest::unknownSelectionSelectsNothing()
{
    Fixture fixture;
    fixture.view.changeSet(&fixture.set, "none");
    QVERIFY(!fixture.view.currentIndex().isValid());
}

void ViewTest::f2TypeEnterCommits()
{
    Fixture fixture;
    fixture.open("text");
    QVERIFY(isEditing(fixture));
    fixture.press(Qt::Key_A, Qt::ControlModifier);
    fixture.type("typed");
    fixture.press(Qt::Key_Return);
    QCOMPARE(fixture.set.propertyValue("text"), QVariant(text("typed")));
    QVERIFY(!isEditing(fixture));
    QCOMPARE(QApplication::focusWidget(), &fixture.view);
    QCOMPARE(fixture.index("text").data().toString(), text("typed"));
}

void ViewTest::typingStartsEditing()
{
    Fixture fixture;
    fixture.select("number");
    fixture.type("7");
    QVERIFY(isEditing(fixture));
    fixture.press(Qt::Key_Enter);
    QCOMPARE(fixture.set.propertyValue("number"), QVariant(7));
}

void ViewTest::escapeTakesBackWhatWasTyped()
{
    Fixture fixture;
    fixture.open("text");
    fixture.type("x");
    QVERIFY(fixture.set["text"].isModified());
    fixture.press(Qt::Key_Escape);
    QCOMPARE(fixture.set.propertyValue("text"), QVariant(text("abc")));
    QVERIFY(!fixture.set["text"].isModified());
    QVERIFY(!isEditing(fixture));
}

void ViewTest::escapeKeepsAnEarlierChange()
{
    Fixture fixture;
    fixture.set.changeProperty("text", text("earlier"));
    fixture.open("text");
    fixture.type("x");
    fixture.press(Qt::Key_Escape);
    QCOMPARE(fixture.set.propertyValue("text"), QVariant(text("earlier")));
    QCOMPARE(fixture.set["text"].oldValue(), QVariant(text("abc")));
}

void ViewTest::tabCommitsAndMovesOverReadOnlyRows()
{
    Fixture fixture;
    fixture.open("text");
    fixture.type("t");
    fixture.press(Qt::Key_Tab);
    QCOMPARE(fixture.set.propertyValue("text"), QVariant(text("t")));
    QCOMPARE(fixture.current(), QByteArray("flag"));
    QVERIFY(isEditing(fixture));
    fixture.press(Qt::Key_Space);
    QCOMPARE(fixture.set.propertyValue("flag"), QVariant(true));
    fixture.press(Qt::Key_Tab);
    QCOMPARE(fixture.current(), QByteArray("size"));
}

void ViewTest::backTabMovesUp()
{
    Fixture fixture;
    fixture.open("flag");
    QTest::keyClick(fixture.focused(), Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(fixture.current(), QByteArray("text"));
    QVERIFY(isEditing(fixture));
}

void ViewTest::withoutSyncValuesChangeOnEnterOnly()
{
    Fixture fixture;
    fixture.view.setValueSyncEnabled(false);
    fixture.open("text");
    fixture.type("x");
    QCOMPARE(fixture.set.propertyValue("text"), QVariant(text("abc")));
    fixture.press(Qt::Key_Return);
    QCOMPARE(fixture.set.propertyValue("text"), QVariant(text("x")));
}

void ViewTest::propertyPolicyGoesBeforeTheView()
{
    Fixture fixture;
    fixture.set["text"].setValueSyncPolicy(KProperty::ValueSyncPolicy::FocusOut);
    fixture.open("text");
    fixture.type("x");
    QCOMPARE(fixture.set.propertyValue("text"), QVariant(text("abc")));
    fixture.view.acceptInput();
    QCOMPARE(fixture.set.propertyValue("text"), QVariant(text("x")));
    QVERIFY(!isEditing(fixture));
}

void ViewTest::clickOpensAnEditor()
{
    Fixture fixture;
    QTest::mouseClick(fixture.view.viewport(), Qt::LeftButton, {}, fixture.center("number"));
    auto *const spinBox = qobject_cast<KPropertyIntSpinBox *>(fixture.editor());
    QVERIFY(spinBox);
    QTest::keyClick(spinBox, Qt::Key_Up);
    QCOMPARE(fixture.set.propertyValue("number"), QVariant(6));
    QTest::mouseClick(fixture.view.viewport(), Qt::LeftButton, {}, fixture.center("text"));
    QVERIFY(qobject_cast<KPropertyStringEditor *>(fixture.editor()));
}

void ViewTest::clickOnTheBoxTogglesABool()
{
    Fixture fixture;
    const QRect cell = fixture.view.visualRect(fixture.index("flag"));
    QTest::mouseClick(fixture.view.viewport(), Qt::LeftButton, {},
                      QPoint(cell.left() + 10, cell.center().y()));
    QCOMPARE(fixture.set.propertyValue("flag"), QVariant(true));
}

void ViewTest::clickOnAGroupCollapsesIt()
{
    Fixture fixture;
    const QModelIndex group = fixture.view.model()->index(0, 0);
    QTest::mouseClick(fixture.view.viewport(), Qt::LeftButton, {}, fixture.view.visualRect(group).center());
    QVERIFY(!fixture.view.isExpanded(group));
    QTest::mouseClick(fixture.view.viewport(), Qt::LeftButton, {}, fixture.view.visualRect(group).center());
    QVERIFY(fixture.view.isExpanded(group));
}

void ViewTest::readOnlyPropertyHasNoEditor()
{
    Fixture fixture;
    QTest::mouseClick(fixture.view.viewport(), Qt::LeftButton, {}, fixture.center("fixed"));
    QVERIFY(!isEditing(fixture));
    fixture.set["size"].setReadOnly(true);
    QVERIFY(!fixture.index("width").flags().testFlag(Qt::ItemIsEditable));
    QVERIFY(!fixture.view.model()->setData(fixture.index("fixed"), text("x"), Qt::EditRole));
    QCOMPARE(fixture.set.propertyValue("fixed"), QVariant(text("fixed")));
}

void ViewTest::readOnlySetClosesTheEditor()
{
    Fixture fixture;
    fixture.open("text");
    fixture.set.setReadOnly(true);
    QVERIFY(!isEditing(fixture));
    fixture.press(Qt::Key_F2);
    QVERIFY(!isEditing(fixture));
}

void ViewTest::revertButtonTakesTheValueBack()
{
    Fixture fixture;
    const QRect cell = fixture.view.visualRect(fixture.index("number"));
    const QPoint button(cell.right() - 8, cell.center().y());
    QTest::mouseClick(fixture.view.viewport(), Qt::LeftButton, {}, button);
    fixture.view.acceptInput();
    QCOMPARE(fixture.set.propertyValue("number"), QVariant(5));
    fixture.set.changeProperty("number", 9);
    QTest::mouseClick(fixture.view.viewport(), Qt::LeftButton, {}, button);
    QCOMPARE(fixture.set.propertyValue("number"), QVariant(5));
    QVERIFY(!fixture.set["number"].isModified());
}

void ViewTest::undoKeyTakesTheValueBack()
{
    Fixture fixture;
    fixture.set.changeProperty("number", 9);
    fixture.select("number");
    int resets = 0;
    connect(&fixture.set, &KPropertySet::propertyReset, this, [&resets] { ++resets; });
    QTest::keyClick(&fixture.view, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(fixture.set.propertyValue("number"), QVariant(5));
    QCOMPARE(resets, 1);
}

void ViewTest::undoOfAChildRestoresItsParent()
{
    Fixture fixture;
    fixture.set["size"].child("width")->setValue(30);
    fixture.select("width");
    QTest::keyClick(&fixture.view, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(fixture.set.propertyValue("size"), QVariant(QSize(3, 4)));
}

void ViewTest::toolTipsAreDescriptionsWhenAskedFor()
{
    Fixture fixture;
    QVERIFY(!fixture.index("number").data(Qt::ToolTipRole).isValid());
    fixture.view.setToolTipsVisible(true);
    QCOMPARE(fixture.index("number").data(Qt::ToolTipRole).toString(), text("A number."));
    QVERIFY(!fixture.index("text").data(Qt::ToolTipRole).isValid());
}

void ViewTest::removedPropertyLosesItsRow()
{
    Fixture fixture;
    fixture.set.removeProperty("number");
    QVERIFY(!fixture.index("number").isValid());
    fixture.set.removeProperty("text");
    QCOMPARE(fixture.view.model()->rowCount(), 1);
    fixture.set.removeProperty("size");
    QVERIFY(!fixture.index("width").isValid());
}

void ViewTest::removalOfTheEditedPropertyClosesItsEditor()
{
    Fixture fixture;
    fixture.open("text");
    fixture.type("x");
    const QPointer<QWidget> editor = fixture.editor();
    fixture.set.removeProperty("text");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!editor);
    QVERIFY(!isEditing(fixture));
}

void ViewTest::viewLetsGoOfAClearedSet()
{
    Fixture fixture;
    fixture.open("text");
    int changes = 0;
    connect(&fixture.view, &KPropertyEditorView::propertySetChanged, this, [&changes] { ++changes; });
    fixture.set.clear();
    QVERIFY(!fixture.view.propertySet());
    QCOMPARE(fixture.view.model()->rowCount(), 0);
    QCOMPARE(changes, 1);
}

void ViewTest::viewLetsGoOfADeletedSet()
{
    KPropertyEditorView view;
    {
        KPropertySet set;
        set.addProperty(new KProperty("a", 1));
        view.changeSet(&set);
    }
    QVERIFY(!view.propertySet());
    QCOMPARE(view.model()->rowCount(), 0);
}

void ViewTest::setOutlivesTheView()
{
    KPropertySet set;
    set.addProperty(new KProperty("a", 1));
    {
        KPropertyEditorView view;
        view.changeSet(&set);
    }
    set.changeProperty("a", 2);
    set.removeProperty("a");
    QVERIFY(set.isEmpty());
}

void ViewTest::changeSetCommitsTheOpenEditor()
{
    Fixture fixture;
    fixture.view.setValueSyncEnabled(false);
    fixture.open("text");
    fixture.type("typed");
    fixture.view.changeSet(nullptr);
    QCOMPARE(fixture.set.propertyValue("text"), QVariant(text("typed")));
}

void ViewTest::editorsDieWithTheirRows()
{
    Fixture fixture;
    fixture.open("number");
    const QPointer<QWidget> editor = fixture.editor();
    QVERIFY(editor);
    fixture.view.changeSet(&fixture.set);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!editor);
}

void ViewTest::multiLineTakesEnterAndCommitsOnCtrlEnter()
{
    Fixture fixture;
    fixture.set["text"].setOption("multiLine", true);
    fixture.open("text");
    auto *const edit = qobject_cast<QPlainTextEdit *>(QApplication::focusWidget());
    QVERIFY(edit);
    edit->moveCursor(QTextCursor::End);
    fixture.press(Qt::Key_Return);
    fixture.type("def");
    QVERIFY(isEditing(fixture));
    fixture.press(Qt::Key_Return, Qt::ControlModifier);
    QVERIFY(!isEditing(fixture));
    QCOMPARE(fixture.set.propertyValue("text"), QVariant(text("abc\ndef")));
}

void ViewTest::rowHeightFollowsTheLineOptions_data()
{
    QTest::addColumn<int>("lines");
    QTest::addColumn<QVariant>("minimum");
    QTest::addColumn<QVariant>("maximum");
    QTest::addColumn<int>("expectedLines");
    QTest::newRow("one line") << 1 << QVariant() << QVariant() << 1;
    QTest::newRow("three lines") << 3 << QVariant() << QVariant() << 3;
    QTest::newRow("long text") << 40 << QVariant() << QVariant() << 6;
    QTest::newRow("short text, minimum") << 1 << QVariant(3) << QVariant() << 3;
    QTest::newRow("long text, maximum") << 9 << QVariant() << QVariant(2) << 2;
    QTest::newRow("fixed") << 9 << QVariant(3) << QVariant(3) << 3;
    QTest::newRow("maximum below minimum") << 9 << QVariant(4) << QVariant(2) << 4;
}

void ViewTest::rowHeightFollowsTheLineOptions()
{
    QFETCH(int, lines);
    QFETCH(QVariant, minimum);
    QFETCH(QVariant, maximum);
    QFETCH(int, expectedLines);
    Fixture fixture;
    KProperty &property = fixture.set["text"];
    property.setValue(QStringList(lines, text("line")).join(QLatin1Char('\n')));
    const int single = fixture.view.visualRect(fixture.index("number")).height();
    property.setOption("multiLine", true);
    property.setOption("minHeight", minimum);
    property.setOption("maxHeight", maximum);
    fixture.view.changeSet(&fixture.set);
    const int spacing = fixture.view.fontMetrics().lineSpacing();
    QCOMPARE(fixture.view.visualRect(fixture.index("text")).height(), single + (expectedLines - 1) * spacing);
}

void ViewTest::selectButtonSendsTheEditEvent()
{
    Fixture fixture;
    fixture.set["text"].setOption("selectButton", true);
    fixture.open("text");
    int events = 0;
    connect(&fixture.view, &KPropertyEditorView::handlePropertyEditorItemEvent, this,
            [&](KPropertyEditorItemEvent *event) {
                ++events;
                QCOMPARE(event->name(), text("edit"));
                QCOMPARE(event->property(), &fixture.set["text"]);
                QCOMPARE(event->parameters().value(text("value")), QVariant(text("abc")));
                event->setResult(QByteArray("{}"));
            });
    auto *const button = fixture.editor()->findChild<QToolButton *>();
    QVERIFY(button);
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(events, 1);
    QCOMPARE(fixture.set.propertyValue("text"), QVariant(QByteArray("{}")));
    QCOMPARE(fixture.editor()->property("value").toString(), text("{}"));
    fixture.press(Qt::Key_Escape);
    QCOMPARE(fixture.set.propertyValue("text"), QVariant(text("abc")));
}

void ViewTest::unansweredEditEventChangesNothing()
{
    Fixture fixture;
    fixture.set["text"].setOption("selectButton", true);
    fixture.open("text");
    int events = 0;
    connect(&fixture.view, &KPropertyEditorView::handlePropertyEditorItemEvent, this,
            [&events] { ++events; });
    fixture.press(Qt::Key_F4);
    QCOMPARE(events, 1);
    QVERIFY(!fixture.set["text"].isModified());
}

void ViewTest::readOnlyInternalEditorTakesNoTyping()
{
    Fixture fixture;
    fixture.set["text"].setOption("readOnlyInternalEditor", true);
    fixture.open("text");
    QVERIFY(qobject_cast<QLineEdit *>(fixture.editor())->isReadOnly());
    fixture.type("x");
    fixture.view.acceptInput();
    QCOMPARE(fixture.set.propertyValue("text"), QVariant(text("abc")));
    QVERIFY(!fixture.set["text"].isModified());
}

void ViewTest::viewForEditorFindsTheView()
{
    Fixture fixture;
    fixture.set["text"].setOption("multiLine", true);
    fixture.open("text");
    QCOMPARE(KPropertyUtils::viewForEditor(fixture.editor()), &fixture.view);
    QCOMPARE(KPropertyUtils::viewForEditor(QApplication::focusWidget()), &fixture.view);
    const QWidget stranger;
    QVERIFY(!KPropertyUtils::viewForEditor(&stranger));
    QVERIFY(!KPropertyUtils::viewForEditor(nullptr));
}

void ViewTest::screenReaderFindsNamesAndValues()
{
    Fixture fixture;
    QAccessibleInterface *const tree = QAccessible::queryAccessibleInterface(&fixture.view);
    QVERIFY(tree && tree->tableInterface());
    QStringList names;
    for (int i = 0; i < tree->childCount(); ++i) {
        names << tree->child(i)->text(QAccessible::Name);
    }
    for (const char *expected : {"first", "Number", "5", "Text", "abc", "Size", "3x4"}) {
        QVERIFY2(names.contains(text(expected)), expected);
    }
    const QModelIndex number = fixture.index("number");
    QCOMPARE(number.data(Qt::AccessibleDescriptionRole).toString(), text("A number."));
}

void ViewTest::openEditorHasAnAccessibleName()
{
    Fixture fixture;
    fixture.open("number");
    QAccessibleInterface *const editor = QAccessible::queryAccessibleInterface(fixture.editor());
    QVERIFY(editor);
    QCOMPARE(editor->text(QAccessible::Name), text("Number"));
    QCOMPARE(fixture.editor()->accessibleDescription(), text("A number."));
}

void ViewTest::gridLineColorMayBeInvalid()
{
    Fixture fixture;
    QCOMPARE(fixture.view.gridLineColor(), KPropertyEditorView::defaultGridLineColor());
    const QImage with = fixture.view.viewport()->grab().toImage();
    fixture.view.setGridLineColor(QColor());
    QVERIFY(!fixture.view.gridLineColor().isValid());
    QVERIFY(fixture.view.viewport()->grab().toImage() != with);
}

QTEST_MAIN(ViewTest)
#include "ViewTest.moc"
