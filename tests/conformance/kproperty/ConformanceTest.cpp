#include <QHash>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <algorithm>

namespace {

/// Where ours is meant to behave otherwise. The traces mark such lines; each must differ somewhere, so that
/// the list shrinks when a difference does.
struct Difference
{
    const char *name;
    const char *reason;
};

const Difference kDifferences[] = {
    {"alphabetical-order", "The option AlphabeticalOrder is documented; the original does not sort."},
    {"buffer-intersection",
     "The original keeps properties that the second set lacks; ours intersects, as its documentation says."},
    {"copied-groups", "The original lists every group of a copied set twice."},
    {"double-default-precision",
     "Without the option \"precision\" the original shows two decimals, takes doubles that agree in them for "
     "equal "
     "and loses a change of a small tolerance; ours compares exactly and shows what is there."},
    {"empty-group", "A group whose properties are all hidden has no row in ours."},
    {"exact-storing", "The original keeps 2 where the text \"2\" is set, since the one converts to the "
                      "other; what is set is then "
                      "not what is stored."},
    {"failed-conversion",
     "Qt 5 converts what it cannot convert to an empty text or zero, and so loses the change; Qt 6 refuses."},
    {"groups-hidden", "setGroupsVisible(false) is documented; the original shows the groups all the same."},
    {"late-addition",
     "The original's rows grow without a signal of its model, which views must not see; ours appear with the "
     "next changeSet()."},
    {"precision-compares",
     "The original takes doubles that agree in as many decimals as \"precision\" says for equal, cut and not "
     "rounded, and drops the change; in ours the option is for showing."},
    {"preserve-selection",
     "The option PreservePreviousSelection is documented; the original does not remember."},
    {"read-only-data", "The original's model writes to read-only properties; ours refuses."},
    {"size-policy-text", "The original's text of a size policy lacks the policies."},
    {"tool-tips", "The original shows descriptions alone, and only when asked to; ours are on and begin with "
                  "the caption, which "
                  "the column may cut."},
    {"two-state-names",
     "yesName and noName are documented for two states as well; the original ignores them there."},
};

struct Trace
{
    QStringList lines;
    QString error;
};

Trace runTrace(const QString &program)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // What the original leaks is not ours to judge.
    environment.insert(QStringLiteral("ASAN_OPTIONS"), program.endsWith(QLatin1String("_original"))
                                                           ? QStringLiteral("detect_leaks=0")
                                                           : QStringLiteral("detect_leaks=1"));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(ORV_TRACE_DIR "/") + program, QStringList());
    Trace trace;
    if (!process.waitForFinished(240000) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0) {
        trace.error = program + QLatin1String(": ") + process.errorString() + QLatin1Char('\n') +
                      QString::fromUtf8(process.readAllStandardError().right(4000));
        return trace;
    }
    trace.lines = QString::fromUtf8(process.readAllStandardOutput()).split(QLatin1Char('\n'));
    return trace;
}

/// The name between the marks of a line that may differ; empty for all others.
QByteArray markOf(const QString &line)
{
    static const QRegularExpression mark(QStringLiteral("^~([a-z-]+)~ "));
    return mark.match(line).captured(1).toLatin1();
}

bool isKnown(const QByteArray &name)
{
    return std::any_of(std::begin(kDifferences), std::end(kDifferences),
                       [&name](const Difference &difference) { return name == difference.name; });
}

} // namespace

class ConformanceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tracesAgree_data();
    void tracesAgree();
    void everyListedDifferenceIsSeen();

private:
    QSet<QByteArray> m_seen;
};

void ConformanceTest::tracesAgree_data()
{
    QTest::addColumn<QString>("trace");
    QTest::addColumn<int>("minimalLines");
    QTest::newRow("core") << QStringLiteral("kproperty_core_trace") << 3000;
    QTest::newRow("view") << QStringLiteral("kproperty_view_trace") << 3000;
}

void ConformanceTest::tracesAgree()
{
    if (!ORV_HAVE_ORIGINAL) {
        QSKIP(
            "KProperty 3 for Qt 5 (libkproperty3-dev, qtbase5-dev) is not installed: nothing was compared.");
    }
    QFETCH(QString, trace);
    QFETCH(int, minimalLines);
    const Trace ours = runTrace(trace + QLatin1String("_ours"));
    const Trace original = runTrace(trace + QLatin1String("_original"));
    QVERIFY2(ours.error.isEmpty(), qPrintable(ours.error));
    QVERIFY2(original.error.isEmpty(), qPrintable(original.error));
    QVERIFY(ours.lines.size() >= minimalLines);
    for (qsizetype i = 0; i < std::min(ours.lines.size(), original.lines.size()); ++i) {
        if (ours.lines.at(i) == original.lines.at(i)) {
            continue;
        }
        const QByteArray mark = markOf(ours.lines.at(i));
        const QString report = QStringLiteral("line %1, after: %2\n  original: %3\n  ours:     %4")
                                   .arg(i + 1)
                                   .arg(ours.lines.value(i - 1), original.lines.at(i), ours.lines.at(i));
        QVERIFY2(isKnown(mark) && markOf(original.lines.at(i)) == mark, qPrintable(report));
        m_seen.insert(mark);
    }
    QCOMPARE(ours.lines.size(), original.lines.size());
}

void ConformanceTest::everyListedDifferenceIsSeen()
{
    if (!ORV_HAVE_ORIGINAL) {
        QSKIP("KProperty 3 for Qt 5 is not installed: nothing was compared.");
    }
    for (const Difference &difference : kDifferences) {
        QVERIFY2(m_seen.contains(difference.name), difference.name);
    }
}

QTEST_GUILESS_MAIN(ConformanceTest)
#include "ConformanceTest.moc"
