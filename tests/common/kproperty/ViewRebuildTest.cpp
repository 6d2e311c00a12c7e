// Who hears of a change may clear or rebuild the set while the change is still under way. AddressSanitizer is
// the judge of most of these tests.
#include "ViewFixture.h"

#include <KPropertyEditorView>

#include <QLineEdit>
#include <QPointer>
#include <QRegularExpression>

class ViewRebuildTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void setMayBeClearedWhenAChildChanges();
    void setMayBeClearedWhenAChildIsTyped();
    void setMayBeClearedWhenAValueIsReset();
    void setMayBeClearedWhenAChildIsTakenBack();
    void propertyMayGoBeforeOthersHearOfItsChange();
    void pressMayCommitAndRebuild();
    void editorMayCommitAndRebuildWhenTheNextOpens();
    void assignmentDropsTheRowsOfChildren();
    void newTypeDropsTheRowsOfChildren();
    void removalClosesTheEditorOfAChild();
};

void ViewRebuildTest::init()
{
    QTest::failOnWarning(QRegularExpression(text("^(?!This plugin does not support)")));
}

void ViewRebuildTest::setMayBeClearedWhenAChildChanges()
{
    Fixture fixture;
    connect(&fixture.set, &KPropertySet::propertyChanged, this, [&fixture] { fixture.set.clear(); });
    QVERIFY(fixture.set["size"].child("width")->setValue(9));
    QVERIFY(fixture.set.isEmpty());
    QVERIFY(!fixture.view.propertySet());
}

void ViewRebuildTest::setMayBeClearedWhenAChildIsTyped()
{
    Fixture fixture;
    fixture.open("width");
    QVERIFY(isEditing(fixture));
    connect(&fixture.set, &KPropertySet::propertyChanged, this, [&fixture] { fixture.set.clear(); });
    fixture.type("7");
    QVERIFY(fixture.set.isEmpty());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!isEditing(fixture));
}

void ViewRebuildTest::setMayBeClearedWhenAValueIsReset()
{
    Fixture fixture;
    fixture.set.changeProperty("number", 6);
    connect(&fixture.set, &KPropertySet::propertyChanged, this, [&fixture] { fixture.set.clear(); });
    int resets = 0;
    connect(&fixture.set, &KPropertySet::propertyReset, this, [&resets] { ++resets; });
    fixture.set["number"].resetValue();
    QVERIFY(fixture.set.isEmpty());
    QCOMPARE(resets, 0);
}

void ViewRebuildTest::setMayBeClearedWhenAChildIsTakenBack()
{
    Fixture fixture;
    fixture.set["size"].child("width")->setValue(9);
    fixture.select("width");
    connect(&fixture.set, &KPropertySet::propertyChanged, this, [&fixture] { fixture.set.clear(); });
    fixture.press(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(fixture.set.isEmpty());
}

void ViewRebuildTest::propertyMayGoBeforeOthersHearOfItsChange()
{
    KPropertySet set;
    set.addProperty(new KProperty("p", 1));
    connect(&set, &KPropertySet::propertyChangedInternal, this, [&set] { set.removeProperty("p"); });
    int changes = 0;
    connect(&set, &KPropertySet::propertyChanged, this, [&changes] { ++changes; });
    set.changeProperty("p", 2);
    QVERIFY(set.isEmpty());
    QCOMPARE(changes, 0);
}

void ViewRebuildTest::pressMayCommitAndRebuild()
{
    Fixture fixture;
    fixture.view.setValueSyncEnabled(false);
    connect(&fixture.set, &KPropertySet::propertyChanged, &fixture.view,
            [&fixture] { fixture.view.changeSet(&fixture.set); });
    fixture.open("text");
    fixture.type("x");
    QTest::mouseClick(fixture.view.viewport(), Qt::LeftButton, {}, fixture.center("number"));
    QCOMPARE(fixture.set.propertyValue("text"), QVariant(text("x")));
}

void ViewRebuildTest::editorMayCommitAndRebuildWhenTheNextOpens()
{
    Fixture fixture;
    fixture.view.setValueSyncEnabled(false);
    connect(&fixture.set, &KPropertySet::propertyChanged, &fixture.view,
            [&fixture] { fixture.view.changeSet(&fixture.set); });
    fixture.open("text");
    fixture.type("x");
    // The row that was to be edited is gone.
    QTest::ignoreMessage(QtWarningMsg, "edit: editing failed");
    QAbstractItemView &base = fixture.view;
    base.edit(fixture.index("number"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(fixture.set.propertyValue("text"), QVariant(text("x")));
}

void ViewRebuildTest::assignmentDropsTheRowsOfChildren()
{
    Fixture fixture;
    QVERIFY(fixture.index("width").isValid());
    fixture.set["size"] = KProperty("size", text("a text"));
    QVERIFY(!fixture.index("width").isValid());
    QVERIFY(!fixture.view.grab().isNull());
}

void ViewRebuildTest::newTypeDropsTheRowsOfChildren()
{
    Fixture fixture;
    fixture.set["size"].setType(KProperty::Point);
    QVERIFY(!fixture.index("width").isValid());
    QVERIFY(!fixture.view.grab().isNull());
}

void ViewRebuildTest::removalClosesTheEditorOfAChild()
{
    Fixture fixture;
    fixture.open("width");
    const QPointer<QWidget> editor = QApplication::focusWidget();
    QVERIFY(isEditing(fixture));
    fixture.set.removeProperty("size");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!editor);
    QVERIFY(!fixture.index("size").isValid());
}

QTEST_MAIN(ViewRebuildTest)
#include "ViewRebuildTest.moc"
