#include "Trace.h"

#include <QDate>
#include <QDateTime>
#include <QPoint>
#include <QRectF>
#include <QSizeF>
#include <QTime>
#include <QUrl>

namespace Trace {

namespace {

struct NamedType
{
    int type;
    const char *name;
};

// Auto stays last: a type that both generations number alike must be found by its own name first.
const NamedType kTypes[] = {
    {KProperty::Invalid, "Invalid"},
    {KProperty::Bool, "Bool"},
    {KProperty::Int, "Int"},
    {KProperty::UInt, "UInt"},
    {KProperty::LongLong, "LongLong"},
    {KProperty::ULongLong, "ULongLong"},
    {KProperty::Double, "Double"},
    {KProperty::Map, "Map"},
    {KProperty::List, "List"},
    {KProperty::String, "String"},
    {KProperty::StringList, "StringList"},
    {KProperty::ByteArray, "ByteArray"},
    {KProperty::Date, "Date"},
    {KProperty::Time, "Time"},
    {KProperty::DateTime, "DateTime"},
    {KProperty::Url, "Url"},
    {KProperty::Rect, "Rect"},
    {KProperty::RectF, "RectF"},
    {KProperty::Size, "Size"},
    {KProperty::SizeF, "SizeF"},
    {KProperty::Point, "Point"},
    {KProperty::PointF, "PointF"},
    {KProperty::Color, "Color"},
    {KProperty::Font, "Font"},
    {KProperty::Pixmap, "Pixmap"},
    {KProperty::Cursor, "Cursor"},
    {KProperty::SizePolicy, "SizePolicy"},
    {KProperty::ValueFromList, "ValueFromList"},
    {KProperty::LineStyle, "LineStyle"},
    {KProperty::Auto, "Auto"},
};

QString number(double value)
{
    return QString::number(value, 'g', 10);
}

QString showGeometry(const QVariant &value)
{
    const QRectF rect = value.toRectF();
    const QSizeF size = value.toSizeF();
    const QPointF point = value.toPointF();
    const QString name = QString::fromLatin1(value.typeName());
    if (name.startsWith(QLatin1String("QRect"))) {
        return QStringLiteral("%1,%2 %3x%4")
            .arg(number(rect.x()), number(rect.y()), number(rect.width()), number(rect.height()));
    }
    if (name.startsWith(QLatin1String("QSize")) && name != QLatin1String("QSizePolicy")) {
        return QStringLiteral("%1x%2").arg(number(size.width()), number(size.height()));
    }
    if (name.startsWith(QLatin1String("QPoint"))) {
        return QStringLiteral("%1,%2").arg(number(point.x()), number(point.y()));
    }
    return value.toString();
}

} // namespace

QString typeName(int type)
{
    for (const NamedType &row : kTypes) {
        if (row.type == type) {
            return QString::fromLatin1(row.name);
        }
    }
    return QString::number(type);
}

QString show(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

QString show(int value)
{
    return QString::number(value);
}

QString show(const char *value)
{
    return show(QByteArray(value));
}

QString show(const QByteArray &value)
{
    return QLatin1Char('\'') + QString::fromUtf8(value) + QLatin1Char('\'');
}

QString show(const QString &value)
{
    QString text = value;
    text.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString show(const QVariant &value)
{
    if (!value.isValid()) {
        return QStringLiteral("invalid");
    }
    if (value.canConvert<QVariantList>() && QByteArray(value.typeName()) == "QVariantList") {
        return show(value.toList());
    }
    if (QByteArray(value.typeName()) == "QStringList") {
        return show(value.toStringList());
    }
    if (QByteArray(value.typeName()) == "double") {
        return QStringLiteral("double(%1)").arg(number(value.toDouble()));
    }
    return QStringLiteral("%1(%2)").arg(QString::fromLatin1(value.typeName()), showGeometry(value));
}

QString show(const QStringList &value)
{
    return QLatin1Char('[') + value.join(QLatin1String("|")) + QLatin1Char(']');
}

QString show(const QVariantList &value)
{
    QStringList texts;
    for (const QVariant &item : value) {
        texts << show(item);
    }
    return show(texts);
}

QString show(const QList<QByteArray> &value)
{
    QStringList texts;
    for (const QByteArray &item : value) {
        texts << show(item);
    }
    return show(texts);
}

QString show(const QMap<QByteArray, QVariant> &value)
{
    QStringList texts;
    for (auto it = value.constBegin(); it != value.constEnd(); ++it) {
        texts << show(it.key()) + QLatin1Char('=') + show(it.value());
    }
    return show(texts);
}

QString show(const KProperty *property)
{
    return property ? show(property->name()) : QStringLiteral("none");
}

QString describe(const KProperty &property)
{
    QString text =
        QStringLiteral("%1 %2 value=%3 old=%4 caption=%5 display=%6 description=%7 icon=%8")
            .arg(show(property.name()), typeName(property.type()), show(property.value()),
                 show(property.oldValue()), show(property.caption()), show(property.captionForDisplaying()),
                 show(property.description()), show(property.iconName()));
    const std::pair<bool, const char *> flags[] = {
        {property.isNull(), " null"},           {property.isModified(), " modified"},
        {property.isReadOnly(), " readonly"},   {!property.isVisible(), " hidden"},
        {!property.isStorable(), " transient"}, {property.hasOptions(), " options"},
    };
    for (const auto &flag : flags) {
        text += flag.first ? QString::fromLatin1(flag.second) : QString();
    }
    if (const KPropertyListData *list = property.listData()) {
        text += QStringLiteral(" list=") + show(list->keys()) + show(list->names());
    }
    if (const QList<KProperty *> *children = property.children()) {
        for (const KProperty *child : *children) {
            text += QStringLiteral(" {") + describe(*child) + QLatin1Char('}');
        }
    }
    return text;
}

QString describeOrder(const KPropertySet &set)
{
    QString text = QStringLiteral("order=[");
    for (KPropertySetIterator it(set); it.current(); ++it) {
        text += QStringLiteral("%1:%2%3 ")
                    .arg(show(it.current()->name()), show(it.current()->value()),
                         it.current()->isModified() ? QStringLiteral("*") : QString());
    }
    return text + QLatin1Char(']');
}

QString describe(const KPropertySet &set)
{
    QString text = QStringLiteral("count=%1").arg(set.count());
    for (const QByteArray &group : set.groupNames()) {
        text += QStringLiteral(" %1(%2,%3)%4")
                    .arg(show(group), show(set.groupCaption(group)), show(set.groupIconName(group)),
                         show(set.propertyNamesForGroup(group)));
    }
    text += QLatin1Char(' ') + describeOrder(set);
    text += set.isReadOnly() ? QStringLiteral(" readonly") : QString();
    text += set.isModified() ? QStringLiteral(" modified") : QString();
    text += set.hasVisibleProperties() ? QString() : QStringLiteral(" nothingvisible");
    return text + QStringLiteral(" selection=") + show(set.previousSelection());
}

namespace {
QByteArray s_mark;
}

void differs(const char *name)
{
    s_mark = QByteArray("~") + name + "~ ";
}

bool isOtherOfEqualMeaning(const KProperty &property, const QVariant &value)
{
    const QVariant held = property.value();
    return property.valueEqualsTo(value) &&
           (QByteArray(held.typeName()) != value.typeName() || show(held) != show(value));
}

void line(const QString &text)
{
    std::fputs(std::exchange(s_mark, QByteArray()).constData(), stdout);
    std::fputs(text.toUtf8().constData(), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

void title(const char *text)
{
    line(QStringLiteral("\n# ") + QString::fromLatin1(text));
}

void watch(KPropertySet *set, const QString &label)
{
    const auto print = [label](const char *name, const KProperty *property) {
        line(QStringLiteral("  %1 signals %2 %3 %4")
                 .arg(label, QString::fromLatin1(name), show(property),
                      property ? show(property->value()) : QString()));
    };
    QObject::connect(set, &KPropertySet::propertyChanged, set,
                     [print](KPropertySet &, KProperty &property) { print("changed", &property); });
    QObject::connect(set, &KPropertySet::propertyChangedInternal, set,
                     [print](KPropertySet &, KProperty &property) { print("changedInternal", &property); });
    QObject::connect(set, &KPropertySet::propertyReset, set,
                     [print](KPropertySet &, KProperty &property) { print("reset", &property); });
    QObject::connect(set, &KPropertySet::aboutToDeleteProperty, set,
                     [print](KPropertySet &, KProperty &property) { print("aboutToDelete", &property); });
    QObject::connect(set, &KPropertySet::aboutToBeCleared, set,
                     [print] { print("aboutToBeCleared", nullptr); });
    QObject::connect(set, &KPropertySet::aboutToBeDeleted, set,
                     [print] { print("aboutToBeDeleted", nullptr); });
    QObject::connect(set, &KPropertySet::readOnlyFlagChanged, set,
                     [print] { print("readOnlyFlag", nullptr); });
}

} // namespace Trace
