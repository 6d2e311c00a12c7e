#include "orv/propertyeditor/content/PropertyEditorJsonUtils.h"

#include "StampedCells.h"

#include <KProperty>
#include <orv/core/FileUtils.h>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/content/RawCell.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>
#include <orv/table/rn.h>

#include <QJsonDocument>

namespace orv {

using namespace PropertyEditorStringConstants;

QJsonArray stampedCells(const VariantItems &cells, const QString &stamp)
{
    QJsonArray array;
    for (const QVariant &cell : cells) {
        QJsonObject object = RawCell::objectOf(cell);
        object.insert(META_IN_JSON_KEY, stamp);
        array.append(object);
    }
    return array;
}

namespace {

QJsonArray withoutStampsOfCells(const QJsonArray &cells)
{
    QJsonArray array;
    for (const auto element : cells) {
        QJsonObject cell = element.toObject();
        cell.remove(META_IN_JSON_KEY);
        array.append(element.isObject() ? QJsonValue(cell) : QJsonValue(element));
    }
    return array;
}

} // namespace

namespace PropertyEditorJsonUtils {

RowNode propValueToRowNode(const QJsonObject &entry)
{
    return objectToRowNode(propValueObject(entry));
}

RowNode objectToRowNode(const QJsonObject &object)
{
    RowNode node;
    if (!rn::fromObject(object, &node))
        qCDebug(propertyEditorLog) << "Can't parse json " << QJsonDocument(object).toJson();
    return node;
}

QByteArray rowNodeToJson(const RowNode &node)
{
    bool ok = false;
    QByteArray bytes = rn::serialize(&node, &ok);
    if (!ok)
        qCDebug(propertyEditorLog) << "Can't serialize rownode ";
    return ok ? bytes : QByteArray();
}

QJsonObject rowNodeToObject(const RowNode &node)
{
    // Not by way of rowNodeToJson: a large table would be written and parsed again.
    bool ok = false;
    QJsonObject object = rn::toObject(&node, &ok);
    if (!ok)
        qCDebug(propertyEditorLog) << "Can't serialize rownode ";
    return ok ? object : QJsonObject();
}

VariantItems jsonArrayToVariantItems(const QJsonArray &array)
{
    VariantItems items;
    items.reserve(array.size());
    for (const auto element : array)
        items.append(RawCell(element.toObject()).toVariant());
    return items;
}

QJsonArray variantItemsToJsonArray(const VariantItems &items)
{
    return stampedCells(items, QString::fromUtf8(WflwMetaData::metaDataString(KProperty())));
}

QStringList jsonArrayToStringList(const QJsonArray &array)
{
    QStringList list;
    list.reserve(array.size());
    for (const auto element : array)
        list.append(element.toString());
    return list;
}

QJsonArray stringListToJsonArray(const QStringList &list)
{
    return QJsonArray::fromStringList(list);
}

QByteArray loadWflw(const QString &fileName, Error *error)
{
    const Result<QByteArray> bytes = FileUtils::readFile(fileName);
    if (error)
        *error = Error::NoError;
    if (bytes)
        return bytes.value();

    const QStringList reasons = bytes.error().details();
    qCWarning(propertyEditorLog) << "Cannot open provided wflw file:" << reasons.join(QLatin1Char(' '));
    if (error) {
        *error = Error(ErrorCode::MalformedStructure, bytes.error().errorMessages());
        for (const QString &reason : reasons)
            error->addDetail(reason);
    }
    return {};
}

QJsonObject withoutStamps(QJsonObject document)
{
    document.remove(META_IN_JSON_KEY);
    document.remove(EXTENDED_METADATA_IN_JSON_KEY);
    QJsonArray tabs = document.value(TABS_KEY).toArray();
    for (auto &&element : tabs) {
        QJsonObject tab = element.toObject();
        if (!tab.value(CELLS_KEY).isArray())
            continue;
        tab.insert(CELLS_KEY, withoutStampsOfCells(tab.value(CELLS_KEY).toArray()));
        element = tab;
    }
    if (!tabs.isEmpty())
        document.insert(TABS_KEY, tabs);
    return document;
}

bool compareWorkflows(const QJsonObject &a, const QJsonObject &b, bool strict)
{
    return strict ? a == b : withoutStamps(a) == withoutStamps(b);
}

} // namespace PropertyEditorJsonUtils

} // namespace orv
