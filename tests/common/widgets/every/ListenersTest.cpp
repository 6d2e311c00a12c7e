#include "EveryWidget.h"
#include "WidgetTest.h"

#include <orv/widgets/DialogAnswerer.h>

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMenu>
#include <QMetaMethod>
#include <QPushButton>
#include <QToolButton>

using namespace orv;

namespace {

/// The worst listener.
class Destroyer : public QObject
{
    Q_OBJECT

public:
    explicit Destroyer(QWidget *widget)
        : m_widget(widget)
    {}

    void listenTo(const QByteArray &signal)
    {
        const QMetaObject *const meta = m_widget->metaObject();
        const QMetaObject *const own = metaObject();
        if (!connect(m_widget, meta->method(meta->indexOfSignal(signal.constData())), this,
                     own->method(own->indexOfSlot("destroy()"))))
            qFatal("Nobody can listen to %s", signal.constData());
    }

public Q_SLOTS:
    void destroy() { delete m_widget; }

private:
    QPointer<QWidget> m_widget;
};

/// The signals of our own classes, inherited ones included.
QList<QByteArray> signalsOf(const QWidget &widget)
{
    QList<QByteArray> found;
    for (const QMetaObject *meta = widget.metaObject(); QByteArray(meta->className()).startsWith("orv::");
         meta = meta->superClass()) {
        for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
            if (meta->method(i).methodType() == QMetaMethod::Signal)
                found.append(meta->method(i).methodSignature());
        }
    }
    return found;
}

void removeColumn(QWidget *widget)
{
    ScriptedAnswerer answers;
    answers.expectBox(EveryWidget::text("Remove Column"), EveryWidget::text("Remove"));
    for (QAction *const action :
         widget->findChild<QToolButton *>(EveryWidget::text("columns"))->menu()->actions()) {
        if (!action->text().contains(u"Lot"))
            continue;
        action->trigger();
        return;
    }
    qFatal("There is no column to remove");
}

/// What a person does for the signal to come.
void provoke(const QByteArray &signal, QWidget *widget)
{
    if (signal.startsWith("removeCustomColumn")) {
        removeColumn(widget);
    } else if (signal.startsWith("importWanted")) {
        static_cast<CustomFieldsImportWidget *>(widget)->importCSV(EveryWidget::text("/none.csv"));
    } else if (TableView *const table = EveryWidget::shownTable(*widget)) {
        EveryWidget::typeInto(table);
    } else {
        widget->findChild<QLineEdit *>()->setFocus();
        EveryWidget::type("7");
    }
}

} // namespace

class ListenersTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void anyListenerMayDestroyTheWidget_data();
    void anyListenerMayDestroyTheWidget();
    void whoeverHearsOfOkMayDestroyTheDialog_data();
    void whoeverHearsOfOkMayDestroyTheDialog();
    void massesOfGlycansFollowTheirOptions();
};

void ListenersTest::anyListenerMayDestroyTheWidget_data()
{
    QTest::addColumn<int>("maker");
    QTest::addColumn<QByteArray>("signal");
    for (int i = 0; i < EveryWidget::all().size(); ++i) {
        const std::unique_ptr<QWidget> widget = EveryWidget::all()[i].make();
        for (const QByteArray &signal : signalsOf(*widget))
            QTest::addRow("%s::%s", EveryWidget::all()[i].name, signal.constData()) << i << signal;
    }
}

void ListenersTest::anyListenerMayDestroyTheWidget()
{
    QFETCH(const int, maker);
    QFETCH(const QByteArray, signal);
    const QPointer<QWidget> widget = EveryWidget::all()[maker].make().release();
    EveryWidget::show(*widget);
    // What was told of the content that it was made with.
    QCoreApplication::sendPostedEvents();
    Destroyer destroyer(widget);
    destroyer.listenTo(signal);
    provoke(signal, widget);
    QTRY_VERIFY2(!widget, "The signal didn't come");
}

void ListenersTest::whoeverHearsOfOkMayDestroyTheDialog_data()
{
    QTest::addColumn<int>("maker");
    for (int i = 0; i < EveryWidget::all().size(); ++i) {
        if (qobject_cast<QDialog *>(EveryWidget::all()[i].make().get()))
            QTest::newRow(EveryWidget::all()[i].name) << i;
    }
}

void ListenersTest::whoeverHearsOfOkMayDestroyTheDialog()
{
    QFETCH(const int, maker);
    const QPointer<QWidget> dialog = EveryWidget::all()[maker].make().release();
    EveryWidget::show(*dialog);
    Destroyer destroyer(dialog);
    destroyer.listenTo("accepted()");
    QTest::mouseClick(dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok), Qt::LeftButton);
    QTRY_VERIFY(!dialog);
}

void ListenersTest::massesOfGlycansFollowTheirOptions()
{
    GlycanTableWidget glycans;
    Glycan xylose;
    xylose.composition = EveryWidget::text("Xyl(1)");
    glycans.setTable(GlycanTable({xylose}));
    GlycanOptionsWidget options;
    connect(&options, &ScientificTableWidget::contentChanged, &glycans,
            [&] { glycans.setGlycanOptions(options.options()); });
    EveryWidget::show(options);
    const int calculated = glycans.sheet()->columnOf(EveryWidget::text("calculated"));
    QCOMPARE(glycans.sheet()->text(0, calculated).toString(), QString());
    GlycanOption option;
    option.name = EveryWidget::text("Xyl");
    option.formula = ChemicalFormula::parse(EveryWidget::text("C5H8O4")).value();
    options.setOptions(GlycanOptions({option}));
    QTRY_COMPARE(glycans.sheet()->text(0, calculated).toString(), EveryWidget::text("150.0528"));
}

WIDGET_REGISTER_TEST(ListenersTest)

#include "ListenersTest.moc"
