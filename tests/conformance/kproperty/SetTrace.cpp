#include "CoreTrace.h"
#include "Trace.h"

#include <KPropertySetBuffer>

#include <QPoint>

using Trace::describe;

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

class VisibleSelector : public KPropertySelector
{
public:
    bool operator()(const KProperty &property) const override { return property.isVisible(); }
    KPropertySelector *clone() const override { return new VisibleSelector; }
};

class NoneSelector : public KPropertySelector
{
public:
    bool operator()(const KProperty &) const override { return false; }
    KPropertySelector *clone() const override { return new NoneSelector; }
};

QString order(const KPropertySet &set, KPropertySetIterator::Order order)
{
    QStringList names;
    KPropertySetIterator it(set);
    it.setOrder(order);
    for (; it.current(); ++it) {
        names << QString::fromLatin1(it.current()->name());
    }
    return Trace::show(names);
}

QString visible(const KPropertySet &set)
{
    QStringList names;
    for (KPropertySetIterator it(set, VisibleSelector()); *it; ++it) {
        names << QString::fromLatin1((*it)->name());
    }
    return Trace::show(names);
}

void fill(KPropertySet &set)
{
    set.addProperty(new KProperty("zeta", 1, text("Yankee"), text("z")));
    set.addProperty(new KProperty("Alpha", 2, text("Zulu"), text("a")), "second");
    set.addProperty(new KProperty("mid", text("m"), text("alpha"), text("m")));
    set.addProperty(new KProperty("last", 4.5), "third");
    set.addProperty(new KProperty("beta", true, QString(), QString()), "second");
    set["mid"].setVisible(false);
}

void traceAddRemove()
{
    Trace::title("set: add and remove");
    KPropertySet set;
    Trace::watch(&set, text("set"));
    DUMP(set);
    GET(set.isEmpty());
    RUN(set.addProperty(nullptr));
    RUN(set.addProperty(new KProperty("a", 1)));
    RUN(set.addProperty(new KProperty("b", 2), "group"));
    RUN(set.addProperty(new KProperty("c", 3), ""));
    DUMP(set);
    RUN(set.addProperty(new KProperty("a", 9, text("again"), text("desc")), "other"));
    DUMP(set);
    DUMP(set["a"]);
    GET(set.groupNameForProperty("a"));
    GET(set.groupNameForProperty(set["b"]));
    GET(set.groupNameForProperty("none"));
    RUN(set.removeProperty("none"));
    RUN(set.removeProperty(static_cast<KProperty *>(nullptr)));
    RUN(set.removeProperty("b"));
    DUMP(set);
    KProperty stranger("stranger", 1);
    GET(set.groupNameForProperty(stranger));
    RUN(set.removeProperty(&set["a"]));
    DUMP(set);
    RUN(set.addProperty(new KProperty("b", 5), "group"));
    RUN(set.addProperty(new KProperty("a", 6), "group"));
    DUMP(set);
    RUN(set.clear());
    DUMP(set);
    RUN(set.addProperty(new KProperty("a", 1)));
    DUMP(set);
}

void traceLookups()
{
    Trace::title("set: lookups");
    KPropertySet set;
    fill(set);
    Trace::watch(&set, text("set"));
    DUMP(set);
    GET(set.contains("zeta"));
    GET(set.contains("Zeta"));
    GET(set.contains(""));
    GET(set.propertyValue("zeta"));
    GET(set.propertyValue("none", 7));
    GET(set.property("none").isNull());
    GET(set["none"].setValue(5));
    DUMP(set["none"]);
    RUN(set.changeProperty("zeta", 10));
    RUN(set.changeProperty("zeta", 10));
    RUN(set.changePropertyIfExists("none", 10));
    RUN(set.changePropertyIfExists("zeta", 11));
    RUN(set.changePropertyIfExists("zeta", text("x")));
    DUMP(set);
    RUN(set["zeta"].resetValue());
    RUN(set["zeta"].resetValue());
    DUMP(set);
    GET(set.propertyValues());
    GET(set.count(VisibleSelector()));
    GET(set.hasProperties(VisibleSelector()));
    GET(set.hasProperties(NoneSelector()));
    GET(set.count(NoneSelector()));
    GET(order(set, KPropertySetIterator::Order::Insertion));
    GET(order(set, KPropertySetIterator::Order::Alphabetical));
    GET(order(set, KPropertySetIterator::Order::AlphabeticalByName));
    GET(visible(set));
    KPropertySetIterator it(set);
    KPropertySetIterator copy(it);
    GET(it == copy);
    RUN(++it);
    GET(it == copy);
    GET(it.current());
    GET(copy.current());
    RUN(copy = it);
    GET(copy.current());
    GET(int(copy.order()));
    RUN(it.setOrder(KPropertySetIterator::Order::Alphabetical));
    GET(it.current());
    GET(it != copy);
    RUN(set["zeta"].setName("renamed"));
    GET(set.contains("zeta"));
    GET(set.contains("renamed"));
    GET(set.groupNameForProperty("zeta"));
    GET(set.groupNameForProperty("renamed"));
    GET(set["zeta"].name());
    DUMP(set);
    GET(set.propertyValues());
    RUN(set["zeta"].setValue(99));
    RUN(set.changeProperty("zeta", 98));
    RUN(set["zeta"].setName("zeta"));
}

void traceGroups()
{
    Trace::title("set: groups");
    KPropertySet set;
    fill(set);
    GET(set.groupNames());
    GET(set.groupCaption("common"));
    GET(set.groupCaption("second"));
    GET(set.groupCaption("none"));
    GET(set.groupIconName("second"));
    RUN(set.setGroupCaption("second", text("The Second")));
    RUN(set.setGroupIconName("second", text("icon")));
    RUN(set.setGroupCaption("unknown", text("Unknown")));
    RUN(set.setGroupCaption("common", text("Basics")));
    RUN(set.setGroupCaption("Third", text("Mixed Case")));
    GET(set.groupCaption("common"));
    GET(set.groupCaption("SECOND"));
    GET(set.groupCaption("third"));
    GET(set.groupCaption("unknown"));
    GET(set.groupNames());
    GET(set.propertyNamesForGroup("SECOND"));
    GET(set.propertyNamesForGroup("none"));
    RUN(set.addProperty(new KProperty("late", 1), "SECOND"));
    RUN(set.addProperty(new KProperty("fresh", 1), "Fresh Group"));
    GET(set.groupCaption("Fresh Group"));
    GET(set.groupNameForProperty("fresh"));
    DUMP(set);
    RUN(set.removeProperty("last"));
    DUMP(set);
    GET(set.groupCaption("third"));
    RUN(set.addProperty(new KProperty("anew", 1), "third"));
    DUMP(set);
    RUN(set.setGroupCaption("second", QString()));
    GET(set.groupCaption("second"));
}

void traceWhole()
{
    Trace::title("set: copies, flags, end of life");
    KPropertySet *set = new KPropertySet;
    fill(*set);
    set->setGroupCaption("second", text("Second"));
    set->setGroupIconName("second", text("icon"));
    set->setPreviousSelection("mid");
    Trace::watch(set, text("set"));
    RUN(set->setReadOnly(true));
    RUN(set->setReadOnly(true));
    GET(set->isReadOnly());
    RUN(set->changeProperty("zeta", 5));
    KPropertySet copy(*set);
    Trace::watch(&copy, text("copy"));
    Trace::differs("copied-groups");
    DUMP(copy);
    DUMP_ORDER(copy);
    DUMP(copy["zeta"]);
    GET(copy.contains("zeta"));
    RUN(copy.changeProperty("zeta", 6));
    KPropertySet assigned;
    Trace::watch(&assigned, text("assigned"));
    assigned.addProperty(new KProperty("gone", 1), "away");
    RUN(assigned = *set);
    Trace::differs("copied-groups");
    DUMP(assigned);
    DUMP_ORDER(assigned);
    GET(assigned.groupCaption("second"));
    RUN(assigned["zeta"].setValue(66));
    RUN(set->clearModifiedFlags());
    DUMP(*set);
    RUN(set->removeProperty("mid"));
    GET(set->previousSelection());
    RUN(delete set);
    const KPropertySet &same = assigned;
    RUN(assigned = same);
    DUMP_ORDER(assigned);
    Trace::title("end of traceWhole");
}

void traceBuffer()
{
    Trace::title("buffer");
    KPropertySet first;
    first.addProperty(new KProperty("a", 1, text("A")));
    first.addProperty(new KProperty("b", text("x")), "g");
    first.addProperty(new KProperty("only", 1));
    Trace::watch(&first, text("first"));
    KPropertySetBuffer buffer(first);
    Trace::watch(&buffer, text("buffer"));
    DUMP_ORDER(buffer);
    RUN(buffer.changeProperty("a", 5));
    DUMP_ORDER(buffer);
    DUMP(first);
    RUN(buffer["b"].setValue(text("z")));
    RUN(buffer["b"].resetValue());
    DUMP(first);
    RUN(first.changeProperty("a", 6));
    DUMP_ORDER(buffer);
    KPropertySet second;
    second.addProperty(new KProperty("b", text("y")), "g");
    second.addProperty(new KProperty("a", 2, text("A")));
    KPropertySetBuffer both(first);
    RUN(both.intersect(second));
    Trace::differs("buffer-intersection");
    DUMP_ORDER(both);
    KPropertySetBuffer empty;
    DUMP(empty);
    RUN(empty.intersect(first));
    DUMP_ORDER(empty);
    Trace::title("end of buffers");
}

QVariant randomValue(Trace::Random &random)
{
    switch (random.below(8)) {
    case 0:
        return random.below(4);
    case 1:
        return QString::number(random.below(4));
    case 2:
        return random.below(2) == 1;
    case 3:
        return random.below(40) / 10.0;
    case 4:
        return QVariant();
    case 5:
        return QByteArray::number(random.below(4));
    case 6:
        return QPoint(random.below(3), random.below(3));
    default:
        return random.below(1000);
    }
}

class RandomRun
{
public:
    explicit RandomRun(unsigned seed)
        : m_random(seed)
    {
        Trace::watch(&m_set, text("set"));
    }

    void step()
    {
        const QByteArray name = QByteArray("p") + QByteArray::number(m_random.below(14));
        const QByteArray group = QByteArray("g") + QByteArray::number(m_random.below(4));
        const QVariant value = randomValue(m_random);
        const int operation = m_random.below(16);
        Trace::line(QStringLiteral("op %1 %2 %3 %4")
                        .arg(operation)
                        .arg(Trace::show(name), Trace::show(group), Trace::show(value)));
        if (operation < 6) {
            changeStructure(operation, name, group, value);
        } else {
            changeContents(operation, name, group, value);
        }
        DUMP(m_set);
    }

private:
    void changeStructure(int operation, const QByteArray &name, const QByteArray &group,
                         const QVariant &value)
    {
        switch (operation) {
        case 0:
        case 1:
        case 2:
        case 3:
            // A name that is taken is a script of its own; here it would end most runs early.
            if (!m_set.contains(name)) {
                m_set.addProperty(new KProperty(name, value, QString::fromLatin1(name).toUpper()), group);
            }
            break;
        case 4:
            m_set.removeProperty(name);
            break;
        default:
            if (m_random.below(12) == 0) {
                m_set.clear();
            }
            break;
        }
    }

    void changeContents(int operation, const QByteArray &name, const QByteArray &group, const QVariant &value)
    {
        KProperty &property = m_set[name];
        const QVariant given = operation == 9 ? property.oldValue() : value;
        if (operation <= 9 && Trace::isOtherOfEqualMeaning(property, given)) {
            return;
        }
        switch (operation) {
        case 6:
        case 7:
            m_set.changePropertyIfExists(name, value);
            break;
        case 8:
            Trace::line(Trace::show(property.setValue(value, KProperty::ValueOption::IgnoreOld)));
            break;
        case 9:
            if (m_set.contains(name)) {
                property.resetValue();
            }
            break;
        case 10:
            if (m_set.contains(name)) {
                property.setVisible(!property.isVisible());
            }
            break;
        case 11:
            property.clearModifiedFlag();
            break;
        case 12:
            m_set.setGroupCaption(group, value.toString());
            break;
        case 13:
            m_set.setReadOnly(m_random.below(2) == 0);
            break;
        case 14: {
            const KPropertySet copy(m_set);
            DUMP_ORDER(copy);
            break;
        }
        default:
            Trace::line(order(m_set, KPropertySetIterator::Order::Alphabetical) + visible(m_set));
            break;
        }
    }

    Trace::Random m_random;
    KPropertySet m_set;
};

} // namespace

void traceSets()
{
    traceAddRemove();
    traceLookups();
    traceGroups();
    traceWhole();
    traceBuffer();
}

void traceRandomSets(unsigned seed, int operations)
{
    Trace::title("random sets");
    Trace::line(QStringLiteral("seed %1").arg(seed));
    RandomRun run(seed);
    for (int i = 0; i < operations; ++i) {
        run.step();
    }
}
