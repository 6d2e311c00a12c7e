#pragma once

#include <KPropertyEditorView>
#include <KPropertySet>
#include <KPropertyUtils>

#include <QApplication>
#include <QTest>

inline QString text(const char *utf8)
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

inline bool isEditing(const Fixture &fixture)
{
    const QWidget *const focus = QApplication::focusWidget();
    return focus && focus != &fixture.view && fixture.view.isAncestorOf(focus);
}
