#include "TableLosses.h"

#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/table/rn.h>

#include <QCoreApplication>
#include <QSet>

namespace orv::PropertyEditor {

using namespace PropertyEditorStringConstants;

namespace {

struct TableLossesTr
{
    Q_DECLARE_TR_FUNCTIONS(TableLosses)
};

QString memberText(const QString &key)
{
    return TableLossesTr::tr("member \"%1\" of a table cell").arg(key);
}

void reportMembers(const LoadContext &context, const QJsonObject &object, const QStringList &kept)
{
    for (auto it = object.begin(); it != object.end(); ++it) {
        if (!kept.contains(it.key()))
            context.lost(it.key(), memberText(it.key()),
                         TableLossesTr::tr("the format has no such member here"));
    }
}

void reportOddTexts(const LoadContext &context, const QJsonObject &cell)
{
    for (const QString key : {META_IN_JSON_KEY, NAME_KEY, TITLE_KEY}) {
        const QJsonValue value = cell.value(key);
        if (!value.isUndefined() && !value.isString())
            context.lost(key, memberText(key), TableLossesTr::tr("it is no text"));
    }
}

/// Members of nodes. Bounded by what the reader of tables takes, which has read this one.
void reportNodeMembers(const LoadContext &context, const QJsonObject &node, const QStringList &kept)
{
    reportMembers(context, node, QStringList{DATA, CHILDREN} + kept);
    const QJsonArray rows = node.value(CHILDREN).toArray();
    const LoadContext rowsContext = context.member(CHILDREN);
    for (qsizetype i = 0; i < rows.size(); ++i)
        reportNodeMembers(rowsContext.element(i), rows.at(i).toObject(), {});
}

void reportOddArrays(const LoadContext &context, const QJsonObject &value, const QStringList &keys)
{
    for (const QString &key : keys) {
        if (value.contains(key) && !value.value(key).isArray())
            context.lost(key, memberText(key), TableLossesTr::tr("it is no array"));
    }
}

void reportTable(const LoadContext &context, const QJsonObject &entry, const QStringList &kept)
{
    const QJsonValue value = entry.value(VALUE_KEY);
    RowNode node;
    if (value.isObject() && rn::fromObject(value.toObject(), &node)) {
        reportNodeMembers(context.member(VALUE_KEY), value.toObject(), kept);
        reportOddArrays(context.member(VALUE_KEY), value.toObject(), kept);
    } else if (!value.isUndefined()) {
        context.lost(VALUE_KEY, TableLossesTr::tr("value of the table"), TableLossesTr::tr("it is no table"));
    }
}

void reportObject(const LoadContext &context, const QJsonObject &entry)
{
    const QJsonValue value = entry.value(VALUE_KEY);
    if (!value.isUndefined() && !value.isObject())
        context.lost(VALUE_KEY, TableLossesTr::tr("value of the property"),
                     TableLossesTr::tr("it is no object"));
}

/// An entry that is read.
void reportEntry(const LoadContext &context, const QJsonObject &entry, PropertyId id,
                 const TableContent &content)
{
    reportMembers(context, entry, {NAME_KEY, VALUE_KEY});
    if (content.objects.contains(id))
        reportObject(context, entry);
    else if (!content.anyForm.contains(id))
        reportTable(context, entry, id == content.table ? content.valueArrays : QStringList());
}

bool isKept(PropertyId id, const TableContent &content)
{
    // A cell without a table of its own doesn't keep what nobody knows.
    const bool isTable = id == content.table && id != PropertyId::NoProperty;
    return isTable || content.furtherTables.contains(id) || content.objects.contains(id) ||
           content.anyForm.contains(id);
}

} // namespace

void reportTableLosses(const LoadContext &context, const QJsonObject &json, const TableContent &content)
{
    reportMembers(context, json, {TYPE_KEY, META_IN_JSON_KEY, NAME_KEY, TITLE_KEY, PROPERTIES_KEY});
    reportOddTexts(context, json);

    const BaseItemType type = baseItemTypeFromString(json.value(TYPE_KEY).toString());
    const LoadContext properties = context.member(PROPERTIES_KEY);
    const QJsonArray entries = json.value(PROPERTIES_KEY).toArray();
    QSet<PropertyId> seen;
    for (qsizetype i = 0; i < entries.size(); ++i) {
        const QJsonObject entry = entries.at(i).toObject();
        const PropertyId id = PropertyEditorJsonUtils::findPropertyBackCompat(entry, type);
        const QString what = TableLossesTr::tr("property \"%1\"").arg(entry.value(NAME_KEY).toString());
        if (!isKept(id, content)) {
            properties.lost(QString::number(i), what, TableLossesTr::tr("this kind of cell doesn't have it"));
        } else if (seen.contains(id)) {
            properties.lost(QString::number(i), what,
                            TableLossesTr::tr("only the first of its name is read"));
        } else {
            reportEntry(properties.element(i), entry, id, content);
            seen.insert(id);
        }
    }
}

} // namespace orv::PropertyEditor
