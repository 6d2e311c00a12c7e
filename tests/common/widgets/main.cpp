#include "WidgetTest.h"

#include <QStandardPaths>

int main(int argc, char *argv[])
{
    QCoreApplication::setOrganizationName(QStringLiteral("orv-tests"));
    QCoreApplication::setApplicationName(QStringLiteral("orv-widget-tests"));
    QStandardPaths::setTestModeEnabled(true);
    const QApplication application(argc, argv);
    int failures = 0;
    for (const WidgetTests::Creator &create : WidgetTests::creators())
        failures += QTest::qExec(create().get(), argc, argv);
    return failures;
}
