#include "EveryWidget.h"
#include "WidgetTest.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabBar>

using namespace orv;

namespace {

bool isControl(const QWidget *widget, const QWidget *root)
{
    return widget->focusPolicy() != Qt::NoFocus && widget->isVisibleTo(root) && widget->isEnabled() &&
           !widget->focusProxy() && !widget->objectName().startsWith(u"qt_") &&
           !qobject_cast<const QLabel *>(widget);
}

QList<QWidget *> controlsOf(QWidget *root)
{
    QList<QWidget *> controls;
    for (QWidget *const widget : root->findChildren<QWidget *>()) {
        if (isControl(widget, root))
            controls.append(widget);
    }
    return controls;
}

QString nameOf(const QWidget *widget)
{
    return QStringLiteral("%1 \"%2\"")
        .arg(QString::fromLatin1(widget->metaObject()->className()), widget->objectName());
}

/// Tables tell of their columns at the headers, tabs of their pages; OK and Cancel are known to everybody.
bool needsTip(QWidget *widget)
{
    return !qobject_cast<QAbstractItemView *>(widget) && !qobject_cast<QTabBar *>(widget) &&
           !qobject_cast<QTabWidget *>(widget) &&
           (!qobject_cast<QDialogButtonBox *>(widget->parentWidget()) ||
            qobject_cast<QDialogButtonBox *>(widget->parentWidget())
                    ->standardButton(qobject_cast<QAbstractButton *>(widget)) == QDialogButtonBox::NoButton);
}

QList<const QWidget *> pathTo(const QWidget *widget, const QWidget *root)
{
    QList<const QWidget *> path;
    for (; widget && widget != root; widget = widget->parentWidget())
        path.prepend(widget);
    return path;
}

/// Whether who reads from left to right and down comes to \a second behind \a first: compared where their
/// ways part, so that a box is read before the one beside it.
bool isReadBehind(const QWidget *first, const QWidget *second, const QWidget *root)
{
    const QList<const QWidget *> before = pathTo(first, root);
    const QList<const QWidget *> behind = pathTo(second, root);
    qsizetype at = 0;
    while (at < before.size() && at < behind.size() && before[at] == behind[at])
        ++at;
    if (at == before.size() || at == behind.size())
        return true;
    const QRect a(before[at]->mapTo(root, QPoint()), before[at]->size());
    const QRect b(behind[at]->mapTo(root, QPoint()), behind[at]->size());
    const bool isAbove = b.bottom() < a.top();
    const bool isBeside = b.bottom() >= a.top() && b.top() <= a.bottom();
    return !isAbove && !(isBeside && b.right() < a.left());
}

} // namespace

class NamesTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyControlHasAName_data() { EveryWidget::addRows(); }
    void everyControlHasAName();
    void everyControlHasATip_data() { EveryWidget::addRows(); }
    void everyControlHasATip();
    void everyColumnTellsWhatItHoldsAndItsUnit_data() { EveryWidget::addRows(); }
    void everyColumnTellsWhatItHoldsAndItsUnit();
    void tabGoesAsOneReads_data() { EveryWidget::addRows(); }
    void tabGoesAsOneReads();
    void mnemonicsAreUnique_data() { EveryWidget::addRows(); }
    void mnemonicsAreUnique();

private:
    std::unique_ptr<QWidget> shown()
    {
        const int maker = *static_cast<int *>(QTest::qData("maker", qMetaTypeId<int>()));
        std::unique_ptr<QWidget> widget = EveryWidget::all()[maker].make();
        EveryWidget::show(*widget);
        return widget;
    }
};

void NamesTest::everyControlHasAName()
{
    const std::unique_ptr<QWidget> widget = shown();
    const QList<QWidget *> controls = controlsOf(widget.get());
    QVERIFY(!controls.isEmpty());
    QStringList nameless;
    for (const QWidget *const control : controls) {
        const auto *const button = qobject_cast<const QAbstractButton *>(control);
        if (control->accessibleName().isEmpty() && (!button || button->text().isEmpty()) &&
            !qobject_cast<const QTabBar *>(control))
            nameless.append(nameOf(control));
    }
    QCOMPARE(nameless.join(QLatin1String(", ")), QString());
}

void NamesTest::everyControlHasATip()
{
    const std::unique_ptr<QWidget> widget = shown();
    QStringList bare;
    for (QWidget *const control : controlsOf(widget.get())) {
        if (needsTip(control) && control->toolTip().isEmpty())
            bare.append(nameOf(control));
    }
    QCOMPARE(bare.join(QLatin1String(", ")), QString());
}

void NamesTest::everyColumnTellsWhatItHoldsAndItsUnit()
{
    const std::unique_ptr<QWidget> widget = shown();
    QStringList silent;
    for (const TableView *const view : widget->findChildren<TableView *>()) {
        const QList<TableColumn> &columns = view->sheet()->columns();
        for (int column = 0; column < columns.size(); ++column) {
            const QString tip =
                view->tableModel()->headerData(column, Qt::Horizontal, Qt::ToolTipRole).toString();
            // Columns of somebody's own file or document have no other words than their title.
            if (tip.isEmpty() || !tip.contains(columns[column].unit))
                silent.append(columns[column].title);
        }
    }
    QCOMPARE(silent.join(QLatin1String(", ")), QString());
}

void NamesTest::tabGoesAsOneReads()
{
    const std::unique_ptr<QWidget> widget = shown();
    QList<const QWidget *> chain;
    for (QWidget *next = widget->nextInFocusChain(); next && next != widget.get();
         next = next->nextInFocusChain()) {
        if (widget->isAncestorOf(next) && isControl(next, widget.get()) &&
            (next->focusPolicy() & Qt::TabFocus) != 0)
            chain.append(next);
    }
    QStringList wrong;
    for (qsizetype i = 1; i < chain.size(); ++i) {
        if (!isReadBehind(chain[i - 1], chain[i], widget.get()))
            wrong.append(nameOf(chain[i - 1]) + QLatin1String(" -> ") + nameOf(chain[i]));
    }
    QCOMPARE(wrong.join(QLatin1String(", ")), QString());
}

void NamesTest::mnemonicsAreUnique()
{
    const std::unique_ptr<QWidget> widget = shown();
    QHash<QString, QString> owners;
    QStringList twice;
    const auto add = [&](const QString &words) {
        const QString key = QKeySequence::mnemonic(words).toString();
        if (!key.isEmpty() && owners.contains(key))
            twice.append(owners.value(key) + QLatin1String(" / ") + words);
        owners.insert(key, words);
    };
    for (const QLabel *const label : widget->findChildren<QLabel *>()) {
        if (label->isVisibleTo(widget.get()) && label->buddy())
            add(label->text());
    }
    for (const QAbstractButton *const button : widget->findChildren<QAbstractButton *>()) {
        if (button->isVisibleTo(widget.get()))
            add(button->text());
    }
    for (const QTabBar *const bar : widget->findChildren<QTabBar *>()) {
        for (int tab = 0; bar->isVisibleTo(widget.get()) && tab < bar->count(); ++tab)
            add(bar->tabText(tab));
    }
    QCOMPARE(twice.join(QLatin1String(", ")), QString());
}

WIDGET_REGISTER_TEST(NamesTest)

#include "NamesTest.moc"
