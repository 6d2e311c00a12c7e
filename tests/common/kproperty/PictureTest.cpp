#include <QDir>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// How many rows of pixels of a column have text on them, and how many do not.
struct Column
{
    int withText = 0;
    int empty = 0;
};

Column scan(const QImage &image, int left, int right)
{
    Column column;
    for (int y = 0; y < image.height(); ++y) {
        bool dark = false;
        for (int x = left; x < right && !dark; ++x) {
            dark = qGray(image.pixel(x, y)) < 90;
        }
        (dark ? column.withText : column.empty) += 1;
    }
    return column;
}

int colors(const QImage &image)
{
    QSet<QRgb> found;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            found.insert(image.pixel(x, y));
        }
    }
    return static_cast<int>(found.size());
}

} // namespace

class PictureTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void pictureLooksLikeAPropertyTree_data();
    void pictureLooksLikeAPropertyTree();
    void unwritablePictureIsAnError();
};

void PictureTest::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
}

void PictureTest::pictureLooksLikeAPropertyTree_data()
{
    QTest::addColumn<QString>("platform");
    QTest::newRow("offscreen") << QStringLiteral("offscreen");
    QTest::newRow("X server") << QStringLiteral("xcb");
}

void PictureTest::pictureLooksLikeAPropertyTree()
{
    QFETCH(QString, platform);
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("picture.png"));
    QString program = QStringLiteral(ORV_PROPERTY_VIEW);
    QStringList arguments{QStringLiteral("--picture"), file};
    if (platform == QLatin1String("xcb")) {
        arguments = QStringList{QStringLiteral("-a"), program} + arguments;
        program = QStandardPaths::findExecutable(QStringLiteral("xvfb-run"));
        if (program.isEmpty()) {
            QSKIP("xvfb-run is not installed");
        }
    }
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), platform);
    // The X and font libraries keep what they load.
    environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    QVERIFY(process.waitForFinished(60000));
    QVERIFY2(process.exitCode() == 0, process.readAllStandardError().constData());
    const QImage image(file);
    QCOMPARE(image.size(), QSize(560, 900));
    // Some 35 rows of text in either column, with room between them, and the colours of swatch and selection.
    const Column namesColumn = scan(image, 20, 240);
    const Column valuesColumn = scan(image, 260, 530);
    for (const Column &column : {namesColumn, valuesColumn}) {
        QVERIFY(column.withText > 200);
        QVERIFY(column.empty > 200);
    }
    QVERIFY(colors(image) > 50);
}

void PictureTest::unwritablePictureIsAnError()
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(ORV_PROPERTY_VIEW),
                  {QStringLiteral("--picture"), QStringLiteral("/no/such/folder.png")});
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.exitCode(), 1);
    QVERIFY(process.readAllStandardError().contains("cannot write"));
}

QTEST_GUILESS_MAIN(PictureTest)
#include "PictureTest.moc"
