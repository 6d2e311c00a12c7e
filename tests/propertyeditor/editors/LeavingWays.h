#pragma once

#include <KProperty.h>
#include <KPropertyEditorView.h>
#include <KPropertyUtils.h>

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTest>

/// Opens the editor of a cell and leaves it as people do, by events of mouse, keyboard and windows.
///
/// \code
///     void Test::typedTextsAreTaken_data() { LeavingWays::addRows(); }
///     void Test::typedTextsAreTaken()
///     {
///         QFETCH(LeavingWays::Way, way);
///         QVERIFY(LeavingWays::open(*view, "KarvonLayout"));
///         LeavingWays::type("other.ini");
///         QVERIFY(LeavingWays::leave(*view, way));
///     }
/// \endcode
namespace LeavingWays {

enum class Way
{
    Enter, ///< with Ctrl in a text of several lines, where Enter alone begins a line
    Tab,
    ShiftTab,
    ClickOnAnotherRow,
    ClickOutside, ///< on a field beside the tree, in the same window
    WindowSwitch,
};

/// The rows of a data function; the column is called "way".
inline void addRows()
{
    QTest::addColumn<Way>("way");
    QTest::newRow("Enter") << Way::Enter;
    QTest::newRow("Tab") << Way::Tab;
    QTest::newRow("Shift+Tab") << Way::ShiftTab;
    QTest::newRow("click on another row") << Way::ClickOnAnotherRow;
    QTest::newRow("click outside") << Way::ClickOutside;
    QTest::newRow("window switch") << Way::WindowSwitch;
}

inline const QList<Way> &all()
{
    static const QList<Way> ways = {
        Way::Enter, Way::Tab, Way::ShiftTab, Way::ClickOnAnotherRow, Way::ClickOutside, Way::WindowSwitch};
    return ways;
}

/// The name cell of a property's row, also of a child's; invalid where it isn't shown.
inline QModelIndex rowOf(const QAbstractItemView &view, const QByteArray &name,
                         const QModelIndex &parent = {})
{
    const QAbstractItemModel &model = *view.model();
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const KProperty *property = KPropertyUtils::propertyForIndex(index);
        if (property && property->name() == name)
            return index;
        if (const QModelIndex found = rowOf(view, name, index); found.isValid())
            return found;
    }
    return {};
}

/// The open editor of a property; null where there is none.
inline QWidget *editorOf(const KPropertyEditorView &view, const QByteArray &name)
{
    const QModelIndex row = rowOf(view, name);
    return row.isValid() ? view.indexWidget(row.siblingAtColumn(1)) : nullptr;
}

inline void click(KPropertyEditorView &view, const QModelIndex &cell)
{
    view.scrollTo(cell);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(cell).center());
}

/// Opens the editor by a click into the value and gives it; null where the value can't be edited in its cell.
/// The view has to be shown.
inline QWidget *open(KPropertyEditorView &view, const QByteArray &name)
{
    view.activateWindow();
    if (!QTest::qWaitForWindowActive(view.window()))
        return nullptr;
    const QModelIndex row = rowOf(view, name);
    if (!row.isValid())
        return nullptr;
    click(view, row.siblingAtColumn(1));
    return editorOf(view, name);
}

/// Opens it by the keyboard, from the row that is current.
inline QWidget *openByKey(KPropertyEditorView &view, const QByteArray &name, Qt::Key key = Qt::Key_F2)
{
    view.activateWindow();
    if (!QTest::qWaitForWindowActive(view.window()))
        return nullptr;
    const QModelIndex row = rowOf(view, name);
    view.setFocus();
    view.setCurrentIndex(row);
    QTest::keyClick(QApplication::focusWidget(), key);
    return editorOf(view, name);
}

/// Types over what the field under the focus holds.
inline void type(const QString &text)
{
    QWidget *field = QApplication::focusWidget();
    QTest::keySequence(field, QKeySequence::SelectAll);
    QTest::keyClick(field, Qt::Key_Delete);
    QTest::keyClicks(field, text);
}

inline void clickOnAnotherRow(KPropertyEditorView &view)
{
    const KProperty *current = KPropertyUtils::propertyForIndex(view.currentIndex());
    for (QModelIndex row = view.model()->index(0, 0); row.isValid(); row = view.indexBelow(row)) {
        const KProperty *property = KPropertyUtils::propertyForIndex(row);
        if (property && property != current) {
            click(view, row);
            return;
        }
    }
    // The only row: below it there is nothing to click on but the tree itself.
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.viewport()->rect().bottomLeft());
}

inline void clickOutside(KPropertyEditorView &view)
{
    QLineEdit neighbour(view.window());
    neighbour.show();
    neighbour.raise();
    QTest::mouseClick(&neighbour, Qt::LeftButton);
}

inline void switchWindows(KPropertyEditorView &view)
{
    QLineEdit other;
    other.show();
    other.activateWindow();
    (void)QTest::qWaitForWindowActive(&other);
    view.activateWindow();
    (void)QTest::qWaitForWindowActive(view.window());
}

/// Leaves the open editor; afterwards the window of the view is active again. Whether the editor closed: on
/// Enter a field whose validator refuses its text stays open.
[[nodiscard]] inline bool leave(KPropertyEditorView &view, Way way)
{
    const QModelIndex cell = view.currentIndex().siblingAtColumn(1);
    const QPointer<QWidget> editor = view.indexWidget(cell);
    // Keys go where the focus is, as they do from a real keyboard.
    QWidget *focus = QApplication::focusWidget();
    if (!editor || !focus)
        return false;
    const bool hasSeveralLines = qobject_cast<QPlainTextEdit *>(focus);
    switch (way) {
    case Way::Enter:
        QTest::keyClick(focus, Qt::Key_Return, hasSeveralLines ? Qt::ControlModifier : Qt::NoModifier);
        break;
    case Way::Tab:
        QTest::keyClick(focus, Qt::Key_Tab);
        break;
    case Way::ShiftTab:
        QTest::keyClick(focus, Qt::Key_Backtab, Qt::ShiftModifier);
        break;
    case Way::ClickOnAnotherRow:
        clickOnAnotherRow(view);
        break;
    case Way::ClickOutside:
        clickOutside(view);
        break;
    case Way::WindowSwitch:
        switchWindows(view);
        break;
    }
    // Enter closes when the key was handled, and what was closed is deleted after that.
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return editor.isNull();
}

} // namespace LeavingWays

Q_DECLARE_METATYPE(LeavingWays::Way)
