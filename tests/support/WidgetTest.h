#pragma once

#include <QApplication>
#include <QRegularExpression>
#include <QTest>

#include <functional>
#include <memory>
#include <vector>

/// Base of test classes with widgets: a warning that a test doesn't expect fails it.
class WidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        // Offscreen there is no window manager to raise a window and no keyboard to grab.
        QTest::failOnWarning(QRegularExpression(
            QStringLiteral("^(?!This plugin does not support|QStandardPaths: XDG_RUNTIME_DIR)")));
    }
};

namespace WidgetTests {

using Creator = std::function<std::unique_ptr<QObject>()>;

inline std::vector<Creator> &creators()
{
    static std::vector<Creator> list;
    return list;
}

inline bool registerTest(Creator create)
{
    creators().push_back(std::move(create));
    return true;
}

} // namespace WidgetTests

/// One executable runs several test classes; each source registers its own.
#define WIDGET_REGISTER_TEST(Class)                                                                          \
    namespace {                                                                                              \
    const bool registered##Class = WidgetTests::registerTest([] { return std::make_unique<Class>(); });      \
    }
