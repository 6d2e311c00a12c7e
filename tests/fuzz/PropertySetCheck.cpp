#include "FormChecks.h"
#include "Survival.h"

#include <KProperty>
#include <KPropertySet>
#include <orv/core/LossObserver.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/UserVisibleListConverter.h>
#include <orv/propertyeditor/content/LoadContext.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QJsonArray>
#include <QJsonDocument>

#include <memory>

using namespace orv;
using namespace PropertyEditorStringConstants;
using namespace Qt::StringLiterals;

namespace FormChecks {

namespace {

constexpr auto kKeepPaths = PropertyEditor::PropertyConversionFlag::KeepPaths;

using Set = std::unique_ptr<KPropertySet>;

/// Names of one set differ in more than case.
bool isStamp(const QString &key)
{
    return key.compare("metadata"_L1, Qt::CaseInsensitive) == 0;
}

/// The stamp tells the time of each load. An unset priority isn't written, and what has none is read as high.
QJsonObject substanceOf(const QByteArray &json)
{
    QJsonObject cell = QJsonDocument::fromJson(json).object();
    for (const QString &key : cell.keys()) {
        if (isStamp(key))
            cell.remove(key);
    }
    QJsonArray entries;
    for (const auto element : cell.value(PROPERTIES_KEY).toArray()) {
        QJsonObject entry = element.toObject();
        if (!entry.contains("priority"_L1))
            entry.insert("priority"_L1, int(PropertySetCreator::Priority::High));
        entries.append(entry);
    }
    cell.insert(PROPERTIES_KEY, entries);
    return cell;
}

/// Members and entries of the text, of which each is in the set or was told as lost.
qsizetype countParts(const QJsonObject &cell)
{
    const QJsonValue entries = cell.value(PROPERTIES_KEY);
    return entries.isArray() ? cell.size() - 1 + entries.toArray().size() : cell.size();
}

bool isRefusal(const Error &error)
{
    return (error.code() == ErrorCode::MalformedStructure || error.code() == ErrorCode::InvalidContent) &&
           !error.errorMessage().isEmpty();
}

QString checkSurface(const KPropertySet &set)
{
    for (KPropertySetIterator it(set); it.current(); ++it) {
        const KProperty &property = *it.current();
        if (property.name().isEmpty() ||
            (property.isModified() && !isStamp(QString::fromUtf8(property.name().mid(1)))))
            return u"a loaded property has no name, or counts as modified"_s;
        if (property.isVisible() == property.name().startsWith(':'))
            return u"a member of the cell shows, or a setting doesn't"_s;
    }
    return {};
}

QString checkReadBack(const QByteArray &written, const std::optional<BaseItemType> &type, int count)
{
    LossCollector collector;
    const auto loaded =
        PropertySetCreator::jsonToPropertySet(written, type, PropertyEditor::LoadContext(&collector));
    if (loaded.hasError())
        return u"what was written is refused: "_s + loaded.error().errorMessage();
    const Set again(*loaded);
    if (!collector.losses().isEmpty() || again->count() != count)
        return u"what was written loses something"_s;
    QByteArray second;
    if (!PropertySetCreator::propertySetToJson(*again, &second, kKeepPaths))
        return u"what was read back can't be written"_s;
    return substanceOf(second) == substanceOf(written) ? QString()
                                                       : u"a second write differs from the first"_s;
}

/// A cell that needn't be read has to be written as it stands, and has nothing to tell.
QString checkStoredForm(const QJsonObject &cell, const std::optional<BaseItemType> &type)
{
    if (!PropertySetCreator::propertiesInStoredForm(cell, type))
        return {};
    LossCollector collector;
    const auto loaded =
        PropertySetCreator::objectToPropertySet(cell, type, PropertyEditor::LoadContext(&collector));
    if (loaded.hasError())
        return u"what needn't be read is refused: "_s + loaded.error().errorMessage();
    const Set set(*loaded);
    std::optional<QJsonObject> written = PropertySetCreator::propertySetToObject(*set, kKeepPaths);
    if (!written || !collector.losses().isEmpty())
        return u"what needn't be read loses something"_s;
    written->insert(META_IN_JSON_KEY, cell.value(META_IN_JSON_KEY));
    return *written == cell ? QString() : u"what needn't be read is written otherwise"_s;
}

QString checkWith(const QByteArray &bytes, const std::optional<BaseItemType> &type)
{
    LossCollector collector;
    const auto loaded =
        PropertySetCreator::jsonToPropertySet(bytes, type, PropertyEditor::LoadContext(&collector));
    if (loaded.hasError())
        return isRefusal(loaded.error()) ? QString() : u"a refusal needs its code and a message"_s;
    const Set set(*loaded);
    const QJsonObject cell = QJsonDocument::fromJson(bytes).object();
    // Properties hold objects as texts, and their texts lose marks.
    if (QString wrong = losesMarks(bytes) ? QString() : checkStoredForm(cell, type); !wrong.isEmpty())
        return wrong;
    // Parts of an entry that is kept are told too.
    const QList<Loss> losses = collector.losses();
    const auto dropped = std::ranges::count_if(losses, [](const Loss &loss) {
        return loss.path.count(u'/') <= (loss.path.startsWith(u"/properties/"_s) ? 2 : 1);
    });
    const qsizetype parts = set->count() + dropped;
    if (parts != countParts(cell) && parts != countParts(cell) + 1) // the stamp
        return u"something was dropped without a word"_s;
    if (QString wrong = checkSurface(*set); !wrong.isEmpty())
        return wrong;
    QByteArray written;
    if (!PropertySetCreator::propertySetToJson(*set, &written, kKeepPaths))
        return u"what was read can't be written"_s;
    // A member that is named like the settings, and isn't their list, gives way to it.
    const int count = set->count() - (set->property(":properties").name() == ":properties" ? 1 : 0);
    return losesMarks(bytes) ? QString() : checkReadBack(written, type, count);
}

/// One property of each type, editor and kind of list.
const QList<PropertyId> &kindsOfProperties()
{
    static const QList<PropertyId> ids = [] {
        using Lists = UserVisibleListConverter;
        QList<PropertyId> kinds;
        QSet<QString> seen;
        for (const PropertyId id : PropertiesNames::names()->keys()) {
            const QString kind =
                u"%1 %2 %3 %4 %5"_s.arg(PropertiesNames::valueTypeNameOfPropertyType(id))
                    .arg(int(PropertySetCreator::editorForProperty(id)))
                    .arg(int(Lists::listItemsMap().contains(id)))
                    .arg(int(Lists::isStringSerializableList(id)) + 2 * int(Lists::isEditableList(id)))
                    .arg(int(Lists::associativeListWithBoolBackwardsCompatibility().contains(id)));
            if (!seen.contains(kind))
                kinds.append(id);
            seen.insert(kind);
        }
        return kinds;
    }();
    return ids;
}

/// Cells in which each kind of property has what the text holds: each in one of its own, and all in the last.
QList<QJsonObject> cellsOfValues(const QByteArray &bytes)
{
    const QJsonDocument document = QJsonDocument::fromJson("[" + bytes + "]");
    const QJsonValue value =
        document.isNull() ? QJsonValue(QString::fromUtf8(bytes)) : document.array().first();
    const auto cellOf = [](const QJsonArray &entries) {
        return QJsonObject{{META_IN_JSON_KEY, u"{}"_s}, {TYPE_KEY, u"Karvon"_s}, {PROPERTIES_KEY, entries}};
    };
    QList<QJsonObject> cells;
    QJsonArray entries;
    for (const QString &name : PropertiesNames::internalNamesForTypes(kindsOfProperties())) {
        entries.append(QJsonObject{{NAME_KEY, name}, {u"priority"_s, 1}, {VALUE_KEY, value}});
        cells.append(cellOf({entries.last()}));
    }
    return cells << cellOf(entries);
}

} // namespace

QString checkPropertySet(const QByteArray &bytes)
{
    const QString stored = QJsonDocument::fromJson(bytes).object().value(TYPE_KEY).toString();
    for (const std::optional<BaseItemType> &type :
         {std::optional<BaseItemType>(), std::optional(baseItemTypeFromString(stored)),
          std::optional(BaseItemType::Karvon)}) {
        QString wrong = checkWith(bytes, type);
        if (!wrong.isEmpty())
            return wrong;
    }
    const QList<QJsonObject> cells = cellsOfValues(bytes);
    for (const QJsonObject &cell : cells) {
        if (QString wrong = losesMarks(bytes) ? QString() : checkStoredForm(cell, {}); !wrong.isEmpty())
            return wrong;
    }
    return checkWith(QJsonDocument(cells.last()).toJson(), {});
}

} // namespace FormChecks
