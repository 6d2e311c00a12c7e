#include "OrvTest.h"

#include <orv/table/XenosetPreset.h>

using namespace orv;
using namespace Qt::StringLiterals;

class TestXenosetPreset : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyPresetHasNothing();
    void linesAreKeptRaw_data();
    void linesAreKeptRaw();
    void keysStandInTheOrderOfTheFile();
    void aKeyThatStandsTwiceHasItsLastValueAndIsTold();
    void aFileIsLoaded();
    void aFileThatCannotBeReadLeavesNothing_data();
    void aFileThatCannotBeReadLeavesNothing();
    void whatIsNoTextIsRefused_data();
    void whatIsNoTextIsRefused();
    void tooManyKeysAreRefused();
    void aLargeFileIsRefusedUnread();
    void aLineOfTheWholeFileIsRead();

private:
    [[nodiscard]] QString make(const QString &name, const QByteArray &bytes) const
    {
        QFile file(m_dir.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("The test's file can't be written");
        return file.fileName();
    }
    const QTemporaryDir m_dir;
};

void TestXenosetPreset::anEmptyPresetHasNothing()
{
    const XenosetPreset preset;
    QCOMPARE(preset.keys(), QStringList());
    QCOMPARE(preset.attribute(u"a"_s), QString());
    QVERIFY(!preset.contains(u"a"_s));
}

void TestXenosetPreset::linesAreKeptRaw_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("value"); ///< of the key "a"; null where it isn't there
    QTest::newRow("plain") << "a=1\n"_ba << u"1"_s;
    QTest::newRow("no line end") << "a=1"_ba << u"1"_s;
    QTest::newRow("empty") << "a=\n"_ba << u""_s;
    QTest::newRow("escapes stay") << "a=\\n\\:\\\\\\=\n"_ba << u"\\n\\:\\\\\\="_s;
    QTest::newRow("signs stay") << "a=b=c=\n"_ba << u"b=c="_s;
    QTest::newRow("blanks stay") << "a= 1 \n"_ba << u" 1 "_s;
    QTest::newRow("blanks around the key") << " a\t=1\n"_ba << u"1"_s;
    QTest::newRow("Windows line end") << "b=2\r\na=1\r\n"_ba << u"1"_s;
    QTest::newRow("return inside") << "a=1\r2\n"_ba << u"1\r2"_s;
    QTest::newRow("byte order mark") << "\xEF\xBB\xBF"
                                        "a=1\n"_ba
                                     << u"1"_s;
    QTest::newRow("not ASCII") << "a=\xC2\xB5\n"_ba << u"\u00b5"_s;
    QTest::newRow("remark") << "#a=1\n"_ba << QString();
    QTest::newRow("remark behind a blank") << " # a=1\n"_ba << QString();
    QTest::newRow("no sign") << "a\n"_ba << QString();
    QTest::newRow("no key") << "=1\n"_ba << QString();
    QTest::newRow("another case") << "A=1\n"_ba << QString();
    QTest::newRow("nothing") << ""_ba << QString();
}

void TestXenosetPreset::linesAreKeptRaw()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, value);
    const Result<XenosetPreset> preset = XenosetPreset::fromText(text);
    ORV_VERIFY_OK(preset);
    QCOMPARE(preset->attribute(u"a"_s), value);
    QCOMPARE(preset->contains(u"a"_s), !value.isNull());
}

void TestXenosetPreset::keysStandInTheOrderOfTheFile()
{
    const Result<XenosetPreset> preset = XenosetPreset::fromText("#head\nb=\n\nc=1\na=2\n");
    ORV_VERIFY_OK(preset);
    QCOMPARE(preset->keys(), QStringList({u"b"_s, u"c"_s, u"a"_s}));
}

void TestXenosetPreset::aKeyThatStandsTwiceHasItsLastValueAndIsTold()
{
    QTest::ignoreMessage(QtWarningMsg,
                         "A key stands twice in the parameter file, the last line counts: \"a\"");
    const Result<XenosetPreset> preset = XenosetPreset::fromText("a=1\nb=2\na=3\n");
    ORV_VERIFY_OK(preset);
    QCOMPARE(preset->attribute(u"a"_s), u"3"_s);
    QCOMPARE(preset->keys(), QStringList({u"a"_s, u"b"_s}));
}

void TestXenosetPreset::aFileIsLoaded()
{
    XenosetPreset preset;
    QVERIFY(preset.load(make(u"a.xenoset"_s, "a=1\n")));
    QCOMPARE(preset.attribute(u"a"_s), u"1"_s);
    QVERIFY(preset.load(make(u"b.xenoset"_s, "b=1\n")));
    QCOMPARE(preset.keys(), QStringList(u"b"_s));
}

void TestXenosetPreset::aFileThatCannotBeReadLeavesNothing_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("missing") << m_dir.filePath(u"missing"_s);
    QTest::newRow("folder") << m_dir.path();
    QTest::newRow("device") << u"/dev/zero"_s;
    QTest::newRow("no text") << make(u"binary"_s, "\xFF\n");
}

void TestXenosetPreset::aFileThatCannotBeReadLeavesNothing()
{
    QFETCH(QString, path);
    XenosetPreset preset;
    QVERIFY(preset.load(make(u"a.xenoset"_s, "a=1\n")));
    QVERIFY(!preset.load(path));
    QCOMPARE(preset.keys(), QStringList());
    const Result<XenosetPreset> refused = XenosetPreset::fromFile(path);
    QVERIFY(refused.hasError() && !refused.error().errorMessage().isEmpty());
    QVERIFY(!refused.error().details().isEmpty());
}

void TestXenosetPreset::whatIsNoTextIsRefused_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("line");
    QTest::newRow("Latin-1") << "a=1\nb=\xB5\n"_ba << u"Line 2:"_s;
    QTest::newRow("cut UTF-8") << "a=\xE2\x82"_ba << u"Line 1:"_s;
    QTest::newRow("surrogate in UTF-8") << "a=\xED\xA0\x80\n"_ba << u"Line 1:"_s;
    QTest::newRow("zero byte") << QByteArray("a=1\nb=2\nc=\0\n", 12) << u"Line 3:"_s;
    QTest::newRow("UTF-16") << QByteArray("\xFF\xFE"
                                          "a\0=\0",
                                          6)
                            << u"Line 1:"_s;
}

void TestXenosetPreset::whatIsNoTextIsRefused()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, line);
    const Result<XenosetPreset> preset = XenosetPreset::fromText(text);
    QVERIFY(preset.hasError());
    QCOMPARE(preset.error().code(), ErrorCode::InvalidContent);
    QCOMPARE(preset.error().details().size(), 2);
    QVERIFY2(preset.error().details().first().startsWith(line), qPrintable(preset.error().details().first()));
}

void TestXenosetPreset::tooManyKeysAreRefused()
{
    QByteArray text;
    for (qsizetype i = 0; i < XenosetPreset::kMaximumKeys; ++i)
        text += 'k' + QByteArray::number(i) + "=\n";
    const Result<XenosetPreset> most = XenosetPreset::fromText(text);
    ORV_VERIFY_OK(most);
    QCOMPARE(most->keys().size(), XenosetPreset::kMaximumKeys);
    QVERIFY(XenosetPreset::fromText(text + "one more=").hasError());
}

void TestXenosetPreset::aLargeFileIsRefusedUnread()
{
    QFile file(m_dir.filePath(u"large"_s));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(100'000'000));
    file.close();
    const Result<XenosetPreset> preset = XenosetPreset::fromFile(file.fileName());
    QVERIFY(preset.hasError());
    QCOMPARE(preset.error().code(), ErrorCode::InvalidContent);
    QVERIFY(preset.error().errorMessage().contains(u"too large"_s));
}

void TestXenosetPreset::aLineOfTheWholeFileIsRead()
{
    const QByteArray value(XenosetPreset::kMaximumSize - 2, 'x');
    const Result<XenosetPreset> preset = XenosetPreset::fromFile(make(u"line"_s, "a=" + value));
    ORV_VERIFY_OK(preset);
    QCOMPARE(preset->attribute(u"a"_s).size(), value.size());
}

ORV_REGISTER_TEST(TestXenosetPreset)

#include "TestXenosetPreset.moc"
