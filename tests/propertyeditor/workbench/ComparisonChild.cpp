#include "FindFixture.h"

#include <orv/propertyeditor/workbench/Comparison.h>

#include <QApplication>
#include <QTimer>

/// A program that ends while it compares large documents. "close FILE OTHER MS" closes the window after that
/// many milliseconds and ends then; "quit FILE OTHER MS" ends with the window open.

using namespace orv;

namespace {

int compareUntilTheEnd(const QStringList &arguments)
{
    FindFixture::Bench bench;
    if (bench.window->openWorkflow(arguments.at(2)) != FindFixture::kOpened)
        return 3;
    bench.bench->comparison()->compareWith(arguments.at(3));
    const bool closes = arguments.at(1) == QLatin1String("close");
    QTimer::singleShot(arguments.at(4).toInt(), qApp, [&bench, closes] {
        if (closes)
            delete bench.window;
        QCoreApplication::quit();
    });
    return QApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    return QApplication::arguments().size() == 5 ? compareUntilTheEnd(QApplication::arguments()) : 2;
}
