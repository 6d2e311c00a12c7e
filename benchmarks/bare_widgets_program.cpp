// A program with a window of Qt's widgets alone, which ends once its window is painted: what the start of the
// desktop application is measured by.

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QStandardItemModel>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolBar>
#include <QTreeView>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QStandardItemModel model(40, 2);
    QMainWindow window;
    window.menuBar()->addMenu(QStringLiteral("&File"))->addAction(QStringLiteral("&Open..."));
    window.addToolBar(QStringLiteral("Tools"))->addAction(QStringLiteral("Save"));
    window.statusBar()->showMessage(QStringLiteral("Saved"));
    auto *tabs = new QTabWidget;
    auto *tree = new QTreeView;
    tree->setModel(&model);
    tabs->addTab(tree, QStringLiteral("Samples"));
    window.setCentralWidget(tabs);
    window.resize(1280, 800);
    window.show();
    QCoreApplication::processEvents();
    return window.grab().isNull() ? 1 : 0;
}
