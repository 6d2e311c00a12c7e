#include "CoreTrace.h"

#include "Trace.h"

#include <KPropertyComposedUrl>
#include <KPropertyFactory>

#include <QDate>
#include <QPoint>
#include <QRect>
#include <QSize>

using Trace::describe;

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

/// Two integers that make up a point, so that composition is seen without any widget.
class PairProperty : public KComposedPropertyInterface
{
public:
    explicit PairProperty(KProperty *parent)
        : KComposedPropertyInterface(parent)
    {
        (void)new KProperty("x", QVariant(), text("X"), text("left"), KProperty::Int, parent);
        (void)new KProperty("y", QVariant(), text("Y"), text("top"), KProperty::Int, parent);
    }

    void setValue(KProperty *property, const QVariant &value, KProperty::ValueOptions options) override
    {
        Trace::line(QStringLiteral("  pair set ") + Trace::show(value) + flags(options) +
                    QStringLiteral(" while ") + Trace::show(property->value()));
        property->child("x")->setValue(value.toPoint().x(), options);
        property->child("y")->setValue(value.toPoint().y(), options);
    }

    bool valuesEqual(const QVariant &first, const QVariant &second) override
    {
        return first.toPoint() == second.toPoint();
    }

protected:
    void childValueChanged(KProperty *child, const QVariant &value, KProperty::ValueOptions options) override
    {
        Trace::line(QStringLiteral("  pair child ") + Trace::show(child) + Trace::show(value) +
                    flags(options) + QStringLiteral(" while ") + Trace::show(child->value()));
        QPoint point = child->parent()->value().toPoint();
        if (child->name() == "x") {
            point.setX(value.toInt());
        } else {
            point.setY(value.toInt());
        }
        child->parent()->setValue(point, options);
    }

private:
    static QString flags(KProperty::ValueOptions options)
    {
        return QStringLiteral(" options=%1").arg(static_cast<int>(options));
    }
};

void tracePlain()
{
    Trace::title("null property");
    KProperty none;
    DUMP(none);
    GET(none.setValue(5));
    DUMP(none);
    RUN(none.setName("named"));
    GET(none.setValue(5));
    DUMP(none);
    RUN(none.resetValue());
    DUMP(none);

    Trace::title("null property with a value");
    KProperty nameless(QByteArray(), QVariant(5), text("caption"), text("description"));
    DUMP(nameless);
    RUN(nameless.setName("named"));
    DUMP(nameless);
    GET(nameless.setValue(7));
    const KProperty namelessChoice(QByteArray(),
                                   new KPropertyListData(QStringList{text("a")}, QStringList{text("b")}),
                                   QVariant(text("a")));
    DUMP(namelessChoice);

    Trace::title("captions");
    KProperty p("p", QVariant(1), text("One"), text("first"));
    DUMP(p);
    RUN(p.setCaption(text("  Allow Zero\nSize \n")));
    DUMP(p);
    GET(p.captionOrName());
    RUN(p.setCaption(QString()));
    GET(p.captionOrName());
    RUN(p.setDescription(text("two\nlines")));
    RUN(p.setIconName(text("edit")));
    RUN(p.setReadOnly(true));
    RUN(p.setVisible(false));
    RUN(p.setStorable(false));
    DUMP(p);
    GET(int(p.valueSyncPolicy()));
    RUN(p.setValueSyncPolicy(KProperty::ValueSyncPolicy::FocusOut));
    GET(int(p.valueSyncPolicy()));
}

void traceTypes()
{
    Trace::title("types");
    KProperty p("p", 5);
    RUN(p.setType(KProperty::String));
    DUMP(p);
    GET(p.setValue(text("x")));
    DUMP(p);
    RUN(p.setType(KProperty::Auto));
    DUMP(p);
    GET(p.setValue(3));
    DUMP(p);
    RUN(p.setType(KProperty::ValueFromList));
    DUMP(p);
    KProperty mixed("mixed", text("5"), QString(), QString(), KProperty::Int);
    DUMP(mixed);
    KProperty number("number", 5, QString(), QString(), KProperty::String);
    DUMP(number);
    KProperty nullString("ns", QString());
    DUMP(nullString);
    GET(nullString.setValue(text("")));
    DUMP(nullString);
}

void traceLists()
{
    Trace::title("list data");
    KPropertyListData data(QStringList{text("one"), text("two")}, QStringList{text("One"), text("Two")});
    GET(data.keys());
    GET(data.names());
    GET(data.keysAsStringList());
    GET(data.namesAsStringList());
    KPropertyListData shorter(QStringList{text("one"), text("two")}, QStringList{text("One")});
    GET(shorter.keys());
    GET(shorter.names());
    GET(shorter == data);
    KPropertyListData longer(QVariantList{1}, QVariantList{text("a"), text("b")});
    GET(longer.keys());
    GET(longer.names());
    KPropertyListData numbers(QVariantList{1.5, 2}, QStringList{text("a"), text("b")});
    GET(numbers.keysAsStringList());
    KPropertyListData copy(numbers);
    GET(copy == numbers);
    RUN(copy.setKeys({3}));
    GET(copy != numbers);
    RUN(copy.setNames({4}));
    GET(copy.namesAsStringList());
    RUN(copy.setKeysAsStringList({text("k")}));
    RUN(copy.setNamesAsStringList({text("n")}));
    GET(copy.keys());
    RUN(copy = data);
    GET(copy == data);

    Trace::title("list properties");
    KProperty p("list", new KPropertyListData(data), QVariant(text("two")), text("List"));
    DUMP(p);
    const QVariantList values{text("one"), text("three"), 2, QVariant(), text("")};
    traceValue("list property values", p, values);
    KProperty q("q", new KPropertyListData(QVariantList{1, 2}, QStringList{text("a"), text("b")}),
                QVariant(2));
    traceValue("number list property values", q, {1, text("1"), text("x"), 5, QVariant()});
    RUN(q.setListData({text("u"), text("v")}, {text("U"), text("V")}));
    DUMP(q);
    GET(q.setValue(text("u")));
    RUN(q.setListData(nullptr));
    DUMP(q);
    GET(q.setValue(text("v")));
    RUN(q.setListData(new KPropertyListData(data)));
    DUMP(q);
    KProperty plain("plain", 1);
    RUN(plain.setListData({text("u")}, {text("U")}));
    DUMP(plain);
    KProperty empty("empty", static_cast<KPropertyListData *>(nullptr), QVariant(1));
    DUMP(empty);
}

void traceOptions()
{
    Trace::title("options");
    KProperty parent("parent", 1);
    KProperty *child = new KProperty("child", 2, QString(), QString(), KProperty::Int, &parent);
    KProperty *grandchild = new KProperty("grandchild", 2, QString(), QString(), KProperty::Int, child);
    GET(child->hasOptions());
    RUN(parent.setOption("min", 3));
    GET(parent.option("min"));
    GET(child->option("min"));
    GET(grandchild->option("min", 9));
    GET(child->hasOptions());
    RUN(child->setOption("min", 4));
    GET(grandchild->option("min"));
    RUN(child->setOption("min", QVariant()));
    GET(child->option("min"));
    GET(child->option("max", 8));
    RUN(parent.setOption("min", QString()));
    GET(parent.option("min"));
    RUN(parent.setOption("min", text("")));
    GET(parent.option("min"));
    GET(parent.hasOptions());
    RUN(parent.setOption("min", QVariant()));
    GET(parent.hasOptions());
    GET(parent.option("", 1));
    RUN(parent.setOption("a", QByteArray()));
    GET(parent.hasOptions());
    RUN(parent.setOption("b", QStringList()));
    GET(parent.option("b"));
    RUN(parent.setOption("c", QUrl()));
    GET(parent.option("c", 1));
    RUN(parent.setOption("d", QPoint()));
    GET(parent.option("d", 1));
    RUN(parent.setOption("e", QDate()));
    GET(parent.option("e", 1));
    RUN(parent.setOption("f", QVariantMap()));
    GET(parent.option("f", 1));
    RUN(parent.setOption("g", QSize()));
    GET(parent.option("g", 1));
    RUN(parent.setOption("h", 0));
    GET(parent.option("h", 1));
    RUN(parent.setOption("i", QRect()));
    GET(parent.option("i", 1));

    Trace::title("children");
    DUMP(parent);
    GET(parent.child("child"));
    GET(parent.child("grandchild"));
    GET(parent.child(""));
    GET(grandchild->parent());
    GET(grandchild->setValue(7));
    GET(parent.isModified());
    RUN(parent.clearModifiedFlag());
    DUMP(parent);
    KProperty copy(parent);
    DUMP(copy);
    GET(copy.child("child")->parent() == &copy);
    KProperty *twin = new KProperty("child", 5, QString(), QString(), KProperty::Int, &parent);
    GET(parent.child("child") == twin);
    GET(int(parent.children()->count()));
}

template<typename Change>
void traceEqualProperty(const char *what, const KProperty &p, Change change)
{
    KProperty other(p);
    change(other);
    Trace::line(QStringLiteral("equal after change of %1: %2 %3")
                    .arg(QString::fromLatin1(what), Trace::show(p == other), Trace::show(other != p)));
}

void traceEqualProperties(const KProperty &p)
{
    traceEqualProperty("value", p, [](KProperty &other) { other.setValue(-1); });
    traceEqualProperty("name", p, [](KProperty &other) { other.setName("P"); });
    traceEqualProperty("type", p, [](KProperty &other) { other.setType(KProperty::String); });
    traceEqualProperty("caption", p, [](KProperty &other) { other.setCaption(text("other")); });
    traceEqualProperty("list", p, [](KProperty &other) { other.setListData(new KPropertyListData); });
    traceEqualProperty("option", p, [](KProperty &other) { other.setOption("other", 1); });
    traceEqualProperty("read only", p, [](KProperty &other) { other.setReadOnly(!other.isReadOnly()); });
}

void traceCopies()
{
    Trace::title("copies and equality");
    KProperty p("p", 1, text("P"), text("d"));
    p.setValue(2);
    p.setOption("min", 0);
    p.setReadOnly(true);
    p.setVisible(false);
    p.setStorable(false);
    p.setIconName(text("i"));
    p.setValueSyncPolicy(KProperty::ValueSyncPolicy::Auto);
    KProperty copy(p);
    DUMP(copy);
    GET(copy.option("min"));
    GET(int(copy.valueSyncPolicy()));
    GET(copy == p);
    RUN(copy.setValue(9));
    GET(copy == p);
    RUN(copy.setType(KProperty::String));
    GET(copy == p);
    GET(copy != p);
    traceEqualProperties(p);
    KProperty none;
    KProperty other;
    GET(none == other);
    RUN(other.setType(KProperty::Int));
    GET(none == other);
    RUN(other = p);
    DUMP(other);
    RUN(other = *&other);
    DUMP(other);
    RUN(other = KProperty());
    DUMP(other);
    KProperty list("list", new KPropertyListData(QStringList{text("a")}, QStringList{text("A")}),
                   QVariant(text("a")));
    RUN(other = list);
    DUMP(other);
    GET(other.listData() == list.listData());
    KProperty target("target", 1);
    (void)new KProperty("old", 1, QString(), QString(), KProperty::Int, &target);
    RUN(target = p);
    DUMP(target);
    GET(target.option("min"));
}

void traceComposed()
{
    Trace::title("composed");
    KProperty p("p", QPoint(1, 2));
    RUN(p.setComposedProperty(new PairProperty(&p)));
    DUMP(p);
    GET(p.setValue(QPoint(3, 4)));
    DUMP(p);
    GET(p.setValue(QPoint(3, 4)));
    GET(p.child("x")->setValue(10));
    DUMP(p);
    GET(p.child("x")->setValue(10));
    GET(p.child("y")->setValue(5, KProperty::ValueOption::IgnoreOld));
    DUMP(p);
    RUN(p.clearModifiedFlag());
    DUMP(p);
    GET(p.child("y")->setValue(6, KProperty::ValueOption::IgnoreComposedProperty));
    DUMP(p);
    GET(p.setValue(QPoint(8, 8), KProperty::ValueOption::IgnoreComposedProperty));
    DUMP(p);
    RUN(p.resetValue());
    DUMP(p);
    RUN(p.child("x")->resetValue());
    DUMP(p);
    GET(p.composedProperty()->childValueChangedEnabled());
    RUN(p.composedProperty()->setChildValueChangedEnabled(false));
    GET(p.child("x")->setValue(77));
    DUMP(p);
    RUN(p.setComposedProperty(nullptr));
    DUMP(p);

    Trace::title("replaced in a set");
    KPropertySet plain;
    Trace::watch(&plain, text("plain"));
    plain.addProperty(new KProperty("a", 1));
    RUN(plain["a"] = KProperty("b", text("x")));
    DUMP(plain["a"]);
    RUN(plain["a"].setValue(text("y")));
    RUN(plain["a"].resetValue());
    auto *parent = new KProperty("parent", 1);
    auto *child = new KProperty("child", 1, QString(), QString(), KProperty::Int, parent);
    plain.addProperty(parent);
    RUN(child->setValue(2));
    RUN(child->resetValue());
    RUN(parent->setValue(8, KProperty::ValueOption::IgnoreOld));

    Trace::title("composed in a set");
    KPropertySet set;
    Trace::watch(&set, text("set"));
    KProperty *owned = new KProperty("p", QPoint(1, 2));
    owned->setComposedProperty(new PairProperty(owned));
    RUN(set.addProperty(owned));
    RUN(set["p"].setValue(QPoint(5, 6)));
    RUN(set["p"].child("x")->setValue(11));
    RUN(set["p"].resetValue());
    RUN(set["p"].child("y")->resetValue());
    RUN(set["p"].child("y")->setValue(12, KProperty::ValueOption::IgnoreOld));
    DUMP(set["p"]);
    RUN(set.clearModifiedFlags());
    DUMP(set);
    KProperty copy(*owned);
    DUMP(copy);
}

class TaggedDisplay : public KPropertyValueDisplayInterface
{
public:
    QString valueToString(const QVariant &value, const QLocale &locale) const override
    {
        return QStringLiteral("tagged ") + value.toString() + locale.name();
    }
};

void traceFactory()
{
    Trace::title("factory");
    const int type = KProperty::UserDefined + 5;
    auto *factory = new KPropertyFactory;
    auto *display = new TaggedDisplay;
    factory->addComposedPropertyCreator(type, new KComposedPropertyCreator<PairProperty>);
    factory->addDisplay(type, display);
    factory->addDisplay(type + 1, display);
    KPropertyFactoryManager *const manager = KPropertyFactoryManager::self();
    RUN(manager->registerFactory(factory));
    KProperty p("p", QPoint(1, 2), QString(), QString(), type);
    DUMP(p);
    GET(p.setValue(QPoint(5, 5)));
    GET(p.child("x")->setValue(9));
    DUMP(p);
    RUN(p.child("x")->setOption("c", 2));
    RUN(p.child("x")->setCaption(text("changed")));
    KProperty copy(p);
    DUMP(copy);
    GET(copy.child("x")->option("c"));
    KProperty other("other", 1);
    RUN(other = p);
    DUMP(other);
    RUN(other.setType(KProperty::Int));
    DUMP(other);
    KProperty late("late", QPoint(3, 3));
    RUN(late.setType(type));
    DUMP(late);
    RUN(p = KProperty("i", 1));
    DUMP(p);
    GET(manager->canConvertValueToText(type));
    GET(manager->canConvertValueToText(KProperty::Int));
    KProperty shown("shown", text("v"), QString(), QString(), type + 1);
    GET(manager->canConvertValueToText(&shown));
    GET(manager->propertyValueToString(&shown));
    GET(manager->propertyValueToLocalizedString(&shown));
    GET(manager->valueToString(type + 1, 5));
    GET(manager->valueToLocalizedString(type + 1, 5));
    GET(manager->valueToString(KProperty::Double, 1234.5));
    GET(manager->valueToLocalizedString(KProperty::Double, 1234.5));
    const QString longText(300, QLatin1Char('x'));
    GET(int(manager->valueToString(KProperty::String, longText).size()));
    GET(int(manager->valueToLocalizedString(KProperty::String, longText).size()));
    GET(int(KPropertyValueDisplayInterface::valueToLocalizedString(longText).size()));
    GET(KPropertyValueDisplayInterface::maxStringValueLength());
}

QString show(const KPropertyComposedUrl &url)
{
    return QStringLiteral("value=%1 base=%2 absolute=%3 relative=%4 valid=%5")
        .arg(url.value().toString(), url.baseUrl().toString(), url.absoluteUrl().toString(),
             url.relativePath(), Trace::show(url.isValid()));
}

void traceComposedUrls()
{
    Trace::title("composed URLs");
    const QStringList bases{QString(),
                            text("file:///data/run/"),
                            text("file:///data/run"),
                            text("relative/base"),
                            text("http://h.org/a/b"),
                            text("/abs/path"),
                            text("file://")};
    const QStringList parts{QString(),         text("a.raw"), text("../x/y.raw"), text("/abs.raw"),
                            text("file:///z"), text("./q"),   text("a b#c?d"),    text("//x")};
    for (const QString &base : bases) {
        for (const QString &part : parts) {
            const KPropertyComposedUrl relative{QUrl(base), part};
            const KPropertyComposedUrl absolute{QUrl(base), QUrl(part)};
            Trace::line(base + QLatin1String(" + ") + part + QLatin1String(": ") + show(relative));
            Trace::line(base + QLatin1String(" or ") + part + QLatin1String(": ") + show(absolute));
        }
    }
    KPropertyComposedUrl url(QUrl(text("file:///b/")), text("r"));
    RUN(url.setAbsoluteUrl(QUrl(text("not absolute"))));
    Trace::line(show(url));
    RUN(url.setAbsoluteUrl(QUrl(text("file:///abs"))));
    Trace::line(show(url));
    RUN(url.setRelativePath(text("k")));
    Trace::line(show(url));
    RUN(url.setBaseUrl(QUrl(text("no base"))));
    Trace::line(show(url));
    RUN(url.setBaseUrl(QUrl(text("file:///n"))));
    Trace::line(show(url));
    GET(url == KPropertyComposedUrl(QUrl(text("file:///m")), QUrl(text("file:///n/k"))));
    GET(KPropertyComposedUrl() == KPropertyComposedUrl());
}

} // namespace

void traceProperties()
{
    tracePlain();
    traceValues();
    traceTypes();
    traceLists();
    traceOptions();
    traceCopies();
    traceComposed();
    traceFactory();
    traceComposedUrls();
}
