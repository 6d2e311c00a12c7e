#include "CoreTrace.h"
#include "Trace.h"

#include <QDate>
#include <QPoint>
#include <QSize>
#include <QUrl>

#include <cmath>

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

/// Equal to what \a p holds, but not the same. Each build tries it on a copy, so that both go on from one
/// value.
void traceOtherOfEqualMeaning(const KProperty &p, const QVariant &value)
{
    KProperty trial(p);
    const bool changed = trial.setValue(value);
    Trace::differs("exact-storing");
    Trace::line(QStringLiteral("set %1 on a copy: changed=%2 value=%3")
                    .arg(Trace::show(value), Trace::show(changed), Trace::show(trial.value())));
}

const QVariantList &someValues()
{
    static const QVariantList values{1,
                                     2,
                                     text("2"),
                                     text("abc"),
                                     2.5,
                                     true,
                                     QVariant(),
                                     QString(),
                                     text(""),
                                     QByteArray("2"),
                                     QByteArray(),
                                     0,
                                     7u,
                                     7ll,
                                     QDate(2020, 2, 29),
                                     QDate(),
                                     QPoint(1, 2),
                                     QSize(),
                                     QStringList{text("a")},
                                     QVariantList{1, 2},
                                     3,
                                     text("2020-02-29"),
                                     text("true"),
                                     false,
                                     0.0,
                                     QUrl(text("a")),
                                     text("a")};
    return values;
}

/// Which values count as equal, each stored one (row) against each given one.
void traceEquality()
{
    Trace::title("equality of values");
    for (const QVariant &stored : someValues()) {
        const KProperty p("p", stored);
        QString row = Trace::show(stored) + QLatin1Char(' ');
        for (const QVariant &value : someValues()) {
            row += p.valueEqualsTo(value) ? QLatin1Char('=') : QLatin1Char('.');
        }
        // Qt 5 compared what could not be converted as if it were empty or zero.
        const bool isReal = QByteArray(stored.typeName()) == "double";
        if (stored.isValid() && (isReal ? stored.toDouble() == 0.0 : stored.toString().isEmpty())) {
            Trace::differs("failed-conversion");
        }
        Trace::line(row);
    }
    Trace::title("equality of doubles");
    for (const double stored : {0.0, 1.0, 1000.0}) {
        KProperty p("p", stored);
        for (const int precision : {0, 1, 2, 4}) {
            p.setOption("precision", precision);
            for (const double step :
                 {0.0, 1e-9, 0.00009, 0.00011, 0.009, 0.011, 0.09, 0.11, 0.9, 1.1, -0.009}) {
                const double scale = std::pow(10.0, precision);
                if (stored + step != stored &&
                    std::trunc(stored * scale) == std::trunc((stored + step) * scale)) {
                    Trace::differs("precision-compares");
                }
                GET(p.valueEqualsTo(stored + step));
            }
        }
    }
    KProperty fine("fine", 1.0);
    GET(fine.valueEqualsTo(1.1));
    Trace::differs("double-default-precision");
    GET(fine.valueEqualsTo(1.001));
    Trace::differs("double-default-precision");
    GET(fine.setValue(1.001));
}

} // namespace

void traceValue(const char *what, KProperty &p, const QVariantList &values)
{
    Trace::title(what);
    DUMP(p);
    for (const QVariant &value : values) {
        if (Trace::isOtherOfEqualMeaning(p, value)) {
            traceOtherOfEqualMeaning(p, value);
            continue;
        }
        const bool equal = p.valueEqualsTo(value);
        const bool changed = p.setValue(value);
        Trace::line(QStringLiteral("set %1: equal=%2 changed=%3 value=%4 old=%5 modified=%6")
                        .arg(Trace::show(value), Trace::show(equal), Trace::show(changed),
                             Trace::show(p.value()), Trace::show(p.oldValue()), Trace::show(p.isModified())));
    }
    GET(p.valueEqualsTo(p.oldValue()));
    RUN(p.resetValue());
    DUMP(p);
    RUN(p.resetValue());
    GET(p.setValue(values.first(), KProperty::ValueOption::IgnoreOld));
    DUMP(p);
    RUN(p.clearModifiedFlag());
    GET(p.isModified());
    GET(p.setValue(values.last(), KProperty::ValueOption::IgnoreOld));
    DUMP(p);
    RUN(p = values.first());
    DUMP(p);
    GET(p.setValue(values.last()));
    GET(p.setValue(values.first()));
    RUN(p.resetValue());
    DUMP(p);
}

void traceValues()
{
    traceEquality();
    const QVariantList &values = someValues();
    KProperty integer("int", 1);
    traceValue("int values", integer, values);
    KProperty string("string", text("start"));
    traceValue("string values", string, values);
    KProperty boolean("bool", false);
    traceValue("bool values", boolean, values);
    KProperty real("double", 1.0);
    traceValue("double values", real, {1.0, 1.1, 2, text("2.5"), QVariant(), 0.0, 7});
    KProperty automatic("auto");
    traceValue("auto values", automatic, values);
    KProperty typed("typed", QVariant(), QString(), QString(), KProperty::Int);
    traceValue("typed null values", typed, values);
    KProperty date("date", QDate(2020, 1, 1));
    traceValue("date values", date, values);
    KProperty user("user", text("u"), QString(), QString(), KProperty::UserDefined + 1);
    traceValue("user values", user, values);
    KProperty map("map", QVariantMap{{text("k"), 1}});
    traceValue("map values", map,
               {QVariantMap{{text("k"), 1}}, QVariantMap{{text("k"), 2}}, QVariantMap(),
                QVariantMap{{text("z"), 1}}});
}
