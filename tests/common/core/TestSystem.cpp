#include "OrvTest.h"

#include <orv/core/AppUtils.h>
#include <orv/core/OrvApplication.h>
#include <orv/core/SysUtils.h>

#include <QThread>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

using namespace orv;
using namespace Qt::StringLiterals;

class TestSystem : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    // First, as the name is asked for once in the life of a process.
    void theNameIsThatOfTheSystemNotOfTheEnvironment();
    void theUserHasAName();
    void thereIsAProcessor();
    void aProgramWithoutAScreenIsAConsoleApplication();
    void aProgramMayTellThatItIsNone();
};

void TestSystem::aProgramWithoutAScreenIsAConsoleApplication()
{
    QVERIFY(OrvApplication::isConsoleApplication());
}

void TestSystem::aProgramMayTellThatItIsNone()
{
    OrvApplication::setConsoleApplication(false);
    QVERIFY(!OrvApplication::isConsoleApplication());
    OrvApplication::setConsoleApplication(true);
    QVERIFY(OrvApplication::isConsoleApplication());
    OrvApplication::setConsoleApplication({});
    QVERIFY(OrvApplication::isConsoleApplication());
}

void TestSystem::theUserHasAName()
{
    QVERIFY(!AppUtils::currentUserName().isEmpty());
    QCOMPARE(AppUtils::currentUserName(), AppUtils::currentUserName());
}

void TestSystem::theNameIsThatOfTheSystemNotOfTheEnvironment()
{
#ifdef Q_OS_UNIX
    if (geteuid() != 0)
        QSKIP("Only the superuser's name is the same on every system");
    const QByteArray before = qgetenv("USER");
    qputenv("USER", "somebody-else");
    const QString name = AppUtils::currentUserName();
    if (before.isNull())
        qunsetenv("USER");
    else
        qputenv("USER", before);
    QCOMPARE(name, u"root"_s);
#endif
}

void TestSystem::thereIsAProcessor()
{
    QVERIFY(SysUtils::cpuCoresNumber() >= 1);
    QVERIFY(SysUtils::cpuCoresNumber() >= QThread::idealThreadCount());
}

ORV_REGISTER_TEST(TestSystem)

#include "TestSystem.moc"
