#pragma once

#include <QObject>
#include <QTest>

#include <functional>
#include <memory>

/// Base of all test classes: a warning that a test doesn't expect fails it.
class OrvTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
};

namespace OrvTests {

/// Adds a test class to the executable's list; see ORV_REGISTER_TEST.
bool registerTest(std::function<std::unique_ptr<QObject>()> create);

/// Runs every registered class with the given arguments; the number of failures.
int runAll(int argc, char *argv[]);

} // namespace OrvTests

/// One executable runs several test classes; each source registers its own.
#define ORV_REGISTER_TEST(Class)                                                                             \
    namespace {                                                                                              \
    const bool registered##Class = OrvTests::registerTest([] { return std::make_unique<Class>(); });         \
    }

/// Checks a Result or an Error and prints its text when it is a failure.
#define ORV_VERIFY_OK(result)                                                                                \
    do {                                                                                                     \
        const auto &orvResult = (result);                                                                    \
        QVERIFY2(!orvResult.hasError(), OrvTests::describe(orvResult).constData());                          \
    } while (false)

namespace OrvTests {

template<typename T>
QByteArray describe(const T &result)
{
    if constexpr (requires { result.error(); })
        return describe(result.error());
    else
        return (result.errorMessages() + result.details()).join(QLatin1String(" | ")).toUtf8();
}

} // namespace OrvTests
