#include "OrvTest.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStandardPaths>

#include <vector>

void OrvTest::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
}

namespace OrvTests {

namespace {

std::vector<std::function<std::unique_ptr<QObject>()>> &creators()
{
    static std::vector<std::function<std::unique_ptr<QObject>()>> list;
    return list;
}

} // namespace

bool registerTest(std::function<std::unique_ptr<QObject>()> create)
{
    creators().push_back(std::move(create));
    return true;
}

int runAll(int argc, char *argv[])
{
    QCoreApplication::setOrganizationName(QStringLiteral("orv-tests"));
    QCoreApplication::setApplicationName(QStringLiteral("orv-tests"));
    QStandardPaths::setTestModeEnabled(true);
    const QCoreApplication application(argc, argv);
    int failures = 0;
    for (const auto &create : creators())
        failures += QTest::qExec(create().get(), argc, argv);
    return failures;
}

} // namespace OrvTests

int main(int argc, char *argv[])
{
    return OrvTests::runAll(argc, argv);
}
