#include "HouseRules.h"
#include "OrvTest.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

using Files = QList<QPair<QString, QByteArray>>;

constexpr QLatin1StringView kCore("common/core/include/orv/core/Low.h");
constexpr QLatin1StringView kSamples("common/samples/include/orv/samples/High.h");

void plant(const QTemporaryDir &root, const Files &files)
{
    for (const auto &[path, text] : files) {
        QFile file(root.filePath(path));
        if (!QDir(root.path()).mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly) ||
            file.write(text) != text.size())
            qFatal("Cannot write %s", qPrintable(path));
    }
}

} // namespace

class TestHouse : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void arrowsPointDownwards() { verifyNone(ofTheProject().upwardIncludes()); }
    void headersAreIncludedOnce() { verifyNone(ofTheProject().headersWithoutPragmaOnce()); }
    void callsPointDownwards() { verifyNone(ofTheProject().upwardCalls()); }
    void foldersTellWhatTheyHold() { verifyNone(ofTheProject().foldersWithoutReadme()); }
    void ownHeadersComeFirst() { verifyNone(ofTheProject().ownHeadersThatComeLate()); }
    void allSourcesAreBuilt() { verifyNone(ofTheProject().filesThatAreNotBuilt()); }
    void filesAreShort() { verifyNone(ofTheProject().filesThatAreTooLong()); }

    void anInventedTreeThatIsInOrderPasses();
    void wrongIncludesAreFound_data();
    void wrongIncludesAreFound();
    void allowedIncludesPass_data();
    void allowedIncludesPass();
    void anUpwardCallOfAFacadeIsFound_data();
    void anUpwardCallOfAFacadeIsFound();
    void aFolderWithoutReadmeIsFound();
    void anOwnHeaderThatComesLateIsFound();
    void aModuleWithoutAFloorIsFound();
    void aHeaderWithoutPragmaIsFound();
    void whatIsNotBuiltIsFound();
    void aLongFileIsFound();

private:
    static HouseRules ofTheProject() { return HouseRules(QStringLiteral(ORV_SOURCE_DIR)); }
    static void verifyNone(const QStringList &violations)
    {
        QVERIFY2(violations.isEmpty(), qPrintable(u'\n' + violations.join(u'\n')));
    }
};

void TestHouse::anInventedTreeThatIsInOrderPasses()
{
    const QTemporaryDir root;
    plant(root, {{kCore, "#pragma once\n"},
                 {kSamples, "#pragma once\n#include <orv/core/Low.h>\n"},
                 {u"common/core/CMakeLists.txt"_s, "f(include/orv/core/Low.h)"},
                 {u"common/samples/CMakeLists.txt"_s, "f(HEADERS include/orv/samples/High.h)"}});
    const HouseRules rules(root.path());
    verifyNone(rules.upwardIncludes() + rules.headersWithoutPragmaOnce() + rules.filesThatAreNotBuilt());
}

void TestHouse::wrongIncludesAreFound_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("violation");

    const QString content = u"propertyeditor/src/content/A.cpp"_s;
    const auto row = [](const char *name, const QString &file, const QByteArray &text,
                        const QString &violation) { QTest::newRow(name) << file << text << violation; };
    row("core takes samples", u"common/core/src/A.cpp"_s, "\n#include <orv/samples/High.h>\n",
        u"common/core/src/A.cpp:2 (core) includes common/samples/include/orv/samples/High.h, which lies "
        u"above it "
        "(samples)"_s);
    row("by a path", u"common/core/src/A.cpp"_s, "#include \"../../samples/include/orv/samples/High.h\"",
        u"(samples)"_s);
    row("with blanks", u"common/core/src/A.cpp"_s, "  #  include  \"orv/samples/High.h\" // why",
        u"(samples)"_s);
    row("content takes the chain", content, "#include <orv/propertyeditor/workflow/Chain.h>",
        u"(workflow)"_s);
    row("content takes a validator", content, "#include <orv/propertyeditor/validators/V.h>",
        u"(validators)"_s);
    row("the catalogue takes content", u"propertyeditor/src/catalogue/A.cpp"_s,
        "#include <orv/propertyeditor/content/C.h>", u"(content)"_s);
    row("a validator takes the grid", u"propertyeditor/src/validators/A.cpp"_s, "#include \"../grid/G.h\"",
        u"private to grid"_s);
    row("the grid takes a window", u"propertyeditor/src/grid/A.cpp"_s,
        "#include \"../window/PropertyEditorWindow.h\"", u"private to window"_s);
    row("a module takes the tool", u"propertyeditor/src/content/A.cpp"_s,
        "#include \"../../../apps/tool/T.h\"", u"private to apps"_s);
    row("the engine takes a private header from below", u"propertyeditor/src/engine/A.cpp"_s,
        "#include \"../catalogue/Rows.h\"", u"private to catalogue"_s);
    row("a circle of one floor", u"common/table/include/orv/table/T.h"_s, "#include <orv/resources/R.h>",
        u"include each other"_s);
}

void TestHouse::wrongIncludesAreFound()
{
    const QTemporaryDir root;
    QFETCH(QString, file);
    QFETCH(QByteArray, text);
    QFETCH(QString, violation);
    plant(root, {{kSamples, ""},
                 {u"common/resources/include/orv/resources/R.h"_s, "#include <orv/table/T.h>"},
                 {u"propertyeditor/src/workflow/include/orv/propertyeditor/workflow/Chain.h"_s, ""},
                 {u"propertyeditor/src/validators/include/orv/propertyeditor/validators/V.h"_s, ""},
                 {u"propertyeditor/src/content/include/orv/propertyeditor/content/C.h"_s, ""},
                 {u"propertyeditor/src/catalogue/Rows.h"_s, ""},
                 {u"propertyeditor/src/grid/G.h"_s, ""},
                 {u"propertyeditor/src/window/PropertyEditorWindow.h"_s, ""},
                 {u"apps/tool/T.h"_s, ""},
                 {file, text}});
    const QStringList violations = HouseRules(root.path()).upwardIncludes();
    QCOMPARE(violations.size(), 1);
    QVERIFY2(violations.first().contains(violation), qPrintable(violations.first()));
}

void TestHouse::allowedIncludesPass_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("downwards") << u"apps/tool/A.cpp"_s << "#include <orv/core/Low.h>"_ba;
    QTest::newRow("the own module") << u"common/samples/src/A.cpp"_s << "#include <orv/samples/High.h>"_ba;
    QTest::newRow("beside, one way") << u"common/chemistry/src/A.cpp"_s << "#include <orv/samples/High.h>"_ba;
    QTest::newRow("content takes the version") << u"propertyeditor/src/content/A.cpp"_s
                                               << "#include <orv/propertyeditor/workflow/WflwMetaData.h>"_ba;
    QTest::newRow("others") << u"common/core/src/A.cpp"_s
                            << "#include <QString>\n#include <vector>\n#include \"A.moc\""_ba;
    QTest::newRow("text that is no include")
        << u"common/core/src/A.cpp"_s << "// #include <orv/samples/High.h>"_ba;
}

void TestHouse::allowedIncludesPass()
{
    const QTemporaryDir root;
    QFETCH(QString, file);
    QFETCH(QByteArray, text);
    plant(root, {{kCore, ""},
                 {kSamples, ""},
                 {u"propertyeditor/src/document/include/orv/propertyeditor/workflow/WflwMetaData.h"_s, ""},
                 {file, text}});
    verifyNone(HouseRules(root.path()).upwardIncludes());
}

void TestHouse::anUpwardCallOfAFacadeIsFound_data()
{
    QTest::addColumn<QString>("caller");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("violations");

    const QString content = u"propertyeditor/src/content/C.cpp"_s;
    const QString engine = u"propertyeditor/src/engine/E.cpp"_s;
    QTest::newRow("a member") << content << "    PropertyEditorUtils::samples();"_ba
                              << QStringList(
                                     content +
                                     u" (content) calls PropertyEditorUtils::samples, whose body lies "
                                     u"above it (workflow)"_s);
    QTest::newRow("a function of a namespace")
        << content << "    return PropertyEditorJsonUtils::attempted(name);"_ba
        << QStringList(content +
                       u" (content) calls PropertyEditorJsonUtils::attempted, whose body lies above "
                       u"it (workflow)"_s);
    QTest::newRow("from above") << engine << "int n = PropertyEditorUtils::samples();"_ba << QStringList();
    QTest::newRow("of what lies below")
        << content << "int n = PropertyEditorUtils::cores();"_ba << QStringList();
}

void TestHouse::anUpwardCallOfAFacadeIsFound()
{
    const QTemporaryDir root;
    QFETCH(QString, caller);
    QFETCH(QByteArray, text);
    QFETCH(QStringList, violations);
    plant(root, {{u"propertyeditor/src/catalogue/Low.cpp"_s,
                  "int PropertyEditorUtils::cores()\n{\n    return 1;\n}\n"},
                 {u"propertyeditor/src/workflow/High.cpp"_s,
                  "int\nPropertyEditorUtils::samples()\n{\n}\n\n"
                  "namespace orv::PropertyEditorJsonUtils {\n\nbool attempted(const QString &name)\n{\n}\n\n"
                  "} // namespace orv::PropertyEditorJsonUtils\n"},
                 {caller, text}});
    QCOMPARE(HouseRules(root.path()).upwardCalls(), violations);
}

void TestHouse::aFolderWithoutReadmeIsFound()
{
    const QTemporaryDir root;
    plant(root, {{kCore, ""},
                 {u"common/core/src/internal/A.cpp"_s, ""},
                 {u"common/core/README.md"_s, "# core"},
                 {u"apps/tool/README.md"_s, ""},
                 {u"apps/tool/main.cpp"_s, ""},
                 {u"propertyeditor/src/workflow/upgrade/A.cpp"_s, ""}});
    const auto violation = [](const QString &folder) {
        return folder + u" has no README.md that tells what it holds and may use"_s;
    };
    QCOMPARE(HouseRules(root.path()).foldersWithoutReadme(),
             QStringList({violation(u"apps/tool"_s), violation(u"propertyeditor/src/workflow/upgrade"_s)}));
}

void TestHouse::anOwnHeaderThatComesLateIsFound()
{
    const QTemporaryDir root;
    plant(root, {{u"common/core/src/First.cpp"_s, "#include \"orv/core/First.h\"\n\n#include <QString>\n"},
                 {u"common/core/src/Late.cpp"_s, "#include <QString>\n#include <orv/core/Late.h>\n"},
                 {u"common/core/src/None.cpp"_s, "#include <QString>\n#include <orv/core/First.h>\n"}});
    QCOMPARE(HouseRules(root.path()).ownHeadersThatComeLate(),
             QStringList(u"common/core/src/Late.cpp includes QString before its own header"_s));
}

void TestHouse::aModuleWithoutAFloorIsFound()
{
    const QTemporaryDir root;
    plant(root, {{u"common/attic/src/A.cpp"_s, ""}});
    QCOMPARE(HouseRules(root.path()).upwardIncludes(),
             QStringList(u"common/attic/src/A.cpp stands on no floor; give its module a row"_s));
}

void TestHouse::aHeaderWithoutPragmaIsFound()
{
    const QTemporaryDir root;
    plant(root, {{kCore, "// #pragma once\n"}, {kSamples, "// words\n#pragma once\n"}});
    QCOMPARE(HouseRules(root.path()).headersWithoutPragmaOnce(),
             QStringList(QString(kCore) + u" has no #pragma once"_s));
}

void TestHouse::whatIsNotBuiltIsFound()
{
    const QTemporaryDir root;
    plant(root, {{kCore, ""},
                 {u"common/core/src/Built.cpp"_s, "#include \"Used.h\""},
                 {u"common/core/src/Used.h"_s, ""},
                 {u"common/core/src/Forgotten.cpp"_s, ""},
                 {u"common/core/src/Unused.h"_s, ""},
                 {u"tests/common/core/TestLow.cpp"_s, ""},
                 {u"common/core/CMakeLists.txt"_s, "f(src/Built.cpp src/ForgottenNot.cpp)"}});
    QCOMPARE(HouseRules(root.path()).filesThatAreNotBuilt(),
             QStringList({QString(kCore) + u" is named in no CMakeLists.txt"_s,
                          u"common/core/src/Forgotten.cpp is named in no CMakeLists.txt"_s,
                          u"common/core/src/Unused.h is included by nobody"_s,
                          u"tests/common/core/TestLow.cpp is named in no CMakeLists.txt"_s}));
}

void TestHouse::aLongFileIsFound()
{
    const QTemporaryDir root;
    plant(root, {{u"common/core/src/Allowed.cpp"_s, QByteArray(HouseRules::kMaxLines, '\n')},
                 {u"common/core/src/Long.cpp"_s, QByteArray(HouseRules::kMaxLines + 1, '\n')}});
    QCOMPARE(HouseRules(root.path()).filesThatAreTooLong(),
             QStringList(u"common/core/src/Long.cpp has 601 lines, at most 600 are allowed"_s));
}

ORV_REGISTER_TEST(TestHouse)

#include "TestHouse.moc"
