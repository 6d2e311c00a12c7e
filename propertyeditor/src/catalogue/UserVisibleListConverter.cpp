#include "orv/propertyeditor/UserVisibleListConverter.h"

#include <orv/core/Logging.h>
#include <orv/propertyeditor/PropertyLists.h>

#include <QFile>

#include <algorithm>
#include <optional>

namespace orv {

using namespace Qt::StringLiterals;

namespace {

PropertyLists readLists()
{
    QFile file(u":/orv/catalogue/lists.json"_s);
    // A resource that is missing reads as an empty text, which is no JSON.
    (void)file.open(QIODevice::ReadOnly);
    Result<PropertyLists> lists = PropertyLists::fromJson(file.readAll());
    if (!lists.hasError())
        return std::move(*lists);
    const Error &error = lists.error();
    qCWarning(propertyEditorLog).noquote()
        << "The lists of properties cannot be used:" << (error.errorMessages() + error.details()).join(u' ');
    return {};
}

const PropertyLists &lists()
{
    static const PropertyLists read = readLists();
    return read;
}

/// The first member of the pair whose text is \a value.
template<typename Key>
std::optional<Key> keyOf(const QList<QPair<Key, QString>> &pairs, const QVariant &value)
{
    const QString text = value.toString();
    const auto found = std::ranges::find(pairs, text, &QPair<Key, QString>::second);
    return found == pairs.end() ? std::nullopt : std::optional<Key>(found->first);
}

QVariant realText(const QStringList &texts, const QVariant &value)
{
    if (value.typeId() == QMetaType::QString)
        return value;
    bool isNumber = false;
    const int position = value.toInt(&isNumber);
    return isNumber && position >= 0 && position < texts.size() ? texts.at(position) : value;
}

QVariant realPosition(const QStringList &texts, const QVariant &value)
{
    if (value.typeId() != QMetaType::QString)
        return value;
    const qsizetype position = texts.indexOf(value.toString());
    return position < 0 ? value : QVariant(int(position));
}

QVariant realNumber(const QList<QPair<int, QString>> &pairs, const QVariant &value)
{
    if (value.typeId() != QMetaType::QString)
        return value;
    if (const std::optional<int> number = keyOf(pairs, value))
        return *number;
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    return isNumber ? QVariant(number) : value;
}

} // namespace

const QMap<PropertyId, QStringList> &UserVisibleListConverter::listItemsMap()
{
    return lists().plain;
}

const QMap<PropertyId, QList<QPair<int, QString>>> &UserVisibleListConverter::associativeListItemsMap()
{
    return lists().associative;
}

const QMap<PropertyId, QList<QPair<QString, QString>>> &
UserVisibleListConverter::associativeStringListItemsMap()
{
    return lists().associativeString;
}

const QMap<PropertyId, std::function<QVariant(const QVariant &)>> &
UserVisibleListConverter::associativeListWithBoolBackwardsCompatibility()
{
    return lists().numberOfFormerSwitch;
}

bool UserVisibleListConverter::keysAndValuesForList(PropertyId id, QStringList *keys, QStringList *values)
{
    keys->clear();
    values->clear();
    if (const auto plain = lists().plain.constFind(id); plain != lists().plain.cend()) {
        *keys = *plain;
        *values = *plain;
    }
    for (const auto &[number, text] : lists().associative.value(id)) {
        keys->append(QString::number(number));
        values->append(text);
    }
    for (const auto &[key, text] : lists().associativeString.value(id)) {
        keys->append(key);
        values->append(text);
    }
    return !keys->isEmpty();
}

QStringList UserVisibleListConverter::valuesForCheckableList(PropertyId id)
{
    return lists().checkable.value(id);
}

bool UserVisibleListConverter::isEditableList(PropertyId id)
{
    return lists().editable.contains(id);
}

bool UserVisibleListConverter::isStringSerializableList(PropertyId id)
{
    return lists().stringSerialized.contains(id);
}

QVariant UserVisibleListConverter::realListValue(PropertyId id, const QVariant &value)
{
    const PropertyLists &all = lists();
    const auto formerSwitch = all.numberOfFormerSwitch.constFind(id);
    QVariant present = formerSwitch == all.numberOfFormerSwitch.cend() ? value : (*formerSwitch)(value);
    if (const auto plain = all.plain.constFind(id); plain != all.plain.cend()) {
        return isStringSerializableList(id) ? realText(*plain, present) : realPosition(*plain, present);
    }
    if (const auto pairs = all.associative.constFind(id); pairs != all.associative.cend())
        return realNumber(*pairs, present);
    if (const auto pairs = all.associativeString.constFind(id); pairs != all.associativeString.cend()) {
        const std::optional<QString> key = keyOf(*pairs, present);
        return key ? QVariant(*key) : present;
    }
    return present;
}

} // namespace orv
