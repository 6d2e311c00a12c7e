#include "ViewFixture.h"

#include <KPropertyEditorItemEvent>
#include <KPropertyWidgetsFactory.h>
#include <KPropertyWidgetsPluginManager.h>

#include <QLineEdit>
#include <QRegularExpression>

namespace {

constexpr int kLateType = KProperty::UserDefined + 70;

/// Has a value only once the line has lost the focus or Enter was pressed, as editors that parse have it.
class LateEditor : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(QString value READ value WRITE setValue USER true)

public:
    explicit LateEditor(QWidget *parent)
        : QLineEdit(parent)
    {
        connect(this, &QLineEdit::editingFinished, this, [this] {
            m_value = text().trimmed();
            Q_EMIT commitData(this);
        });
    }

    [[nodiscard]] QString value() const { return m_value; }
    void setValue(const QString &value)
    {
        m_value = value;
        setText(value);
    }

Q_SIGNALS:
    void commitData(QWidget *editor);

private:
    QString m_value;
};

class LateDelegate : public KPropertyEditorCreatorInterface
{
public:
    QWidget *createEditor(int, QWidget *parent, const QStyleOptionViewItem &,
                          const QModelIndex &) const override
    {
        return new LateEditor(parent);
    }
};

/// A view beside another widget, with a property whose editor tells late what was typed.
struct LateFixture
{
    QWidget window;
    QLineEdit *other = new QLineEdit(&window);
    KPropertySet set;
    KPropertyEditorView *view = new KPropertyEditorView(&window);

    LateFixture()
    {
        set.addProperty(new KProperty("before", text("b"), text("Before")), "first");
        set.addProperty(new KProperty("late", text("old"), text("Late"), QString(), kLateType), "first");
        set.addProperty(new KProperty("behind", text("z"), text("Behind")), "first");
        other->setGeometry(0, 0, 400, 40);
        view->setGeometry(0, 40, 400, 360);
        view->changeSet(&set);
        window.resize(400, 400);
        window.show();
        (void)QTest::qWaitForWindowActive(&window);
    }

    void type(const char *keys)
    {
        view->setFocus();
        view->setCurrentIndex(row("late"));
        QTest::keyClick(view, Qt::Key_F2);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), text(keys));
    }

    [[nodiscard]] QModelIndex row(const QByteArray &name) const
    {
        const QAbstractItemModel *const model = view->model();
        for (int i = 0; i < model->rowCount(model->index(0, 0)); ++i) {
            const QModelIndex each = model->index(i, 0, model->index(0, 0));
            if (KPropertyUtils::propertyForIndex(each)->name() == name) {
                return each;
            }
        }
        return QModelIndex();
    }

    [[nodiscard]] QVariant value() const { return set.propertyValue("late"); }
};

using Act = void (*)(LateFixture &);

} // namespace

Q_DECLARE_METATYPE(Act)

class LateInputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void typedTextIsKept_data();
    void typedTextIsKept();
    void typedTextIsDropped_data();
    void typedTextIsDropped();
    void tabGoesOnToTheNextRow();
    void leavingWithoutTypingChangesNothing();
    void anAnswerFindsItsPropertyAfterARebuild_data();
    void anAnswerFindsItsPropertyAfterARebuild();
};

void LateInputTest::initTestCase()
{
    auto *const factory = new KPropertyWidgetsFactory;
    factory->addEditor(kLateType, new LateDelegate);
    KPropertyWidgetsPluginManager::self()->registerFactory(factory);
}

void LateInputTest::init()
{
    QTest::failOnWarning(QRegularExpression(text(".?")));
}

void LateInputTest::typedTextIsKept_data()
{
    QTest::addColumn<bool>("sync");
    QTest::addColumn<Act>("leave");
    const std::pair<const char *, Act> ways[] = {
        {"Enter", [](LateFixture &) { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); }},
        {"Tab", [](LateFixture &) { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); }},
        {"Shift+Tab", [](LateFixture &) { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab); }},
        {"click on another row",
         [](LateFixture &f) {
             QTest::mouseClick(f.view->viewport(), Qt::LeftButton, Qt::NoModifier,
                               f.view->visualRect(f.row("behind")).center());
         }},
        {"click on a group",
         [](LateFixture &f) {
             QTest::mouseClick(f.view->viewport(), Qt::LeftButton, Qt::NoModifier,
                               f.view->visualRect(f.view->model()->index(0, 0)).center());
         }},
        {"focus on another widget", [](LateFixture &f) { f.other->setFocus(); }},
        {"accepted by the host", [](LateFixture &f) { f.view->acceptInput(); }},
        {"another set", [](LateFixture &f) { f.view->changeSet(nullptr); }},
        {"the same set again", [](LateFixture &f) { f.view->changeSet(&f.set); }},
    };
    for (const auto &[name, leave] : ways) {
        QTest::addRow("%s, values follow typing", name) << true << leave;
        QTest::addRow("%s, values change on leaving", name) << false << leave;
    }
}

void LateInputTest::typedTextIsKept()
{
    QFETCH(bool, sync);
    QFETCH(Act, leave);
    LateFixture fixture;
    fixture.view->setValueSyncEnabled(sync);
    fixture.type(" typed ");
    QCOMPARE(fixture.value(), QVariant(text("old")));
    leave(fixture);
    QCoreApplication::processEvents();
    QCOMPARE(fixture.value(), QVariant(text("typed")));
    QCOMPARE(fixture.set["late"].oldValue(), QVariant(text("old")));
}

void LateInputTest::typedTextIsDropped_data()
{
    QTest::addColumn<Act>("leave");
    QTest::newRow("Escape") << Act(
        [](LateFixture &) { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); });
    QTest::newRow("property made read-only") << Act([](LateFixture &f) {
        f.set["late"].setReadOnly(true);
        f.other->setFocus();
    });
    QTest::newRow("set cleared and filled anew") << Act([](LateFixture &f) {
        f.set.clear();
        f.set.addProperty(new KProperty("late", text("old"), text("Late"), QString(), kLateType), "first");
    });
    QTest::newRow("property removed and added anew") << Act([](LateFixture &f) {
        f.set.removeProperty("late");
        f.set.addProperty(new KProperty("late", text("old"), text("Late"), QString(), kLateType), "first");
    });
}

void LateInputTest::typedTextIsDropped()
{
    QFETCH(Act, leave);
    LateFixture fixture;
    fixture.type("typed");
    leave(fixture);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(fixture.value(), QVariant(text("old")));
    QVERIFY(!fixture.set["late"].isModified());
}

void LateInputTest::tabGoesOnToTheNextRow()
{
    LateFixture fixture;
    fixture.type("typed");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClicks(QApplication::focusWidget(), text("next"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    QCOMPARE(fixture.set.propertyValue("behind"), QVariant(text("next")));
    QCOMPARE(fixture.value(), QVariant(text("typed")));
    QCOMPARE(fixture.set.propertyValue("before"), QVariant(text("b")));
}

void LateInputTest::leavingWithoutTypingChangesNothing()
{
    LateFixture fixture;
    fixture.view->setFocus();
    fixture.view->setCurrentIndex(fixture.row("late"));
    QTest::keyClick(fixture.view, Qt::Key_F2);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    fixture.other->setFocus();
    QVERIFY(!fixture.set.isModified());
}

void LateInputTest::anAnswerFindsItsPropertyAfterARebuild_data()
{
    QTest::addColumn<Act>("rebuild");
    QTest::addColumn<bool>("found");
    const auto refill = [](LateFixture &f, const char *name) {
        f.set.clear();
        f.set.addProperty(new KProperty(name, text("old")), "other");
        f.view->changeSet(&f.set);
    };
    static const auto anew = refill;
    QTest::newRow("tree made anew") << Act([](LateFixture &f) { f.view->changeSet(&f.set); }) << true;
    QTest::newRow("properties made anew") << Act([](LateFixture &f) { anew(f, "late"); }) << true;
    QTest::newRow("property gone") << Act([](LateFixture &f) { anew(f, "another"); }) << false;
    QTest::newRow("made read-only") << Act([](LateFixture &f) { f.set.setReadOnly(true); }) << false;
    QTest::newRow("shown no longer") << Act([](LateFixture &f) { f.view->changeSet(nullptr); }) << false;
}

void LateInputTest::anAnswerFindsItsPropertyAfterARebuild()
{
    QFETCH(Act, rebuild);
    QFETCH(bool, found);
    LateFixture fixture;
    fixture.set["late"].setType(KProperty::String);
    fixture.set["late"].setOption("selectButton", true);
    fixture.view->changeSet(&fixture.set);
    connect(fixture.view, &KPropertyEditorView::handlePropertyEditorItemEvent, this,
            [&fixture, rebuild](KPropertyEditorItemEvent *event) {
                rebuild(fixture);
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                event->setResult(text("answer"));
            });
    fixture.type("x");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F4);
    QCOMPARE(fixture.value() == QVariant(text("answer")), found);
}

QTEST_MAIN(LateInputTest)
#include "LateInputTest.moc"
