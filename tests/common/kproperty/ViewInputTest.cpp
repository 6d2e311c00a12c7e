#include "ViewFixture.h"

#include <KPropertyEditorItemEvent>
#include <KPropertyStringEditor>

#include <QDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QRegularExpression>
#include <QToolButton>

#include <SpinBox>

class ViewInputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
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
    void readOnlyPropertyHasNoEditor();
    void readOnlySetClosesTheEditor();
    void revertButtonTakesTheValueBack();
    void undoKeyTakesTheValueBack();
    void undoOfAChildRestoresItsParent();
    void changeSetCommitsTheOpenEditor();
    void editorsDieWithTheirRows();
    void multiLineTakesEnterAndCommitsOnCtrlEnter();
    void longTextsAreEditedToTheirEnd();
    void aLineTooLongToBeWrappedIsKept();
    void selectButtonSendsTheEditEvent();
    void anEditorStaysOpenBehindItsDialog();
    void unansweredEditEventChangesNothing();
    void changeSetWithinAChangeIsSafe();
    void changeSetWithinAnEditEventIsSafe();
    void readOnlyInternalEditorTakesNoTyping();
};

void ViewInputTest::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
}

void ViewInputTest::f2TypeEnterCommits()
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

void ViewInputTest::typingStartsEditing()
{
    Fixture fixture;
    fixture.select("number");
    fixture.type("7");
    QVERIFY(isEditing(fixture));
    fixture.press(Qt::Key_Enter);
    QCOMPARE(fixture.set.propertyValue("number"), QVariant(7));
}

void ViewInputTest::escapeTakesBackWhatWasTyped()
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

void ViewInputTest::escapeKeepsAnEarlierChange()
{
    Fixture fixture;
    fixture.set.changeProperty("text", text("earlier"));
    fixture.open("text");
    fixture.type("x");
    fixture.press(Qt::Key_Escape);
    QCOMPARE(fixture.set.propertyValue("text"), QVariant(text("earlier")));
    QCOMPARE(fixture.set["text"].oldValue(), QVariant(text("abc")));
}

void ViewInputTest::tabCommitsAndMovesOverReadOnlyRows()
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

void ViewInputTest::backTabMovesUp()
{
    Fixture fixture;
    fixture.open("flag");
    QTest::keyClick(fixture.focused(), Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(fixture.current(), QByteArray("text"));
    QVERIFY(isEditing(fixture));
}

void ViewInputTest::withoutSyncValuesChangeOnEnterOnly()
{
    Fixture fixture;
    fixture.view.setValueSyncEnabled(false);
    fixture.open("text");
    fixture.type("x");
    QCOMPARE(fixture.set.propertyValue("text"), QVariant(text("abc")));
    fixture.press(Qt::Key_Return);
    QCOMPARE(fixture.set.propertyValue("text"), QVariant(text("x")));
}

void ViewInputTest::propertyPolicyGoesBeforeTheView()
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

void ViewInputTest::clickOpensAnEditor()
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

void ViewInputTest::clickOnTheBoxTogglesABool()
{
    Fixture fixture;
    const QRect cell = fixture.view.visualRect(fixture.index("flag"));
    QTest::mouseClick(fixture.view.viewport(), Qt::LeftButton, {},
                      QPoint(cell.left() + 10, cell.center().y()));
    QCOMPARE(fixture.set.propertyValue("flag"), QVariant(true));
}

void ViewInputTest::readOnlyPropertyHasNoEditor()
{
    Fixture fixture;
    QTest::mouseClick(fixture.view.viewport(), Qt::LeftButton, {}, fixture.center("fixed"));
    QVERIFY(!isEditing(fixture));
    fixture.set["size"].setReadOnly(true);
    QVERIFY(!fixture.index("width").flags().testFlag(Qt::ItemIsEditable));
    QVERIFY(!fixture.view.model()->setData(fixture.index("fixed"), text("x"), Qt::EditRole));
    QCOMPARE(fixture.set.propertyValue("fixed"), QVariant(text("fixed")));
}

void ViewInputTest::readOnlySetClosesTheEditor()
{
    Fixture fixture;
    fixture.open("text");
    fixture.set.setReadOnly(true);
    QVERIFY(!isEditing(fixture));
    fixture.press(Qt::Key_F2);
    QVERIFY(!isEditing(fixture));
}

void ViewInputTest::revertButtonTakesTheValueBack()
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

void ViewInputTest::undoKeyTakesTheValueBack()
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

void ViewInputTest::undoOfAChildRestoresItsParent()
{
    Fixture fixture;
    fixture.set["size"].child("width")->setValue(30);
    fixture.select("width");
    QTest::keyClick(&fixture.view, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(fixture.set.propertyValue("size"), QVariant(QSize(3, 4)));
}

void ViewInputTest::changeSetCommitsTheOpenEditor()
{
    Fixture fixture;
    fixture.view.setValueSyncEnabled(false);
    fixture.open("text");
    fixture.type("typed");
    fixture.view.changeSet(nullptr);
    QCOMPARE(fixture.set.propertyValue("text"), QVariant(text("typed")));
}

void ViewInputTest::editorsDieWithTheirRows()
{
    Fixture fixture;
    fixture.open("number");
    const QPointer<QWidget> editor = fixture.editor();
    QVERIFY(editor);
    fixture.view.changeSet(&fixture.set);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!editor);
}

void ViewInputTest::multiLineTakesEnterAndCommitsOnCtrlEnter()
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

void ViewInputTest::longTextsAreEditedToTheirEnd()
{
    Fixture fixture;
    const QString whole(40'000, QLatin1Char('y'));
    fixture.set.changeProperty("text", whole);
    fixture.open("text");
    fixture.press(Qt::Key_Home);
    fixture.type("x");
    fixture.press(Qt::Key_Return);
    QVERIFY(fixture.set.propertyValue("text").toString() == QLatin1Char('x') + whole);
}

void ViewInputTest::aLineTooLongToBeWrappedIsKept()
{
    Fixture fixture;
    const QString whole = text("first\n") + QString(1 << 20, QLatin1Char('y')) + text("\nlast");
    fixture.set.changeProperty("text", whole);
    fixture.set["text"].setOption("multiLine", true);
    fixture.view.changeSet(&fixture.set);
    fixture.open("text");
    const auto *const edit = qobject_cast<QPlainTextEdit *>(QApplication::focusWidget());
    QVERIFY(edit);
    const QStringList shown = edit->toPlainText().split(QLatin1Char('\n'));
    QCOMPARE(shown.size(), 3);
    QVERIFY(shown[1].size() < 20'100);
    QVERIFY(shown[1].endsWith(text("[1028576 more letters: too long to be edited here]")));
    QVERIFY(edit->isReadOnly());
    fixture.type("x");
    fixture.press(Qt::Key_Return, Qt::ControlModifier);
    QVERIFY(fixture.set.propertyValue("text").toString() == whole);
    fixture.set.changeProperty("text", text("short"));
    fixture.open("text");
    fixture.type("x");
    QVERIFY(fixture.set.propertyValue("text").toString().contains(QLatin1Char('x')));
}

void ViewInputTest::selectButtonSendsTheEditEvent()
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
    fixture.type("x");
    fixture.press(Qt::Key_Escape);
    // What is typed later is taken back, the dialog's Ok isn't.
    QCOMPARE(fixture.set.propertyValue("text"), QVariant(QByteArray("{}")));
}

void ViewInputTest::anEditorStaysOpenBehindItsDialog()
{
    Fixture fixture;
    fixture.set["text"].setOption("selectButton", true);
    fixture.open("text");
    bool isOpen = false;
    connect(&fixture.view, &KPropertyEditorView::handlePropertyEditorItemEvent, this,
            [&](KPropertyEditorItemEvent *event) {
                const QPointer<QDialog> dialog = new QDialog(fixture.editor());
                dialog->setModal(true);
                dialog->show();
                dialog->activateWindow();
                QVERIFY(QTest::qWaitFor([&] { return QApplication::activeWindow() == dialog; }));
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                isOpen = !dialog.isNull();
                delete dialog;
                event->setResult(text("answer"));
            });
    fixture.press(Qt::Key_F4);
    QVERIFY(isOpen);
    QVERIFY(fixture.editor());
    QCOMPARE(fixture.set.propertyValue("text"), QVariant(text("answer")));
}

void ViewInputTest::unansweredEditEventChangesNothing()
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

void ViewInputTest::changeSetWithinAChangeIsSafe()
{
    Fixture fixture;
    connect(&fixture.set, &KPropertySet::propertyChanged, &fixture.view,
            [&fixture] { fixture.view.changeSet(&fixture.set); });
    fixture.open("text");
    fixture.type("x");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(fixture.set.propertyValue("text"), QVariant(text("x")));
    QVERIFY(!isEditing(fixture));
}

void ViewInputTest::changeSetWithinAnEditEventIsSafe()
{
    Fixture fixture;
    fixture.set["text"].setOption("selectButton", true);
    fixture.open("text");
    connect(&fixture.view, &KPropertyEditorView::handlePropertyEditorItemEvent, this,
            [&fixture](KPropertyEditorItemEvent *event) {
                event->setResult(text("too late"));
                fixture.view.changeSet(nullptr);
            });
    fixture.press(Qt::Key_F4);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(fixture.set.propertyValue("text"), QVariant(text("abc")));
}

void ViewInputTest::readOnlyInternalEditorTakesNoTyping()
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

QTEST_MAIN(ViewInputTest)
#include "ViewInputTest.moc"
