#pragma once

#include "GridFixture.h"

#include <orv/widgets/DialogAnswerer.h>
#include <orv/widgets/DialogService.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAction>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>
#include <QToolButton>

/// Whatever a person can do with the controls of a widget, one by one.
namespace PersonActs {

using GridFixture::text;

/// Accepts or refuses every box and dialog as it is; never chooses a file.
class Blunt : public orv::DialogAnswerer
{
public:
    explicit Blunt(bool accepts)
        : m_accepts(accepts)
        , m_before(orv::DialogService::install(this))
    {}
    ~Blunt() override { orv::DialogService::install(m_before); }
    Q_DISABLE_COPY_MOVE(Blunt)

    std::optional<orv::DialogAnswer> answer(const orv::DialogRequest &request) override
    {
        using namespace orv;
        if (request.kind == DialogRequest::Kind::Dialog)
            return DialogAnswer{m_accepts ? text("OK") : text("Cancel"), {}};
        if (request.buttons.isEmpty())
            return DialogAnswer{};
        return DialogAnswer{m_accepts ? request.buttons.constFirst() : request.buttons.constLast(), {}};
    }

private:
    const bool m_accepts;
    orv::DialogAnswerer *const m_before;
};

struct Act
{
    QString name;
    std::function<void()> perform;
};

inline QString nameOf(const QWidget *widget)
{
    return text(widget->metaObject()->className()) + u' ' +
           (widget->objectName().isEmpty() ? widget->accessibleName() : widget->objectName());
}

inline void key(const QPointer<QWidget> &widget, Qt::Key code, Qt::KeyboardModifiers modifiers = {})
{
    if (widget)
        QTest::keyClick(widget, code, modifiers);
}

inline void inFocus(Qt::Key code, Qt::KeyboardModifiers modifiers = {})
{
    key(QApplication::focusWidget(), code, modifiers);
}

inline void typeInFocus(const char *utf8)
{
    if (QWidget *focus = QApplication::focusWidget())
        QTest::keyClicks(focus, text(utf8));
}

/// Stands in a cell, as after a click.
inline bool standIn(const QPointer<QAbstractItemView> &view, const QPersistentModelIndex &cell)
{
    if (!view || !cell.isValid())
        return false;
    view->setFocus();
    view->setCurrentIndex(cell);
    return true;
}

inline void addCellActs(QAbstractItemView *table, const QModelIndex &index, QList<Act> *acts)
{
    const QPointer<QAbstractItemView> view = table;
    const QPersistentModelIndex cell = index;
    const QString where = nameOf(table) + text(" %1,%2 ").arg(index.row()).arg(index.column());
    const auto add = [&](const char *what, const std::function<void()> &perform) {
        acts->append({where + text(what), [=] {
                          if (standIn(view, cell))
                              perform();
                      }});
    };
    add("look", [] {
        inFocus(Qt::Key_F2);
        inFocus(Qt::Key_Return);
    });
    add("escape", [] {
        typeInFocus("7");
        inFocus(Qt::Key_Escape);
    });
    add("type", [] {
        inFocus(Qt::Key_F2);
        inFocus(Qt::Key_A, Qt::ControlModifier);
        typeInFocus("5");
        inFocus(Qt::Key_Return);
    });
    add("type again", [] {
        inFocus(Qt::Key_F2);
        inFocus(Qt::Key_A, Qt::ControlModifier);
        typeInFocus("AC");
        inFocus(Qt::Key_Tab);
    });
    add("undo", [] { inFocus(Qt::Key_Z, Qt::ControlModifier); });
    add("redo", [] { inFocus(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); });
    add("copy", [] { inFocus(Qt::Key_C, Qt::ControlModifier); });
    add("paste", [] {
        QApplication::clipboard()->setText(text("3\tB\n4\tC"));
        inFocus(Qt::Key_V, Qt::ControlModifier);
    });
    add("cut", [] { inFocus(Qt::Key_X, Qt::ControlModifier); });
    add("delete", [] { inFocus(Qt::Key_Delete); });
    add("space", [] { inFocus(Qt::Key_Space); });
}

inline void addViewActs(QAbstractItemView *view, QList<Act> *acts)
{
    const QAbstractItemModel *model = view->model();
    const int rows = model && model->hasChildren(model->index(0, 0)) ? 4 : 1;
    for (int row = 0; model && row < std::min(rows, model->rowCount()); ++row) {
        const QModelIndex first = model->index(row, 0);
        for (int column = 0; column < std::min(6, model->columnCount()); ++column)
            addCellActs(view, model->index(row, column), acts);
        for (int child = 0; child < std::min(2, model->rowCount(first)); ++child)
            addCellActs(view, model->index(child, std::min(1, model->columnCount(first) - 1), first), acts);
    }
}

/// What a person can do with one control.
inline void addActs(QWidget *widget, QList<Act> *acts)
{
    const QPointer<QWidget> control = widget;
    const auto add = [&](const char *what, const std::function<void()> &perform) {
        acts->append({nameOf(widget) + u' ' + text(what), [=] {
                          if (control && control->isVisible() && control->isEnabled())
                              perform();
                      }});
    };
    if (auto *view = qobject_cast<QAbstractItemView *>(widget)) {
        addViewActs(view, acts);
    } else if (auto *button = qobject_cast<QAbstractButton *>(widget)) {
        const auto *tool = qobject_cast<QToolButton *>(widget);
        // A button with a menu waits for a person; the commands of menus are done as such.
        const bool opensMenu =
            tool && (tool->menu() || tool->objectName() == QLatin1String("qt_toolbar_ext_button"));
        if (!opensMenu)
            add("click", [=] { QTest::mouseClick(control, Qt::LeftButton); });
        if (button->isCheckable())
            add("click again", [=] { QTest::mouseClick(control, Qt::LeftButton); });
    } else if (qobject_cast<QComboBox *>(widget)) {
        add("next", [=] { key(control, Qt::Key_Down); });
        add("previous", [=] { key(control, Qt::Key_Up); });
    } else if (qobject_cast<QAbstractSpinBox *>(widget)) {
        add("up", [=] { key(control, Qt::Key_Up); });
        add("down", [=] { key(control, Qt::Key_Down); });
    } else if (qobject_cast<QLineEdit *>(widget) || qobject_cast<QPlainTextEdit *>(widget)) {
        add("type", [=] {
            control->setFocus();
            QTest::keyClicks(control, text("1"));
            inFocus(Qt::Key_Tab);
        });
        add("undo", [=] {
            control->setFocus();
            QTest::keyClick(control, Qt::Key_Z, Qt::ControlModifier);
            inFocus(Qt::Key_Tab);
        });
    }
}

inline QList<Act> actsOf(QWidget *column)
{
    QList<Act> acts;
    const QList<QWidget *> widgets = column->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->isVisibleTo(column) && widget->window() == column->window())
            addActs(widget, &acts);
    }
    for (QAction *action : column->findChildren<QAction *>()) {
        const QPointer<QAction> command = action;
        if (!action->isSeparator() && !action->menu() && !action->text().isEmpty())
            acts.append({text("command ") + action->text(), [command] {
                             if (command && command->isEnabled())
                                 command->trigger();
                         }});
    }
    return acts;
}

/// Does one thing and lets the application answer it.
inline void perform(const Act &act)
{
    act.perform();
    QCoreApplication::processEvents();
    while (QWidget *popup = QApplication::activePopupWidget())
        popup->close();
}

} // namespace PersonActs
