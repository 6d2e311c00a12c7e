#include "CoreTrace.h"

#include <QCoreApplication>

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    traceProperties();
    traceSets();
    for (const unsigned seed : {1u, 77u, 4711u}) {
        traceRandomSets(seed, 300);
    }
    return 0;
}
