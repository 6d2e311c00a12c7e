#include "ViewTrace.h"

#include <QApplication>
#include <QLocale>

int main(int argc, char **argv)
{
    const QApplication app(argc, argv);
    QLocale::setDefault(QLocale::c());
    traceDisplays();
    traceViews();
    for (const unsigned seed : {3u, 99u}) {
        traceRandomViews(seed, 100);
    }
    return 0;
}
