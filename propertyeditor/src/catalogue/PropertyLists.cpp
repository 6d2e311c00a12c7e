#include "orv/propertyeditor/PropertyLists.h"

#include <orv/core/JsonUtils.h>

#include <QCoreApplication>

#include <array>

namespace orv {

using namespace Qt::StringLiterals;

namespace {

struct PropertyListsTr
{
    Q_DECLARE_TR_FUNCTIONS(PropertyLists)
};

struct Entry
{
    QString text;
    QJsonObject object; ///< of which kinds read further members
};

using Ids = QList<PropertyId>;
using Entries = QList<Entry>;

Error listFault(const QString &message)
{
    return Error(ErrorCode::InvalidContent, message);
}

Result<int> intValue(const QJsonObject &object, const QString &key)
{
    constexpr int kNone = std::numeric_limits<int>::min();
    const int number = object.value(key).toInt(kNone);
    if (number == kNone)
        return listFault(PropertyListsTr::tr("\"%1\" must be an integer.").arg(key));
    return number;
}

Error addPlain(PropertyLists &lists, const Ids &ids, const Entries &entries)
{
    QStringList texts;
    for (const Entry &entry : entries) {
        const Result<int> position = intValue(entry.object, u"value"_s);
        if (position.hasError())
            return position.error();
        if (*position != texts.size())
            return listFault(PropertyListsTr::tr("\"%1\" has the value %2 at the position %3.")
                                 .arg(entry.text)
                                 .arg(*position)
                                 .arg(texts.size()));
        texts.append(entry.text);
    }
    for (PropertyId id : ids)
        lists.plain.insert(id, texts);
    return Error::NoError;
}

Error addAssociative(PropertyLists &lists, const Ids &ids, const Entries &entries)
{
    QList<QPair<int, QString>> pairs;
    QSet<int> numbers;
    for (const Entry &entry : entries) {
        const Result<int> number = intValue(entry.object, u"value"_s);
        if (number.hasError())
            return number.error();
        if (numbers.contains(*number))
            return listFault(PropertyListsTr::tr("The value %1 is given twice.").arg(*number));
        numbers.insert(*number);
        pairs.append({*number, entry.text});
    }
    for (PropertyId id : ids)
        lists.associative.insert(id, pairs);
    return Error::NoError;
}

Error addAssociativeString(PropertyLists &lists, const Ids &ids, const Entries &entries)
{
    QList<QPair<QString, QString>> pairs;
    QSet<QString> keys;
    for (const Entry &entry : entries) {
        const Result<QString> key = JsonUtils::stringValue(entry.object, u"key"_s);
        if (key.hasError())
            return key.error();
        if (keys.contains(*key))
            return listFault(PropertyListsTr::tr("The key \"%1\" is given twice.").arg(*key));
        keys.insert(*key);
        pairs.append({*key, entry.text});
    }
    for (PropertyId id : ids)
        lists.associativeString.insert(id, pairs);
    return Error::NoError;
}

Error addCheckable(PropertyLists &lists, const Ids &ids, const Entries &entries)
{
    QStringList texts;
    for (const Entry &entry : entries)
        texts.append(entry.text);
    for (PropertyId id : ids)
        lists.checkable.insert(id, texts);
    return Error::NoError;
}

struct Kind
{
    QLatin1String name;
    Error (*add)(PropertyLists &lists, const Ids &ids, const Entries &entries);
};

constexpr std::array kKinds = {
    Kind{QLatin1String("associativeInteger"), addAssociative},
    Kind{QLatin1String("associativeKey"), addAssociativeString},
    Kind{QLatin1String("checkable"), addCheckable},
    Kind{QLatin1String("plain"), addPlain},
};

Result<Ids> idsOf(const QJsonObject &list, const PropertyLists &lists)
{
    const Result<QJsonArray> array = JsonUtils::arrayValue(list, u"ids"_s);
    if (array.hasError())
        return array.error();
    Ids ids;
    for (const QJsonValue value : *array) {
        const int number = value.toInt(-1);
        if (number < 0 || number >= kPropertyCount)
            return listFault(PropertyListsTr::tr("An id is not the number of a property."));
        if (lists.contains(PropertyId(number)) || ids.contains(PropertyId(number)))
            return listFault(PropertyListsTr::tr("The property %1 has two lists.").arg(number));
        ids.append(PropertyId(number));
    }
    return ids;
}

Result<Entries> entriesOf(const QJsonObject &list)
{
    const Result<QJsonArray> array = JsonUtils::arrayValue(list, u"entries"_s);
    if (array.hasError())
        return array.error();
    if (array->isEmpty())
        return listFault(PropertyListsTr::tr("The list is empty."));
    Entries entries;
    QSet<QString> texts;
    for (const QJsonValue value : *array) {
        const QJsonObject object = value.toObject();
        Result<QString> text = JsonUtils::stringValue(object, u"text"_s);
        if (text.hasError())
            return text.error();
        if (texts.contains(*text))
            return listFault(PropertyListsTr::tr("The text \"%1\" is given twice.").arg(*text));
        texts.insert(*text);
        entries.append({std::move(*text), object});
    }
    return entries;
}

Error addFlag(QSet<PropertyId> &flagged, const QJsonObject &list, const QString &key, const Ids &ids)
{
    const QJsonValue value = list.value(key);
    if (!value.isBool())
        return listFault(PropertyListsTr::tr("\"%1\" must be true or false.").arg(key));
    if (value.toBool())
        flagged += QSet<PropertyId>(ids.begin(), ids.end());
    return Error::NoError;
}

/// Old documents hold a switch as the text of the bool, older ones as the bool.
QVariant numberOfSwitch(const QVariant &value, int numberOfFalse, int numberOfTrue)
{
    if (value.typeId() == QMetaType::Bool)
        return value.toBool() ? numberOfTrue : numberOfFalse;
    if (value.typeId() == QMetaType::QString) {
        const QString text = value.toString();
        if (text.compare("true"_L1, Qt::CaseInsensitive) == 0)
            return numberOfTrue;
        if (text.compare("false"_L1, Qt::CaseInsensitive) == 0)
            return numberOfFalse;
    }
    return value;
}

Error addFormerSwitch(PropertyLists &lists, const QJsonObject &list, const Ids &ids)
{
    if (!list.contains("booleans"_L1))
        return Error::NoError;
    const QJsonObject booleans = list.value("booleans"_L1).toObject();
    const Result<int> numberOfFalse = intValue(booleans, u"false"_s);
    if (numberOfFalse.hasError())
        return numberOfFalse.error();
    const Result<int> numberOfTrue = intValue(booleans, u"true"_s);
    if (numberOfTrue.hasError())
        return numberOfTrue.error();
    for (PropertyId id : ids) {
        lists.numberOfFormerSwitch.insert(
            id, [ifFalse = *numberOfFalse, ifTrue = *numberOfTrue](const QVariant &value) {
                return numberOfSwitch(value, ifFalse, ifTrue);
            });
    }
    return Error::NoError;
}

Error addList(PropertyLists &lists, const QJsonObject &list)
{
    const Result<QString> name = JsonUtils::stringValue(list, u"kind"_s);
    if (name.hasError())
        return name.error();
    const auto *const kind = std::ranges::find_if(kKinds, [&](const Kind &k) { return *name == k.name; });
    if (kind == kKinds.end())
        return listFault(PropertyListsTr::tr("\"%1\" is no kind of list.").arg(*name));
    const Result<Ids> ids = idsOf(list, lists);
    if (ids.hasError())
        return ids.error();
    const Result<Entries> entries = entriesOf(list);
    if (entries.hasError())
        return entries.error();
    ORV_RETURN_IF_ERROR(kind->add(lists, *ids, *entries));
    ORV_RETURN_IF_ERROR(addFlag(lists.editable, list, u"editable"_s, *ids));
    ORV_RETURN_IF_ERROR(addFlag(lists.stringSerialized, list, u"stringSerialized"_s, *ids));
    return addFormerSwitch(lists, list, *ids);
}

} // namespace

bool PropertyLists::contains(PropertyId id) const
{
    return plain.contains(id) || associative.contains(id) || associativeString.contains(id) ||
           checkable.contains(id);
}

Result<PropertyLists> PropertyLists::fromJson(const QByteArray &json)
{
    Result<QJsonObject> root = JsonUtils::objectFromJson(json);
    if (root.hasError())
        return root.ecatch();
    Result<QJsonArray> array = JsonUtils::arrayValue(*root, u"lists"_s);
    if (array.hasError())
        return array.ecatch();
    PropertyLists lists;
    for (qsizetype i = 0; i < array->size(); ++i) {
        if (Error error = addList(lists, array->at(i).toObject()))
            return error.addDetail(PropertyListsTr::tr("list %1 of the file").arg(i + 1)).ecatch();
    }
    return lists;
}

} // namespace orv
