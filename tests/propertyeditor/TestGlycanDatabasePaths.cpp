#include "OrvTest.h"

#include <KProperty>
#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QDir>
#include <QTemporaryDir>

using namespace orv;
using namespace Qt::StringLiterals;

/// Paths of glycan databases inside glycan texts.
class TestGlycanDatabasePaths : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void pathsAreMadeAbsolute_data();
    void pathsAreMadeAbsolute();
    void glycansInDataAreRewritten();
    void anUnchangedValueIsNotWritten();
    void anExistingAbsolutePathIsLeftAlone_data();
    void anExistingAbsolutePathIsLeftAlone();
    void anAbsolutePathThatDoesNotExistIsTakenFromTheBase();
    void withoutABaseNothingChanges();
    void aPropertyIsToldItsBase();
    void aPropertyThatIsNotThereIsPassedOver();
    void textsAreResolvedAgainstTheBaseOfTheirProperty_data();
    void textsAreResolvedAgainstTheBaseOfTheirProperty();
};

namespace {

/// No test creates this folder.
const QString kBase = u"/no such folder/base"_s;

QUrl baseUrl(const QString &folder = kBase)
{
    return QUrl::fromLocalFile(folder + u'/');
}

QJsonObject glycans(const QString &text)
{
    QJsonObject value;
    PropertyEditorJsonUtils::updateStoredSerializedGlycans(&value, text);
    return value;
}

QString resolved(const QString &text, const QUrl &base = baseUrl())
{
    QJsonObject value = glycans(text);
    PropertyEditorUtils::updateGlycanDatabaseToAbsolute(base, &value);
    return PropertyEditorJsonUtils::storedSerializedGlycans(value);
}

} // namespace

void TestGlycanDatabasePaths::pathsAreMadeAbsolute_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("result");

    const QString base = u"file:///no such folder/base"_s;
    QTest::newRow("nothing") << QString() << QString();
    QTest::newRow("no database") << u"HexNAc(2)Hex(5) @ NGlycan | rare1"_s
                                 << u"HexNAc(2)Hex(5) @ NGlycan | rare1"_s;
    QTest::newRow("a name") << u"[human.txt]"_s << u"[%1/human.txt]"_s.arg(base);
    QTest::newRow("a folder and a name") << u"[db/human.txt]"_s << u"[%1/db/human.txt]"_s.arg(base);
    QTest::newRow("a path that goes up")
        << u"[./../db//human.txt]"_s << u"[file:///no such folder/db/human.txt]"_s;
    QTest::newRow("characters of URLs") << u"[50% of a#b?.txt]"_s << u"[%1/50% of a#b?.txt]"_s.arg(base);
    QTest::newRow("a name with brackets") << u"[human [2].txt]"_s << u"[%1/human [2].txt]"_s.arg(base);
    QTest::newRow("an absolute path without a scheme") << u"[/db/human.txt]"_s << u"[file:///db/human.txt]"_s;
    QTest::newRow("one in each line among others")
        << u"% [a.txt] @ NGlycan | rare1\nHex(5)\n[xa.txt]\n[a.txt]"_s
        << u"% [%1/a.txt] @ NGlycan | rare1\nHex(5)\n[%1/xa.txt]\n[%1/a.txt]"_s.arg(base);
    QTest::newRow("a path of Windows") << u"[C:\\db\\human.txt]"_s << u"[C:\\db\\human.txt]"_s;
    QTest::newRow("a path of Windows as URL")
        << u"[file:///C:/db/human.txt]"_s << u"[file:///C:/db/human.txt]"_s;
    QTest::newRow("a web address") << u"[https://host.example/human.txt]"_s
                                   << u"[https://host.example/human.txt]"_s;
}

void TestGlycanDatabasePaths::pathsAreMadeAbsolute()
{
    QFETCH(const QString, text);
    QFETCH(const QString, result);
    QCOMPARE(resolved(text), result);
}

void TestGlycanDatabasePaths::glycansInDataAreRewritten()
{
    QJsonObject value{{u"data"_s, glycans(u"[a.txt]"_s)}, {u"x"_s, 1}};
    PropertyEditorUtils::updateGlycanDatabaseToAbsolute(baseUrl(), &value);
    const QJsonObject expected{{u"data"_s, glycans(u"[file:///no such folder/base/a.txt]"_s)}, {u"x"_s, 1}};
    QCOMPARE(value, expected);
}

void TestGlycanDatabasePaths::anUnchangedValueIsNotWritten()
{
    // Single backslashes would be doubled.
    const QJsonObject value{{u"glycans"_s, u"[C:\\db\\human.txt]"_s}};
    QJsonObject after = value;
    PropertyEditorUtils::updateGlycanDatabaseToAbsolute(baseUrl(), &after);
    QCOMPARE(after, value);

    const QJsonObject none{{u"type"_s, u"GlycanOptions"_s}};
    after = none;
    PropertyEditorUtils::updateGlycanDatabaseToAbsolute(baseUrl(), &after);
    QCOMPARE(after, none);
}

void TestGlycanDatabasePaths::anExistingAbsolutePathIsLeftAlone_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << u"human.txt"_s;
    QTest::newRow("blanks") << u"human N glycans.txt"_s;
    QTest::newRow("characters of URLs") << u"50% of a#b?.txt"_s;
}

void TestGlycanDatabasePaths::anExistingAbsolutePathIsLeftAlone()
{
    QFETCH(const QString, name);
    const QTemporaryDir folder;
    QFile file(folder.filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));

    const QString once = resolved(u"[%1]"_s.arg(name), baseUrl(folder.path()));
    QCOMPARE(once, u"[file://%1]"_s.arg(file.fileName()));
    QCOMPARE(resolved(once, baseUrl(folder.path())), once);
    QCOMPARE(resolved(once, baseUrl(kBase)), once);
}

void TestGlycanDatabasePaths::anAbsolutePathThatDoesNotExistIsTakenFromTheBase()
{
    const QUrl base = QUrl::fromLocalFile(kBase);
    QCOMPARE(resolved(u"[file:///human.txt]"_s, base), u"[%1/human.txt]"_s.arg(base.toString()));
    QCOMPARE(QUrl(resolved(u"[file:///a b.txt]"_s, base).mid(1).chopped(1)).toLocalFile(),
             kBase + u"/a b.txt"_s);

    const QTemporaryDir folder;
    QFile file(folder.filePath(u"human.txt"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QString path = resolved(u"[file:///human.txt]"_s, baseUrl(folder.path())).mid(1).chopped(1);
    QCOMPARE(QDir::cleanPath(QUrl(path).toLocalFile()), file.fileName());
}

void TestGlycanDatabasePaths::withoutABaseNothingChanges()
{
    for (const QString &text : {u"[a.txt]"_s, u"[file:///a.txt]"_s, u"[/db/a.txt]"_s})
        QCOMPARE(resolved(text, QUrl()), text);
}

void TestGlycanDatabasePaths::aPropertyIsToldItsBase()
{
    KProperty property("KarvonGlycanText");
    PropertyEditorUtils::updateGlycanPropertyWithAbsolutePath(&property, baseUrl());
    QCOMPARE(property.option("baseUrl").toUrl(), baseUrl());
    QCOMPARE(QByteArray(PropertyEditorStringConstants::kbaseUrl), QByteArray("baseUrl"));
}

void TestGlycanDatabasePaths::aPropertyThatIsNotThereIsPassedOver()
{
    PropertyEditorUtils::updateGlycanPropertyWithAbsolutePath(nullptr, baseUrl());
    QCOMPARE(PropertyEditorUtils::resolveGlycansStringsFromWflw(u"[a.txt]"_s, nullptr), u"[a.txt]"_s);
}

void TestGlycanDatabasePaths::textsAreResolvedAgainstTheBaseOfTheirProperty_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("result");
    QTest::newRow("nothing") << QString() << QString();
    QTest::newRow("a relative path") << u"[a.txt]"_s << u"[file:///no such folder/base/a.txt]"_s;
    QTest::newRow("a path of Windows as stored") << u"[C:\\\\db\\\\a.txt]"_s << u"[C:\\db\\a.txt]"_s;
    QTest::newRow("a single backslash") << u"a\\b"_s << u"a\\b"_s;
}

void TestGlycanDatabasePaths::textsAreResolvedAgainstTheBaseOfTheirProperty()
{
    QFETCH(const QString, text);
    QFETCH(const QString, result);
    KProperty property("KarvonGlycanText");
    PropertyEditorUtils::updateGlycanPropertyWithAbsolutePath(&property, baseUrl());
    QCOMPARE(PropertyEditorUtils::resolveGlycansStringsFromWflw(text, &property), result);
}

ORV_REGISTER_TEST(TestGlycanDatabasePaths)
#include "TestGlycanDatabasePaths.moc"
