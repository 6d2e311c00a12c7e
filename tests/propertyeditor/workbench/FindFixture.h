#pragma once

#include "WindowFixture.h"

#include <KPropertySet.h>
#include <KPropertyUtils.h>
#include <orv/propertyeditor/grid/KPropertyCustomEditorView.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>
#include <orv/propertyeditor/workbench/Workbench.h>

#include <QAbstractItemView>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>

/// A window with its workbench, as a person sees it.
namespace FindFixture {

using namespace WindowFixture;

class Bench
{
public:
    Bench()
        : window(new Window)
    {
        window->menuBar()->addMenu(text("&File"));
        bench = new orv::Workbench(window);
        window->resize(1280, 800);
    }
    ~Bench() { delete window; }
    Q_DISABLE_COPY_MOVE(Bench)

    [[nodiscard]] bool open(const QJsonObject &document) const
    {
        if (window->openWorkflow(document) != kOpened)
            return false;
        window->show();
        return true;
    }

    template<class Widget>
    [[nodiscard]] Widget *child(const char *name) const
    {
        return window->findChild<Widget *>(text(name));
    }
    [[nodiscard]] QDockWidget *panel(const char *name) const { return child<QDockWidget>(name); }

    [[nodiscard]] orv::GridPropertyEditorView *view(int tab, int column) const
    {
        return qobject_cast<orv::GridPropertyEditorView *>(window->grid(tab)->items().at(column)->widget());
    }
    [[nodiscard]] QByteArray currentSetting(int tab, int column) const
    {
        const KProperty *property =
            KPropertyUtils::propertyForIndex(view(tab, column)->editorView()->currentIndex());
        return property ? property->name() : QByteArray();
    }

    QPointer<Window> window;
    QPointer<orv::Workbench> bench;
};

/// The texts of a column of what a list shows.
inline QStringList shown(const QAbstractItemView &list, int column)
{
    QStringList texts;
    for (int row = 0; row < list.model()->rowCount(); ++row)
        texts.append(list.model()->index(row, column).data().toString());
    return texts;
}

inline void clickAt(QAbstractItemView &list, int row, int column)
{
    const QModelIndex index = list.model()->index(row, column);
    list.scrollTo(index);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(index).center());
}

} // namespace FindFixture
