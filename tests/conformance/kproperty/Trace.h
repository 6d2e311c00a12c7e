#pragma once

// The vocabulary of the traces: every operation is one line "expression = result", every signal an
// indented line below it. The same text must come out of the Qt 5 and the Qt 6 build, so nothing here
// prints a meta-type number, a pointer or a debug stream of Qt.

#include <KProperty>
#include <KPropertyListData>
#include <KPropertySet>

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <cstdio>
#include <utility>

namespace Trace {

QString show(bool value);
QString show(int value);
QString show(const char *value);
QString show(const QByteArray &value);
QString show(const QString &value);
QString show(const QVariant &value);
QString show(const QStringList &value);
QString show(const QVariantList &value);
QString show(const QList<QByteArray> &value);
QString show(const QMap<QByteArray, QVariant> &value);
QString show(const KProperty *property);

/// Name of a property type, the same for both generations of meta-type numbers.
QString typeName(int type);

/// All that a caller can see of a property, children included.
QString describe(const KProperty &property);
/// Names, values and flags of the properties of a set, in order.
QString describeOrder(const KPropertySet &set);
/// The order, groups and flags of a set.
QString describe(const KPropertySet &set);

/// True for a value that means what \a property holds, in another type: there the builds part.
bool isOtherOfEqualMeaning(const KProperty &property, const QVariant &value);

void line(const QString &text);
/// The next line is one of the deliberate differences that the comparison knows under this name.
void differs(const char *name);
void title(const char *text);

/// Prints the signals of a set below the operation that caused them.
void watch(KPropertySet *set, const QString &label);

/// One generator for both builds: the standard distributions differ between library versions.
class Random
{
public:
    explicit Random(quint32 seed)
        : m_state(seed ? seed : 1)
    {}

    int below(int limit)
    {
        m_state ^= m_state << 13;
        m_state ^= m_state >> 17;
        m_state ^= m_state << 5;
        return static_cast<int>(m_state % static_cast<quint32>(limit));
    }

private:
    quint32 m_state;
};

} // namespace Trace

#define GET(expression) Trace::line(QStringLiteral(#expression " = ") + Trace::show(expression))
#define RUN(statement)                                                                                       \
    do {                                                                                                     \
        Trace::line(QStringLiteral(#statement));                                                             \
        statement;                                                                                           \
    } while (false)
#define DUMP_ORDER(set) Trace::line(QStringLiteral("  " #set ": ") + Trace::describeOrder(set))
#define DUMP(object) Trace::line(QStringLiteral("  " #object ": ") + Trace::describe(object))
