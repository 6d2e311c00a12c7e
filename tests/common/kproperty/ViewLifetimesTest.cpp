// Who hears of a change may delete the view while the change is still under way, and the set with it.
// AddressSanitizer is the judge of most of these tests.
#include "ViewFixture.h"

#include <KPropertyEditorItemEvent>

#include <QDate>
#include <QLineEdit>
#include <QPointer>
#include <QRegularExpression>
#include <QUrl>

namespace {

/// A set and its view on the heap, beside a field that can take the focus.
struct Victims
{
    QPointer<KPropertySet> set = new KPropertySet;
    QWidget window;
    QLineEdit *other = new QLineEdit(&window);
    QPointer<KPropertyEditorView> view = new KPropertyEditorView(&window);

    Victims()
    {
        set->addProperty(new KProperty("text", text("abc"), text("Text")), "first");
        set->addProperty(new KProperty("number", 5, text("Number")), "first");
        set->addProperty(new KProperty("real", 5.5, text("Real")), "first");
        set->addProperty(new KProperty("flag", false, text("Flag")), "first");
        set->addProperty(new KProperty("day", QDate(2020, 2, 3), text("Day")), "first");
        set->addProperty(new KProperty("size", QSize(3, 4), text("Size")), "second");
        set->addProperty(new KProperty("lines", text("a\nb"), text("Lines")), "second");
        (*set)["lines"].setOption("multiLine", true);
        (*set)["text"].setOption("selectButton", true);
        other->setGeometry(0, 0, 400, 40);
        view->setGeometry(0, 40, 400, 460);
        view->changeSet(set);
        window.resize(400, 500);
        window.show();
        (void)QTest::qWaitForWindowActive(&window);
    }

    ~Victims()
    {
        delete view;
        delete set;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    Q_DISABLE_COPY_MOVE(Victims)

    [[nodiscard]] QModelIndex row(const QByteArray &name, const QModelIndex &parent = {}) const
    {
        const QAbstractItemModel *const model = view->model();
        for (int i = 0; i < model->rowCount(parent); ++i) {
            const QModelIndex each = model->index(i, 0, parent);
            const KProperty *const property = KPropertyUtils::propertyForIndex(each);
            if (property && property->name() == name) {
                return each;
            }
            if (const QModelIndex below = row(name, each); below.isValid()) {
                return below;
            }
        }
        return {};
    }

    void open(const QByteArray &name) const
    {
        view->setFocus();
        view->setCurrentIndex(row(name));
        QTest::keyClick(view, Qt::Key_F2);
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        if (QWidget *const focus = QApplication::focusWidget()) {
            QTest::keyClick(focus, key, modifiers);
        }
        QCoreApplication::processEvents();
    }

    void click(const QModelIndex &cell) const { click(view->visualRect(cell).center()); }
    /// Through the window, which outlives the view.
    void click(const QPoint &place) const
    {
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, view->viewport()->mapTo(&window, place));
    }
};

using Act = void (*)(Victims &);

} // namespace

Q_DECLARE_METATYPE(Act)

class ViewLifetimesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(text(".?"))); }
    void whoHearsOfAChangeMayDeleteTheView_data();
    void whoHearsOfAChangeMayDeleteTheView();
    void whoHearsOfTypingMayDeleteTheView_data();
    void whoHearsOfTypingMayDeleteTheView();
    void whoIsAskedForADialogMayDeleteTheView_data();
    void whoIsAskedForADialogMayDeleteTheView();
    void whoHearsOfACommitMayDeleteTheNextSet();
    void whatIsTypedIsCommittedOnceByAPress();
};

void ViewLifetimesTest::whoHearsOfAChangeMayDeleteTheView_data()
{
    QTest::addColumn<QByteArray>("edited");
    QTest::addColumn<Act>("act");
    QTest::addColumn<bool>("takesSetAlong");
    const std::pair<const char *, Act> acts[] = {
        {"acceptInput", [](Victims &all) { all.view->acceptInput(); }},
        {"the same set", [](Victims &all) { all.view->changeSet(all.set); }},
        {"no set", [](Victims &all) { all.view->changeSet(nullptr); }},
        {"Enter", [](Victims &all) { all.press(Qt::Key_Return, Qt::ControlModifier); }},
        {"Tab", [](Victims &all) { all.press(Qt::Key_Tab); }},
        {"Shift+Tab", [](Victims &all) { all.press(Qt::Key_Backtab, Qt::ShiftModifier); }},
        {"focus elsewhere", [](Victims &all) { all.other->setFocus(); }},
        {"another row", [](Victims &all) { all.click(all.row("size")); }},
        {"a group", [](Victims &all) { all.click(all.view->model()->index(1, 0)); }},
        {"another editor",
         [](Victims &all) {
             QAbstractItemView *const base = all.view;
             base->edit(all.row("flag"));
         }},
    };
    for (const char *const edited : {"text", "number", "real", "day", "width", "lines"}) {
        for (const auto &[name, act] : acts) {
            for (const bool both : {false, true}) {
                QTest::addRow("%s, %s%s", edited, name, both ? ", with its set" : "")
                    << QByteArray(edited) << act << both;
            }
        }
    }
}

void ViewLifetimesTest::whoHearsOfAChangeMayDeleteTheView()
{
    QFETCH(QByteArray, edited);
    QFETCH(Act, act);
    QFETCH(bool, takesSetAlong);
    Victims all;
    all.view->setValueSyncEnabled(false);
    all.open(edited);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Home);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_1);
    connect(all.set, &KPropertySet::propertyChanged, this, [&] {
        delete all.view;
        if (takesSetAlong) {
            delete all.set;
        }
    });
    if (QByteArray(QTest::currentDataTag()).contains("another editor")) {
        QTest::ignoreMessage(QtWarningMsg, "edit: editing failed");
    }
    act(all);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!all.view);
    QCOMPARE(all.set.isNull(), takesSetAlong);
}

void ViewLifetimesTest::whoHearsOfTypingMayDeleteTheView_data()
{
    QTest::addColumn<QByteArray>("edited");
    QTest::addColumn<Act>("act");
    const std::pair<const char *, Act> acts[] = {
        {"key", [](Victims &all) { all.press(Qt::Key_1); }},
        {"up", [](Victims &all) { all.press(Qt::Key_Up); }},
        {"space", [](Victims &all) { all.press(Qt::Key_Space); }},
        {"emptied",
         [](Victims &all) {
             all.press(Qt::Key_A, Qt::ControlModifier);
             all.press(Qt::Key_Delete);
         }},
    };
    const std::pair<const char *, const char *> kinds[] = {
        {"text", "key space emptied"},
        {"number", "key up"},
        {"real", "key up"},
        {"day", "key up"},
        {"flag", "space"},
        {"width", "key up"},
        {"lines", "key space"},
    };
    for (const auto &[edited, fitting] : kinds) {
        for (const auto &[name, act] : acts) {
            if (QByteArray(fitting).split(' ').contains(name)) {
                QTest::addRow("%s, %s", edited, name) << QByteArray(edited) << act;
            }
        }
    }
    QTest::newRow("a click on the box") << QByteArray() << Act([](Victims &all) {
        const QRect cell = all.view->visualRect(all.row("flag").siblingAtColumn(1));
        all.click(QPoint(cell.left() + 10, cell.center().y()));
    });
    QTest::newRow("taken back by key") << QByteArray() << Act([](Victims &all) {
        const QSignalBlocker quiet(all.set);
        all.set->changeProperty("text", text("other"));
    });
    QTest::newRow("taken back, child") << QByteArray() << Act([](Victims &all) {
        const QSignalBlocker quiet(all.set);
        (*all.set)["size"].child("width")->setValue(9);
    });
}

void ViewLifetimesTest::whoHearsOfTypingMayDeleteTheView()
{
    QFETCH(QByteArray, edited);
    QFETCH(Act, act);
    Victims all;
    if (!edited.isEmpty()) {
        all.open(edited);
    }
    connect(all.set, &KPropertySet::propertyChanged, this, [&] {
        delete all.view;
        delete all.set;
    });
    act(all);
    if (QByteArray(QTest::currentDataTag()).startsWith("taken back")) {
        const bool isChild = QByteArray(QTest::currentDataTag()).contains("child");
        all.view->setFocus();
        all.view->setCurrentIndex(all.row(isChild ? "width" : "text"));
        all.press(Qt::Key_Z, Qt::ControlModifier);
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!all.view);
    QVERIFY(!all.set);
}

void ViewLifetimesTest::whoIsAskedForADialogMayDeleteTheView_data()
{
    QTest::addColumn<bool>("answers");
    QTest::newRow("without an answer") << false;
    QTest::newRow("with an answer, and who hears of it") << true;
}

void ViewLifetimesTest::whoIsAskedForADialogMayDeleteTheView()
{
    QFETCH(bool, answers);
    Victims all;
    connect(all.view, &KPropertyEditorView::handlePropertyEditorItemEvent, this,
            [&](KPropertyEditorItemEvent *event) {
                if (answers) {
                    event->setResult(text("chosen"));
                } else {
                    delete all.view;
                }
            });
    connect(all.set, &KPropertySet::propertyChanged, this, [&] { delete all.view; });
    all.open("text");
    all.press(Qt::Key_F4);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!all.view);
    QCOMPARE(all.set->propertyValue("text").toString(), answers ? text("chosen") : text("abc"));
}

void ViewLifetimesTest::whoHearsOfACommitMayDeleteTheNextSet()
{
    Victims all;
    all.view->setValueSyncEnabled(false);
    all.open("text");
    all.press(Qt::Key_1);
    auto *const next = new KPropertySet;
    next->addProperty(new KProperty("p", 1));
    connect(all.set, &KPropertySet::propertyChanged, this, [next] { delete next; });
    all.view->changeSet(next);
    QVERIFY(!all.view->propertySet());
    QCOMPARE(all.view->model()->rowCount(), 0);
}

void ViewLifetimesTest::whatIsTypedIsCommittedOnceByAPress()
{
    Victims all;
    all.view->setValueSyncEnabled(false);
    int changes = 0;
    connect(all.set, &KPropertySet::propertyChanged, this, [&changes] { ++changes; });
    for (const char *const target : {"number", "size"}) {
        all.open("text");
        all.press(Qt::Key_End);
        all.press(Qt::Key_1);
        all.click(all.row(target));
        QCOMPARE(std::exchange(changes, 0), 1);
        QCOMPARE(KPropertyUtils::propertyForIndex(all.view->currentIndex())->name(), QByteArray(target));
    }
    QCOMPARE(all.set->propertyValue("text").toString(), text("abc11"));
}

QTEST_MAIN(ViewLifetimesTest)
#include "ViewLifetimesTest.moc"
