#include <KPropertyComposedUrl>

#include <QRegularExpression>
#include <QTest>

class ComposedUrlTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void valueOfBaseAndPath_data();
    void valueOfBaseAndPath();
    void absoluteUrlGoesBeforeThePath();
    void relativeAbsoluteUrlIsRefused();
    void withoutABaseNothingIsValid();
    void equalityIsThatOfTheParts();
};

void ComposedUrlTest::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
}

void ComposedUrlTest::valueOfBaseAndPath_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("expected");
    const QString folder = QStringLiteral("file:///data/run");
    QTest::newRow("file") << folder << QStringLiteral("a.raw") << QStringLiteral("file:///data/run/a.raw");
    QTest::newRow("base with slash") << folder + QLatin1Char('/') << QStringLiteral("a.raw")
                                     << QStringLiteral("file:///data/run/a.raw");
    QTest::newRow("upwards") << folder << QStringLiteral("../b.raw") << QStringLiteral("file:///data/b.raw");
    QTest::newRow("from the root") << folder << QStringLiteral("/b.raw") << QStringLiteral("file:///b.raw");
    QTest::newRow("special characters")
        << folder << QStringLiteral("a#1.raw") << QStringLiteral("file:///data/run/a%231.raw");
    QTest::newRow("no path") << folder << QString() << QString();
    QTest::newRow("URL as path") << folder << QStringLiteral("file:///z") << QString();
    QTest::newRow("host as path") << folder << QStringLiteral("//host") << QString();
    QTest::newRow("relative base") << QStringLiteral("data/run") << QStringLiteral("a.raw") << QString();
}

void ComposedUrlTest::valueOfBaseAndPath()
{
    QFETCH(QString, base);
    QFETCH(QString, path);
    QFETCH(QString, expected);
    const KPropertyComposedUrl url{QUrl(base), path};
    QCOMPARE(url.value(), QUrl(expected));
    QCOMPARE(url.isValid(), !expected.isEmpty());
    QCOMPARE(url.relativePath(), path);
}

void ComposedUrlTest::absoluteUrlGoesBeforeThePath()
{
    KPropertyComposedUrl url(QUrl(QStringLiteral("file:///b/")), QStringLiteral("path"));
    url.setAbsoluteUrl(QUrl(QStringLiteral("file:///elsewhere")));
    QCOMPARE(url.value(), QUrl(QStringLiteral("file:///elsewhere")));
    QVERIFY(url.relativePath().isEmpty());
    url.setRelativePath(QStringLiteral("again"));
    QCOMPARE(url.value(), QUrl(QStringLiteral("file:///b/again")));
    QVERIFY(url.absoluteUrl().isEmpty());
}

void ComposedUrlTest::relativeAbsoluteUrlIsRefused()
{
    KPropertyComposedUrl url(QUrl(QStringLiteral("file:///b/")), QStringLiteral("path"));
    url.setAbsoluteUrl(QUrl(QStringLiteral("not/absolute")));
    QVERIFY(url.absoluteUrl().isEmpty());
    QVERIFY(!url.isValid());
}

void ComposedUrlTest::withoutABaseNothingIsValid()
{
    KPropertyComposedUrl url(QUrl(QStringLiteral("file:///b/")), QUrl(QStringLiteral("file:///a")));
    url.setBaseUrl(QUrl(QStringLiteral("no base")));
    QVERIFY(url.baseUrl().isEmpty());
    QVERIFY(!url.isValid());
    QVERIFY(!KPropertyComposedUrl().isValid());
}

void ComposedUrlTest::equalityIsThatOfTheParts()
{
    const KPropertyComposedUrl path(QUrl(QStringLiteral("file:///b/")), QStringLiteral("f"));
    const KPropertyComposedUrl absolute(QUrl(QStringLiteral("file:///b/")),
                                        QUrl(QStringLiteral("file:///b/f")));
    QCOMPARE(path.value(), absolute.value());
    QVERIFY(path != absolute);
    KPropertyComposedUrl copy;
    copy = path;
    QVERIFY(copy == path);
}

QTEST_GUILESS_MAIN(ComposedUrlTest)
#include "ComposedUrlTest.moc"
