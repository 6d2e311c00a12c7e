#include "OrvTest.h"

#include <orv/core/Settings.h>

#include <QSettings>

using namespace orv;
using namespace Qt::StringLiterals;

class TestSettings : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void anUnknownKeyGivesTheDefault();
    void whatIsStoredIsFound();
    void theEnvironmentComesBeforeTheStore();
    void namesOfTheEnvironmentArePlain_data();
    void namesOfTheEnvironmentArePlain();
    void anOverrideComesFirstAndEndsWithItsScope();
    void overridesNest();
    void aFoundValueTakesTheTypeOfTheDefault_data();
    void aFoundValueTakesTheTypeOfTheDefault();
    void aValueThatDoesNotConvertGivesTheDefault_data();
    void aValueThatDoesNotConvertGivesTheDefault();
    void theKeysAreThoseOfTheInstalledSettings();

private:
    QTemporaryDir m_dir;
};

namespace {

const QString kKey = QStringLiteral("Test/The Key");
constexpr const char *kVariable = "ORV_TEST_THE_KEY";

} // namespace

void TestSettings::initTestCase()
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_dir.path());
}

void TestSettings::cleanup()
{
    qunsetenv(kVariable);
    QSettings().clear();
}

void TestSettings::anUnknownKeyGivesTheDefault()
{
    QCOMPARE(as::value(kKey), QVariant());
    QCOMPARE(as::value(kKey, 7), QVariant(7));
    QCOMPARE(as::value(QString(u"Test/other"_s), u"text"_s), QVariant(u"text"_s));
}

void TestSettings::whatIsStoredIsFound()
{
    as::setValue(kKey, 42);
    QCOMPARE(as::value(kKey, 7), QVariant(42));
    QVERIFY(QSettings().fileName().startsWith(m_dir.path()));
}

void TestSettings::theEnvironmentComesBeforeTheStore()
{
    as::setValue(kKey, 42);
    qputenv(kVariable, "43");
    QCOMPARE(as::value(kKey, 7), QVariant(43));
    qputenv(kVariable, "");
    QCOMPARE(as::value(kKey, u"default"_s), QVariant(QString()));
    qunsetenv(kVariable);
    QCOMPARE(as::value(kKey, 7), QVariant(42));
}

void TestSettings::namesOfTheEnvironmentArePlain_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QByteArray>("variable");

    QTest::newRow("group") << u"MIREL/EnableDesignerMode"_s << "ORV_MIREL_ENABLEDESIGNERMODE"_ba;
    QTest::newRow("underscore") << u"FSS_OpenWorkflowLocation"_s << "ORV_FSS_OPENWORKFLOWLOCATION"_ba;
    QTest::newRow("digits stay") << u"a1/b2"_s << "ORV_A1_B2"_ba;
    QTest::newRow("blank, dot, umlaut") << u"a b.\u00e4"_s << "ORV_A_B__"_ba;
}

void TestSettings::namesOfTheEnvironmentArePlain()
{
    QFETCH(QString, key);
    QFETCH(QByteArray, variable);
    qputenv(variable.constData(), "from the environment");
    const QVariant found = as::value(key);
    qunsetenv(variable.constData());
    QCOMPARE(found, QVariant(u"from the environment"_s));
}

void TestSettings::anOverrideComesFirstAndEndsWithItsScope()
{
    as::setValue(kKey, 42);
    qputenv(kVariable, "43");
    {
        const as::ScopedOverride override(kKey, 44);
        QCOMPARE(as::value(kKey, 7), QVariant(44));
        QCOMPARE(as::value(u"Test/other"_s, 7), QVariant(7));
    }
    QCOMPARE(as::value(kKey, 7), QVariant(43));
    QCOMPARE(QSettings().value(kKey).toInt(), 42);
}

void TestSettings::overridesNest()
{
    const as::ScopedOverride outer(kKey, u"outer"_s);
    {
        const as::ScopedOverride inner(kKey, u"inner"_s);
        QCOMPARE(as::value(kKey).toString(), u"inner"_s);
    }
    QCOMPARE(as::value(kKey).toString(), u"outer"_s);
}

void TestSettings::aFoundValueTakesTheTypeOfTheDefault_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QVariant>("byDefault");
    QTest::addColumn<QVariant>("value");

    QTest::newRow("true") << "true"_ba << QVariant(false) << QVariant(true);
    QTest::newRow("1") << "1"_ba << QVariant(false) << QVariant(true);
    QTest::newRow("false") << "false"_ba << QVariant(true) << QVariant(false);
    QTest::newRow("0") << "0"_ba << QVariant(true) << QVariant(false);
    QTest::newRow("empty bool") << ""_ba << QVariant(true) << QVariant(false);
    QTest::newRow("int") << "-12"_ba << QVariant(1) << QVariant(-12);
    QTest::newRow("double") << "1e3"_ba << QVariant(1.0) << QVariant(1000.0);
    QTest::newRow("text") << "\xC3\xA4"_ba << QVariant(QString()) << QVariant(u"\u00e4"_s);
    QTest::newRow("no default, no conversion") << "12"_ba << QVariant() << QVariant(u"12"_s);
}

void TestSettings::aFoundValueTakesTheTypeOfTheDefault()
{
    QFETCH(QByteArray, text);
    QFETCH(QVariant, byDefault);
    QFETCH(QVariant, value);
    qputenv(kVariable, text);
    const QVariant found = as::value(kKey, byDefault);
    QCOMPARE(found.metaType(), value.metaType());
    QCOMPARE(found, value);
}

void TestSettings::aValueThatDoesNotConvertGivesTheDefault_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QVariant>("byDefault");

    QTest::newRow("word for an int") << "many"_ba << QVariant(3);
    QTest::newRow("fraction for an int") << "1.5"_ba << QVariant(3);
    QTest::newRow("int too large") << "99999999999"_ba << QVariant(3);
    QTest::newRow("word for a double") << "much"_ba << QVariant(0.5);
    QTest::newRow("empty for an int") << ""_ba << QVariant(3);
}

void TestSettings::aValueThatDoesNotConvertGivesTheDefault()
{
    QFETCH(QByteArray, text);
    QFETCH(QVariant, byDefault);
    qputenv(kVariable, text);
    QCOMPARE(as::value(kKey, byDefault), byDefault);
}

void TestSettings::theKeysAreThoseOfTheInstalledSettings()
{
    QCOMPARE(QString(as::kEnableDesignerMode), u"MIREL/EnableDesignerMode"_s);
    QCOMPARE(QString(as::kMultiRowEnabled), u"Features/PropertyEditorMultiRowEnabled"_s);
    QCOMPARE(QString(as::kWorkflowVerificationEnabled), u"MIREL/WorkflowVerificationEnabled"_s);
    QCOMPARE(QString(as::kOpenWorkflowLocation), u"FSS_OpenWorkflowLocation"_s);
}

ORV_REGISTER_TEST(TestSettings)

#include "TestSettings.moc"
